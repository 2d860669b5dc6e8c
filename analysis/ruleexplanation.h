// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef ANALYSIS_RULEEXPLANATION_H
#define ANALYSIS_RULEEXPLANATION_H

#include <analysis/explanation.h>
#include <analysis/style/styleelement.h>

#include <optional>

/*!
 * \brief Returns what \a selector names as if it were there: `QMenu::item:selected`,
 *        `QPushButton[style=general]:hover`, `QDialog QLabel#title`.
 *
 * The classes are those that Qt derives the named one from; a class that Qt does not have is taken for
 * one derived from QWidget. The states are those that are named; besides, it is enabled and its window active
 * unless the selector says otherwise.
 *
 * \param error  set to one sentence if nothing is returned: the selector cannot be read, is several,
 *               or names states or sub-controls that Qt does not have.
 */
std::optional<StyleElement> elementOf(const QString &selector, QString *error);

/*!
 * \brief Tells which rules of the templates match \a element, the strongest first, and what became
 *        of each of their declarations in \a theme.
 *
 * Rule, Declaration, Source and Note steps: the notes say by which declaration another one is overridden.
 * Empty if no rule matches.
 */
QVector<ExplanationStep> ruleSteps(const ThemeProject &project, const ThemeStack &theme,
                                   const StyleElement &element);

/*! \brief Tells whether \a text is meant as a selector, not as a key: by its characters, or because
 *         Qt or a template has a class of that name. */
bool isMeantAsSelector(const ThemeProject &project, const QString &text);

#endif
