// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

namespace
{

QStringList missingKeys(const ThemeProject &project, const ThemeStack &theme, Kind kind)
{
    QStringList keys;
    for (const TemplateToken &token : project.tokens()) {
        if (token.kind == kind && !keys.contains(token.key) && isDefined(project, token.key)
            && !kindInStyleSheets(theme, token.key)
            && !isGivenByApplication(project, token, theme.stored(Kind::ImageFile).isEmpty()))
            keys << token.key;
    }
    return keys;
}

QString sentence(const ThemeStack &theme, Kind kind, const QStringList &keys)
{
    if (keys.size() == 1)
        return QStringLiteral(
                   "theme %1 has no %2 %3, which templates use and another theme defines")
            .arg(theme.name(), nounOf(kind), keys.constFirst());
    return QStringLiteral("theme %1 lacks %2 keys of section %3, which templates use and another "
                          "theme defines: %4")
        .arg(theme.name(), QString::number(keys.size()), sectionName(kind), firstOfMany(keys));
}

void check(const ThemeProject &project, Report &report)
{
    for (const ThemeStack *theme : project.themes()) {
        const ThemeFile &file = (theme->own() ? *theme->own() : theme->base()).file;
        for (const Kind kind : allKinds) {
            const QStringList keys = missingKeys(project, *theme, kind);
            if (!keys.isEmpty())
                report.add({file.path(), sectionPosition(file, kind)},
                           sentence(*theme, kind, keys));
        }
    }
}

} // namespace

namespace LintRules
{

extern const LintRule missingValue{
    "missing-value", Severity::Warning,
    "A theme lacks a value that templates use and other themes have.", check};

} // namespace LintRules
