// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <tools/themeoptions.h>

#include <analysis/theme/storedvalues.h>
#include <format/themepath.h>
#include <tools/commandline.h>
#include <tools/outputtext.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

namespace
{

QString applicationOption()
{
    return QStringLiteral("app-dir");
}

QString builtInOption()
{
    return QStringLiteral("no-builtin");
}

// As QCoreApplication::applicationDirPath() would give it: absolute, without symbolic links.
QString applicationFolder(const QString &folder)
{
    const QFileInfo info(folder);
    const QString canonical = info.canonicalFilePath();
    return canonical.isEmpty() ? QDir::cleanPath(info.absoluteFilePath()) : canonical;
}

// Other prefixes are regular expressions to the library. Whether substitution ends with those
// cannot be told in advance.
bool isWord(const QString &prefix)
{
    static const QRegularExpression word(
        QRegularExpression::anchoredPattern(QStringLiteral("\\w+")));
    return word.match(prefix).hasMatch();
}

} // namespace

QCommandLineOption ThemeOptions::suffixOption()
{
    return {QStringLiteral("suffix"), "Suffix of theme files, without the dot (default: theme).",
            "suffix", defaultThemeSuffix()};
}

QCommandLineOption ThemeOptions::templatesOption()
{
    return {QStringLiteral("templates"),
            "Style sheet templates behind the built-in ones, a folder or a file; repeatable.",
            "dir|file"};
}

QCommandLineOption ThemeOptions::prefixOption()
{
    return {QStringLiteral("prefix"), "Prefix of tokens (default: global).", "prefix", "global"};
}

QString ThemeOptions::mistakeInSuffix(const QCommandLineParser &parser)
{
    const QString suffix = parser.value(suffixOption());
    if (suffix.isEmpty())
        return QStringLiteral("--suffix needs a text");
    if (suffix.contains(QLatin1Char('/')))
        return QLatin1String("--suffix: \"") % suffix
            % QLatin1String("\" cannot be the end of a file name");
    return {};
}

QString ThemeOptions::mistakeInTemplates(const QCommandLineParser &parser)
{
    if (parser.values(templatesOption()).contains(QString()))
        return QStringLiteral("--templates needs the name of a folder or file");
    if (!isWord(parser.value(prefixOption())))
        return QStringLiteral("a prefix is made of letters, digits and underscores");
    return {};
}

void ThemeOptions::add(QCommandLineParser *parser)
{
    parser->addPositionalArgument("FOLDER", "Folder with the theme files.");
    parser->addOption(suffixOption());
    parser->addOption(
        {applicationOption(),
         "The application's folder, which image paths start from (default: this program's).",
         "dir"});
    parser->addOption(templatesOption());
    parser->addOption({builtInOption(), "Leave the built-in templates out."});
    parser->addOption(prefixOption());
}

std::optional<ThemeProjectOptions> ThemeOptions::read(const QString &name,
                                                      const QCommandLineParser &parser,
                                                      QPair<int, int> themes, int others)
{
    const QStringList arguments = parser.positionalArguments();
    ThemeProjectOptions options;
    options.folder = arguments.value(0);
    options.themes = arguments.mid(1, themes.second);
    options.suffix = parser.value(suffixOption());
    options.applicationFolder = parser.isSet(applicationOption())
        ? applicationFolder(parser.value(applicationOption()))
        : QCoreApplication::applicationDirPath();
    if (parser.isSet(builtInOption()))
        options.templates.clear();
    options.templates += parser.values(templatesOption());
    options.prefix = parser.value(prefixOption());

    QString mistake;
    if (options.folder.isEmpty())
        mistake = QStringLiteral("FOLDER is missing");
    else if (options.themes.size() < themes.first)
        mistake = QStringLiteral("the name of a theme is missing");
    else if (arguments.size() - 1 - others > themes.second)
        mistake = QLatin1String("one argument too many: ") % arguments.constLast();
    else if (parser.isSet(applicationOption()) && parser.value(applicationOption()).isEmpty())
        mistake = QStringLiteral("--app-dir needs the name of a folder");
    else if (options.templates.isEmpty())
        mistake = QStringLiteral("--no-builtin leaves no templates: name some with --templates");
    for (const QString &each : {mistakeInTemplates(parser), mistakeInSuffix(parser)}) {
        if (mistake.isEmpty())
            mistake = each;
    }
    if (mistake.isEmpty())
        return options;
    usageError(name, mistake);
    return std::nullopt;
}

std::unique_ptr<ThemeProject> ThemeOptions::open(const ThemeProjectOptions &options)
{
    QString error;
    std::unique_ptr<ThemeProject> project = ThemeProject::read(options, &error);
    if (!project)
        printError(error);
    return project;
}

std::unique_ptr<ThemeProject> ThemeOptions::readProject(const QString &name,
                                                        const QCommandLineParser &parser,
                                                        QPair<int, int> themes, int others)
{
    const std::optional<ThemeProjectOptions> options = read(name, parser, themes, others);
    return options ? open(*options) : nullptr;
}

QStringList ThemeOptions::files(const ThemeProject &project)
{
    QStringList files;
    for (const auto &layer : project.layers())
        files << layer->file.path();
    for (const TemplateText::File &file : project.templates().files())
        files << file.input.path();
    for (const ThemeStack *theme : project.allThemes()) {
        const auto images =
            storedValues(*theme, project.options().applicationFolder, Kind::ImageFile);
        for (const StoredValue &image : images)
            files << image.value.toString();
    }
    return files;
}
