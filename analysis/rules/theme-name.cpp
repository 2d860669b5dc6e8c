// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

namespace
{

void check(const ThemeProject &project, Report &report)
{
    const ThemeLayer &base = project.base().base();
    for (const auto &layer : project.layers()) {
        if (layer->values.hasDisplayName)
            continue;
        const bool isNamed = layer.get() != &base && base.values.hasDisplayName;
        report.add(
            {layer->file.path(), {1, 1}},
            QStringLiteral("no ThemeName: the theme is called \"%1\"")
                .arg(isNamed ? base.values.displayName.toString() : QStringLiteral("unnamed")));
    }
}

} // namespace

namespace LintRules
{

extern const LintRule themeName{"theme-name", Severity::Warning, "A theme file has no ThemeName.",
                                check};

} // namespace LintRules
