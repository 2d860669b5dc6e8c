// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "core.h"

#include <hvtheme/theme.h>
#include <hvtheme/theming.h>

// Nothing here names what registers the templates.
int ruleCount()
{
    HV::Theme theme(QStringLiteral("host"));
    const QString styleSheet =
        HV::findStyleSheet(&theme, QStringLiteral(":/stylesheet"), QStringLiteral("global"));
    return int(styleSheet.count(QLatin1Char('{')));
}
