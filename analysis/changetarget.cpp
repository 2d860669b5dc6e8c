// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/changetarget.h>

#include <QHash>
#include <QSet>

namespace
{

// A million palette entries can be taken one from another; nobody looks for the place to change a
// value further away than this.
constexpr int mostTargets = 100;

using Takers = QHash<const Definition *, QVector<const Definition *>>;

// By palette entry, all that is taken from it directly.
Takers takersIn(const ThemeStack &theme)
{
    Takers takers;
    const QVector<Definition> &definitions = theme.definitions();
    for (int i = 0; i < definitions.size(); ++i) {
        const Definition &taker = definitions.at(i);
        if (taker.fate != Definition::Fate::Stored)
            continue;
        const QSet<int> entries = theme.paletteEntriesOf(i);
        for (const int entry : entries)
            takers[&definitions.at(entry)].append(&taker);
    }
    return takers;
}

// Returns the definition and all that is taken from it, over however many steps.
QSet<const Definition *> changedWith(const Definition &definition, const Takers &takers)
{
    QSet<const Definition *> changed;
    QVector<const Definition *> open{&definition};
    while (!open.isEmpty()) {
        const Definition *each = open.takeLast();
        if (changed.contains(each))
            continue;
        changed.insert(each);
        open += takers.value(each);
    }
    return changed;
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
                    const Definition &definition, const Takers &takers)
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
    const QSet<const Definition *> changed = changedWith(definition, takers);
    for (const Definition *each : changed)
        result.keys << each->key();
    result.keys.sort();
    result.declarations = countDeclarations(project, theme, changed);
    return result;
}

QVector<ChangeTarget> targets(const ThemeProject &project, const ThemeStack &theme,
                              const Definition *definition)
{
    QVector<ChangeTarget> targets;
    const Takers takers = definition ? takersIn(theme) : Takers();
    while (definition && targets.size() < mostTargets) {
        targets.append(target(project, theme, *definition, takers));
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
