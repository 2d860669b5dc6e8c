// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEME_RESTYLING_H
#define HVTHEME_RESTYLING_H

#include <QString>

#include <functional>

class QApplication;

/*! \file
 *  \brief Internal: not installed, and compiled into each library that restyles. */
namespace HV
{

/*!
 * \brief Gives \a application the style sheet \a styleSheet and polishes each of its widgets once.
 *
 * \param changeWithoutRules  may be empty; called while no widget has rules of the old style sheet
 *                            or of the new one, so that what it changes (the palette) is polished
 *                            together with the style sheet.
 *
 * Nothing is painted before the function returns. Call it on the GUI thread.
 */
void restyle(QApplication &application, const QString &styleSheet,
             const std::function<void()> &changeWithoutRules = {});

} // namespace HV

#endif // HVTHEME_RESTYLING_H
