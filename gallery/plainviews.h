// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_PLAINVIEWS_H
#define GALLERY_PLAINVIEWS_H

class QWidget;

namespace Gallery
{

// The larger parts of the page of plain widgets. Each is returned without parent, for a layout to take.

QWidget *createTree();
QWidget *createTable();
QWidget *createTabs();
QWidget *createToolBox();
QWidget *createMainWindow();
QWidget *createMdiArea();

} // namespace Gallery

#endif
