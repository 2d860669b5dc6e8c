// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_MISSINGIMAGES_H
#define HVTHEMEAPP_MISSINGIMAGES_H

#include <QHash>
#include <QSet>
#include <QVariantMap>

namespace HV
{

class Theme;

/*!
 * \brief Gives \a theme the built-in drawings for the image keys that it lacks.
 *
 * Call it when the theme's files are read, before Theme::values(), which keeps what it has seen.
 * Logs nothing. A key that the theme has keeps its image, an empty one too.
 */
void addMissingImages(Theme &theme);

/*!
 * \brief Returns \a templates with paths in place of some tokens of images.
 *
 * With the paths of images that do not exist, but for the first token of each: replacing tokens logs a
 * missing image at each, and many rules show the same one. And with \a drawings in place of images that
 * cannot be shown.
 *
 * \param values  as Theme::values() gives them.
 * \param drawings  paths by key.
 * \param told    the keys that have a token already, here or in an earlier text; those of this text
 *                are added.
 */
QString withMissingImagesOnce(const QString &templates, const QString &prefix,
                              const QVariantMap &values, const QHash<QString, QString> &drawings,
                              QSet<QString> *told);

} // namespace HV

#endif // HVTHEMEAPP_MISSINGIMAGES_H
