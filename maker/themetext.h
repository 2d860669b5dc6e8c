// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef MAKER_THEMETEXT_H
#define MAKER_THEMETEXT_H

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector>

namespace Maker
{

/*!
 * \brief The text of a theme file whose values can be changed in place: comments, order, line ends
 *        and all else stay as they are.
 *
 * Reads what `hvtheme new` and the samples write: one `key=value` a line, sections in brackets,
 * comments that begin with a semicolon. Keys are ASCII.
 */
class ThemeText
{
public:
    explicit ThemeText(const QByteArray &text);

    QByteArray text() const;

    /*! \brief Returns the keys of a section, "Colors" say, in the order of the file. */
    QStringList keys(const QString &section) const;

    /*! \brief Returns the values of a section by key. */
    QMap<QString, QString> values(const QString &section) const;

    /*! \brief Returns the value of \a key, or a null text. The last of two equal keys counts. */
    QString value(const QString &section, const QString &key) const;

    /*! \brief Sets the value of \a key; a key that is not there goes to the end of its section, and
     *         a section that is not there to the end of the text. */
    void setValue(const QString &section, const QString &key, const QString &value);

    /*! \brief Takes a section away, with the comment that stands directly above it. */
    void removeSection(const QString &section);

    /*! \brief Replaces all that stands above the first section. */
    void setHeader(const QByteArray &comment);

private:
    struct Line {
        QByteArray text; //!< with its line end
        QString section;
        QString key; //!< empty for a header, a comment or a blank line
    };

    int indexOf(const QString &section, const QString &key) const;

    QVector<Line> m_lines;
};

} // namespace Maker

#endif
