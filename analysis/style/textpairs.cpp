// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/style/textpairs.h>

#include <analysis/style/stylevocabulary.h>

#include <QHash>
#include <QPair>
#include <QSet>

#include <algorithm>
#include <utility>

namespace
{

// Sorted, each once.
using Numbers = QVector<int>;

// Gives words numbers, of which sets are compared faster.
class Words
{
public:
    int number(const QString &word)
    {
        const auto known = m_numbers.constFind(word);
        return known != m_numbers.cend() ? *known : *m_numbers.insert(word, int(m_numbers.size()));
    }

    Numbers numbers(const QStringList &words)
    {
        Numbers numbers;
        for (const QString &word : words)
            numbers.append(number(word));
        std::sort(numbers.begin(), numbers.end());
        numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
        return numbers;
    }

    // What a more general selector may say where this one says the type.
    Numbers typeAndBases(const QString &type)
    {
        const int own = number(type);
        if (!m_bases.contains(own))
            m_bases.insert(own, numbers(StyleVocabulary::typeAndBases(type)));
        return m_bases.value(own);
    }

private:
    QHash<QString, int> m_numbers;
    QHash<int, Numbers> m_bases;
};

struct NumberedStep {
    int type = 0;
    Numbers types; // with the bases
    Numbers conditions;
    bool isChild = false;
};

bool holdsAll(const Numbers &wanted, const Numbers &held)
{
    return std::includes(held.cbegin(), held.cend(), wanted.cbegin(), wanted.cend());
}

bool holds(const NumberedStep &general, const NumberedStep &specific)
{
    return std::binary_search(specific.types.cbegin(), specific.types.cend(), general.type)
        && holdsAll(general.conditions, specific.conditions);
}

Numbers stepConditions(const StyleSelector::Step &step, Words *words)
{
    QStringList conditions;
    for (const QString &id : step.ids)
        conditions << QLatin1Char('#') + id;
    for (const StyleSelector::Attribute &attribute : step.attributes)
        conditions << QStringLiteral("[%1%2").arg(int(attribute.match)).arg(attribute.name)
                % QLatin1Char('=') % attribute.value;
    return words->numbers(conditions);
}

QVector<NumberedStep> stepsOf(const StyleSelector &selector, Words *words)
{
    QVector<NumberedStep> steps;
    for (const StyleSelector::Step &step : selector.steps)
        steps.append({words->number(step.type), words->typeAndBases(step.type),
                      stepConditions(step, words),
                      step.combinator == StyleSelector::Combinator::Child});
    return steps;
}

bool areWherever(const QVector<NumberedStep> &general, const QVector<NumberedStep> &specific)
{
    if (!holds(general.constLast(), specific.constLast()))
        return false;
    int from = int(specific.size() - 1);
    for (int i = int(general.size() - 2); i >= 0; --i) {
        const bool wantsParent = general.at(i + 1).isChild;
        if (wantsParent && (from == 0 || !specific.at(from).isChild))
            return false;
        --from;
        while (from >= 0 && !wantsParent && !holds(general.at(i), specific.at(from)))
            --from;
        if (from < 0 || !holds(general.at(i), specific.at(from)))
            return false;
    }
    return true;
}

QStringList stateListOf(const StyleSelector &selector)
{
    QStringList names;
    const QVector<StyleSelector::Pseudo> states = selector.states();
    for (const StyleSelector::Pseudo &state : states)
        names << state.text().toLower();
    return names;
}

bool showsText(const QString &part)
{
    static const QSet<QString> parts{QString(),
                                     QStringLiteral("item"),
                                     QStringLiteral("section"),
                                     QStringLiteral("tab"),
                                     QStringLiteral("title"),
                                     QStringLiteral("text")};
    return parts.contains(part);
}

bool isTextWidget(const QString &type)
{
    static const QStringList classes{
        "QLabel",      "QAbstractButton",   "QLineEdit", "QTextEdit",  "QPlainTextEdit",
        "QComboBox",   "QAbstractSpinBox",  "QMenu",     "QMenuBar",   "QTabBar",
        "QGroupBox",   "QAbstractItemView", "QToolTip",  "QStatusBar", "QProgressBar",
        "QDockWidget", "QCalendarWidget"};
    const QStringList types = StyleVocabulary::typeAndBases(type);
    for (const QString &name : classes) {
        if (types.contains(name))
            return true;
    }
    return false;
}

bool isPlain(const QString &type)
{
    return type == QLatin1String("*") || type == QLatin1String("QWidget")
        || type == QLatin1String("QFrame");
}

QString settled(const QString &property)
{
    const QString lower = property.toLower();
    return lower == QLatin1String("background") ? QStringLiteral("background-color") : lower;
}

class PairSearch
{
public:
    explicit PairSearch(const StyleRules &rules)
    {
        for (int i = 0; i < rules.rules().size(); ++i) {
            for (const StyleSelector &selector : rules.rules().at(i).selectors)
                add(selector, rules.rules().at(i), i);
        }
        fillBuckets();
    }

