// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_SPECIMENWIDGET_H
#define GALLERY_SPECIMENWIDGET_H

#include "specimentable.h"

class QWidget;

namespace Gallery
{

/*!
 * \brief Builds the widget that \a specimen describes, in its properties and its state.
 *
 * A specimen in its normal state stays alive to mouse and keyboard; in any other it is inert.
 * \return a widget without parent, which the caller owns; null for a class that no template styles.
 */
QWidget *createSpecimenWidget(const Specimen &specimen);

} // namespace Gallery

#endif
