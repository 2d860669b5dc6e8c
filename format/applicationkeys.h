// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef FORMAT_APPLICATIONKEYS_H
#define FORMAT_APPLICATIONKEYS_H

#include <QStringList>

/*!
 * \brief Returns the colour keys of the brand as a fill: its ground, that under the pointer, that
 *        while pressed, and the text on all three.
 *
 * The application library asks for them; what takes the place of those that a theme lacks is told in
 * docs/application.md.
 */
QStringList accentKeys();

/*!
 * \brief Tells whether \a key is a colour that the application library takes from themes which have
 *        it and does without in others: one of accentKeys() or `Palette_…`.
 */
bool isOptionalColor(const QString &key);

#endif
