// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include <format/applicationkeys.h>

QStringList accentKeys()
{
    return {QStringLiteral("AccentBackgroundColor"), QStringLiteral("AccentHoverColor"),
            QStringLiteral("AccentPressedColor"), QStringLiteral("AccentForegroundColor")};
}

bool isOptionalColor(const QString &key)
{
    return key.startsWith(QLatin1String("Palette_")) || accentKeys().contains(key);
}
