// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/theme/themefolder.h>

#include <QFileInfo>

std::optional<ThemeFolder> ThemeFolder::open(const QString &path, const QString &suffix,
                                             QString *error)
{
    const QFileInfo info(path);
    if (!info.exists()) {
        *error = path % QLatin1String(": no such folder");
        return std::nullopt;
    }
    if (!info.isDir()) {
        *error = path % QLatin1String(": not a folder");
        return std::nullopt;
    }

    ThemeFolder folder;
    folder.m_path = path;
    folder.m_suffix = suffix;
    const QFileInfo defaultFile(folder.filePath(defaultThemeName()));
    if (!defaultFile.exists() && !defaultFile.isSymLink()) {
        *error = path % QLatin1String(": no ") % defaultFile.fileName()
            % QLatin1String(" here, with which every theme begins");
        return std::nullopt;
    }

    folder.m_listing = listThemes(path, suffix);
    folder.m_listing.names.removeAll(defaultThemeName()); // which may be a link to nowhere
    folder.m_listing.names.prepend(defaultThemeName());
    return folder;
}

QString ThemeFolder::filePath(const QString &name) const
{
    return themeFilePath(m_path, name, m_suffix);
}

std::optional<ThemeFile> ThemeFolder::read(const QString &name, QString *error) const
{
    return ThemeFile::read(filePath(name), error);
}
