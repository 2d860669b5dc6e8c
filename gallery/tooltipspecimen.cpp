// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "tooltipspecimen.h"

#include <QStyleOptionFrame>
#include <QStylePainter>
#include <QToolTip>

QTipLabel::QTipLabel()
{
    setForegroundRole(QPalette::ToolTipText);
    setBackgroundRole(QPalette::ToolTipBase);
    setPalette(QToolTip::palette());
    setMargin(1 + style()->pixelMetric(QStyle::PM_ToolTipLabelFrameWidth, nullptr, this));
    setFrameStyle(QFrame::NoFrame);
    setIndent(1);
}

void QTipLabel::paintEvent(QPaintEvent *event)
{
    {
        QStylePainter painter(this);
        QStyleOptionFrame option;
        option.initFrom(this);
        painter.drawPrimitive(QStyle::PE_PanelTipLabel, option);
    }
    QLabel::paintEvent(event);
}
