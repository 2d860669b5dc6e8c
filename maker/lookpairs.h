// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef MAKER_LOOKPAIRS_H
#define MAKER_LOOKPAIRS_H

#include <maker/lookcolors.h>

namespace Maker
{

/*!
 * \brief The pairs that a look has all keys of, and what a change of a colour would make of them.
 *
 * Keeps a reference to the colours, which may change between two questions.
 */
class LookPairs
{
public:
    LookPairs(Look look, double textContrast, const LookColors &colors);

    const QVector<ColorPair> &pairs() const { return m_pairs; }
    double required(Need need) const { return requiredRatio(need, m_look, m_textContrast); }
    double required(const ColorPair &pair) const { return required(pair.need); }
    bool holds(const ColorPair &pair) const { return m_colors.ratio(pair) >= required(pair); }

    /*! \brief Tells whether all pairs of \a key hold with another text. */
    bool canHave(const QString &key, const QString &text) const;

    /*! \brief Tells whether no pair of \a key that has to hold would fall short by more than now. */
    bool isNoWorse(const QString &key, const QString &text) const;

    /*! \brief Returns the least ratio of those pairs of \a key that would not hold, else 21. */
    double worstRatio(const QString &key, const QString &text) const;

    /*! \brief Tells whether the change makes \a pair hold, and none of the key's others worse that
     *         has to hold; the edge of a ground gives way to the text on it. */
    bool isRemedy(const ColorPair &pair, const QString &key, const QString &text) const;

    /*! \brief What the texts on a colour leave to an edge of the same colour. */
    struct Room {
        double ratio; //!< the most that a colour of any lightness has; 0 if none carries the texts
        QString text; //!< the key that takes most of it, or empty
    };

    /*! \brief Returns the room of an edge whose colour is the ground of text as well. */
    Room roomFor(const ColorPair &edge) const;

private:
    bool isWorse(const ColorPair &pair, const LookColors &changed) const;

    const Look m_look;
    const double m_textContrast;
    const LookColors &m_colors;
    QVector<ColorPair> m_pairs;
};

} // namespace Maker

#endif
