// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_TINTEDDRAWING_H
#define HVTHEMEAPP_TINTEDDRAWING_H

#include <QIcon>
#include <QImage>
#include <QSize>
#include <QString>

namespace HV
{

/*! \brief The folder of the built-in drawings, with a slash at its end; `<name>.hvicon` each. */
QString builtInDrawings();

/*! \brief Returns whether \a path is that of a drawing to be tinted, by its suffix. */
bool isDrawing(const QString &path);

/*! \brief Returns the size that the drawing \a path declares, at most 1024 by 1024. */
QSize drawingSize(const QString &path);

/*!
 * \brief Returns the drawing \a path in the colours of the theme in force, \a size pixels large.
 *
 * The drawing keeps its proportions and stands in the middle. What cannot be drawn is warned about
 * once, `"<path>" is not drawn as an icon: <reason>`, and shows a dashed square. Thread-safe for the
 * mode QIcon::Normal.
 */
QImage drawnImage(const QString &path, const QSize &size, QIcon::Mode mode);

/*! \brief The same stretched to \a size. */
QImage stretchedImage(const QString &path, const QSize &size);

/*! \brief Returns the dashed square, \a size pixels large. */
QImage placeholderImage(const QSize &size);

} // namespace HV

#endif // HVTHEMEAPP_TINTEDDRAWING_H
