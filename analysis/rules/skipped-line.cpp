// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

namespace
{

void check(const ThemeProject &project, Report &report)
{
    for (const auto &layer : project.layers()) {
        for (const TextPosition &position : layer->file.skippedLines())
            report.add({layer->file.path(), position},
                       QStringLiteral("the line has no \"=\" and is skipped; a comment begins "
                                      "with \";\""));
        for (const ThemeFileEntry &entry : layer->file.entries()) {
            if (entry.rawKey.startsWith('#'))
                report.add({layer->file.path(), entry.keyPosition},
                           QStringLiteral("\"#\" begins no comment: this sets the key %1; write "
                                          "\";\" instead")
                               .arg(entry.name()));
        }
    }
}

} // namespace

namespace LintRules
{

extern const LintRule skippedLine{"skipped-line", Severity::Warning,
                                  "A line is neither a value nor a section nor a comment.", check};

} // namespace LintRules
