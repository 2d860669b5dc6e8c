// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef INSPECTOR_OWNLOOK_H
#define INSPECTOR_OWNLOOK_H

#include <QPalette>
#include <QString>

class QCompleter;
class QObject;

/*!
 * \brief Returns the style sheet of the inspector itself.
 *
 * The style sheet of a widget beats the application's, so what is set here no theme can change; it sets
 * whatever themes otherwise do.
 */
QString inspectorStyleSheet();

/*! \brief Returns the style sheet of a text that tells of a problem. */
QString warningStyleSheet();

/*! \brief Returns a completer for \a words whose list looks like the inspector. */
QCompleter *ownCompleter(const QStringList &words, QObject *parent);

/*! \brief Returns the palette of the inspector itself, for what no style sheet sets. */
QPalette inspectorPalette();

#endif
