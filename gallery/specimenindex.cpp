// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "specimenindex.h"

#include "specimentable.h"

#include <analysis/themeproject.h>

#include <algorithm>

namespace Gallery
{

namespace
{

const QString &colorsPage()
{
    static const QString name = QStringLiteral("colours");
    return name;
}

QStringList selectorsOf(const StyleRule &rule)
{
    QStringList selectors;
    for (const StyleSelector &selector : rule.selectors)
        selectors.append(selector.text);
    return selectors;
}

bool hasAll(const QString &text, const QStringList &words)
{
    return std::all_of(words.cbegin(), words.cend(), [&](const QString &word) {
        return text.contains(word, Qt::CaseInsensitive);
    });
}

// What begins with the text is most likely meant.
void sortByStart(QVector<SearchResult> *results, const QString &text)
{
    std::stable_partition(results->begin(), results->end(), [&](const SearchResult &result) {
        return result.text.startsWith(text, Qt::CaseInsensitive);
    });
}

QString titleOf(const QString &page, const QVector<Page> &pages)
{
    const auto found = std::find_if(pages.cbegin(), pages.cend(),
                                    [&](const Page &each) { return each.name == page; });
    return found == pages.cend() ? page : found->title;
}

} // namespace

SpecimenIndex::SpecimenIndex(const ThemeProject *project)
{
    for (const Page &page : pages()) {
        const auto sections = specimenSections(page.name);
        for (const SpecimenSection &section : sections) {
            for (const SpecimenRow &row : section.rows) {
                for (const Specimen &specimen : row.specimens) {
                    if (!m_specimenOf.contains(specimen.selector))
                        m_specimenOf.insert(specimen.selector, int(m_specimens.size()));
                    m_specimens.append({page.name, specimen.selector, {}});
                }
            }
        }
    }
    if (project == nullptr)
        return;
    addRules(*project);
    addKeys(*project);
}

void SpecimenIndex::addRules(const ThemeProject &project)
{
    const TemplateText &templates = project.templates();
    for (const StyleRule &rule : project.styleRules().rules()) {
        const Place first = templates.placeAt(rule.start);
        const Place last = templates.placeAt(qMax(rule.start, rule.end - 1));
        m_rules.append({first.file, first.position.line, last.position.line, selectorsOf(rule)});
    }
    for (const TemplateToken &token : project.tokens()) {
        if (const StyleRule *rule = project.styleRules().ruleAt(token.offset))
            m_selectorsOf[token.key] += selectorsOf(*rule);
    }
}

void SpecimenIndex::addKeys(const ThemeProject &project)
{
    for (const ThemeStack *stack : project.allThemes()) {
        for (const Definition &definition : stack->definitions()) {
            m_keyAt.insert(definition.keyPlace().lineText(), definition.key());
            m_keyAt.insert(definition.valuePlace().lineText(), definition.key());
            if (m_keyOf.contains(definition.key()))
                continue;
            m_keyOf.insert(definition.key(), 0);
            const Kind kind = definition.kind();
            m_keys.append(
                {definition.key(), nounOf(kind), kind == Kind::Color || kind == Kind::Palette});
        }
    }
    std::sort(m_keys.begin(), m_keys.end(), [](const Key &first, const Key &second) {
        return first.name.compare(second.name, Qt::CaseInsensitive) < 0;
    });
    for (int i = 0; i < m_keys.size(); ++i)
        m_keyOf[m_keys.at(i).name] = i;
}

QVector<Target> SpecimenIndex::targetsOfKey(const QString &key) const
{
    QVector<Target> targets;
    const int index = m_keyOf.value(key, -1);
    if (index >= 0 && m_keys.at(index).hasSwatch)
        targets.append({colorsPage(), {}, key});
    QVector<int> specimens;
    const QStringList selectors = m_selectorsOf.value(key);
    for (const QString &selector : selectors) {
        if (m_specimenOf.contains(selector))
            specimens.append(m_specimenOf.value(selector));
    }
    // A widget by itself shows a key better than one inside of another.
    const auto isInner = [this](int specimen) {
        return m_specimens.at(specimen).selector.contains(QLatin1Char(' '));
    };
    std::sort(specimens.begin(), specimens.end(), [&](int first, int second) {
        return isInner(first) == isInner(second) ? first < second : isInner(second);
    });
    for (const int specimen : qAsConst(specimens)) {
        const Target &target = m_specimens.at(specimen);
        const bool isKnown = std::any_of(targets.cbegin(), targets.cend(), [&](const Target &each) {
            return each.page == target.page;
        });
        if (!isKnown)
            targets.append(target);
    }
    return targets;
}

Target SpecimenIndex::targetOfPlace(const Place &place) const
{
    const QString key = m_keyAt.value(place.lineText());
    if (!key.isEmpty()) {
        const QVector<Target> targets = targetsOfKey(key);
        const auto specimen =
            std::find_if(targets.cbegin(), targets.cend(),
                         [](const Target &target) { return !target.selector.isEmpty(); });
        if (specimen != targets.cend())
            return *specimen;
        return targets.value(0);
    }
    for (const Lines &rule : m_rules) {
        if (rule.file != place.file || place.position.line < rule.first
            || place.position.line > rule.last)
            continue;
        for (const QString &selector : rule.selectors) {
            const int specimen = m_specimenOf.value(selector, -1);
            if (specimen >= 0)
                return m_specimens.at(specimen);
        }
    }
    return {};
}

QVector<SearchResult> SpecimenIndex::search(const QString &text, const QVector<Page> &pages) const
{
    const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (words.isEmpty())
        return {};
    QVector<SearchResult> ofPages;
    for (const Page &page : pages) {
        if (hasAll(page.title, words))
            ofPages.append({page.title, QStringLiteral("page"), {page.name, {}, {}}});
    }
    QVector<SearchResult> ofKeys;
    for (const Key &key : m_keys) {
        if (!hasAll(key.name, words))
            continue;
        const auto targets = targetsOfKey(key.name);
        for (const Target &target : targets)
            ofKeys.append({key.name,
                           target.selector.isEmpty()
                               ? QStringLiteral("%1, %2").arg(key.noun, titleOf(target.page, pages))
                               : QStringLiteral("%1 of %2").arg(key.noun, target.selector),
                           target});
    }
    QVector<SearchResult> ofSelectors;
    for (const Target &specimen : m_specimens) {
        if (hasAll(specimen.selector, words))
            ofSelectors.append({specimen.selector, titleOf(specimen.page, pages), specimen});
    }
    for (QVector<SearchResult> *results : {&ofPages, &ofKeys, &ofSelectors})
        sortByStart(results, text.trimmed());
    return ofPages + ofKeys + ofSelectors;
}

} // namespace Gallery
