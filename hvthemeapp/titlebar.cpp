// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "titlebar.h"

#include <QIcon>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QWidget>

namespace HV
{

namespace
{

struct Button {
    QStyle::SubControl part;
    QStyle::StandardPixmap icon;
    Qt::WindowType hint; // without which the window has no such button
};

const Button buttons[] = {
    {QStyle::SC_TitleBarCloseButton, QStyle::SP_TitleBarCloseButton, Qt::WindowSystemMenuHint},
    {QStyle::SC_TitleBarMinButton, QStyle::SP_TitleBarMinButton, Qt::WindowMinimizeButtonHint},
    {QStyle::SC_TitleBarMaxButton, QStyle::SP_TitleBarMaxButton, Qt::WindowMaximizeButtonHint},
    {QStyle::SC_TitleBarNormalButton, QStyle::SP_TitleBarNormalButton, Qt::WindowMinMaxButtonsHint},
    {QStyle::SC_TitleBarShadeButton, QStyle::SP_TitleBarShadeButton, Qt::WindowShadeButtonHint},
    {QStyle::SC_TitleBarUnshadeButton, QStyle::SP_TitleBarUnshadeButton, Qt::WindowShadeButtonHint},
    {QStyle::SC_TitleBarContextHelpButton, QStyle::SP_TitleBarContextHelpButton,
     Qt::WindowContextHelpButtonHint},
};

// Only the buttons that lead out of the state in which the window is.
bool isShown(const Button &button, const QStyleOptionTitleBar &option)
{
    if (!(option.subControls & button.part) || !(option.titleBarFlags & button.hint))
        return false;
    const bool isMinimized = (option.titleBarState & Qt::WindowMinimized) != 0;
    const bool isMaximized = (option.titleBarState & Qt::WindowMaximized) != 0;
    switch (button.part) {
    case QStyle::SC_TitleBarMinButton:
    case QStyle::SC_TitleBarShadeButton:
        return !isMinimized;
    case QStyle::SC_TitleBarMaxButton:
        return !isMaximized;
    case QStyle::SC_TitleBarNormalButton:
        return (isMinimized && (option.titleBarFlags & Qt::WindowMinimizeButtonHint))
            || (isMaximized && (option.titleBarFlags & Qt::WindowMaximizeButtonHint));
    case QStyle::SC_TitleBarUnshadeButton:
        return isMinimized;
    default:
        return true;
    }
}

// Of a window in use, and not in a disabled one.
bool isInUse(const QStyleOptionTitleBar &option)
{
    return option.titleBarState & QStyle::State_Active && option.state & QStyle::State_Enabled;
}

void drawIcon(QPainter &painter, const QIcon &icon, const QRect &area, bool isActive)
{
    const int side = qMin(16, qMin(area.width(), area.height()));
    QRect target(0, 0, side, side);
    target.moveCenter(area.center());
    icon.paint(&painter, target, Qt::AlignCenter, isActive ? QIcon::Normal : QIcon::Disabled);
}

void drawButtons(const QStyle &style, const QStyleOptionTitleBar &option, QPainter &painter,
                 const QWidget *widget, const QColor &ink)
{
    const bool isActive = isInUse(option);
    for (const Button &button : buttons) {
        if (!isShown(button, option))
            continue;
        const QRect area = style.subControlRect(QStyle::CC_TitleBar, &option, button.part, widget);
        if (!area.isValid())
            continue;
        if (option.activeSubControls & button.part
            && option.state & (QStyle::State_MouseOver | QStyle::State_Sunken)) {
            QColor veil = ink;
            veil.setAlphaF(option.state & QStyle::State_Sunken ? 0.25F : 0.12F);
            painter.fillRect(area, veil);
        }
        drawIcon(painter, style.standardIcon(button.icon, &option, widget), area, isActive);
    }
}

} // namespace

void drawTitleBar(const QStyle &style, const QStyleOptionTitleBar &option, QPainter &painter,
                  const QWidget *widget)
{
    const bool isActive = isInUse(option);
    // A window keeps the palette of its title bar for itself, from one look to the next.
    const QPalette palette = widget ? widget->palette() : option.palette;
    const QColor &ink =
        palette.color(isActive ? QPalette::Active : QPalette::Disabled, QPalette::WindowText);
    painter.save();
    painter.fillRect(option.rect, palette.color(QPalette::Window));
    if (isActive) {
        QRect edge = option.rect; // tells the window in use from the others
        edge.setHeight(2);
        painter.fillRect(edge, palette.color(QPalette::Highlight));
    }

    const QRect label =
        style.subControlRect(QStyle::CC_TitleBar, &option, QStyle::SC_TitleBarLabel, widget);
    painter.setPen(ink);
    painter.drawText(
        label.adjusted(2, 0, -2, 0), Qt::AlignCenter | Qt::TextSingleLine,
        painter.fontMetrics().elidedText(option.text, Qt::ElideRight, label.width() - 4));

    if (option.subControls & QStyle::SC_TitleBarSysMenu
        && option.titleBarFlags & Qt::WindowSystemMenuHint) {
        const QIcon icon = option.icon.isNull()
            ? style.standardIcon(QStyle::SP_TitleBarMenuButton, &option, widget)
            : option.icon;
        drawIcon(
            painter, icon,
            style.subControlRect(QStyle::CC_TitleBar, &option, QStyle::SC_TitleBarSysMenu, widget),
            isActive);
    }
    drawButtons(style, option, painter, widget, ink);
    painter.restore();
}

} // namespace HV
