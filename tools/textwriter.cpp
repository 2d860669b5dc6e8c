// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <tools/findingwriters.h>

#include <format/printabletext.h>

#include <QByteArrayList>

#include <algorithm>

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

const char *nounOf(Severity severity)
{
    switch (severity) {
    case Severity::Info:
        return "note";
    case Severity::Warning:
        return "warning";
    case Severity::Error:
        break;
    }
    return "error";
}

// "2 errors", or nothing.
QByteArrayList counted(const QVector<Finding> &findings, Severity severity)
{
    const auto count =
        std::count_if(findings.cbegin(), findings.cend(),
                      [&](const Finding &finding) { return finding.severity == severity; });
    if (count == 0)
        return {};
    return {QByteArray::number(qlonglong(count)) + ' ' + nounOf(severity)
            + (count == 1 ? "" : "s")};
}

QByteArray summary(const QVector<Finding> &findings, bool areNotesShown)
{
    QByteArrayList shown =
        counted(findings, Severity::Error) + counted(findings, Severity::Warning);
    const QByteArrayList notes = counted(findings, Severity::Info);
    if (areNotesShown)
        shown += notes;
    if (findings.isEmpty())
        return "no findings\n";
    QByteArray line = shown.isEmpty() ? QByteArray("no errors or warnings") : shown.join(", ");
    if (!areNotesShown && !notes.isEmpty())
        line += "; " + notes.join() + ", see --notes";
    return line + '\n';
}

} // namespace

QByteArray FindingWriters::text(const QVector<Finding> &findings, TextStyle style)
{
    QByteArray result;
    for (const Finding &finding : findings) {
        if (finding.severity == Severity::Info && !style.areNotesShown)
            continue;
        const QByteArray severity = severityName(finding.severity).toUtf8();
        result += printable(finding.place.text()).toUtf8() + ": ";
        result += style.isColored ? colorOf(finding.severity) + severity + "\033[0m" : severity;
        result += ": " + printable(finding.message).toUtf8() + " [" + finding.rule.toUtf8() + "]\n";
    }
    return result + summary(findings, style.areNotesShown);
}
