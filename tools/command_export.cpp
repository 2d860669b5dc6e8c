// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <tools/command_export.h>

#include <exchange/designtokens.h>
#include <exchange/formats.h>
#include <hvthemeapp/applicationpalette.h>
#include <tools/commandline.h>
#include <tools/outputfile.h>
#include <tools/outputtext.h>
#include <tools/themeoptions.h>

namespace
{

const QString commandName = QStringLiteral("export");

// Returns nothing, with one sentence in error, if the format has no room for the theme.
std::optional<QByteArray> exported(const ThemeStack &theme, const QString &applicationFolder,
                                   const QString &format, QString *error)
{
    const Exchange::ThemeContent content = Exchange::themeContent(theme);
    if (format == QLatin1String("css"))
        return Exchange::cssProperties(content);
    if (format == QLatin1String("gpl"))
        return Exchange::gimpPalette(content);
    if (format == QLatin1String("palette"))
        return Exchange::paletteFile(HV::applicationPalette(theme.values(applicationFolder)));
    return Exchange::designTokens(content, error);
}

} // namespace

int runExport(const QStringList &arguments)
{
    const QString formatOption = QStringLiteral("format");
    const QString outputOption = QStringLiteral("output");
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Writes a theme in a format of others: design tokens (JSON), CSS custom properties, a\n"
        "colour scheme file for Qt programs as desktops' tools read it, or a palette of GIMP.\n\n"
        "Exit code: 0 done, 2 wrong usage or nothing to read."));
    ThemeOptions::add(&parser);
    parser.addPositionalArgument(QStringLiteral("THEME"), QStringLiteral("The name of the theme."));
    parser.addOption(
        {formatOption, "tokens, css, palette or gpl (default: tokens).", "format", "tokens"});
    parser.addOption({{QStringLiteral("o"), outputOption},
                      "File to write, whole or not at all (default: -, standard output).",
                      "file",
                      "-"});
    if (const std::optional<int> code = parseArguments(parser, commandName, arguments))
        return *code;
    const QString format = parser.value(formatOption);
    const QString output = parser.value(outputOption);
    if (!QStringList{"tokens", "css", "palette", "gpl"}.contains(format))
        return usageError(commandName,
                          QLatin1String("no format is called \"") % format
                              % QLatin1String("\"; there are tokens, css, palette and gpl"));
    if (output.isEmpty())
        return usageError(commandName, QStringLiteral("--output needs the name of a file"));
    const auto project = ThemeOptions::readProject(commandName, parser, {1, 1});
    if (!project)
        return ExitUnusable;

    QString error;
    const auto content = exported(project->theme(parser.positionalArguments().at(1)),
                                  project->options().applicationFolder, format, &error);
    if (content && output == QLatin1String("-"))
        return writeStandardOutput(QString::fromUtf8(*content)) ? ExitDone : ExitUnusable;
    if (content && writeFile(output, *content, ThemeOptions::files(*project), &error))
        return ExitDone;
    printError(error);
    return ExitUnusable;
}
