// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/ruleexplanation.h>

#include <analysis/style/pseudocheck.h>
#include <analysis/style/stylecascade.h>
#include <analysis/style/stylevocabulary.h>
#include <analysis/theme/storedvalues.h>

#include <QMap>

#include <algorithm>

namespace
{

using Topic = ExplanationStep::Topic;

StyleNode nodeOf(const StyleSelector::Step &step)
{
    const QString widget = QStringLiteral("QWidget");
    StyleNode node;
    node.classes =
        StyleVocabulary::typeAndBases(step.type == QLatin1String("*") ? widget : step.type);
    node.name = step.ids.value(0);
    for (const StyleSelector::Attribute &attribute : step.attributes) {
        const bool isAny = attribute.match == StyleSelector::Attribute::Match::Exists;
        node.attributes.insert(attribute.name, isAny ? QStringLiteral("true") : attribute.value);
    }
    return node;
}

QSet<QString> statesOf(const StyleSelector &selector)
{
    const QMap<QString, QString> opposites{
        {"enabled", "disabled"},   {"disabled", "enabled"}, {"checked", "unchecked"},
        {"unchecked", "checked"},  {"on", "off"},           {"off", "on"},
        {"open", "closed"},        {"closed", "open"},      {"horizontal", "vertical"},
        {"vertical", "horizontal"}};
    QSet<QString> states;
    bool isActive = true;
    const QVector<StyleSelector::Pseudo> pseudos = selector.states();
    for (const StyleSelector::Pseudo &pseudo : pseudos) {
        const QString name = pseudo.name.toLower();
        if (!pseudo.isNegated)
            states << name;
        else if (opposites.contains(name))
            states << opposites.value(name);
        isActive = isActive && !(pseudo.isNegated && name == QLatin1String("active"));
    }
    if (!states.contains(QStringLiteral("disabled")))
        states << QStringLiteral("enabled");
    if (isActive)
        states << QStringLiteral("active");
    return states;
}

// Where a declaration stands and what it says, for the middle of a sentence.
QString shortText(const StyleMatch &match)
{
    return match.place.shortText() % QLatin1String(", ") % match.selector % QLatin1String(" { ")
        % match.property % QLatin1String(" }");
}

// What became of one declaration: the properties that it decides, and those that others decide.
struct Outcome {
    QStringList inForce;
    QMap<int, QPair<StyleMatch, QStringList>> overridden; // by the offset of who decides
};

class RuleSteps
{
public:
    RuleSteps(const ThemeProject &project, const ThemeStack &theme)
        : m_project(project)
        , m_theme(theme)
        , m_values(theme.values(project.options().applicationFolder))
        , m_cascade(project.templates())
    {
    }

    QVector<ExplanationStep> of(const StyleElement &element)
    {
        const QVector<StyleProperty> properties = m_cascade.properties(element);
        for (const StyleProperty &property : properties) {
            for (const StyleMatch &match : property.matches) {
                Outcome &outcome = m_outcomes[match.offset];
                if (match.offset == property.winner().offset) {
                    outcome.inForce << property.name;
                } else {
                    auto &overridden = outcome.overridden[property.winner().offset];
                    overridden.first = property.winner();
                    overridden.second << property.name;
                }
            }
        }
        const QVector<StyleMatch> matches = m_cascade.matches(element);
        for (auto first = matches.cbegin(); first != matches.cend();) {
            const StyleRule *rule = m_project.styleRules().ruleAt(first->offset);
            const auto end = std::find_if(first, matches.cend(), [&](const StyleMatch &match) {
                return m_project.styleRules().ruleAt(match.offset) != rule
                    || match.isOfWidget != first->isOfWidget;
            });
            tellRule(*rule, *first);
            for (auto it = std::make_reverse_iterator(end); it != std::make_reverse_iterator(first);
                 ++it)
                tellDeclaration(*it);
            first = end;
        }
        return m_steps;
    }

private:
    void tellRule(const StyleRule &rule, const StyleMatch &match)
    {
        m_steps.append(
            {Topic::Rule, m_project.templates().placeAt(rule.start),
             match.selector % QLatin1String(" (specificity ") % QString::number(match.specificity)
                 % QLatin1String(match.isOfWidget ? ", taken from the widget)" : ")")});
    }

