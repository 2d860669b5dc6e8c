// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

#include <QRegularExpression>

namespace
{

QString missingInStops(const ThemeValue &value)
{
    for (int i = 0; i < value.gradientSize; ++i) {
        const QString stop = QString::number(i + 1);
        const bool isRead = i < value.stops.size();
        if (!isRead || !value.stops.at(i).hasPosition)
            return QStringLiteral("stop %1 has no position (%2\\%1\\pos)").arg(stop, value.key);
        if (!value.stops.at(i).hasColor)
            return QStringLiteral("stop %1 has no colour (%2\\%1\\color)").arg(stop, value.key);
    }
    return {};
}

QString reason(const Definition &definition)
{
    const ThemeValue &value = *definition.value;
    if (value.gradientSize >= 1)
        return missingInStops(value);
    const QString sizeKey =
        sectionName(Kind::Gradient) % QLatin1Char('/') % value.key % QLatin1String("/size");
    if (!definition.layer->file.find(sizeKey))
        return QStringLiteral("its size is missing (%1\\size)").arg(value.key);
    return QStringLiteral("its size is below 1 or no number");
}

// A gradient is several lines, sorted by QSettings; people look for it where it begins.
Place firstPlace(const Definition &definition, const QString &name)
{
    const ThemeFile &file = definition.layer->file;
    const QString key = sectionName(Kind::Gradient) % QLatin1Char('/') % name;
    const QString prefix = key % QLatin1Char('/');
    for (const ThemeFileEntry &entry : file.entries()) {
        if (entry.key == key || entry.key.startsWith(prefix))
            return {file.path(), entry.keyPosition};
    }
    return definition.keyPlace();
}

// The library visits the keys of the arrays as names of gradients too, and reports each. Only what
// keeps a gradient out is told here: those reports come with every gradient that is whole.
void check(const ThemeProject &project, Report &report)
{
    static const QRegularExpression arrayKey(
        QStringLiteral("^(?<name>.+)/(?:size|\\d+/(?:pos|color))$"));
    for (const ThemeStack *theme : project.allThemes()) {
        QSet<QString> named;
        for (const Definition &definition : theme->definitions()) {
            if (definition.kind() == Kind::Gradient)
                named.insert(definition.layer->name % QLatin1Char('\n') % definition.key());
        }
        for (const Definition &definition : theme->definitions()) {
            if (definition.fate != Definition::Fate::Invalid)
                continue;
            const QRegularExpressionMatch match = arrayKey.match(definition.key());
            if (!match.hasMatch()) {
                report.add(firstPlace(definition, definition.key()),
                           QStringLiteral("gradient %1 is dropped: %2")
                               .arg(definition.key(), reason(definition)));
                continue;
            }
            const QString name = match.captured(QStringLiteral("name"));
            const QString plainKey = definition.layer->name % QLatin1Char('\n') % name;
            if (named.contains(plainKey))
                continue;
            named.insert(plainKey); // one report is enough
            report.add(firstPlace(definition, name),
                       QStringLiteral("gradient %1 is not read: there is no plain key of its "
                                      "name, such as %1=1")
                           .arg(name));
        }
    }
}

} // namespace

namespace LintRules
{

extern const LintRule invalidGradient{"invalid-gradient", Severity::Error,
                                      "A gradient is not whole and is dropped.", check};

} // namespace LintRules
