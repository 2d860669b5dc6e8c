// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_PAGES_H
#define GALLERY_PAGES_H

#include "colorspage.h"

#include <hvtheme/theme.h>
#include <maker/pairs.h>

#include <QString>
#include <QVector>

class QWidget;

namespace Gallery
{

class MakerPage;
class ThemeWorkshop;

/*! \brief A page of the gallery: its name on the command line and its title in the window. */
struct Page {
    QString name;
    QString title;
};

/*! \brief The page that shows the form given with `--ui`. */
extern const char formPageName[];

/*! \brief The page where themes are made. */
extern const char makerPageName[];

/*! \brief Returns the pages in the window's order, the page of the form not among them. */
QVector<Page> pages();

/*!
 * \brief Builds the page called \a name for \a theme, whose palette has the entries \a palette.
 *
 * \return a widget without parent on a surface of the theme's, which the caller owns; null for an
 *         unknown name.
 */
QWidget *createPage(const QString &name, HV::Theme &theme, const PaletteEntries &palette = {});

/*! \brief Builds the page where \a workshop is told what to make; the caller owns it. */
MakerPage *createMakerPage(ThemeWorkshop *workshop);

/*! \brief Returns which look \a theme is: its flags tell. */
Maker::Look lookOf(HV::Theme &theme);

/*! \brief Gives \a page, as createPage() made it, the sizes of a new look. */
void settlePage(QWidget *page);

/*! \brief Tells whether the page called \a name shows values of the theme, which no restyling changes. */
bool showsThemeValues(const QString &name);

/*!
 * \brief Builds the form in the file \a path with Qt's form loader.
 *
 * \return a widget without parent, which the caller owns, as large as it was made in Designer unless
 *         it needs more; null, after a critical message that says what to do, when the file cannot be
 *         read or holds no form.
 */
QWidget *createFormPage(const QString &path);

} // namespace Gallery

#endif
