// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "applicationpalette.h"

#include <colormath/contrast.h>
#include <colormath/oklch.h>

#include <cmath>

namespace HV
{
namespace
{

using Group = QPalette::ColorGroup;
using Role = QPalette::ColorRole;

struct Ground {
    Role role;
    const char *name;
    const char *key;
    const char *disabledKey;
};
// clang-format off
constexpr Ground drawnGrounds[] = {
    {QPalette::Window,        "Window",        "BackgroundColor_2",      "BackgroundColor_2"},
    {QPalette::Base,          "Base",          "EditBackgroundColor",    "EditDisabledBackgroundColor"},
    {QPalette::AlternateBase, "AlternateBase", "BackgroundColor_3",      "BackgroundColor_3"},
    {QPalette::Button,        "Button",        "BackgroundColor_4",      "BackgroundColor_3"},
    {QPalette::Highlight,     "Highlight",     "EditHighlightBorderColor", "BackgroundColor_6"},
    {QPalette::ToolTipBase,   "ToolTipBase",   "ToolTipBackgroundColor", "ToolTipBackgroundColor"},
    {QPalette::Light,         "Light",         "BackgroundColor_7",      "BackgroundColor_7"},
    {QPalette::Midlight,      "Midlight",      "BackgroundColor_5",      "BackgroundColor_5"},
    {QPalette::Mid,           "Mid",           "BackgroundColor_1",      "BackgroundColor_1"},
    {QPalette::Dark,          "Dark",          "BackgroundColor_0",      "BackgroundColor_0"},
    {QPalette::Shadow,        "Shadow",        "DialogMaskBackgroundColor", "DialogMaskBackgroundColor"},
};

constexpr Role none = QPalette::NoRole;
struct Text {
    Role role;
    const char *name;
    const char *key;
    Role on[5]; // what Qt draws it on; the first is what a translucent colour is laid over
};
constexpr Text texts[] = {
    {QPalette::WindowText,      "WindowText",      "DefaultForegroundColor",
        {QPalette::Window, QPalette::Button, QPalette::Midlight, QPalette::Mid, QPalette::Dark}},
    {QPalette::Text,            "Text",            "DefaultForegroundColor",
        {QPalette::Base, QPalette::AlternateBase, QPalette::Window, QPalette::Button, none}},
    {QPalette::ButtonText,      "ButtonText",      "DefaultForegroundColor",
        {QPalette::Button, QPalette::Window, QPalette::Midlight, QPalette::Mid, none}},
    {QPalette::BrightText,      "BrightText",      "Color_W100",
        {QPalette::Dark, QPalette::Window, QPalette::Button, none, none}},
    {QPalette::HighlightedText, "HighlightedText", "Color_W100",
        {QPalette::Highlight, none, none, none, none}},
    {QPalette::ToolTipText,     "ToolTipText",     "DefaultForegroundColor",
        {QPalette::ToolTipBase, none, none, none, none}},
    {QPalette::PlaceholderText, "PlaceholderText", "DisabledForegroundColor",
        {QPalette::Base, QPalette::AlternateBase, none, none, none}},
    {QPalette::Link,            "Link",            "HighlightedForegroundColor",
        {QPalette::Window, QPalette::Base, QPalette::AlternateBase, QPalette::ToolTipBase, none}},
    {QPalette::LinkVisited,     "LinkVisited",     "HighlightedForegroundColor",
        {QPalette::Window, QPalette::Base, QPalette::AlternateBase, QPalette::ToolTipBase, none}},
};
// clang-format on
constexpr const char *disabledTextKey = "DisabledForegroundColor";

constexpr std::pair<Group, const char *> groups[] = {{QPalette::Active, "Active"},
                                                     {QPalette::Inactive, "Inactive"},
                                                     {QPalette::Disabled, "Disabled"}};

// How far links that were visited are turned on the circle of hues, from a blue to a purple.
constexpr double visitedTurn = 55;
// What makes the lines of frames visible, and no more than that.
constexpr double lineContrast = 1.3;
constexpr double lineHighContrast = 3;

class PaletteMaker
{
public:
    explicit PaletteMaker(const QVariantMap &values)
        : m_values(values)
        , m_isHighContrast(values.value(QStringLiteral("HighContrast")).toBool())
    {
    }

    QPalette palette()
    {
        for (const auto &[group, name] : groups) {
            for (const Ground &ground : drawnGrounds)
                setGround(group, name, ground);
            for (const Text &text : texts)
                setText(group, name, text);
        }
        return m_palette;
    }

private:
    QColor value(const char *key) const
    {
        return m_values.value(QLatin1String(key)).value<QColor>();
    }

