// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>
#include <format/applicationkeys.h>

namespace
{

void check(const ThemeProject &project, Report &report)
{
    QSet<QString> used;
    for (const TemplateToken &token : project.tokens())
        used.insert(token.key);
    for (const ThemeStack *theme : project.allThemes()) {
        // Flags are for the application's code; no token is meant for them.
        for (const Kind kind : {Kind::Color, Kind::ImageFile, Kind::Integer}) {
            for (const int index : theme->stored(kind)) {
                const Definition &definition = theme->definitions().at(index);
                const bool isForApplication =
                    kind == Kind::Color && isOptionalColor(definition.key());
                if (!used.contains(definition.key()) && !isForApplication)
                    report.addAtKey(definition,
                                    QStringLiteral("no template uses the %1 %2")
                                        .arg(nounOf(kind), definition.key()));
            }
        }
    }
}

} // namespace

namespace LintRules
{

extern const LintRule unusedKey{"unused-key", Severity::Info,
                                "No template uses a colour, image file or integer.", check};

} // namespace LintRules
