// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <hvthemeapp/paintforwarding.h>

#include <QApplication>
#include <QPaintEvent>
#include <QWidget>

#include <algorithm>

namespace
{

// Classes that do not paint with a painter, or whose paint goes by ways of its own.
const char *const leftAlone[] = {"QOpenGLWidget",  "QGLWidget",    "QQuickWidget",
                                 "QWebEngineView", "QVideoWidget", "QAxWidget"};

bool isPaintedByPainter(const QWidget *widget)
{
    if (widget->testAttribute(Qt::WA_PaintOnScreen) || widget->graphicsEffect()
        || !widget->testAttribute(Qt::WA_WState_InPaintEvent))
        return false;
    return std::none_of(std::begin(leftAlone), std::end(leftAlone),
                        [=](const char *name) { return widget->inherits(name); });
}

bool isPicture(const QPaintDevice *device)
{
    return device->devType() == QInternal::Image || device->devType() == QInternal::Pixmap;
}

} // namespace

PaintForwarding::PaintForwarding(TextColors *colors)
    : m_colors(colors)
{
}

void PaintForwarding::install()
{
    qApp->installEventFilter(this);
}

void PaintForwarding::uninstall()
{
    if (qApp)
        qApp->removeEventFilter(this);
}

bool PaintForwarding::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() != QEvent::Paint || !object->isWidgetType())
        return false;
    auto *widget = static_cast<QWidget *>(object);
    if (widget == m_widget) { // its own paint, which was asked for below
        m_engine->setOpen(true);
        return false;
    }
    return isPaintedByPainter(widget) && paint(widget, static_cast<QPaintEvent *>(event)->region());
}

bool PaintForwarding::paint(QWidget *widget, const QRegion &region)
{
    QPainter target(widget);
    if (!target.isActive() || !isPicture(target.paintEngine()->paintDevice()))
        return false;
    ForwardingPaintDevice device(&target, m_colors);
    // Backgrounds are painted already, and those that are translucent must not be so twice.
    device.engine()->setOpen(false);

    QWidget *const outerWidget = std::exchange(m_widget, widget);
    ForwardingPaintEngine *const outerEngine = std::exchange(m_engine, device.engine());
    widget->setAttribute(Qt::WA_WState_InPaintEvent, false);
    widget->render(&device, region.boundingRect().topLeft(), region, {});
    widget->setAttribute(Qt::WA_WState_InPaintEvent);
    m_engine = outerEngine;
    m_widget = outerWidget;
    if (!m_widget && m_whenPainted)
        m_whenPainted();
    return true;
}
