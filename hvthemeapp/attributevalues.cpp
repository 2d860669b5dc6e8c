// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "attributevalues.h"

#include <QAbstractScrollArea>
#include <QComboBox>
#include <QCoreApplication>
#include <QDateTimeEdit>
#include <QEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QStyle>
#include <QToolButton>
#include <QVariant>

namespace HV
{
namespace
{

constexpr int noValues = -1;
const char *const valuesName = "_q_hvthemeAttributeValues";

// Another number where another rule may fit. Only what a program changes while a widget is seen.
int valuesOf(const QWidget &widget)
{
    if (const auto *button = qobject_cast<const QPushButton *>(&widget))
        return (button->text().isEmpty() ? 1 : 0)
            + (button->maximumWidth() == QWIDGETSIZE_MAX ? 2 : 0);
    if (const auto *button = qobject_cast<const QToolButton *>(&widget))
        return (button->autoRaise() ? 1 : 0) + 2 * int(button->popupMode());
    if (const auto *edit = qobject_cast<const QAbstractSpinBox *>(&widget)) {
        const auto *date = qobject_cast<const QDateTimeEdit *>(edit);
        return (edit->isReadOnly() ? 1 : 0) + (edit->hasFrame() ? 2 : 0)
            + (date && date->calendarPopup() ? 4 : 0);
    }
    if (const auto *edit = qobject_cast<const QLineEdit *>(&widget))
        return edit->hasFrame() ? 1 : 0;
    if (const auto *combo = qobject_cast<const QComboBox *>(&widget))
        return combo->hasFrame() ? 1 : 0;
    if (const auto *slider = qobject_cast<const QSlider *>(&widget))
        return int(slider->tickPosition());
    if (const auto *area = qobject_cast<const QAbstractScrollArea *>(&widget))
        return int(area->frameShape());
    return noValues;
}

} // namespace

bool keepAttributeValues(QWidget &widget)
{
    const int values = valuesOf(widget);
    if (values != noValues)
        widget.setProperty(valuesName, values);
    return values != noValues;
}

void renewAttributeRules(QWidget &widget)
{
    const QVariant kept = widget.property(valuesName);
    if (!kept.isValid() || kept.toInt() == valuesOf(widget))
        return;
    keepAttributeValues(widget); // once for several paints
    const auto polishAgain = [&widget] {
        QStyle *style = widget.style();
        style->unpolish(&widget);
        style->polish(&widget);
        QEvent event(QEvent::StyleChange); // some keep sizes
        QCoreApplication::sendEvent(&widget, &event);
    };
    QMetaObject::invokeMethod(&widget, polishAgain, Qt::QueuedConnection);
}

} // namespace HV
