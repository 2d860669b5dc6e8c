// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_MISSINGCOLORS_H
#define HVTHEMEAPP_MISSINGCOLORS_H

#include <QColor>
#include <QHash>
#include <QStringList>

namespace HV
{

/*! \brief Returns the colours that the library's templates use, sorted: those of the sample looks. */
QStringList templateColors();

/*!
 * \brief Returns a colour for each of templateColors() that \a known lacks.
 *
 * A colour comes from the first of its relatives that is known, by the table in docs/application.md,
 * else from the built-in look whose surfaces are as dark or light. Internal.
 */
QHash<QString, QColor> derivedColors(const QHash<QString, QColor> &known);

} // namespace HV

#endif // HVTHEMEAPP_MISSINGCOLORS_H
