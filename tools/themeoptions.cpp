// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <tools/themeoptions.h>

#include <tools/commandline.h>
#include <tools/outputtext.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <limits>

namespace
{

QString suffixOption()
{
    return QStringLiteral("suffix");
}

QString applicationOption()
{
    return QStringLiteral("app-dir");
}

QString templatesOption()
{
    return QStringLiteral("templates");
}

QString prefixOption()
{
    return QStringLiteral("prefix");
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

void ThemeOptions::add(QCommandLineParser *parser)
{
    parser->addPositionalArgument("FOLDER", "Folder with the theme files.");
    parser->addOption({suffixOption(), "Suffix of theme files, without the dot (default: theme).",
                       "suffix", "theme"});
    parser->addOption(
        {applicationOption(),
         "The application's folder, which image paths start from (default: this program's).",
         "dir"});
}

void ThemeOptions::addTemplates(QCommandLineParser *parser)
{
    parser->addOption(
        {templatesOption(),
         "Style sheet templates, a folder or a file; repeatable (default: the built-in ones).",
         "dir|file"});
    parser->addOption({prefixOption(), "Prefix of tokens (default: global).", "prefix", "global"});
}

std::unique_ptr<ThemeProject> ThemeOptions::read(const QString &name,
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
    if (parser.optionNames().contains(templatesOption()))
        options.templates = parser.values(templatesOption());
    if (parser.optionNames().contains(prefixOption()))
        options.prefix = parser.value(prefixOption());

    QString error;
    if (options.folder.isEmpty())
        error = QStringLiteral("FOLDER is missing");
    else if (options.themes.size() < themes.first)
        error = QStringLiteral("the name of a theme is missing");
    else if (arguments.size() > 1 + themes.second + others)
        error = QLatin1String("one argument too many: ") % arguments.constLast();
    else if (!isWord(options.prefix))
        error = QStringLiteral("a prefix is made of letters, digits and underscores");
    if (!error.isEmpty()) {
        usageError(name, error);
        return nullptr;
    }

    std::unique_ptr<ThemeProject> input = ThemeProject::read(options, &error);
    if (!input)
        printError(error);
    return input;
}
