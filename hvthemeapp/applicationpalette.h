// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_APPLICATIONPALETTE_H
#define HVTHEMEAPP_APPLICATIONPALETTE_H

#include <QPalette>

namespace HV
{

class Theme;

/*! \brief Returns the palette that goes with \a theme. Internal to the library. */
QPalette applicationPalette(Theme &theme);

} // namespace HV

#endif // HVTHEMEAPP_APPLICATIONPALETTE_H
