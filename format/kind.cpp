// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <format/kind.h>

#include <algorithm>
#include <iterator>

namespace
{

struct Names {
    const char *section;
    const char *enumeration;
    const char *noun;
};

const Names &namesOf(Kind kind)
{
    static const Names names[kindCount] = {
        {"Palettes", "Palette", "palette entry"},
        {"Colors", "Color", "colour"},
        {"ImageFiles", "ImageFile", "image file"},
        {"Gradients", "Gradient", "gradient"},
        {"Flags", "Flag", "flag"},
        {"Integers", "Integer", "integer"},
    };
    return names[int(kind)];
}

} // namespace

QString sectionName(Kind kind)
{
    return QLatin1String(namesOf(kind).section);
}

QString enumerationName(Kind kind)
{
    return QLatin1String(namesOf(kind).enumeration);
}

QString nounOf(Kind kind)
{
    return QLatin1String(namesOf(kind).noun);
}

bool isInStyleSheets(Kind kind)
{
    return std::find(std::begin(styleSheetPrecedence), std::end(styleSheetPrecedence), kind)
        != std::end(styleSheetPrecedence);
}
