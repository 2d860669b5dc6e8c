// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_PLAINPAGE_H
#define GALLERY_PLAINPAGE_H

class QWidget;

namespace Gallery
{

// What a program has that gives its widgets no property of the templates. Each returns a widget
// without parent, which the caller owns.

/*! \brief Buttons, fields, views, tabs, groups and a main window with its bars. */
QWidget *createPlainPage();

/*! \brief Qt's own dialogs, as parts of the page. */
QWidget *createDialogsPage();

} // namespace Gallery

#endif
