// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEME_TESTS_VOCABULARIES_H
#define HVTHEME_TESTS_VOCABULARIES_H

#include <hvtheme/workabletheming.h>

// Vocabularies as applications declare them.

/*! All six enumerations, straight on the base class. */
class OwnVocabulary : public HV::Theme
{
    Q_OBJECT

public:
    enum class Palette {
        Ink,
        Paper
    };
    Q_ENUM(Palette)
    enum class Color {
        Text,
        Ground
    };
    Q_ENUM(Color)
    enum class ImageFile {
        add,
        close
    };
    Q_ENUM(ImageFile)
    enum class Gradient {
        Sky,
        Dusk
    };
    Q_ENUM(Gradient)
    enum class Flag {
        Round,
        Flat
    };
    Q_ENUM(Flag)
    enum class Integer {
        Gap,
        Width
    };
    Q_ENUM(Integer)

    OwnVocabulary()
        : HV::Theme("own")
    {
    }
};

/*! One enumeration replaced and one filled, the other four as the library has them. */
class ExtendedVocabulary : public HV::WorkableTheme
{
    Q_OBJECT

public:
    enum class Palette {
        Ink,
        Paper,
        Rule
    };
    Q_ENUM(Palette)
    enum class Color {
        Text
    };
    Q_ENUM(Color)
};

/*! A class of the second generation that declares nothing: it is seen through. */
class InheritedVocabulary : public ExtendedVocabulary
{
    Q_OBJECT
};

/*! Values that are not positions, and two names for one value. */
class GappedVocabulary : public HV::Theme
{
    Q_OBJECT

public:
    enum class Flag {
        Round = 10,
        Flat = 20,
        Even = 20
    };
    Q_ENUM(Flag)

    GappedVocabulary()
        : HV::Theme("gapped")
    {
    }
};

#endif // HVTHEME_TESTS_VOCABULARIES_H
