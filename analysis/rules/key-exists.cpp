// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

namespace
{

void check(const ThemeProject &project, Report &report)
{
    for (const ThemeStack *theme : project.themes()) {
        for (const Definition &definition : theme->definitions()) {
            if (definition.fate != Definition::Fate::Exists || definition.kind() == Kind::Flag)
                continue;
            const Definition &winner = theme->definitions().at(definition.other);
            report.addAtKey(definition,
                            QStringLiteral("%1 %2 exists already; the value in %3 stays, this one "
                                           "has no effect")
                                .arg(nounOf(definition.kind()), definition.key(),
                                     winner.keyPlace().shortText()));
        }
    }
}

} // namespace

namespace LintRules
{

extern const LintRule keyExists{
    "key-exists", Severity::Error,
    "The default file has the key already, so this value has no effect.", check};

} // namespace LintRules
