// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

void Rules::themeName(const ThemeProject &input, Report &report)
{
    const ThemeLayer &base = input.base().base();
    for (const auto &layer : input.layers()) {
        if (layer->values.hasDisplayName)
            continue;
        const bool isNamed = layer.get() != &base && base.values.hasDisplayName;
        report.add(
            layer->file.path(), {1, 1},
            QStringLiteral("no ThemeName: the theme is called \"%1\"")
                .arg(isNamed ? base.values.displayName.toString() : QStringLiteral("unnamed")));
    }
}
