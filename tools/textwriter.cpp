// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <tools/findingwriters.h>
#include <tools/outputtext.h>

namespace
{

const char *colorOf(Severity severity)
{
    switch (severity) {
    case Severity::Info:
        return "\033[36m";
    case Severity::Warning:
        return "\033[35m";
    case Severity::Error:
        break;
    }
    return "\033[31m";
}

} // namespace

QByteArray FindingWriters::text(const QVector<Finding> &findings, bool color)
{
    QByteArray result;
    for (const Finding &finding : findings) {
        const QByteArray severity = severityName(finding.severity).toUtf8();
        result += printable(finding.file).toUtf8() + ':' + QByteArray::number(finding.position.line)
            + ':' + QByteArray::number(finding.position.column) + ": ";
        result += color ? colorOf(finding.severity) + severity + "\033[0m" : severity;
        result += ": " + printable(finding.message).toUtf8() + " [" + finding.rule.toUtf8() + "]\n";
    }
    return result;
}
