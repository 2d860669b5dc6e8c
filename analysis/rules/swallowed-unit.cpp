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

std::optional<QString> keyWithoutUnit(const ThemeProject &input, const TemplateToken &token)
{
    if (token.kind != Kind::Integer || isDefined(input, token.key) || !isUnit(token.key.right(2)))
        return std::nullopt;
    const QString key = token.key.chopped(2);
    return isDefined(input, key) ? std::make_optional(key) : std::nullopt;
}

void Rules::swallowedUnit(const ThemeProject &input, Report &report)
{
    for (const TemplateToken &token : input.tokens()) {
        const std::optional<QString> key = keyWithoutUnit(input, token);
        if (!key)
            continue;
        report.addAtTemplate(input.templates(), token.offset,
                             QStringLiteral("%1 is taken for the key and replaced by nothing; "
                                            "write %2|%3")
                                 .arg(token.key, *key, token.key.right(2)));
    }
}
