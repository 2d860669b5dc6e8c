// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>
#include <analysis/suggestion.h>

namespace
{

QString objection(const QString &text, const Suggestion &suggestion)
{
    if (text.isEmpty())
        return QStringLiteral("the colour is empty; black is stored");
    const QString sentence = QStringLiteral("\"%1\" is neither a palette entry nor a hexadecimal "
                                            "colour; black is stored")
                                 .arg(text);
    const QString near = suggestion.nearest(text);
    if (near.isEmpty() && QColor::isValidColor(text))
        return sentence + QStringLiteral("; in digits it would be %1").arg(QColor(text).name());
    return sentence + suggestion.question(text);
}

void check(const ThemeProject &project, Report &report)
{
    for (const ThemeStack *theme : project.allThemes()) {
        const Suggestion suggestion(storedKeys(*theme, Kind::Palette));
        for (const ColorText &color : colorTexts(*theme)) {
            // Commas and order have rules of their own, which say more.
            if (color.isResolved || isHexadecimalColor(color.text()) || color.isList()
                || color.isNamedTooEarly(*theme))
                continue;
            report.addAtColor(color, objection(color.text(), suggestion));
        }
    }
}

} // namespace

namespace LintRules
{

extern const LintRule invalidColor{
    "invalid-color", Severity::Error,
    "A colour text is neither a palette entry nor a hexadecimal colour.", check};

} // namespace LintRules
