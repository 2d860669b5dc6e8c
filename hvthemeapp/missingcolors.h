// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_MISSINGCOLORS_H
#define HVTHEMEAPP_MISSINGCOLORS_H

#include <QColor>
#include <QHash>
#include <QStringList>

namespace HV
{

/*!
 * \brief Returns the colours that the built-in templates use, sorted: those of the sample looks but
 *        for the optional ones.
 */
QStringList templateColors();

/*!
 * \brief Returns a colour for each of templateColors() that \a known lacks.
 *
 * A colour comes from the first of its relatives that is known, by the table in docs/application.md,
 * else from the built-in look whose surfaces are as dark or light. Internal.
 */
QHash<QString, QColor> derivedColors(const QHash<QString, QColor> &known);

/*!
 * \brief Returns a colour for each of accentKeys() that \a colors, which is whole otherwise, lacks.
 *
 * They are those of GeneralButtonBackground* and Color_W100; a theme with a ground of its own and
 * nothing else keeps it in all states, and its text is lifted to 4.5:1. Internal.
 */
QHash<QString, QColor> accentColors(const QHash<QString, QColor> &colors);

} // namespace HV

#endif // HVTHEMEAPP_MISSINGCOLORS_H
