// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_TITLEBAR_H
#define HVTHEMEAPP_TITLEBAR_H

class QPainter;
class QStyle;
class QStyleOptionTitleBar;
class QWidget;

namespace HV
{

/*!
 * \brief Draws the title bar of a window inside a window in the colours of its palette.
 *
 * \param style  places the parts and gives the icons of the buttons.
 */
void drawTitleBar(const QStyle &style, const QStyleOptionTitleBar &option, QPainter &painter,
                  const QWidget *widget);

} // namespace HV

#endif // HVTHEMEAPP_TITLEBAR_H
