// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef SHEET_SHEETPICTURE_H
#define SHEET_SHEETPICTURE_H

#include <QByteArray>

class QString;
class SheetModel;

/*!
 * \brief Returns the sheet as a PNG file; needs a QGuiApplication.
 *
 * \return nothing, with one sentence in \a error, if it would be larger than a picture can be.
 */
QByteArray sheetPicture(const SheetModel &model, QString *error);

#endif
