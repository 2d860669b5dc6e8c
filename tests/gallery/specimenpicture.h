// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef TESTS_SPECIMENPICTURE_H
#define TESTS_SPECIMENPICTURE_H

#include <gallery/specimenwidget.h>

#include <QApplication>
#include <QImage>
#include <QWidget>

/*!
 * \brief Returns a picture of the widget of \a specimen, 2 pixels of a white ground around it.
 *
 * The ground is there because a widget grabbed by itself is painted as if it were a window. Some
 * other widget of the window has the focus.
 */
inline QImage pictureOf(const Gallery::Specimen &specimen)
{
    constexpr int margin = 2;
    QWidget ground;
    QPalette white;
    white.setColor(QPalette::Window, Qt::white);
    ground.setPalette(white);
    ground.setFocusPolicy(Qt::StrongFocus);
    QWidget *widget = Gallery::createSpecimenWidget(specimen);
    if (widget == nullptr)
        return {};
    widget->setParent(&ground);
    widget->ensurePolished();
    const QSize size =
        widget->sizeHint().expandedTo(widget->minimumSize()).boundedTo(widget->maximumSize());
    widget->setGeometry(QRect({margin, margin}, size));
    ground.setAttribute(Qt::WA_DontShowOnScreen);
    ground.resize(size + QSize(2 * margin, 2 * margin));
    widget->show();
    ground.show();
    QApplication::setActiveWindow(&ground);
    ground.setFocus();
    return ground.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

/*! \brief Returns how many pixels of \a picture have exactly this \a color. */
inline int pixelsOf(const QImage &picture, const QColor &color)
{
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y) == color)
                ++count;
        }
    }
    return count;
}

/*! \brief Returns the specimen with exactly this \a selector, or one without selector. */
inline Gallery::Specimen specimenOf(const QString &selector)
{
    const auto specimens = Gallery::allSpecimens();
    for (const Gallery::Specimen &specimen : specimens) {
        if (specimen.selector == selector)
            return specimen;
    }
    return {};
}

#endif
