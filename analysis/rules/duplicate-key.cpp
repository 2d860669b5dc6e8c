// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

namespace
{

void check(const ThemeProject &project, Report &report)
{
    for (const auto &layer : project.layers()) {
        for (const ThemeFileEntry &entry : layer->file.entries()) {
            if (entry.isEffective)
                continue;
            report.add({layer->file.path(), entry.keyPosition},
                       QStringLiteral("%1 is given again in line %2, and that value counts")
                           .arg(entry.name(),
                                QString::number(layer->file.find(entry.key)->keyPosition.line)));
        }
    }
}

} // namespace

namespace LintRules
{

extern const LintRule duplicateKey{"duplicate-key", Severity::Warning,
                                   "A key is given twice in one file.", check};

} // namespace LintRules
