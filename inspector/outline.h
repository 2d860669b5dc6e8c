// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef INSPECTOR_OUTLINE_H
#define INSPECTOR_OUTLINE_H

#include <QPointer>
#include <QRect>
#include <QVector>

class QWidget;

/*!
 * \brief Frames around widgets of the program, or parts of them, for as long as it lives.
 *
 * A frame lies over the window, lets the mouse through and goes with its window. It is nothing but
 * a ring, so what is inside is painted as ever.
 */
class Outline
{
public:
    Outline() = default;
    ~Outline();
    Q_DISABLE_COPY_MOVE(Outline)

    /*! \brief Adds a frame around \a rect of \a widget; around all of it if that is empty. */
    void add(QWidget *widget, const QRect &rect = {});
    void clear();
    int count() const;

    /*! \brief Tells whether \a widget is one of the frames. */
    static bool isFrame(const QWidget *widget);

private:
    QVector<QPointer<QWidget>> m_frames;
};

#endif
