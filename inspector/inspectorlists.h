// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef INSPECTOR_INSPECTORLISTS_H
#define INSPECTOR_INSPECTORLISTS_H

#include <inspector/inspection.h>

class QTreeWidget;
class QTreeWidgetItem;

/*! \brief What the lists of the inspector show, and what their items stand for. */
namespace InspectorLists
{

/*! \brief Data of an item's first column. */
enum Role {
    Declarations = Qt::UserRole, //!< offsets of those that have users
    Name, //!< how to call what has users
    Users, //!< a UserKind
    Key, //!< the key whose value can be changed
    KeyKind, //!< its Kind
    Property, //!< the property that the key was found for
    Reason, //!< why there is no key, in a sentence
};

/*! \brief What an item has users of; declarations are looked for when asked for. */
enum UserKind {
    OfDeclarations,
    OfKey,
    OfPalette
};

void showRules(QTreeWidget *list, const Inspection &inspection, const InspectedSheet &sheet);
void showValues(QTreeWidget *list, const Inspection &inspection, const InspectedSheet &sheet);
void showBox(QTreeWidget *list, const Inspection &inspection);
/*! \brief Shows all values of the theme, its palette first. */
void showTheme(QTreeWidget *list, const InspectedSheet &sheet);

/*! \brief Returns the declarations that \a item has users of. */
QSet<int> declarationsOf(const QTreeWidgetItem *item, const InspectedSheet &sheet);

/*! \brief Returns what tells \a item from others, also after the list was filled anew; empty for null. */
QString idOf(const QTreeWidgetItem *item);

/*! \brief Returns the item with that \a id, or null. */
QTreeWidgetItem *find(const QTreeWidget *list, const QString &id);

} // namespace InspectorLists

#endif
