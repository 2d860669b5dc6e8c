// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

void Rules::unusedPalette(const ThemeProject &input, Report &report)
{
    QSet<QString> used;
    for (const ThemeStack *theme : input.allThemes()) {
        for (const ColorText &color : colorTexts(*theme)) {
            if (color.isResolved)
                used.insert(color.text());
        }
    }
    for (const ThemeStack *theme : input.allThemes()) {
        for (const int index : theme->stored(Kind::Palette)) {
            const Definition &definition = theme->definitions().at(index);
            if (!used.contains(definition.key()))
                report.addAtKey(
                    definition,
                    QStringLiteral("nothing uses the palette entry %1").arg(definition.key()));
        }
    }
}
