// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_PAINTFORWARDING_H
#define HVTHEMEAPP_PAINTFORWARDING_H

#include <hvthemeapp/forwardingpaintdevice.h>

#include <QObject>

class QRegion;
class QWidget;

/*!
 * \brief While it lives, all widgets of the application paint through a ForwardingPaintDevice.
 *
 * Not those that do not paint with a painter, or whose paint is no picture in the end, as on a printer.
 */
class PaintForwarding : public QObject
{
public:
    /*! \brief Asks \a colors, which outlives it. Needs a QApplication and is used by its thread. */
    explicit PaintForwarding(TextColors *colors);

    /*! \brief Returns the widget that is being painted; null if none is. */
    const QWidget *widget() const { return m_widget; }

    bool eventFilter(QObject *object, QEvent *event) override;

private:
    bool paint(QWidget *widget, const QRegion &region);

    TextColors *m_colors;
    QWidget *m_widget = nullptr; // that is being painted,
    ForwardingPaintEngine *m_engine = nullptr; // with this engine
};

#endif
