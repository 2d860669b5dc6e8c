// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef MAKER_REBRANDING_H
#define MAKER_REBRANDING_H

#include <QByteArray>
#include <QColor>
#include <QStringList>

#include <optional>

namespace Maker
{

/*! \brief The text of a default file and of the theme over it. */
struct ThemeTexts {
    QByteArray base;
    QByteArray own;
};

/*!
 * \brief Returns \a theme with the tones of another brand, all else as it is.
 *
 * The palette entries `Brand_1` to `Brand_10` change, and what of the look's colours then calls for
 * it. A theme that neither has such entries nor names them stays as it is, and a note says so; one
 * that lacks some of the samples' colours is mended as far as its keys go. An entry changes in the
 * file that has it; a colour of the default file that comes to a tone which only the other file has
 * is written in digits.
 *
 * \return nothing, with one sentence in \a error, if an open quotation mark takes in what would be
 *         added.
 */
std::optional<ThemeTexts> withBrand(const ThemeTexts &theme, const QColor &brand,
                                    QStringList *notes, QString *error);

} // namespace Maker

#endif
