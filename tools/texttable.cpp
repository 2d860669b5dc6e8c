// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <tools/texttable.h>

#include <format/printabletext.h>

TextTable::TextTable(const QStringList &headings)
    : m_rows{headings}
{
}

void TextTable::addRow(const QStringList &cells)
{
    QStringList row;
    for (const QString &cell : cells)
        row << printable(cell);
    m_rows.append(row);
}

QString TextTable::text() const
{
    QVector<int> widths(m_rows.constFirst().size());
    for (const QStringList &row : m_rows) {
        for (int column = 0; column < row.size(); ++column)
            widths[column] = qMax(widths.at(column), int(row.at(column).size()));
    }

    QString text;
    for (const QStringList &row : m_rows) {
        QString line;
        for (int column = 0; column < row.size(); ++column)
            line += row.at(column).leftJustified(widths.at(column)) % QLatin1String("  ");
        while (line.endsWith(QLatin1Char(' ')))
            line.chop(1);
        text += line % QLatin1Char('\n');
    }
    return text;
}
