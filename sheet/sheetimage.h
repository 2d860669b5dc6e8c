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
 * \brief Returns what is too large about the image file at \a path, "has 30000 x 30000 pixels" say,
 *        or a null text.
 *
 * Above 32 million pixels or 4 MB both functions take it for no readable image. Vector images never
 * have too many pixels.
 */
QString whyTooLarge(const QString &path);

#endif
