// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <colormath/vision.h>
#include <maker/meanings.h>

#include <QRegularExpression>

#include <algorithm>
#include <limits>
#include <tuple>
#include <vector>

namespace Maker
{

namespace
{

// A key and the tones that it may have.
struct Meaning {
    QString key;
    QStringList texts;
    QVector<int> cost; // steps away from the one it has
};

QVector<QString> meaningKeys(const LookColors &colors)
{
    QVector<QString> keys;
    for (const MeaningPair &pair : meaningPairs()) {
        for (const char *name : {pair.first, pair.second}) {
            const QString key = QString::fromLatin1(name);
            if (!colors.text(key).isEmpty() && !keys.contains(key))
                keys.append(key);
        }
    }
    return keys;
}

Meaning meaningOf(const LookColors &colors, const QString &key, const IsAllowed &isAllowed)
{
    static const QRegularExpression toneName(QStringLiteral("^([A-Z][a-z]+)_(\\d+)$"));
    const QString text = colors.text(key);
    const QRegularExpressionMatch match = toneName.match(text);
    if (!match.hasMatch())
        return {key, {text}, {0}};
    const int own = match.captured(2).toInt();
    Meaning meaning{key, {}, {}};
    for (int step = 1; step <= toneCount; ++step) {
        const QString tone = match.captured(1) % QLatin1Char('_') % QString::number(step);
        if (!isAllowed(key, tone))
            continue;
        meaning.texts.append(tone);
        meaning.cost.append(std::abs(step - own));
    }
    if (meaning.texts.isEmpty())
        return {key, {text}, {0}};
    return meaning;
}

// All ways to choose a tone for each meaning, and the best of them. The distances are measured once
// a pair of tones; the ways are some thousands.
class Choice
{
public:
    Choice(const LookColors &colors, const QVector<Meaning> &meanings)
        : m_meanings(meanings)
        , m_chosen(meanings.size(), 0)
    {
        for (const MeaningPair &pair : meaningPairs()) {
            const int first = indexOf(pair.first);
            const int second = indexOf(pair.second);
            if (first == m_meanings.size() || second == m_meanings.size())
                continue; // the look lacks one of them
            Table table{first, second, {}};
            const auto others = seenTexts(colors, m_meanings.at(second).texts);
            for (const SeenColor &one : seenTexts(colors, m_meanings.at(first).texts)) {
                QVector<double> row;
                for (const SeenColor &other : others)
                    row.append(ColorMath::leastDistance(one, other));
                table.distances.append(row);
            }
            m_tables.append(table);
        }
        choose(0, 0);
    }

    QString text(int meaning) const { return m_meanings.at(meaning).texts.at(m_best.at(meaning)); }
    double distance() const { return m_bestDistance; }

private:
    using SeenColor = std::array<ColorMath::Lab, ColorMath::visionCount>;

    static std::vector<SeenColor> seenTexts(const LookColors &colors, const QStringList &texts)
    {
        std::vector<SeenColor> seen;
        for (const QString &text : texts)
            seen.push_back(ColorMath::seenByAll(colors.resolved(text)));
        return seen;
    }

    struct Table {
        int first;
        int second;
        QVector<QVector<double>> distances;
    };

    int indexOf(const char *key) const
    {
        const auto found =
            std::find_if(m_meanings.cbegin(), m_meanings.cend(),
                         [&](const Meaning &m) { return m.key == QLatin1String(key); });
        return int(found - m_meanings.cbegin());
    }

    double leastDistance() const
    {
        double least = 100;
        for (const Table &table : m_tables)
            least = std::min(
                least, table.distances.at(m_chosen.at(table.first)).at(m_chosen.at(table.second)));
        return least;
    }

    void choose(int meaning, int cost)
    {
        if (meaning == m_meanings.size()) {
            // Enough is enough: beyond the distance asked for, nearness to the sample counts first.
            const double distance = leastDistance();
            const double counted = std::min(distance, meaningDistance);
            const double best = std::min(m_bestDistance, meaningDistance);
            if (std::tie(counted, m_bestCost, distance) > std::tie(best, cost, m_bestDistance)) {
                m_best = m_chosen;
                m_bestDistance = distance;
                m_bestCost = cost;
            }
            return;
        }
        for (int i = 0; i < m_meanings.at(meaning).texts.size(); ++i) {
            m_chosen[meaning] = i;
            choose(meaning + 1, cost + m_meanings.at(meaning).cost.at(i));
        }
    }

    QVector<Meaning> m_meanings;
    QVector<Table> m_tables;
    QVector<int> m_chosen;
    QVector<int> m_best;
    double m_bestDistance = -1;
    int m_bestCost = std::numeric_limits<int>::max();
};

} // namespace

const QVector<MeaningPair> &meaningPairs()
{
    static const QVector<MeaningPair> pairs{
        {"ErrorHintForegroundColor", "Color_Yellow_6"},
        {"ErrorHintForegroundColor", "Color_Green_6"},
        {"ErrorHintForegroundColor", "HighlightedForegroundColor"},
        {"Color_Yellow_6", "Color_Green_6"},
        {"Color_Yellow_6", "HighlightedForegroundColor"},
        {"Color_Green_6", "HighlightedForegroundColor"},
        {"Color_Red_6", "Color_Green_6"}, // the frames of wrong and of right input
    };
    return pairs;
}

bool separateMeanings(LookColors *colors, const IsAllowed &isAllowed)
{
    QVector<Meaning> meanings;
    const QVector<QString> keys = meaningKeys(*colors);
    for (const QString &key : keys)
        meanings.append(meaningOf(*colors, key, isAllowed));
    const Choice choice(*colors, meanings);
    for (int i = 0; i < meanings.size(); ++i)
        colors->setText(meanings.at(i).key, choice.text(i));
    return choice.distance() >= meaningDistance;
}

} // namespace Maker
