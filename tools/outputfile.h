// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef TOOLS_OUTPUTFILE_H
#define TOOLS_OUTPUTFILE_H

#include <QByteArray>
#include <QStringList>

/*!
 * \brief Writes \a content to the file at \a path: whole or not at all.
 *
 * The content is written beside the file and then put in its place, so nobody ever reads a half.
 * A file that is there keeps its owner, its permissions and its links: one with several names, or
 * of another user, is written in place, after the disk has made room for all of it. Only a regular
 * file is replaced, never a device.
 *
 * \param inputs  files that the content was made from; none of them is overwritten, by whatever
 *                name.
 * \return false if nothing was written; \a error is then one sentence that says why.
 */
bool writeFile(const QString &path, const QByteArray &content, const QStringList &inputs,
               QString *error);

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
