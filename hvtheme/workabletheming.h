// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEME_WORKABLETHEMING_H
#define HVTHEME_WORKABLETHEMING_H

#include <hvtheme/theme.h>

namespace HV
{

/*!
 * \brief The theme that applications create: a Theme with the identifier "zorka.global.theme" and
 *        the vocabulary of the built-in style sheets.
 *
 * An application with keys of its own derives a class and declares an `enum class` of one of these
 * names with `Q_ENUM`. It replaces the enumeration here; those it does not declare are still found.
 * The numbers of an enumeration run from 0 without gaps.
 */
class HVTHEME_EXPORT WorkableTheme : public Theme
{
    Q_OBJECT

public:
    // The four empty ones require nothing, and give every theme class all six names.
    enum class Color {
    };
    Q_ENUM(Color)

    enum class ImageFile {
    };
    Q_ENUM(ImageFile)

    enum class Gradient {
    };
    Q_ENUM(Gradient)

    enum class Flag {
    };
    Q_ENUM(Flag)

    /*! \brief Font sizes in pixels. */
    enum class Integer {
        FontSize_XS,
        FontSize_S,
        FontSize_M,
        FontSize_L,
        FontSize_XL,
        FontSize_XXL
    };
    Q_ENUM(Integer)

    /*! \brief The colours that the other colours are mixed from. `W` and `B` are veils of white and
     *         black, named after their opacity in percent. */
    // clang-format off
    enum class Palette {
        Brand_1, Brand_2, Brand_3, Brand_4, Brand_5, Brand_6, Brand_7, Brand_8, Brand_9, Brand_10,
        Bg_1, Bg_2, Bg_3, Bg_4, Bg_5, Bg_6, Bg_7,
        W100, W90, W80, W40, W20, W15, W10, W8,
        B20, B32, B50_, B100,
        Red_1, Red_2, Red_3, Red_4, Red_5, Red_6, Red_7, Red_8, Red_9, Red_10,
        Yellow_1, Yellow_2, Yellow_3, Yellow_4, Yellow_5, Yellow_6, Yellow_7, Yellow_8, Yellow_9, Yellow_10,
        Green_1, Green_2, Green_3, Green_4, Green_5, Green_6, Green_7, Green_8, Green_9, Green_10,
        Orange_1, Orange_2, Orange_3, Orange_4, Orange_5, Orange_6, Orange_7, Orange_8, Orange_9, Orange_10
    };
    // clang-format on
    Q_ENUM(Palette)

    /*! \brief Makes an empty theme. */
    explicit WorkableTheme(QObject *parent = nullptr);
};

/*! \brief Changes to the theme \a name in \a folder, whose files end in ".theme"; see the form
 *         that takes a suffix, in theming.h. */
HVTHEME_EXPORT void changeTheme(Theme *theme, const QString &name, const QString &folder);

/*!
 * \brief Changes \a theme to \a name and restyles the running application with the 27 built-in
 *        templates (resource folder `:/stylesheet`, token prefix "global").
 *
 * \param theme   must not be null; keeps being the application's.
 * \param name    as for changeTheme().
 * \param folder  as for changeTheme().
 *
 * Needs a QApplication; call it on the GUI thread. The application's style sheet is replaced whole
 * and all its widgets are restyled before the call returns; nothing is painted in between. Logs what
 * changeTheme() and findStyleSheet() log.
 */
HVTHEME_EXPORT void changeAppStyleSheet(Theme *theme, const QString &name, const QString &folder);

} // namespace HV

#endif // HVTHEME_WORKABLETHEMING_H
