// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <maker/brandfills.h>

#include <colormath/contrast.h>
#include <colormath/oklch.h>

#include <cmath>

namespace Maker
{

BrandFills::BrandFills(const QColor &brand, const LookPairs &pairs, LookColors *colors,
                       const Note &note)
    : m_brand(brand)
    , m_pairs(pairs)
    , m_colors(*colors)
    , m_note(note)
    , m_textRatio(pairs.required(Need::Text))
    , m_brandText(QStringLiteral("Brand"))
{
    if (!colors->resolved(m_brandText).isValid())
        m_brandText = brandToneName(nearestStep(brand));
}

void BrandFills::setOwnTexts()
{
    setAccent();
    setSelection();
}

void BrandFills::setLooksTexts()
{
    setWherePossible(QStringLiteral("SliderAcrossBackgroundColor"),
                     QStringLiteral("the crossed part of sliders would stand out at "));
    const QString frame = QStringLiteral("EditHighlightBorderColor");
    if (isOfBrand(m_colors.text(frame))) // a theme may frame in any colour
        setWherePossible(frame,
                         QStringLiteral("the frame of a field in use, the ground of rows "
                                        "as well, would reach "));
    if (setWherePossible(QStringLiteral("GeneralButtonBackgroundNormal"),
                         QStringLiteral("the look's text would stand on the brand at ")))
        setStates("GeneralButtonBackgroundHover", "GeneralButtonBackgroundPressed", m_brandText,
                  QStringLiteral("DefaultForegroundColor"));
}

bool BrandFills::setWherePossible(const QString &key, const QString &consequence)
{
    const QString former = m_colors.text(key);
    if (former.isEmpty())
        return false;
    if (!m_pairs.isNoWorse(key, m_brandText)) {
        m_note(consequence % ColorMath::contrastText(m_pairs.worstRatio(key, m_brandText))
               % QLatin1String("; ") % key % QLatin1String(" is ") % former);
        return false;
    }
    m_colors.setText(key, m_brandText);
    return true;
}

void BrandFills::setAccent()
{
    const QString groundKey = QStringLiteral("AccentBackgroundColor");
    const QString textKey = QStringLiteral("AccentForegroundColor");
    if (m_colors.text(groundKey).isEmpty() || m_colors.text(textKey).isEmpty())
        return;
    QString ground = m_brandText;
    if (bestRatio(ground) < m_textRatio) {
        ground =
            nearestTone([this](const QString &tone) { return bestRatio(tone) >= m_textRatio; });
        if (ground.isEmpty())
            return;
        m_note(QLatin1String("no text has more than ")
               % ColorMath::contrastText(bestRatio(m_brandText)) % QLatin1String(" on the brand; ")
               % groundKey % QLatin1String(" is ") % ground);
    }
    m_colors.setText(groundKey, ground);
    m_colors.setText(textKey, bestText(ground));
    setStates("AccentHoverColor", "AccentPressedColor", ground, textKey);
}

void BrandFills::setSelection()
{
    const QString groundKey = QStringLiteral("Palette_Highlight");
    const QString textKey = QStringLiteral("Palette_HighlightedText");
    if (m_colors.text(groundKey).isEmpty() || m_colors.text(textKey).isEmpty())
        return;
    // Where nothing can be done, what is selected is not to draw the eye.
    const QString disabled = QStringLiteral("Palette_Disabled_Highlight");
    const QString surface = m_colors.text(QStringLiteral("BackgroundColor_6"));
    if (!m_colors.text(disabled).isEmpty() && !surface.isEmpty())
        m_colors.setText(disabled, surface);
    const QColor field = m_colors.color(QStringLiteral("EditBackgroundColor"));
    const auto standsOut = [&](const QString &text) {
        return ColorMath::contrastRatio(m_colors.resolved(text), field);
    };
    const double wanted = m_pairs.required(Need::Mark);
    const auto isPossible = [&](const QString &text) {
        return standsOut(text) >= wanted && bestRatio(text) >= m_textRatio;
    };
    QString ground = m_brandText;
    if (!isPossible(ground)) {
        ground = nearestTone(isPossible);
        if (ground.isEmpty())
            return; // the pair as it is counts, and is told of if it falls short
        if (standsOut(m_brandText) < wanted)
            m_note(QLatin1String("selected rows would stand out from a field at ")
                   % ColorMath::contrastText(standsOut(m_brandText)) % QLatin1String("; ")
                   % groundKey % QLatin1String(" is ") % ground);
    }
    m_colors.setText(groundKey, ground);
    m_colors.setText(textKey, bestText(ground));
}

// Under the pointer and pressed, a ground moves away from the text on it, one tone and two, and where
// there is no tone left, towards it as far as it may.
void BrandFills::setStates(const char *hover, const char *pressed, const QString &ground,
                           const QString &foreground)
{
    const double own = ColorMath::cieLightness(m_colors.resolved(ground));
    const bool isLightText = ColorMath::cieLightness(m_colors.color(foreground)) > own;
    const int step = nearestStep(m_colors.resolved(ground));
    QStringList states{QString::fromLatin1(hover), QString::fromLatin1(pressed)};
    for (const int direction : {isLightText ? 1 : -1, isLightText ? -1 : 1}) {
        for (int distance = 0; distance < toneCount && !states.isEmpty(); ++distance) {
            constexpr double leastDifference = 4; // of L*, to be seen
            const int tone = step + direction * distance;
            const QString text = brandToneName(tone);
            const bool isTone = m_colors.resolved(text).isValid();
            if (isTone && std::abs(toneLightness(tone) - own) >= leastDifference
                && m_pairs.canHave(states.constFirst(), text))
                m_colors.setText(states.takeFirst(), text);
        }
    }
}

// The text that stands best on a ground: the look's own if it reaches what text needs, else white or
// black.
QString BrandFills::bestText(const QString &ground) const
{
    const QColor color = m_colors.resolved(ground);
    const auto ratio = [&](const QString &text) {
        return ColorMath::contrastRatio(m_colors.resolved(text), color);
    };
    QString own = m_colors.text(QStringLiteral("Color_W100"));
    if (!own.isEmpty() && ratio(own) >= m_textRatio)
        return own;
    const auto named = [&](const char *name, const QColor &plain) {
        const QString entry = QString::fromLatin1(name);
        return m_colors.resolved(entry) == plain ? entry : hexadecimal(plain);
    };
    const QString white = named("W100", Qt::white);
    const QString black = named("B100", Qt::black);
    return ratio(white) >= ratio(black) ? white : black;
}

double BrandFills::bestRatio(const QString &ground) const
{
    return ColorMath::contrastRatio(m_colors.resolved(bestText(ground)), m_colors.resolved(ground));
}

// The tone that is possible and nearest to the brand in lightness; none is an empty text.
QString BrandFills::nearestTone(const IsPossible &isPossible) const
{
    const double own = ColorMath::cieLightness(m_brand);
    QString nearest;
    double least = 200;
    for (int step = 1; step <= toneCount; ++step) {
        const QString tone = brandToneName(step);
        const double distance = std::abs(toneLightness(step) - own);
        if (m_colors.resolved(tone).isValid() && distance < least && isPossible(tone)) {
            nearest = tone;
            least = distance;
        }
    }
    return nearest;
}

} // namespace Maker
