// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef TOOLS_OUTPUTTEXT_H
#define TOOLS_OUTPUTTEXT_H

#include <QString>

/*!
 * \brief Returns \a text with everything that a terminal could obey made visible.
 *
 * Control characters, line and paragraph separators and the characters that turn the writing
 * direction become `\x1b` or `\u202e`; what remains stays as it is. Reports pass every text that
 * comes from a file or the command line through it.
 */
QString printable(const QString &text);

/*! \brief Writes `hvtheme: ` and the printable() \a message as one line to standard error. */
void printError(const QString &message);

/*! \brief Tells whether standard output is a terminal that wants colour (NO_COLOR, TERM=dumb). */
bool isColorTerminal();

#endif
