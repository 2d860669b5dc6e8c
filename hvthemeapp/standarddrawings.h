// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_STANDARDDRAWINGS_H
#define HVTHEMEAPP_STANDARDDRAWINGS_H

#include <QStyle>

namespace HV
{

/*! \brief Returns the name of the drawing in place of a style's \a pixmap, null if there is none.
 *         \a option and \a widget may be null. Internal. */
const char *standardDrawing(QStyle::StandardPixmap pixmap, const QStyleOption *option,
                            const QWidget *widget);

/*! \brief Returns the name of the drawing in place of \a element, null for what the style draws. */
const char *primitiveDrawing(QStyle::PrimitiveElement element, const QStyleOption &option);

} // namespace HV

#endif // HVTHEMEAPP_STANDARDDRAWINGS_H
