// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_DESKTOPTHEME_H
#define HVTHEMEAPP_DESKTOPTHEME_H

#include "desktopsettings.h"

#include <QStringList>

namespace HV
{

/*!
 * \brief Returns the one of the themes \a names in \a folder, whose files end in \a suffix, that
 *        fits the desktop best.
 *
 * What a theme is, the flags `DarkSurfaces` and `HighContrast` of its file say, else those of
 * `default.theme`, else its ground, `BackgroundColor_3`, and its name. A theme of the contrast that is asked for goes before one that is only as dark or light; of
 * equals "dark", "light" and "contrast" come first, then the first. Null if there are no names.
 */
QString themeForDesktop(const QString &folder, const QString &suffix, const QStringList &names,
                        DesktopSettings::ColorScheme scheme, DesktopSettings::Contrast contrast);

} // namespace HV

#endif // HVTHEMEAPP_DESKTOPTHEME_H
