// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEME_TESTS_WIDGETZOO_H
#define HVTHEME_TESTS_WIDGETZOO_H

#include <QVector>
#include <QWidget>

/*! One window of every class of Qt Widgets in every state, in pages; and each standard dialog. */
namespace Zoo
{

struct Page {
    const char *name; /*!< fit for a row of a test and for a file */
    QWidget *(*make)(); /*!< a new window, the caller's; look at it after settle() */
};

/*! The pages with widgets, bars and menus. */
const QVector<Page> &pages();

/*! The standard dialogs, none of them a native one. */
const QVector<Page> &dialogs();

/*!
 * Does what showing \a window would do, without a window on any screen: polish, layout, focus. The
 * widgets that stand for `:focus` then have it, all at once.
 */
void settle(QWidget *window);

/*! \a window after settle(), and the pop-ups that it has open. */
QList<QWidget *> windows(QWidget *window);

} // namespace Zoo

#endif