    QVector<TextPair> pairs()
    {
        QVector<TextPair> result;
        for (const Entry &entry : qAsConst(m_entries)) {
            const QString type = entry.selector.subject().type;
            const QStringList states = stateListOf(entry.selector);
            if (states.contains(QStringLiteral("disabled"))
                || states.contains(QStringLiteral("!enabled"))
                || !showsText(entry.selector.subControl()))
                continue;
            if (isTextWidget(type) || isPlain(type))
                appendPairs(entry, &result);
        }
        return result;
    }

private:
    struct Value {
        StyleValue value;
        qint64 weight = 0; // of its rule, as Qt compares those of one style sheet
    };
    struct Entry {
        StyleSelector selector;
        QVector<NumberedStep> steps;
        Numbers states;
        QHash<QString, Value> values; // by property
    };
    struct Candidate {
        int entry;
        qint64 weight;
    };
    // The number of a property, then of a sub-control, a type and a demand.
    using BucketKey = QPair<QPair<int, int>, QPair<int, int>>;

    // Equal selectors share an entry, so that templates which repeat themselves cost no more.
    void add(const StyleSelector &selector, const StyleRule &rule, int number)
    {
        static const QSet<QString> wanted{
            QStringLiteral("color"), QStringLiteral("background-color"),
            QStringLiteral("selection-color"), QStringLiteral("selection-background-color")};
        if (!selector.isValid())
            return;
        if (!m_byText.contains(selector.text)) {
            m_byText.insert(selector.text, int(m_entries.size()));
            m_entries.append({selector,
                              stepsOf(selector, &m_words),
                              m_words.numbers(stateListOf(selector)),
                              {}});
        }
        Entry &entry = m_entries[m_byText.value(selector.text)];
        const qint64 weight = number + qint64(selector.specificity()) * 0x100;
        for (const StyleDeclaration &declaration : rule.declarations) {
            const QString property = settled(declaration.property);
            const QString value = declaration.plainValue();
            if (wanted.contains(property) && !value.isEmpty())
                entry.values.insert(property, {{value, declaration.start}, weight});
        }
    }

    // What a selector asks for, and what it has for others that ask: conditions, states, types of
    // ancestors. What is said of ancestors has odd numbers.
    static QSet<int> demands(const Entry &entry)
    {
        QSet<int> demands;
        for (const int condition : entry.steps.constLast().conditions + entry.states)
            demands.insert(condition * 2);
        for (int i = 0; i + 1 < entry.steps.size(); ++i) {
            demands.insert(entry.steps.at(i).type * 2 + 1);
            for (const int condition : entry.steps.at(i).conditions)
                demands.insert(condition * 2 + 1);
        }
        return demands;
    }

    static QSet<int> offers(const Entry &entry)
    {
        QSet<int> offers = demands(entry);
        for (int i = 0; i + 1 < entry.steps.size(); ++i) {
            for (const int type : entry.steps.at(i).types)
                offers.insert(type * 2 + 1);
        }
        return offers;
    }

