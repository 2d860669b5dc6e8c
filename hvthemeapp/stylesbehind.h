// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_STYLESBEHIND_H
#define HVTHEMEAPP_STYLESBEHIND_H

class QStyle;

namespace HV
{

/*! \brief Returns the application's style, which Qt hides behind one of its own while there is a style
 *         sheet. Internal. */
QStyle *plainStyle();

/*! \brief Returns whether Qt made \a style by its name, which only such a one bears. */
bool isMadeByName(const QStyle &style);

/*! \brief Returns the style that \a style changes, through however many, else itself. */
QStyle *innermost(QStyle *style);

} // namespace HV

#endif // HVTHEMEAPP_STYLESBEHIND_H
