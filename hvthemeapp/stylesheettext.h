// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_STYLESHEETTEXT_H
#define HVTHEMEAPP_STYLESHEETTEXT_H

#include <QString>

namespace HV
{

/*!
 * \brief Returns \a styleSheet, or what stands in its file if it names one.
 *
 * Qt takes an application style sheet that begins with `file:///` for the name of a file, which the
 * option `-stylesheet` makes of its argument: what follows is the path, a relative one too. Joined
 * with another text such a name is no rule. Relative `url()`s of the file are made to name the same
 * pictures from anywhere.
 *
 * \return a null text for a file that cannot be read, which is warned about.
 */
QString styleSheetText(const QString &styleSheet);

} // namespace HV

#endif // HVTHEMEAPP_STYLESHEETTEXT_H
