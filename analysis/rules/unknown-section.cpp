// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>
#include <analysis/suggestion.h>

namespace
{

QStringList knownSections()
{
    QStringList names;
    for (const Kind kind : allKinds)
        names << sectionName(kind);
    return names;
}

QString firstPart(const QString &name)
{
    return name.left(name.indexOf(QLatin1Char('/')));
}

void checkTopLevelKey(const ThemeFile &file, const ThemeFileEntry &entry, Report &report)
{
    const QString nameKey = QStringLiteral("ThemeName");
    if (entry.key == nameKey)
        return;
    report.add(
        {file.path(), entry.keyPosition},
        QStringLiteral("%1 stands in no section, where only ThemeName is read").arg(entry.key)
            % Suggestion({nameKey}).question(entry.key));
}

void check(const ThemeProject &project, Report &report)
{
    const Suggestion suggestion(knownSections());
    for (const auto &layer : project.layers()) {
        QSet<QString> known;
        for (const QString &name : knownSections())
            known.insert(name);
        const auto check = [&](const QString &name, TextPosition position) {
            if (known.contains(name))
                return;
            known.insert(name); // one report is enough
            report.add({layer->file.path(), position},
                       QStringLiteral("section %1 is not read").arg(name)
                           % suggestion.question(name));
        };
        for (const ThemeFileSection &section : layer->file.sections()) {
            if (!section.name.isEmpty())
                check(firstPart(section.name), section.position);
        }
        for (const ThemeFileEntry &entry : layer->file.entries()) {
            if (entry.section().isEmpty())
                checkTopLevelKey(layer->file, entry, report);
            else
                check(entry.section(), entry.keyPosition);
        }
    }
}

} // namespace

namespace LintRules
{

extern const LintRule unknownSection{"unknown-section", Severity::Warning,
                                     "The library does not read the section or top-level key.",
                                     check};

} // namespace LintRules
