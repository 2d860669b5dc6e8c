// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef INSPECTOR_USAGE_H
#define INSPECTOR_USAGE_H

#include <inspector/inspectedsheet.h>
#include <inspector/widgetparts.h>

#include <QPointer>
#include <QWidget>

/*! \brief A widget, or a part of one, that a declaration decides something for. */
struct StyleUser {
    QPointer<QWidget> widget;
    WidgetPart part;
};

/*!
 * \brief Returns which of \a widgets have a property from one of \a declarations, as they are now.
 *
 * \param declarations  offsets in the text of \a sheet.
 */
QVector<StyleUser> usersOf(const QSet<int> &declarations, const QList<QWidget *> &widgets,
                           const InspectedSheet &sheet);

#endif
