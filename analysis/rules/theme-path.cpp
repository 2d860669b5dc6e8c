// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

namespace
{

void check(const ThemeProject &project, Report &report)
{
    const ThemeProjectOptions &options = project.options();
    for (const auto &layer : project.layers()) {
        const QString opened = openedThemeFilePath(options.folder, layer->name, options.suffix);
        if (layer->file.path() == opened
            || layer->file.path() != themeFilePath(options.folder, layer->name, options.suffix))
            continue;
        report.add({layer->file.path(), {1, 1}},
                   QStringLiteral("the library fills in the placeholder in this path, opens "
                                  "%1 instead, and never reads this file; rename "
                                  "the folder or the theme")
                       .arg(opened));
        // The folder's name is one cause for all of its files, the first of which is this one.
        if (opened == openedThemeFilePath(options.folder, defaultThemeName(), options.suffix))
            return;
    }
}

} // namespace

namespace LintRules
{

extern const LintRule themePath{"theme-path", Severity::Error,
                                "A \"%1\" in the path keeps a theme file from being read.", check};

} // namespace LintRules
