// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEME_TESTS_STYLEDPARTS_H
#define HVTHEME_TESTS_STYLEDPARTS_H

#include <inspector/inspectedsheet.h>
#include <inspector/widgetparts.h>

/*! Calls \a tell with the number of a part of \a widget and each property that a rule gives to it. */
template<typename Tell>
void forEachStyledProperty(QWidget *widget, const InspectedSheet &sheet, Tell tell)
{
    QWidget *styled = paintedAs(widget);
    StyleElement element = StyleElement::of(styled, sheet.cascade().attributes());
    const QVector<WidgetPart> parts = widgetParts(styled);
    for (int number = 0; number < parts.size(); ++number) {
        element.subControl = parts.at(number).subControl;
        element.states = parts.at(number).states;
        const auto properties = sheet.cascade().properties(element);
        for (const StyleProperty &property : properties)
            tell(number, property);
    }
}

#endif // HVTHEME_TESTS_STYLEDPARTS_H
