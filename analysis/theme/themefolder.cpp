// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/theme/themefolder.h>

#include <analysis/suggestion.h>

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <sys/stat.h>

namespace
{

// What may have been meant by a theme that is not there.
QString remedy(const ThemeListing &listing, const QString &name)
{
    const auto miss = std::find_if(
        listing.nearMisses.cbegin(), listing.nearMisses.cend(),
        [&](const QString &file) { return QFileInfo(file).completeBaseName() == name; });
    if (miss != listing.nearMisses.cend())
        return QLatin1String("; there is ") % *miss % QLatin1String(", and letter case counts");
    const QString question = Suggestion(listing.names).question(name);
    return question.isEmpty()
        ? QLatin1String("; there are ") % listing.names.join(QLatin1String(", "))
        : question;
}

} // namespace

std::optional<ThemeFolder> ThemeFolder::open(const QString &path, const QString &suffix,
                                             QString *error)
{
    const QFileInfo info(path);
    if (!info.exists()) {
        *error = path % QLatin1String(": no such folder; name the one with the theme files");
        return std::nullopt;
    }
    if (!info.isDir()) {
        *error = path % QLatin1String(": not a folder; name the one with the theme files");
        return std::nullopt;
    }

    ThemeFolder folder;
    folder.m_path = path;
    folder.m_suffix = suffix;
    const QFileInfo defaultFile(folder.filePath(defaultThemeName()));
    if (!defaultFile.exists() && !defaultFile.isSymLink()) {
        struct stat status = {};
        if (::stat(QFile::encodeName(defaultFile.filePath()).constData(), &status) != 0
            && errno == EACCES) {
            *error = path % QLatin1String(": a folder that may not be entered");
            return std::nullopt;
        }
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
    const QFileInfo info(filePath(name));
    std::optional<ThemeFile> file = ThemeFile::read(info.filePath(), error);
    if (!file && !info.exists() && !info.isSymLink())
        *error += remedy(m_listing, name);
    return file;
}
