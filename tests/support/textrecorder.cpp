// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "textrecorder.h"

#include <colormath/contrast.h>

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QHash>
#include <QMenu>
#include <QMenuBar>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QTabBar>
#include <QWidget>

namespace
{

// The part of a text's rectangle that a colour covers before the text has to be legible on it.
constexpr double groundShare = 0.15;

QVector<QColor> groundsIn(const QImage &image, const QRect &rect)
{
    QHash<QRgb, int> counts;
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x)
            ++counts[image.pixel(x, y)];
    }
    QVector<QColor> grounds;
    int most = 0;
    QRgb main = 0;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
        if (it.value() >= groundShare * rect.width() * rect.height())
            grounds.append(QColor(it.key()));
        if (it.value() > most || (it.value() == most && it.key() < main)) {
            most = it.value();
            main = it.key();
        }
    }
    if (grounds.isEmpty())
        grounds.append(QColor(main));
    return grounds;
}

bool isPenOfDisabledText(const QColor &pen, const QPalette &palette)
{
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText}) {
        const QColor &color = palette.color(QPalette::Disabled, role);
        if (pen.rgba() == color.rgba() && color != palette.color(QPalette::Active, role))
            return true;
    }
    return false;
}

/*! Whether what \a widget shows at \a place is disabled: an action, a tab or an item of it. */
bool isDisabledPart(const QWidget *widget, const QPoint &place)
{
    const QAction *action = nullptr;
    if (const auto *menu = qobject_cast<const QMenu *>(widget))
        action = menu->actionAt(place);
    else if (const auto *bar = qobject_cast<const QMenuBar *>(widget))
        action = bar->actionAt(place);
    if (action)
        return !action->isEnabled();
    if (const auto *tabs = qobject_cast<const QTabBar *>(widget))
        return tabs->tabAt(place) >= 0 && !tabs->isTabEnabled(tabs->tabAt(place));
    const auto *view = qobject_cast<const QAbstractItemView *>(widget->parentWidget());
    if (!view || widget != view->viewport())
        return false;
    const QModelIndex index = view->indexAt(place);
    return index.isValid() && !(index.flags() & Qt::ItemIsEnabled);
}

QString nameOf(const QWidget *widget)
{
    QString name = QLatin1String(widget->metaObject()->className());
    if (!widget->objectName().isEmpty())
        name += QLatin1Char('#') + widget->objectName();
    return name;
}

/*! Knows who paints: each widget is told to by an event. */
class PaintWatcher final : public QObject
{
public:
    PaintWatcher() { qApp->installEventFilter(this); }

    const QWidget *widget() const { return m_widget; }

    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && object->isWidgetType())
            m_widget = static_cast<const QWidget *>(object);
        return false;
    }

private:
    const QWidget *m_widget = nullptr;
};

} // namespace

class TextRecorder::Engine final : public QPaintEngine
{
public:
    Engine(const QSize &size, qreal pixels)
        : QPaintEngine(AllFeatures)
        , image(size * pixels, QImage::Format_RGB32)
        , ratio(pixels)
    {
        image.fill(Qt::black);
    }

    QImage image; // of the screen's pixels: whoever paints is told of the ratio, and scales
    const qreal ratio;
    QVector<RecordedText> texts;
    const PaintWatcher *watcher = nullptr;

    bool begin(QPaintDevice *) override
    {
        const bool begun = m_painter.begin(&image);
        followSystemClip();
        return begun;
    }
    bool end() override
    {
        m_painter.paintEngine()->setSystemClip(QRegion());
        return m_painter.end();
    }
    Type type() const override { return User; }

