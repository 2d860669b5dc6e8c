// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_ATTRIBUTEVALUES_H
#define HVTHEMEAPP_ATTRIBUTEVALUES_H

class QWidget;

namespace HV
{

/*!
 * \brief Remembers what the library's templates ask \a widget for by rules with attributes.
 *
 * Qt looks for the rules of a widget when it is polished, and no more. Call it then.
 *
 * \return whether there are such rules for its class. Internal.
 */
bool keepAttributeValues(QWidget &widget);

/*! \brief Has \a widget polished again, soon, if other rules fit it by now. Cheap if none do. Internal. */
void renewAttributeRules(QWidget &widget);

} // namespace HV

#endif // HVTHEMEAPP_ATTRIBUTEVALUES_H
