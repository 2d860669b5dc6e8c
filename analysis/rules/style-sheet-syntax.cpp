// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>
#include <analysis/style/styleparser.h>

namespace
{

// The rule in lines of the templates: substitution puts no line ends in, unless a path holds one.
int templateOffset(const ThemeProject &input, const QString &finished, int offset)
{
    const int line = finished.leftRef(offset).count(QLatin1Char('\n'));
    const QString templates = input.templates().text();
    int start = 0;
    for (int i = 0; i < line; ++i)
        start = templates.indexOf(QLatin1Char('\n'), start) + 1;
    const int finishedStart =
        offset == 0 ? 0 : finished.lastIndexOf(QLatin1Char('\n'), offset - 1) + 1;
    const int lineEnd = templates.indexOf(QLatin1Char('\n'), start);
    const int length = (lineEnd < 0 ? templates.size() : lineEnd) - start;
    return start + qMin(offset - finishedStart, length);
}

} // namespace

void Rules::styleSheetSyntax(const ThemeProject &input, Report &report)
{
    for (const ThemeStack *theme : input.themes()) {
        const QString finished = input.finished(*theme).text;
        for (const int offset : StyleParser::rejectedRules(finished))
            report.addAtTemplate(input.templates(), templateOffset(input, finished, offset),
                                 QStringLiteral("Qt cannot parse the style sheet from this rule "
                                                "on, and drops what follows"));
    }
}
