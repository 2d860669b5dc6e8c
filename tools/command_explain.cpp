// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <tools/command_explain.h>

#include <analysis/colorexplanation.h>
#include <analysis/explanation.h>
#include <analysis/ruleexplanation.h>
#include <tools/commandline.h>
#include <tools/explanationtext.h>
#include <tools/outputfile.h>
#include <tools/themeoptions.h>

namespace
{

using Topic = ExplanationStep::Topic;

int write(const QVector<ExplanationStep> &steps, bool isFound)
{
    if (!writeStandardOutput(explanationText(steps)))
        return ExitUnusable;
    return isFound ? ExitDone : ExitFindings;
}

int explainColor(const ThemeProject &project, const ThemeStack &theme, const QString &text)
{
    const QColor color = colorOf(text);
    QVector<ExplanationStep> steps = colorSteps(project, theme, color);
    const bool isFound = !steps.isEmpty();
    if (!isFound) {
        steps.append({Topic::Statement,
                      {},
                      QStringLiteral("Nothing in the theme %1 is %2.").arg(theme.name(), text)});
        const QString nearest = nearestColor(project, theme, color);
        if (!nearest.isEmpty())
            steps.append({Topic::Statement, {}, nearest});
    }
    return write(steps, isFound);
}

int explainSelector(const ThemeProject &project, const ThemeStack &theme, const QString &text)
{
    QString error;
    const std::optional<StyleElement> element = elementOf(text, &error);
    if (!element)
        return usageError(QStringLiteral("explain"), error);
    QVector<ExplanationStep> steps = ruleSteps(project, theme, *element);
    const bool isFound = !steps.isEmpty();
    if (!isFound)
        steps.append({Topic::Statement, {}, QStringLiteral("No rule matches %1.").arg(text)});
    return write(steps, isFound);
}

} // namespace

int runExplain(const QStringList &arguments)
{
    const QString name = QStringLiteral("explain");
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Tells where the value of a key comes from, which definitions of it have no "
                       "effect and\nwhy, and which templates use it. Of a selector it tells which "
                       "rules match, the strongest\nfirst, where their values come from and what "
                       "overrides them; of a colour, which keys,\npalette entries and rules give "
                       "it.\n\n"
                       "Exit code: 0 done, 1 the theme has no such key, rule or colour, 2 wrong "
                       "usage or nothing to\nread."));
    ThemeOptions::add(&parser);
    parser.addPositionalArgument(QStringLiteral("THEME"), QStringLiteral("The name of the theme."));
    parser.addPositionalArgument(
        QStringLiteral("KEY"),
        QStringLiteral("A key without its section, Brand_1; a selector with its states, "
                       "\"QMenu::item:selected\"; or a colour, \"#2449cc\", "
                       "\"#802449cc\"."),
        QStringLiteral("KEY|SELECTOR|COLOR"));
    if (const std::optional<int> code = parseArguments(parser, name, arguments))
        return *code;
    const QStringList positional = parser.positionalArguments();
    if (positional.size() == 2)
        return usageError(name, QStringLiteral("KEY is missing"));
    const auto project = ThemeOptions::readProject(name, parser, {1, 1}, 1);
    if (!project)
        return ExitUnusable;

    const ThemeStack &theme = project->theme(positional.at(1));
    const QString &asked = positional.at(2);
    const Explanation explanation(*project, theme, asked);
    if (!explanation.isDefined() && colorOf(asked).isValid())
        return explainColor(*project, theme, asked);
    if (!explanation.isDefined() && isMeantAsSelector(*project, asked))
        return explainSelector(*project, theme, asked);
    return write(explanation.steps(), explanation.isDefined());
}
