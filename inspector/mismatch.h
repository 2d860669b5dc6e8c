// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef INSPECTOR_MISMATCH_H
#define INSPECTOR_MISMATCH_H

#include <analysis/style/styleelement.h>
#include <analysis/style/styleselector.h>

/*! \brief One piece of a selector, whether it fits and why not. */
struct SelectorPiece {
    QString text; //!< such as "[style="general"]"
    bool fits = true;
    QString reason; //!< one sentence if it does not
};

/*! \brief Why a selector matches an element, or does not. */
struct SelectorVerdict {
    bool matches = false;
    QVector<SelectorPiece> pieces; //!< of the selector, from left to right
    QString
        reason; //!< the first that does not fit, or what is wrong as a whole; empty if it matches
};

/*! \brief Holds \a selector, one without commas, against \a element piece by piece. */
SelectorVerdict whyNot(const QString &selector, const StyleElement &element);

#endif
