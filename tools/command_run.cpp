// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <tools/command_run.h>

#include <analysis/theme/themefolder.h>
#include <format/printabletext.h>
#include <format/themepath.h>
#include <tools/commandline.h>
#include <tools/outputtext.h>
#include <tools/themeoptions.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUrlQuery>

#include <cerrno>
#include <unistd.h>

namespace
{

// As shells end when they cannot run a program.
enum ShellExitCode {
    ExitNotExecutable = 126,
    ExitNotFound = 127
};

const char *const pluginVariable = "QT_QPA_GENERIC_PLUGINS";
const char *const pluginPathVariable = "QT_PLUGIN_PATH";

void addOptions(QCommandLineParser *parser)
{
    // What follows the program belongs to the program.
    parser->setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    parser->addPositionalArgument(QStringLiteral("PROGRAM"),
                                  QStringLiteral("The program, by name or path."));
    parser->addPositionalArgument(QStringLiteral("ARGUMENT"), QStringLiteral("Its arguments."),
                                  QStringLiteral("[ARGUMENT...]"));
    parser->addOption({QStringLiteral("theme"), QStringLiteral("Theme to run the program in."),
                       QStringLiteral("name")});
    parser->addOption({QStringLiteral("follow"),
                       QStringLiteral("Dark, light or high contrast as the desktop (default).")});
    parser->addOption({QStringLiteral("themes"),
                       QStringLiteral("Folder of theme files (default: the built-in themes)."),
                       QStringLiteral("dir")});
    parser->addOption(ThemeOptions::suffixOption());
    parser->addOption(ThemeOptions::templatesOption());
    parser->addOption(ThemeOptions::prefixOption());
    parser->addOption({QStringLiteral("no-lift"),
                       QStringLiteral("Leave the program's own text colours as they are.")});
}

QString mistakeInTemplates(const QCommandLineParser &parser)
{
    const QStringList templates = parser.values(ThemeOptions::templatesOption());
    for (const QString &folder : templates) {
        if (!folder.isEmpty() && !QFileInfo(folder).isDir())
            return QLatin1String("--templates: ") % folder
                % QLatin1String(": no such folder, and a program takes templates from folders");
    }
    if (templates.isEmpty() && parser.isSet(ThemeOptions::prefixOption()))
        return QStringLiteral("--prefix is about --templates, which is missing");
    return ThemeOptions::mistakeInTemplates(parser);
}

QString mistakeInThemes(const QCommandLineParser &parser)
{
    const QString theme = parser.value(QStringLiteral("theme"));
    if (!parser.isSet(QStringLiteral("themes"))) {
        if (parser.isSet(ThemeOptions::suffixOption()))
            return QStringLiteral("--suffix is about the files of --themes, which is missing");
        const QStringList names = QStringLiteral(HVTHEME_BUILTIN_THEMES).split(QLatin1Char(','));
        if (theme.isEmpty() || names.contains(theme))
            return {};
        return QLatin1String("no built-in theme is called \"") % theme
            % QLatin1String("\"; there are ") % names.join(QLatin1String(", "))
            % QLatin1String(", or name a folder with --themes");
    }
    QString error = ThemeOptions::mistakeInSuffix(parser);
    if (!error.isEmpty())
        return error;
    const auto folder = ThemeFolder::open(parser.value(QStringLiteral("themes")),
                                          parser.value(ThemeOptions::suffixOption()), &error);
    if (folder && !theme.isEmpty())
        folder->read(theme, &error);
    return error;
}

// What is wrong with the options; empty if nothing is.
QString mistake(const QCommandLineParser &parser)
{
    if (parser.positionalArguments().isEmpty())
        return QStringLiteral("a program is missing");
    if (parser.isSet(QStringLiteral("theme")) && parser.isSet(QStringLiteral("follow")))
        return QStringLiteral("--theme and --follow exclude each other");
    const QString wrong = mistakeInThemes(parser);
    return wrong.isEmpty() ? mistakeInTemplates(parser) : wrong;
}

// The text for the plugin. Commas separate plugins and Qt reads the list as Latin-1, so all that is
// neither a letter nor a digit is encoded.
QByteArray pluginRequest(const QCommandLineParser &parser, bool inspects)
{
    const auto encoded = [](const QString &text) { return QUrl::toPercentEncoding(text); };
    QByteArray text("hvtheme:program=");
    text += encoded(QFileInfo(parser.positionalArguments().constFirst()).fileName());
    if (parser.isSet(QStringLiteral("theme")))
        text += "&theme=" + encoded(parser.value(QStringLiteral("theme")));
    if (parser.isSet(QStringLiteral("themes")))
        text += "&themes=" + encoded(QDir(parser.value(QStringLiteral("themes"))).absolutePath());
    if (parser.isSet(ThemeOptions::suffixOption()))
        text += "&suffix=" + encoded(parser.value(ThemeOptions::suffixOption()));
    const QStringList templates = parser.values(ThemeOptions::templatesOption());
    for (const QString &folder : templates)
        text += "&templates=" + encoded(QDir(folder).absolutePath());
    if (parser.isSet(ThemeOptions::prefixOption()))
        text += "&prefix=" + encoded(parser.value(ThemeOptions::prefixOption()));
    if (parser.isSet(QStringLiteral("no-lift")))
        text += "&lift=no";
    if (inspects)
        text += "&inspect=yes";
    return text;
}

// Adds an entry to a list in the environment, unless it is there. Nothing that stands there goes.
void addToEnvironment(const char *variable, const QByteArray &entry, char separator, bool first)
{
    const QByteArray list = qgetenv(variable);
    if (list.isEmpty())
        qputenv(variable, entry);
    else if (!list.split(separator).contains(entry))
        qputenv(variable, first ? entry + separator + list : list + separator + entry);
}

int execute(const QString &name, char **arguments)
{
    ::execvp(arguments[0], arguments);
    const int error = errno;
    const QString program = QString::fromLocal8Bit(arguments[0]);
    if (error == ENOENT && !QFile::exists(program)) {
        printError(name % QLatin1String(": ") % program % QLatin1String(": no such program"));
        return ExitNotFound;
    }
    printError(name % QLatin1String(": ") % program % QLatin1String(": cannot be executed: ")
               % systemReason(error));
    return error == ENOENT ? ExitNotFound : ExitNotExecutable;
}

int run(const QString &name, const QString &description, int argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);

