// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "selector.h"

#include <analysis/style/styleselector.h>

namespace Gallery
{

Selector Selector::fromText(const QString &text)
{
    const StyleSelector parts = StyleSelector::parsed(text);
    Selector selector;
    if (!parts.isValid())
        return selector;
    const QString type = parts.steps.constFirst().type;
    selector.widgetClass = type == QLatin1String("*") ? QString() : type;
    for (const StyleSelector::Attribute &attribute : parts.subject().attributes)
        selector.properties.append({attribute.name, attribute.value});
    selector.subControl = parts.subControl();
    const QVector<StyleSelector::Pseudo> states = parts.states();
    for (const StyleSelector::Pseudo &state : states)
        selector.states.append(state.text());
    return selector;
}

QString Selector::propertyLines() const
{
    QStringList lines;
    for (const auto &[name, value] : properties)
        lines.append(QStringLiteral("widget->setProperty(\"%1\", \"%2\");").arg(name, value));
    return lines.join(QLatin1Char('\n'));
}

} // namespace Gallery
