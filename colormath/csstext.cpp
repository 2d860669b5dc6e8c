// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <colormath/csstext.h>

#include <QStringBuilder>
#include <QStringList>

#include <algorithm>
#include <iterator>

namespace ColorMath
{

QString cssColor(const QColor &color)
{
    const QString opaque = color.name(QColor::HexRgb);
    return color.alpha() == 255
        ? opaque
        : opaque % QStringLiteral("%1").arg(color.alpha(), 2, 16, QLatin1Char('0'));
}

// Qt takes stops in any order and leaves out those that lie outside. A list of one is none to CSS.
QString cssGradient(const QGradientStops &stops)
{
    QGradientStops sorted;
    std::copy_if(stops.cbegin(), stops.cend(), std::back_inserter(sorted),
                 [](const QGradientStop &stop) { return stop.first >= 0.0 && stop.first <= 1.0; });
    std::stable_sort(
        sorted.begin(), sorted.end(),
        [](const QGradientStop &a, const QGradientStop &b) { return a.first < b.first; });
    if (sorted.isEmpty())
        return QStringLiteral("none");
    if (sorted.size() == 1)
        sorted.append(sorted.constFirst());
    QStringList parts{QStringLiteral("to right")};
    for (const QGradientStop &stop : qAsConst(sorted))
        parts << cssColor(stop.second) % QLatin1Char(' ') % QString::number(stop.first * 100)
                % QLatin1Char('%');
    return QLatin1String("linear-gradient(") % parts.join(QLatin1String(", ")) % QLatin1Char(')');
}

} // namespace ColorMath
