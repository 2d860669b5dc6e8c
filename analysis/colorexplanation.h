// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef ANALYSIS_COLOREXPLANATION_H
#define ANALYSIS_COLOREXPLANATION_H

#include <analysis/explanation.h>

#include <QColor>

/*!
 * \brief Returns the colour that \a text names as theme files and style sheets do, "#rgb", "#rrggbb" or
 *        "#aarrggbb", or an invalid one.
 */
QColor colorOf(const QString &text);

/*!
 * \brief Tells which palette entries, keys and gradients of \a theme are \a color, and which rules of
 *        the templates paint with it, by a token or as it stands there.
 *
 * Opacity counts. Value, Origin and Token steps; none if nothing has this colour.
 */
QVector<ExplanationStep> colorSteps(const ThemeProject &project, const ThemeStack &theme,
                                    const QColor &color);

/*! \brief Returns one sentence: which palette entry or key of \a theme is nearest to \a color; empty if the
 *         theme has no colours. */
QString nearestColor(const ThemeProject &project, const ThemeStack &theme, const QColor &color);

#endif
