// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef EXCHANGE_FORMATS_H
#define EXCHANGE_FORMATS_H

#include <exchange/themecontent.h>

#include <QByteArray>
#include <QPalette>

namespace Exchange
{

/*!
 * \brief Returns a theme as CSS custom properties of `:root`, for web pages.
 *
 * `--palette-Brand_6`, `--color-EditBackgroundColor` (a `var()` of the palette entry it is taken from),
 * `--integer-FontSize_L`, `--gradient-Heading` (a linear-gradient to the right), `--flag-Dark`. Characters
 * that an identifier cannot have are escaped.
 */
QByteArray cssProperties(const ThemeContent &theme);

/*! \brief Returns the palette of a theme as a palette file of GIMP, named entries in their order. */
QByteArray gimpPalette(const ThemeContent &theme);

/*!
 * \brief Returns \a palette as a colour scheme file, as configuration tools of desktops read it for
 *        Qt programs: three lists of `#aarrggbb` in the order of QPalette::ColorRole.
 */
QByteArray paletteFile(const QPalette &palette);

} // namespace Exchange

#endif
