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

QWidget *Picker::widgetAt(const QPoint &position) const
{
    QWidget *widget = m_find ? m_find(position) : QApplication::widgetAt(position);
    return widget && !m_isOwn(widget) ? widget : nullptr;
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
    QWidget *widget = widgetAt(mouse->globalPos());
    if (!widget)
        return false;
    QWidget *painted = paintedAs(widget);
    const WidgetPart part = widgetPartAt(painted, painted->mapFromGlobal(mouse->globalPos()));
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
        Q_EMIT picked(widget, part);
    }
    return true;
}
