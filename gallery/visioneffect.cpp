// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "visioneffect.h"

#include <QApplication>
#include <QEvent>
#include <QImage>
#include <QPainter>
#include <QWidget>

namespace Gallery
{

VisionEffect::VisionEffect(ColorMath::Vision vision, QObject *parent)
    : QGraphicsEffect(parent)
    , m_vision(vision)
{
}

void VisionEffect::apply(ColorMath::Vision vision, QWidget *widget)
{
    widget->setGraphicsEffect(
        vision == ColorMath::Vision::Normal ? nullptr : new VisionEffect(vision, widget));
}

void VisionEffect::draw(QPainter *painter)
{
    QPoint place;
    const QPixmap seen = sourcePixmap(Qt::LogicalCoordinates, &place, NoPad);
    if (seen.isNull())
        return;
    // A picture that loses its ratio on the way would be drawn twice as large on a fine screen.
    QImage image = ColorMath::seenBy(m_vision, seen.toImage());
    image.setDevicePixelRatio(seen.devicePixelRatioF());
    painter->drawImage(place, image);
}

// A widget in a scene is painted by the view that shows the scene.
bool WindowVision::isConcerned(const QWidget &window) const
{
    return &window != m_window && window.isWindow() && !window.graphicsProxyWidget();
}

WindowVision::WindowVision(QWidget *window)
    : QObject(window)
    , m_window(window)
{
}

void WindowVision::setVision(ColorMath::Vision vision)
{
    m_vision = vision;
    qApp->removeEventFilter(this);
    if (vision != ColorMath::Vision::Normal)
        qApp->installEventFilter(this);
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (isConcerned(*window))
            VisionEffect::apply(vision, window);
    }
}

// A window is seen from the moment it opens, and one that opened before is set right by then.
bool WindowVision::eventFilter(QObject *watched, QEvent *event)
{
    auto *window = event->type() == QEvent::Show ? qobject_cast<QWidget *>(watched) : nullptr;
    if (window && isConcerned(*window))
        VisionEffect::apply(m_vision, window);
    return QObject::eventFilter(watched, event);
}

} // namespace Gallery
