// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef COLORMATH_DISTANCE_H
#define COLORMATH_DISTANCE_H

class QColor;

namespace ColorMath
{

/*! \brief A colour in CIELAB: lightness 0 to 100, green to red, blue to yellow. */
struct Lab {
    double lightness;
    double a;
    double b;
};

/*! \brief Converts an sRGB colour (white point D65); the alpha channel does not count. */
Lab toLab(const QColor &color);

/*!
 * \brief Returns how different two colours look, by the CIEDE2000 formula with all weights 1.
 *
 * \return 0 for equal colours, about 1 for a difference one can just see, 100 for black and white.
 */
double distance(const Lab &first, const Lab &second);

} // namespace ColorMath

#endif
