// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>
#include <analysis/suggestion.h>

#include <QHash>

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

QVector<TemplateToken> undefinedTokens(const ThemeProject &project)
{
    const bool isWithoutImages = !hasImages(project);
    QVector<TemplateToken> tokens;
    for (const TemplateToken &token : project.tokens()) {
        if (!isDefined(project, token.key) && !keyWithoutUnit(project, token)
            && !isGivenByApplication(project, token, isWithoutImages))
            tokens.append(token);
    }
    return tokens;
}

// A theme that was not asked for may well define the key.
QString whoDefinesNot(const ThemeProject &project)
{
    QStringList named = project.options().themes;
    named.removeDuplicates();
    if (named.isEmpty())
        return QStringLiteral("no theme defines ");
    if (named.size() == 1)
        return named.constFirst() % QLatin1String(" does not define ");
    return QLatin1String("none of ") % named.join(QLatin1String(", ")) % QLatin1String(" defines ");
}

// A token of somebody's own template is a mistake in its place. Those of the built-in templates are
// right, and what they have in common is the key that the themes lack.
void check(const ThemeProject &project, Report &report)
{
    const Suggestion suggestion(visibleKeys(project));
    const QVector<TemplateToken> tokens = undefinedTokens(project);
    QHash<QString, int> builtInCounts;
    for (const TemplateToken &token : tokens)
        builtInCounts[token.key] += isBuiltInTemplate(project, token.offset) ? 1 : 0;
    for (const TemplateToken &token : tokens) {
        QString count;
        if (isBuiltInTemplate(project, token.offset)) {
            const int number = builtInCounts.take(token.key);
            if (number == 0) // told with the first
                continue;
            if (number > 1)
                count = QStringLiteral(" (%1 tokens of the built-in templates)").arg(number);
        }
        const QString hidden = hiddenKind(project, token.key);
        report.addAtTemplate(
            project.templates(), token.offset,
            whoDefinesNot(project) % token.key % QLatin1String(", and nothing takes its place")
                % (hidden.isEmpty() ? suggestion.question(token.key) : hidden) % count);
    }
}

} // namespace

namespace LintRules
{

extern const LintRule undefinedToken{"undefined-token", Severity::Error,
                                     "No theme defines the key of a token.", check};

} // namespace LintRules
