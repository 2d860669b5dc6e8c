// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef TOOLS_COMMAND_CHECK_H
#define TOOLS_COMMAND_CHECK_H

#include <QStringList>

/*!
 * \brief `hvtheme check`: reports what is wrong with the themes of a folder.
 *
 * \param arguments  what stands behind the name of the command.
 * \return 0 if clean, 1 if there are findings, 2 for wrong usage or nothing to read.
 */
int runCheck(const QStringList &arguments);

#endif
