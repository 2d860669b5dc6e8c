// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef TOOLS_FINDINGWRITERS_H
#define TOOLS_FINDINGWRITERS_H

#include <analysis/rules/finding.h>

#include <QByteArray>
#include <QVector>

/*! \brief The formats of a list of findings. All are UTF-8 and end in a line end, if not empty. */
namespace FindingWriters
{

/*! \brief How the findings are told to people. */
struct TextStyle {
    bool isColored = false; //!< for a terminal
    bool areNotesShown = false; //!< or only counted
};

/*!
 * \brief One line each: `FILE:LINE:COLUMN: SEVERITY: MESSAGE [RULE]`, and one that sums them up.
 *
 * The last line is like `2 errors, 1 warning; 36 notes, see --notes`.
 */
QByteArray text(const QVector<Finding> &findings, TextStyle style);

/*! \brief A JSON object with the list `findings` and their numbers by severity in `summary`. */
QByteArray json(const QVector<Finding> &findings);

/*! \brief A log of the Static Analysis Results Interchange Format, version 2.1.0. */
QByteArray sarif(const QVector<Finding> &findings);

} // namespace FindingWriters

#endif
