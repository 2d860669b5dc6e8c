// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_QTOPTIONS_H
#define GALLERY_QTOPTIONS_H

#include <QStringList>

namespace Gallery
{

/*!
 * \brief Returns \a arguments, the program's name first, without those that the application object of
 *        Qt takes for itself, as `-style windows` and `--reverse`.
 *
 * For who reads a command line before there is an application object.
 */
QStringList withoutOptionsOfQt(const QStringList &arguments);

} // namespace Gallery

#endif
