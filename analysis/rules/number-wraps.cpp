// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

namespace
{

void check(const ThemeProject &project, Report &report)
{
    for (const ThemeStack *theme : project.allThemes()) {
        for (const Definition &definition : theme->definitions()) {
            const bool isNumeric =
                definition.kind() == Kind::Flag || definition.kind() == Kind::Integer;
            if (!isNumeric || definition.fate == Definition::Fate::Exists)
                continue;
            bool isNumber = false;
            const qint64 written = definition.value->value.toLongLong(&isNumber);
            const int stored = definition.value->value.toInt();
            if (!isNumber || written == stored)
                continue;
            report.addAtValue(
                definition,
                QStringLiteral("%1 %2 is %3, which does not fit into 32 bits and is "
                               "stored as %4")
                    .arg(nounOf(definition.kind()), definition.key(), QString::number(written),
                         definition.kind() == Kind::Integer ? QString::number(stored)
                                                            : QVariant(stored != 0).toString()));
        }
    }
}

} // namespace

namespace LintRules
{

extern const LintRule numberWraps{"number-wraps", Severity::Error,
                                  "A number does not fit into 32 bits and wraps.", check};

} // namespace LintRules
