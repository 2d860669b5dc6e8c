// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>
#include <analysis/style/styleparser.h>
#include <format/urlpath.h>

namespace
{

// The rule of the same number, if both have as many. Else the one in the same line: substitution
// puts no line ends in, unless a path holds one.
int templateOffset(const ThemeProject &project, const QString &finished,
                   const QVector<StyleRule> &finishedRules, int offset)
{
    const QString templates = project.templates().text();
    const QVector<StyleRule> &rules = project.styleRules().rules();
    if (rules.size() == finishedRules.size()) {
        int at = 0;
        for (int i = 0; i < rules.size() && finishedRules.at(i).end <= offset; ++i)
            at = rules.at(i).end;
        while (at < templates.size() && templates.at(at).isSpace())
            ++at;
        return int(qMin(at, templates.size() - 1));
    }
    const int line = int(finished.left(offset).count(QLatin1Char('\n')));
    int start = 0;
    for (int i = 0; i < line; ++i)
        start = int(templates.indexOf(QLatin1Char('\n'), start) + 1);
    return start;
}

// What a comment swallows that is never closed is told by a rule of its own.
QString withoutOpenComment(const QString &text)
{
    const StyleRules rules(text);
    const bool isOpen = !rules.comments().isEmpty() && !rules.comments().constLast().isClosed;
    return isOpen ? text.left(rules.comments().constLast().start) : text;
}

// What a path breaks is not the templates' fault, and is told by a rule of its own.
QString withReadablePaths(const ThemeProject &project, const ThemeStack &theme)
{
    const ThemeProjectOptions &options = project.options();
    QVariantMap values = theme.values(options.applicationFolder);
    bool isChanged = false;
    for (auto it = values.begin(); it != values.end(); ++it) {
        const bool isPath = kindInStyleSheets(theme, it.key()) == Kind::ImageFile;
        if (!isPath || urlPathFault(it->toString()) < 0)
            continue;
        *it = QStringLiteral("image");
        isChanged = true;
    }
    return isChanged ? finishedStyleSheet(options.prefix, values, project.templates().text()).text
                     : project.finished(theme).text;
}

void check(const ThemeProject &project, Report &report)
{
    if (!StyleParser::isAvailable()) {
        report.addAtTemplate(project.templates(), 0,
                             QStringLiteral("not checked: Qt parses style sheets only in a program "
                                            "with a QGuiApplication"));
        return;
    }
    for (const ThemeStack *theme : project.themes()) {
        const QString finished = withoutOpenComment(withReadablePaths(project, *theme));
        const QVector<int> rejected = StyleParser::rejectedRules(finished);
        const QVector<StyleRule> rules =
            rejected.isEmpty() ? QVector<StyleRule>() : StyleRules(finished).rules();
        for (const int offset : rejected)
            report.addAtTemplate(project.templates(),
                                 templateOffset(project, finished, rules, offset),
                                 QStringLiteral("Qt cannot parse the style sheet from this rule "
                                                "on, and drops what follows"));
    }
}

} // namespace

namespace LintRules
{

extern const LintRule styleSheetSyntax{"style-sheet-syntax", Severity::Error,
                                       "Qt cannot parse the finished style sheet.", check};

} // namespace LintRules
