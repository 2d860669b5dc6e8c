// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef TOOLS_THEMEOPTIONS_H
#define TOOLS_THEMEOPTIONS_H

#include <analysis/themeproject.h>

#include <QPair>

#include <memory>

class QCommandLineParser;

/*! \brief The arguments that the commands which look at single themes have in common. */
namespace ThemeOptions
{

/*! \brief Declares FOLDER and the options that say how themes are read. */
void add(QCommandLineParser *parser);

/*! \brief Declares `--templates` and `--prefix`. */
void addTemplates(QCommandLineParser *parser);

/*!
 * \brief Reads what the arguments of the command called \a name say.
 *
 * \param themes  how many of the arguments behind FOLDER are names of themes: from, to.
 * \param others  how many arguments follow that are something else.
 * \return nothing if the arguments or the files do not do; standard error then says why.
 */
std::unique_ptr<ThemeProject> read(const QString &name, const QCommandLineParser &parser,
                                   QPair<int, int> themes, int others = 0);

} // namespace ThemeOptions

#endif
