// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <tools/findingwriters.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

QByteArray FindingWriters::json(const QVector<Finding> &findings)
{
    QJsonArray list;
    int counts[3] = {};
    for (const Finding &finding : findings) {
        ++counts[int(finding.severity)];
        list.append(QJsonObject{{"file", finding.place.file},
                                {"line", finding.place.position.line},
                                {"column", finding.place.position.column},
                                {"severity", severityName(finding.severity)},
                                {"rule", finding.rule},
                                {"message", finding.message}});
    }
    QJsonObject summary;
    for (const Severity severity : {Severity::Info, Severity::Warning, Severity::Error})
        summary.insert(severityName(severity), counts[int(severity)]);
    return QJsonDocument(QJsonObject{{"findings", list}, {"summary", summary}}).toJson();
}
