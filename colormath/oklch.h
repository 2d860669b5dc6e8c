// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef COLORMATH_OKLCH_H
#define COLORMATH_OKLCH_H

#include <QColor>

namespace ColorMath
{

/*! \brief A colour as the eye orders it: how light, how colourful, which hue. */
struct Oklch {
    double lightness; //!< 0 (black) to 1 (white)
    double chroma; //!< 0 for greys; sRGB ends between 0.1 and 0.32, whatever the hue
    double hue; //!< degrees, 0 to 360; 0 for a grey, which has none
};

/*! \brief Converts an sRGB colour; the alpha channel does not count. */
Oklch toOklch(const QColor &color);

/*! \brief Returns the CIE 1976 lightness L* of \a color, 0 to 100: a function of luminance alone. */
double cieLightness(const QColor &color);

/*!
 * \brief Returns the sRGB colour of this hue and chroma whose CIE lightness is \a lightness.
 *
 * Where sRGB cannot show it, chroma gives way; lightness and hue never do. What is left of the
 * error is rounding to eight bits a channel.
 *
 * \param lightness  L*, 0 to 100.
 * \param chroma     of OKLCH, 0 or greater.
 * \param hue        of OKLCH, in degrees.
 */
QColor colorAtLightness(double lightness, double chroma, double hue);

/*!
 * \brief Returns \a text made lighter or darker until it stands at \a ratio or more on \a ground.
 *
 * The hue stays, and the chroma as far as sRGB allows. Of the two directions the one that changes
 * the lightness less is taken. A text that has the ratio is returned as it is; a ground on which
 * neither black nor white reaches the ratio gets the better of the two.
 *
 * \param text    may be translucent; what is returned is opaque unless \a text has the ratio.
 * \param ground  counts as opaque.
 * \param ratio   WCAG 2.1, 1 to 21; reached after rounding to eight bits.
 */
QColor liftedToContrast(const QColor &text, const QColor &ground, double ratio);

} // namespace ColorMath

#endif
