// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <hvthemeapp/forwardingpaintdevice.h>

#include <QPainterPath>

#include <algorithm>

namespace
{

QPaintEngine::PaintEngineFeatures featuresOf(const QPaintEngine &engine)
{
    QPaintEngine::PaintEngineFeatures features;
    for (uint bit = 1; bit != 0; bit <<= 1) {
        const auto feature = QPaintEngine::PaintEngineFeature(bit);
        if (engine.hasFeature(feature))
            features |= feature;
    }
    return features;
}

qreal scaleOf(const QPainter &painter)
{
    return painter.paintEngine()->paintDevice()->devicePixelRatioF();
}

// Where the glyphs of a text are that came without measures, as web pages paint them: they are drawn
// small, and looked for.
QRectF extentOfGlyphs(const QPainter &painter, const QPointF &position, const QTextItem &item)
{
    const QRectF seen = painter.hasClipping() ? painter.clipBoundingRect() : painter.window();
    const int part = 4;
    QImage image((seen.size() / part).toSize() + QSize(1, 1), QImage::Format_ARGB32_Premultiplied);
    image.fill(0);
    QPainter small(&image);
    small.scale(1.0 / part, 1.0 / part);
    small.translate(-seen.topLeft());
    small.drawTextItem(position, item);
    small.end();
    QRect found;
    for (int y = 0; y < image.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if (line[x] != 0)
                found |= QRect(x, y, 1, 1);
        }
    }
    return QRectF(found.topLeft() * part, found.size() * part).translated(seen.topLeft()) & seen;
}

QRectF extentOf(const QPainter &painter, const QPointF &position, const QTextItem &item)
{
    const QRectF extent(position.x(), position.y() - item.ascent(), item.width(),
                        item.ascent() + item.descent());
    return extent.isEmpty() ? extentOfGlyphs(painter, position, item) : extent;
}

template<typename Point>
void drawPolygonWith(QPainter *painter, const Point *points, int count,
                     QPaintEngine::PolygonDrawMode mode)
{
    switch (mode) {
    case QPaintEngine::OddEvenMode:
        painter->drawPolygon(points, count, Qt::OddEvenFill);
        break;
    case QPaintEngine::WindingMode:
        painter->drawPolygon(points, count, Qt::WindingFill);
        break;
    case QPaintEngine::ConvexMode:
        painter->drawConvexPolygon(points, count);
        break;
    case QPaintEngine::PolylineMode:
        painter->drawPolyline(points, count);
        break;
    }
}

} // namespace

ForwardingPaintEngine::ForwardingPaintEngine(QPainter *target, TextColors *colors)
    : QPaintEngine(featuresOf(*target->paintEngine()))
    , m_target(target)
    , m_colors(colors)
    , m_toTarget(QTransform::fromScale(1 / scaleOf(*target), 1 / scaleOf(*target)))
{
}

bool ForwardingPaintEngine::begin(QPaintDevice *)
{
    return true;
}

bool ForwardingPaintEngine::end()
{
    return true;
}

void ForwardingPaintEngine::updateState(const QPaintEngineState &painting)
{
    const DirtyFlags changes = painting.state();
    if (changes & DirtyTransform)
        m_target->setWorldTransform(painting.transform() * m_toTarget);
    if (changes & (DirtyClipRegion | DirtyClipPath | DirtyClipEnabled))
        updateClip(painting);
    if (changes & DirtyPen)
        m_target->setPen(painting.pen());
    if (changes & DirtyBrush)
        m_target->setBrush(painting.brush());
    if (changes & DirtyBrushOrigin)
        m_target->setBrushOrigin(painting.brushOrigin());
    if (changes & DirtyFont)
        m_target->setFont(painting.font());
    if (changes & DirtyBackground)
        m_target->setBackground(painting.backgroundBrush());
    if (changes & DirtyBackgroundMode)
        m_target->setBackgroundMode(painting.backgroundMode());
    if (changes & DirtyHints) {
        m_target->setRenderHints(~painting.renderHints(), false);
        m_target->setRenderHints(painting.renderHints(), true);
    }
    if (changes & DirtyCompositionMode)
        m_target->setCompositionMode(painting.compositionMode());
    if (changes & DirtyOpacity)
        m_target->setOpacity(painting.opacity());
}

void ForwardingPaintEngine::updateClip(const QPaintEngineState &painting)
{
    const DirtyFlags changes = painting.state();
    if (changes & DirtyClipRegion)
        m_target->setClipRegion(painting.clipRegion(), painting.clipOperation());
    if (changes & DirtyClipPath)
        m_target->setClipPath(painting.clipPath(), painting.clipOperation());
    if (changes & DirtyClipEnabled)
        m_target->setClipping(painting.isClipEnabled());
}

// A shape ends the texts whose lines may follow.
bool ForwardingPaintEngine::isOpenForShapes()
{
    m_underlined.clear();
    return m_isOpen;
}

