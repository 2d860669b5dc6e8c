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

} // namespace

void Rules::unknownSubcontrol(const ThemeProject &input, Report &report)
{
    const PseudoCheck check;
    for (const StyleRule &rule : input.styleRules().rules()) {
        for (const StyleSelector &selector : rule.selectors) {
            const std::optional<StyleSelector::Pseudo> pseudo = check.unknownSubControl(selector);
            if (pseudo && !isBuiltInTemplate(input, pseudo->offset))
                report.addAtTemplate(input.templates(), pseudo->offset,
                                     message(check, selector, *pseudo));
        }
    }
}
