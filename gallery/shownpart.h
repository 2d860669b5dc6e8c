// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_SHOWNPART_H
#define GALLERY_SHOWNPART_H

#include <inspector/widgetparts.h>

class QWidget;

namespace Gallery
{

/*! \brief Name of the property by which a specimen, and its caption, has its selector. */
extern const char specimenProperty[];

/*! \brief Name of the property by which a caption has the key of the theme that it tells of. */
extern const char keyProperty[];

/*! \brief A widget and the part of it that is meant. */
struct ShownPart {
    QWidget *widget = nullptr;
    WidgetPart part;
};

/*! \brief Returns the specimen that \a widget is, is inside of or is the caption of; else null. */
QWidget *specimenOf(QWidget *widget);

/*! \brief Returns the specimen of \a page with \a selector, or null. */
QWidget *findSpecimen(const QWidget *page, const QString &selector);

/*! \brief Returns the caption of \a page that tells of \a key, or null. */
QWidget *findKey(const QWidget *page, const QString &key);

/*!
 * \brief Returns what the selector of \a specimen is about: the widget that it styles and the
 *        sub-control; the whole specimen if that is not to be found.
 */
ShownPart partShownBy(QWidget *specimen);

} // namespace Gallery

#endif
