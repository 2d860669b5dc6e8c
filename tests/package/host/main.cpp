// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "core.h"

#include <cstdio>

int main()
{
    std::printf("%d\n", ruleCount());
    return 0;
}
