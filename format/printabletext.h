// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef FORMAT_PRINTABLETEXT_H
#define FORMAT_PRINTABLETEXT_H

#include <QString>

/*!
 * \brief Returns \a text with everything that a terminal could obey made visible.
 *
 * Control characters, line and paragraph separators and the characters that turn the writing
 * direction become `\x1b` or `\u202e`; what remains stays as it is. Reports pass every text that
 * comes from a file or the command line through it.
 */
QString printable(const QString &text);

/*! \brief Returns \a text in the same way, but leaves line ends and tabs as they are. */
QString printableLines(const QString &text);

/*! \brief Returns what the system says to its error \a number, a value of `errno`. */
QString systemReason(int number);

#endif
