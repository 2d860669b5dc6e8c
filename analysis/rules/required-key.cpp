// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>
#include <analysis/suggestion.h>

namespace
{

// The library looks for required gradients among the flags, and that is what it reports by.
Kind searchedKind(Kind kind)
{
    return kind == Kind::Gradient ? Kind::Flag : kind;
}

void check(const ThemeProject &project, Report &report)
{
    const ThemeStack &base = project.base();
    const ThemeFile &file = base.base().file;
    for (const Kind kind : allKinds) {
        const QHash<QString, int> &stored = base.stored(searchedKind(kind));
        const Suggestion suggestion(stored.keys());
        const QStringList keys = project.vocabulary().keys(kind);
        for (const QString &key : keys) {
            if (stored.contains(key))
                continue;
            const QString near = suggestion.nearest(key);
            report.add({file.path(), sectionPosition(file, kind)},
                       QStringLiteral("required %1 %2 is not set%3")
                           .arg(nounOf(kind), key,
                                near.isEmpty() || keys.contains(near)
                                    ? QString()
                                    : QStringLiteral("; is %1 meant for it?").arg(near)));
        }
    }
}

} // namespace

namespace LintRules
{

extern const LintRule requiredKey{"required-key", Severity::Error, "A required key is not set.",
                                  check};

} // namespace LintRules
