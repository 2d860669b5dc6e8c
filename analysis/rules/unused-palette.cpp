// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

namespace
{

void check(const ThemeProject &project, Report &report)
{
    // Code may ask for what the application requires.
    const QStringList required = project.vocabulary().keys(Kind::Palette);
    QSet<QString> used(required.cbegin(), required.cend());
    for (const ThemeStack *theme : project.allThemes()) {
        for (const ColorText &color : colorTexts(*theme)) {
            if (color.isResolved)
                used.insert(color.text());
        }
    }
    for (const ThemeStack *theme : project.allThemes()) {
        for (const int index : theme->stored(Kind::Palette)) {
            const Definition &definition = theme->definitions().at(index);
            if (!used.contains(definition.key()))
                report.addAtKey(
                    definition,
                    QStringLiteral("nothing uses the palette entry %1").arg(definition.key()));
        }
    }
}

} // namespace

namespace LintRules
{

extern const LintRule unusedPalette{"unused-palette", Severity::Info,
                                    "Nothing uses a palette entry.", check};

} // namespace LintRules
