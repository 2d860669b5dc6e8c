// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/style/textpairs.h>

#include <analysis/style/stylevocabulary.h>

#include <QHash>
#include <QSet>

namespace
{

// More conditions than these on one selector would make too many combinations to look up.
constexpr int conditionLimit = 10;

QString bucketName(const QString &part, const QString &type, const QStringList &conditions)
{
    return part % QLatin1Char('\n') % type % QLatin1Char('\n') % conditions.join(QLatin1Char('\n'));
}

QStringList stepConditions(const StyleSelector::Step &step)
{
    QStringList conditions;
    for (const QString &id : step.ids)
        conditions << QLatin1Char('#') + id;
    for (const StyleSelector::Attribute &attribute : step.attributes)
        conditions << QStringLiteral("[%1%2").arg(int(attribute.match)).arg(attribute.name)
                % QLatin1Char('=') % attribute.value;
    conditions.sort();
    return conditions;
}

QStringList stateListOf(const StyleSelector &selector)
{
    QStringList names;
    const QVector<StyleSelector::Pseudo> states = selector.states();
    for (const StyleSelector::Pseudo &state : states)
        names << state.text().toLower();
    names.sort();
    return names;
}

QStringList allConditions(const StyleSelector &selector)
{
    QStringList conditions = stepConditions(selector.subject());
    const QStringList states = stateListOf(selector);
    for (const QString &state : states)
        conditions << QLatin1Char(':') + state;
    return conditions.mid(0, conditionLimit);
}

bool holds(const StyleSelector::Step &general, const StyleSelector::Step &specific)
{
    if (general.type != QLatin1String("*") && general.type != specific.type
        && !StyleVocabulary::typeAndBases(specific.type).contains(general.type))
        return false;
    const QStringList held = stepConditions(specific);
    const QStringList wanted = stepConditions(general);
    return std::all_of(wanted.cbegin(), wanted.cend(),
                       [&held](const QString &condition) { return held.contains(condition); });
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
    }

    QVector<TextPair> pairs() const
    {
        QVector<TextPair> result;
        for (const Entry &entry : m_entries) {
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
    struct Entry {
        StyleSelector selector;
        int weight = 0; // as Qt compares rules of one style sheet
        QHash<QString, StyleValue> values; // by property
    };

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
            m_buckets[bucketName(selector.subControl(), selector.subject().type,
                                 allConditions(selector))]
                .append(int(m_entries.size()));
            m_entries.append({selector, 0, {}});
        }
        Entry &entry = m_entries[m_byText.value(selector.text)];
        entry.weight = number + selector.specificity() * 0x100;
        for (const StyleDeclaration &declaration : rule.declarations) {
            const QString property = settled(declaration.property);
            if (wanted.contains(property))
                entry.values.insert(property, {declaration.value, declaration.start});
        }
    }

    StyleValue value(const StyleSelector &where, const QString &part, const QStringList &conditions,
                     const QString &property) const
    {
        const QStringList types = StyleVocabulary::typeAndBases(where.subject().type);
        const Entry *best = nullptr;
        for (uint chosen = 0; chosen < 1U << uint(conditions.size()); ++chosen) {
            QStringList subset;
            for (int i = 0; i < conditions.size(); ++i) {
                if (chosen & (1U << uint(i)))
                    subset << conditions.at(i);
            }
            for (const QString &type : types) {
                const QVector<int> bucket = m_buckets.value(bucketName(part, type, subset));
                for (const int index : bucket) {
                    const Entry &entry = m_entries.at(index);
                    if (entry.values.contains(property) && isWherever(entry.selector, where)
                        && (!best || entry.weight > best->weight))
                        best = &entry;
                }
            }
        }
        return best ? best->values.value(property) : StyleValue();
    }

    void appendPairs(const Entry &entry, QVector<TextPair> *result) const
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

    TextPair pair(const Entry &entry, const QString &foreground, const QString &background) const
    {
        const StyleSelector &selector = entry.selector;
        const QString part = selector.subControl();
        const QStringList conditions = allConditions(selector);
        TextPair result;
        result.selector = selector;
        result.foreground = value(selector, part, conditions, foreground);
        result.backgrounds.append(value(selector, part, conditions, background));
        if (!part.isEmpty()) {
            const QStringList ofWidget = stepConditions(selector.subject());
            if (result.foreground.offset < 0)
                result.foreground = value(selector, QString(), ofWidget, foreground);
            result.backgrounds.append(value(selector, QString(), ofWidget, background));
        }
        const bool setsBoth =
            entry.values.contains(foreground) && entry.values.contains(background);
        result.drawsText = setsBoth || isTextWidget(selector.subject().type);
        return result;
    }

    QVector<Entry> m_entries;
    QHash<QString, int> m_byText;
    QHash<QString, QVector<int>> m_buckets;
};

} // namespace

QVector<TextPair> textPairs(const StyleRules &rules)
{
    return PairSearch(rules).pairs();
}

bool isWherever(const StyleSelector &general, const StyleSelector &specific)
{
    const auto isChild = [](const StyleSelector::Step &step) {
        return step.combinator == StyleSelector::Combinator::Child;
    };
    if (!holds(general.subject(), specific.subject()))
        return false;
    int from = int(specific.steps.size() - 1);
    for (int i = int(general.steps.size() - 2); i >= 0; --i) {
        const bool wantsParent = isChild(general.steps.at(i + 1));
        if (wantsParent && (from == 0 || !isChild(specific.steps.at(from))))
            return false;
        --from;
        while (from >= 0 && !wantsParent && !holds(general.steps.at(i), specific.steps.at(from)))
            --from;
        if (from < 0 || !holds(general.steps.at(i), specific.steps.at(from)))
            return false;
    }
    return true;
}
