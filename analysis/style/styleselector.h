// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef ANALYSIS_STYLE_STYLESELECTOR_H
#define ANALYSIS_STYLE_STYLESELECTOR_H

#include <QString>
#include <QStringList>
#include <QVector>

/*! \brief One selector of a style sheet, such as `QMenu::item:selected`, taken apart. */
struct StyleSelector {
    /*! \brief What stands between two combinators. */
    struct Step {
        QString type; //!< "*" if none is given
        QStringList attributes; //!< with #names and .classes; sorted
        bool isChild = false; //!< joined to the step before with ">"
    };

    QString text; //!< as written
    QVector<Step> steps; //!< the last one is the widget that the rule styles
    QString part; //!< the sub-control, such as "item"
    QStringList states; //!< such as "hover" or "!enabled"; sorted

    const Step &subject() const { return steps.constLast(); }

    /*! \brief Returns how selectors compete; the greater wins, then the later. */
    int specificity() const;

    /*! \brief Takes one selector apart; no steps if it cannot be done. */
    static StyleSelector parsed(const QString &text);
};

/*!
 * \brief Tells whether a selector with these \a general steps matches wherever one with the
 *        \a specific steps does.
 */
bool isWherever(const QVector<StyleSelector::Step> &general,
                const QVector<StyleSelector::Step> &specific);

/*! \brief Returns \a type, the classes it is derived from, as far as Qt Widgets has them, and "*". */
QStringList typeAndBases(const QString &type);

#endif
