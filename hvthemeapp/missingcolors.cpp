// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "missingcolors.h"

#include "themefolder.h"

#include <colormath/contrast.h>
#include <colormath/oklch.h>
#include <format/applicationkeys.h>
#include <format/themepath.h>
#include <hvtheme/theming.h>
#include <hvtheme/workabletheming.h>

#include <QSettings>

#include <algorithm>

namespace HV
{
namespace
{

// Whose colour a missing key takes: the first of these that the theme has.
struct Relatives {
    const char *key;
    const char *others; // in order, a blank between
};
// clang-format off
constexpr Relatives relatives[] = {
    {"AssistButtonBackgroundDisabled",  "AssistButtonBackgroundNormal"},
    {"AssistButtonBackgroundHover",     "AssistButtonBackgroundNormal"},
    {"AssistButtonBackgroundPressed",   "AssistButtonBackgroundNormal"},
    {"BackgroundColor_0",               "BackgroundColor_1 BackgroundColor_2 BackgroundColor_3"},
    {"BackgroundColor_1",               "BackgroundColor_2 BackgroundColor_0 BackgroundColor_3"},
    {"BackgroundColor_2",               "BackgroundColor_3 BackgroundColor_1 BackgroundColor_4"},
    {"BackgroundColor_3",               "BackgroundColor_2 BackgroundColor_4 BackgroundColor_1"},
    {"BackgroundColor_4",               "BackgroundColor_3 BackgroundColor_5 BackgroundColor_2"},
    {"BackgroundColor_5",               "BackgroundColor_4 BackgroundColor_6 BackgroundColor_3 BackgroundColor_2"},
    {"BackgroundColor_6",               "BackgroundColor_5 BackgroundColor_7 BackgroundColor_4 BackgroundColor_2"},
    {"BackgroundColor_7",               "BackgroundColor_6 BackgroundColor_5 BackgroundColor_4 BackgroundColor_2"},
    {"Color_Brand_6",                   "HighlightedForegroundColor EditHighlightBorderColor"},
    {"Color_Brand_7",                   "MenuHighlightBackgroundColor Color_Brand_8"},
    {"Color_Brand_8",                   "EditHighlightBorderColor MenuHighlightBackgroundColor"},
    {"Color_Red_6",                     "ErrorHintForegroundColor"},
    {"Color_W100",                      "DefaultForegroundColor"},
    {"DefaultForegroundColor",          "Color_W100"},
    {"EditBackgroundColor",             "BackgroundColor_1 BackgroundColor_2"},
    {"EditDisabledBackgroundColor",     "BackgroundColor_2 EditBackgroundColor"},
    {"EditHighlightBorderColor",        "Color_Brand_8 GeneralButtonBackgroundNormal"},
    {"ErrorHintForegroundColor",        "Color_Red_6"},
    {"GeneralButtonBackgroundDisabled", "AssistButtonBackgroundDisabled"},
    {"GeneralButtonBackgroundHover",    "GeneralButtonBackgroundNormal"},
    {"GeneralButtonBackgroundNormal",   "EditHighlightBorderColor Color_Brand_8"},
    {"GeneralButtonBackgroundPressed",  "GeneralButtonBackgroundNormal"},
    {"HighlightedForegroundColor",      "Color_Brand_6"},
    {"MenuBackgroundColor",             "BackgroundColor_6 BackgroundColor_2"},
    {"MenuHighlightBackgroundColor",    "Color_Brand_7 Color_Brand_8"},
    {"SliderAcrossBackgroundColor",     "Color_Brand_6 HighlightedForegroundColor"},
    {"ToolTipBackgroundColor",          "BackgroundColor_7 BackgroundColor_6 BackgroundColor_2"},
};
// clang-format on

// Text of a relative or a sample may stand on a ground of the theme's own.
constexpr const char *textKeys[] = {"DefaultForegroundColor", "Color_W100",
                                    "HighlightedForegroundColor", "ErrorHintForegroundColor"};
constexpr double textContrast = 4.5;
constexpr double middleLightness = 50;

QColor firstKnown(const QHash<QString, QColor> &known, const QString &keys)
{
    const QStringList all = keys.split(QLatin1Char(' '));
    for (const QString &key : all) {
        if (known.contains(key))
            return known.value(key);
    }
    return {};
}

QColor relative(const QHash<QString, QColor> &known, const QString &key)
{
    for (const Relatives &row : relatives) {
        if (key == QLatin1String(row.key))
            return firstKnown(known, QLatin1String(row.others));
    }
    return {};
}

// Without any surface the text tells: a light one is meant for dark surfaces.
bool isDark(const QHash<QString, QColor> &known)
{
    const QColor ground = firstKnown(
        known,
        QStringLiteral("BackgroundColor_2 BackgroundColor_3 BackgroundColor_1 BackgroundColor_4 "
                       "EditBackgroundColor MenuBackgroundColor"));
    if (ground.isValid())
        return ColorMath::cieLightness(ground) < middleLightness;
    const QColor text = firstKnown(known, QStringLiteral("DefaultForegroundColor Color_W100"));
    return text.isValid() && ColorMath::cieLightness(text) > middleLightness;
}

} // namespace

QStringList templateColors()
{
    static QStringList keys;
    if (!keys.isEmpty())
        return keys;
    QSettings sample(ThemeFolder().file(QStringLiteral("dark")), QSettings::IniFormat);
    sample.beginGroup(QStringLiteral("Colors"));
    keys = sample.allKeys();
    keys.erase(std::remove_if(keys.begin(), keys.end(), isOptionalColor), keys.end());
    keys.sort();
    return keys;
}

QHash<QString, QColor> derivedColors(const QHash<QString, QColor> &known)
{
    QStringList missing = templateColors();
    const auto end = std::remove_if(missing.begin(), missing.end(),
                                    [&](const QString &key) { return known.contains(key); });
    missing.erase(end, missing.end());
    if (missing.isEmpty())
        return {};

    WorkableTheme sample;
    changeTheme(&sample, QLatin1String(isDark(known) ? "dark" : "light"), builtInThemesFolder());
    QHash<QString, QColor> derived;
    for (const QString &key : qAsConst(missing)) {
        const QColor color = relative(known, key);
        derived.insert(key, color.isValid() ? color : sample.color(key));
    }
    const QString groundKey = QStringLiteral("BackgroundColor_2");
    const QColor ground = known.value(groundKey, derived.value(groundKey));
    for (const char *key : textKeys) {
        const auto text = derived.find(QLatin1String(key));
        if (text != derived.end())
            *text = ColorMath::liftedToContrast(*text, ground, textContrast);
    }
    return derived;
}

QHash<QString, QColor> accentColors(const QHash<QString, QColor> &colors)
{
    const QString groundKey = QStringLiteral("AccentBackgroundColor");
    const QColor ownGround = colors.value(groundKey);
    QHash<QString, QColor> missing;
    const auto add = [&](const char *key, const char *relative) {
        const QColor color =
            ownGround.isValid() ? ownGround : colors.value(QLatin1String(relative));
        if (!colors.contains(QLatin1String(key)) && color.isValid())
            missing.insert(QLatin1String(key), color);
    };
    add("AccentBackgroundColor", "GeneralButtonBackgroundNormal");
    add("AccentHoverColor", "GeneralButtonBackgroundHover");
    add("AccentPressedColor", "GeneralButtonBackgroundPressed");
    const QString textKey = QStringLiteral("AccentForegroundColor");
    const QColor text = colors.value(QStringLiteral("Color_W100"));
    if (!colors.contains(textKey) && text.isValid())
        missing.insert(textKey,
                       ownGround.isValid()
                           ? ColorMath::liftedToContrast(text, ownGround, textContrast)
                           : text);
    return missing;
}

} // namespace HV
