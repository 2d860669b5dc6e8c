// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef ANALYSIS_THEME_CHANGEDTEXT_H
#define ANALYSIS_THEME_CHANGEDTEXT_H

#include <analysis/theme/themefile.h>

#include <QMap>
#include <QVariant>

#include <optional>

/*! \brief Changes to the text of a theme file that leave all else in it as it is, byte by byte. */
namespace ChangedText
{

/*! \brief Returns what QSettings reads, by whole key; without entries that have no key at all. */
QMap<QString, QVariant> values(const QByteArray &content);

/*!
 * \brief Returns the text of \a file in which the whole \a key has \a value.
 *
 * Of two entries with the key the one that takes effect changes, and of that only the characters of
 * its value; quotation marks around it stay. A value that is \a value already stays as it is written.
 * A new key goes to the end of its section, the last one of that name, and a new section to the end
 * of the file. What QSettings reads then is \a value as one text, and all else as before: this is
 * looked at before it is returned.
 *
 * \param error  set to one sentence if nothing is returned: no entry can have such a key, or an open
 *               quotation mark takes in what would stand behind it.
 */
std::optional<QByteArray> withValue(const ThemeFile &file, const QString &key, const QString &value,
                                    QString *error);

/*!
 * \brief Returns the text of \a file without the lines that define the whole \a key; comments behind
 *        them stay. The text as it is if there are none.
 */
QByteArray withoutKey(const ThemeFile &file, const QString &key);

} // namespace ChangedText

#endif
