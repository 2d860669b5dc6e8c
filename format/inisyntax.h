// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef FORMAT_INISYNTAX_H
#define FORMAT_INISYNTAX_H

#include <QByteArray>
#include <QString>
#include <QStringList>

/*!
 * \brief The lexical rules of INI files as QSettings reads them: where a line ends, what a key is.
 *
 * QSettings keeps them to itself; they are told again here because positions need them. The tests
 * hold both against each other.
 */
namespace IniSyntax
{

/*! \brief Tells whether \a character ends a line. */
bool isLineEnd(char character);

/*! \brief Returns where the next line of \a text begins after \a position, which is not quoted. */
int behindLine(const QByteArray &text, int position);

/*! \brief One logical line: offsets into the file's bytes. */
struct Line {
    int start = 0;
    int end = 0;
    int equals = -1; //!< of the first "=" outside quotation marks, or -1
};

/*!
 * \brief Finds the next logical line from \a position on and moves \a position behind it.
 *
 * Blank lines and comments are passed over. \return false at the end of \a text.
 */
bool nextLine(const QByteArray &text, int *position, Line *line);

/*! \brief Returns the bytes of \a escaped as QSettings names them: "\\" is "/", %XX, %UXXXX. */
QString unescapedKey(const QByteArray &escaped);

/*! \brief Returns \a key, a whole one or a part, as QSettings writes it: unescapedKey() reads it back. */
QByteArray escapedKey(const QString &key);

/*! \brief How characters beyond ASCII are written. */
enum class Encoding {
    Escaped, //!< as `\x4e2d`: the same to every version of Qt
    Utf8, //!< as they are, for files with a byte order mark
};

/*! \brief When a value is put in quotation marks. */
enum class Quotes {
    AsNeeded,
    Always,
};

/*!
 * \brief Returns what \a escaped, all that stands between "=" and the end of the logical line, says:
 *        the parts of a list, and one for a plain value.
 *
 * Bytes beyond ASCII are Latin-1, or UTF-8 as \a encoding has it. A type that is written into the
 * value, `@Size(3 4)`, stays text.
 */
QStringList unescapedValue(const QByteArray &escaped, Encoding encoding);

/*! \brief Tells whether one pair of quotation marks stands around all of the value \a escaped. */
bool isQuoted(const QByteArray &escaped);

/*! \brief Returns \a value, a text, so that QSettings reads back exactly that, and no list. */
QByteArray escapedValue(const QString &value, Encoding encoding, Quotes quotes);

} // namespace IniSyntax

#endif
