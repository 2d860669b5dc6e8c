// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEME_TESTS_OWNPICTURE_H
#define HVTHEME_TESTS_OWNPICTURE_H

#include <QImage>
#include <QWidget>

/*! Returns what \a widget paints by itself, without its children, on black. */
inline QImage ownPicture(QWidget *widget)
{
    QImage picture(widget->size(), QImage::Format_RGB32);
    picture.fill(Qt::black);
    // What is no window would be painted as if it were one.
    const auto flags = widget->isWindow() ? QWidget::DrawWindowBackground : QWidget::RenderFlag(0);
    widget->render(&picture, QPoint(), QRegion(), flags);
    return picture;
}

#endif
