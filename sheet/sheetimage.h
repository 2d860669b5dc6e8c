// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef SHEET_SHEETIMAGE_H
#define SHEET_SHEETIMAGE_H

#include <QImage>
#include <QString>

/*! \brief Returns the image file at \a path as a data URI; empty if it is no readable image. */
QString dataUri(const QString &path);

/*!
 * \brief Returns the image file at \a path, fitted into \a size and never blown up beyond \a scale
 *        times its own size; null if it is no readable image.
 */
QImage fittedImage(const QString &path, QSize size, double scale);

/*!
 * \brief Returns the size of the image file at \a path if it has too many pixels to be drawn.
 *
 * Above 32 million, both functions take it for no readable image. Vector images are never too large.
 */
QSize sizeIfTooLarge(const QString &path);

#endif
