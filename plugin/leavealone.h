// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef PLUGIN_LEAVEALONE_H
#define PLUGIN_LEAVEALONE_H

#include <QStringList>

/*!
 * \brief Returns the lists of programs that are to keep the look of their own, the weakest first.
 *
 * They are the built-in one, the files `hvtheme/leave-alone` of the system's and of the user's
 * configuration folders, and the environment variable `HVTHEME_LEAVE_ALONE`, with colons for line
 * ends. A line is the file name of a program; `!` in front takes it off the list, and `#` starts a
 * comment.
 */
QStringList leaveAloneLines();

/*! \brief Tells whether the last of \a lines that is about one of the \a names puts it on the list. */
bool isLeftAlone(const QStringList &names, const QStringList &lines);

/*! \brief Returns the names of the running program: of its file, and of its script if it has one. */
QStringList programNames();

#endif
