// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <colormath/oklch.h>
#include <format/kind.h>
#include <format/themepath.h>
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

const QString generalSection = QStringLiteral("General");

QByteArray sample(const QString &name)
{
    initSamples();
    QFile file(themeFilePath(QStringLiteral(":/maker"), name));
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
    return themeFileBaseName(name) % QLatin1Char('-') % lookName(look);
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
    const Parameters usual;
    const auto add = [&options](const char *option, double value, double usualValue) {
        if (!qFuzzyCompare(value, usualValue))
            options += QLatin1String(option) % QString::number(value);
    };
    add(" --text-contrast ", order.parameters.textContrast, usual.textContrast);
    add(" --depth ", order.parameters.surfaceStep, usual.surfaceStep);
    if (!order.name.isEmpty())
        options += QLatin1String(" --name \"") % order.name % QLatin1Char('"');
    if (order.suffix != defaultThemeSuffix())
        options += QLatin1String(" --suffix \"") % order.suffix % QLatin1Char('"');
    return options.toUtf8();
}

MadeFile defaultFile(const Order &order, const QVector<PaletteEntry> &palette)
{
    ThemeText text(sample(QStringLiteral("default")));
    setPaletteEntries(&text, palette);
    QByteArray content = text.text();
    content.replace("--brand #3060F0 --neutral cool", madeFrom(order));
    for (const Look look : {Look::Dark, Look::Light, Look::Contrast}) {
        const QByteArray own = fileBaseName(order.name, look).toLatin1();
        content.replace(themeFileName(lookName(look)).toLatin1(),
                        themeFileName(fileBaseName(order.name, look), order.suffix).toUtf8());
        content.replace(QByteArray('"' + lookName(look).toLatin1() + '"'),
                        QByteArray('"' + own + '"'));
    }
    return {themeFileName(defaultThemeName(), order.suffix), content};
}

MadeFile lookFile(const Order &order, Look look, const QVector<PaletteEntry> &palette,
                  QStringList *notes)
{
    ThemeText text(sample(lookName(look)));
    const QMap<QString, QString> colors = text.values(sectionName(Kind::Color));
    const LookColors designed = designedColors(look, order.parameters, palette, colors, notes);
    for (const QString &key : text.keys(sectionName(Kind::Color)))
        text.setValue(sectionName(Kind::Color), key, designed.text(key));
    text.removeSection(QStringLiteral("ImageFiles"));
    if (!order.name.isEmpty())
        text.setValue(generalSection, QStringLiteral("ThemeName"),
                      withCapital(order.name) % QLatin1Char(' ') % lookName(look));
    QByteArray content = text.text();
    content.replace(", 85 images and its flags", " and its flags");
    content.replace(themeFileName(defaultThemeName()).toLatin1(),
                    themeFileName(defaultThemeName(), order.suffix).toUtf8());
    return {themeFileName(fileBaseName(order.name, look), order.suffix), content};
}

} // namespace

bool isThemeName(const QString &name)
{
    static const QRegularExpression pattern(
        QStringLiteral("^(?:[A-Za-z0-9][A-Za-z0-9_-]*(?: [A-Za-z0-9_-]+)*)?$"));
    return pattern.match(name).hasMatch()
        && name.compare(defaultThemeName(), Qt::CaseInsensitive) != 0;
}

QString themeNameMistake(const QString &name)
{
    if (isThemeName(name))
        return {};
    return QLatin1Char('"') % name
        % QLatin1String(
               "\" cannot name files; take letters, digits, \"-\", \"_\" and single spaces, "
               "and not \"default\"");
}

QString themeFileBaseName(const QString &name)
{
    return name.toLower().replace(QLatin1Char(' '), QLatin1Char('-'));
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

} // namespace Maker
