// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef INSPECTOR_COLORSWATCH_H
#define INSPECTOR_COLORSWATCH_H

#include <QColor>
#include <QPixmap>

/*! \brief Returns a picture of \a color with an edge; what is not opaque lies on a chequered ground. */
QPixmap colorSwatch(const QColor &color, const QSize &size, qreal pixelRatio);

#endif
