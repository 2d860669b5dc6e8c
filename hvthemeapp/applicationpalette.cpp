// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "applicationpalette.h"

#include <hvtheme/theme.h>

namespace HV
{

QPalette applicationPalette(Theme &theme)
{
    const QVariantMap &values = theme.values();
    QPalette palette;
    const auto set = [&](QPalette::ColorRole role, const char *key) {
        const auto value = values.constFind(QLatin1String(key));
        if (value != values.cend())
            palette.setColor(role, value->value<QColor>());
    };
    set(QPalette::Window, "BackgroundColor_2");
    set(QPalette::Button, "BackgroundColor_4");
    set(QPalette::Base, "EditBackgroundColor");
    set(QPalette::AlternateBase, "BackgroundColor_3");
    set(QPalette::WindowText, "DefaultForegroundColor");
    set(QPalette::Text, "DefaultForegroundColor");
    set(QPalette::ButtonText, "DefaultForegroundColor");
    set(QPalette::Highlight, "Color_Brand_8");
    set(QPalette::HighlightedText, "Color_W100");
    set(QPalette::PlaceholderText, "DisabledForegroundColor");
    return palette;
}

} // namespace HV
