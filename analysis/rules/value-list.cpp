// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

namespace
{

// Lists that nothing reads do no harm: the plain key of a gradient has no meaning but to be there.
bool isRead(const QString &key)
{
    for (const Kind kind : allKinds) {
        const QString prefix = sectionName(kind) % QLatin1Char('/');
        if (!key.startsWith(prefix))
            continue;
        return kind != Kind::Gradient || key.endsWith(QLatin1String("/size"))
            || key.endsWith(QLatin1String("/pos")) || key.endsWith(QLatin1String("/color"));
    }
    return key == QLatin1String("ThemeName");
}

void check(const ThemeProject &project, Report &report)
{
    for (const auto &layer : project.layers()) {
        for (const QString &key : layer->values.listKeys) {
            const ThemeFileEntry *entry = layer->file.find(key);
            if (entry && isRead(key))
                report.add({layer->file.path(), entry->valuePosition},
                           QStringLiteral("the comma makes a list of the value of %1, which is "
                                          "stored as nothing; put it in quotation marks")
                               .arg(entry->name()));
        }
    }
}

} // namespace

namespace LintRules
{

extern const LintRule valueList{"value-list", Severity::Error,
                                "Commas turn a value into a list, which is stored as nothing.",
                                check};

} // namespace LintRules
