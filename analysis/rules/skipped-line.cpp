// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

void Rules::skippedLine(const ThemeProject &input, Report &report)
{
    for (const auto &layer : input.layers()) {
        for (const TextPosition &position : layer->file.skippedLines())
            report.add(layer->file.path(), position,
                       QStringLiteral("the line has no \"=\" and is skipped; a comment begins "
                                      "with \";\""));
        for (const ThemeFileEntry &entry : layer->file.entries()) {
            if (entry.rawKey.startsWith('#'))
                report.add(layer->file.path(), entry.keyPosition,
                           QStringLiteral("\"#\" begins no comment: this sets the key %1; write "
                                          "\";\" instead")
                               .arg(entry.name()));
        }
    }
}
