// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

void Rules::missingValue(const ThemeProject &input, Report &report)
{
    for (const ThemeStack *theme : input.themes()) {
        const ThemeFile &file = (theme->own() ? *theme->own() : theme->base()).file;
        for (const TemplateToken &token : input.tokens()) {
            if (kindInStyleSheets(*theme, token.key) || !isDefined(input, token.key))
                continue;
            report.add(file.path(), sectionPosition(file, token.kind),
                       QStringLiteral("theme %1 has no %2 %3, which templates use and another "
                                      "theme defines")
                           .arg(theme->name(), nounOf(token.kind), token.key));
        }
    }
}
