// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEME_TESTS_THEMESTORE_H
#define HVTHEME_TESTS_THEMESTORE_H

#include <hvtheme/theme.h>

#include <QGradientStops>
#include <QPair>

// The theme's members have no public readers that show all they hold (the palette name beside a
// colour, an image path before it is resolved). An explicit instantiation may name a private
// member, and that is all this does: it publishes the ten pointers to members, by name.
namespace Store
{

template<typename Tag, typename Tag::Pointer pointer>
struct Publish {
    friend typename Tag::Pointer memberOf(Tag) { return pointer; }
};

#define HVTHEME_PUBLISH(Name, Type, member)                                                        \
    struct Name {                                                                                  \
        using Pointer = Type HV::Theme::*;                                                         \
        friend Pointer memberOf(Name);                                                             \
    };                                                                                             \
    template struct Publish<Name, &HV::Theme::member>;

using PaletteMap = QMap<QString, QColor>;
using ColorMap = QMap<QString, QPair<QColor, QString>>;
using GradientMap = QMap<QString, QGradientStops>;
using ImageFileMap = QMap<QString, QString>;
using FlagMap = QMap<QString, bool>;
using IntegerMap = QMap<QString, qint64>;

HVTHEME_PUBLISH(Id, QString, m_id)
HVTHEME_PUBLISH(FilePath, QString, m_filePath)
HVTHEME_PUBLISH(DisplayName, QString, m_displayName)
HVTHEME_PUBLISH(Values, QVariantMap, m_values)
HVTHEME_PUBLISH(ImageFiles, ImageFileMap, m_imageFiles)
HVTHEME_PUBLISH(Palettes, PaletteMap, m_palettes)
HVTHEME_PUBLISH(Colors, ColorMap, m_colors)
HVTHEME_PUBLISH(Gradients, GradientMap, m_gradients)
HVTHEME_PUBLISH(Flags, FlagMap, m_flags)
HVTHEME_PUBLISH(Integers, IntegerMap, m_integers)

#undef HVTHEME_PUBLISH

/*! The member that \a tag names: `Store::of(theme, Store::Colors())`. */
template<typename Tag>
const auto &of(const HV::Theme &theme, Tag tag)
{
    return theme.*memberOf(tag);
}

inline bool isEmpty(const HV::Theme &theme)
{
    return of(theme, Values()).isEmpty() && of(theme, ImageFiles()).isEmpty()
        && of(theme, Palettes()).isEmpty() && of(theme, Colors()).isEmpty()
        && of(theme, Gradients()).isEmpty() && of(theme, Flags()).isEmpty()
        && of(theme, Integers()).isEmpty();
}

} // namespace Store

#endif // HVTHEME_TESTS_THEMESTORE_H
