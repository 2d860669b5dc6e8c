// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef TOOLS_COMMAND_VALUES_H
#define TOOLS_COMMAND_VALUES_H

#include <QStringList>

/*!
 * \brief `hvtheme values`: everything that a theme has in store, as a table, JSON or CSV.
 *
 * \param arguments  what stands behind the name of the command.
 * \return 0 if done, 2 for wrong usage or nothing to read.
 */
int runValues(const QStringList &arguments);

#endif
