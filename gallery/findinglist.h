// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_FINDINGLIST_H
#define GALLERY_FINDINGLIST_H

#include <analysis/rules/finding.h>

#include <QAbstractTableModel>
#include <QVector>

namespace Gallery
{

/*! \brief What `hvtheme check` finds, one finding a row. */
class FindingList final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column {
        Degree,
        Where,
        What,
        Rule
    };

    using QAbstractTableModel::QAbstractTableModel;

    void setFindings(const QVector<Finding> &findings);
    /*! \brief Shows notes too; without, they are only counted. */
    void setNotesShown(bool shown);

    /*! \brief Returns the finding in row \a index, null for no row. */
    const Finding *findingAt(const QModelIndex &index) const;
    /*! \brief Returns how many there are, shown or not: "2 errors, 1 warning, 3 notes". */
    QString summary() const;
    /*! \brief Returns how many are worse than notes. */
    int weightyCount() const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    int count(Severity severity) const;
    void fill();

    QVector<Finding> m_all;
    QVector<Finding> m_shown;
    bool m_areNotesShown = false;
};

} // namespace Gallery

#endif