    // The colour that an optional key of the theme asks for, if any.
    QColor wish(const char *group, const char *role, bool coversGroup) const
    {
        const QString form = QStringLiteral("Palette_%1");
        const QString key = form.arg(QLatin1String(group) + QLatin1Char('_') + QLatin1String(role));
        const auto own = m_values.constFind(key);
        if (own != m_values.cend() || !coversGroup)
            return own == m_values.cend() ? QColor() : own->value<QColor>();
        return m_values.value(form.arg(QLatin1String(role))).value<QColor>();
    }

    void setGround(Group group, const char *groupName, const Ground &ground)
    {
        QColor color = wish(groupName, ground.name, true);
        if (!color.isValid())
            color = groundColor(group, ground);
        if (color.isValid())
            m_palette.setColor(group, ground.role, color);
    }

    QColor groundColor(Group group, const Ground &ground) const
    {
        const QColor color = value(group == QPalette::Disabled ? ground.disabledKey : ground.key);
        if (!color.isValid())
            return {};
        if (ground.role == QPalette::Window)
            return ColorMath::over(color, Qt::black);
        const QColor window = m_palette.color(group, QPalette::Window);
        QColor opaque = ColorMath::over(color, window);
        if (ground.role == QPalette::AlternateBase) { // halfway: rows differ on one surface
            opaque.setAlpha(128);
            return ColorMath::over(opaque, m_palette.color(group, QPalette::Base));
        }
        if (ground.role == QPalette::Light)
            return ColorMath::liftedToContrast(opaque, window,
                                               m_isHighContrast ? lineHighContrast : lineContrast);
        return opaque;
    }

    // A text that shall be dimmed keeps that when the theme gives it a colour for all groups.
    void setText(Group group, const char *groupName, const Text &text)
    {
        const bool isDisabled = group == QPalette::Disabled;
        QColor color = wish(groupName, text.name, !isDisabled);
        const bool isWish = color.isValid();
        if (!isWish)
            color = textColor(group, text);
        if (!color.isValid())
            return;
        m_palette.setColor(group, text.role, color);
        // On a ground of middle lightness no text has a high contrast; one that carries nothing else
        // gives way.
        if (!isWish && text.on[1] == none)
            m_palette.setColor(group, text.on[0],
                               ColorMath::liftedToContrast(m_palette.color(group, text.on[0]),
                                                           color, ratio(group)));
    }

    double ratio(Group group) const
    {
        if (group == QPalette::Disabled)
            return m_isHighContrast ? 4.5 : 3;
        return m_isHighContrast ? 7 : 4.5;
    }

    QColor textColor(Group group, const Text &text) const
    {
        const bool isDisabled = group == QPalette::Disabled;
        QColor color = value(isDisabled ? disabledTextKey : text.key);
        if (!color.isValid())
            return {};
        color = ColorMath::over(color, m_palette.color(group, text.on[0]));
        if (text.role == QPalette::LinkVisited && !isDisabled) {
            const ColorMath::Oklch link = ColorMath::toOklch(color);
            color = ColorMath::colorAtLightness(ColorMath::cieLightness(color), link.chroma,
                                                std::fmod(link.hue + visitedTurn, 360));
        }
        return legible(color, group, text);
    }

    QColor legible(QColor color, Group group, const Text &text) const
    {
        const double wanted = ratio(group);
        // The worst ground first: what suffices there mostly suffices on the others.
        for (int round = 0; round < 5; ++round) {
            const QColor worst = worstGround(color, group, text);
            if (ColorMath::contrastRatio(color, worst) >= wanted)
                break;
            color = ColorMath::liftedToContrast(color, worst, wanted);
        }
        return color;
    }

    QColor worstGround(const QColor &color, Group group, const Text &text) const
    {
        QColor worst = m_palette.color(group, text.on[0]);
        for (Role role : text.on) {
            if (role == none)
                break;
            const QColor ground = m_palette.color(group, role);
            if (ColorMath::contrastRatio(color, ground) < ColorMath::contrastRatio(color, worst))
                worst = ground;
        }
        return worst;
    }

    const QVariantMap &m_values;
    const bool m_isHighContrast;
    QPalette m_palette;
};

} // namespace

QPalette applicationPalette(const QVariantMap &values)
{
    return PaletteMaker(values).palette();
}

} // namespace HV
