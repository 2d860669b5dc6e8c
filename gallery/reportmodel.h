// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_REPORTMODEL_H
#define GALLERY_REPORTMODEL_H

#include <QAbstractTableModel>
#include <QColor>
#include <QVector>

namespace Gallery
{

/*! \brief Two colours, what lies between them, and what should. */
struct ReportRow {
    enum class Sample {
        Text, //!< the foreground as a text on the ground
        Halves, //!< side by side
    };

    QString first;
    QString second;
    QString has;
    QString needs;
    QColor foreground;
    QColor ground;
    Sample sample;
};

/*! \brief A table of ReportRow, with a sample in its first column. */
class ReportModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    ReportModel(const QStringList &headers, QObject *parent);

    void setRows(const QVector<ReportRow> &rows);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    const QStringList m_headers;
    QVector<ReportRow> m_rows;
};

} // namespace Gallery

#endif
