// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef MAKER_THEMETEXT_H
#define MAKER_THEMETEXT_H

#include <QByteArray>
#include <QHash>
#include <QMap>
#include <QPair>
#include <QString>
#include <QStringList>

#include <list>
#include <optional>

namespace Maker
{

/*!
 * \brief The text of a theme file whose values can be changed in place: comments, order, line ends
 *        and all else stay as they are.
 *
 * Reads any theme file as QSettings does: quotation marks, escapes, comments behind values. Keys that
 * stand before the first section are those of "General". Only a whole key that is written into its
 * section's part ("Colors\A=x" in "General") is not found in that section.
 */
class ThemeText
{
public:
    explicit ThemeText(const QByteArray &text);
    Q_DISABLE_COPY_MOVE(ThemeText)

    QByteArray text() const;

    /*!
     * \brief Returns text() if it reads as all that was set and, apart from that, as before.
     *
     * Nothing if an open quotation mark takes in what was added behind it.
     */
    std::optional<QByteArray> provenText() const;

    /*! \brief Returns the keys of a section, "Colors" say, in the order of the file. */
    QStringList keys(const QString &section) const;

    /*! \brief Returns the values of a section by key. */
    QMap<QString, QString> values(const QString &section) const;

    /*! \brief Returns the value of \a key, or a null text. The last of two equal keys counts; a list of
     *         texts is an empty one. */
    QString value(const QString &section, const QString &key) const;

    /*! \brief Sets the value of \a key; a key that is not there goes to the end of its section, and
     *         a section that is not there to the end of the text. */
    void setValue(const QString &section, const QString &key, const QString &value);

    /*! \brief Takes a section away, with the comment that stands directly above it. */
    void removeSection(const QString &section);

private:
    struct Line {
        QByteArray text; //!< with its line end
        QString section;
        QString key; //!< empty for a header, a comment or a blank line
        int valueStart = 0; //!< the value's place in the text, without blanks around it
        int valueEnd = 0;
        bool isHeader = false;
    };
    using Lines = std::list<Line>;

    void addPlainLines(const QByteArray &text, const QString &section);
    Line entry(const QString &section, const QString &key, const QString &value,
               const QByteArray &lineEnd) const;
    static QByteArray rawValueOf(const Line &line);
    QString valueOf(const Line &line) const;
    bool readsAs(const ThemeText &other) const;
    void note(Lines::iterator line);

    bool m_isUtf8;
    Lines m_lines;
    QHash<QPair<QString, QString>, Lines::iterator> m_entries; // by section and key, the last ones
    QHash<QString, Lines::iterator> m_ends; // the last header or entry of each section
};

} // namespace Maker

#endif
