// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

namespace
{

void check(const ThemeProject &project, Report &report)
{
    for (const ThemeStack *theme : project.allThemes()) {
        for (const ColorText &color : colorTexts(*theme)) {
            if (!color.isNamedTooEarly(*theme))
                continue;
            const Definition *entry = theme->find(Kind::Palette, color.text());
            const bool isItself = entry->entry() == color.entry;
            const QString taken = isHexadecimalColor(color.text())
                ? QStringLiteral("the text is read as digits")
                : QStringLiteral("black is stored");
            report.addAtColor(
                color,
                isItself
                    ? QStringLiteral("palette entry %1 names itself; %2").arg(color.text(), taken)
                    : QStringLiteral("palette entry %1 (%2) is stored only after this "
                                     "colour; %3")
                          .arg(color.text(), entry->keyPlace().shortText(), taken));
        }
    }
}

} // namespace

namespace LintRules
{

extern const LintRule paletteOrder{"palette-order", Severity::Error,
                                   "A palette entry is named before it is stored.", check};

} // namespace LintRules
