// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "shownpart.h"

#include "copylabel.h"

#include <analysis/style/styleselector.h>

#include <QVariant>
#include <QWidget>

#include <algorithm>

namespace Gallery
{

const char specimenProperty[] = "specimen";
const char keyProperty[] = "themeKey";

namespace
{

bool isMeant(const QWidget *widget, const StyleSelector::Step &step)
{
    const QString type =
        step.type == QLatin1String("QToolTip") ? QStringLiteral("QTipLabel") : step.type;
    const bool hasType =
        type == QLatin1String("*") || widget->inherits(type.toLatin1().constData());
    return hasType && (step.ids.isEmpty() || step.ids.contains(widget->objectName()));
}

WidgetPart partCalled(const QWidget *widget, const QString &subControl)
{
    const QVector<WidgetPart> parts = widgetParts(widget);
    const auto part = std::find_if(parts.cbegin(), parts.cend(), [&](const WidgetPart &each) {
        return each.subControl.compare(subControl, Qt::CaseInsensitive) == 0;
    });
    return part == parts.cend() ? WidgetPart() : *part;
}

QWidget *findByProperty(const QWidget *page, const char *property, const QString &value,
                        bool isCaption)
{
    const auto widgets = page->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (widget->property(property).toString() == value
            && (qobject_cast<CopyLabel *>(widget) != nullptr) == isCaption)
            return widget;
    }
    return nullptr;
}

} // namespace

QWidget *specimenOf(QWidget *widget)
{
    for (QWidget *each = widget; each != nullptr; each = each->parentWidget()) {
        const QString selector = each->property(specimenProperty).toString();
        if (!selector.isEmpty())
            return qobject_cast<CopyLabel *>(each) != nullptr && each->parentWidget() != nullptr
                ? findSpecimen(each->parentWidget(), selector)
                : each;
    }
    return nullptr;
}

QWidget *findSpecimen(const QWidget *page, const QString &selector)
{
    return findByProperty(page, specimenProperty, selector, false);
}

QWidget *findKey(const QWidget *page, const QString &key)
{
    return findByProperty(page, keyProperty, key, true);
}

ShownPart partShownBy(QWidget *specimen)
{
    const auto selector = StyleSelector::parsed(specimen->property(specimenProperty).toString());
    ShownPart shown{specimen, {}};
    if (!selector.isValid())
        return shown;
    const QString subControl = selector.subControl();
    const QList<QWidget *> widgets =
        QList<QWidget *>{specimen} + specimen->findChildren<QWidget *>();
    bool isFound = false;
    for (QWidget *widget : widgets) {
        if (!isMeant(widget, selector.subject()))
            continue;
        const WidgetPart part =
            subControl.isEmpty() ? WidgetPart() : partCalled(widget, subControl);
        if (!isFound || !part.subControl.isEmpty())
            shown = {widget, part};
        isFound = true;
        if (subControl.isEmpty() || !part.subControl.isEmpty())
            break;
    }
    if (!subControl.isEmpty() && shown.part.subControl.isEmpty()) // it has one, but shows none
        shown.part = {subControl, {}, {}, widgetParts(shown.widget).constFirst().states};
    return shown;
}

} // namespace Gallery
