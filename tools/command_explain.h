// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef TOOLS_COMMAND_EXPLAIN_H
#define TOOLS_COMMAND_EXPLAIN_H

#include <QStringList>

/*!
 * \brief `hvtheme explain`: where a value comes from and what uses it.
 *
 * \param arguments  what stands behind the name of the command.
 * \return 0 if done, 1 if the theme has no such key, 2 for wrong usage or nothing to read.
 */
int runExplain(const QStringList &arguments);

#endif
