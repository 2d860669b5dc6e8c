// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

void Rules::tokenKind(const ThemeProject &input, Report &report)
{
    for (const ThemeStack *theme : input.themes()) {
        for (const TemplateToken &token : input.tokens()) {
            const std::optional<Kind> kind = kindInStyleSheets(*theme, token.key);
            if (!kind || *kind == token.kind)
                continue;
            report.addAtTemplate(input.templates(), token.offset,
                                 QStringLiteral("the token is one for the kind \"%1\", but %2 is "
                                                "of the kind \"%3\", whose text takes its place")
                                     .arg(nounOf(token.kind), token.key, nounOf(*kind)));
        }
    }
}
