// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef MAKER_THEMEFILES_H
#define MAKER_THEMEFILES_H

#include <maker/thememaker.h>

namespace Maker
{

/*!
 * \brief Writes \a files into \a folder, which is made if it is not there: all of them or none.
 *
 * Every file is written beside its place first, so that a full disk leaves the folder as it was; see
 * StagedFiles.
 *
 * \param files       of different names.
 * \param overwrites  whether the folder may hold theme files already; those of other names stay.
 * \param suffix      of theme files, by which those that are there are known.
 * \return false if nothing was written; \a error is then one sentence that says why.
 */
bool writeThemeFiles(const QString &folder, const QVector<MadeFile> &files, bool overwrites,
                     QString *error, const QString &suffix = defaultThemeSuffix());

/*! \brief Tells the user what was written to \a folder: the files and the notes, a line each. */
QString writtenFiles(const QString &folder, const MadeThemes &made);

} // namespace Maker

#endif
