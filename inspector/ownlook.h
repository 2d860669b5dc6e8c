// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef INSPECTOR_OWNLOOK_H
#define INSPECTOR_OWNLOOK_H

#include <QPalette>
#include <QString>

/*!
 * \brief Returns the style sheet of the inspector itself.
 *
 * The style sheet of a widget beats the application's, so what is set here no theme can change; it sets
 * whatever themes otherwise do.
 */
QString inspectorStyleSheet();

/*! \brief Returns the palette of the inspector itself, for what no style sheet sets. */
QPalette inspectorPalette();

#endif
