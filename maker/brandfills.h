// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef MAKER_BRANDFILLS_H
#define MAKER_BRANDFILLS_H

#include <maker/lookpairs.h>

#include <functional>

namespace Maker
{

/*!
 * \brief Fills with the brand itself, unchanged, what can bear it; what cannot gets its nearest tone,
 *        and a note says why.
 */
class BrandFills
{
public:
    using Note = std::function<void(const QString &sentence)>;

    /*! \param pairs  those of \a colors */
    BrandFills(const QColor &brand, const LookPairs &pairs, LookColors *colors, const Note &note);

    /*! \brief Sets the fills that have a text of their own, which is chosen by contrast: the main
     *         button, then selected rows, which besides have to stand out from their field. */
    void setOwnTexts();

    /*! \brief Sets the fills that carry the look's text: as the other colours are now. */
    void setLooksTexts();

private:
    using IsPossible = std::function<bool(const QString &text)>;

    void setAccent();
    void setSelection();
    void setStates(const char *hover, const char *pressed, const QString &ground,
                   const QString &foreground);
    bool setWherePossible(const QString &key, const QString &consequence);
    QString bestText(const QString &ground) const;
    double bestRatio(const QString &ground) const;
    QString nearestTone(const IsPossible &isPossible) const;

    const QColor m_brand;
    const LookPairs &m_pairs;
    LookColors &m_colors;
    const Note m_note;
    const double m_textRatio;
    QString m_brandText; // the name of the brand itself in the palette
};

} // namespace Maker

#endif
