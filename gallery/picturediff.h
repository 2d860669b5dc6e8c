// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_PICTUREDIFF_H
#define GALLERY_PICTUREDIFF_H

#include <QImage>

namespace Gallery
{

/*! \brief How two pictures differ. */
struct PictureDiff {
    int differingPixels = 0; //!< all of the larger picture if the sizes differ
    int pixels = 0;
    QImage image; //!< both pictures and, in red on a pale copy, where they differ, side by side

    double share() const { return pixels == 0 ? 0.0 : double(differingPixels) / pixels; }
};

/*!
 * \brief Compares \a actual with \a expected pixel by pixel.
 *
 * \param tolerance  how far each channel may be off, 0 to 255, for a pixel to count as equal.
 */
PictureDiff comparePictures(const QImage &expected, const QImage &actual, int tolerance);

} // namespace Gallery

#endif
