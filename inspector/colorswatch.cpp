// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <inspector/colorswatch.h>

#include <QPainter>

QPixmap colorSwatch(const QColor &color, const QSize &size, qreal pixelRatio)
{
    QPixmap picture(size * pixelRatio);
    picture.setDevicePixelRatio(pixelRatio);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    const QRect all(QPoint(), size);
    if (color.isValid() && color.alpha() < 255) {
        const int side = 4;
        for (int y = 0; y < size.height(); y += side) {
            for (int x = (y / side % 2) * side; x < size.width(); x += 2 * side)
                painter.fillRect(x, y, side, side, QColor(0x90, 0x90, 0x98));
        }
    }
    if (color.isValid())
        painter.fillRect(all, color);
    else
        painter.drawLine(all.bottomLeft(), all.topRight());
    painter.setPen(QColor(0x55, 0x55, 0x5f));
    painter.drawRect(all.adjusted(0, 0, -1, -1));
    return picture;
}
