// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef COLORMATH_CSSTEXT_H
#define COLORMATH_CSSTEXT_H

#include <QColor>
#include <QGradientStops>
#include <QString>

namespace ColorMath
{

/*! \brief Returns \a color as style sheets of the web have it: `#rrggbb`, or the opacity last. */
QString cssColor(const QColor &color);

/*!
 * \brief Returns a linear-gradient to the right that shows what Qt paints: its stops in order, without
 *        those that lie outside; `none` if no stop is left.
 */
QString cssGradient(const QGradientStops &stops);

} // namespace ColorMath

#endif
