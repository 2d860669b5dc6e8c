// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef ANALYSIS_STYLE_STYLEVOCABULARY_H
#define ANALYSIS_STYLE_STYLEVOCABULARY_H

#include <QString>
#include <QStringList>

/*! \brief The words that Qt knows in style sheets for widgets, each list sorted, in lower case. */
namespace StyleVocabulary
{

/*! \brief Returns the properties, without those that an application adds with `qproperty-`. */
const QStringList &properties();
const QStringList &states();
const QStringList &subControls();

/*! \brief Returns the widget classes of Qt and what they are derived from, as Qt spells them. */
const QStringList &classes();

/*!
 * \brief Tells whether \a name, without "!" and in any letter case, is a state.
 *
 * What is none names a sub-control if it comes first. Behind others Qt takes it for a state that
 * is always there, and that makes the other states beside it hold always, too.
 */
bool isState(const QString &name);

/*! \brief Tells whether \a name, in any letter case, is a sub-control. */
bool isSubControl(const QString &name);

/*!
 * \brief Returns what a declaration of \a property sets: \a property itself or, of a shorthand,
 *        each of the properties it stands for, whether its value names them or not.
 */
QStringList longhands(const QString &property);

/*! \brief Tells whether a sub-control takes \a property from its widget: colour and font. */
bool isInherited(const QString &property);

/*! \brief Returns \a type, the classes it is derived from, as far as Qt Widgets has them, and "*". */
QStringList typeAndBases(const QString &type);

} // namespace StyleVocabulary

#endif
