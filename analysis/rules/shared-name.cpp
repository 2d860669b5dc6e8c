// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

void Rules::sharedName(const ThemeProject &input, Report &report)
{
    for (const ThemeStack *theme : input.allThemes()) {
        for (const Kind kind : allKinds) {
            if (!isInStyleSheets(kind))
                continue;
            for (const int index : theme->stored(kind)) {
                const Definition &definition = theme->definitions().at(index);
                const Kind winner = *kindInStyleSheets(*theme, definition.key());
                if (winner == kind)
                    continue;
                report.addAtKey(definition,
                                QStringLiteral("%1 %2 is hidden from style sheets by the %3 of "
                                               "this name (%4)")
                                    .arg(nounOf(kind), definition.key(), nounOf(winner),
                                         placeOf(*theme->find(winner, definition.key()))));
            }
        }
    }
}
