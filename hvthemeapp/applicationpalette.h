// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_APPLICATIONPALETTE_H
#define HVTHEMEAPP_APPLICATIONPALETTE_H

#include <QPalette>
#include <QVariantMap>

namespace HV
{

/*!
 * \brief Returns the palette that goes with a theme: all 20 roles in all three groups, opaque.
 *
 * \param values  what Theme::values() gives. A colour that is missing leaves the role as the default
 *                constructor of QPalette makes it.
 *
 * docs/application.md has the table of keys. Optional keys of the section Colors come before it:
 * `Palette_<Role>` for a role, and `Palette_<Group>_<Role>` for one group of it. They are taken as
 * they are. All other texts and links are made lighter or darker, hue kept, until they stand at 4.5:1
 * on all grounds that Qt draws them on, disabled ones at 3:1; in a theme whose flag `HighContrast` is
 * set at 7:1 and 4.5:1. Internal to the library.
 */
QPalette applicationPalette(const QVariantMap &values);

} // namespace HV

#endif // HVTHEMEAPP_APPLICATIONPALETTE_H
