// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "desktopsettings.h"

#include "desktopfiles.h"
#include "desktopportal.h"

#include <QGuiApplication>
#include <QSettings>
#include <QStandardPaths>
#include <QStyleHints>
#include <QTimer>

#include <optional>

namespace HV
{

namespace
{

const QLatin1String rememberedScheme("ColorScheme");
const QLatin1String rememberedContrast("Contrast");
const QLatin1String rememberedAccent("AccentColor");
const QLatin1String rememberedPresence("Portal");

QString memoryFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation)
        + QLatin1String("/hvtheme/desktop.ini");
}

bool isDark(const QPalette &palette)
{
    return qGray(palette.color(QPalette::Window).rgb())
        < qGray(palette.color(QPalette::WindowText).rgb());
}

// What Qt itself knows of the desktop, from 6.5 on; nothing before.
std::optional<DesktopSettings::ColorScheme> platformScheme()
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    switch (QGuiApplication::styleHints()->colorScheme()) {
    case Qt::ColorScheme::Dark:
        return DesktopSettings::ColorScheme::Dark;
    case Qt::ColorScheme::Light:
        return DesktopSettings::ColorScheme::Light;
    case Qt::ColorScheme::Unknown:
        break;
    }
#endif
    return {};
}

} // namespace

class HVTHEMEAPP_NO_EXPORT DesktopSettings::Private
{
public:
    explicit Private(const QPalette &startPalette)
        : startScheme(isDark(startPalette) ? ColorScheme::Dark : ColorScheme::Light)
    {
        recall();
        combine();
    }

    void recall();
    void remember();
    bool combine();

    const ColorScheme startScheme;
    DesktopFiles files;
    DesktopPortal portal;
    // What the portal said the last time, in this program or another.
    DesktopPreferences memory;
    bool remembersPortal = false;
    bool isUpdating = false;

    ColorScheme colorScheme = ColorScheme::Light;
    Contrast contrast = Contrast::Normal;
    QColor accentColor;
};

void DesktopSettings::Private::recall()
{
    const QSettings file(memoryFile(), QSettings::IniFormat);
    remembersPortal = file.value(rememberedPresence).toInt() == 1;
    if (!remembersPortal)
        return;
    const QString scheme = file.value(rememberedScheme).toString();
    if (scheme == QLatin1String("dark"))
        memory.colorScheme = ColorScheme::Dark;
    else if (scheme == QLatin1String("light"))
        memory.colorScheme = ColorScheme::Light;
    const QString contrastText = file.value(rememberedContrast).toString();
    if (contrastText == QLatin1String("high"))
        memory.contrast = Contrast::High;
    else if (contrastText == QLatin1String("normal"))
        memory.contrast = Contrast::Normal;
    memory.accentColor = QColor(file.value(rememberedAccent).toString());
}

// A folder that cannot be written costs one frame in the wrong look at the next start, no more.
void DesktopSettings::Private::remember()
{
    if (portal.presence() == DesktopPortal::Presence::Unknown)
        return;
    const bool isPresent = portal.presence() == DesktopPortal::Presence::Present;
    if (isPresent == remembersPortal && memory == portal.preferences())
        return;
    remembersPortal = isPresent;
    memory = portal.preferences();
    QSettings file(memoryFile(), QSettings::IniFormat);
    file.clear();
    file.setValue(rememberedPresence, isPresent ? 1 : 0);
    if (memory.colorScheme)
        file.setValue(rememberedScheme,
                      *memory.colorScheme == ColorScheme::Dark ? QStringLiteral("dark")
                                                               : QStringLiteral("light"));
    if (memory.contrast)
        file.setValue(rememberedContrast,
                      *memory.contrast == Contrast::High ? QStringLiteral("high")
                                                         : QStringLiteral("normal"));
    if (memory.accentColor.isValid())
        file.setValue(rememberedAccent, memory.accentColor.name());
}

// Returns whether anything is another than before.
bool DesktopSettings::Private::combine()
{
    const bool isKnown = portal.presence() != DesktopPortal::Presence::Unknown;
    DesktopPreferences all = isKnown ? portal.preferences() : memory;
    const bool hasPortal =
        isKnown ? portal.presence() == DesktopPortal::Presence::Present : remembersPortal;
    all.complete(files.preferences());
    const ColorScheme newScheme = all.colorScheme.value_or(
        hasPortal ? ColorScheme::Light : platformScheme().value_or(startScheme));
    const Contrast newContrast = all.contrast.value_or(Contrast::Normal);
    const bool isNew =
        newScheme != colorScheme || newContrast != contrast || all.accentColor != accentColor;
    colorScheme = newScheme;
    contrast = newContrast;
    accentColor = all.accentColor;
    return isNew;
}

DesktopSettings::DesktopSettings(const QPalette &startPalette, QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>(startPalette))
{
    // Desktops change several settings at a stroke; what comes in one turn is one change.
    const auto update = [this] {
        if (std::exchange(d->isUpdating, true))
            return;
        QTimer::singleShot(0, this, [this] {
            d->isUpdating = false;
            d->remember();
            if (d->combine())
                Q_EMIT changed();
        });
    };
    connect(&d->files, &DesktopFiles::changed, this, update);
    connect(&d->portal, &DesktopPortal::changed, this, update);
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    connect(QGuiApplication::styleHints(), &QStyleHints::colorSchemeChanged, this, update);
#endif
}

DesktopSettings::~DesktopSettings() = default;

DesktopSettings::ColorScheme DesktopSettings::colorScheme() const
{
    return d->colorScheme;
}

DesktopSettings::Contrast DesktopSettings::contrast() const
{
    return d->contrast;
}

QColor DesktopSettings::accentColor() const
{
    return d->accentColor;
}

} // namespace HV
