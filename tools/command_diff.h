// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef TOOLS_COMMAND_DIFF_H
#define TOOLS_COMMAND_DIFF_H

#include <QStringList>

/*!
 * \brief `hvtheme diff`: how the values of two themes differ.
 *
 * \param arguments  what stands behind the name of the command.
 * \return 0 if they are the same, 1 if they differ, 2 for wrong usage or nothing to read.
 */
int runDiff(const QStringList &arguments);

#endif
