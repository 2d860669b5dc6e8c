// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_ICONPLUGINS_H
#define HVTHEMEAPP_ICONPLUGINS_H

namespace HV
{

/*!
 * \brief Teaches Qt to load drawings: files with the suffix `hvicon`, tinted, wherever a picture or
 *        an icon is loaded by its path, style sheets included.
 *
 * Also registers the built-in drawings, and lets icons use all pixels of dense screens. Cheap from
 * the second call on. Call it on the GUI thread before the first style sheet.
 */
void registerIcons();

} // namespace HV

#endif // HVTHEMEAPP_ICONPLUGINS_H
