// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_BROKENIMAGES_H
#define HVTHEMEAPP_BROKENIMAGES_H

#include <QHash>
#include <QString>
#include <QVariantMap>

namespace HV
{

/*!
 * \brief Returns whether \a file is an image that can be shown, none of those that are drawn.
 *
 * If not, that is warned about once, `"<path>" is no image that can be shown: <reason>`, and again
 * when the file has changed. Each state of a file is read once. On the GUI thread.
 */
bool isImage(const QString &file);

/*!
 * \brief Returns by key the paths of the built-in drawings that take the place of images that are
 *        there and cannot be shown.
 *
 * \param values  as Theme::values() gives them.
 */
QHash<QString, QString> drawingsForBrokenImages(const QVariantMap &values);

} // namespace HV

#endif // HVTHEMEAPP_BROKENIMAGES_H
