// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <exchange/themewriter.h>

#include <format/themepath.h>
#include <hvtheme/inifile.h>

#include <QDir>
#include <QFile>
#include <QLocale>
#include <QSettings>
#include <QTemporaryDir>

namespace Exchange
{

namespace
{

const QByteArray baseComment =
    "; What all themes of this folder share: the palette and the sizes. A theme is read in two "
    "steps,\n"
    "; this file first; a key that stands here keeps the value it has here.\n";
const QByteArray ownComment =
    ". A colour is the name of a palette entry of that file or hexadecimal\n"
    "; digits, #RRGGBB or #AARRGGBB with the opacity first.\n";

void writeBase(const ThemeContent &theme, const QString &displayName, QSettings *settings)
{
    settings->setValue(QStringLiteral("ThemeName"), displayName);
    settings->beginGroup(QStringLiteral("Palettes"));
    for (auto it = theme.palette.cbegin(); it != theme.palette.cend(); ++it)
        settings->setValue(it.key(), Maker::hexadecimal(it.value()));
    settings->endGroup();
    settings->beginGroup(QStringLiteral("Integers"));
    for (auto it = theme.integers.cbegin(); it != theme.integers.cend(); ++it)
        settings->setValue(it.key(), it.value());
    settings->endGroup();
}

// An array beside a plain key of its own name, as the library reads gradients.
void writeGradient(const QString &key, const QGradientStops &stops, QSettings *settings)
{
    settings->setValue(key, 1);
    settings->beginWriteArray(key, int(stops.size()));
    for (int i = 0; i < stops.size(); ++i) {
        settings->setArrayIndex(i);
        settings->setValue(QStringLiteral("pos"),
                           QString::number(stops.at(i).first, 'g', QLocale::FloatingPointShortest));
        settings->setValue(QStringLiteral("color"), Maker::hexadecimal(stops.at(i).second));
    }
    settings->endArray();
}

void writeOwn(const ThemeContent &theme, const QString &displayName, QSettings *settings)
{
    settings->setValue(QStringLiteral("ThemeName"), displayName);
    settings->beginGroup(QStringLiteral("Colors"));
    for (auto it = theme.colors.cbegin(); it != theme.colors.cend(); ++it)
        settings->setValue(it.key(),
                           it.value().palette.isEmpty() ? Maker::hexadecimal(it.value().color)
                                                        : it.value().palette);
    settings->endGroup();
    settings->beginGroup(QStringLiteral("ImageFiles"));
    for (auto it = theme.imageFiles.cbegin(); it != theme.imageFiles.cend(); ++it)
        settings->setValue(it.key(), it.value());
    settings->endGroup();
    settings->beginGroup(QStringLiteral("Gradients"));
    for (auto it = theme.gradients.cbegin(); it != theme.gradients.cend(); ++it)
        writeGradient(it.key(), it.value(), settings);
    settings->endGroup();
    settings->beginGroup(QStringLiteral("Flags"));
    for (auto it = theme.flags.cbegin(); it != theme.flags.cend(); ++it)
        settings->setValue(it.key(), it.value() ? 1 : 0);
    settings->endGroup();
}

// What QSettings makes of the values: it knows best what to escape.
template<typename Write>
std::optional<QByteArray> iniText(const QTemporaryDir &folder, const QByteArray &comment,
                                  Write write)
{
    const QString path = folder.filePath(QStringLiteral("theme.ini"));
    QFile::remove(path);
    {
        QSettings settings(path, QSettings::IniFormat);
        write(&settings);
        settings.sync();
        if (settings.status() != QSettings::NoError)
            return std::nullopt;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return comment + '\n' + HV::asciiIniText(file.readAll());
}

} // namespace

std::optional<Maker::MadeThemes> themeFiles(const ThemeContent &theme, const QString &name,
                                            const QString &suffix, QString *error)
{
    const QTemporaryDir folder;
    const bool isAlone = name == defaultThemeName();
    const bool isUnnamed = theme.displayName.isEmpty() && theme.name.isEmpty();
    const QString displayName = isUnnamed ? name : theme.displayName;
    const auto base = iniText(folder, baseComment, [&](QSettings *settings) {
        writeBase(theme, isAlone ? displayName : QStringLiteral("Default"), settings);
        if (isAlone)
            writeOwn(theme, displayName, settings);
    });
    const QString baseName = themeFileName(defaultThemeName(), suffix);
    const auto own = iniText(folder, "; Read after " + baseName.toUtf8() + ownComment,
                             [&](QSettings *settings) { writeOwn(theme, displayName, settings); });
    if (!folder.isValid() || !base || !own) {
        *error = QDir::tempPath()
            % (folder.isValid() ? QLatin1String(": no temporary file can be written here")
                                : QLatin1String(": no temporary folder can be made here"));
        return std::nullopt;
    }
    Maker::MadeThemes made{{{baseName, *base}}, {}};
    if (!isAlone)
        made.files.append({themeFileName(name, suffix), *own});
    return made;
}

} // namespace Exchange