    QCommandLineParser parser;
    parser.setApplicationDescription(
        description
        % QStringLiteral("\n\n"
                         "Exit code: that of the program; 127 no such program, 126 it cannot be "
                         "executed, 2 wrong\n"
                         "usage, or the plugin that does the work is missing."));
    addOptions(&parser);
    if (const std::optional<int> code = parseArguments(parser, name, arguments))
        return *code;
    const QString error = mistake(parser);
    if (!error.isEmpty())
        return usageError(name, error);

    const QDir folder(
        QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral(HVTHEME_PLUGINS_DIR)));
    const QDir plugins(folder.filePath(QStringLiteral("generic")));
    // There may be one for each version of Qt, of which a program takes that of its own.
    if (plugins.entryList({QStringLiteral("libhvthemeplugin*.so")}, QDir::Files).isEmpty()) {
        const QString plugin = plugins.filePath(QStringLiteral(HVTHEME_PLUGIN_FILE));
        printError(name % QLatin1String(": ") % QDir::cleanPath(plugin)
                   % QLatin1String(": the plugin that themes programs is missing"));
        return ExitUnusable;
    }
    addToEnvironment(pluginPathVariable, QFile::encodeName(QDir::cleanPath(folder.path())), ':',
                     false);
    // Of several entries of this plugin the first counts.
    addToEnvironment(pluginVariable, pluginRequest(parser, name == QLatin1String("inspect")), ',',
                     true);
    return execute(name, argv + (argc - parser.positionalArguments().size()));
}

} // namespace

int runProgram(int argc, char **argv)
{
    return run(
        QStringLiteral("run"),
        QStringLiteral(
            "Runs a program that uses Qt Widgets in a theme; the program need not know of it.\n"
            "Programs that it starts in turn have the theme as well."),
        argc, argv);
}

int inspectProgram(int argc, char **argv)
{
    return run(
        QStringLiteral("inspect"),
        QStringLiteral(
            "Runs a program that uses Qt Widgets, as hvtheme run does, and opens the inspector:\n"
            "point at a widget and see why it looks as it does."),
        argc, argv);
}
