// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

void Rules::duplicateKey(const ThemeProject &input, Report &report)
{
    for (const auto &layer : input.layers()) {
        for (const ThemeFileEntry &entry : layer->file.entries()) {
            if (entry.isEffective)
                continue;
            report.add(layer->file.path(), entry.keyPosition,
                       QStringLiteral("%1 is given again in line %2, and that value counts")
                           .arg(entry.name())
                           .arg(layer->file.find(entry.key)->keyPosition.line));
        }
    }
}
