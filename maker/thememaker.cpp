// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <colormath/oklch.h>
#include <maker/lookcolors.h>
#include <maker/thememaker.h>
#include <maker/themetext.h>

#include <QFile>
#include <QRegularExpression>

#include <algorithm>

// The linker leaves out the resource of a static library that nobody names; the macro must stand
// outside every namespace.
static void initSamples()
{
    Q_INIT_RESOURCE(samples);
}

namespace Maker
{

namespace
{

const QString colorsSection = QStringLiteral("Colors");
const QString palettesSection = QStringLiteral("Palettes");
const QString generalSection = QStringLiteral("General");

QByteArray sample(const QString &name)
{
    initSamples();
    QFile file(QLatin1String(":/maker/") % name % QLatin1String(".theme"));
    const bool isOpen = file.open(QIODevice::ReadOnly);
    Q_ASSERT(isOpen);
    Q_UNUSED(isOpen)
    return file.readAll();
}

QString withCapital(QString word)
{
    if (!word.isEmpty())
        word[0] = word.at(0).toUpper();
    return word;
}

QString fileBaseName(const QString &name, Look look)
{
    if (name.isEmpty())
        return lookName(look);
    const QString base = name.toLower().replace(QLatin1Char(' '), QLatin1Char('-'));
    return base % QLatin1Char('-') % lookName(look);
}

QMap<QString, QString> valuesOf(const ThemeText &text, const QString &section)
{
    QMap<QString, QString> values;
    const QStringList keys = text.keys(section);
    for (const QString &key : keys)
        values.insert(key, text.value(section, key));
    return values;
}

QColor colorOf(const QString &text)
{
    return QColor(text.startsWith(QLatin1Char('#')) ? text : QString(QLatin1Char('#') % text));
}

// An entry that has its colour already keeps its spelling.
void setPalette(ThemeText *text, const QVector<PaletteEntry> &palette)
{
    for (const PaletteEntry &entry : palette) {
        const QColor color = colorOf(text->value(palettesSection, entry.first));
        if (!color.isValid() || color.rgba() != entry.second.rgba())
            text->setValue(palettesSection, entry.first, hexadecimal(entry.second));
    }
}

QString neutralText(const Neutral &neutral)
{
    const auto is = [&](const Neutral &other) {
        return qFuzzyCompare(neutral.hue + 1, other.hue + 1)
            && qFuzzyCompare(neutral.chroma + 1, other.chroma + 1);
    };
    if (is(Neutral::cool()))
        return QStringLiteral("cool");
    if (is(Neutral::warm()))
        return QStringLiteral("warm");
    return hexadecimal(ColorMath::colorAtLightness(50, neutral.chroma, neutral.hue));
}

QByteArray madeFrom(const Order &order)
{
    QString options = QLatin1String("--brand ") % hexadecimal(order.parameters.brand)
        % QLatin1String(" --neutral ") % neutralText(order.parameters.neutral);
    if (!order.name.isEmpty())
        options += QLatin1String(" --name \"") % order.name % QLatin1Char('"');
    return options.toLatin1();
}

MadeFile defaultFile(const Order &order, const QVector<PaletteEntry> &palette)
{
    ThemeText text(sample(QStringLiteral("default")));
    setPalette(&text, palette);
    QByteArray content = text.text();
    content.replace("--brand #3060F0 --neutral cool", madeFrom(order));
    for (const Look look : {Look::Dark, Look::Light, Look::Contrast}) {
        const QByteArray own = fileBaseName(order.name, look).toLatin1();
        content.replace(lookName(look).toLatin1() + ".theme", own + ".theme");
        content.replace('"' + lookName(look).toLatin1() + '"', '"' + own + '"');
    }
    return {QStringLiteral("default.theme"), content};
}

MadeFile lookFile(const Order &order, Look look, const QVector<PaletteEntry> &palette,
                  QStringList *notes)
{
    ThemeText text(sample(lookName(look)));
    const QMap<QString, QString> colors = valuesOf(text, colorsSection);
    const LookColors designed = designedColors(look, order.parameters, palette, colors, notes);
    for (const QString &key : text.keys(colorsSection))
        text.setValue(colorsSection, key, designed.text(key));
    text.removeSection(QStringLiteral("ImageFiles"));
    if (!order.name.isEmpty())
        text.setValue(generalSection, QStringLiteral("ThemeName"),
                      withCapital(order.name) % QLatin1Char(' ') % lookName(look));
    QByteArray content = text.text();
    content.replace(", 85 images and its flags", " and its flags");
    return {fileBaseName(order.name, look) % QLatin1String(".theme"), content};
}

Look lookOf(const LookColors &colors, const QMap<QString, QString> &flags)
{
    if (flags.value(QStringLiteral("HighContrast")).toInt() != 0)
        return Look::Contrast;
    const QColor surface = colors.color(QStringLiteral("BackgroundColor_3"));
    return surface.isValid() && ColorMath::cieLightness(surface) > 50 ? Look::Light : Look::Dark;
}

bool hasBrand(const ThemeText &text)
{
    const QStringList keys = text.keys(palettesSection);
    return std::any_of(keys.cbegin(), keys.cend(),
                       [](const QString &key) { return key.startsWith(QLatin1String("Brand_")); });
}

// The entries that the text has, and those that a colour has come to name.
QVector<PaletteEntry> usedEntries(const QVector<PaletteEntry> &entries, const ThemeText &text,
                                  const LookColors &colors)
{
    const QStringList keys = text.keys(palettesSection);
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
    const LookColors known({}, valuesOf(text, palettesSection));
    QVector<PaletteEntry> entries;
    Parameters parameters;
    parameters.brand = brand;
    const QVector<PaletteEntry> made = palette(parameters);
    std::copy_if(
        made.cbegin(), made.cend(), std::back_inserter(entries),
        [](const PaletteEntry &entry) { return entry.first.startsWith(QLatin1String("Brand")); });
    for (const QString &key : text.keys(palettesSection)) {
        if (key.startsWith(QLatin1String("Brand")))
            continue;
        const QString value = known.text(key);
        const QString named = known.text(value);
        entries.append({key, colorOf(named.isNull() ? value : named)});
    }
    return entries;
}

} // namespace

bool isThemeName(const QString &name)
{
    static const QRegularExpression pattern(
        QStringLiteral("^(?:[A-Za-z0-9][A-Za-z0-9_-]*(?: [A-Za-z0-9_-]+)*)?$"));
    return pattern.match(name).hasMatch();
}

MadeThemes makeThemes(const Order &order)
{
    MadeThemes made;
    const QVector<PaletteEntry> entries = palette(order.parameters);
    made.files.append(defaultFile(order, entries));
    for (const Look look : order.looks)
        made.files.append(lookFile(order, look, entries, &made.notes));
    return made;
}

ThemeTexts withBrand(const ThemeTexts &theme, const QColor &brand, QStringList *notes)
{
    ThemeText base(theme.base);
    ThemeText own(theme.own);
    // A key of the default file keeps its value, so that is where it has to change.
    QMap<QString, QString> colors = valuesOf(own, colorsSection);
    const QMap<QString, QString> baseColors = valuesOf(base, colorsSection);
    for (auto it = baseColors.cbegin(); it != baseColors.cend(); ++it)
        colors.insert(it.key(), it.value());

    ThemeText &paletteText = hasBrand(own) && !hasBrand(base) ? own : base;
    const QVector<PaletteEntry> entries = paletteWithBrand(paletteText, brand);
    const LookColors before(entries, colors);
    Parameters parameters;
    parameters.brand = brand;
    const LookColors designed = recoloredLook(
        lookOf(before, valuesOf(own, QStringLiteral("Flags"))), parameters, entries, colors, notes);
    setPalette(&paletteText, usedEntries(entries, paletteText, designed));
    for (auto it = colors.cbegin(); it != colors.cend(); ++it) {
        ThemeText &holder = baseColors.contains(it.key()) ? base : own;
        holder.setValue(colorsSection, it.key(), designed.text(it.key()));
    }
    return {base.text(), own.text()};
}

} // namespace Maker
