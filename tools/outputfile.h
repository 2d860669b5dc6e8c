// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef TOOLS_OUTPUTFILE_H
#define TOOLS_OUTPUTFILE_H

#include <maker/stagedfile.h>

using Maker::StagedFile;
using Maker::writeFile;

/*!
 * \brief Writes \a text to standard output as UTF-8.
 *
 * On a terminal, what it could obey is made visible first, see printable(); line ends and tabs stay.
 * \return false, after a line on standard error, if not all of it could be written.
 */
bool writeStandardOutput(const QString &text);

/*! \brief Writes \a report as it is, colours included; result and errors as above. */
bool writeReport(const QByteArray &report);

#endif