    void updateState(const QPaintEngineState &now) override
    {
        followSystemClip();
        const DirtyFlags flags = now.state();
        if (flags & DirtyTransform)
            m_painter.setTransform(now.transform());
        if (flags & DirtyPen)
            m_painter.setPen(now.pen());
        if (flags & DirtyBrush)
            m_painter.setBrush(now.brush());
        if (flags & DirtyBrushOrigin)
            m_painter.setBrushOrigin(now.brushOrigin());
        if (flags & DirtyFont)
            m_painter.setFont(now.font());
        if (flags & DirtyBackground)
            m_painter.setBackground(now.backgroundBrush());
        if (flags & DirtyBackgroundMode)
            m_painter.setBackgroundMode(now.backgroundMode());
        if (flags & DirtyHints)
            m_painter.setRenderHints(now.renderHints());
        if (flags & DirtyCompositionMode)
            m_painter.setCompositionMode(now.compositionMode());
        if (flags & DirtyOpacity)
            m_painter.setOpacity(now.opacity());
        if (flags & DirtyClipEnabled)
            m_painter.setClipping(now.isClipEnabled());
        if (flags & DirtyClipRegion)
            m_painter.setClipRegion(now.clipRegion(), now.clipOperation());
        if (flags & DirtyClipPath)
            m_painter.setClipPath(now.clipPath(), now.clipOperation());
    }

    void drawRects(const QRectF *rects, int count) override { m_painter.drawRects(rects, count); }
    void drawRects(const QRect *rects, int count) override { m_painter.drawRects(rects, count); }
    void drawLines(const QLineF *lines, int count) override { m_painter.drawLines(lines, count); }
    void drawLines(const QLine *lines, int count) override { m_painter.drawLines(lines, count); }
    void drawEllipse(const QRectF &rect) override { m_painter.drawEllipse(rect); }
    void drawEllipse(const QRect &rect) override { m_painter.drawEllipse(rect); }
    void drawPath(const QPainterPath &path) override { m_painter.drawPath(path); }
    void drawPoints(const QPointF *points, int count) override
    {
        m_painter.drawPoints(points, count);
    }
    void drawPoints(const QPoint *points, int count) override
    {
        m_painter.drawPoints(points, count);
    }
    void drawPolygon(const QPointF *points, int count, PolygonDrawMode mode) override
    {
        drawPolygonOf(points, count, mode);
    }
    void drawPolygon(const QPoint *points, int count, PolygonDrawMode mode) override
    {
        drawPolygonOf(points, count, mode);
    }
    void drawPixmap(const QRectF &to, const QPixmap &pixmap, const QRectF &from) override
    {
        m_painter.drawPixmap(to, pixmap, from);
    }
    void drawTiledPixmap(const QRectF &to, const QPixmap &pixmap, const QPointF &from) override
    {
        m_painter.drawTiledPixmap(to, pixmap, from);
    }
    void drawImage(const QRectF &to, const QImage &picture, const QRectF &from,
                   Qt::ImageConversionFlags flags) override
    {
        m_painter.drawImage(to, picture, from, flags);
    }
    void drawTextItem(const QPointF &position, const QTextItem &item) override
    {
        keep(position, item);
        m_painter.drawTextItem(position, item);
    }

private:
    // What a widget's parents leave of it: Qt tells the engine it was given, not those inside.
    void followSystemClip()
    {
        if (m_painter.paintEngine()->systemClip() != systemClip())
            m_painter.paintEngine()->setSystemClip(systemClip());
    }

    template<typename Point>
    void drawPolygonOf(const Point *points, int count, PolygonDrawMode mode)
    {
        if (mode == PolylineMode)
            m_painter.drawPolyline(points, count);
        else if (mode == ConvexMode)
            m_painter.drawConvexPolygon(points, count);
        else
            m_painter.drawPolygon(points, count,
                                  mode == WindingMode ? Qt::WindingFill : Qt::OddEvenFill);
    }

