// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

namespace
{

void check(const ThemeProject &project, Report &report)
{
    for (const ThemeStack *theme : project.allThemes()) {
        for (const Kind kind : allKinds) {
            if (!isInStyleSheets(kind))
                continue;
            for (const int index : theme->stored(kind)) {
                const Definition &definition = theme->definitions().at(index);
                const Kind winner = *kindInStyleSheets(*theme, definition.key());
                if (winner == kind)
                    continue;
                report.addAtKey(
                    definition,
                    QStringLiteral("%1 %2 is hidden from style sheets by the %3 of "
                                   "this name (%4)")
                        .arg(nounOf(kind), definition.key(), nounOf(winner),
                             theme->find(winner, definition.key())->keyPlace().shortText()));
            }
        }
    }
}

} // namespace

namespace LintRules
{

extern const LintRule sharedName{
    "shared-name", Severity::Warning,
    "Values of several kinds have one name, and style sheets see one of them.", check};

} // namespace LintRules
