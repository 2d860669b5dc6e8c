// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>
#include <tools/findingwriters.h>

#include <QCoreApplication>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>

namespace
{

QString levelOf(Severity severity)
{
    return severity == Severity::Info ? QStringLiteral("note") : severityName(severity);
}

// A relative path stays a relative reference, so that code hosts find the file; what is built into
// the program gets the scheme that Qt has for it.
QString uriOf(const QString &file)
{
    if (file.startsWith(QLatin1String(":/")))
        return QLatin1String("qrc") + file;
    const bool isAbsolute = file.startsWith(QLatin1Char('/'));
    const QString path = QString::fromLatin1(QUrl::toPercentEncoding(file, "/"));
    return isAbsolute ? QLatin1String("file://") + path : path;
}

// The page of a rule, installed beside this program unless the packager named a place in the web.
QString pageOf(const QString &rule)
{
    const QString base = QStringLiteral(HVTHEME_RULES_URL);
    const QString page = rule % QLatin1String(".md");
    if (!base.isEmpty())
        return base % QLatin1Char('/') % page;
    const QDir programs(QCoreApplication::applicationDirPath());
    return QUrl::fromLocalFile(
               QDir::cleanPath(programs.filePath(QStringLiteral(HVTHEME_RULES_DIR "/") % page)))
        .toString(QUrl::FullyEncoded);
}

QJsonArray describedRules()
{
    QJsonArray rules;
    for (const LintRule *rule : allLintRules()) {
        const QString name = QLatin1String(rule->name);
        rules.append(
            QJsonObject{{"id", name},
                        {"shortDescription", QJsonObject{{"text", QLatin1String(rule->summary)}}},
                        {"helpUri", pageOf(name)},
                        {"defaultConfiguration", QJsonObject{{"level", levelOf(rule->severity)}}}});
    }
    return rules;
}

int ruleIndex(const QString &name)
{
    for (int i = 0; i < allLintRules().size(); ++i) {
        if (name == QLatin1String(allLintRules().at(i)->name))
            return i;
    }
    return -1;
}

QJsonObject resultOf(const Finding &finding)
{
    // The format has no line 0, whatever a finding says.
    const QJsonObject region{{"startLine", qMax(1, finding.place.position.line)},
                             {"startColumn", qMax(1, finding.place.position.column)}};
    const QJsonObject place{{"artifactLocation", QJsonObject{{"uri", uriOf(finding.place.file)}}},
                            {"region", region}};
    return {{"ruleId", finding.rule},
            {"ruleIndex", ruleIndex(finding.rule)},
            {"level", levelOf(finding.severity)},
            {"message", QJsonObject{{"text", finding.message}}},
            {"locations", QJsonArray{QJsonObject{{"physicalLocation", place}}}}};
}

} // namespace

QByteArray FindingWriters::sarif(const QVector<Finding> &findings)
{
    QJsonArray results;
    for (const Finding &finding : findings)
        results.append(resultOf(finding));
    const QJsonObject driver{
        {"name", "hvtheme"}, {"version", HVTHEME_VERSION}, {"rules", describedRules()}};
    const QJsonObject run{{"tool", QJsonObject{{"driver", driver}}},
                          {"columnKind", "utf16CodeUnits"},
                          {"results", results}};
    const QJsonObject log{{"$schema", "https://json.schemastore.org/sarif-2.1.0.json"},
                          {"version", "2.1.0"},
                          {"runs", QJsonArray{run}}};
    return QJsonDocument(log).toJson();
}