    void keep(const QPointF &position, const QTextItem &item)
    {
        const QString text = item.text().trimmed();
        const QRectF own(position.x(), position.y() - item.ascent(), item.width(),
                         item.ascent() + item.descent());
        QRectF clip = image.rect();
        if (!systemClip().isEmpty())
            clip &= systemClip().boundingRect();
        if (m_painter.hasClipping())
            clip &= m_painter.transform().mapRect(m_painter.clipBoundingRect());
        const QRect rect =
            m_painter.transform().mapRect(own).toAlignedRect() & clip.toAlignedRect();
        if (text.isEmpty() || rect.width() < 2 || rect.height() < 2)
            return;
        QColor pen = m_painter.pen().color();
        const QColor asked = pen;
        pen.setAlpha(qRound(pen.alpha() * m_painter.opacity()));
        RecordedText kept;
        for (const QColor &ground : groundsIn(image, rect)) {
            const double contrast = ColorMath::contrastRatio(pen, ground);
            if (contrast > kept.contrast)
                continue;
            kept.contrast = contrast;
            kept.ground = ground;
        }
        const QTransform toWindow = QTransform::fromScale(1 / ratio, 1 / ratio);
        QPainterPath glyphs;
        glyphs.addText(position, item.font(), item.text());
        kept.text = text;
        kept.rect = toWindow.mapRect(rect);
        kept.ink = toWindow.mapRect(m_painter.transform().mapRect(glyphs.boundingRect()));
        kept.clip = toWindow.mapRect(clip);
        kept.pen = ColorMath::over(pen, kept.ground);
        if (const QWidget *widget = watcher ? watcher->widget() : nullptr) {
            kept.drawnBy = widget;
            kept.enabled = widget->isEnabled() && !isPenOfDisabledText(asked, widget->palette());
            kept.widget = nameOf(widget);
            if (const QWidget *parent = widget->parentWidget())
                kept.widget += QLatin1String(" in ") + nameOf(parent);
        }
        dropShadowOf(kept);
        texts.append(kept);
    }

    // Some styles etch disabled text: first a light shadow of it, a pixel away, which nobody reads.
    void dropShadowOf(const RecordedText &text)
    {
        constexpr int near = 8; // a text with a mnemonic comes in parts
        for (int i = int(texts.size()) - 1; i >= qMax(0, int(texts.size()) - near); --i) {
            const RecordedText &shadow = texts.at(i);
            const QPoint offset = shadow.rect.topLeft() - text.rect.topLeft();
            if (shadow.text == text.text && shadow.widget == text.widget
                && offset == QPoint(1, 1)) {
                texts.removeAt(i);
                return;
            }
        }
    }

    QPainter m_painter;
};

TextRecorder::TextRecorder(const QSize &size, qreal ratio)
    : TextRecorder(std::make_unique<Engine>(size, ratio))
{
}

TextRecorder::TextRecorder(std::unique_ptr<Engine> engine)
    : QImage(engine->image.bits(), engine->image.width(), engine->image.height(),
             engine->image.bytesPerLine(), engine->image.format())
    , m_engine(std::move(engine))
{
}

TextRecorder::~TextRecorder() = default;

void TextRecorder::record(QWidget *window)
{
    const PaintWatcher watcher;
    m_engine->watcher = &watcher;
    const int first = int(m_engine->texts.size());
    window->render(this);
    m_engine->watcher = nullptr;
    // Asked while it paints, a view may lay its items out anew, and its delegate the text at hand.
    for (int i = first; i < m_engine->texts.size(); ++i) {
        RecordedText &text = m_engine->texts[i];
        const QWidget *widget = text.drawnBy;
        if (widget && isDisabledPart(widget, widget->mapFrom(window, text.rect.center())))
            text.enabled = false;
    }
}

const QVector<RecordedText> &TextRecorder::texts() const
{
    return m_engine->texts;
}

const QImage &TextRecorder::image() const
{
    return m_engine->image;
}

QPaintEngine *TextRecorder::paintEngine() const
{
    return m_engine.get();
}

int TextRecorder::metric(PaintDeviceMetric metric) const
{
    const QImage &image = m_engine->image;
    switch (metric) {
    case PdmWidth:
        return image.width();
    case PdmHeight:
        return image.height();
    case PdmWidthMM:
        return image.widthMM();
    case PdmHeightMM:
        return image.heightMM();
    case PdmDepth:
        return image.depth();
    case PdmNumColors:
        return image.colorCount();
    case PdmDpiX:
    case PdmPhysicalDpiX:
        return image.logicalDpiX();
    case PdmDpiY:
    case PdmPhysicalDpiY:
        return image.logicalDpiY();
    case PdmDevicePixelRatio:
        return int(m_engine->ratio);
    case PdmDevicePixelRatioScaled:
        return qRound(m_engine->ratio * devicePixelRatioFScale());
    default:
        return QImage::metric(metric);
    }
}
