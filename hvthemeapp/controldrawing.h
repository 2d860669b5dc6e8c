// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_CONTROLDRAWING_H
#define HVTHEMEAPP_CONTROLDRAWING_H

class QMenu;
class QPainter;
class QPixmap;
class QProgressBar;
class QSlider;
class QStyle;
class QStyleOption;
class QStyleOptionFrame;
class QStyleOptionMenuItem;
class QStyleOptionSizeGrip;
class QStyleOptionSlider;
class QTreeView;

namespace HV
{

/*! \brief Draws a dial in the colours of its palette; no style sheet has rules for one. */
void drawDial(const QStyleOptionSlider &option, QPainter &painter);

/*!
 * \brief Draws the tick marks of \a slider, which style sheets leave out, in the colours of its palette.
 *
 * \param style  places the knob, and so the marks beside it.
 */
void drawTickMarks(const QStyle &style, const QSlider &slider, QPainter &painter);

/*! \brief Draws \a bar, which is an upright one, with its text along it. */
void drawUprightProgress(const QProgressBar &bar, QPainter &painter);

/*!
 * \brief Draws the lines across \a menu and the titles of the sections below them.
 *
 * A line with another height than menuSeparatorHeight() has a rule of its own, and is left alone.
 */
void drawMenuSeparators(const QMenu &menu, QPainter &painter);

/*! \brief How high a line across a menu is, with its title. */
int menuSeparatorHeight(const QStyleOptionMenuItem &option);

/*! \brief Draws before each category of \a tree, a row without a parent, whether it is open. */
void drawCategorySigns(const QTreeView &tree, QPainter &painter);

/*!
 * \brief Returns whether the frame of \a option is raised, sunken or the style's panel, in the colours of
 *        the application's palette. A plain one has the colour that the program gave it.
 */
bool isFlatFrame(const QStyleOptionFrame &option);

/*! \brief Draws the frame or line of \a option flat, in the colour of other dividing lines. */
void drawFlatFrame(const QStyleOptionFrame &option, QPainter &painter);

/*! \brief Returns \a pixmap, an icon's, as it looks on what cannot be used: paler than the others, on
 *         dark and on light grounds. */
QPixmap disabledPixmap(const QPixmap &pixmap);

/*! \brief Draws what the columns of a view of columns are pulled wider by. */
void drawGrip(const QStyleOption &option, QPainter &painter);

/*! \brief Draws what a window is pulled larger by, in any of its corners. */
void drawSizeGrip(const QStyleOptionSizeGrip &option, QPainter &painter);

} // namespace HV

#endif // HVTHEMEAPP_CONTROLDRAWING_H
