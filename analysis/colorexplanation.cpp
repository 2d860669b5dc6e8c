// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/colorexplanation.h>

#include <analysis/theme/storedvalues.h>
#include <colormath/distance.h>

#include <QRegularExpression>

#include <algorithm>

namespace
{

using Topic = ExplanationStep::Topic;

bool isSame(const QColor &first, const QColor &second)
{
    return first.isValid() && second.isValid() && first.rgba() == second.rgba();
}

bool holds(const QVariant &value, const QColor &color)
{
    if (value.userType() == qMetaTypeId<QGradientStops>()) {
        const auto stops = value.value<QGradientStops>();
        return std::any_of(stops.cbegin(), stops.cend(),
                           [&](const QGradientStop &stop) { return isSame(stop.second, color); });
    }
    return value.userType() == QMetaType::QColor && isSame(value.value<QColor>(), color);
}

// The arguments of rgb() and rgba(): three numbers or shares, and an opacity of 0 to 255 or a share.
QColor colorOfArguments(const QString &arguments)
{
    const QStringList parts = arguments.split(QLatin1Char(','));
    QColor color(0, 0, 0);
    int channels[4] = {0, 0, 0, 255};
    for (int i = 0; i < parts.size() && i < 4; ++i) {
        const QString part = parts.at(i).trimmed();
        const bool isShare = part.endsWith(QLatin1Char('%'));
        const double number = part.left(part.size() - (isShare ? 1 : 0)).toDouble();
        channels[i] = qBound(0, int(isShare ? number * 255 / 100 : number), 255);
    }
    color.setRgb(channels[0], channels[1], channels[2], channels[3]);
    return color;
}

// Tells whether a value of a style sheet paints with the color. Words are colours only where a colour can be:
// there are fonts called so.
bool paintsWith(const QString &property, const QString &value, const QColor &color)
{
    static const QRegularExpression colors(QStringLiteral(
        "(#[0-9a-fA-F]+)|\\brgba?\\s*\\(([^)]*)\\)|(?<![\\w.#/-])([A-Za-z]+)(?![\\w(./-])"));
    static const QRegularExpression places(QStringLiteral("color|background|border|outline"),
                                           QRegularExpression::CaseInsensitiveOption);
    const bool mayBeWord = places.match(property).hasMatch();
    auto matches = colors.globalMatch(value);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        QColor found;
        if (!match.captured(1).isEmpty())
            found = QColor(match.captured(1));
        else if (!match.captured(2).isEmpty())
            found = colorOfArguments(match.captured(2));
        else if (mayBeWord && QColor::isValidColor(match.captured(3)))
            found = QColor(match.captured(3));
        if (isSame(found, color))
            return true;
    }
    return false;
}

} // namespace

QColor colorOf(const QString &text)
{
    static const QRegularExpression form(QRegularExpression::anchoredPattern(
        QStringLiteral("#([0-9a-fA-F]{3}|[0-9a-fA-F]{6}|[0-9a-fA-F]{8})")));
    return form.match(text).hasMatch() ? QColor(text) : QColor();
}

QVector<ExplanationStep> colorSteps(const ThemeProject &project, const ThemeStack &theme,
                                    const QColor &color)
{
    QVector<ExplanationStep> steps;
    const auto values = storedValues(theme, project.options().applicationFolder);
    for (const StoredValue &value : values) {
        if (!holds(value.value, color))
            continue;
        steps.append({Topic::Value,
                      {},
                      nounOf(value.kind()) % QLatin1Char(' ') % value.key() % QLatin1String(": ")
                          % valueText(value.value)});
        steps += originSteps(theme, *value.definition);
    }
    const TemplateText &templates = project.templates();
    const QVariantMap inSheets = theme.values(project.options().applicationFolder);
    for (const StyleRule &rule : project.styleRules().rules()) {
        for (const StyleDeclaration &declaration : rule.declarations) {
            const QString value =
                finishedStyleSheet(templates.prefix(), inSheets, declaration.value).text;
            if (paintsWith(declaration.property, value, color))
                steps.append({Topic::Token, templates.placeAt(declaration.start),
                              rule.selector % QLatin1String(" { ") % declaration.property
                                  % QLatin1String(": ") % declaration.value % QLatin1String(" }")});
        }
    }
    return steps;
}

QString nearestColor(const ThemeProject &project, const ThemeStack &theme, const QColor &color)
{
    const StoredValue *nearest = nullptr;
    double best = 0;
    const auto values = storedValues(theme, project.options().applicationFolder);
    for (const StoredValue &value : values) {
        if (value.value.userType() != QMetaType::QColor)
            continue;
        const auto other = value.value.value<QColor>();
        // Opacity differs as much as its share of the whole range.
        const double distance =
            ColorMath::distance(ColorMath::toLab(color), ColorMath::toLab(other))
            + qAbs(color.alphaF() - other.alphaF()) * 100;
        if (!nearest || distance < best) {
            nearest = &value;
            best = distance;
        }
    }
    if (!nearest)
        return {};
    return QStringLiteral("The nearest is the %1 %2: %3")
        .arg(nounOf(nearest->kind()), nearest->key(), valueText(nearest->value));
}
