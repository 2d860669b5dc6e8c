// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef TOOLS_OUTPUTFILE_H
#define TOOLS_OUTPUTFILE_H

#include <QByteArray>
#include <QString>

/*!
 * \brief Writes \a content to the file at \a path: whole or not at all.
 *
 * The content is written beside the file and then put in its place, so nobody ever reads a half.
 * Only a regular file is replaced, never a device.
 * \return false if nothing was written; \a error is then one sentence that says why.
 */
bool writeFile(const QString &path, const QByteArray &content, QString *error);

/*!
 * \brief Writes \a text to standard output as UTF-8.
 *
 * On a terminal, what it could obey is made visible first, see printable(); line ends and tabs stay.
 * \return false, after a line on standard error, if not all of it could be written.
 */
bool writeStandardOutput(const QString &text);

#endif
