// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef TOOLS_COMMAND_RUN_H
#define TOOLS_COMMAND_RUN_H

/*!
 * \brief `hvtheme run`: becomes a program that has a theme.
 *
 * \param argc  number of words that stand behind the name of the command.
 * \param argv  these words, as the system gave them, for the program must get its arguments byte for
 *              byte; a null pointer ends them.
 * \return only if there is no program to become: 127 if it is not found, 126 if it cannot be
 *         executed, 2 for wrong usage or if the plugin is missing, 0 after the help.
 */
int runProgram(int argc, char **argv);

/*! \brief Carries out `hvtheme inspect`: runProgram() with the inspector open. */
int inspectProgram(int argc, char **argv);

#endif
