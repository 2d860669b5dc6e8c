// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_APPLICATIONPANELS_H
#define GALLERY_APPLICATIONPANELS_H

#include <QString>

class QPushButton;
class QWidget;

namespace Gallery
{

// The parts of the application page. Each is returned without parent, for a layout to take.

QPushButton *createImageButton(const char *image, bool checked = false);
QWidget *createLine(Qt::Orientation orientation);

QWidget *createTitleBar();
QWidget *createMenuRow();
QWidget *createToolRow();
QWidget *createFixturePanel();
QWidget *createPatchPanel();
QWidget *createPropertyPanel();
QWidget *createStatusRow();
QWidget *createDialog();

} // namespace Gallery

#endif
