// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef TOOLS_TEXTTABLE_H
#define TOOLS_TEXTTABLE_H

#include <QStringList>
#include <QVector>

/*! \brief Rows of text in columns as wide as their widest cell; the last column is not padded. */
class TextTable
{
public:
    explicit TextTable(const QStringList &headings);

    /*! \brief Adds a row; every cell is made printable(). */
    void addRow(const QStringList &cells);

    bool isEmpty() const { return m_rows.size() == 1; }

    /*! \brief Returns the headings and the rows, a line each. */
    QString text() const;

private:
    QVector<QStringList> m_rows;
};

#endif
