// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEME_THEMING_H
#define HVTHEME_THEMING_H

#include <hvtheme/hvtheme_export.h>

#include <QString>
#include <QStringList>
#include <QVariantMap>

/*!
 * \file
 * \brief From style sheet templates to style sheets.
 *
 * A token is `<prefix>.theme.color.<Key>`, `<prefix>.theme.image.<Key>` or
 * `<prefix>.theme.integer.<Key>`, anywhere in a text. The key is the longest run of ASCII letters,
 * digits and underscores. An integer token may end in `|`, which goes with it, so that a unit can
 * follow: `FontSize_L|px`.
 *
 * Warnings go to Qt's default category; a file name in their context is `hvtheme/theming.cpp`.
 * Nothing here throws.
 */
namespace HV
{

class Theme;

/*!
 * \name Substitution passes
 *
 * Each returns \a styleSheet with the tokens of its kind replaced by the text (QVariant::toString())
 * of the entry of \a values that the key names, whatever kind that entry is; a missing key gives an
 * empty text. Inserted text is searched again, so a value may hold tokens of the same kind; a value
 * that yields its own token never ends.
 *
 * \param prefix      what tokens start with. It is a regular expression; one of ASCII letters, digits
 *                    and underscores alone stands for itself and costs time linear in the text. An
 *                    invalid one finds nothing. For any other one a token takes up as many
 *                    characters as it would with the prefix spelt out.
 * \param values      key to value, as Theme::values() gives it.
 * \param styleSheet  any text.
 */
//! @{

/*! \brief Replaces colour tokens: `#rrggbb`, or `#aarrggbb` for a translucent colour. */
HVTHEME_EXPORT QString replaceCssColors(const QString &prefix, const QVariantMap &values,
                                        const QString &styleSheet);

/*! \brief Replaces image tokens; for each whose path does not exist, an empty one too, warns
 *         `"<key>" <tab> "<path>"  is not exist!`. */
HVTHEME_EXPORT QString replaceCssImages(const QString &prefix, const QVariantMap &values,
                                        const QString &styleSheet);

/*! \brief Replaces integer tokens, each with the `|` that follows it. */
HVTHEME_EXPORT QString replaceCssIntegers(const QString &prefix, const QVariantMap &values,
                                          const QString &styleSheet);

//! @}

/*! \brief Returns \a imageFile as it is: the one place to choose a variant for the screen. */
HVTHEME_EXPORT QString dpiSpecificImageFile(const QString &imageFile);

/*!
 * \brief Replaces colour, image and integer tokens of \a styleSheet, in this order, in place.
 *
 * \param theme  if null, warns `Theme object is null` and replaces every token by nothing.
 */
HVTHEME_EXPORT void replaceStyleSheet(Theme *theme, const QString &prefix, QString &styleSheet);

/*!
 * \brief Appends the templates of \a folder (`*.qss` and `*.css` in any case; no subfolders, no
 *        hidden files) to \a text, in the order of their names regardless of case, nothing between.
 *
 * Files are UTF-8; each is read up to its first NUL byte. One that does not open is left out and
 * warned about: `"<path>" not there!`. A folder that does not exist has no files.
 */
HVTHEME_EXPORT void readStyleSheet(const QString &folder, QString &text);

/*! \brief Appends the templates \a files to \a text, in the order of the list, as above. */
HVTHEME_EXPORT void readStyleSheet(const QStringList &files, QString &text);

/*!
 * \brief Returns the templates of \a folder, as readStyleSheet() reads them, with their tokens
 *        replaced as replaceStyleSheet() does, a null \a theme included.
 */
HVTHEME_EXPORT QString findStyleSheet(Theme *theme, const QString &folder, const QString &prefix);

/*! \brief The same for a list of template files. */
HVTHEME_EXPORT QString findStyleSheet(Theme *theme, const QStringList &files,
                                      const QString &prefix);

/*!
 * \brief Empties \a theme and reads `<folder>/default.<suffix>`, then `<folder>/<name>.<suffix>`.
 *
 * The second file is read if \a name is neither empty nor, regardless of case, the display name that
 * the first one gave, and if the file exists. It adds the keys that the first one lacks, and replaces
 * flags and the display name only. A missing first file reads as an empty one.
 *
 * \param theme  must not be null.
 *
 * Logs what Theme::readSettings() logs.
 */
HVTHEME_EXPORT void changeTheme(Theme *theme, const QString &name, const QString &folder,
                                const QString &suffix);

} // namespace HV

#endif // HVTHEME_THEMING_H
