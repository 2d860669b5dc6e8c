// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef ANALYSIS_THEME_THEMEFOLDER_H
#define ANALYSIS_THEME_THEMEFOLDER_H

#include <analysis/theme/themefile.h>
#include <format/themepath.h>

#include <QStringList>

#include <optional>

/*!
 * \brief A folder of theme files: which themes it holds and where their files stand.
 *
 * A folder is only opened if its default theme's file can be read, because every theme begins
 * with that file.
 */
class ThemeFolder
{
public:
    /*! \brief Opens \a path; if nothing is returned, \a error is one sentence that says why. */
    static std::optional<ThemeFolder> open(const QString &path, const QString &suffix,
                                           QString *error);

    QString path() const { return m_path; }
    QString suffix() const { return m_suffix; }

    /*! \brief Returns the names of all themes, `default` first, then the others sorted. */
    QStringList themeNames() const { return m_listing.names; }

    /*! \brief Returns files that would be themes but for the letter case of their suffix. */
    QStringList nearMisses() const { return m_listing.nearMisses; }

    /*! \brief Returns the path that HV::changeTheme() builds for the theme called \a name. */
    QString filePath(const QString &name) const;

    /*! \brief Reads the file of the theme called \a name; \a error as for open(). */
    std::optional<ThemeFile> read(const QString &name, QString *error) const;

private:
    ThemeFolder() = default;

    QString m_path;
    QString m_suffix;
    ThemeListing m_listing;
};

#endif
