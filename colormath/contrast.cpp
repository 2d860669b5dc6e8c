// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <colormath/contrast.h>

#include <cmath>
#include <utility>

namespace
{

// Channels are taken as the integers they are: the fractions that Qt gives are coarser in Qt 6.
constexpr double full = 0xffff;

// WCAG 2.1 prints the threshold as 0.03928. The sRGB standard has 0.04045; no 8-bit channel value
// lies between the two, so the text of the recommendation is followed.
double linearChannel(double encoded)
{
    return encoded <= 0.03928 ? encoded / 12.92 : std::pow((encoded + 0.055) / 1.055, 2.4);
}

} // namespace

namespace ColorMath
{

double relativeLuminance(const QColor &color)
{
    const QRgba64 rgb = color.rgba64();
    return 0.2126 * linearChannel(rgb.red() / full) + 0.7152 * linearChannel(rgb.green() / full)
        + 0.0722 * linearChannel(rgb.blue() / full);
}

double contrastRatio(const QColor &foreground, const QColor &background)
{
    QColor ground = background.toRgb();
    ground.setAlphaF(1.0);
    double lighter = relativeLuminance(over(foreground, ground));
    double darker = relativeLuminance(ground);
    if (lighter < darker)
        std::swap(lighter, darker);
    return (lighter + 0.05) / (darker + 0.05);
}

QColor over(const QColor &front, const QColor &back)
{
    const QRgba64 above = front.rgba64();
    const QRgba64 below = back.rgba64();
    const double shown = above.alpha() / full;
    const double hidden = below.alpha() / full * (1.0 - shown);
    const double alpha = shown + hidden;
    if (alpha <= 0.0)
        return {0, 0, 0, 0};

    const auto mix = [=](double upper, double lower) {
        return ushort(qRound(qBound(0.0, (upper * shown + lower * hidden) / alpha, full)));
    };
    return QRgba64::fromRgba64(mix(above.red(), below.red()), mix(above.green(), below.green()),
                               mix(above.blue(), below.blue()),
                               ushort(qRound(qMin(alpha, 1.0) * full)));
}

QString contrastText(double ratio)
{
    return QString::number(std::floor(ratio * 100.0) / 100.0, 'f', 2) + QLatin1String(":1");
}

} // namespace ColorMath
