// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_DESKTOPPREFERENCES_H
#define HVTHEMEAPP_DESKTOPPREFERENCES_H

#include "desktopsettings.h"

#include <optional>

namespace HV
{

/*! \brief What one source says of the desktop; what it does not say is left open. */
struct DesktopPreferences {
    std::optional<DesktopSettings::ColorScheme> colorScheme;
    std::optional<DesktopSettings::Contrast> contrast;
    QColor accentColor;

    /*! \brief Fills what is open with what \a other says. */
    void complete(const DesktopPreferences &other);

    bool operator==(const DesktopPreferences &other) const;
    bool operator!=(const DesktopPreferences &other) const { return !(*this == other); }
};

} // namespace HV

#endif // HVTHEMEAPP_DESKTOPPREFERENCES_H
