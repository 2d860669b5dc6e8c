// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "pagemenu.h"

#include "appliedtheme.h"
#include "findingspane.h"
#include "selector.h"
#include "shownpart.h"

#include <analysis/themeproject.h>
#include <inspector/inspection.h>

#include <QVariant>

namespace Gallery
{

namespace
{

// An ampersand would make the next letter a key.
QString plain(QString title)
{
    return title.replace(QLatin1Char('&'), QLatin1String("&&"));
}

Place placeOf(const ValueChain &chain)
{
    for (const ExplanationStep &step : chain.steps) {
        if (!step.place.file.isEmpty())
            return step.place;
    }
    return {};
}

} // namespace

PageMenu::PageMenu(QWidget *at, const AppliedTheme &theme, QWidget *parent)
    : QMenu(parent)
{
    setAttribute(Qt::WA_DeleteOnClose);
    const QString key = at->property(keyProperty).toString();
    if (key.isEmpty())
        addWidget(at, *theme.inspectedSheet());
    else
        addKey(key, theme.project());
}

void PageMenu::addCopy(QMenu *menu, const QString &title, const QString &text)
{
    menu->addAction(plain(title), this, [this, text] { copyText(parentWidget(), text); });
}

void PageMenu::addKey(const QString &key, const ThemeProject *project)
{
    addCopy(this, QStringLiteral("Copy key"), key);
    if (project != nullptr) {
        QStringList known;
        for (const ThemeStack *stack : project->allThemes()) {
            for (const Definition &definition : stack->definitions()) {
                const Place place = definition.keyPlace();
                if (definition.key() != key || known.contains(place.text()))
                    continue;
                known.append(place.text());
                addCopy(this, QStringLiteral("Copy place %1").arg(place.shortText()), place.text());
                addAction(QStringLiteral("Open %1").arg(plain(place.shortText())), this,
                          [this, place] { openPlace(parentWidget(), place); })
                    ->setEnabled(canOpen(place));
            }
        }
    }
    addSeparator();
    addAction(QStringLiteral("Show what uses it"), this, [this, key] { Q_EMIT searched(key); });
}

void PageMenu::addWidget(QWidget *widget, const InspectedSheet &sheet)
{
    QWidget *specimen = specimenOf(widget);
    QWidget *meant = specimen != nullptr ? specimen : widget;
    const QPointer<QWidget> guarded(meant);
    connect(addAction(QStringLiteral("Inspect")), &QAction::triggered, this, [this, guarded] {
        if (guarded)
            Q_EMIT inspected(guarded);
    });
    if (specimen != nullptr) {
        const QString selector = specimen->property(specimenProperty).toString();
        addSeparator();
        addCopy(this, QStringLiteral("Copy selector"), selector);
        const QString lines = Selector::fromText(selector).propertyLines();
        if (!lines.isEmpty())
            addCopy(this, QStringLiteral("Copy setProperty"), lines);
    }
    addRulesAndKeys(meant, sheet);
}

void PageMenu::addRulesAndKeys(QWidget *widget, const InspectedSheet &sheet)
{
    ShownPart shown = partShownBy(widget);
    const Inspection inspection = Inspection::of(shown.widget, shown.part, sheet);
    auto *keys = new QMenu(QStringLiteral("Copy key"), this);
    auto *places = new QMenu(QStringLiteral("Copy place"), this);
    auto *rules = new QMenu(QStringLiteral("Show rule"), this);
    QStringList known;
    for (const InspectedValue &value : inspection.values) {
        for (const ValueChain &chain : value.chains) {
            const QString key = chain.token.key;
            if (known.contains(key))
                continue;
            known.append(key);
            addCopy(keys, QStringLiteral("%1  (%2)").arg(key, value.property), key);
            const Place place = placeOf(chain);
            if (!place.file.isEmpty())
                addCopy(places, QStringLiteral("%1  (%2)").arg(place.shortText(), key),
                        place.text());
        }
    }
    const QPointer<QWidget> guarded(widget);
    for (const InspectedRule &rule : inspection.rules) {
        const Place place = rule.place;
        rules->addAction(plain(QStringLiteral("%1  (%2)").arg(rule.selector, place.shortText())),
                         this, [this, guarded, place] {
                             if (canOpen(place))
                                 openPlace(parentWidget(), place);
                             if (guarded)
                                 Q_EMIT inspected(guarded);
                         });
    }
    addSeparator();
    for (QMenu *menu : {keys, places, rules}) {
        menu->setEnabled(!menu->isEmpty());
        addMenu(menu);
    }
}

} // namespace Gallery
