// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <maker/lookpairs.h>

#include <colormath/contrast.h>

#include <algorithm>
#include <limits>
#include <utility>

namespace Maker
{

namespace
{

bool concerns(const ColorPair &pair, const QString &key)
{
    return pair.foreground == key || pair.layers.contains(key);
}

constexpr double flare = 0.05; // what WCAG adds to a luminance

double between(double one, double other)
{
    return std::max(one, other) / std::min(one, other);
}

} // namespace

LookPairs::LookPairs(Look look, double textContrast, const LookColors &colors)
    : m_look(look)
    , m_textContrast(textContrast)
    , m_colors(colors)
{
    const auto isMissing = [&](const QString &key) { return colors.text(key).isEmpty(); };
    for (const ColorPair &pair : colorPairs()) {
        if (!isMissing(pair.foreground)
            && std::none_of(pair.layers.cbegin(), pair.layers.cend(), isMissing))
            m_pairs.append(pair);
    }
}

bool LookPairs::canHave(const QString &key, const QString &text) const
{
    return worstRatio(key, text) >= 21;
}

double LookPairs::worstRatio(const QString &key, const QString &text) const
{
    LookColors changed = m_colors;
    changed.setText(key, text);
    double worst = 21;
    for (const ColorPair &pair : m_pairs) {
        if (!concerns(pair, key))
            continue;
        const double ratio = changed.ratio(pair);
        if (ratio < required(pair))
            worst = std::min(worst, ratio);
    }
    return worst;
}

bool LookPairs::isWorse(const ColorPair &pair, const LookColors &changed) const
{
    const double ratio = changed.ratio(pair);
    return ratio < required(pair) && ratio < m_colors.ratio(pair);
}

bool LookPairs::isNoWorse(const QString &key, const QString &text) const
{
    LookColors changed = m_colors;
    changed.setText(key, text);
    return std::none_of(m_pairs.cbegin(), m_pairs.cend(), [&](const ColorPair &pair) {
        return concerns(pair, key) && isWorse(pair, changed);
    });
}

bool LookPairs::isRemedy(const ColorPair &pair, const QString &key, const QString &text) const
{
    LookColors changed = m_colors;
    changed.setText(key, text);
    if (changed.ratio(pair) < required(pair))
        return false;
    return std::none_of(m_pairs.cbegin(), m_pairs.cend(), [&](const ColorPair &other) {
        const bool givesWay = other.need == Need::EdgeOfGround && pair.need != other.need;
        return !givesWay && concerns(other, key) && isWorse(other, changed);
    });
}

// A ratio is that of two luminances, so each text bars the luminances around its own, and what is left
// reaches furthest at an end: black, white, or where a text just reaches its ratio. A translucent text
// counts as opaque, which leaves more room than there is.
LookPairs::Room LookPairs::roomFor(const ColorPair &edge) const
{
    const auto luminance = [](const QColor &color) {
        return ColorMath::relativeLuminance(color) + flare;
    };
    const double ground = luminance(m_colors.composite(edge.layers));
    QVector<double> ends{flare, 1 + flare};
    QVector<std::pair<double, double>> texts; // luminance and ratio
    Room room{0, {}};
    double least = std::numeric_limits<double>::max();
    for (const ColorPair &pair : m_pairs) {
        if (pair.layers.constLast() != edge.foreground)
            continue;
        const double text = luminance(m_colors.color(pair.foreground));
        texts.append({text, required(pair)});
        ends << text * required(pair) << text / required(pair);
        const double left = between(text, ground) / required(pair);
        if (left < least) {
            least = left;
            room.text = pair.foreground;
        }
    }
    for (const double end : qAsConst(ends)) {
        constexpr double rounding = 1e-9;
        const auto bars = [&](const std::pair<double, double> &text) {
            return between(text.first, end) < text.second - rounding;
        };
        if (end >= flare - rounding && end <= 1 + flare + rounding
            && std::none_of(texts.cbegin(), texts.cend(), bars))
            room.ratio = std::max(room.ratio, between(end, ground));
    }
    return room;
}

} // namespace Maker
