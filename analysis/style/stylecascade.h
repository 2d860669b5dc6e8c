// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef ANALYSIS_STYLE_STYLECASCADE_H
#define ANALYSIS_STYLE_STYLECASCADE_H

#include <analysis/style/stylerules.h>
#include <analysis/style/styleselector.h>

#include <QHash>
#include <QVector>

/*! \brief A declaration that is in force for a selector; none if the offset is negative. */
struct StyleValue {
    QString text; //!< of the value, with its tokens
    int offset = -1; //!< of the declaration
};

/*! \brief Text and what stands behind it, as the templates put them together. */
struct StylePair {
    StyleSelector selector; //!< where they meet
    StyleValue foreground;
    QVector<StyleValue> backgrounds; //!< the nearest first; what shines through reaches the next
    bool drawsText = true; //!< false for a widget of no certain class
};

/*!
 * \brief Which declarations are in force where, worked out from the selectors alone.
 *
 * A rule is in force for a selector if its own selector matches wherever that one does: as a class
 * or one it is derived from, with the same or fewer attributes, states and ancestors. Of several
 * the most specific, then the last, wins, as for Qt. A sub-control without a colour has that of its
 * widget, and shows its widget's background where it has none.
 */
class StyleCascade
{
public:
    explicit StyleCascade(const StyleRules &rules);

    /*!
     * \brief Returns every meeting of text and background, in the order of the rules.
     *
     * Left out are sub-controls that show no text, and disabled widgets, of which WCAG asks nothing.
     */
    QVector<StylePair> pairs() const;

private:
    struct Entry {
        StyleSelector selector;
        int order = 0;
        QHash<QString, StyleValue> values; // by property
    };

    void add(const StyleRule &rule);
    StyleValue value(const StyleSelector &where, const QString &property) const;
    StylePair pair(const Entry &entry, const QString &foreground, const QString &background) const;

    QVector<Entry> m_entries;
    QHash<QString, int> m_byText;
    QHash<QString, QVector<int>> m_buckets;
};

#endif
