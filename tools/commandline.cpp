// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <tools/commandline.h>

#include <tools/outputfile.h>
#include <tools/outputtext.h>

#include <QCoreApplication>

std::optional<int> parseArguments(QCommandLineParser &parser, const QString &name,
                                  const QStringList &arguments)
{
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Show this help."));
    parser.addOption(help);
    if (!parser.parse(QStringList(QLatin1String("hvtheme ") + name) + arguments))
        return usageError(name, parser.errorText());
    if (parser.isSet(help)) {
        // The usage line begins with the program as it was started, and lacks the command.
        QString text = parser.helpText();
        const QString program = QCoreApplication::arguments().constFirst();
        const int start = int(text.indexOf(program));
        if (start >= 0)
            text.replace(start, program.size(), QLatin1String("hvtheme ") + name);
        return writeStandardOutput(text) ? ExitDone : ExitUnusable;
    }
    return std::nullopt;
}

int usageError(const QString &name, const QString &message)
{
    printError(name % QLatin1String(": ") % message % QLatin1String(" (see hvtheme ") % name
               % QLatin1String(" --help)"));
    return ExitUnusable;
}
