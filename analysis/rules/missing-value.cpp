// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

namespace
{

void check(const ThemeProject &project, Report &report)
{
    for (const ThemeStack *theme : project.themes()) {
        const ThemeFile &file = (theme->own() ? *theme->own() : theme->base()).file;
        for (const TemplateToken &token : project.tokens()) {
            if (kindInStyleSheets(*theme, token.key) || !isDefined(project, token.key))
                continue;
            report.add({file.path(), sectionPosition(file, token.kind)},
                       QStringLiteral("theme %1 has no %2 %3, which templates use and another "
                                      "theme defines")
                           .arg(theme->name(), nounOf(token.kind), token.key));
        }
    }
}

} // namespace

namespace LintRules
{

extern const LintRule missingValue{
    "missing-value", Severity::Warning,
    "A theme lacks a value that templates use and other themes have.", check};

} // namespace LintRules
