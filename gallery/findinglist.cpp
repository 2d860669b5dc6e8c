// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "findinglist.h"

#include <format/printabletext.h>

#include <algorithm>
#include <iterator>

namespace Gallery
{

namespace
{

QString counted(int count, const QString &noun)
{
    return QStringLiteral("%1 %2%3").arg(count).arg(noun,
                                                    count == 1 ? QString() : QStringLiteral("s"));
}

QString nameOf(Severity severity)
{
    return severity == Severity::Info ? QStringLiteral("note") : severityName(severity);
}

} // namespace

void FindingList::setFindings(const QVector<Finding> &findings)
{
    m_all = findings;
    fill();
}

void FindingList::setNotesShown(bool shown)
{
    m_areNotesShown = shown;
    fill();
}

// The worst first; of those the order stays that of files and lines.
void FindingList::fill()
{
    beginResetModel();
    m_shown.clear();
    for (const Severity severity : {Severity::Error, Severity::Warning, Severity::Info}) {
        if (severity == Severity::Info && !m_areNotesShown)
            continue;
        std::copy_if(m_all.cbegin(), m_all.cend(), std::back_inserter(m_shown),
                     [=](const Finding &finding) { return finding.severity == severity; });
    }
    endResetModel();
}

int FindingList::count(Severity severity) const
{
    return int(std::count_if(m_all.cbegin(), m_all.cend(),
                             [=](const Finding &finding) { return finding.severity == severity; }));
}

int FindingList::weightyCount() const
{
    return int(m_all.size()) - count(Severity::Info);
}

QString FindingList::summary() const
{
    QStringList parts;
    for (const Severity severity : {Severity::Error, Severity::Warning, Severity::Info}) {
        if (const int found = count(severity))
            parts.append(counted(found, nameOf(severity)));
    }
    if (weightyCount() == 0)
        parts.prepend(QStringLiteral("No errors, no warnings"));
    return parts.join(QStringLiteral(", "));
}

const Finding *FindingList::findingAt(const QModelIndex &index) const
{
    return index.isValid() && index.row() < m_shown.size() ? &m_shown.at(index.row()) : nullptr;
}

int FindingList::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_shown.size());
}

int FindingList::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : Rule + 1;
}

QVariant FindingList::data(const QModelIndex &index, int role) const
{
    const Finding *finding = findingAt(index);
    if (finding == nullptr || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
        return {};
    switch (index.column()) {
    case Degree:
        return nameOf(finding->severity);
    case Where:
        return finding->place.file.isEmpty() ? QString()
            : role == Qt::ToolTipRole        ? printable(finding->place.text())
                                             : printable(finding->place.shortText());
    case What:
        return printable(finding->message);
    default:
        return finding->rule;
    }
}

QVariant FindingList::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return QStringList{QStringLiteral("Severity"), QStringLiteral("Where"), QStringLiteral("What"),
                       QStringLiteral("Rule")}
        .value(section);
}

} // namespace Gallery
