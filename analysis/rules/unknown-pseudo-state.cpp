// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>
#include <analysis/style/pseudocheck.h>
#include <analysis/style/stylevocabulary.h>

namespace
{

QString message(const PseudoCheck &check, const StyleSelector &selector,
                const StyleSelector::Pseudo &pseudo)
{
    if (StyleVocabulary::isSubControl(pseudo.name))
        return QLatin1String("a sub-control has to come before all states; Qt takes ") % pseudo.name
            % QLatin1String(" for a state that always holds, the others with it");
    const bool isOfAncestor = pseudo.offset < selector.subject().offset;
    const char *const effect = isOfAncestor ? ", and asks ancestors for none"
        : selector.subControl() == pseudo.name
        ? " and takes it for a sub-control, which no widget has"
        : " and takes it and the states beside it for always held";
    return QLatin1String("Qt knows no state ") % pseudo.name % QLatin1String(effect)
        % check.stateQuestion(pseudo.name);
}

void check(const ThemeProject &project, Report &report)
{
    const PseudoCheck check;
    for (const StyleRule &rule : project.styleRules().rules()) {
        for (const StyleSelector &selector : rule.selectors) {
            const QVector<StyleSelector::Pseudo> unknown = check.unknownStates(selector);
            for (const StyleSelector::Pseudo &pseudo : unknown) {
                if (!isBuiltInTemplate(project, pseudo.offset))
                    report.addAtTemplate(project.templates(), pseudo.offset,
                                         message(check, selector, pseudo));
            }
        }
    }
}

} // namespace

namespace LintRules
{

extern const LintRule unknownPseudoState{"unknown-pseudo-state", Severity::Warning,
                                         "A selector names a state that does not exist.", check};

} // namespace LintRules
