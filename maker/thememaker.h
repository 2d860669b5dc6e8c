// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef MAKER_THEMEMAKER_H
#define MAKER_THEMEMAKER_H

#include <format/themepath.h>
#include <maker/pairs.h>
#include <maker/tones.h>

#include <QByteArray>

namespace Maker
{

/*! \brief What a folder of themes is to be. */
struct Order {
    Parameters parameters;
    QVector<Look> looks{Look::Dark, Look::Light, Look::Contrast};
    /*!
     * \brief Stands in the display names, "Sepia dark", and in the file names, `sepia-dark.theme`.
     *
     * Letters, digits, spaces, `-` and `_` in ASCII; empty for plain `dark.theme`.
     */
    QString name;
    QString suffix = defaultThemeSuffix(); //!< of the files, `theme` in the names above
};

/*! \brief A theme file that is not written yet. */
struct MadeFile {
    QString fileName; //!< without a folder
    QByteArray content;
};

struct MadeThemes {
    QVector<MadeFile> files; //!< the default file first
    QStringList notes; //!< one sentence for each wish that could not be fulfilled, with its look
};

/*!
 * \brief Makes a default file and one file for each look, without image files: the application
 *        library has its own, `hvtheme_add_icons()` makes others.
 *
 * The text of every pair of Maker::colorPairs() reaches its ratio, for any brand and any neutral
 * colour; what cannot be had stands in the notes.
 */
MadeThemes makeThemes(const Order &order);

/*! \brief Tells whether \a name can be an Order's name; an empty one can. */
bool isThemeName(const QString &name);

/*! \brief Returns what is wrong with \a name, for a reader, or a null text if it is a theme's name. */
QString themeNameMistake(const QString &name);

/*! \brief Returns the name that files of the set or theme \a name begin with: "stage-light". */
QString themeFileBaseName(const QString &name);

} // namespace Maker

#endif
