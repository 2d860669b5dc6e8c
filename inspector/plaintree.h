// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef INSPECTOR_PLAINTREE_H
#define INSPECTOR_PLAINTREE_H

#include <inspector/ownlook.h>

#include <QPainter>

/*!
 * \brief A tree whose arrows no theme reaches.
 *
 * They are what themes give pictures to, and no rule takes a picture back to Qt's own.
 */
template<typename Tree>
class PlainTree : public Tree
{
public:
    using Tree::Tree;

protected:
    void drawBranches(QPainter *painter, const QRect &rect, const QModelIndex &index) const override
    {
        if (!this->model()->hasChildren(index))
            return;
        const QPointF center(rect.right() - this->indentation() / 2.0, rect.center().y() + 0.5);
        const bool isOpen = this->isExpanded(index);
        const QPolygonF arrow = isOpen ? QPolygonF({{-4.0, -2.0}, {4.0, -2.0}, {0.0, 3.0}})
                                       : QPolygonF({{-2.0, -4.0}, {-2.0, 4.0}, {3.0, 0.0}});
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(Qt::NoPen);
        painter->setBrush(inspectorPalette().color(QPalette::Text));
        painter->drawPolygon(arrow.translated(center));
        painter->restore();
    }
};

#endif
