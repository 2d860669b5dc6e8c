// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "themeworkshop.h"

#include <colormath/contrast.h>
#include <maker/lookcolors.h>
#include <maker/meanings.h>
#include <maker/themefiles.h>
#include <maker/themetext.h>

#include <algorithm>

namespace Gallery
{

namespace
{

// The blue that the sample themes are made of.
constexpr QRgb firstBrand = 0xff3060f0;

Maker::LookColors colorsOf(const Maker::Order &order, const Maker::MadeFile &file)
{
    const QString section = QStringLiteral("Colors");
    const Maker::ThemeText text(file.content);
    QMap<QString, QString> values;
    const QStringList keys = text.keys(section);
    for (const QString &key : keys)
        values.insert(key, text.value(section, key));
    return {Maker::palette(order.parameters), values};
}

QVector<PairResult> pairResults(const Maker::LookColors &colors, Maker::Look look,
                                double textContrast)
{
    QVector<PairResult> results;
    for (const Maker::ColorPair &pair : Maker::colorPairs()) {
        const QColor ground = colors.composite(pair.layers);
        results.append({pair, ColorMath::over(colors.color(pair.foreground), ground), ground,
                        colors.ratio(pair), Maker::requiredRatio(pair.need, look, textContrast)});
    }
    const auto hasLess = [](const PairResult &first, const PairResult &second) {
        return first.ratio / first.required < second.ratio / second.required;
    };
    std::stable_sort(results.begin(), results.end(), hasLess);
    return results;
}

QVector<MeaningResult> meaningResults(const Maker::LookColors &colors)
{
    QVector<MeaningResult> results;
    for (const Maker::MeaningPair &pair : Maker::meaningPairs()) {
        MeaningResult result{
            QString::fromLatin1(pair.first), QString::fromLatin1(pair.second), {}, {}, 0,
            ColorMath::Vision::Normal};
        result.firstColor = colors.color(result.first);
        result.secondColor = colors.color(result.second);
        result.distance =
            ColorMath::leastDistance(result.firstColor, result.secondColor, &result.vision);
        results.append(result);
    }
    const auto isNearer = [](const MeaningResult &first, const MeaningResult &second) {
        return first.distance < second.distance;
    };
    std::stable_sort(results.begin(), results.end(), isNearer);
    return results;
}

} // namespace

ThemeWorkshop::ThemeWorkshop(QObject *parent)
    : QObject(parent)
{
    m_order.parameters.brand = QColor(firstBrand);
    m_timer.setSingleShot(true);
    m_timer.setInterval(0); // when there is nothing else to do
    connect(&m_timer, &QTimer::timeout, this, &ThemeWorkshop::make);
}

void ThemeWorkshop::setParameters(const Maker::Parameters &parameters)
{
    m_order.parameters = parameters;
    m_timer.start();
}

void ThemeWorkshop::setLook(Maker::Look look)
{
    m_look = look;
    m_timer.start();
}

void ThemeWorkshop::make()
{
    QString error;
    if (Maker::writeThemeFiles(folder(), Maker::makeThemes(m_order).files, true, &error))
        Q_EMIT made();
    else
        qCritical("%ls. Make room for temporary files.", qUtf16Printable(error));
}

ThemeReport ThemeWorkshop::report() const
{
    Maker::Order order = m_order;
    order.looks = {m_look};
    const Maker::MadeThemes made = Maker::makeThemes(order);
    const Maker::LookColors colors = colorsOf(order, made.files.constLast());
    return {pairResults(colors, m_look, order.parameters.textContrast), meaningResults(colors),
            made.notes};
}

bool ThemeWorkshop::save(const QString &folder, const QString &name, bool overwrites,
                         QString *error) const
{
    Maker::Order order = m_order;
    order.name = name;
    return Maker::writeThemeFiles(folder, Maker::makeThemes(order).files, overwrites, error);
}

} // namespace Gallery
