// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>
#include <analysis/suggestion.h>
#include <format/applicationkeys.h>

#include <algorithm>

namespace
{

// Why a key that exists is not one for style sheets.
QString hiddenKind(const ThemeProject &project, const QString &key)
{
    for (const ThemeStack *theme : project.allThemes()) {
        if (theme->stored(Kind::Palette).contains(key))
            return QStringLiteral("; it is a palette entry, which only a colour key can bring into "
                                  "style sheets");
        if (theme->stored(Kind::Gradient).contains(key))
            return QStringLiteral("; it is a gradient, and style sheets cannot see gradients");
    }
    return {};
}

QStringList visibleKeys(const ThemeProject &project)
{
    QSet<QString> keys;
    for (const ThemeStack *theme : project.allThemes()) {
        for (const Kind kind : allKinds) {
            if (!isInStyleSheets(kind))
                continue;
            for (auto it = theme->stored(kind).cbegin(); it != theme->stored(kind).cend(); ++it)
                keys.insert(it.key());
        }
    }
    return keys.values();
}

bool hasImages(const ThemeProject &project)
{
    const auto &themes = project.allThemes();
    return std::any_of(themes.cbegin(), themes.cend(), [](const ThemeStack *theme) {
        return !theme->stored(Kind::ImageFile).isEmpty();
    });
}

// The application library draws all images of the built-in templates itself for a theme that names
// none, and has colours in place of the optional ones, so such a theme is whole.
bool isGivenByApplication(const ThemeProject &project, const TemplateToken &token,
                          bool isWithoutImages)
{
    const bool isGiven = (token.kind == Kind::ImageFile && isWithoutImages)
        || (token.kind == Kind::Color && isOptionalColor(token.key));
    return isGiven
        && project.templates().fileAt(token.offset).input.path().startsWith(QLatin1String(":/"));
}

void check(const ThemeProject &project, Report &report)
{
    const Suggestion suggestion(visibleKeys(project));
    const bool isWithoutImages = !hasImages(project);
    for (const TemplateToken &token : project.tokens()) {
        if (isDefined(project, token.key) || keyWithoutUnit(project, token))
            continue;
        if (isGivenByApplication(project, token, isWithoutImages))
            continue;
        const QString hidden = hiddenKind(project, token.key);
        report.addAtTemplate(
            project.templates(), token.offset,
            QStringLiteral("no theme defines %1, and nothing takes its place").arg(token.key)
                % (hidden.isEmpty() ? suggestion.question(token.key) : hidden));
    }
}

} // namespace

namespace LintRules
{

extern const LintRule undefinedToken{"undefined-token", Severity::Error,
                                     "No theme defines the key of a token.", check};

} // namespace LintRules
