// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "heldstate.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHoverEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>

namespace Gallery
{

namespace
{

// QWidget::hasFocus() asks the focus proxy, so a widget whose proxy is whichever widget has the
// focus looks focused itself, through Qt's own code.
void followFocus(QWidget *widget, QWidget *focused)
{
    if (focused == nullptr || focused == widget)
        return;
    widget->setFocusProxy(focused);
    widget->update();
}

// A view forgets the hovered item at every layout, so it is told again before each paint.
class ItemHoverHolder final : public QObject
{
public:
    ItemHoverHolder(QAbstractItemView *view, int row, int column)
        : QObject(view)
        , m_view(view)
        , m_row(row)
        , m_column(column)
    {
        view->viewport()->installEventFilter(this);
    }

    bool eventFilter(QObject *viewport, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            const QModelIndex index = m_view->model()->index(m_row, m_column);
            const QPointF position = m_view->visualRect(index).center();
            QHoverEvent hover(QEvent::HoverMove, position, position);
            QCoreApplication::sendEvent(viewport, &hover);
        }
        return false;
    }

private:
    QAbstractItemView *m_view;
    int m_row;
    int m_column;
};

} // namespace

void makeInert(QWidget *widget)
{
    widget->setAttribute(Qt::WA_TransparentForMouseEvents);
    widget->setFocusPolicy(Qt::NoFocus);
    const auto children = widget->findChildren<QWidget *>();
    for (QWidget *child : children)
        child->setFocusPolicy(Qt::NoFocus);
}

void holdHover(QWidget *widget)
{
    widget->setAttribute(Qt::WA_Hover);
    widget->setAttribute(Qt::WA_UnderMouse);
    // A button believes in the mouse only once it has moved within the part that can be clicked.
    widget->setMouseTracking(true);
    widget->adjustSize();
    const QPointF position(6, widget->height() / 2.0);
    QMouseEvent move(QEvent::MouseMove, position, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &move);
}

void holdFocus(QWidget *widget)
{
    followFocus(widget, QApplication::focusWidget());
    QObject::connect(qApp, &QApplication::focusChanged, widget,
                     [widget](QWidget *, QWidget *now) { followFocus(widget, now); });
}

void holdItemHover(QAbstractItemView *view, int row, int column)
{
    new ItemHoverHolder(view, row, column); // owned by the view
}

void OpenComboBox::paintEvent(QPaintEvent *)
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.state |= QStyle::State_On;
    QStylePainter painter(this);
    painter.setPen(palette().color(QPalette::Text));
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

ComboBoxList::ComboBoxList(int selectedRow, Delegate delegate)
    : m_comboBox(new QComboBox(this))
{
    m_comboBox->hide();
    m_comboBox->addItems({"Front truss", "Back truss", "Floor"});
    if (delegate == Delegate::Styled)
        m_comboBox->setItemDelegate(new QStyledItemDelegate(m_comboBox));
    QAbstractItemView *view = m_comboBox->view();
    view->setCurrentIndex(m_comboBox->model()->index(selectedRow, 0));
    setFixedSize(150, delegate == Delegate::Styled ? 76 : 92);
}

void ComboBoxList::paintEvent(QPaintEvent *)
{
    // The view has to stay a child of its combo box for the selectors to match, and the combo
    // box's container is a window; hence a picture of it.
    QWidget *container = m_comboBox->view()->parentWidget();
    container->resize(size());
    QPainter(this).drawPixmap(0, 0, container->grab());
}

} // namespace Gallery
