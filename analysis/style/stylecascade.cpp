// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/style/stylecascade.h>

#include <QSet>

namespace
{

// More conditions than these on one selector would make too many combinations to look up.
constexpr int conditionLimit = 10;

QString bucketName(const QString &part, const QString &type, const QStringList &conditions)
{
    return part % QLatin1Char('\n') % type % QLatin1Char('\n') % conditions.join(QLatin1Char('\n'));
}

QStringList conditionsIn(const StyleSelector &selector)
{
    QStringList conditions = selector.subject().attributes;
    for (const QString &state : selector.states)
        conditions << QLatin1Char(':') + state;
    return conditions.mid(0, conditionLimit);
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
    const QStringList types = typeAndBases(type);
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

} // namespace

StyleCascade::StyleCascade(const StyleRules &rules)
{
    for (const StyleRule &rule : rules.rules())
        add(rule);
}

// Equal selectors share an entry, so that templates which repeat themselves cost no more.
void StyleCascade::add(const StyleRule &rule)
{
    static const QSet<QString> wanted{QStringLiteral("color"), QStringLiteral("background-color"),
                                      QStringLiteral("selection-color"),
                                      QStringLiteral("selection-background-color")};
    const QStringList selectors = rule.selector.split(QLatin1Char(','));
    for (const QString &text : selectors) {
        const QString name = text.simplified();
        if (!m_byText.contains(name)) {
            const StyleSelector selector = StyleSelector::parsed(name);
            if (selector.steps.isEmpty())
                continue;
            m_byText.insert(name, m_entries.size());
            m_buckets[bucketName(selector.part, selector.subject().type, conditionsIn(selector))]
                .append(m_entries.size());
            m_entries.append({selector, 0, {}});
        }
        Entry &entry = m_entries[m_byText.value(name)];
        entry.order = rule.start;
        for (const StyleDeclaration &declaration : rule.declarations) {
            const QString property = settled(declaration.property);
            if (wanted.contains(property))
                entry.values.insert(property, {declaration.value, declaration.start});
        }
    }
}

StyleValue StyleCascade::value(const StyleSelector &where, const QString &property) const
{
    const QStringList conditions = conditionsIn(where);
    const QStringList types = typeAndBases(where.subject().type);
    const Entry *best = nullptr;
    const auto beats = [](const Entry &entry, const Entry &other) {
        const int difference = entry.selector.specificity() - other.selector.specificity();
        return difference != 0 ? difference > 0 : entry.order > other.order;
    };
    for (uint chosen = 0; chosen < 1U << uint(conditions.size()); ++chosen) {
        QStringList subset;
        for (int i = 0; i < conditions.size(); ++i) {
            if (chosen & (1U << uint(i)))
                subset << conditions.at(i);
        }
        for (const QString &type : types) {
            const QVector<int> bucket = m_buckets.value(bucketName(where.part, type, subset));
            for (const int index : bucket) {
                const Entry &entry = m_entries.at(index);
                if (entry.values.contains(property) && isWherever(entry.selector.steps, where.steps)
                    && (!best || beats(entry, *best)))
                    best = &entry;
            }
        }
    }
    return best ? best->values.value(property) : StyleValue();
}

StylePair StyleCascade::pair(const Entry &entry, const QString &foreground,
                             const QString &background) const
{
    StylePair result;
    result.selector = entry.selector;
    result.foreground = value(entry.selector, foreground);
    result.backgrounds.append(value(entry.selector, background));
    if (!entry.selector.part.isEmpty()) {
        StyleSelector widget = entry.selector;
        widget.part.clear();
        widget.states.clear();
        if (result.foreground.offset < 0)
            result.foreground = value(widget, foreground);
        result.backgrounds.append(value(widget, background));
    }
    const QString type = entry.selector.subject().type;
    const bool setsBoth = entry.values.contains(foreground) && entry.values.contains(background);
    result.drawsText = setsBoth || isTextWidget(type);
    return result;
}

QVector<StylePair> StyleCascade::pairs() const
{
    const QString properties[][2] = {
        {QStringLiteral("color"), QStringLiteral("background-color")},
        {QStringLiteral("selection-color"), QStringLiteral("selection-background-color")}};
    QVector<StylePair> result;
    for (const Entry &entry : m_entries) {
        const QString type = entry.selector.subject().type;
        const bool isDisabled = entry.selector.states.contains(QStringLiteral("disabled"))
            || entry.selector.states.contains(QStringLiteral("!enabled"));
        if (isDisabled || !showsText(entry.selector.part))
            continue;
        if (!isTextWidget(type) && !isPlain(type))
            continue;
        for (const auto &property : properties) {
            if (!entry.values.contains(property[0]) && !entry.values.contains(property[1]))
                continue;
            const StylePair found = pair(entry, property[0], property[1]);
            if (found.foreground.offset >= 0)
                result.append(found);
        }
    }
    return result;
}
