// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <maker/lookpairs.h>

#include <algorithm>

namespace Maker
{

namespace
{

bool concerns(const ColorPair &pair, const QString &key)
{
    return pair.foreground == key || pair.layers.contains(key);
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

bool LookPairs::isRemedy(const ColorPair &pair, const QString &key, const QString &text) const
{
    LookColors changed = m_colors;
    changed.setText(key, text);
    if (changed.ratio(pair) < required(pair))
        return false;
    return std::none_of(m_pairs.cbegin(), m_pairs.cend(), [&](const ColorPair &other) {
        if (!concerns(other, key))
            return false;
        const double ratio = changed.ratio(other);
        return ratio < required(other) && ratio < m_colors.ratio(other);
    });
}

} // namespace Maker
