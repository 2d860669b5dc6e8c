// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>
#include <analysis/suggestion.h>

namespace
{

// Why a key that exists is not one for style sheets.
QString hiddenKind(const ThemeProject &input, const QString &key)
{
    for (const ThemeStack *theme : input.allThemes()) {
        if (theme->stored(Kind::Palette).contains(key))
            return QStringLiteral("; it is a palette entry, which only a colour key can bring into "
                                  "style sheets");
        if (theme->stored(Kind::Gradient).contains(key))
            return QStringLiteral("; it is a gradient, and style sheets cannot see gradients");
    }
    return {};
}

QStringList visibleKeys(const ThemeProject &input)
{
    QSet<QString> keys;
    for (const ThemeStack *theme : input.allThemes()) {
        for (const Kind kind : allKinds) {
            if (!isInStyleSheets(kind))
                continue;
            for (auto it = theme->stored(kind).cbegin(); it != theme->stored(kind).cend(); ++it)
                keys.insert(it.key());
        }
    }
    return keys.values();
}

} // namespace

void Rules::undefinedToken(const ThemeProject &input, Report &report)
{
    const Suggestion suggestion(visibleKeys(input));
    for (const TemplateToken &token : input.tokens()) {
        if (isDefined(input, token.key) || keyWithoutUnit(input, token))
            continue;
        const QString hidden = hiddenKind(input, token.key);
        report.addAtTemplate(
            input.templates(), token.offset,
            QStringLiteral("no theme defines %1, and nothing takes its place").arg(token.key)
                % (hidden.isEmpty() ? suggestion.question(token.key) : hidden));
    }
}
