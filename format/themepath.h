// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef FORMAT_THEMEPATH_H
#define FORMAT_THEMEPATH_H

#include <QStringList>

/*! \brief Returns "default", the name of the theme with which every theme begins. */
QString defaultThemeName();

/*! \brief Returns "theme", what the names of theme files end in unless an application says else. */
QString defaultThemeSuffix();

/*!
 * \brief The greatest size of a file that is taken for a theme's or a template.
 *
 * Far more than one needs, and far less than a program can read without being noticed.
 */
constexpr qint64 themeFileSizeLimit = qint64(4) * 1024 * 1024;

/*! \brief Returns ":/hvthemeapp/themes", the folder of the themes inside the application library. */
QString builtInThemesFolder();

/*! \brief Returns what theme files of \a folder end in: \a suffix, but the built-in ones always in
 *         "theme". */
QString themeSuffixIn(const QString &folder, const QString &suffix);

/*!
 * \brief Tells whether \a name can be that of a new theme.
 *
 * Themes that are there may have other names: hidden files, or with a `%` that the library trips over.
 */
bool isNewThemeName(const QString &name);

/*! \brief Returns NAME.SUFFIX, the name of a theme's file. */
QString themeFileName(const QString &name, const QString &suffix = defaultThemeSuffix());

/*! \brief Returns FOLDER/NAME.SUFFIX, the path of a theme's file. */
QString themeFilePath(const QString &folder, const QString &name,
                      const QString &suffix = defaultThemeSuffix());

/*!
 * \brief Returns the path that HV::changeTheme() opens for a theme.
 *
 * It is themeFilePath() but for folders and names with `%1`, `%2` or `%3` in them, which the library
 * fills in once more.
 */
QString openedThemeFilePath(const QString &folder, const QString &name, const QString &suffix);

/*! \brief The theme files of a folder. */
struct ThemeListing {
    QStringList names; //!< of the themes, sorted; the default theme is the first if it is there
    QStringList nearMisses; //!< files that would be themes but for the letter case of their suffix
};

/*!
 * \brief Lists the themes of \a folder.
 *
 * A theme is what the library would open by its name: the suffix counts in its letter case. Files
 * that cannot be read, pipes and hidden files are listed too, folders are not.
 */
ThemeListing listThemes(const QString &folder, const QString &suffix = defaultThemeSuffix());

/*!
 * \brief Returns FOLDER/NAME of the templates of \a folder, `*.qss` and `*.css`.
 *
 * They are those that HV::readStyleSheet() finds there, in its order.
 */
QStringList templateFilePaths(const QString &folder);

/*! \brief Tells whether \a path names something in the program's resources. */
bool isResourcePath(const QString &path);

/*! \brief Returns the path that HV::Theme::imageFile() makes of \a stored in \a folder. */
QString imageFilePath(const QString &folder, const QString &stored);

#endif
