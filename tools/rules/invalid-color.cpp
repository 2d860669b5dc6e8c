// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <tools/rules/rules.h>
#include <tools/suggestion.h>

namespace
{

QString reason(const QString &text, const Suggestion &suggestion)
{
    if (text.isEmpty())
        return QStringLiteral("the colour is empty");
    QString sentence =
        QStringLiteral("\"%1\" is neither a palette entry nor a hexadecimal colour").arg(text);
    const QString near = suggestion.nearest(text);
    if (!near.isEmpty())
        return sentence + QStringLiteral("; did you mean %1?").arg(near);
    // setNamedColor() complains of what it does not know, isValidColor() does not.
    if (QColor::isValidColor(text))
        return sentence + QStringLiteral("; as digits it is %1").arg(QColor(text).name());
    return sentence;
}

} // namespace

void Rules::invalidColor(const CheckInput &input, Report &report)
{
    for (const ThemeStack *theme : input.allThemes()) {
        const Suggestion suggestion(storedKeys(*theme, Kind::Palette));
        for (const ColorText &color : colorTexts(*theme)) {
            // Commas and order have rules of their own, which say more.
            if (color.isResolved || isHexadecimalColor(color.text()) || color.isList()
                || color.isNamedTooEarly(*theme))
                continue;
            report.addAtColor(
                color, reason(color.text(), suggestion) + QStringLiteral(", black is stored"));
        }
    }
}