void ForwardingPaintEngine::drawRects(const QRectF *rects, int count)
{
    if (isOpenForShapes())
        m_target->drawRects(rects, count);
}

void ForwardingPaintEngine::drawRects(const QRect *rects, int count)
{
    if (isOpenForShapes())
        m_target->drawRects(rects, count);
}

template<typename Line>
void ForwardingPaintEngine::forwardLines(const Line *lines, int count)
{
    if (!m_isOpen)
        return;
    const auto isDrawn = [this](const QPointF &from, const QPointF &to) {
        return std::any_of(m_underlined.cbegin(), m_underlined.cend(), [=](const QRectF &text) {
            return text.contains(from) && text.contains(to);
        });
    };
    if (count == 1 && lines->y1() == lines->y2() && isDrawn(lines->p1(), lines->p2()))
        return;
    m_target->drawLines(lines, count);
}

void ForwardingPaintEngine::drawLines(const QLineF *lines, int count)
{
    forwardLines(lines, count);
}

void ForwardingPaintEngine::drawLines(const QLine *lines, int count)
{
    forwardLines(lines, count);
}

void ForwardingPaintEngine::drawEllipse(const QRectF &rect)
{
    if (isOpenForShapes())
        m_target->drawEllipse(rect);
}

void ForwardingPaintEngine::drawEllipse(const QRect &rect)
{
    if (isOpenForShapes())
        m_target->drawEllipse(rect);
}

void ForwardingPaintEngine::drawPath(const QPainterPath &path)
{
    if (isOpenForShapes())
        m_target->drawPath(path);
}

void ForwardingPaintEngine::drawPoints(const QPointF *points, int count)
{
    if (isOpenForShapes())
        m_target->drawPoints(points, count);
}

void ForwardingPaintEngine::drawPoints(const QPoint *points, int count)
{
    if (isOpenForShapes())
        m_target->drawPoints(points, count);
}

void ForwardingPaintEngine::drawPolygon(const QPointF *points, int count, PolygonDrawMode mode)
{
    if (isOpenForShapes())
        drawPolygonWith(m_target, points, count, mode);
}

void ForwardingPaintEngine::drawPolygon(const QPoint *points, int count, PolygonDrawMode mode)
{
    if (isOpenForShapes())
        drawPolygonWith(m_target, points, count, mode);
}

void ForwardingPaintEngine::drawPixmap(const QRectF &rect, const QPixmap &pixmap,
                                       const QRectF &source)
{
    if (isOpenForShapes())
        m_target->drawPixmap(rect, pixmap, source);
}

void ForwardingPaintEngine::drawTiledPixmap(const QRectF &rect, const QPixmap &pixmap,
                                            const QPointF &offset)
{
    if (isOpenForShapes())
        m_target->drawTiledPixmap(rect, pixmap, offset);
}

void ForwardingPaintEngine::drawImage(const QRectF &rect, const QImage &image, const QRectF &source,
                                      Qt::ImageConversionFlags flags)
{
    if (isOpenForShapes())
        m_target->drawImage(rect, image, source, flags);
}

void ForwardingPaintEngine::drawTextItem(const QPointF &position, const QTextItem &item)
{
    if (!m_isOpen)
        return;
    const QPen pen = m_target->pen();
    const QRectF extent = extentOf(*m_target, position, item);
    QPen seen = pen;
    if (pen.brush().style() == Qt::SolidPattern)
        seen.setColor(m_colors->textColor(*m_target, extent, pen.color()));
    m_target->setPen(seen);
    m_target->drawTextItem(position, item);
    m_target->setPen(pen);
    const auto lines = QTextItem::Underline | QTextItem::Overline | QTextItem::StrikeOut;
    if (item.renderFlags() & lines)
        m_underlined << extent.adjusted(-1, -1, 1, item.descent() + 1);
}

ForwardingPaintDevice::ForwardingPaintDevice(QPainter *target, TextColors *colors)
    : m_engine(target, colors)
    , m_device(target->device())
    , m_scale(scaleOf(*target))
{
}

int ForwardingPaintDevice::metric(PaintDeviceMetric metric) const
{
    switch (metric) {
    case PdmWidth:
        return m_device->width();
    case PdmHeight:
        return m_device->height();
    case PdmWidthMM:
        return m_device->widthMM();
    case PdmHeightMM:
        return m_device->heightMM();
    case PdmNumColors:
        return m_device->colorCount();
    case PdmDepth:
        return m_device->depth();
    case PdmDpiX:
        return m_device->logicalDpiX();
    case PdmDpiY:
        return m_device->logicalDpiY();
    case PdmPhysicalDpiX:
        return m_device->physicalDpiX();
    case PdmPhysicalDpiY:
        return m_device->physicalDpiY();
    case PdmDevicePixelRatio:
        return int(m_scale);
    case PdmDevicePixelRatioScaled:
        return qRound(m_scale * devicePixelRatioFScale());
    }
    return 0;
}
