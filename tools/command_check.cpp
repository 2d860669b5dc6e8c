// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <tools/command_check.h>

#include <analysis/rules/rules.h>
#include <analysis/themeproject.h>
#include <tools/commandline.h>
#include <tools/findingwriters.h>
#include <tools/outputtext.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <algorithm>
#include <cstdio>

namespace
{

struct Options {
    ThemeProjectOptions check;
    QString format;
    Severity failOn = Severity::Warning;
    QStringList disabledRules;
};

struct KnownOptions {
    const QCommandLineOption suffix{
        "suffix", "Suffix of theme files, without the dot (default: theme).", "suffix", "theme"};
    const QCommandLineOption templates{
        "templates",
        "Style sheet templates, a folder or a file; repeatable (default: the built-in ones).",
        "dir|file"};
    const QCommandLineOption prefix{"prefix", "Prefix of tokens (default: global).", "prefix",
                                    "global"};
    const QCommandLineOption folder{
        "app-dir",
        "The application's folder, which image paths start from (default: this program's).", "dir"};
    const QCommandLineOption vocabulary{
        "vocabulary", "JSON file with the keys that the application requires.", "file"};
    const QCommandLineOption contrast{
        "min-contrast", "Least contrast of text, 1 to 21 (default: 4.5).", "ratio", "4.5"};
    const QCommandLineOption format{"format", "text, json or sarif (default: text).", "format",
                                    "text"};
    const QCommandLineOption fail{
        "fail-on",
        "Least severity that gives exit code 1: error, warning or info (default: warning).",
        "severity", "warning"};
    const QCommandLineOption disable{"disable", "Leave a rule out; repeatable.", "rule"};
    const QCommandLineOption rules{"rules", "List all rules and end."};
};

void listRules()
{
    for (const Rule &rule : allRules())
        std::printf("%-21s %-8s %s\n", rule.name, qPrintable(severityName(rule.severity)),
                    rule.summary);
}

bool isRule(const QString &name)
{
    return std::any_of(allRules().cbegin(), allRules().cend(),
                       [&](const Rule &rule) { return name == QLatin1String(rule.name); });
}

// Returns what is wrong with the values of the options, or a null text.
QString readOptions(const QCommandLineParser &parser, const KnownOptions &known, Options *options)
{
    ThemeProjectOptions &check = options->check;
    check.folder = parser.positionalArguments().value(0);
    check.themes = parser.positionalArguments().mid(1);
    check.suffix = parser.value(known.suffix);
    if (parser.isSet(known.templates))
        check.templates = parser.values(known.templates);
    check.prefix = parser.value(known.prefix);
    static const QRegularExpression word(QStringLiteral("^[A-Za-z0-9_]+$"));
    if (!word.match(check.prefix).hasMatch())
        return QStringLiteral("a prefix is made of letters, digits and underscores");
    check.applicationFolder = parser.isSet(known.folder)
        ? QDir(parser.value(known.folder)).absolutePath()
        : QCoreApplication::applicationDirPath();
    if (!QDir(check.applicationFolder).exists())
        return check.applicationFolder + QLatin1String(": no such folder");
    check.vocabularyFile = parser.value(known.vocabulary);
    bool isNumber = false;
    check.minimalContrast = parser.value(known.contrast).toDouble(&isNumber);
    if (!isNumber || !(check.minimalContrast >= 1.0 && check.minimalContrast <= 21.0))
        return QStringLiteral("a contrast is a number from 1 to 21");

    options->format = parser.value(known.format);
    if (!QStringList({"text", "json", "sarif"}).contains(options->format))
        return QStringLiteral("no format is called \"%1\"").arg(options->format);
    const QString severity = parser.value(known.fail);
    const int level = QStringList({"info", "warning", "error"}).indexOf(severity);
    if (level < 0)
        return QStringLiteral("no severity is called \"%1\"").arg(severity);
    options->failOn = Severity(level);
    options->disabledRules = parser.values(known.disable);
    for (const QString &rule : qAsConst(options->disabledRules)) {
        if (!isRule(rule))
            return QStringLiteral("no rule is called \"%1\" (see --rules)").arg(rule);
    }
    return {};
}

QByteArray formatted(const QVector<Finding> &findings, const QString &format)
{
    if (format == QLatin1String("json"))
        return FindingWriters::json(findings);
    if (format == QLatin1String("sarif"))
        return FindingWriters::sarif(findings);
    return FindingWriters::text(findings, isColorTerminal());
}

} // namespace

int runCheck(const QStringList &arguments)
{
    const QString commandName = QStringLiteral("check");
    const KnownOptions known;
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Reports what is wrong with the themes of a folder, one finding a line.\n\n"
                       "Exit code: 0 clean, 1 findings at or above the level of --fail-on, 2 wrong "
                       "usage or\nnothing to read."));
    parser.addPositionalArgument(QStringLiteral("FOLDER"),
                                 QStringLiteral("Folder with a default theme file."));
    parser.addPositionalArgument(QStringLiteral("THEME"),
                                 QStringLiteral("Themes to check (default: all)."),
                                 QStringLiteral("[THEME...]"));
    parser.addOptions({known.suffix, known.templates, known.prefix, known.folder, known.vocabulary,
                       known.contrast, known.format, known.fail, known.disable, known.rules});
    if (const std::optional<int> code = parseArguments(parser, commandName, arguments))
        return *code;
    if (parser.isSet(known.rules)) {
        listRules();
        return ExitDone;
    }
    if (parser.positionalArguments().isEmpty())
        return usageError(commandName, QStringLiteral("a folder is missing"));
    Options options;
    const QString mistake = readOptions(parser, known, &options);
    if (!mistake.isNull())
        return usageError(commandName, mistake);

    QString error;
    const std::unique_ptr<ThemeProject> input = ThemeProject::read(options.check, &error);
    if (!input) {
        printError(error);
        return ExitUnusable;
    }
    const QVector<Finding> findings = runRules(*input, options.disabledRules);
    QFile output;
    output.open(stdout, QIODevice::WriteOnly);
    output.write(formatted(findings, options.format));
    const bool hasFailed =
        std::any_of(findings.cbegin(), findings.cend(),
                    [&](const Finding &finding) { return finding.severity >= options.failOn; });
    return hasFailed ? ExitFindings : ExitDone;
}
