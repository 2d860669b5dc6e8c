// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_MISSINGIMAGES_H
#define HVTHEMEAPP_MISSINGIMAGES_H

namespace HV
{

class Theme;

/*!
 * \brief Gives \a theme the built-in drawings for the image keys that it lacks.
 *
 * Call it when the theme's files are read, before Theme::values(), which keeps what it has seen.
 * Logs nothing. A key that the theme has keeps its image, an empty one too.
 */
void addMissingImages(Theme &theme);

} // namespace HV

#endif // HVTHEMEAPP_MISSINGIMAGES_H
