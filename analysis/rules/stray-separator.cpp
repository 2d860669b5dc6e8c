// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

namespace
{

void check(const ThemeProject &project, Report &report)
{
    const QString text = project.templates().text();
    for (const TemplateToken &token : project.tokens()) {
        const bool isFollowed =
            token.end() < text.size() && text.at(token.end()) == QLatin1Char(Tokens::separator);
        if (!isFollowed || token.kind == Kind::Integer)
            continue;
        report.addAtTemplate(project.templates(), token.end(),
                             QStringLiteral("the \"|\" behind the %1 token %2 stays in the style "
                                            "sheet; only integer tokens take it along")
                                 .arg(nounOf(token.kind), token.key));
    }
}

} // namespace

namespace LintRules
{

extern const LintRule straySeparator{
    "stray-separator", Severity::Error,
    "A \"|\" behind a colour or image token stays in the style sheet.", check};

} // namespace LintRules
