// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "desktoptheme.h"

#include <QSettings>

namespace HV
{

namespace
{

// Flags are numbers, as the core reads them: what is none is 0.
bool flag(const QString &folder, const QString &name, const QString &key, bool otherwise)
{
    for (const QString &base : {name, QStringLiteral("default")}) {
        const QSettings file(folder + QLatin1Char('/') + base + QLatin1String(".theme"),
                             QSettings::IniFormat);
        const QVariant value = file.value(QLatin1String("Flags/") + key);
        if (value.isValid())
            return value.toInt() != 0;
    }
    return otherwise;
}

bool names(const QString &name, const char *word)
{
    return name.contains(QLatin1String(word), Qt::CaseInsensitive);
}

} // namespace

QString themeForDesktop(const QString &folder, const QStringList &themes,
                        DesktopSettings::ColorScheme scheme, DesktopSettings::Contrast contrast)
{
    const bool wantsDark = scheme == DesktopSettings::ColorScheme::Dark;
    const bool wantsContrast = contrast == DesktopSettings::Contrast::High;
    QString best;
    int bestRank = -1;
    for (const QString &name : themes) {
        const bool isDark =
            flag(folder, name, QStringLiteral("DarkSurfaces"), !names(name, "light"));
        const bool isContrast =
            flag(folder, name, QStringLiteral("HighContrast"), names(name, "contrast"));
        const bool isUsual = name == QLatin1String("dark") || name == QLatin1String("light")
            || name == QLatin1String("contrast");
        const int rank = (isContrast == wantsContrast ? 4 : 0) + (isDark == wantsDark ? 2 : 0)
            + (isUsual ? 1 : 0);
        if (rank > bestRank) {
            best = name;
            bestRank = rank;
        }
    }
    return best;
}

} // namespace HV
