// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef INSPECTOR_WIDGETTREE_H
#define INSPECTOR_WIDGETTREE_H

#include <QHash>
#include <QPointer>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QWidget>

#include <functional>

/*!
 * \brief The program's widgets as a tree, with a filter over class, object name, properties and text.
 *
 * Taken when refresh() is called; widgets that die meanwhile are null.
 */
class WidgetTree : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    /*! \brief Leaves out those widgets that \a isOwn says yes to, with all below them. */
    explicit WidgetTree(std::function<bool(const QWidget *)> isOwn, QObject *parent = nullptr);

    /*! \brief Takes the widgets as they are now. */
    void refresh();

    QWidget *widgetAt(const QModelIndex &index) const;
    QModelIndex indexOf(const QWidget *widget) const;

    /*! \brief Returns all widgets of the program in the order of the tree. */
    QList<QWidget *> widgets() const;

private:
    void append(QStandardItem *parent, QWidget *widget, QSet<const QWidget *> *known);

    const std::function<bool(const QWidget *)> m_isOwn;
    QStandardItemModel m_items;
    QVector<QPointer<QWidget>> m_widgets;
    QHash<const QWidget *, QStandardItem *> m_itemOf;
};

#endif
