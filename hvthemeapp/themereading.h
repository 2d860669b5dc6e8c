// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_THEMEREADING_H
#define HVTHEMEAPP_THEMEREADING_H

#include <QColor>
#include <QHash>
#include <QStringList>

#include <optional>

namespace HV
{

class Theme;
class ThemeFolder;

/*!
 * \brief Empties \a theme and reads \a name of \a folder into it, completed to a whole look.
 *
 * Read as changeTheme() reads: the default file, then the named one, which only adds. Then:
 *  - palette entries and integers that neither file has are those of the built-in default file;
 *  - colours of the built-in templates that neither file has are derived by the table in
 *    docs/application.md, and silently those of the brand as a fill;
 *  - images that neither file has are the built-in drawings;
 *  - keys that the theme's class requires are looked for, and logged by the core if they are missing.
 *
 * \param accent  if valid, takes the place of the theme's brand: its tones are derived anew, and the
 *                colours that call for it, see ApplicationTheme::setAccent().
 *
 * \param contents  by path: what stands in place of files' own texts.
 *
 * \return the colours that had to be derived, sorted, but for optional ones. Nothing, with one sentence
 *         in \a problem, if the files cannot be given the accent or a temporary file that this takes
 *         cannot be written; the theme is then what it was, or empty.
 *
 * Call it if ThemeFolder::problemOf() has nothing to say. Each file is read once. Internal.
 */
std::optional<QStringList> readTheme(Theme &theme, const ThemeFolder &folder, const QString &name,
                                     const QColor &accent,
                                     const QHash<QString, QByteArray> &contents, QString *problem);

} // namespace HV

#endif // HVTHEMEAPP_THEMEREADING_H
