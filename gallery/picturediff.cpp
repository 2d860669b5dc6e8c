// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "picturediff.h"

#include <QPainter>

namespace Gallery
{

namespace
{

bool isNear(QRgb a, QRgb b, int tolerance)
{
    return qAbs(qRed(a) - qRed(b)) <= tolerance && qAbs(qGreen(a) - qGreen(b)) <= tolerance
        && qAbs(qBlue(a) - qBlue(b)) <= tolerance;
}

QImage paleCopy(const QImage &picture)
{
    QImage pale = picture;
    QPainter(&pale).fillRect(pale.rect(), QColor(255, 255, 255, 200));
    return pale;
}

QImage sideBySide(const QVector<QImage> &pictures)
{
    constexpr int gap = 8;
    int width = -gap;
    int height = 1;
    for (const QImage &picture : pictures) {
        width += gap + picture.width();
        height = qMax(height, picture.height());
    }
    QImage sheet(qMax(width, 1), height, QImage::Format_RGB32);
    sheet.fill(Qt::gray);
    QPainter painter(&sheet);
    int left = 0;
    for (const QImage &picture : pictures) {
        painter.drawImage(left, 0, picture);
        left += picture.width() + gap;
    }
    return sheet;
}

} // namespace

PictureDiff comparePictures(const QImage &expected, const QImage &actual, int tolerance)
{
    const QImage first = expected.convertToFormat(QImage::Format_RGB32);
    const QImage second = actual.convertToFormat(QImage::Format_RGB32);
    PictureDiff diff;
    diff.pixels = qMax(first.width() * first.height(), second.width() * second.height());
    if (first.size() != second.size()) {
        diff.differingPixels = diff.pixels;
        diff.image = sideBySide({first, second});
        return diff;
    }
    QImage marked = paleCopy(second);
    for (int y = 0; y < first.height(); ++y) {
        for (int x = 0; x < first.width(); ++x) {
            if (isNear(first.pixel(x, y), second.pixel(x, y), tolerance))
                continue;
            ++diff.differingPixels;
            marked.setPixel(x, y, qRgb(255, 0, 0));
        }
    }
    diff.image = sideBySide({first, second, marked});
    return diff;
}

} // namespace Gallery
