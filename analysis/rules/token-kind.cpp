// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

namespace
{

void check(const ThemeProject &project, Report &report)
{
    for (const ThemeStack *theme : project.themes()) {
        for (const TemplateToken &token : project.tokens()) {
            const std::optional<Kind> kind = kindInStyleSheets(*theme, token.key);
            if (!kind || *kind == token.kind)
                continue;
            report.addAtTemplate(project.templates(), token.offset,
                                 QStringLiteral("the token is one for the kind \"%1\", but %2 is "
                                                "of the kind \"%3\", whose text takes its place")
                                     .arg(nounOf(token.kind), token.key, nounOf(*kind)));
        }
    }
}

} // namespace

namespace LintRules
{

extern const LintRule tokenKind{"token-kind", Severity::Warning,
                                "A token names a key of another kind.", check};

} // namespace LintRules
