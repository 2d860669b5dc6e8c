// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef EXCHANGE_THEMEWRITER_H
#define EXCHANGE_THEMEWRITER_H

#include <exchange/themecontent.h>
#include <maker/thememaker.h>

#include <optional>

namespace Exchange
{

/*!
 * \brief Returns \a theme as files of a folder: the default file with palette and integers, and the
 *        theme's own with all that makes the look.
 *
 * \param name    of the theme's file; for `default` all of it stands in that one file.
 * \param suffix  of both files.
 * \return nothing, with one sentence in \a error, if there is no room for temporary files.
 */
std::optional<Maker::MadeThemes> themeFiles(const ThemeContent &theme, const QString &name,
                                            const QString &suffix, QString *error);

} // namespace Exchange

#endif
