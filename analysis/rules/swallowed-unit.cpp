// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>
#include <analysis/suggestion.h>

namespace
{

// What may stand behind a number in a style sheet.
bool isUnit(const QString &text)
{
    static const QStringList units{QStringLiteral("px"), QStringLiteral("pt"), QStringLiteral("em"),
                                   QStringLiteral("ex")};
    return units.contains(text.toLower());
}

} // namespace

std::optional<QString> keyWithoutUnit(const ThemeProject &project, const TemplateToken &token)
{
    if (token.kind != Kind::Integer || isDefined(project, token.key) || !isUnit(token.key.right(2)))
        return std::nullopt;
    const QString key = token.key.chopped(2);
    return isDefined(project, key) ? std::make_optional(key) : std::nullopt;
}
namespace
{

void check(const ThemeProject &project, Report &report)
{
    for (const TemplateToken &token : project.tokens()) {
        const std::optional<QString> key = keyWithoutUnit(project, token);
        if (!key)
            continue;
        report.addAtTemplate(project.templates(), token.offset,
                             QStringLiteral("%1 is taken for the key and replaced by nothing; "
                                            "write %2|%3")
                                 .arg(token.key, *key, token.key.right(2)));
    }
}

} // namespace

namespace LintRules
{

extern const LintRule swallowedUnit{"swallowed-unit", Severity::Error,
                                    "An integer token takes its unit for a part of the key.",
                                    check};

} // namespace LintRules
