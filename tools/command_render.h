// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef TOOLS_COMMAND_RENDER_H
#define TOOLS_COMMAND_RENDER_H

#include <QStringList>

/*!
 * \brief `hvtheme render`: the style sheet that an application gets for a theme.
 *
 * \param arguments  what stands behind the name of the command.
 * \return 0 if done, 1 if the style sheet would never be done, 2 for wrong usage or nothing to
 *         read.
 */
int runRender(const QStringList &arguments);

#endif
