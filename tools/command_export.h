// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef TOOLS_COMMAND_EXPORT_H
#define TOOLS_COMMAND_EXPORT_H

#include <QStringList>

/*!
 * \brief `hvtheme export FOLDER THEME --format FORMAT`: writes a theme in a format of others.
 *
 * \param arguments  what follows the command's name.
 * \return an ExitCode.
 */
int runExport(const QStringList &arguments);

#endif
