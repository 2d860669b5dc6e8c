// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef MAKER_PAIRS_H
#define MAKER_PAIRS_H

#include <QStringList>
#include <QVector>

namespace Maker
{

/*! \brief The looks that are made. */
enum class Look {
    Dark,
    Light,
    Contrast,
};

/*! \brief Returns the look's word in file names and options: "dark", "light" or "contrast". */
QString lookName(Look look);

/*! \brief What a pair has to reach. */
enum class Need {
    Text, //!< 4.5:1, or what is asked for; 7:1 in the contrast look
    Disabled, //!< 3:1
    Mark, //!< an edge, a sign, the focus: 3:1
    Line, //!< what only divides or frames others, 1.3:1; 3:1 in the contrast look
    EdgeOfGround, //!< an edge in a colour that is the ground of text as well: 3:1 where text leaves it
};

/*! \brief Two colour keys that the templates put together. */
struct ColorPair {
    QString foreground;
    QStringList layers; //!< what lies behind it, the lowest first; opaque together
    Need need;
    QString selector; //!< of an EdgeOfGround: a rule that draws the edge
};

/*!
 * \brief Returns all pairs of the templates, the built-in ones and the application library's.
 *
 * A pair on any surface stands here eight times, once for each BackgroundColor_n.
 */
const QVector<ColorPair> &colorPairs();

} // namespace Maker

#endif
