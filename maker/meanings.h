// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef MAKER_MEANINGS_H
#define MAKER_MEANINGS_H

#include <maker/lookcolors.h>

#include <functional>

namespace Maker
{

/*! \brief Two colour keys whose meanings must not be confused. */
struct MeaningPair {
    const char *first;
    const char *second;
};

/*! \brief Returns the pairs: error, warning, success and highlight against one another. */
const QVector<MeaningPair> &meaningPairs();

/*!
 * \brief The least CIEDE2000 distance of two meanings for every kind of vision.
 *
 * A difference that one just sees is about 1. To an eye that lacks one kind of cone, four meanings
 * on one surface differ by little but lightness; 6 is what four tones that all carry text leave
 * between neighbours.
 */
constexpr double meaningDistance = 6.0;

/*! \brief Tells whether a key may have a text. */
using IsAllowed = std::function<bool(const QString &key, const QString &text)>;

/*!
 * \brief Moves the colours of error, warning, success and highlight along their runs of tones until
 *        they are at meaningDistance for all eyes, as few steps as will do.
 *
 * \return false if no choice of tones that are allowed reaches it; the best one is made then.
 */
bool separateMeanings(LookColors *colors, const IsAllowed &isAllowed);

} // namespace Maker

#endif
