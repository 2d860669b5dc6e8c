// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_APPLICATIONPAGE_H
#define GALLERY_APPLICATIONPAGE_H

class QWidget;

namespace Gallery
{

/*!
 * \brief Builds a page that looks like the window of a lighting desk, of the templates' vocabulary.
 *
 * \return a widget without parent and with a size of its own, which the caller owns.
 */
QWidget *createApplicationPage();

} // namespace Gallery

#endif
