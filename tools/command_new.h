// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef TOOLS_COMMAND_NEW_H
#define TOOLS_COMMAND_NEW_H

#include <QStringList>

/*!
 * \brief `hvtheme new FOLDER --brand COLOUR`: writes a folder of themes made of a few colours.
 *
 * \param arguments  what follows the command's name.
 * \return an ExitCode.
 */
int runNew(const QStringList &arguments);

#endif
