// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

void Rules::keyExists(const ThemeProject &input, Report &report)
{
    for (const ThemeStack *theme : input.themes()) {
        for (const Definition &definition : theme->definitions()) {
            if (definition.fate != Definition::Fate::Exists || definition.kind() == Kind::Flag)
                continue;
            const Definition &winner = theme->definitions().at(definition.other);
            report.addAtKey(definition,
                            QStringLiteral("%1 %2 exists already; the value in %3 stays, this one "
                                           "has no effect")
                                .arg(nounOf(definition.kind()), definition.key(), placeOf(winner)));
        }
    }
}
