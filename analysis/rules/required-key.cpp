// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>
#include <analysis/suggestion.h>

#include <algorithm>

namespace
{

// The library looks for required gradients among the flags, and that is what it reports by.
Kind searchedKind(Kind kind)
{
    return kind == Kind::Gradient ? Kind::Flag : kind;
}

QString sentence(Kind kind, const QStringList &keys)
{
    if (keys.size() == 1)
        return QStringLiteral("required %1 %2 is not set").arg(nounOf(kind), keys.first());
    return QStringLiteral("%1 required keys of section %2 are not set: %3")
        .arg(QString::number(keys.size()), sectionName(kind), firstOfMany(keys));
}

void reportMissing(const ThemeFile &file, const QHash<QString, int> &stored, Kind kind,
                   const QStringList &missing, const QStringList &required, Report &report)
{
    const Place place{file.path(), sectionPosition(file, kind)};
    const Suggestion suggestion(stored.keys());
    QStringList lost;
    for (const QString &key : missing) {
        const QString near = suggestion.nearest(key);
        if (near.isEmpty() || required.contains(near))
            lost << key;
        else
            report.add(place,
                       sentence(kind, {key}) % QStringLiteral("; is %1 meant for it?").arg(near));
    }
    if (!lost.isEmpty())
        report.add(place, sentence(kind, lost));
}

// What no theme has is missing in the default file; what some themes have, in the others.
void check(const ThemeProject &project, Report &report)
{
    const auto &themes = project.themes();
    for (const Kind kind : allKinds) {
        const QStringList required = project.vocabulary().keys(kind);
        const Kind searched = searchedKind(kind);
        QStringList everywhere;
        for (const QString &key : required) {
            const bool isLacking =
                std::none_of(themes.cbegin(), themes.cend(), [&](const ThemeStack *theme) {
                    return theme->stored(searched).contains(key);
                });
            if (isLacking)
                everywhere << key;
        }
        const ThemeStack &base = project.base();
        reportMissing(base.base().file, base.stored(searched), kind, everywhere, required, report);
        for (const ThemeStack *theme : themes) {
            QStringList missing;
            for (const QString &key : required) {
                if (!theme->stored(searched).contains(key) && !everywhere.contains(key))
                    missing << key;
            }
            const ThemeFile &file = (theme->own() ? *theme->own() : theme->base()).file;
            reportMissing(file, theme->stored(searched), kind, missing, required, report);
        }
    }
}

} // namespace

namespace LintRules
{

extern const LintRule requiredKey{"required-key", Severity::Error, "A required key is not set.",
                                  check};

} // namespace LintRules
