// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "reportmodel.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPixmap>

namespace Gallery
{

namespace
{

constexpr QSize sampleSize(34, 20);

QPixmap sampleOf(const ReportRow &row)
{
    const qreal ratio = qGuiApp->devicePixelRatio();
    QPixmap sample(sampleSize * ratio);
    sample.setDevicePixelRatio(ratio);
    sample.fill(row.ground);
    QPainter painter(&sample);
    if (row.sample == ReportRow::Sample::Halves) {
        painter.fillRect(0, 0, sampleSize.width() / 2, sampleSize.height(), row.foreground);
        return sample;
    }
    QFont font = painter.font();
    font.setPixelSize(14);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(row.foreground);
    painter.drawText(QRect(QPoint(0, 0), sampleSize), Qt::AlignCenter, QStringLiteral("Aa"));
    return sample;
}

} // namespace

ReportModel::ReportModel(const QStringList &headers, QObject *parent)
    : QAbstractTableModel(parent)
    , m_headers(headers)
{
}

void ReportModel::setRows(const QVector<ReportRow> &rows)
{
    if (rows.size() == m_rows.size()) { // so that a view stays where it is scrolled to
        m_rows = rows;
        if (!rows.isEmpty())
            Q_EMIT dataChanged(index(0, 0), index(int(rows.size()) - 1, columnCount() - 1));
        return;
    }
    beginResetModel();
    m_rows = rows;
    endResetModel();
}

int ReportModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int ReportModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_headers.size());
}

QVariant ReportModel::data(const QModelIndex &index, int role) const
{
    const ReportRow &row = m_rows.at(index.row());
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole) // what is cut can be read all the same
        return QStringList{row.first, row.second, row.has, row.needs}.value(index.column());
    if (role == Qt::DecorationRole && index.column() == 0)
        return sampleOf(row);
    return {};
}

QVariant ReportModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return m_headers.value(section);
}

} // namespace Gallery
