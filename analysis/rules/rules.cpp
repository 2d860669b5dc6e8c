// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

#include <algorithm>
#include <tuple>

QVector<Finding> runLintRules(const ThemeProject &project, const QStringList &disabled)
{
    Report report;
    for (const LintRule *rule : allLintRules()) {
        if (disabled.contains(QLatin1String(rule->name)))
            continue;
        report.begin(*rule);
        rule->check(project, report);
    }
    return report.findings();
}

void Report::add(const Place &place, const QString &message)
{
    add(place, message, m_rule->severity);
}

void Report::add(const Place &place, const QString &message, Severity severity)
{
    const QString rule = QLatin1String(m_rule->name);
    const QString identity = place.text() % QLatin1Char('\n') % rule % QLatin1Char('\n') % message;
    if (m_seen.contains(identity))
        return;
    m_seen.insert(identity);
    m_findings.append({place, severity, message, rule});
}

void Report::addAtKey(const Definition &definition, const QString &message)
{
    add(definition.keyPlace(), message);
}

void Report::addAtValue(const Definition &definition, const QString &message)
{
    add(definition.valuePlace(), message);
}

void Report::addAtColor(const ColorText &color, const QString &message)
{
    add({color.definition->layer->file.path(), color.entry->valuePosition}, message);
}

void Report::addAtTemplate(const TemplateText &templates, int offset, const QString &message)
{
    add(templates.placeAt(offset), message);
}

QVector<Finding> Report::findings() const
{
    QVector<Finding> sorted = m_findings;
    std::stable_sort(sorted.begin(), sorted.end(), [](const Finding &a, const Finding &b) {
        return std::tie(a.place.file, a.place.position, a.rule, a.message)
            < std::tie(b.place.file, b.place.position, b.rule, b.message);
    });
    return sorted;
}