    // Each entry stands where only those look that have the rarest of what it demands, so that many
    // that differ in some word are not all compared with each other.
    void fillBuckets()
    {
        QHash<int, int> counts;
        for (const Entry &entry : qAsConst(m_entries)) {
            const QSet<int> all = demands(entry);
            for (const int demand : all)
                ++counts[demand];
        }
        for (int i = 0; i < m_entries.size(); ++i) {
            const Entry &entry = m_entries.at(i);
            const QSet<int> all = demands(entry);
            int rarest = noDemand;
            for (const int demand : all) {
                if (rarest == noDemand || counts.value(demand) < counts.value(rarest))
                    rarest = demand;
            }
            const int part = m_words.number(entry.selector.subControl());
            for (auto it = entry.values.cbegin(); it != entry.values.cend(); ++it)
                m_buckets[{{m_words.number(it.key()), part},
                           {entry.steps.constLast().type, rarest}}]
                    .append({i, it->weight});
        }
        for (QVector<Candidate> &bucket : m_buckets)
            std::sort(bucket.begin(), bucket.end(), [](const Candidate &a, const Candidate &b) {
                return std::make_pair(-a.weight, a.entry) < std::make_pair(-b.weight, b.entry);
            });
    }

    // Returns what is in force for a part of the selector's widget; of a part that is not the
    // selector's own nothing is known about its states.
    StyleValue value(const Entry &where, const QString &part, const QString &property)
    {
        const Numbers states = part == where.selector.subControl() ? where.states : Numbers();
        const QPair<int, int> place{m_words.number(property), m_words.number(part)};
        QSet<int> offered = offers(where);
        offered.insert(noDemand);
        Candidate best{-1, -1};
        for (const int type : where.steps.constLast().types) {
            for (const int offer : qAsConst(offered)) {
                const auto bucket = m_buckets.constFind({place, {type, offer}});
                if (bucket != m_buckets.cend())
                    search(*bucket, where, states, &best);
            }
        }
        return best.entry < 0 ? StyleValue() : m_entries.at(best.entry).values[property].value;
    }

    void search(const QVector<Candidate> &bucket, const Entry &where, const Numbers &states,
                Candidate *best) const
    {
        for (const Candidate &candidate : bucket) {
            if (std::make_pair(candidate.weight, -candidate.entry)
                <= std::make_pair(best->weight, -best->entry))
                return;
            const Entry &entry = m_entries.at(candidate.entry);
            if (!holdsAll(entry.states, states) || !areWherever(entry.steps, where.steps))
                continue;
            *best = candidate;
            return;
        }
    }

    void appendPairs(const Entry &entry, QVector<TextPair> *result)
    {
        const QString properties[][2] = {
            {QStringLiteral("color"), QStringLiteral("background-color")},
            {QStringLiteral("selection-color"), QStringLiteral("selection-background-color")}};
        for (const auto &property : properties) {
            if (!entry.values.contains(property[0]) && !entry.values.contains(property[1]))
                continue;
            const TextPair found = pair(entry, property[0], property[1]);
            if (found.foreground.offset >= 0)
                result->append(found);
        }
    }

    TextPair pair(const Entry &entry, const QString &foreground, const QString &background)
    {
        const QString part = entry.selector.subControl();
        TextPair result;
        result.selector = entry.selector;
        result.foreground = value(entry, part, foreground);
        result.backgrounds.append(value(entry, part, background));
        if (!part.isEmpty()) {
            if (result.foreground.offset < 0)
                result.foreground = value(entry, QString(), foreground);
            result.backgrounds.append(value(entry, QString(), background));
        }
        const bool setsBoth =
            entry.values.contains(foreground) && entry.values.contains(background);
        result.drawsText = setsBoth || isTextWidget(entry.selector.subject().type);
        return result;
    }

    static constexpr int noDemand = -1;

    Words m_words;
    QVector<Entry> m_entries;
    QHash<QString, int> m_byText;
    QHash<BucketKey, QVector<Candidate>> m_buckets;
};

} // namespace

QVector<TextPair> textPairs(const StyleRules &rules)
{
    return PairSearch(rules).pairs();
}

bool isWherever(const StyleSelector &general, const StyleSelector &specific)
{
    Words words;
    return areWherever(stepsOf(general, &words), stepsOf(specific, &words));
}
