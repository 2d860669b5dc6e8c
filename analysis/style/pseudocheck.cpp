// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/style/pseudocheck.h>

#include <analysis/style/stylevocabulary.h>

PseudoCheck::PseudoCheck()
    : m_states(StyleVocabulary::states())
    , m_subControls(StyleVocabulary::subControls())
{
}

QVector<StyleSelector::Pseudo> PseudoCheck::unknownStates(const StyleSelector &selector) const
{
    QVector<StyleSelector::Pseudo> unknown;
    const std::optional<StyleSelector::Pseudo> misspelt = unknownSubControl(selector);
    for (const StyleSelector::Step &step : selector.steps) {
        for (int i = 0; i < step.pseudos.size(); ++i) {
            const StyleSelector::Pseudo &pseudo = step.pseudos.at(i);
            const bool isSubControl = i == 0
                && (StyleVocabulary::isSubControl(pseudo.name)
                    || (misspelt && misspelt->offset == pseudo.offset));
            if (!isSubControl && !StyleVocabulary::isState(pseudo.name))
                unknown.append(pseudo);
        }
    }
    return unknown;
}

std::optional<StyleSelector::Pseudo>
PseudoCheck::unknownSubControl(const StyleSelector &selector) const
{
    const QString name = selector.isValid() ? selector.subControl() : QString();
    if (name.isEmpty() || StyleVocabulary::isSubControl(name))
        return std::nullopt;
    const StyleSelector::Pseudo &first = selector.subject().pseudos.constFirst();
    const QString lower = name.toLower();
    const bool isMeant = first.isDoubled
        || (m_states.nearest(lower).isEmpty() && !m_subControls.nearest(lower).isEmpty());
    return isMeant ? std::optional<StyleSelector::Pseudo>(first) : std::nullopt;
}
