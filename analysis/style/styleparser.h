// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef ANALYSIS_STYLE_STYLEPARSER_H
#define ANALYSIS_STYLE_STYLEPARSER_H

#include <QString>
#include <QVector>

/*!
 * \brief Asks Qt's own parser for style sheets what it cannot read.
 *
 * Needs a QApplication, whose style sheet it borrows; one parser at a time.
 */
class StyleParser
{
public:
    /*! \brief Tells whether Qt parses \a styleSheet as an application's. */
    bool accepts(const QString &styleSheet);

    /*!
     * \brief Returns where the rules begin that Qt cannot parse, in order.
     *
     * Found by giving Qt the halves of what it rejects, down to single rules, so that the time
     * stays linear in the text for a few mistakes.
     */
    QVector<int> rejectedRules(const QString &styleSheet);
};

#endif
