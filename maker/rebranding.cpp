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

// The entries of the brand. What is called Brand is the brand, even if one of its tones is just that.
QVector<PaletteEntry> brandEntries(const ThemeText &holder, const QColor &brand)
{
    const QString whole = QStringLiteral("Brand");
    QVector<PaletteEntry> entries;
    bool hasWhole = false;
    Parameters parameters;
    parameters.brand = brand;
    const QVector<PaletteEntry> made = palette(parameters);
    for (const PaletteEntry &entry : made) {
        if (entry.first.startsWith(whole))
            entries.append(entry);
        hasWhole = hasWhole || entry.first == whole;
    }
    if (!hasWhole && !holder.value(sectionName(Kind::Palette), whole).isNull())
        entries.append({whole, brand.toRgb()});
    return entries;
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

// Resolves entries as the library does: in the order of their names, and an entry may name one that
// is known by then. What is neither that nor a colour is black.
void resolve(const QMap<QString, QString> &texts, QMap<QString, QColor> *known)
{
    for (auto it = texts.cbegin(); it != texts.cend(); ++it) {
        if (known->contains(it.key()))
            continue;
        const QColor color = known->value(it.value(), colorFromText(it.value()));
        known->insert(it.key(), color.isValid() ? color : QColor(Qt::black));
    }
}

// The palette of both files, of which holder has the tones of the brand.
QVector<PaletteEntry> wholePalette(const ThemeText &base, const ThemeText &own,
                                   const ThemeText &holder, const QVector<PaletteEntry> &brand)
{
    QMap<QString, QColor> known;
    for (const ThemeText *text : {&base, &own}) {
        QMap<QString, QString> texts = text->values(sectionName(Kind::Palette));
        if (text == &holder) {
            for (const PaletteEntry &entry : brand)
                texts.insert(entry.first, hexadecimal(entry.second));
        }
        resolve(texts, &known);
    }
    QVector<PaletteEntry> entries;
    for (auto it = known.cbegin(); it != known.cend(); ++it)
        entries.append({it.key(), it.value()});
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
    const QVector<PaletteEntry> tones = brandEntries(paletteText, brand);
    const QVector<PaletteEntry> entries = wholePalette(base, own, paletteText, tones);
    const LookColors before(entries, colors);
    Parameters parameters;
    parameters.brand = brand;
    const LookColors designed = recoloredLook(lookOf(before, own.values(QStringLiteral("Flags"))),
                                              parameters, entries, colors, notes);
    setPaletteEntries(&paletteText, usedEntries(tones, paletteText, designed));
    for (auto it = colors.cbegin(); it != colors.cend(); ++it) {
        const bool isOfBase = baseColors.contains(it.key()) || theme.own.isEmpty();
        ThemeText &holder = isOfBase ? base : own;
        holder.setValue(sectionName(Kind::Color), it.key(), designed.text(it.key()));
    }
    return {base.text(), own.text()};
}

} // namespace Maker
