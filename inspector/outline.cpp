// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <inspector/outline.h>

#include <QPaintEvent>
#include <QPainter>
#include <QSplitter>
#include <QWidget>

namespace
{

constexpr int thickness = 3;

class Frame final : public QWidget
{
    Q_OBJECT

public:
    Frame(QWidget *window, QWidget *framed, const QRect &rect)
        : QWidget(window)
        , m_framed(framed)
        , m_rect(rect)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_NoSystemBackground);
        setFocusPolicy(Qt::NoFocus);
        connect(framed, &QObject::destroyed, this, &QWidget::hide);
        for (QWidget *each = framed; each && each != window; each = each->parentWidget())
            each->installEventFilter(this);
        follow();
    }

    bool eventFilter(QObject *object, QEvent *event) override
    {
        const auto type = event->type();
        if (type == QEvent::Move || type == QEvent::Resize || type == QEvent::Show
            || type == QEvent::Hide)
            follow();
        return QWidget::eventFilter(object, event);
    }

protected:
    // Not a rule and not a palette decides its colours, and one of them stands out from any ground.
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), QColor(255, 255, 255));
        painter.setPen(QPen(QColor(220, 0, 120), 2));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }

private:
    // What scrolls in a view is seen only as far as the view goes.
    void follow()
    {
        QWidget *window = parentWidget();
        if (!m_framed || !window->isAncestorOf(m_framed)) { // dead, or moved to another window
            hide();
            return;
        }
        const QRect place(m_framed->mapTo(window, m_rect.topLeft()), m_rect.size());
        QRect seen = window->rect();
        for (const QWidget *each = m_framed->parentWidget(); each && each != window;
             each = each->parentWidget())
            seen &= QRect(each->mapTo(window, QPoint()), each->size());
        setGeometry(place);
        const int t = qMin(thickness, qMin(place.width(), place.height()) / 2);
        const QRegion ring = QRegion(rect()) - QRegion(rect().adjusted(t, t, -t, -t));
        const QRegion seenRing = ring & seen.translated(-place.topLeft());
        setMask(seenRing);
        setVisible(m_framed->isVisible() && !seenRing.isEmpty()); // an empty mask would be none
    }

    QPointer<QWidget> m_framed;
    const QRect m_rect;
};

} // namespace

Outline::~Outline()
{
    clear();
}

void Outline::add(QWidget *widget, const QRect &rect)
{
    QWidget *window = widget->window();
    // A splitter takes every child for one of its panes.
    if (!widget->isVisible() || qobject_cast<QSplitter *>(window))
        return;
    const QRect area = rect.isEmpty() ? widget->rect() : rect & widget->rect();
    auto *frame = new Frame(window, widget, area);
    frame->raise();
    m_frames.append(frame);
}

void Outline::clear()
{
    for (const QPointer<QWidget> &frame : qAsConst(m_frames))
        delete frame.data();
    m_frames.clear();
}

int Outline::count() const
{
    int count = 0;
    for (const QPointer<QWidget> &frame : m_frames)
        count += frame ? 1 : 0;
    return count;
}

bool Outline::isFrame(const QWidget *widget)
{
    return qobject_cast<const Frame *>(widget) != nullptr;
}

#include "outline.moc"
