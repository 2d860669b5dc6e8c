// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

namespace
{

void check(const ThemeProject &project, Report &report)
{
    for (const Definition *definition : definitionsWithoutNumber(project, Kind::Integer)) {
        report.addAtValue(
            *definition,
            QStringLiteral("integer %1 is \"%2\", no decimal number, and is stored as 0")
                .arg(definition->key(), definition->value->text()));
    }
}

} // namespace

namespace LintRules
{

extern const LintRule integerNumber{"integer-number", Severity::Error,
                                    "An integer is not a decimal number and is stored as 0.",
                                    check};

} // namespace LintRules
