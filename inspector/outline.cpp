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
    explicit Frame(QWidget *window)
        : QWidget(window)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_NoSystemBackground);
        setFocusPolicy(Qt::NoFocus);
    }

    void setRect(const QRect &rect)
    {
        setGeometry(rect);
        const int t = qMin(thickness, qMin(rect.width(), rect.height()) / 2);
        setMask(QRegion(this->rect()) - QRegion(this->rect().adjusted(t, t, -t, -t)));
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
    auto *frame = new Frame(window);
    const QRect area = rect.isEmpty() ? widget->rect() : rect & widget->rect();
    frame->setRect(QRect(widget->mapTo(window, area.topLeft()), area.size()));
    frame->show();
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
