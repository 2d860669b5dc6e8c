// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_COLORSPAGE_H
#define GALLERY_COLORSPAGE_H

#include <hvtheme/theme.h>

#include <QColor>
#include <QPair>
#include <QVector>

class QWidget;

namespace Gallery
{

/*! \brief Entries of a palette with their colours. */
using PaletteEntries = QVector<QPair<QString, QColor>>;

/*!
 * \brief Shows the palette and the colour keys of \a theme with their values and contrasts.
 *
 * A surface (a key with "Background" in its name) is measured against the text on it, any other
 * colour against the surface of the pages. Entries of \a palette that the library does not know have
 * a part of their own.
 * \return a widget without parent, which the caller owns; it does not follow later changes.
 */
QWidget *createColorsPage(HV::Theme &theme, PaletteEntries palette);

} // namespace Gallery

#endif
