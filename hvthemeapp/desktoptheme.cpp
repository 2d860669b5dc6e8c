// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "desktoptheme.h"

#include <format/themepath.h>
#include <hvtheme/inifile.h>

#include <QColor>
#include <QFileInfo>
#include <QSettings>

#include <optional>

namespace HV
{

namespace
{

// Nothing but a file is opened: a pipe would never end. A theme too large to be taken has no say.
QString readable(const QString &path)
{
    const QFileInfo file(path);
    const bool isTaken = file.isFile() && file.size() <= themeFileSizeLimit;
    return isTaken ? path : QStringLiteral(":/hvthemeapp/none");
}

/*! The two files of a theme, read without a theme's messages. */
class ThemeFiles
{
public:
    ThemeFiles(const QString &defaultFile, const QString &ownFile, const QString &name)
        : m_default(readable(defaultFile), iniFormat(defaultFile))
        , m_own(readable(ownFile), iniFormat(ownFile))
        , m_name(name)
    {
    }

    bool isDark() const
    {
        if (const std::optional<bool> isSet = flag(QStringLiteral("DarkSurfaces")))
            return *isSet;
        const QColor ground = color(QStringLiteral("BackgroundColor_3"));
        return ground.isValid() ? qGray(ground.rgb()) < 128 : !isNamed("light");
    }

    bool isOfHighContrast() const
    {
        return flag(QStringLiteral("HighContrast")).value_or(isNamed("contrast"));
    }

private:
    // Numbers, as the core reads them: what is none is 0. The theme's replaces the default one.
    std::optional<bool> flag(const QString &key) const
    {
        for (const QSettings *file : {&m_own, &m_default}) {
            const QVariant value = file->value(QLatin1String("Flags/") + key);
            if (value.isValid())
                return value.toInt() != 0;
        }
        return {};
    }

    // The default file's goes before the theme's: a theme only adds colours.
    QString text(const QString &key) const
    {
        return m_default.value(key, m_own.value(key)).toString();
    }

    QColor color(const QString &key) const
    {
        const QString named = text(QLatin1String("Colors/") + key);
        const QString mixed = text(QLatin1String("Palettes/") + named);
        const QString digits = mixed.isEmpty() ? named : mixed;
        return QColor(digits.startsWith(QLatin1Char('#')) ? digits : QLatin1Char('#') + digits);
    }

    bool isNamed(const char *word) const
    {
        return m_name.contains(QLatin1String(word), Qt::CaseInsensitive);
    }

    QSettings m_default;
    QSettings m_own;
    QString m_name;
};

} // namespace

QString themeForDesktop(const QString &folder, const QString &suffix, const QStringList &themes,
                        DesktopSettings::ColorScheme scheme, DesktopSettings::Contrast contrast)
{
    const bool wantsDark = scheme == DesktopSettings::ColorScheme::Dark;
    const bool wantsContrast = contrast == DesktopSettings::Contrast::High;
    QString best;
    int bestRank = -1;
    for (const QString &name : themes) {
        const ThemeFiles files(themeFilePath(folder, defaultThemeName(), suffix),
                               themeFilePath(folder, name, suffix), name);
        const bool isDark = files.isDark();
        const bool isContrast = files.isOfHighContrast();
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
