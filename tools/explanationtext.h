// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef TOOLS_EXPLANATIONTEXT_H
#define TOOLS_EXPLANATIONTEXT_H

#include <analysis/explanation.h>

/*! \brief Returns the \a steps as printable lines, under headings, the details indented. */
QString explanationText(const QVector<ExplanationStep> &steps);

#endif
