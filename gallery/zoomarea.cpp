// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "zoomarea.h"

#include <inspector/outline.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QGraphicsProxyWidget>
#include <QGraphicsView>
#include <QScrollArea>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>

namespace Gallery
{

namespace
{

constexpr int wholeSize = 100;
constexpr int wheelStep = 120; // eighths of a degree, as Qt counts

// As childAt(), but deaf widgets are seen too.
QWidget *deepest(QWidget *widget, const QPoint &place)
{
    const QObjectList &children = widget->children();
    for (auto child = children.crbegin(); child != children.crend(); ++child) {
        auto *part = qobject_cast<QWidget *>(*child);
        if (part == nullptr || part->isHidden() || part->isWindow() || Outline::isFrame(part)
            || !part->geometry().contains(place))
            continue;
        return deepest(part, place - part->pos());
    }
    return widget;
}

} // namespace

QVector<int> ZoomArea::levels()
{
    return {50, 67, 80, 100, 125, 150, 200, 300, 400};
}

ZoomArea::ZoomArea(QWidget *parent)
    : QStackedWidget(parent)
    , m_area(new QScrollArea)
    , m_view(new QGraphicsView)
{
    m_area->setObjectName(QStringLiteral("page"));
    m_view->setScene(&m_scene);
    m_view->setObjectName(QStringLiteral("zoomedPage"));
    m_view->setFrameShape(QFrame::NoFrame);
    m_view->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_area->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    for (QAbstractScrollArea *host :
         {static_cast<QAbstractScrollArea *>(m_area), static_cast<QAbstractScrollArea *>(m_view)}) {
        host->setAccessibleName(QStringLiteral("Page"));
        addWidget(host);
    }
    m_clickTimer.setSingleShot(true);
    m_clickTimer.setInterval(0);
    connect(&m_clickTimer, &QTimer::timeout, this, &ZoomArea::tellClick);
    qApp->installEventFilter(this);
}

ZoomArea::~ZoomArea()
{
    qApp->removeEventFilter(this);
    release();
    delete m_page;
}

void ZoomArea::setPage(QWidget *page, Fit fit)
{
    release();
    delete m_page;
    m_page = page;
    m_fit = fit;
    host();
}

// Takes the page out of where it is.
void ZoomArea::release()
{
    if (m_proxy) {
        m_proxy->setWidget(nullptr);
        delete m_proxy;
    } else {
        m_area->takeWidget();
    }
}

void ZoomArea::host()
{
    if (!m_page)
        return;
    if (m_zoom == wholeSize) {
        m_area->setWidgetResizable(m_fit == Fit::Fill);
        m_area->setWidget(m_page);
        m_page->show();
        setCurrentWidget(m_area);
        return;
    }
    m_page->setParent(nullptr);
    m_proxy = m_scene.addWidget(m_page);
    m_page->show();
    m_view->setTransform(
        QTransform::fromScale(qreal(m_zoom) / wholeSize, qreal(m_zoom) / wholeSize));
    setCurrentWidget(m_view);
    settle();
}

void ZoomArea::settle()
{
    if (!m_proxy)
        return;
    if (m_fit == Fit::Fill) {
        const QSize seen = m_view->viewport()->size() * wholeSize / m_zoom;
        m_page->resize(seen.expandedTo(m_page->minimumSize()));
    }
    m_scene.setSceneRect(m_page->rect());
}

void ZoomArea::setZoom(int percent)
{
    const QVector<int> all = levels();
    const int nearest = *std::min_element(all.cbegin(), all.cend(), [=](int first, int second) {
        return qAbs(first - percent) < qAbs(second - percent);
    });
    if (nearest == m_zoom)
        return;
    const QPointF relative = QPointF(scrolled()) / m_zoom;
    QPointer<QWidget> focus = QApplication::focusWidget();
    const bool isInside = m_page && focus && m_page->isAncestorOf(focus);
    const QSize size = m_page ? m_page->size() : QSize();
    release();
    m_zoom = nearest;
    if (m_page && m_fit == Fit::OwnSize)
        m_page->resize(size);
    host();
    if (isInside && focus)
        focus->setFocus();
    scrollTo((relative * m_zoom).toPoint());
    Q_EMIT zoomChanged(m_zoom);
}

void ZoomArea::zoomBy(int steps)
{
    const QVector<int> all = levels();
    setZoom(all.at(qBound(0, int(all.indexOf(m_zoom)) + steps, int(all.size()) - 1)));
}

QPoint ZoomArea::scrolled() const
{
    const auto *host = static_cast<QAbstractScrollArea *>(currentWidget());
    return {host->horizontalScrollBar()->value(), host->verticalScrollBar()->value()};
}

void ZoomArea::scrollTo(const QPoint &place)
{
    auto *host = static_cast<QAbstractScrollArea *>(currentWidget());
    host->horizontalScrollBar()->setValue(place.x());
    host->verticalScrollBar()->setValue(place.y());
}

void ZoomArea::reveal(QWidget *part)
{
    constexpr int around = 60; // so that its captions are in sight too
    const QRect place(part->mapTo(m_page, QPoint()), part->size());
    if (m_proxy)
        m_view->ensureVisible(place, around, around);
    else
        m_area->ensureVisible(place.center().x(), place.center().y(), place.width() / 2 + around,
                              place.height() / 2 + around);
}

bool ZoomArea::isOfPage(const QObject *object) const
{
    if (!m_page || !object->isWidgetType())
        return false;
    const auto *widget = static_cast<const QWidget *>(object);
    return widget == m_page || m_page->isAncestorOf(widget);
}

QWidget *ZoomArea::widgetAt(const QPoint &place) const
{
    QWidget *under = QApplication::widgetAt(place);
    if (under == nullptr || !m_page || !(m_proxy ? under == m_view->viewport() : isOfPage(under)))
        return nullptr;
    const QPoint inPage = mapFromScreen(m_page, place);
    return m_page->rect().contains(inPage) ? deepest(m_page, inPage) : nullptr;
}

QPoint ZoomArea::mapFromScreen(const QWidget *part, const QPoint &place) const
{
    if (!m_proxy)
        return part->mapFromGlobal(place);
    const QPointF inPage = m_view->mapToScene(m_view->viewport()->mapFromGlobal(place));
    return inPage.toPoint() - part->mapTo(m_page, QPoint());
}

QPoint ZoomArea::mapToScreen(const QWidget *part, const QPoint &place) const
{
    if (!m_proxy)
        return part->mapToGlobal(place);
    return m_view->viewport()->mapToGlobal(m_view->mapFromScene(part->mapTo(m_page, place)));
}

bool ZoomArea::eventFilter(QObject *object, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Wheel: {
        const auto *wheel = static_cast<QWheelEvent *>(event);
        const bool isHere =
            isOfPage(object) || object == m_area->viewport() || object == m_view->viewport();
        if (!isHere || wheel->modifiers() != Qt::ControlModifier)
            break;
        m_wheel += wheel->angleDelta().y(); // touchpads send less than a step at a time
        zoomBy(m_wheel / wheelStep);
        m_wheel %= wheelStep;
        return true;
    }
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease: {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        // What the view passes on does not know where on the screen it is.
        const bool isHere = m_proxy ? object == m_view->viewport() : isOfPage(object);
        if (mouse->button() != Qt::LeftButton || !isHere)
            break;
        if (mouse->modifiers() == (Qt::ControlModifier | Qt::ShiftModifier)) {
            QWidget *at = widgetAt(mouse->globalPos());
            if (at == nullptr)
                break;
            if (event->type() == QEvent::MouseButtonPress)
                Q_EMIT picked(at);
            return true; // as the inspector's own filter does, if it is there
        }
        if (mouse->modifiers() != Qt::NoModifier || event->type() != QEvent::MouseButtonPress)
            break;
        m_clicked = widgetAt(mouse->globalPos());
        m_clickPlace = mouse->globalPos();
        m_clickTimer.start(); // the widget comes first, and whoever it passes the event on to
        break;
    }
    default:
        break;
    }
    return QStackedWidget::eventFilter(object, event);
}

void ZoomArea::tellClick()
{
    if (m_clicked)
        Q_EMIT clicked(m_clicked, m_clickPlace);
}

void ZoomArea::contextMenuEvent(QContextMenuEvent *event)
{
    if (event->reason() != QContextMenuEvent::Keyboard) {
        Q_EMIT menuWanted(widgetAt(event->globalPos()), event->globalPos());
        return;
    }
    QWidget *focus = QApplication::focusWidget();
    if (focus != nullptr && isOfPage(focus))
        Q_EMIT menuWanted(focus, mapToScreen(focus, focus->rect().center()));
}

void ZoomArea::resizeEvent(QResizeEvent *event)
{
    QStackedWidget::resizeEvent(event);
    settle();
}

} // namespace Gallery
