// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "accessiblepage.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QLabel>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <QTextEdit>
#include <QVariant>
#include <QWidget>

namespace Gallery
{

namespace
{

// The label that was made before it says what it is for.
QString labelOf(const QWidget *widget)
{
    QString text;
    const QObjectList &siblings = widget->parentWidget()->children();
    for (const QObject *sibling : siblings) {
        if (sibling == widget)
            return text;
        if (const auto *label = qobject_cast<const QLabel *>(sibling))
            text = label->text();
    }
    return {};
}

QString nameFor(const QWidget *widget)
{
    for (const char *property : {"imageBtn", "switchStyle", "checkStyle"}) {
        QString value = widget->property(property).toString();
        if (!value.isEmpty())
            return value;
    }
    if (!widget->toolTip().isEmpty())
        return widget->toolTip();
    const QString label = labelOf(widget);
    return label.isEmpty() ? QString::fromLatin1(widget->metaObject()->className()) : label;
}

} // namespace

void makeAccessible(QWidget *page)
{
    const auto widgets = page->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (auto *view = qobject_cast<QAbstractItemView *>(widget))
            view->setTabKeyNavigation(false);
        if (auto *edit = qobject_cast<QTextEdit *>(widget))
            edit->setTabChangesFocus(true);
        if (auto *edit = qobject_cast<QPlainTextEdit *>(widget))
            edit->setTabChangesFocus(true);
        if (qobject_cast<QMdiSubWindow *>(widget) != nullptr)
            widget->setFocusPolicy(Qt::ClickFocus); // Tab would never leave it
        if (!(widget->focusPolicy() & Qt::TabFocus)
            || widget->objectName().startsWith(QLatin1String("qt_")))
            continue;
        QAccessibleInterface *told = QAccessible::queryAccessibleInterface(widget);
        if (told == nullptr || told->text(QAccessible::Name).trimmed().isEmpty())
            widget->setAccessibleName(nameFor(widget));
    }
}

} // namespace Gallery
