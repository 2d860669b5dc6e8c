// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef ANALYSIS_STYLE_PSEUDOCHECK_H
#define ANALYSIS_STYLE_PSEUDOCHECK_H

#include <analysis/style/styleselector.h>
#include <analysis/suggestion.h>

#include <optional>

/*!
 * \brief Finds states and sub-controls that Qt does not have, and what was meant.
 *
 * Qt asks nothing: the first pseudo that is no state names a sub-control, whatever it is called. Of
 * one behind a single colon it is a guess, then, what it was to be: a sub-control if it is spelt
 * like one and like no state, else a state.
 */
class PseudoCheck
{
public:
    PseudoCheck();

    /*! \brief Returns the pseudos that are meant as states and are none. */
    QVector<StyleSelector::Pseudo> unknownStates(const StyleSelector &selector) const;

    /*! \brief Returns the pseudo that is meant as a sub-control and that no widget of Qt has. */
    std::optional<StyleSelector::Pseudo> unknownSubControl(const StyleSelector &selector) const;

    /*! \brief Returns "; did you mean NAME?", or an empty text. */
    QString stateQuestion(const QString &name) const { return m_states.question(name.toLower()); }
    QString subControlQuestion(const QString &name) const
    {
        return m_subControls.question(name.toLower());
    }

private:
    Suggestion m_states;
    Suggestion m_subControls;
};

#endif
