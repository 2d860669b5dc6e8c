// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

namespace
{

void check(const ThemeProject &project, Report &report)
{
    for (const ThemeStack *theme : project.themes()) {
        const QString key = project.finished(*theme).endlessKey;
        if (key.isNull())
            continue;
        // Only the text of an image file can hold a token; those of the other kinds are formatted.
        const Definition *definition = theme->find(Kind::ImageFile, key);
        if (definition)
            report.addAtValue(*definition,
                              QStringLiteral("the value of %1 brings its own token back, so the "
                                             "substitution never ends")
                                  .arg(key));
    }
}

} // namespace

namespace LintRules
{

extern const LintRule endlessSubstitution{
    "endless-substitution", Severity::Error,
    "A value reproduces its own token, so substitution never ends.", check};

} // namespace LintRules
