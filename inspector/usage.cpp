// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <inspector/usage.h>

#include <analysis/style/styleelement.h>

#include <algorithm>

QVector<StyleUser> usersOf(const QSet<int> &declarations, const QList<QWidget *> &widgets,
                           const InspectedSheet &sheet)
{
    QVector<StyleUser> users;
    QVector<const StyleSelector *> selectors; // of the rules with these declarations
    for (const StyleRule &rule : sheet.rules().rules()) {
        const bool isWanted = std::any_of(
            rule.declarations.cbegin(), rule.declarations.cend(),
            [&](const StyleDeclaration &one) { return declarations.contains(one.start); });
        for (const StyleSelector &selector : rule.selectors) {
            if (isWanted && selector.isValid())
                selectors.append(&selector);
        }
    }
    const QStringList attributes = sheet.cascade().attributes();
    for (QWidget *widget : widgets) {
        if (paintedAs(widget) != widget)
            continue; // the one around it is told
        StyleElement element = StyleElement::of(widget, attributes);
        const bool mayUse =
            std::any_of(selectors.cbegin(), selectors.cend(), [&](const StyleSelector *selector) {
                return matchesObject(*selector, element.path);
            });
        if (!mayUse)
            continue;
        const QVector<WidgetPart> parts = widgetParts(widget);
        for (const WidgetPart &part : parts) {
            element.subControl = part.subControl;
            element.states = part.states;
            const auto properties = sheet.cascade().properties(element);
            const bool isUser = std::any_of(
                properties.cbegin(), properties.cend(), [&](const StyleProperty &property) {
                    return property.winner().sheet == StyleMatch::application
                        && declarations.contains(property.winner().offset);
                });
            if (isUser)
                users.append({widget, part});
        }
    }
    return users;
}
