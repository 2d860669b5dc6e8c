// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <tools/command_render.h>

#include <format/urlpath.h>
#include <tools/commandline.h>
#include <tools/outputfile.h>
#include <tools/outputtext.h>
#include <tools/themeoptions.h>

#include <QFileInfo>

namespace
{

// An application logs it for every token; once for every image will do.
void reportMissingImages(const ThemeProject &project, const QVariantMap &values)
{
    QStringList keys;
    for (const TemplateToken &token : project.templates().tokens()) {
        if (token.kind == Kind::ImageFile && values.contains(token.key))
            keys << token.key;
    }
    keys.removeDuplicates();
    for (const QString &key : qAsConst(keys)) {
        const QString path = values.value(key).toString();
        if (!QFileInfo::exists(path))
            printError(QLatin1String("image file ") % key % QLatin1String(": ") % path
                       % QLatin1String(" does not exist"));
    }
}

// Once: as a rule it is the application's folder, with which every path begins.
void reportUnreadablePath(const ThemeProject &project, const QVariantMap &values)
{
    for (const TemplateToken &token : project.tokens()) {
        const QString path = values.value(token.key).toString();
        const int fault = token.kind == Kind::ImageFile ? urlPathFault(path) : -1;
        if (fault < 0)
            continue;
        printError(QLatin1String("Qt cannot read \"") % urlPathFaultText(path, fault)
                   % QLatin1String("\" in the path ") % path
                   % QLatin1String(", which stands in url(...) without quotation marks, and drops "
                                   "the style sheet from there on or the image"));
        return;
    }
}

int render(const ThemeProject &project, const ThemeStack &theme, const QString &output)
{
    const FinishedStyleSheet &finished = project.finished(theme);
    if (!finished.endlessKey.isNull()) {
        printError(theme.name() % QLatin1String(": the value of ") % finished.endlessKey
                   % QLatin1String(" leads back to its own token, so the style sheet would never "
                                   "be done; nothing is written"));
        return ExitFindings;
    }
    const QVariantMap values = theme.values(project.options().applicationFolder);
    reportMissingImages(project, values);
    reportUnreadablePath(project, values);

    if (output == QLatin1String("-"))
        return writeStandardOutput(finished.text) ? ExitDone : ExitUnusable;
    QString error;
    if (writeFile(output, finished.text.toUtf8(), ThemeOptions::files(project), &error))
        return ExitDone;
    printError(error);
    return ExitUnusable;
}

} // namespace

int runRender(const QStringList &arguments)
{
    const QString name = QStringLiteral("render");
    const QString outputOption = QStringLiteral("output");
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Writes the finished style sheet: what HV::findStyleSheet() returns in an application\n"
        "that stands in the folder named by --app-dir, as UTF-8. Images that it would not find\n"
        "are told on standard error.\n\n"
        "Exit code: 0 done, 1 a value leads back to its own token, so that substitution would\n"
        "never end, 2 wrong usage or nothing to read."));
    ThemeOptions::add(&parser);
    parser.addPositionalArgument(QStringLiteral("THEME"), QStringLiteral("The name of the theme."));
    parser.addOption({{QStringLiteral("o"), outputOption},
                      "File to write, whole or not at all (default: -, standard output).",
                      "file",
                      "-"});
    if (const std::optional<int> code = parseArguments(parser, name, arguments))
        return *code;
    if (parser.value(outputOption).isEmpty())
        return usageError(name, QStringLiteral("--output needs the name of a file"));
    const auto project = ThemeOptions::readProject(name, parser, {1, 1});
    if (!project)
        return ExitUnusable;
    return render(*project, project->theme(parser.positionalArguments().at(1)),
                  parser.value(outputOption));
}
