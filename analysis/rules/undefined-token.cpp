// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>
#include <analysis/suggestion.h>

#include <algorithm>

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

bool hasImages(const ThemeProject &input)
{
    const auto &themes = input.allThemes();
    return std::any_of(themes.cbegin(), themes.cend(), [](const ThemeStack *theme) {
        return !theme->stored(Kind::ImageFile).isEmpty();
    });
}

// The application library draws all images of the built-in templates itself for a theme that names
// none, so such a theme is whole.
bool isDrawnByApplication(const ThemeProject &input, const TemplateToken &token)
{
    return token.kind == Kind::ImageFile
        && input.templates().fileAt(token.offset).input.path().startsWith(QLatin1String(":/"));
}

} // namespace

void Rules::undefinedToken(const ThemeProject &input, Report &report)
{
    const Suggestion suggestion(visibleKeys(input));
    const bool isWithoutImages = !hasImages(input);
    for (const TemplateToken &token : input.tokens()) {
        if (isDefined(input, token.key) || keyWithoutUnit(input, token))
            continue;
        if (isWithoutImages && isDrawnByApplication(input, token))
            continue;
        const QString hidden = hiddenKind(input, token.key);
        report.addAtTemplate(
            input.templates(), token.offset,
            QStringLiteral("no theme defines %1, and nothing takes its place").arg(token.key)
                % (hidden.isEmpty() ? suggestion.question(token.key) : hidden));
    }
}
