// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <tools/command_explain.h>

#include <analysis/explanation.h>
#include <tools/commandline.h>
#include <tools/explanationtext.h>
#include <tools/outputfile.h>
#include <tools/themeoptions.h>

int runExplain(const QStringList &arguments)
{
    const QString name = QStringLiteral("explain");
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Tells where the value of a key comes from, which definitions of it have no "
                       "effect and\nwhy, and which templates use it.\n\n"
                       "Exit code: 0 done, 1 the theme has no such key, 2 wrong usage or nothing "
                       "to read."));
    ThemeOptions::add(&parser);
    parser.addPositionalArgument(QStringLiteral("THEME"), QStringLiteral("The name of the theme."));
    parser.addPositionalArgument(QStringLiteral("KEY"),
                                 QStringLiteral("The key, without its section: Brand_1."));
    if (const std::optional<int> code = parseArguments(parser, name, arguments))
        return *code;
    const QStringList positional = parser.positionalArguments();
    if (positional.size() == 2)
        return usageError(name, QStringLiteral("KEY is missing"));
    const auto input = ThemeOptions::readProject(name, parser, {1, 1}, 1);
    if (!input)
        return ExitUnusable;

    const Explanation explanation(*input, input->theme(positional.at(1)), positional.at(2));
    if (!writeStandardOutput(explanationText(explanation.steps())))
        return ExitUnusable;
    return explanation.isDefined() ? ExitDone : ExitFindings;
}
