// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_ACCESSIBLEPAGE_H
#define GALLERY_ACCESSIBLEPAGE_H

class QWidget;

namespace Gallery
{

/*!
 * \brief Lets Tab lead through all of \a page, and gives what can have the focus a name to be read out.
 *
 * Widgets that have a text or a name keep it. Tab then writes no tabulators and visits no cells.
 */
void makeAccessible(QWidget *page);

} // namespace Gallery

#endif
