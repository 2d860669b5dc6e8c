// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef COLORMATH_CONTRAST_H
#define COLORMATH_CONTRAST_H

#include <QColor>

/*!
 * \brief Arithmetic on sRGB colours: how two of them stand against each other.
 *
 * Internal to the project (`#include <colormath/contrast.h>`, target `hvtheme_colormath`). All
 * functions are pure. A colour of another model, HSV say, is converted to RGB first; an invalid
 * colour counts as opaque black, which is what QColor::toRgb() makes of it.
 */
namespace ColorMath
{

/*!
 * \brief Returns the relative luminance of \a color as WCAG 2.1 defines it, 0 (black) to 1 (white).
 *
 * The alpha channel does not count; lay a translucent colour over() what stands behind it first.
 */
double relativeLuminance(const QColor &color);

/*!
 * \brief Returns the WCAG 2.1 contrast ratio of \a foreground on \a background, 1 to 21.
 *
 * \param foreground  may be translucent; it is then laid over() \a background before measuring.
 * \param background  counts as opaque, whatever its alpha.
 */
double contrastRatio(const QColor &foreground, const QColor &background);

/*!
 * \brief Returns \a ratio as people write it, `4.49:1`.
 *
 * Cut after two decimals, not rounded: what is less than 4.5 must not look like 4.5.
 */
QString contrastText(double ratio);

/*!
 * \brief Returns the colour seen where \a front lies on \a back (source-over, in sRGB).
 *
 * \return an RGB colour; opaque when either of the two is. Two wholly transparent colours give
 *         transparent black.
 */
QColor over(const QColor &front, const QColor &back);

} // namespace ColorMath

#endif
