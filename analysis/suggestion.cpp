// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/suggestion.h>

#include <QVector>

#include <algorithm>

namespace
{

// Text that misses hundreds of different names was written for another theme, not misspelt; to
// compare each of them with every name would take time with the square of their number.
constexpr int searchLimit = 200;

// What is longer was not typed, and to compare it takes time with the square of its length.
constexpr int longestName = 256;

// The optimal string alignment distance.
int distance(const QString &a, const QString &b)
{
    QVector<int> beforeLast(b.size() + 1);
    QVector<int> last(b.size() + 1);
    QVector<int> row(b.size() + 1);
    for (int j = 0; j <= b.size(); ++j)
        last[j] = j;
    for (int i = 1; i <= a.size(); ++i) {
        row[0] = i;
        for (int j = 1; j <= b.size(); ++j) {
            const int change = a.at(i - 1) == b.at(j - 1) ? 0 : 1;
            row[j] = std::min({last.at(j) + 1, row.at(j - 1) + 1, last.at(j - 1) + change});
            const bool isSwap =
                i > 1 && j > 1 && a.at(i - 1) == b.at(j - 2) && a.at(i - 2) == b.at(j - 1);
            if (isSwap)
                row[j] = std::min(row.at(j), beforeLast.at(j - 2) + 1);
        }
        beforeLast.swap(last);
        last.swap(row);
    }
    return last.last();
}

} // namespace

Suggestion::Suggestion(const QStringList &names)
    : m_names(names)
{
    std::sort(m_names.begin(), m_names.end());
    for (const QString &name : qAsConst(m_names))
        m_byFoldedName.insert(name.toCaseFolded(), name);
}

QString Suggestion::nearest(const QString &misspelt) const
{
    QString folded = m_byFoldedName.value(misspelt.toCaseFolded());
    if (!folded.isEmpty())
        return folded;
    const auto known = m_known.constFind(misspelt);
    if (known != m_known.cend())
        return *known;
    if (m_known.size() >= searchLimit || misspelt.size() > longestName)
        return {};

    QString best;
    int bestDistance = int(qBound(1, misspelt.size() / 4, 3) + 1);
    for (const QString &name : m_names) {
        if (qAbs(name.size() - misspelt.size()) >= bestDistance)
            continue;
        const int found = distance(misspelt, name);
        if (found < bestDistance) {
            bestDistance = found;
            best = name;
        }
    }
    m_known.insert(misspelt, best);
    return best;
}

QString Suggestion::question(const QString &misspelt) const
{
    const QString name = nearest(misspelt);
    return name.isEmpty() ? QString()
                          : QString(QLatin1String("; did you mean ") + name + QLatin1Char('?'));
}
