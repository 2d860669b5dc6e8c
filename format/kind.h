// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef FORMAT_KIND_H
#define FORMAT_KIND_H

#include <QString>

/*! \brief The kinds of values in a theme file, in the order in which the library reads them. */
enum class Kind {
    Palette,
    Color,
    ImageFile,
    Gradient,
    Flag,
    Integer,
};

constexpr int kindCount = 6;
constexpr Kind allKinds[kindCount] = {Kind::Palette,  Kind::Color, Kind::ImageFile,
                                      Kind::Gradient, Kind::Flag,  Kind::Integer};

/*!
 * \brief The greatest size that a gradient may claim for this project to have a theme read.
 *
 * The library counts to it; a slip of some digits takes it minutes.
 */
constexpr int gradientSizeLimit = 10000;

/*! \brief Returns the section of a theme file that holds values of \a kind: "Palettes", … */
QString sectionName(Kind kind);

/*! \brief Returns the enumeration that names the required keys of \a kind: "Palette", … */
QString enumerationName(Kind kind);

/*! \brief Returns how sentences call a value of \a kind: "palette entry", … */
QString nounOf(Kind kind);

/*!
 * \brief The kinds that style sheets see; of several values under one key they see the first.
 *
 * HV::Theme::values() puts all of them into one map, the first of these last.
 */
constexpr Kind styleSheetPrecedence[] = {Kind::ImageFile, Kind::Integer, Kind::Flag, Kind::Color};

/*! \brief Tells whether style sheets see values of \a kind, that is HV::Theme::values() does. */
bool isInStyleSheets(Kind kind);

#endif
