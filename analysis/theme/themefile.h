// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef ANALYSIS_THEME_THEMEFILE_H
#define ANALYSIS_THEME_THEMEFILE_H

#include <analysis/theme/inputfile.h>
#include <format/place.h>

#include <QHash>
#include <QVector>

/*! \brief One `key=value` of a theme file, where it stands and how QSettings names it. */
struct ThemeFileEntry {
    QString key; //!< the whole key as QSettings::allKeys() lists it, for example "Palettes/Bg_1"
    QByteArray rawKey; //!< the key as it is written, without its section
    QByteArray rawValue; //!< everything behind the "=" up to the line's end or a comment
    TextPosition keyPosition;
    TextPosition valuePosition; //!< of the first character that is not blank
    int start = 0; //!< of the key: like those that follow, an offset into the file's bytes
    int valueStart = 0; //!< of the first character that is not blank
    int valueEnd = 0; //!< behind the last that is not; the start if there is none
    int end = 0; //!< behind all of it, where a comment or the line's end is
    bool isEffective = true; //!< false if another entry of the same key takes its place

    /*! \brief Returns the key up to its first "/", which names the section; "" at the top level. */
    QString section() const;
    /*! \brief Returns the key behind its first "/", as QSettings names it within the section. */
    QString name() const;
};

/*! \brief A section header such as `[Palettes]`. */
struct ThemeFileSection {
    QString name; //!< as QSettings names it; "" for [General]
    TextPosition position;
    int start = 0; //!< offset into the file's bytes
    int end = 0; //!< behind all of it, where a comment or the line's end is
};

/*!
 * \brief A theme file's text, entry by entry, with positions.
 *
 * QSettings tells the values of a theme file but not where they stand, so positions are taken from
 * the text and values from QSettings. **The two are matched by the whole key and nowhere else**:
 * ThemeFileEntry::key is spelt as QSettings::allKeys() spells it. The rules, all of them Qt's:
 *
 * - a line ends at a line end outside quotation marks; a backslash before the line end continues
 *   it; `;` outside quotation marks begins a comment, `#` does not;
 * - `[General]` in any letter case is the top level and adds nothing to the key; `[%General]` is
 *   the section that is really called General; any other header is unescaped like a key and puts
 *   itself and a "/" in front;
 * - in keys and headers `\` means "/", `%20` and `%U4E2D` are characters in hexadecimal, every
 *   other byte is one Latin-1 character; keys are case-sensitive; a byte order mark sticks to an
 *   entry that directly follows it;
 * - sections of one name are one section; of two entries with the same key the one that stands in
 *   the section with the greater name takes effect, and within one section the last.
 *
 * Values are never decoded here.
 */
class ThemeFile
{
public:
    /*! \brief Reads the file at \a path; if nothing is returned, \a error says why. */
    static std::optional<ThemeFile> read(const QString &path, QString *error);

    /*! \brief Reads \a content as if it were the file at \a path; \a error as for read(). */
    static std::optional<ThemeFile> fromContent(const QString &path, const QByteArray &content,
                                                QString *error);

    QString path() const { return m_input.path(); }
    QByteArray content() const { return m_input.content(); }

    /*! \brief Returns all entries in the file's order, also those without effect. */
    const QVector<ThemeFileEntry> &entries() const { return m_entries; }
    const QVector<ThemeFileSection> &sections() const { return m_sections; }

    /*! \brief Returns the places of lines that are neither entry, header nor comment. */
    const QVector<TextPosition> &skippedLines() const { return m_skippedLines; }

    /*! \brief Returns the entry that takes effect for the whole \a key, or null. */
    const ThemeFileEntry *find(const QString &key) const;

    /*! \brief Tells whether a byte order mark makes QSettings read the values as UTF-8. */
    bool hasByteOrderMark() const;

    /*! \brief Tells whether the file on disk still is what was read. */
    bool isUnchanged() const { return m_input.isUnchanged(); }

private:
    static std::optional<ThemeFile> fromInput(const InputFile &input, QString *error);
    explicit ThemeFile(const InputFile &input);
    void parse();
    void settleDuplicates(const QVector<QString> &sectionOfEntry);

    InputFile m_input;
    QVector<ThemeFileEntry> m_entries;
    QVector<ThemeFileSection> m_sections;
    QVector<TextPosition> m_skippedLines;
    QHash<QString, int> m_effective;
};

#endif
