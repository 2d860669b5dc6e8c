// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_QUOTEDURLS_H
#define HVTHEMEAPP_QUOTEDURLS_H

#include <QString>

namespace HV
{

class Theme;

/*!
 * \brief Puts quotation marks around the image paths of \a theme in \a styleSheet.
 *
 * The templates write `url(PATH)`, and Qt drops a style sheet from the first path on that holds "ü",
 * "&", a quotation mark or a bracket without its partner. Paths of ASCII letters, digits, "/", ":",
 * ".", "_" and "-" stay as they are, and these are mostly all. Internal.
 */
QString withQuotedUrls(const QString &styleSheet, Theme *theme);

} // namespace HV

#endif // HVTHEMEAPP_QUOTEDURLS_H
