// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HOST_CORE_H
#define HOST_CORE_H

/*! \brief Returns how many rules the built-in templates have. */
int ruleCount();

#endif
