// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_OPTIONS_H
#define GALLERY_OPTIONS_H

#include "appliedtheme.h"

#include <colormath/vision.h>

#include <QStringList>

#include <optional>

namespace Gallery
{

/*! \brief What stands below the pages. */
enum class Pane {
    Inspector,
    Findings,
    Messages,
};

/*! \brief Returns "inspector", "findings" or "messages". */
QString paneName(Pane pane);

/*! \brief Returns the pane called \a name, or nothing. */
std::optional<Pane> paneCalled(const QString &name);

/*! \brief What the command line asks for. */
struct Options {
    ThemeSource source; //!< an empty theme name means the first theme of the folder
    QString formFile; //!< empty: no form
    QString screenshotFolder; //!< empty: open the window
    QStringList pages; //!< empty: all
    QStringList themes; //!< empty: all of the folder
    int scale = 1;
    ColorMath::Vision vision = ColorMath::Vision::Normal; //!< whose eyes to see with
    std::optional<Pane> pane; //!< to open; of the screenshots: the whole window with it
    bool join = false; //!< the themes of a page side by side in one more picture
    bool help = false;
    bool version = false;
    QString error; //!< not empty: what is wrong with the command line
};

/*!
 * \brief Reads \a arguments, the program's name first.
 *
 * \param defaultThemesFolder  taken when `--themes` is not given.
 * \return the options; those that do not fit together, or a page that does not exist, set
 *         Options::error. Needs no application object, prints nothing.
 */
Options readOptions(const QStringList &arguments, const QString &defaultThemesFolder);

/*! \brief Returns the names of all pages, that of the user's form last. */
QStringList pageNames(const Options &options);

/*! \brief Returns the text of `--help`. Needs the application object. */
QString helpText();

} // namespace Gallery

#endif
