// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/changetarget.h>

#include <QSet>

#include <algorithm>

namespace
{

bool isTakenBy(const ThemeStack &theme, const Definition &entry, const Definition &taker)
{
    if (entry.kind() != Kind::Palette || taker.fate != Definition::Fate::Stored)
        return false;
    const QVector<GradientStopValue> &stops = taker.value->stops;
    const bool isInStops = std::any_of(stops.cbegin(), stops.cend(), [&](const auto &stop) {
        return stop.color.toString() == entry.key();
    });
    return isInStops || (taker.palette >= 0 && &theme.definitions().at(taker.palette) == &entry);
}

// Entries are taken only from those that are stored before, so that this ends.
void collectTakers(const ThemeStack &theme, const Definition &definition,
                   QSet<const Definition *> *takers)
{
    if (takers->contains(&definition))
        return;
    takers->insert(&definition);
    for (const Definition &other : theme.definitions()) {
        if (isTakenBy(theme, definition, other))
            collectTakers(theme, other, takers);
    }
}

int countDeclarations(const ThemeProject &project, const ThemeStack &theme,
                      const QSet<const Definition *> &changed)
{
    QSet<int> declarations; // by where they begin
    for (const TemplateToken &token : project.tokens()) {
        const std::optional<Kind> kind = kindInStyleSheets(theme, token.key);
        if (!kind || !changed.contains(theme.find(*kind, token.key)))
            continue;
        const StyleRule *rule = project.styleRules().ruleAt(token.offset);
        const StyleDeclaration *declaration = rule ? rule->declarationAt(token.offset) : nullptr;
        declarations.insert(declaration ? declaration->start : token.offset);
    }
    return int(declarations.size());
}

ChangeTarget target(const ThemeProject &project, const ThemeStack &theme,
                    const Definition &definition)
{
    ChangeTarget result;
    result.kind = definition.kind();
    result.key = definition.key();
    result.place = definition.valuePlace();
    result.fileKey = definition.entry()->key;
    result.text = definition.value->text();
    result.isOfDefaultFile = definition.layer == &theme.base();
    for (const ThemeStack *other : project.themes()) {
        const Definition *same = other->find(definition.kind(), definition.key());
        if (same && same->value == definition.value)
            result.themes << other->name();
    }
    QSet<const Definition *> changed;
    collectTakers(theme, definition, &changed);
    for (const Definition *each : qAsConst(changed))
        result.keys << each->key();
    result.keys.sort();
    result.declarations = countDeclarations(project, theme, changed);
    return result;
}

QVector<ChangeTarget> targets(const ThemeProject &project, const ThemeStack &theme,
                              const Definition *definition)
{
    QVector<ChangeTarget> targets;
    while (definition) {
        targets.append(target(project, theme, *definition));
        definition =
            definition->palette < 0 ? nullptr : &theme.definitions().at(definition->palette);
    }
    return targets;
}

} // namespace

QVector<ChangeTarget> changeTargets(const ThemeProject &project, const ThemeStack &theme,
                                    const QString &key)
{
    const std::optional<Kind> kind = kindInStyleSheets(theme, key);
    return kind ? targets(project, theme, theme.find(*kind, key)) : QVector<ChangeTarget>();
}

QVector<ChangeTarget> paletteChangeTargets(const ThemeProject &project, const ThemeStack &theme,
                                           const QString &key)
{
    return targets(project, theme, theme.find(Kind::Palette, key));
}
