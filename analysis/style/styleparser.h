// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef ANALYSIS_STYLE_STYLEPARSER_H
#define ANALYSIS_STYLE_STYLEPARSER_H

#include <QString>
#include <QVector>

/*!
 * \brief Asks Qt's own parser for style sheets what it cannot read.
 *
 * It is the parser of an application's style sheet, reached through a text document, so that no
 * application's or widget's style sheet, no message handler and no file is touched. Fonts make it
 * need a QGuiApplication all the same.
 */
namespace StyleParser
{

/*! \brief Tells whether there is a QGuiApplication; without one nothing can be asked. */
bool isAvailable();

/*!
 * \brief Tells whether Qt reads \a styleSheet to its end.
 *
 * Needs isAvailable(). Also false for text that Qt drops without saying so, as it does from a
 * stray "%" on.
 */
bool accepts(const QString &styleSheet);

/*!
 * \brief Returns where the rules begin that Qt cannot read, in order; needs isAvailable().
 *
 * Found by giving Qt the halves of what it rejects, down to single rules, so that the time
 * stays linear in the text for a few mistakes.
 */
QVector<int> rejectedRules(const QString &styleSheet);

/*!
 * \brief Returns what Qt goes by: \a styleSheet up to the first rule that it cannot read.
 *
 * Declarations without a rule, which a widget may have, are read whole or not at all. Without a
 * QGuiApplication the whole text is returned. For the thread of the application.
 */
QString readPart(const QString &styleSheet);

} // namespace StyleParser

#endif
