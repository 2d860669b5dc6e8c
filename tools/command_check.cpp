// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <tools/command_check.h>

#include <analysis/rules/rules.h>
#include <analysis/themeproject.h>
#include <tools/commandline.h>
#include <tools/findingwriters.h>
#include <tools/outputfile.h>
#include <tools/outputtext.h>
#include <tools/themeoptions.h>

#include <QDir>

#include <algorithm>
#include <limits>

namespace
{

struct Options {
    ThemeProjectOptions project;
    QString format;
    Severity failOn = Severity::Warning;
    QStringList disabledRules;
};

struct KnownOptions {
    const QCommandLineOption vocabulary{
        "vocabulary", "JSON file with the keys that the application requires.", "file"};
    const QCommandLineOption contrast{
        "min-contrast", "Least contrast of text, 1 to 21 (default: 4.5).", "ratio", "4.5"};
    const QCommandLineOption notes{"notes", "Show notes too, and not only count them."};
    const QCommandLineOption format{"format", "text, json or sarif (default: text).", "format",
                                    "text"};
    const QCommandLineOption fail{
        "fail-on",
        "Least severity that gives exit code 1: error, warning or info (default: warning).",
        "severity", "warning"};
    const QCommandLineOption disable{"disable", "Leave a rule out; repeatable.", "rule"};
    const QCommandLineOption rules{"rules", "List all rules and end."};
};

QString ruleList()
{
    QString text;
    for (const LintRule *rule : allLintRules())
        text += QString(QLatin1String(rule->name)).leftJustified(21) % QLatin1Char(' ')
            % severityName(rule->severity).leftJustified(8) % QLatin1Char(' ')
            % QLatin1String(rule->summary) % QLatin1Char('\n');
    return text;
}

bool isRule(const QString &name)
{
    return std::any_of(allLintRules().cbegin(), allLintRules().cend(),
                       [&](const LintRule *rule) { return name == QLatin1String(rule->name); });
}

// Returns what is wrong with the values of the options, or a null text.
QString readOptions(const QCommandLineParser &parser, const KnownOptions &known, Options *options)
{
    const QString folder = options->project.applicationFolder;
    if (!QDir(folder).exists())
        return folder
            % QLatin1String(": no such folder; --app-dir takes that of the application's program");
    options->project.vocabularyFile = parser.value(known.vocabulary);
    bool isNumber = false;
    const double contrast = parser.value(known.contrast).toDouble(&isNumber);
    if (!isNumber || !(contrast >= 1.0 && contrast <= 21.0))
        return QStringLiteral("--min-contrast is a number from 1 to 21");
    options->project.minimalContrast = contrast;

    options->format = parser.value(known.format);
    if (!QStringList({"text", "json", "sarif"}).contains(options->format))
        return QStringLiteral("no format is called \"%1\"; there are text, json and sarif")
            .arg(options->format);
    const QString severity = parser.value(known.fail);
    const int level = int(QStringList({"info", "warning", "error"}).indexOf(severity));
    if (level < 0)
        return QStringLiteral("no severity is called \"%1\"; there are info, warning and error")
            .arg(severity);
    options->failOn = Severity(level);
    options->disabledRules = parser.values(known.disable);
    for (const QString &rule : qAsConst(options->disabledRules)) {
        if (!isRule(rule))
            return QStringLiteral("no rule is called \"%1\"; --rules lists them").arg(rule);
    }
    return {};
}

QByteArray formatted(const QVector<Finding> &findings, const QString &format, bool areNotesShown)
{
    if (format == QLatin1String("json"))
        return FindingWriters::json(findings);
    if (format == QLatin1String("sarif"))
        return FindingWriters::sarif(findings);
    FindingWriters::TextStyle style;
    style.isColored = isColorTerminal();
    style.areNotesShown = areNotesShown;
    return FindingWriters::text(findings, style);
}

int check(const Options &options, bool areNotesShown)
{
    const std::unique_ptr<ThemeProject> project = ThemeOptions::open(options.project);
    if (!project)
        return ExitUnusable;
    const QVector<Finding> findings = runLintRules(*project, options.disabledRules);
    // What fails the check is shown.
    areNotesShown = areNotesShown || options.failOn == Severity::Info;
    if (!writeReport(formatted(findings, options.format, areNotesShown)))
        return ExitUnusable;
    const bool hasFailed =
        std::any_of(findings.cbegin(), findings.cend(),
                    [&](const Finding &finding) { return finding.severity >= options.failOn; });
    return hasFailed ? ExitFindings : ExitDone;
}

} // namespace

int runCheck(const QStringList &arguments)
{
    const QString commandName = QStringLiteral("check");
    const KnownOptions known;
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Reports what is wrong with the themes of a folder, one finding a line, and "
                       "sums it up.\n\n"
                       "Exit code: 0 clean, 1 findings at or above the level of --fail-on, 2 wrong "
                       "usage or\nnothing to read."));
    ThemeOptions::add(&parser);
    parser.addPositionalArgument(QStringLiteral("THEME"),
                                 QStringLiteral("Themes to check (default: all)."),
                                 QStringLiteral("[THEME...]"));
    parser.addOptions({known.vocabulary, known.contrast, known.notes, known.format, known.fail,
                       known.disable, known.rules});
    if (const std::optional<int> code = parseArguments(parser, commandName, arguments))
        return *code;
    if (parser.isSet(known.rules))
        return writeStandardOutput(ruleList()) ? ExitDone : ExitUnusable;

    Options options;
    const auto project =
        ThemeOptions::read(commandName, parser, {0, std::numeric_limits<int>::max()});
    if (!project)
        return ExitUnusable;
    options.project = *project;
    const QString mistake = readOptions(parser, known, &options);
    if (!mistake.isNull())
        return usageError(commandName, mistake);
    return check(options, parser.isSet(known.notes));
}
