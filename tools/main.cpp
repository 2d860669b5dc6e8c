// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <tools/command_check.h>
#include <tools/command_diff.h>
#include <tools/command_explain.h>
#include <tools/command_export.h>
#include <tools/command_import.h>
#include <tools/command_new.h>
#include <tools/command_render.h>
#include <tools/command_run.h>
#include <tools/command_sheet.h>
#include <tools/command_values.h>
#include <tools/commandline.h>
#include <tools/outputfile.h>
#include <tools/outputtext.h>

#include <QApplication>

#include <cstdlib>
#include <memory>
#include <vector>

namespace
{

enum class Needs {
    Core, //!< files and settings only
    Widgets, //!< fonts, pictures or style sheets
    Program, //!< the words of the command line byte for byte, for it becomes another program
};

struct Command {
    const char *name;
    const char *summary;
    Needs needs;
    int (*run)(const QStringList &arguments);
    int (*runWords)(int argc, char **argv) = nullptr; //!< for Needs::Program
};

const Command commands[] = {
    {"check", "Report what is wrong with the themes of a folder.", Needs::Widgets, runCheck},
    {"render", "Write the finished style sheet of a theme.", Needs::Core, runRender},
    {"values", "List the values that a theme has in store.", Needs::Core, runValues},
    {"explain", "Tell where a value comes from and what uses it.", Needs::Core, runExplain},
    {"diff", "List the values in which two themes differ.", Needs::Core, runDiff},
    {"new", "Make a folder of themes of one colour.", Needs::Core, runNew},
    {"export", "Write a theme in a format of others.", Needs::Widgets, runExport},
    {"import", "Make a folder of themes of design tokens.", Needs::Core, runImport},
    {"inspect", "Run a program and see why its widgets look as they do.", Needs::Program, nullptr,
     inspectProgram},
    {"run", "Run an unmodified program in a theme.", Needs::Program, nullptr, runProgram},
    {"sheet", "Draw themes side by side, as a picture or a page.", Needs::Widgets, runSheet},
};

QString helpText()
{
    QString text = QStringLiteral("Usage: hvtheme COMMAND [ARGUMENT...]\n"
                                  "Works on folders of theme files and style sheet templates.\n"
                                  "\n"
                                  "Commands:\n");
    for (const Command &command : commands)
        text += QStringLiteral("  %1  %2\n")
                    .arg(QLatin1String(command.name), -8)
                    .arg(QLatin1String(command.summary));
    text += QStringLiteral(
        "\n"
        "Options:\n"
        "  -h, --help     Show this help; hvtheme COMMAND --help for a command.\n"
        "  -v, --version  Show the version.\n"
        "\n"
        "Exit code: 0 done and clean, 1 findings, 2 wrong usage or nothing to read.\n");
    return text;
}

// Qt's chatter about the environment is no report: the commands show what belongs to theirs. What
// ends the program is told, and ends it like any other environment that is of no use.
void ignoreMessage(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type != QtFatalMsg)
        return;
    printError(message.simplified());
    std::_Exit(ExitUnusable);
}

int runCommand(const Command &command, int &argc, char **argv)
{
    const auto previous = qInstallMessageHandler(ignoreMessage);
    std::vector<char *> words(argv + 2, argv + argc + 1); // with the null that ends them
    std::unique_ptr<QCoreApplication> application;
    // Nothing here has a window, and the platform for screens would need one to be there. A program
    // that is to be run must not inherit that.
    if (command.needs == Needs::Widgets) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        application = std::make_unique<QApplication>(argc, argv);
    } else {
        application = std::make_unique<QCoreApplication>(argc, argv);
    }
    const int code = command.needs == Needs::Program
        ? command.runWords(int(words.size()) - 1, words.data())
        : command.run(QCoreApplication::arguments().mid(2));
    application.reset();
    qInstallMessageHandler(previous);
    return code;
}

} // namespace

int main(int argc, char **argv)
{
    const QString name = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString();
    for (const Command &command : commands) {
        if (name == QLatin1String(command.name))
            return runCommand(command, argc, argv);
    }
    if (name == QLatin1String("-h") || name == QLatin1String("--help")) {
        return writeStandardOutput(helpText()) ? ExitDone : ExitUnusable;
    }
    if (name == QLatin1String("-v") || name == QLatin1String("--version")) {
        return writeStandardOutput(QStringLiteral("hvtheme " HVTHEME_VERSION "\n")) ? ExitDone
                                                                                    : ExitUnusable;
    }
    printError(name.isEmpty()
                   ? QStringLiteral("a command is missing (see hvtheme --help)")
                   : QStringLiteral("no command is called \"%1\" (see hvtheme --help)").arg(name));
    return ExitUnusable;
}
