// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

#include <QFileInfo>

namespace
{

void check(const ThemeProject &project, Report &report)
{
    const ThemeFile &base = project.base().base().file;
    const ThemeFileEntry *name = base.find(QStringLiteral("ThemeName"));
    for (const ThemeStack *theme : project.themes()) {
        if (theme->isOwnRead())
            continue;
        report.add({base.path(), name ? name->valuePosition : TextPosition{1, 1}},
                   QStringLiteral("the display name equals the name of %1, so the library takes "
                                  "this theme for it and never reads that file; give "
                                  "this one another ThemeName, such as Default")
                       .arg(QFileInfo(theme->own()->file.path()).fileName()));
    }
}

} // namespace

namespace LintRules
{

extern const LintRule themeNeverRead{
    "theme-never-read", Severity::Error,
    "The default file's display name keeps a theme's file from being read.", check};

} // namespace LintRules
