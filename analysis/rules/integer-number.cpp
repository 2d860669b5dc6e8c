// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

namespace
{

void check(const ThemeProject &project, Report &report)
{
    for (const ThemeStack *theme : project.allThemes()) {
        for (const Definition &definition : theme->definitions()) {
            bool isNumber = false;
            definition.value->value.toLongLong(&isNumber);
            if (definition.kind() != Kind::Integer || definition.value->isList() || isNumber
                || definition.fate == Definition::Fate::Exists)
                continue;
            report.addAtValue(definition,
                              QStringLiteral("integer %1 is \"%2\", no decimal number, and is "
                                             "stored as 0")
                                  .arg(definition.key(), definition.value->text()));
        }
    }
}

} // namespace

namespace LintRules
{

extern const LintRule integerNumber{"integer-number", Severity::Error,
                                    "An integer is not a decimal number and is stored as 0.",
                                    check};

} // namespace LintRules
