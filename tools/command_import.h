// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef TOOLS_COMMAND_IMPORT_H
#define TOOLS_COMMAND_IMPORT_H

#include <QStringList>

/*!
 * \brief `hvtheme import FILE FOLDER`: makes a folder of themes of design tokens.
 *
 * \param arguments  what follows the command's name.
 * \return an ExitCode.
 */
int runImport(const QStringList &arguments);

#endif
