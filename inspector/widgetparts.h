// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef INSPECTOR_WIDGETPARTS_H
#define INSPECTOR_WIDGETPARTS_H

#include <QRect>
#include <QSet>
#include <QString>
#include <QVector>

class QWidget;

/*! \brief A sub-control as a widget shows it now, in the states that only its painter knows. */
struct WidgetPart {
    QString subControl; //!< such as "item"; empty for the widget itself
    QString label; //!< which of several: the text of a tab, an item, a menu's entry
    QRect rect; //!< in the widget; empty where the style does not tell
    QSet<QString> states; //!< all of them

    bool operator==(const WidgetPart &other) const
    {
        return subControl == other.subControl && states == other.states && rect == other.rect;
    }
};

/*!
 * \brief Returns the widget itself and the sub-controls that \a widget shows, the widget first.
 *
 * Of items in views and the like only those that can be seen, and no more than a few hundred.
 */
QVector<WidgetPart> widgetParts(const QWidget *widget);

/*!
 * \brief Returns the widget whose rules \a widget is painted with: itself or one around it.
 *
 * Beside what StyleElement::styledWidget() knows these are the helpers that Qt paints as a part of
 * their parent: handles of splitters, tabs of tool boxes, the frame of a combo box's list.
 */
QWidget *paintedAs(QWidget *widget);

/*! \brief Returns the smallest part at \a position, the widget itself if there is no other. */
WidgetPart widgetPartAt(const QWidget *widget, const QPoint &position);

#endif
