// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_PAINTFORWARDING_H
#define HVTHEMEAPP_PAINTFORWARDING_H

#include <hvthemeapp/forwardingpaintdevice.h>

#include <QObject>

#include <functional>

class QRegion;
class QWidget;

/*!
 * \brief From install() to uninstall(), all widgets of the application paint through a
 *        ForwardingPaintDevice.
 *
 * Not those that do not paint with a painter, or whose paint is no picture in the end, as on a printer.
 */
class PaintForwarding : public QObject
{
public:
    /*! \brief Asks \a colors, which outlives it. */
    explicit PaintForwarding(TextColors *colors);

    /*! \brief Begins with the application that there is now, on whose thread this is used. Does no
     *         harm if it is done already. */
    void install();

    /*! \brief Ends; what is being painted is painted to its end. */
    void uninstall();

    /*! \brief Has \a call called when no widget is being painted any more. */
    void setWhenPainted(std::function<void()> call) { m_whenPainted = std::move(call); }

    /*! \brief Returns the widget that is being painted; null if none is. */
    const QWidget *widget() const { return m_widget; }

    bool eventFilter(QObject *object, QEvent *event) override;

private:
    bool paint(QWidget *widget, const QRegion &region);

    TextColors *m_colors;
    std::function<void()> m_whenPainted;
    QWidget *m_widget = nullptr; // that is being painted,
    ForwardingPaintEngine *m_engine = nullptr; // with this engine
};

#endif
