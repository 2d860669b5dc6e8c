// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef FORMAT_QUOTEDURLS_H
#define FORMAT_QUOTEDURLS_H

#include <QString>
#include <QVariantMap>

/*!
 * \brief Puts quotation marks around the image paths among a theme's \a values in \a styleSheet.
 *
 * The templates write `url(PATH)`, and Qt drops a style sheet from the first path on that holds "ü",
 * "&", a quotation mark or a bracket without its partner. Paths of ASCII letters, digits, "/", ":",
 * ".", "_" and "-" stay as they are, and these are mostly all.
 */
QString withQuotedUrls(const QString &styleSheet, const QVariantMap &values);

#endif // FORMAT_QUOTEDURLS_H
