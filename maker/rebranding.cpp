// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <colormath/oklch.h>
#include <format/applicationkeys.h>
#include <format/kind.h>
#include <maker/lookcolors.h>
#include <maker/rebranding.h>
#include <maker/themetext.h>

#include <algorithm>

namespace Maker
{

namespace
{

Look lookOf(const LookColors &colors, const QMap<QString, QString> &flags)
{
    if (flags.value(QStringLiteral("HighContrast")).toInt() != 0)
        return Look::Contrast;
    const QColor surface = colors.color(QStringLiteral("BackgroundColor_3"));
    return surface.isValid() && ColorMath::cieLightness(surface) > 50 ? Look::Light : Look::Dark;
}

bool hasBrand(const ThemeText &text)
{
    const QStringList keys = text.keys(sectionName(Kind::Palette));
    return std::any_of(keys.cbegin(), keys.cend(),
                       [](const QString &key) { return key.startsWith(QLatin1String("Brand_")); });
}

// A theme without fills of its own for the brand gets them, for the look's text may not stand on it.
void addAccent(QMap<QString, QString> *colors)
{
    const QString ground = colors->value(QStringLiteral("GeneralButtonBackgroundNormal"));
    const QString text = colors->value(QStringLiteral("Color_W100"));
    if (ground.isEmpty() || text.isEmpty())
        return;
    for (const QString &key : accentKeys()) {
        if (!colors->contains(key))
            colors->insert(key, key == accentKeys().constLast() ? text : ground);
    }
}

// The entries that the text has, and those that a colour has come to name.
QVector<PaletteEntry> usedEntries(const QVector<PaletteEntry> &entries, const ThemeText &text,
                                  const LookColors &colors)
{
    const QStringList keys = text.keys(sectionName(Kind::Palette));
    const QStringList named = colors.texts().values();
    QVector<PaletteEntry> used;
    std::copy_if(entries.cbegin(), entries.cend(), std::back_inserter(used),
                 [&](const PaletteEntry &entry) {
                     return keys.contains(entry.first) || named.contains(entry.first);
                 });
    return used;
}

// The palette of a theme with the tones of another brand. An entry may name one before it.
QVector<PaletteEntry> paletteWithBrand(const ThemeText &text, const QColor &brand)
{
    const LookColors known({}, text.values(sectionName(Kind::Palette)));
    QVector<PaletteEntry> entries;
    Parameters parameters;
    parameters.brand = brand;
    const QVector<PaletteEntry> made = palette(parameters);
    std::copy_if(
        made.cbegin(), made.cend(), std::back_inserter(entries),
        [](const PaletteEntry &entry) { return entry.first.startsWith(QLatin1String("Brand")); });
    for (const QString &key : text.keys(sectionName(Kind::Palette))) {
        if (key.startsWith(QLatin1String("Brand")))
            continue;
        const QString value = known.text(key);
        const QString named = known.text(value);
        entries.append({key, colorFromText(named.isNull() ? value : named)});
    }
    return entries;
}

} // namespace

ThemeTexts withBrand(const ThemeTexts &theme, const QColor &brand, QStringList *notes)
{
    ThemeText base(theme.base);
    ThemeText own(theme.own);
    // A key of the default file keeps its value, so that is where it has to change.
    QMap<QString, QString> colors = own.values(sectionName(Kind::Color));
    const QMap<QString, QString> baseColors = base.values(sectionName(Kind::Color));
    for (auto it = baseColors.cbegin(); it != baseColors.cend(); ++it)
        colors.insert(it.key(), it.value());

    const auto isTone = [](const QString &text) {
        return text.startsWith(QLatin1String("Brand_"));
    };
    const bool isNamed = std::any_of(colors.cbegin(), colors.cend(), isTone);
    if (!hasBrand(base) && !hasBrand(own) && !isNamed)
        return theme;
    addAccent(&colors);

    ThemeText &paletteText = hasBrand(own) && !hasBrand(base) ? own : base;
    const QVector<PaletteEntry> entries = paletteWithBrand(paletteText, brand);
    const LookColors before(entries, colors);
    Parameters parameters;
    parameters.brand = brand;
    const LookColors designed = recoloredLook(lookOf(before, own.values(QStringLiteral("Flags"))),
                                              parameters, entries, colors, notes);
    setPaletteEntries(&paletteText, usedEntries(entries, paletteText, designed));
    for (auto it = colors.cbegin(); it != colors.cend(); ++it) {
        const bool isOfBase = baseColors.contains(it.key()) || theme.own.isEmpty();
        ThemeText &holder = isOfBase ? base : own;
        holder.setValue(sectionName(Kind::Color), it.key(), designed.text(it.key()));
    }
    return {base.text(), own.text()};
}

} // namespace Maker
