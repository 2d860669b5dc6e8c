// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include <format/themepath.h>

#include <QDir>
#include <QStringBuilder>

QString defaultThemeName()
{
    return QStringLiteral("default");
}

QString defaultThemeSuffix()
{
    return QStringLiteral("theme");
}

QString builtInThemesFolder()
{
    return QStringLiteral(":/hvthemeapp/themes");
}

QString themeSuffixIn(const QString &folder, const QString &suffix)
{
    return folder == builtInThemesFolder() ? defaultThemeSuffix() : suffix;
}

bool isNewThemeName(const QString &name)
{
    return !name.isEmpty() && !name.startsWith(QLatin1Char('.')) && !name.contains(QLatin1Char('/'))
        && !name.contains(QLatin1Char('%')) && !name.contains(QChar(0)) && name.trimmed() == name;
}

QString themeFileName(const QString &name, const QString &suffix)
{
    return name % QLatin1Char('.') % suffix;
}

QString themeFilePath(const QString &folder, const QString &name, const QString &suffix)
{
    return folder % QLatin1Char('/') % themeFileName(name, suffix);
}

QString openedThemeFilePath(const QString &folder, const QString &name, const QString &suffix)
{
    // One after the other, as the library does it.
    return QStringLiteral("%1/%2.%3")
        .arg(folder)
        .arg(name)
        .arg(suffix); // clazy:exclude=qstring-arg
}

ThemeListing listThemes(const QString &folder, const QString &suffix)
{
    ThemeListing listing;
    const QString ending = QLatin1Char('.') % suffix;
    const QStringList entries =
        QDir(folder).entryList(QDir::Files | QDir::System | QDir::Hidden, QDir::Name);
    for (const QString &entry : entries) {
        if (entry.size() <= ending.size() || !entry.endsWith(ending, Qt::CaseInsensitive))
            continue;
        if (entry.endsWith(ending))
            listing.names << entry.chopped(ending.size());
        else
            listing.nearMisses << entry;
    }
    if (listing.names.removeAll(defaultThemeName()) > 0)
        listing.names.prepend(defaultThemeName());
    return listing;
}

QStringList templateFilePaths(const QString &folder)
{
    QDir directory(folder);
    directory.setNameFilters({QStringLiteral("*.qss"), QStringLiteral("*.css")});
    directory.setFilter(QDir::Files);
    QStringList paths = directory.entryList();
    for (QString &path : paths)
        path.prepend(folder % QLatin1Char('/'));
    return paths;
}

bool isResourcePath(const QString &path)
{
    return path.startsWith(QLatin1String(":/"));
}

QString imageFilePath(const QString &folder, const QString &stored)
{
    return isResourcePath(stored) ? stored : QDir::cleanPath(folder % QLatin1Char('/') % stored);
}
