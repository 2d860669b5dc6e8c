// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>
#include <analysis/style/textpairs.h>
#include <colormath/contrast.h>
#include <colormath/distance.h>
#include <hvtheme/workabletheming.h>

#include <QRegularExpression>

namespace
{

// A colour of the style sheet and how the templates name it.
struct NamedColor {
    QColor color;
    QString name;
    QString key; // empty if the template gives the colour itself
};

using Ground = QVector<NamedColor>; // several for a gradient

class Colors
{
public:
    Colors(const ThemeStack &theme, const QString &prefix)
        : m_theme(theme)
        , m_prefix(prefix)
    {
    }

    // Nothing if the value has colours that only the running application knows, or none.
    Ground read(const QString &value) const
    {
        static const QRegularExpression gradient(
            QStringLiteral("stop\\s*:\\s*[\\d.]+[\\s,]+([^\\s,()]+(?:\\([^)]*\\))?)"));
        Ground ground;
        if (value.contains(QLatin1String("url(")) || value.contains(QLatin1String("palette(")))
            return {};
        if (value.contains(QLatin1String("gradient("))) {
            QRegularExpressionMatchIterator matches = gradient.globalMatch(value);
            while (matches.hasNext())
                ground.append(single(matches.next().captured(1)));
        } else {
            ground.append(single(value));
        }
        for (const NamedColor &color : qAsConst(ground)) {
            if (!color.color.isValid())
                return {};
        }
        return ground;
    }

private:
    NamedColor single(const QString &text) const
    {
        const std::optional<TemplateToken> token = Tokens::read(text, m_prefix);
        if (token && token->kind == Kind::Color) {
            const QString key = token->key;
            const bool isColor = kindInStyleSheets(m_theme, key) == Kind::Color;
            return {isColor ? m_theme.theme().color(key) : QColor(), key, key};
        }
        if (text == QLatin1String("none"))
            return {QColor(Qt::transparent), text, QString()};
        return {QColor::isValidColor(text) ? QColor(text) : QColor(), text, QString()};
    }

    const ThemeStack &m_theme;
    const QString m_prefix;
};

// The colours that can stand behind the text: what shines through shows the layer below. Nothing if
// that has no end, for the templates do not say what stands behind a translucent widget.
Ground opaqueGround(const Colors &colors, const QVector<StyleValue> &layers)
{
    Ground ground;
    for (int i = int(layers.size() - 1); i >= 0; --i) {
        if (layers.at(i).offset < 0)
            continue;
        const Ground layer = colors.read(layers.at(i).text);
        if (layer.isEmpty())
            return {};
        Ground mixed;
        for (const NamedColor &front : layer) {
            if (front.color.alpha() == 255)
                mixed.append(front);
            for (const NamedColor &back : qAsConst(ground)) {
                if (front.color.alpha() == 0)
                    mixed.append(back);
                else if (front.color.alpha() < 255)
                    mixed.append({ColorMath::over(front.color, back.color),
                                  front.name % QLatin1String(" over ") % back.name, QString()});
            }
        }
        ground = mixed;
        if (ground.isEmpty() && i == 0)
            return {};
    }
    return ground;
}

double leastContrast(const QColor &text, const Ground &ground, QString *where = nullptr)
{
    double least = 21.0;
    for (const NamedColor &background : ground) {
        const double ratio = ColorMath::contrastRatio(text, background.color);
        if (ratio <= least && where)
            *where = background.name;
        least = qMin(least, ratio);
    }
    return least;
}

// The palette of one theme, taken apart once.
class Palette
{
public:
    explicit Palette(const ThemeStack &theme)
    {
        QStringList names = storedKeys(theme, Kind::Palette);
        names.sort();
        for (const QString &name : qAsConst(names)) {
            const QColor color = theme.theme().readNamedColor(name).first;
            m_entries.append({name, color, ColorMath::toLab(color)});
        }
    }

    QString advice(const QColor &text, const Ground &ground, double minimum)
    {
        if (++m_advised > adviceLimit)
            return {};
        const ColorMath::Lab wanted = ColorMath::toLab(text);
        const Entry *best = nullptr;
        double bestDistance = 0.0;
        for (const Entry &entry : qAsConst(m_entries)) {
            const double distance = ColorMath::distance(wanted, entry.lab);
            const bool isNearer = !best || distance < bestDistance;
            if (isNearer && leastContrast(entry.color, ground) >= minimum) {
                best = &entry;
                bestDistance = distance;
            }
        }
        if (!best)
            return QStringLiteral("; no palette entry would pass");
        return QStringLiteral("; the nearest palette entry that passes is %1 with %2")
            .arg(best->name, ColorMath::contrastText(leastContrast(best->color, ground)));
    }

private:
    // Each piece of advice looks at the whole palette: given without end it would take time with
    // the square of a theme's size.
    static constexpr int adviceLimit = 100;

    struct Entry {
        QString name;
        QColor color;
        ColorMath::Lab lab;
    };
    QVector<Entry> m_entries;
    int m_advised = 0;
};

void checkPair(const ThemeProject &project, const ThemeStack &theme, const TextPair &pair,
               const Colors &colors, Palette *palette, QSet<QString> *known, Report &report)
{
    const Ground text = colors.read(pair.foreground.text);
    const Ground ground = opaqueGround(colors, pair.backgrounds);
    if (text.size() != 1 || ground.isEmpty())
        return;
    QString background;
    const double minimum = project.options().minimalContrast;
    const double ratio = leastContrast(text.first().color, ground, &background);
    const QString identity = text.first().name % QLatin1Char('\n') % background;
    if (ratio >= minimum || known->contains(identity))
        return;
    known->insert(identity);
    const Place place = project.templates().placeAt(pair.foreground.offset);
    const QString message = text.first().name % QLatin1String(" on ") % background
        % QLatin1String(" has a contrast of ") % ColorMath::contrastText(ratio)
        % QLatin1String(" in theme ") % theme.name() % QLatin1String(", less than ")
        % ColorMath::contrastText(minimum) % QLatin1String(" (") % pair.selector.text
        % QLatin1String(", ") % place.shortText() % QLatin1Char(')')
        % palette->advice(text.first().color, ground, minimum);
    const Definition *definition = theme.find(Kind::Color, text.first().key);
    const Severity severity = pair.drawsText ? Severity::Warning : Severity::Info;
    report.add(definition ? definition->keyPlace() : place, message, severity);
}

void check(const ThemeProject &project, Report &report)
{
    const QVector<TextPair> pairs = textPairs(project.styleRules());
    for (const ThemeStack *theme : project.themes()) {
        const Colors colors(*theme, project.options().prefix);
        Palette palette(*theme);
        QSet<QString> known;
        // Certain text first: a pair is told of once, with the greater severity.
        for (const bool drawsText : {true, false}) {
            for (const TextPair &pair : pairs) {
                if (pair.drawsText == drawsText)
                    checkPair(project, *theme, pair, colors, &palette, &known, report);
            }
        }
    }
}

} // namespace

namespace LintRules
{

extern const LintRule contrast{"contrast", Severity::Warning,
                               "Text and its background are too close.", check};

} // namespace LintRules
