// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef TOOLS_THEMEOPTIONS_H
#define TOOLS_THEMEOPTIONS_H

#include <analysis/themeproject.h>

#include <QCommandLineOption>
#include <QPair>

#include <memory>
#include <optional>

class QCommandLineParser;

/*! \brief The arguments that all commands have in common: which themes are read, and how. */
namespace ThemeOptions
{

/*! \brief The options as all commands that have them declare them. */
QCommandLineOption suffixOption();
QCommandLineOption templatesOption();
QCommandLineOption prefixOption();

/*! \brief Returns what is wrong with the value of `--suffix`; empty if nothing is. */
QString mistakeInSuffix(const QCommandLineParser &parser);

/*! \brief Returns what is wrong with the values of `--templates` and `--prefix`, or an empty text. */
QString mistakeInTemplates(const QCommandLineParser &parser);

/*!
 * \brief Declares FOLDER and the options of every command that reads a project.
 *
 * They are `--suffix`, `--app-dir`, `--templates`, `--no-builtin` and `--prefix`.
 */
void add(QCommandLineParser *parser);

/*!
 * \brief Reads what the arguments of the command called \a name say.
 *
 * \param themes  how many of the arguments behind FOLDER are names of themes: from, to.
 * \param others  how many arguments follow that are something else.
 * \return nothing if the arguments do not do; standard error then says why.
 */
std::optional<ThemeProjectOptions> read(const QString &name, const QCommandLineParser &parser,
                                        QPair<int, int> themes, int others = 0);

/*! \brief Reads the files; if they do not do, returns null, and standard error says why. */
std::unique_ptr<ThemeProject> open(const ThemeProjectOptions &options);

/*! \brief Does both, for a command without further options of a project. */
std::unique_ptr<ThemeProject> readProject(const QString &name, const QCommandLineParser &parser,
                                          QPair<int, int> themes, int others = 0);

/*! \brief Returns the files that \a project was read from, and the images of its themes. */
QStringList files(const ThemeProject &project);

} // namespace ThemeOptions

#endif
