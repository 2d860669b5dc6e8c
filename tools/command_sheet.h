// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef TOOLS_COMMAND_SHEET_H
#define TOOLS_COMMAND_SHEET_H

#include <QStringList>

/*!
 * \brief `hvtheme sheet`: themes side by side as a picture or a page to look at.
 *
 * \param arguments  what stands behind the name of the command.
 * \return 0 if done, 2 for wrong usage or nothing to read.
 */
int runSheet(const QStringList &arguments);

#endif
