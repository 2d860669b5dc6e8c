// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

#include <QtMath>

namespace
{

QString objection(const GradientStopValue &stop, double last)
{
    bool isNumber = false;
    const double position = stop.position.toDouble(&isNumber);
    const QString text = stop.position.toString();
    if (!isNumber)
        return QStringLiteral("\"%1\" is no number and is stored as 0").arg(text);
    if (!(position >= 0.0 && position <= 1.0))
        return QStringLiteral("%1 is not between 0 and 1").arg(text);
    if (position < last)
        return QStringLiteral("%1 comes after %2; stops stay in the order of the file")
            .arg(text, QString::number(last));
    return {};
}

void check(const ThemeProject &project, Report &report)
{
    for (const ThemeStack *theme : project.allThemes()) {
        for (const Definition &definition : theme->definitions()) {
            if (definition.kind() != Kind::Gradient || definition.fate != Definition::Fate::Stored)
                continue;
            double last = 0.0;
            for (int i = 0; i < definition.value->stops.size(); ++i) {
                const GradientStopValue &stop = definition.value->stops.at(i);
                const QString text = objection(stop, last);
                last = qMax(last, stop.position.toDouble());
                const ThemeFileEntry *entry = stopEntry(definition, i, QStringLiteral("pos"));
                if (!text.isEmpty() && entry)
                    report.add({definition.layer->file.path(), entry->valuePosition},
                               QStringLiteral("position of stop %1 of gradient %2: ")
                                       .arg(QString::number(i + 1), definition.key())
                                   % text);
            }
        }
    }
}

} // namespace

namespace LintRules
{

extern const LintRule gradientPosition{
    "gradient-position", Severity::Warning,
    "A position in a gradient is no number, out of range or out of order.", check};

} // namespace LintRules
