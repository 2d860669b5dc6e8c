// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

void Rules::straySeparator(const ThemeProject &input, Report &report)
{
    const QString text = input.templates().text();
    for (const TemplateToken &token : input.tokens()) {
        const bool isFollowed =
            token.end() < text.size() && text.at(token.end()) == QLatin1Char('|');
        if (!isFollowed || token.kind == Kind::Integer)
            continue;
        report.addAtTemplate(input.templates(), token.end(),
                             QStringLiteral("the \"|\" behind the %1 token %2 stays in the style "
                                            "sheet; only integer tokens take it along")
                                 .arg(nounOf(token.kind), token.key));
    }
}
