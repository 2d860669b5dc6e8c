// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "themefolder.h"

#include "applicationtheme.h"

#include <format/kind.h>
#include <format/themepath.h>
#include <format/token.h>
#include <hvtheme/inifile.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QSettings>

#include <algorithm>

namespace HV
{
namespace
{

// Nothing but a file is opened: a pipe would never end.
QString problemOfFile(const QString &path, bool isTheme)
{
    const QFileInfo info(path);
    if (!info.isFile())
        return ApplicationTheme::tr("\"%1\" is no file").arg(path);
    if (info.size() > themeFileSizeLimit)
        return ApplicationTheme::tr("\"%1\" is larger than 4 MiB").arg(path);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return ApplicationTheme::tr("\"%1\" cannot be read").arg(path);
    const QByteArray text = file.readAll();
    if (text.contains('\0'))
        return ApplicationTheme::tr("\"%1\" is no text").arg(path);
    if (isTheme && !text.contains('='))
        return ApplicationTheme::tr("\"%1\" has no key").arg(path);
    return {};
}

// Qt reads the images of a style sheet by itself and would wait for a pipe; the library looks for tokens
// in the paths that it has put in, and one that holds an image's token may come back for ever.
QString problemOfImages(const QString &themeFile)
{
    QSettings settings(themeFile, iniFormat(themeFile));
    settings.beginGroup(sectionName(Kind::ImageFile));
    const QStringList keys = settings.allKeys();
    for (const QString &key : keys) {
        const QString path =
            imageFilePath(QCoreApplication::applicationDirPath(), settings.value(key).toString());
        if (path.contains(Tokens::opening(QString(), Kind::ImageFile)))
            return ApplicationTheme::tr("the path of its image \"%1\" holds the token of an image")
                .arg(key);
        const QFileInfo info(path);
        if (info.exists() && !info.isFile() && !info.isDir())
            return ApplicationTheme::tr("its image \"%1\" is no file").arg(key);
    }
    return {};
}

} // namespace

ThemeFolder::ThemeFolder()
    : ThemeFolder(builtInThemesFolder(), defaultThemeSuffix())
{
}

ThemeFolder::ThemeFolder(const QString &path, const QString &suffix)
    : m_path(path)
    , m_suffix(themeSuffixIn(path, suffix))
{
}

ThemeFolder ThemeFolder::usual(const QString &suffix)
{
    if (!QCoreApplication::instance())
        return {};
    const ThemeFolder beside(QCoreApplication::applicationDirPath() + QLatin1String("/themes"),
                             suffix);
    return QFileInfo::exists(beside.defaultFile()) ? beside : ThemeFolder();
}

QString ThemeFolder::problemOfText(const QString &path)
{
    return problemOfFile(path, false);
}

QString ThemeFolder::file(const QString &name) const
{
    return themeFilePath(m_path, name, m_suffix);
}

QString ThemeFolder::defaultFile() const
{
    return file(defaultThemeName());
}

QString ThemeFolder::problem() const
{
    if (!QFileInfo(m_path).isDir())
        return ApplicationTheme::tr("The themes folder \"%1\" does not exist; name one that does.")
            .arg(m_path);
    const QString fault = problemOfFile(defaultFile(), true);
    if (fault.isEmpty())
        return {};
    return ApplicationTheme::tr(
               "%1, and every themes folder needs that file; put what all themes share "
               "there.")
        .arg(fault);
}

QString ThemeFolder::problemOf(const QString &name) const
{
    QString ofFolder = problem();
    if (!ofFolder.isEmpty())
        return ofFolder;
    // A name is no path: themes of other folders have another default file.
    const bool isName = !name.isEmpty() && QFileInfo(name).fileName() == name;
    QString fault = isName ? problemOfFile(file(name), true)
                           : ApplicationTheme::tr("\"%1\" is no name").arg(name);
    for (const QString &path : {defaultFile(), file(name)}) {
        if (fault.isEmpty())
            fault = problemOfImages(path);
    }
    if (fault.isEmpty())
        return {};
    return ApplicationTheme::tr("The theme \"%1\" cannot be read: %2; choose one of: %3.")
        .arg(name, fault, names().join(QLatin1String(", ")));
}

QStringList ThemeFolder::names() const
{
    QStringList names = listThemes(m_path, m_suffix).names;
    const auto isNoFile = [this](const QString &name) { return !QFileInfo(file(name)).isFile(); };
    names.erase(std::remove_if(names.begin(), names.end(), isNoFile), names.end());
    names.sort();
    if (names.size() > 1 && names.contains(defaultThemeName())) {
        const QSettings settings(defaultFile(), iniFormat(defaultFile()));
        if (!settings.childGroups().contains(QStringLiteral("Colors")))
            names.removeOne(defaultThemeName());
    }
    return names;
}

QString ThemeFolder::displayName(const QString &name) const
{
    const QFileInfo info(file(name));
    if (!info.isFile() || info.size() > themeFileSizeLimit)
        return name;
    const QSettings settings(file(name), iniFormat(file(name)));
    const QString displayName = settings.value(QStringLiteral("ThemeName")).toString();
    return displayName.isEmpty() ? name : displayName;
}

} // namespace HV
