// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef FORMAT_URLPATH_H
#define FORMAT_URLPATH_H

#include <QString>

/*!
 * \brief Finds what Qt cannot read in a path that stands in a style sheet as `url(PATH)`.
 *
 * The templates of the library write no quotation marks there. Qt then reads the path as words of
 * the style sheet: at a character that begins none, such as "&", "%" or "ü", and at a bracket or
 * quotation mark without its partner it drops the rest of the whole style sheet; a backslash changes
 * the path.
 *
 * \return the index of the first such character, or -1 if the path comes out as it is.
 */
int urlPathFault(const QString &path);

/*!
 * \brief Returns what a message quotes of a fault in \a path at \a index: one whole character, or the
 * two that begin a comment.
 */
QString urlPathFaultText(const QString &path, int index);

#endif
