// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/style/stylecascade.h>

#include <analysis/style/stylerules.h>
#include <analysis/style/stylevocabulary.h>

#include <QMap>
#include <QSet>

#include <algorithm>
#include <optional>
#include <tuple>

namespace
{

// As Qt weighs them: each of these steps outweighs a few hundred of the one before, not any number.
constexpr int specificityWeight = 0x100;
constexpr int sheetWeight = 0x100000;

// Qt keeps rules that end in a name, in a class and in neither apart, which decides between equals.
enum class Subject {
    Class,
    Name,
    Any
};

struct Candidate {
    const StyleSelector *selector = nullptr;
    const StyleRule *rule = nullptr;
    int weight = 0;
    Subject subject = Subject::Any;
    int order = 0; // among equals

    bool operator<(const Candidate &other) const
    {
        return std::tie(weight, subject, order)
            < std::tie(other.weight, other.subject, other.order);
    }
};

Candidate candidate(const StyleSelector &selector, const StyleRule &rule, int number,
                    const StyleNode &node)
{
    Candidate result{&selector, &rule, number + selector.specificity() * specificityWeight,
                     Subject::Any, -number};
    const StyleSelector::Step &subject = selector.subject();
    if (!subject.ids.isEmpty()) {
        result.subject = Subject::Name;
        result.order = number;
    } else if (subject.type != QLatin1String("*")) {
        result.subject = Subject::Class;
        result.order = number - int(node.classes.indexOf(subject.type)) * sheetWeight;
    }
    return result;
}

bool isBare(const QString &styleSheet)
{
    return !styleSheet.contains(QLatin1Char('{'));
}

StyleMatch match(const StyleDeclaration &declaration, const StyleSelector &selector)
{
    StyleMatch result;
    result.property = declaration.property.toLower();
    result.value = declaration.plainValue();
    result.isImportant = declaration.isImportant();
    result.selector = selector.text;
    result.specificity = selector.specificity();
    result.offset = declaration.start;
    return result;
}

} // namespace

class StyleCascade::Sheet
{
public:
    explicit Sheet(const TemplateText &templates)
        : m_templates(templates)
        , m_text(templates.text())
        , m_rules(m_text)
    {
    }

    // Without a brace it is what a widget may have: declarations for it and all in it.
    explicit Sheet(const QString &text)
        : m_opening(isBare(text) ? QStringLiteral("*{") : QString())
        , m_text(m_opening % text)
        , m_rules(m_text)
    {
    }

    const QVector<StyleRule> &rules() const { return m_rules.rules(); }

    // Adds what matches the path's first object, the strongest first.
    void collect(const StyleElement &element, QVector<StyleMatch> *matches) const
    {
        QVector<Candidate> candidates;
        for (int number = 0; number < rules().size(); ++number) {
            const StyleRule &rule = rules().at(number);
            for (const StyleSelector &selector : rule.selectors) {
                if (selector.isValid() && matchesObject(selector, element.path)
                    && matchesState(selector, element))
                    candidates.append(candidate(selector, rule, number, element.path.constFirst()));
            }
        }
        std::sort(candidates.begin(), candidates.end());
        const StyleRule *last = nullptr;
        for (auto it = candidates.crbegin(); it != candidates.crend(); ++it) {
            if (it->rule != last) // its declarations are told once, for the strongest selector
                append(*it, matches);
            last = it->rule;
        }
    }

private:
    void append(const Candidate &candidate, QVector<StyleMatch> *matches) const
    {
        const QVector<StyleDeclaration> &declarations = candidate.rule->declarations;
        for (auto it = declarations.crbegin(); it != declarations.crend(); ++it) {
            if (it->value.isEmpty())
                continue;
            StyleMatch found = match(*it, *candidate.selector);
            place(&found);
            matches->append(found);
        }
    }

    void place(StyleMatch *found) const
    {
        if (m_templates) {
            found->place = m_templates->placeAt(found->offset);
            return;
        }
        found->offset -= int(m_opening.size());
        const QString before = m_text.mid(m_opening.size(), found->offset);
        found->place.position = {int(before.count(QLatin1Char('\n'))) + 1,
                                 int(before.size() - before.lastIndexOf(QLatin1Char('\n')))};
    }

    const std::optional<TemplateText> m_templates;
    const QString m_opening;
    const QString m_text;
    const StyleRules m_rules;
};

StyleCascade::StyleCascade(const TemplateText &templates)
    : m_sheet(std::make_unique<Sheet>(templates))
{
}

StyleCascade::StyleCascade(const QString &styleSheet)
    : m_sheet(std::make_unique<Sheet>(styleSheet))
{
}

StyleCascade::~StyleCascade() = default;

QStringList StyleCascade::attributes() const
{
    return attributesIn(m_sheet->rules());
}

// A nearer style sheet outweighs what any reasonable specificity could add up to.
QVector<StyleMatch> StyleCascade::own(const StyleElement &element) const
{
    QVector<StyleMatch> matches;
    for (int i = 0; i < element.path.size(); ++i) {
        if (element.path.at(i).styleSheet.isEmpty())
            continue;
        const int known = int(matches.size());
        Sheet(element.path.at(i).styleSheet).collect(element, &matches);
        for (int j = known; j < matches.size(); ++j)
            matches[j].sheet = i;
    }
    m_sheet->collect(element, &matches);
    return matches;
}

QVector<StyleMatch> StyleCascade::matches(const StyleElement &element) const
{
    if (element.path.isEmpty())
        return {};
    QVector<StyleMatch> all = own(element);
    const auto inherit = [&](const StyleElement &from, int node) {
        const QVector<StyleMatch> matches = own(from);
        for (StyleMatch match : matches) {
            if (!StyleVocabulary::isInherited(match.property))
                continue;
            match.node = node;
            match.sheet += match.sheet == StyleMatch::application ? 0 : node;
            match.isOfWidget = !element.subControl.isEmpty() && node == 0;
            all.append(match);
        }
    };
    StyleElement widget = element;
    widget.subControl.clear();
    if (!element.subControl.isEmpty())
        inherit(widget, 0);
    widget.states.intersect({QStringLiteral("enabled"), QStringLiteral("disabled")});
    for (int node = 1; element.isPropagating && node < element.path.size(); ++node) {
        widget.path.removeFirst();
        inherit(widget, node);
    }
    return all;
}

QVector<StyleProperty> StyleCascade::properties(const StyleElement &element) const
{
    QMap<QString, StyleProperty> byName;
    const QVector<StyleMatch> all = matches(element);
    for (const StyleMatch &match : all) {
        const QStringList names = StyleVocabulary::longhands(match.property);
        for (const QString &name : names) {
            StyleProperty &property = byName[name];
            property.name = name;
            property.matches.append(match);
        }
    }
    QVector<StyleProperty> properties;
    for (const StyleProperty &property : qAsConst(byName))
        properties.append(property);
    return properties;
}
