// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_FORWARDINGPAINTDEVICE_H
#define HVTHEMEAPP_FORWARDINGPAINTDEVICE_H

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QVector>

/*! \brief Chooses the colour that a text is painted in. */
class TextColors
{
public:
    virtual ~TextColors() = default;

    /*!
     * \brief Returns the colour for a text.
     *
     * \param painter  paints the text next; below is what has been painted so far.
     * \param rect     what the text covers, in the coordinates of \a painter.
     * \param color    the colour that is asked for.
     */
    virtual QColor textColor(const QPainter &painter, const QRectF &rect, const QColor &color) = 0;
};

/*!
 * \brief A paint engine that paints with the painter of another device, texts in other colours.
 *
 * Whatever is painted comes out as it would there, pixel by pixel, apart from the colours of texts.
 */
class ForwardingPaintEngine : public QPaintEngine
{
public:
    /*! \brief Forwards to \a target, which is active and outlives the engine, as do \a colors. */
    ForwardingPaintEngine(QPainter *target, TextColors *colors);

    /*! \brief Lets paint pass or stop; a change of the painter's state always passes. */
    void setOpen(bool isOpen) { m_isOpen = isOpen; }

    bool begin(QPaintDevice *device) override;
    bool end() override;
    Type type() const override { return User; }
    void updateState(const QPaintEngineState &painting) override;
    void drawRects(const QRectF *rects, int count) override;
    void drawRects(const QRect *rects, int count) override;
    void drawLines(const QLineF *lines, int count) override;
    void drawLines(const QLine *lines, int count) override;
    void drawEllipse(const QRectF &rect) override;
    void drawEllipse(const QRect &rect) override;
    void drawPath(const QPainterPath &path) override;
    void drawPoints(const QPointF *points, int count) override;
    void drawPoints(const QPoint *points, int count) override;
    void drawPolygon(const QPointF *points, int count, PolygonDrawMode mode) override;
    void drawPolygon(const QPoint *points, int count, PolygonDrawMode mode) override;
    void drawPixmap(const QRectF &rect, const QPixmap &pixmap, const QRectF &source) override;
    void drawTiledPixmap(const QRectF &rect, const QPixmap &pixmap, const QPointF &offset) override;
    void drawImage(const QRectF &rect, const QImage &image, const QRectF &source,
                   Qt::ImageConversionFlags flags) override;
    void drawTextItem(const QPointF &position, const QTextItem &item) override;

private:
    void updateClip(const QPaintEngineState &painting);
    template<typename Line>
    void forwardLines(const Line *lines, int count);
    bool isOpenForShapes();

    QPainter *m_target;
    TextColors *m_colors;
    QTransform m_toTarget; // undoes the scale of the screen, which the target applies itself
    // Of the underlined texts since the last shape: what they and their lines cover. The target has
    // drawn those lines, and they come once more behind a whole line of text.
    QVector<QRectF> m_underlined;
    bool m_isOpen = true;
};

/*! \brief A device that looks like the one of a painter, and forwards what is painted on it. */
class ForwardingPaintDevice : public QPaintDevice
{
public:
    ForwardingPaintDevice(QPainter *target, TextColors *colors);

    ForwardingPaintEngine *engine() { return &m_engine; }
    QPaintEngine *paintEngine() const override { return &m_engine; }

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    mutable ForwardingPaintEngine m_engine;
    const QPaintDevice *m_device; // what the target paints on, a widget perhaps
    qreal m_scale; // of the screen, or of the picture that stands in for it
};

#endif
