// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef ANALYSIS_CHANGETARGET_H
#define ANALYSIS_CHANGETARGET_H

#include <analysis/theme/themeeditor.h>
#include <analysis/themeproject.h>

/*! \brief One line of a theme file that a value could be changed in, and what else that would change. */
struct ChangeTarget {
    Kind kind = Kind::Color;
    QString key; //!< within its section
    Place place; //!< of the value
    QString fileKey; //!< the whole key, as ThemeEditor::setValue() takes it
    QString text; //!< the value as text
    bool isOfDefaultFile =
        false; //!< a change there changes all themes that have no say of their own
    QStringList themes; //!< by name: those whose value comes from this line
    QStringList keys; //!< of the theme that change with it, itself included, sorted
    int declarations = 0; //!< of the templates that change with it
};

/*!
 * \brief Returns where the value that style sheets see as \a key could be changed in \a theme.
 *
 * The line of the key comes first, then, for a colour that is taken from the palette, that of the entry, the one
 * which that is taken from, and so on, a hundred lines at most. Empty if the theme has no such key.
 */
QVector<ChangeTarget> changeTargets(const ThemeProject &project, const ThemeStack &theme,
                                    const QString &key);

/*! \brief Returns the same for the palette entry called \a key, which style sheets do not see. */
QVector<ChangeTarget> paletteChangeTargets(const ThemeProject &project, const ThemeStack &theme,
                                           const QString &key);

#endif
