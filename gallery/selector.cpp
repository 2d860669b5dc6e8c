// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "selector.h"

#include <QRegularExpression>

namespace Gallery
{

namespace
{

// Qt reads the first pseudo name that is none of these as a sub-control, however many colons
// stand before it; so does this.
bool isState(const QString &pseudo)
{
    static const QStringList states{"hover",    "pressed",    "checked", "unchecked",
                                    "disabled", "enabled",    "focus",   "selected",
                                    "on",       "horizontal", "vertical"};
    return states.contains(pseudo);
}

QString lastCompound(const QString &text)
{
    return text.section(QLatin1Char(' '), -1, -1, QString::SectionSkipEmpty);
}

} // namespace

Selector Selector::fromText(const QString &text)
{
    static const QRegularExpression className("^\\w+");
    static const QRegularExpression property("\\[(\\w+)=\"?([^\"\\]]+)\"?\\]");
    static const QRegularExpression pseudo("::?([\\w-]+)");

    Selector selector;
    selector.widgetClass = className.match(text).captured();
    const QString target = lastCompound(text);
    for (auto hits = property.globalMatch(target); hits.hasNext();) {
        const auto hit = hits.next();
        selector.properties.append({hit.captured(1), hit.captured(2)});
    }
    for (auto hits = pseudo.globalMatch(target); hits.hasNext();) {
        const QString name = hits.next().captured(1);
        if (isState(name))
            selector.states.append(name);
        else
            selector.subControl = name;
    }
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
