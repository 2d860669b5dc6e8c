// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_SPECIMENPAGE_H
#define GALLERY_SPECIMENPAGE_H

#include <QString>

class QWidget;

namespace Gallery
{

/*!
 * \brief Lays out the specimens of the page called \a name, each with the selector that makes it
 *        and, where Qt does not honour that selector as it is written, with a note that says so.
 *
 * \return a widget without parent, which the caller owns.
 */
QWidget *createSpecimenPage(const QString &name);

} // namespace Gallery

#endif
