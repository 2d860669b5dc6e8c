// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <colormath/oklch.h>
#include <maker/tones.h>

#include <QRegularExpression>
#include <QStringBuilder>

#include <algorithm>

namespace Maker
{

namespace
{

void appendRun(const QString &name, const Run &run, QVector<PaletteEntry> *entries)
{
    for (int step = 1; step <= toneCount; ++step)
        entries->append({name % QLatin1Char('_') % QString::number(step), run.tone(step)});
}

// Where the hue wanders, it follows the pigment: a dark yellow of constant hue would be an olive.
QVector<PaletteEntry> madeMeaningRuns()
{
    QVector<PaletteEntry> entries;
    appendRun(QStringLiteral("Red"), {20, 26, 0.215, 5.5}, &entries);
    appendRun(QStringLiteral("Yellow"), {102, 72, 0.190, 3}, &entries);
    appendRun(QStringLiteral("Green"), {155, 150, 0.190, 4}, &entries);
    appendRun(QStringLiteral("Orange"), {72, 46, 0.190, 4}, &entries);
    return entries;
}

// Named after their opacity in per cent; the underscore of B50_ belongs to the name.
void appendVeils(const char *letter, const QColor &color, std::initializer_list<int> percents,
                 QVector<PaletteEntry> *entries)
{
    for (const int percent : percents) {
        QColor veil = color;
        veil.setAlpha((255 * percent + 50) / 100);
        const QString name = QLatin1String(letter) % QString::number(percent);
        entries->append({name == QLatin1String("B50") ? name % QLatin1Char('_') : name, veil});
    }
}

} // namespace

double toneLightness(int step)
{
    return 100.0 - 9.0 * step;
}

int nearestStep(const QColor &color)
{
    return qBound(1, qRound((100.0 - ColorMath::cieLightness(color)) / 9.0), toneCount);
}

QString brandToneName(int step)
{
    return QLatin1String("Brand_") % QString::number(step);
}

bool isBrandTone(const QString &name)
{
    static const QRegularExpression pattern(QStringLiteral("^Brand_(?:[1-9]|10)$"));
    return pattern.match(name).hasMatch();
}

bool isOfBrand(const QString &name)
{
    return name == QLatin1String("Brand") || isBrandTone(name);
}

QColor Run::tone(int step) const
{
    const double hue = firstHue + (lastHue - firstHue) * (step - 1) / (toneCount - 1);
    const double foot = step < summit ? 1 : toneCount;
    const double way = (step - summit) / (foot - summit);
    return ColorMath::colorAtLightness(toneLightness(step), chroma * (1 - 0.75 * way * way), hue);
}

Run brandRun(const QColor &brand)
{
    const ColorMath::Oklch color = ColorMath::toOklch(brand);
    // A summit at either end would leave no tones on one side of it.
    const double summit = qBound(2.0, (100.0 - ColorMath::cieLightness(brand)) / 9.0, 9.0);
    return {color.hue, color.hue, color.chroma, summit};
}

Neutral Neutral::of(const QColor &color)
{
    const ColorMath::Oklch tinge = ColorMath::toOklch(color);
    return {tinge.hue, std::min(tinge.chroma, maximalChroma)};
}

QVector<PaletteEntry> palette(const Parameters &parameters)
{
    QVector<PaletteEntry> entries;
    appendRun(QStringLiteral("Brand"), brandRun(parameters.brand), &entries);
    const bool isTone =
        std::any_of(entries.cbegin(), entries.cend(), [&](const PaletteEntry &tone) {
            return tone.second.rgb() == parameters.brand.rgb();
        });
    if (!isTone)
        entries.append({QStringLiteral("Brand"), parameters.brand.toRgb()});
    for (int step = 1; step <= 7; ++step) {
        entries.append(
            {QLatin1String("Bg_") % QString::number(step),
             ColorMath::colorAtLightness(parameters.surfaceStep * step, parameters.neutral.chroma,
                                         parameters.neutral.hue)});
    }
    appendVeils("W", Qt::white, {100, 90, 80, 40, 20, 15, 10, 8}, &entries);
    appendVeils("B", Qt::black, {20, 32, 50, 100}, &entries);
    static const QVector<PaletteEntry> meanings = madeMeaningRuns(); // the same for every brand
    return entries + meanings;
}

QVector<QColor> lightSurfaces(const Parameters &parameters)
{
    QVector<QColor> surfaces;
    const double step = parameters.surfaceStep * 5 / 6;
    for (int n = 0; n < 8; ++n) {
        surfaces.append(ColorMath::colorAtLightness(
            100 - step * (7 - n), parameters.neutral.chroma / 3, parameters.neutral.hue));
    }
    return surfaces;
}

QString hexadecimal(const QColor &color)
{
    return color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb).toUpper();
}

} // namespace Maker
