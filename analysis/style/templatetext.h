// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef ANALYSIS_STYLE_TEMPLATETEXT_H
#define ANALYSIS_STYLE_TEMPLATETEXT_H

#include <analysis/theme/inputfile.h>
#include <format/place.h>
#include <format/token.h>

#include <QStringList>
#include <QVector>

/*!
 * \brief Style sheet templates, joined as HV::readStyleSheet() joins them, with positions.
 *
 * Offsets count the characters of text(). Tokens are looked for in the joined text, because the
 * library does so too: nothing stands between two files.
 */
class TemplateText
{
public:
    /*! \brief One template file and where its text begins in the joined text. */
    struct File {
        InputFile input;
        int offset;
    };

    /*!
     * \brief Reads the templates that \a sources name.
     *
     * \param sources  folders, read as HV::readStyleSheet() reads them, and files, in their order.
     * \param prefix   of the tokens: word characters, so that it stands for nothing but itself.
     * \param error    set to one sentence if nothing is returned.
     */
    static std::optional<TemplateText> read(const QStringList &sources, const QString &prefix,
                                            QString *error);

    QString prefix() const { return m_prefix; }
    QString text() const { return m_text; }
    const QVector<File> &files() const { return m_files; }
    const QVector<TemplateToken> &tokens() const { return m_tokens; }

    /*! \brief Returns the file that the character at \a offset comes from. */
    const File &fileAt(int offset) const;
    /*! \brief Returns the place of \a offset: its file and the position in it. */
    Place placeAt(int offset) const;

private:
    TemplateText() = default;
    bool append(const QString &path, QString *error);

    QString m_prefix;
    QString m_text;
    QVector<File> m_files;
    QVector<int> m_lineStarts;
    QVector<TemplateToken> m_tokens;
};

#endif
