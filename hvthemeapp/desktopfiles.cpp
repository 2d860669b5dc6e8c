// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "desktopfiles.h"

#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

namespace HV
{

namespace
{

using ColorScheme = DesktopSettings::ColorScheme;
using Contrast = DesktopSettings::Contrast;

const qint64 largestFile = 1 << 20;
const int settlingMs = 40; // programs write a file in several steps

const QLatin1String gtkFiles[] = {QLatin1String("gtk-3.0/settings.ini"),
                                  QLatin1String("gtk-4.0/settings.ini")};
const QLatin1String kdeFile("kdeglobals");

// The user's own file first, then those of the system.
QStringList existing(const QString &name)
{
    QStringList result;
    const QStringList paths =
        QStandardPaths::locateAll(QStandardPaths::GenericConfigLocation, name);
    for (const QString &path : paths) {
        const QFileInfo file(path);
        if (file.isFile() && file.size() <= largestFile)
            result.append(path);
    }
    return result;
}

// Three numbers, 0 to 255.
QColor colorOf(const QVariant &value)
{
    const QStringList parts = value.toStringList();
    if (parts.size() < 3)
        return {};
    int channels[3] = {};
    for (int i = 0; i < 3; ++i) {
        bool ok = false;
        channels[i] = parts.at(i).trimmed().toInt(&ok);
        if (!ok || channels[i] < 0 || channels[i] > 255)
            return {};
    }
    return {channels[0], channels[1], channels[2]};
}

DesktopPreferences readKde(const QString &path)
{
    DesktopPreferences result;
    const QSettings file(path, QSettings::IniFormat);
    const QColor ground = colorOf(file.value(QStringLiteral("Colors:Window/BackgroundNormal")));
    const QColor text = colorOf(file.value(QStringLiteral("Colors:Window/ForegroundNormal")));
    // Keys of the section General stand at the top for QSettings.
    const QString name = file.value(QStringLiteral("ColorScheme")).toString();
    if (ground.isValid()) {
        const bool isDark = qGray(ground.rgb()) < (text.isValid() ? qGray(text.rgb()) : 128);
        result.colorScheme = isDark ? ColorScheme::Dark : ColorScheme::Light;
    } else if (name.contains(QLatin1String("dark"), Qt::CaseInsensitive)) {
        result.colorScheme = ColorScheme::Dark;
    } else if (name.contains(QLatin1String("light"), Qt::CaseInsensitive)) {
        result.colorScheme = ColorScheme::Light;
    }
    if (name.contains(QLatin1String("contrast"), Qt::CaseInsensitive))
        result.contrast = Contrast::High;
    result.accentColor = colorOf(file.value(QStringLiteral("AccentColor")));
    return result;
}

// "Adwaita", "Adwaita-dark", "Adwaita:dark", "HighContrastInverse"
DesktopPreferences readGtkTheme(const QString &name)
{
    DesktopPreferences result;
    if (name.isEmpty())
        return result;
    const bool isDark = name.endsWith(QLatin1String("-dark"), Qt::CaseInsensitive)
        || name.endsWith(QLatin1String(":dark"), Qt::CaseInsensitive)
        || name.contains(QLatin1String("Inverse"));
    result.colorScheme = isDark ? ColorScheme::Dark : ColorScheme::Light;
    if (name.startsWith(QLatin1String("HighContrast")))
        result.contrast = Contrast::High;
    return result;
}

DesktopPreferences readGtk(const QString &path)
{
    const QSettings file(path, QSettings::IniFormat);
    DesktopPreferences result =
        readGtkTheme(file.value(QStringLiteral("Settings/gtk-theme-name")).toString());
    const QVariant prefersDark =
        file.value(QStringLiteral("Settings/gtk-application-prefer-dark-theme"));
    if (!prefersDark.isValid())
        return result;
    const QString text = prefersDark.toString();
    if (text == QLatin1String("1") || text.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0)
        result.colorScheme = ColorScheme::Dark;
    else if (!result.colorScheme)
        result.colorScheme = ColorScheme::Light;
    return result;
}

} // namespace

DesktopFiles::DesktopFiles(QObject *parent)
    : QObject(parent)
{
    m_settling.setSingleShot(true);
    m_settling.setInterval(settlingMs);
    connect(&m_settling, &QTimer::timeout, this, &DesktopFiles::read);
    // Not from the start again: others may write into the same folder all the time.
    const auto wait = [this] {
        if (!m_settling.isActive())
            m_settling.start();
    };
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, wait);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, wait);
    read();
}

void DesktopFiles::read()
{
    DesktopPreferences found;
    for (const QString &path : existing(kdeFile))
        found.complete(readKde(path));
    found.complete(readGtkTheme(qEnvironmentVariable("GTK_THEME")));
    for (const QLatin1String &name : gtkFiles) {
        for (const QString &path : existing(name))
            found.complete(readGtk(path));
    }
    watch();
    if (std::exchange(m_preferences, found) != found)
        Q_EMIT changed();
}

// Files are replaced more often than written to, so their folders are watched as well. Only the
// user's own change while a program runs.
void DesktopFiles::watch()
{
    const QString home =
        QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QLatin1Char('/');
    QStringList paths{home};
    for (const QLatin1String &name : {kdeFile, gtkFiles[0], gtkFiles[1]}) {
        const QFileInfo file(home + name);
        paths << file.filePath() << file.path();
    }
    paths.removeDuplicates();
    const QStringList watched = m_watcher.files() + m_watcher.directories();
    QStringList added;
    for (const QString &path : qAsConst(paths)) {
        if (!watched.contains(path) && QFileInfo::exists(path))
            added.append(path);
    }
    if (!added.isEmpty())
        m_watcher.addPaths(added);
}

void DesktopPreferences::complete(const DesktopPreferences &other)
{
    if (!colorScheme)
        colorScheme = other.colorScheme;
    if (!contrast)
        contrast = other.contrast;
    if (!accentColor.isValid())
        accentColor = other.accentColor;
}

bool DesktopPreferences::operator==(const DesktopPreferences &other) const
{
    return colorScheme == other.colorScheme && contrast == other.contrast
        && accentColor == other.accentColor;
}

} // namespace HV
