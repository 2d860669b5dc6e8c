// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>
#include <analysis/style/pseudocheck.h>

namespace
{

QString message(const PseudoCheck &check, const StyleSelector &selector,
                const StyleSelector::Pseudo &pseudo)
{
    QString hint = check.subControlQuestion(pseudo.name);
    if (hint.isEmpty() && pseudo.name.at(0).isUpper())
        hint = QLatin1String("; a class in a namespace is written ") % selector.subject().type
            % QLatin1String("--") % pseudo.name;
    return QLatin1String("no widget of Qt has a sub-control ") % pseudo.name % hint;
}

void check(const ThemeProject &project, Report &report)
{
    const PseudoCheck check;
    for (const StyleRule &rule : project.styleRules().rules()) {
        for (const StyleSelector &selector : rule.selectors) {
            const std::optional<StyleSelector::Pseudo> pseudo = check.unknownSubControl(selector);
            if (pseudo && !isBuiltInTemplate(project, pseudo->offset))
                report.addAtTemplate(project.templates(), pseudo->offset,
                                     message(check, selector, *pseudo));
        }
    }
}

} // namespace

namespace LintRules
{

extern const LintRule unknownSubcontrol{"unknown-subcontrol", Severity::Warning,
                                        "A selector names a sub-control that no widget has.",
                                        check};

} // namespace LintRules
