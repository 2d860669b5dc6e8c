// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_PARTIALRESTYLING_H
#define HVTHEMEAPP_PARTIALRESTYLING_H

#include <QString>

#include <functional>

namespace HV
{

class StyleDifference;

/*!
 * \brief Gives the application \a styleSheet, and polishes the widgets that \a difference concerns.
 *
 * Where sizes may change, also what is around those widgets and in them, and they get a
 * QEvent::StyleChange. The others keep what they have, which is what they would get.
 *
 * \param difference  between the application's style sheet, which is not empty, and \a styleSheet.
 * \param changeWithoutRules  called while no widget has rules of either style sheet.
 */
void restyleConcerned(const QString &styleSheet, const StyleDifference &difference,
                      const std::function<void()> &changeWithoutRules);

} // namespace HV

#endif // HVTHEMEAPP_PARTIALRESTYLING_H
