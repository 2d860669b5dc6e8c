// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <maker/pairs.h>

namespace Maker
{

namespace
{

struct Row {
    const char *foreground;
    const char *layers; // the lowest first, joined by "+"; "*" stands for each BackgroundColor_n
    Need need;
    const char *selector = nullptr;
};

// The text of a disabled button is DefaultForegroundColor and that of a disabled field Color_W100,
// so these are held to the measure of ordinary text.
// clang-format off
const Row rows[] = {
    {"DefaultForegroundColor",     "*",                                      Need::Text},
    {"DefaultForegroundColor",     "*+Color_W15",                            Need::Text},
    {"DefaultForegroundColor",     "*+Color_B20",                            Need::Text},
    {"DefaultForegroundColor",     "*+Color_B32",                            Need::Text},
    {"DefaultForegroundColor",     "*+Color_B32+Color_Brand_7",              Need::Text},
    {"DefaultForegroundColor",     "*+Color_B32+Color_Brand_8",              Need::Text},
    {"DefaultForegroundColor",     "*+Color_Brand_8",                        Need::Text},
    {"DefaultForegroundColor",     "*+Color_Yellow_10",                      Need::Text},
    {"DefaultForegroundColor",     "*+GeneralButtonBackgroundNormal",        Need::Text},
    {"DefaultForegroundColor",     "*+GeneralButtonBackgroundHover",         Need::Text},
    {"DefaultForegroundColor",     "*+GeneralButtonBackgroundPressed",       Need::Text},
    {"DefaultForegroundColor",     "*+GeneralButtonBackgroundDisabled",      Need::Text},
    {"DefaultForegroundColor",     "*+AssistButtonBackgroundNormal",         Need::Text},
    {"DefaultForegroundColor",     "*+AssistButtonBackgroundHover",          Need::Text},
    {"DefaultForegroundColor",     "*+AssistButtonBackgroundPressed",        Need::Text},
    {"DefaultForegroundColor",     "*+AssistButtonBackgroundDisabled",       Need::Text},
    {"DefaultForegroundColor",     "MenuBackgroundColor",                    Need::Text},
    {"DefaultForegroundColor",     "MenuHighlightBackgroundColor",           Need::Text},
    {"DefaultForegroundColor",     "ToolTipBackgroundColor",                 Need::Text},
    {"DefaultForegroundColor",     "EditBackgroundColor",                    Need::Text},
    {"DefaultForegroundColor",     "EditHighlightBorderColor",               Need::Text},
    {"Color_W100",                 "*",                                      Need::Text},
    {"Color_W100",                 "EditBackgroundColor",                    Need::Text},
    {"Color_W100",                 "EditBackgroundColor+Color_W15",          Need::Text},
    {"Color_W100",                 "EditBackgroundColor+Color_B20",          Need::Text},
    {"Color_W100",                 "EditHighlightBorderColor",               Need::Text},
    {"Color_W100",                 "EditDisabledBackgroundColor",            Need::Text},
    {"HighlightedForegroundColor", "*",                                      Need::Text},
    {"ErrorHintForegroundColor",   "*",                                      Need::Text},
    {"Color_W40",                  "*",                                      Need::Text},
    {"Color_Yellow_6",             "*",                                      Need::Text},
    {"Color_Green_6",              "*",                                      Need::Text},
    {"Color_Orange_6",             "*",                                      Need::Text},
    {"DefaultForegroundColor",      "EditDisabledBackgroundColor",            Need::Text},
    {"Color_W100",                  "EditBackgroundColor+AssistButtonBackgroundNormal",Need::Text},
    {"Color_W100",                  "EditBackgroundColor+AssistButtonBackgroundPressed",Need::Text},
    {"Color_W40",                   "EditBackgroundColor",                    Need::Text},
    {"DisabledForegroundColor",    "*",                                      Need::Disabled},
    {"DisabledForegroundColor",    "*+Color_Yellow_10",                      Need::Disabled},
    {"DisabledForegroundColor",    "EditBackgroundColor",                    Need::Disabled},
    {"DisabledForegroundColor",    "EditDisabledBackgroundColor",            Need::Disabled},
    {"DisabledForegroundColor",    "MenuBackgroundColor",                    Need::Disabled},
    {"DisabledForegroundColor",    "MenuHighlightBackgroundColor",           Need::Disabled},
    {"DisabledForegroundColor",     "*+Color_B32",                            Need::Disabled},
    {"DisabledForegroundColor",     "*+AssistButtonBackgroundNormal",         Need::Disabled},
    {"DisabledForegroundColor",     "*+AssistButtonBackgroundDisabled",       Need::Disabled},
    {"DisabledForegroundColor",     "*+GeneralButtonBackgroundDisabled",      Need::Disabled},
    {"DisabledForegroundColor",     "ToolTipBackgroundColor",                 Need::Disabled},
    {"DisabledForegroundColor",     "EditBackgroundColor+AssistButtonBackgroundHover",Need::Disabled},
    {"DisabledForegroundColor",     "EditBackgroundColor+AssistButtonBackgroundNormal",Need::Disabled},
    {"DisabledForegroundColor",     "Palette_Disabled_Highlight",             Need::Disabled},
    {"EditBorderColor",            "EditBackgroundColor",                    Need::Mark},
    {"EditHighlightBorderColor",   "EditBackgroundColor",                    Need::EdgeOfGround,
     "QLineEdit:focus"},
    {"Color_Brand_8",              "BackgroundColor_2",                      Need::EdgeOfGround,
     "QPushButton[style=editButton]:hover"},
    {"Color_Red_6",                "EditBackgroundColor",                    Need::Mark},
    {"Color_Green_6",              "EditBackgroundColor",                    Need::Mark},
    {"Color_Brand_6",              "*",                                      Need::Mark},
    {"Color_Brand_6",              "EditBackgroundColor",                    Need::Mark},
    {"Color_Orange_6",             "BackgroundColor_4",                      Need::Mark},
    {"SliderAcrossBackgroundColor", "*",                                     Need::Mark},
    {"ScrollBarHandleBackgroundColor", "*+ScrollBarGrooveBackgroundColor",   Need::Mark},
    {"HighlightedForegroundColor", "EditBackgroundColor",                    Need::Mark},
    {"EditBorderColor",             "*",                                      Need::Mark},
    {"EditBorderColor",             "EditDisabledBackgroundColor",            Need::Mark},
    {"Color_Red_6",                 "EditDisabledBackgroundColor",            Need::Mark},
    {"Color_Green_6",               "EditDisabledBackgroundColor",            Need::Mark},
    {"Color_Yellow_6",             "Color_Yellow_10",                        Need::Mark},
    {"Color_Blue_1",                "*",                                      Need::Mark},
    {"ScrollBarHandleBackgroundColor","*",                                      Need::Mark},
    {"AccentForegroundColor",      "AccentBackgroundColor",                  Need::Text},
    {"AccentForegroundColor",      "AccentHoverColor",                       Need::Text},
    {"AccentForegroundColor",      "AccentPressedColor",                     Need::Text},
    {"Palette_HighlightedText",    "Palette_Highlight",                      Need::Text},
    {"Palette_Highlight",          "EditBackgroundColor",                    Need::Mark},
    {"SliderGrooveBackgroundColor", "*",                                      Need::Line},
    {"SliderGrooveBackgroundColor", "*+Color_W15",                            Need::Line},
    {"SliderGrooveBackgroundColor", "*+AssistButtonBackgroundNormal",         Need::Line},
    {"SliderGrooveBackgroundColor", "*+AssistButtonBackgroundPressed",        Need::Line},
    {"SliderGrooveBackgroundColor", "EditBackgroundColor",                    Need::Line},
    {"SliderGrooveBackgroundColor", "EditDisabledBackgroundColor",            Need::Line},
    {"SliderGrooveBackgroundColor", "MenuBackgroundColor",                    Need::Line},
    {"SliderGrooveBackgroundColor", "ToolTipBackgroundColor",                 Need::Line},
};
// clang-format on

constexpr int surfaceCount = 8;

QVector<ColorPair> allPairs()
{
    QVector<ColorPair> pairs;
    for (const Row &row : rows) {
        const QString layers = QString::fromLatin1(row.layers);
        const bool isOnAnySurface = layers.startsWith(QLatin1Char('*'));
        for (int n = 0; n < (isOnAnySurface ? surfaceCount : 1); ++n) {
            QString names = layers;
            names.replace(QLatin1Char('*'), QLatin1String("BackgroundColor_") % QString::number(n));
            pairs.append({QString::fromLatin1(row.foreground), names.split(QLatin1Char('+')),
                          row.need, QString::fromLatin1(row.selector)});
        }
    }
    return pairs;
}

} // namespace

QString lookName(Look look)
{
    switch (look) {
    case Look::Dark:
        return QStringLiteral("dark");
    case Look::Light:
        return QStringLiteral("light");
    case Look::Contrast:
        break;
    }
    return QStringLiteral("contrast");
}

const QVector<ColorPair> &colorPairs()
{
    static const QVector<ColorPair> pairs = allPairs();
    return pairs;
}

} // namespace Maker
