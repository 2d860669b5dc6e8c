// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

namespace
{

void check(const ThemeProject &project, Report &report)
{
    for (const ThemeStack *theme : project.themes()) {
        for (const Definition &definition : theme->definitions()) {
            if (definition.fate != Definition::Fate::Exists || definition.kind() != Kind::Flag)
                continue;
            const Definition &integer = theme->definitions().at(definition.other);
            report.addAtKey(definition,
                            QStringLiteral("flag %1 is not stored, because %2 has an integer of "
                                           "this name")
                                .arg(definition.key(), integer.keyPlace().shortText()));
        }
    }
}

} // namespace

namespace LintRules
{

extern const LintRule flagKeptOut{"flag-kept-out", Severity::Error,
                                  "An integer of its name keeps a flag out.", check};

} // namespace LintRules
