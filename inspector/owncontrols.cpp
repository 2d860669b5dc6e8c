// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <inspector/owncontrols.h>

#include <inspector/ownlook.h>

#include <QPainter>
#include <QStyleOption>

namespace
{

void drawArrow(QWidget *widget, const QRect &rect, bool isUp)
{
    const qreal height = isUp ? -1.5 : 1.5;
    QPainter painter(widget);
    painter.setRenderHint(QPainter::Antialiasing);
    const auto group = widget->isEnabled() ? QPalette::Active : QPalette::Disabled;
    painter.setPen(QPen(inspectorPalette().color(group, QPalette::Text), 1.5, Qt::SolidLine,
                        Qt::RoundCap, Qt::RoundJoin));
    painter.translate(QRectF(rect).center());
    const QPointF arrow[] = {{-3, -height}, {0, height}, {3, -height}};
    painter.drawPolyline(arrow, 3);
}

} // namespace

void OwnCheckBox::paintEvent(QPaintEvent *event)
{
    QCheckBox::paintEvent(event);
    if (!isChecked())
        return;
    QStyleOptionButton option;
    initStyleOption(&option);
    const QRectF box = style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, this);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.translate(box.center());
    const QPointF tick[] = {{-3, 0.2}, {-1, 2.4}, {3.2, -2.6}};
    painter.drawPolyline(tick, 3);
}

void OwnComboBox::paintEvent(QPaintEvent *event)
{
    QComboBox::paintEvent(event);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QRect rect =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, this);
    drawArrow(this, rect, false);
}

void OwnSpinBox::paintEvent(QPaintEvent *event)
{
    QSpinBox::paintEvent(event);
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    const auto rect = [&](QStyle::SubControl part) {
        return style()->subControlRect(QStyle::CC_SpinBox, &option, part, this);
    };
    drawArrow(this, rect(QStyle::SC_SpinBoxUp), true);
    drawArrow(this, rect(QStyle::SC_SpinBoxDown), false);
}
