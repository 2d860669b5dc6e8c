// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/theme/themefolder.h>

#include <QDir>
#include <QFileInfo>

namespace
{

QString defaultName()
{
    return QStringLiteral("default");
}

} // namespace

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
    const QFileInfo defaultFile(folder.filePath(defaultName()));
    if (!defaultFile.exists() && !defaultFile.isSymLink()) {
        *error = path % QLatin1String(": no ") % defaultFile.fileName()
            % QLatin1String(" here, with which every theme begins");
        return std::nullopt;
    }

    // Special files are listed too: that one of them cannot be read is worth a word.
    const QString ending = QLatin1Char('.') % suffix;
    const QStringList entries =
        QDir(path).entryList(QDir::Files | QDir::System | QDir::Hidden, QDir::Name);
    for (const QString &entry : entries) {
        const QString name = entry.chopped(qMin(entry.size(), ending.size()));
        if (entry.endsWith(ending) && !name.isEmpty() && name != defaultName())
            folder.m_themeNames << name;
    }
    folder.m_themeNames.prepend(defaultName());
    return folder;
}

QString ThemeFolder::filePath(const QString &name) const
{
    return m_path % QLatin1Char('/') % name % QLatin1Char('.') % m_suffix;
}

std::optional<ThemeFile> ThemeFolder::read(const QString &name, QString *error) const
{
    return ThemeFile::read(filePath(name), error);
}
