// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>
#include <colormath/contrast.h>
#include <colormath/vision.h>
#include <hvtheme/workabletheming.h>
#include <maker/meanings.h>

#include <cmath>

namespace
{

using Maker::MeaningPair;

QString distanceText(double distance)
{
    // Rounded down, so that what fails never reads as if it passed.
    return QString::number(std::floor(distance * 10) / 10, 'f', 1);
}

QString eyes(ColorMath::Vision vision)
{
    switch (vision) {
    case ColorMath::Vision::Protan:
        return QStringLiteral("protan eyes");
    case ColorMath::Vision::Deutan:
        return QStringLiteral("deutan eyes");
    case ColorMath::Vision::Tritan:
        return QStringLiteral("tritan eyes");
    case ColorMath::Vision::Normal:
        break;
    }
    return QStringLiteral("any eyes");
}

// One theme's colours of meaning, and what else they could be.
class Meanings
{
public:
    explicit Meanings(const ThemeStack &theme)
        : m_theme(theme)
    {
    }

    bool has(const char *key) const
    {
        return kindInStyleSheets(m_theme, QLatin1String(key)) == Kind::Color;
    }

    QColor color(const char *key) const { return m_theme.theme().color(QLatin1String(key)); }

    // The palette entry most like the colour that all eyes tell from the other meanings, and that
    // can be read as well as the colour can.
    QString remedy(const char *key) const
    {
        const ColorMath::Lab wanted = ColorMath::toLab(color(key));
        QString best;
        double bestDistance = 0.0;
        QStringList names = storedKeys(m_theme, Kind::Palette);
        names.sort();
        for (const QString &name : qAsConst(names)) {
            const QColor entry = m_theme.theme().readNamedColor(name).first;
            const double distance = ColorMath::distance(wanted, ColorMath::toLab(entry));
            if ((best.isEmpty() || distance < bestDistance) && isDistinct(key, entry)
                && isLegible(QLatin1String(key), entry)) {
                best = name;
                bestDistance = distance;
            }
        }
        return best;
    }

private:
    bool isDistinct(const char *key, const QColor &color) const
    {
        for (const MeaningPair &pair : Maker::meaningPairs()) {
            const bool isFirst = qstrcmp(pair.first, key) == 0;
            if (!isFirst && qstrcmp(pair.second, key) != 0)
                continue;
            const char *other = isFirst ? pair.second : pair.first;
            if (has(other)
                && ColorMath::leastDistance(color, this->color(other)) < Maker::meaningDistance)
                return false;
        }
        return true;
    }

    bool isLegible(const QString &key, const QColor &color) const
    {
        for (const Maker::ColorPair &pair : Maker::colorPairs()) {
            if (pair.foreground != key || pair.layers.size() != 1
                || kindInStyleSheets(m_theme, pair.layers.first()) != Kind::Color)
                continue;
            const QColor ground = m_theme.theme().color(pair.layers.first());
            const double now = ColorMath::contrastRatio(m_theme.theme().color(key), ground);
            if (ColorMath::contrastRatio(color, ground) < qMin(now, 4.5))
                return false;
        }
        return true;
    }

    const ThemeStack &m_theme;
};

void check(const ThemeProject &project, Report &report)
{
    for (const ThemeStack *theme : project.themes()) {
        const Meanings meanings(*theme);
        for (const MeaningPair &pair : Maker::meaningPairs()) {
            if (!meanings.has(pair.first) || !meanings.has(pair.second))
                continue;
            ColorMath::Vision worst = ColorMath::Vision::Normal;
            const double distance = ColorMath::leastDistance(meanings.color(pair.first),
                                                             meanings.color(pair.second), &worst);
            if (distance >= Maker::meaningDistance)
                continue;
            const QString remedy = meanings.remedy(pair.second);
            report.addAtValue(
                *theme->find(Kind::Color, QLatin1String(pair.second)),
                QLatin1String(pair.first) % QLatin1String(" and ") % QLatin1String(pair.second)
                    % QLatin1String(" look alike to ") % eyes(worst) % QLatin1String(" in theme ")
                    % theme->name() % QLatin1String(": a difference of ") % distanceText(distance)
                    % QLatin1String(", less than ") % distanceText(Maker::meaningDistance)
                    % (remedy.isEmpty()
                           ? QStringLiteral("; no palette entry would pass")
                           : QString(QLatin1String("; the nearest palette entry that passes is ")
                                     % remedy)));
        }
    }
}

} // namespace

namespace LintRules
{

extern const LintRule colorVision{"color-vision", Severity::Warning,
                                  "Eyes that lack a kind of cone take one meaning for another.",
                                  check};

} // namespace LintRules
