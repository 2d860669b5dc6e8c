// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <inspector/picker.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>

Picker::Picker(std::function<bool(const QWidget *)> isOwn, QObject *parent)
    : QObject(parent)
    , m_isOwn(std::move(isOwn))
{
    qApp->installEventFilter(this);
}

void Picker::setPicking(bool picking)
{
    if (picking == m_isPicking)
        return;
    m_isPicking = picking;
    m_outline.clear();
    Q_EMIT pickingChanged(picking);
}

Picker::Seen Picker::seenAt(const QPoint &position) const
{
    Seen seen = m_find ? m_find(position) : Seen();
    if (!seen.widget) {
        seen.widget = QApplication::widgetAt(position);
        seen.place = seen.widget ? seen.widget->mapFromGlobal(position) : QPoint();
    }
    return seen.widget && !m_isOwn(seen.widget) ? seen : Seen();
}

bool Picker::eventFilter(QObject *object, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
        return object->isWidgetType() && filterMouse(event);
    case QEvent::KeyPress:
        if (m_isPicking && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
            setPicking(false);
            return true;
        }
        return false;
    case QEvent::ContextMenu:
    case QEvent::Wheel:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
        return object->isWidgetType() && filterOther(static_cast<QWidget *>(object), event);
    case QEvent::Show:
        // A tool tip hides itself at any click that its own filter sees first.
        if (object->inherits("QTipLabel")) {
            qApp->removeEventFilter(this);
            qApp->installEventFilter(this);
        }
        return false;
    default:
        return false;
    }
}

// What else a hand does while it picks. What comes from pens and fingers is ignored, so that Qt makes
// mouse events of it.
bool Picker::filterOther(const QWidget *widget, QEvent *event)
{
    const bool isOfClick = m_isRelease && event->type() == QEvent::ContextMenu;
    if (!(m_isPicking || isOfClick) || m_isOwn(widget))
        return false;
    event->setAccepted(event->type() == QEvent::ContextMenu || event->type() == QEvent::Wheel);
    return true;
}

bool Picker::filterMouse(QEvent *event)
{
    const auto *mouse = static_cast<QMouseEvent *>(event);
    constexpr Qt::KeyboardModifiers keys = Qt::ControlModifier | Qt::ShiftModifier;
    const bool isDirect = mouse->modifiers() == keys && mouse->button() == Qt::LeftButton;
    if (event->type() == QEvent::MouseButtonRelease && m_isRelease) {
        m_isRelease = false;
        return true;
    }
    if (!m_isPicking && !isDirect)
        return false;
    const Seen seen = seenAt(mouse->globalPos());
    if (!seen.widget)
        return false;
    QWidget *painted = paintedAs(seen.widget);
    const QPoint place = painted == seen.widget || painted->isAncestorOf(seen.widget)
        ? seen.widget->mapTo(painted, seen.place)
        : painted->mapFromGlobal(mouse->globalPos());
    const WidgetPart part = widgetPartAt(painted, place);
    if (event->type() == QEvent::MouseMove) {
        if (m_isPicking) {
            m_outline.clear();
            m_outline.add(painted, part.rect);
        }
        return m_isPicking;
    }
    if (event->type() == QEvent::MouseButtonPress) {
        m_isRelease = true;
        setPicking(false);
        Q_EMIT picked(seen.widget, part);
    }
    return true;
}
