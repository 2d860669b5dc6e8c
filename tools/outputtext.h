// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef TOOLS_OUTPUTTEXT_H
#define TOOLS_OUTPUTTEXT_H

#include <format/printabletext.h>

/*! \brief Writes `hvtheme: ` and the printable() \a message as one line to standard error. */
void printError(const QString &message);

/*! \brief Tells whether standard output is a terminal that wants colour (NO_COLOR, TERM=dumb). */
bool isColorTerminal();

#endif
