// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef ANALYSIS_STYLE_TEXTPAIRS_H
#define ANALYSIS_STYLE_TEXTPAIRS_H

#include <analysis/style/stylerules.h>

#include <QVector>

/*! \brief A declaration that is in force for a selector; none if the offset is negative. */
struct StyleValue {
    QString text; //!< of the value, with its tokens
    int offset = -1; //!< of the declaration
};

/*! \brief Text and what stands behind it, as the templates put them together. */
struct TextPair {
    StyleSelector selector; //!< where they meet
    StyleValue foreground;
    QVector<StyleValue> backgrounds; //!< the nearest first; what shines through reaches the next
    bool drawsText = true; //!< false for a widget of no certain class
};

/*!
 * \brief Returns every meeting of text and background, in the order of the rules.
 *
 * There are no widgets here, so it is worked out from the selectors alone: a rule is in force for a
 * selector if its own selector matches wherever that one does. Of several the one wins that Qt
 * prefers. A sub-control without a colour has that of its widget, and shows its widget's background
 * where it has none.
 *
 * Left out are sub-controls that show no text, and disabled widgets, of which WCAG asks nothing.
 */
QVector<TextPair> textPairs(const StyleRules &rules);

/*!
 * \brief Tells whether \a general names every object that \a specific names: as its class or one
 *        that is derived from, with the same or fewer conditions and ancestors.
 */
bool isWherever(const StyleSelector &general, const StyleSelector &specific);

#endif
