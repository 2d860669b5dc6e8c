// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef TOOLS_COMMANDLINE_H
#define TOOLS_COMMANDLINE_H

#include <QCommandLineParser>
#include <QStringList>

#include <optional>

/*! \brief The exit codes of every command. */
enum ExitCode {
    ExitDone = 0, //!< nothing to object to
    ExitFindings = 1, //!< the command worked and there is something to object to
    ExitUnusable = 2, //!< wrong usage, or nothing that can be read
};

/*!
 * \brief Parses the arguments of the command called \a name with a parser that knows its options.
 *
 * Adds `--help`. \return the exit code to end with, after the help went to standard output or the
 * mistake to standard error; nothing if the command is to go on.
 */
std::optional<int> parseArguments(QCommandLineParser &parser, const QString &name,
                                  const QStringList &arguments);

/*! \brief Says what is wrong with the usage of the command called \a name; returns ExitUnusable. */
int usageError(const QString &name, const QString &message);

#endif
