// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "visioneffect.h"

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

} // namespace Gallery
