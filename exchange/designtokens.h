// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef EXCHANGE_DESIGNTOKENS_H
#define EXCHANGE_DESIGNTOKENS_H

#include <exchange/themecontent.h>

#include <QByteArray>

#include <optional>

namespace Exchange
{

/*!
 * \brief Returns a theme as design tokens, the JSON format of the Design Tokens Community Group
 *        (2025.10).
 *
 * Groups `palette`, `color`, `gradient` and `integer`; a colour that is taken from the palette is an
 * alias. Font sizes are dimensions in pixels. Flags, image files and the theme's names are no tokens
 * and stand below `$extensions`, in `hvtheme`. readDesignTokens() gives it all back.
 *
 * \return nothing, with one sentence in \a error, for a key that cannot name a token: one that holds
 *         a dot or a brace, or begins with a dollar sign; and for a stop of a gradient at no number.
 */
std::optional<QByteArray> designTokens(const ThemeContent &theme, QString *error);

/*!
 * \brief Reads design tokens of any author.
 *
 * Those of the four groups above become what they were. Any other colour becomes a palette entry,
 * named after its path: `brand.primary.500` is `brand_primary_500`, with a number behind it if there
 * is such an entry already. A colour of ours that is an alias of an entry names it. Tokens of other
 * types are passed over, in the four groups as well. Colours may be objects of the colour space sRGB, objects of any space with a
 * `hex`, or text such as `#3060f0` and `#3060f0ff`, the opacity last.
 *
 * \return nothing, with one sentence in \a error that names the token, for a text that is no JSON,
 *         aliases in a circle or to nothing, and values that are not of their type.
 */
std::optional<ThemeContent> readDesignTokens(const QByteArray &text, QString *error);

/*!
 * \brief Returns the palette of \a tokens with their colours in it as well: `color.primary` as
 *        `color_primary`. Many call their palette so.
 */
QMap<QString, QColor> wholePalette(const ThemeContent &tokens);

} // namespace Exchange

#endif
