// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>
#include <analysis/style/styleparser.h>

namespace
{

// The rule of the same number, if both have as many. Else the one in the same line: substitution
// puts no line ends in, unless a path holds one.
int templateOffset(const ThemeProject &input, const QString &finished,
                   const QVector<StyleRule> &finishedRules, int offset)
{
    const QString templates = input.templates().text();
    const QVector<StyleRule> &rules = input.styleRules().rules();
    if (rules.size() == finishedRules.size()) {
        int at = 0;
        for (int i = 0; i < rules.size() && finishedRules.at(i).end <= offset; ++i)
            at = rules.at(i).end;
        while (at < templates.size() && templates.at(at).isSpace())
            ++at;
        return qMin(at, templates.size() - 1);
    }
    const int line = finished.left(offset).count(QLatin1Char('\n'));
    int start = 0;
    for (int i = 0; i < line; ++i)
        start = templates.indexOf(QLatin1Char('\n'), start) + 1;
    return start;
}

// What a comment swallows that is never closed is told by a rule of its own.
QString withoutOpenComment(const QString &text)
{
    const StyleRules rules(text);
    const bool isOpen = !rules.comments().isEmpty() && !rules.comments().constLast().isClosed;
    return isOpen ? text.left(rules.comments().constLast().start) : text;
}

} // namespace

void Rules::styleSheetSyntax(const ThemeProject &input, Report &report)
{
    for (const ThemeStack *theme : input.themes()) {
        const QString finished = withoutOpenComment(input.finished(*theme).text);
        const QVector<int> rejected = StyleParser::rejectedRules(finished);
        const QVector<StyleRule> rules =
            rejected.isEmpty() ? QVector<StyleRule>() : StyleRules(finished).rules();
        for (const int offset : rejected)
            report.addAtTemplate(input.templates(), templateOffset(input, finished, rules, offset),
                                 QStringLiteral("Qt cannot parse the style sheet from this rule "
                                                "on, and drops what follows"));
    }
}
