// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_WINDOWPARTS_H
#define GALLERY_WINDOWPARTS_H

#include <colormath/vision.h>

class QComboBox;
class QWidget;

namespace Gallery
{

class MessageList;

/*! \brief Makes the chooser of themes, empty. */
QComboBox *createThemeChooser();
/*! \brief Makes the chooser of eyes; its rows are those of ColorMath::Vision. */
QComboBox *createEyes(ColorMath::Vision vision);
/*! \brief Makes the chooser of sizes; its rows are ZoomArea::levels(). */
QComboBox *createZooms();
/*! \brief Makes the bar with the choosers, which it takes. */
QWidget *createHeader(QComboBox *themes, QComboBox *eyes, QComboBox *zooms);
/*! \brief Makes the pane that lists \a log. */
QWidget *createMessagePane(MessageList *log);

} // namespace Gallery

#endif
