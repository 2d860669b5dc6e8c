// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <inspector/widgetparts.h>

#include <analysis/style/styleelement.h>
#include <inspector/parts.h>

#include <QtWidgets>

namespace
{

// What StyleElement leaves to those who know the painter.
QSet<QString> ownStates(const QWidget *widget)
{
    QSet<QString> states;
    const auto *window = qobject_cast<const QMainWindow *>(widget->parentWidget());
    auto *bar = qobject_cast<QToolBar *>(const_cast<QWidget *>(widget)); // NOLINT
    if (window && bar) {
        static const QHash<int, const char *> sides{{Qt::LeftToolBarArea, "left"},
                                                    {Qt::RightToolBarArea, "right"},
                                                    {Qt::TopToolBarArea, "top"},
                                                    {Qt::BottomToolBarArea, "bottom"}};
        states << QLatin1String(sides.value(int(window->toolBarArea(bar)), "top"));
    }
    const QWidget *list = nullptr;
    if (qobject_cast<const QComboBox *>(widget)) {
        const QObjectList &children = widget->children();
        for (const QObject *child : children) {
            if (child->inherits("QComboBoxPrivateContainer"))
                list = static_cast<const QWidget *>(child);
        }
    }
    if (list && list->isVisible())
        states << QStringLiteral("on") << QStringLiteral("checked");
    return states;
}

} // namespace

Parts::Parts(const QWidget *widget)
    : m_widget(widget)
    , m_states(StyleElement::of(widget, {}).states + ownStates(widget))
{
    add(QString(), widget->rect(), m_states);
    m_isActive = m_states.contains(QStringLiteral("active"));
}

void set(QSet<QString> *states, const char *name, bool holds)
{
    if (holds)
        states->insert(QLatin1String(name));
    else
        states->remove(QLatin1String(name));
}

bool isCloseButton(const QWidget *widget)
{
    return widget && widget->inherits("CloseButton")
        && qobject_cast<const QTabBar *>(widget->parentWidget());
}

QWidget *paintedAs(QWidget *widget)
{
    QWidget *parent = widget->parentWidget();
    const bool isHelper = widget->inherits("QSplitterHandle") || widget->inherits("QToolBoxButton")
        || widget->inherits("QToolBarSeparator") || widget->inherits("QComboBoxPrivateContainer")
        || isCloseButton(widget);
    if (parent && isHelper)
        return parent;
    return StyleElement::styledWidget(widget) == widget ? widget : parent;
}

QVector<WidgetPart> widgetParts(const QWidget *widget)
{
    Parts parts(widget);
    const auto *header = qobject_cast<const QHeaderView *>(widget);
    if (header && header->model())
        parts.addSections(header);
    else if (const auto *view = qobject_cast<const QAbstractItemView *>(widget); view && !header)
        parts.addItems(view);
    else if (const auto *bar = qobject_cast<const QTabBar *>(widget))
        parts.addTabs(bar);
    else if (qobject_cast<const QMenu *>(widget) || qobject_cast<const QMenuBar *>(widget))
        parts.addActions(widget);
    else if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        parts.addButton(button);
    parts.addRange();
    parts.addEdit();
    parts.addContainer();
    return parts.all();
}

WidgetPart widgetPartAt(const QWidget *widget, const QPoint &position)
{
    const QVector<WidgetPart> parts = widgetParts(widget);
    const auto area = [](const QRect &rect) { return rect.width() * rect.height(); };
    const WidgetPart *best = &parts.constFirst();
    for (const WidgetPart &part : parts) {
        if (part.rect.contains(position) && area(part.rect) < area(best->rect))
            best = &part;
    }
    return *best;
}