    void tellDeclaration(const StyleMatch &match)
    {
        const QString value =
            finishedStyleSheet(m_project.templates().prefix(), m_values, match.value).text;
        const Outcome outcome = m_outcomes.value(match.offset);
        const QString mark =
            outcome.inForce.isEmpty() ? QStringLiteral(" (overridden)") : QString();
        m_steps.append(
            {Topic::Declaration, match.place, match.property % QLatin1String(": ") % value % mark});
        for (const auto &overridden : outcome.overridden) {
            const QString what = outcome.inForce.isEmpty() && outcome.overridden.size() == 1
                ? QString()
                : overridden.second.join(QLatin1String(", ")) % QLatin1Char(' ');
            m_steps.append({Topic::Note,
                            {},
                            what % QLatin1String("overridden by ") % shortText(overridden.first)});
        }
        if (match.isImportant)
            m_steps.append({Topic::Note, {}, QStringLiteral("Qt takes no notice of !important")});
        tellSources(match.offset);
    }

    void tellSources(int offset)
    {
        const StyleRule *rule = m_project.styleRules().ruleAt(offset);
        const StyleDeclaration *declaration = rule ? rule->declarationAt(offset) : nullptr;
        for (const TemplateToken &token : m_project.tokens()) {
            if (!declaration || token.offset < declaration->start
                || token.offset >= declaration->end)
                continue;
            const std::optional<Kind> kind = kindInStyleSheets(m_theme, token.key);
            if (!kind) {
                m_steps.append(
                    {Topic::Note, {}, QLatin1String("the theme has no value called ") % token.key});
                continue;
            }
            for (ExplanationStep step : originSteps(m_theme, *m_theme.find(*kind, token.key))) {
                if (step.topic == Topic::Origin)
                    step.topic = Topic::Source;
                m_steps.append(step);
            }
        }
    }

    const ThemeProject &m_project;
    const ThemeStack &m_theme;
    const QVariantMap m_values;
    const StyleCascade m_cascade;
    QMap<int, Outcome> m_outcomes; // by offset
    QVector<ExplanationStep> m_steps;
};

} // namespace

std::optional<StyleElement> elementOf(const QString &selector, QString *error)
{
    const QVector<StyleSelector> selectors = StyleSelector::parsedList(selector);
    if (selectors.size() != 1 || !selectors.constFirst().isValid()) {
        *error = selectors.size() > 1
            ? QStringLiteral("\"%1\" is several selectors; ask for one").arg(selector)
            : QStringLiteral("\"%1\" is no selector that Qt can read").arg(selector);
        return std::nullopt;
    }
    const StyleSelector &only = selectors.constFirst();
    const PseudoCheck check;
    const QVector<StyleSelector::Pseudo> unknown = check.unknownStates(only);
    if (!unknown.isEmpty()) {
        const QString name = unknown.constFirst().name;
        *error = QStringLiteral("Qt has no state \"%1\"").arg(name) % check.stateQuestion(name);
        return std::nullopt;
    }
    if (const auto part = check.unknownSubControl(only)) {
        *error = QStringLiteral("Qt has no sub-control \"%1\"").arg(part->name)
            % check.subControlQuestion(part->name);
        return std::nullopt;
    }
    StyleElement element;
    for (auto step = only.steps.crbegin(); step != only.steps.crend(); ++step)
        element.path.append(nodeOf(*step));
    element.subControl = only.subControl();
    element.states = statesOf(only);
    return element;
}

QVector<ExplanationStep> ruleSteps(const ThemeProject &project, const ThemeStack &theme,
                                   const StyleElement &element)
{
    return RuleSteps(project, theme).of(element);
}

bool isMeantAsSelector(const ThemeProject &project, const QString &text)
{
    static const QString marks = QStringLiteral(":[.#*> ");
    const auto isMark = [](QChar character) { return marks.contains(character); };
    if (std::any_of(text.cbegin(), text.cend(), isMark)
        || StyleVocabulary::classes().contains(text))
        return true;
    for (const StyleRule &rule : project.styleRules().rules()) {
        for (const StyleSelector &selector : rule.selectors) {
            const auto isNamed = [&](const StyleSelector::Step &step) { return step.type == text; };
            if (std::any_of(selector.steps.cbegin(), selector.steps.cend(), isNamed))
                return true;
        }
    }
    return false;
}
