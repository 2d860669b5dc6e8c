// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_SCREENSHOTS_H
#define GALLERY_SCREENSHOTS_H

#include "options.h"

#include <QImage>

class QWidget;

namespace Gallery
{

/*! \brief Returns a picture of \a page, as if its window had the focus; at its preferred size unless
 *         there is a \a size. */
QImage takePicture(QWidget *page, const QSize &size = {});

/*!
 * \brief Writes one PNG for each page and theme of \a options; makes the folder if need be.
 *
 * A theme with a problem has no pictures, the others do.
 * \return the first problem, after a critical message for each.
 */
Problem takeScreenshots(const Options &options);

} // namespace Gallery

#endif
