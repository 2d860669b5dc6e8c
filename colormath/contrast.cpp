// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <colormath/contrast.h>

#include <cmath>
#include <utility>

namespace
{

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
    const QColor rgb = color.toRgb();
    return 0.2126 * linearChannel(rgb.redF()) + 0.7152 * linearChannel(rgb.greenF())
        + 0.0722 * linearChannel(rgb.blueF());
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
    const QColor above = front.toRgb();
    const QColor below = back.toRgb();
    const double shown = above.alphaF();
    const double hidden = below.alphaF() * (1.0 - shown);
    const double alpha = shown + hidden;
    if (alpha <= 0.0)
        return {0, 0, 0, 0};

    const auto mix = [=](double upper, double lower) {
        return qBound(0.0, (upper * shown + lower * hidden) / alpha, 1.0);
    };
    return QColor::fromRgbF(mix(above.redF(), below.redF()), mix(above.greenF(), below.greenF()),
                            mix(above.blueF(), below.blueF()), qMin(alpha, 1.0));
}

QString contrastText(double ratio)
{
    return QString::number(std::floor(ratio * 100.0) / 100.0, 'f', 2) + QLatin1String(":1");
}

} // namespace ColorMath
