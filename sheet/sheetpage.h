// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef SHEET_SHEETPAGE_H
#define SHEET_SHEETPAGE_H

#include <QByteArray>

class SheetModel;

/*!
 * \brief Returns the sheet as one HTML file in UTF-8 that loads nothing: images are in it.
 *
 * No script; headings, tables and alternative texts carry all that the colours say.
 */
QByteArray sheetPage(const SheetModel &model);

#endif
