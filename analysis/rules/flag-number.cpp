// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

namespace
{

void check(const ThemeProject &project, Report &report)
{
    for (const Definition *definition : definitionsWithoutNumber(project, Kind::Flag)) {
        report.addAtValue(*definition,
                          QStringLiteral("flag %1 is \"%2\", no decimal number, and is stored as "
                                         "false; write 1 or 0")
                              .arg(definition->key(), definition->value->text()));
    }
}

} // namespace

namespace LintRules
{

extern const LintRule flagNumber{"flag-number", Severity::Error,
                                 "A flag is not a decimal number and is stored as false.", check};

} // namespace LintRules
