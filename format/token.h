// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef FORMAT_TOKEN_H
#define FORMAT_TOKEN_H

#include <format/kind.h>

#include <QVector>

#include <optional>

/*! \brief A token such as `global.theme.color.Bg_1` in a text. */
struct TemplateToken {
    Kind kind = Kind::Color; //!< Color, ImageFile or Integer: the pass that replaces it
    QString key;
    int offset = 0;
    int length = 0; //!< without a separator behind it

    int end() const { return offset + length; }
};

/*!
 * \brief How tokens are written: `PREFIX.theme.WORD.KEY`, and for integers perhaps a `|` behind.
 *
 * A key is as many ASCII letters, digits and "_" as there are. Prefixes are word characters here, so
 * that they stand for nothing but themselves.
 */
namespace Tokens
{

/*! \brief The kinds that tokens can name, in the order in which they are replaced. */
constexpr Kind passes[] = {Kind::Color, Kind::ImageFile, Kind::Integer};

/*! \brief What ends the key of an integer where a unit follows, and goes with the token. */
constexpr char separator = '|';

/*! \brief Returns the prefix of the built-in templates: "global". */
QString defaultPrefix();

/*! \brief Returns the word for \a kind in tokens: "color", "image", "integer"; else empty. */
QString word(Kind kind);

/*! \brief Tells whether a separator behind a token of \a kind is taken along. */
bool takesSeparator(Kind kind);

/*! \brief Tells whether a key may hold \a character. */
bool isKeyCharacter(QChar character);

/*! \brief Returns what every token of \a kind begins with: "global.theme.color.". */
QString opening(const QString &prefix, Kind kind);

/*! \brief Returns all tokens in \a text in their order. */
QVector<TemplateToken> find(const QString &text, const QString &prefix);

/*! \brief Returns the token that \a text is from its first to its last character, or nothing. */
std::optional<TemplateToken> read(const QString &text, const QString &prefix);

/*! \brief Something in the form of a token, whatever kind its word names. */
struct Candidate {
    std::optional<Kind> kind; //!< nothing if no pass replaces it
    QString text;
    QString key;
    int offset = 0;
};

/*! \brief Returns all that has the form of a token, also what nothing will replace. */
QVector<Candidate> findCandidates(const QString &text, const QString &prefix);

} // namespace Tokens

#endif
