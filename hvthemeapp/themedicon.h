// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_THEMEDICON_H
#define HVTHEMEAPP_THEMEDICON_H

#include <hvthemeapp/hvthemeapp_export.h>

#include <QIcon>

namespace HV
{

/*!
 * \brief Returns an icon in the colours of the theme in force, which follows a switch by itself.
 *
 * \param name  one of these:
 *              - the key of an image: the theme's own image of that key if it has one, else the
 *                built-in drawing of that name ("add", "save", "folder", see docs/icons.md);
 *              - a name of which the built-in drawings have two states: "lock" shows `lock_off`, and
 *                `lock_on` where it is checked;
 *              - the path of an SVG file or resource of one's own, with colour tokens
 *                (`global.theme.color.<Key>`) or `currentColor` in the place of colours.
 *
 * It is drawn when it is painted, at the size and device pixel ratio of that moment. Disabled, it is
 * fainter; on a selected ground, colours that would not stand out become the text colour of the
 * selection. For a drawing of its own in a mode or state, QIcon::addFile() takes a file whose suffix
 * is `hvicon`, or any picture.
 *
 * A name that stands for nothing gives an icon that is null as long as the theme in force knows no
 * such image. What cannot be drawn is warned about once and shows a dashed square; where it is a theme's
 * own picture, not a drawing, the built-in drawing of that name. Nothing outside an SVG file is loaded
 * for it: neither files nor networks.
 *
 * The icon may be made before the first theme is applied; until then the colours are those of the
 * application's palette. Use it on the GUI thread.
 */
HVTHEMEAPP_EXPORT QIcon themedIcon(const QString &name);

} // namespace HV

#endif // HVTHEMEAPP_THEMEDICON_H
