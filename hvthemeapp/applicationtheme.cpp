// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "applicationtheme.h"

#include "applicationpalette.h"
#include "desktopsettings.h"
#include "desktoptheme.h"
#include "iconcolors.h"
#include "iconplugins.h"
#include "missingimages.h"
#include "themedstyle.h"

#include <hvtheme/restyling.h>
#include <hvtheme/theming.h>
#include <hvtheme/workabletheming.h>

#include <QApplication>
#include <QFile>
#include <QSettings>

// Q_INIT_RESOURCE declares functions, so it may not stand inside a namespace.
static void initResources()
{
#ifdef HVTHEME_STATIC_DEFINE
    Q_INIT_RESOURCE(hvtheme);
#endif
    Q_INIT_RESOURCE(hvthemeapp);
    Q_INIT_RESOURCE(hvthemeapp_themes);
}

namespace HV
{

class ApplicationTheme::Private
{
public:
    std::unique_ptr<Theme> theme = std::make_unique<WorkableTheme>();
    QString name;
    // What the desktop gave the application, before any look of ours.
    const QPalette startPalette = QApplication::palette();
    std::unique_ptr<DesktopSettings> desktop; // while it is followed
};

ApplicationTheme::ApplicationTheme(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{
    initResources();
    registerIcons();
    ThemedStyle::install();
}

ApplicationTheme::~ApplicationTheme() = default;

QString ApplicationTheme::name() const
{
    return d->name;
}

Theme *ApplicationTheme::theme() const
{
    return d->theme.get();
}

bool ApplicationTheme::setName(const QString &name)
{
    if (!apply(name))
        return false;
    setFollowsDesktop(false);
    return true;
}

bool ApplicationTheme::followDesktop()
{
    if (!d->desktop) {
        d->desktop = std::make_unique<DesktopSettings>(d->startPalette);
        connect(d->desktop.get(), &DesktopSettings::changed, this, &ApplicationTheme::applyDesktop);
        Q_EMIT followsDesktopChanged();
    }
    return applyDesktop();
}

bool ApplicationTheme::followsDesktop() const
{
    return d->desktop != nullptr;
}

void ApplicationTheme::setFollowsDesktop(bool follows)
{
    if (follows == followsDesktop())
        return;
    if (follows) {
        followDesktop();
        return;
    }
    // Not deleted at once: its signal may be what led here.
    d->desktop->disconnect(this);
    d->desktop.release()->deleteLater();
    Q_EMIT followsDesktopChanged();
}

// A change of the accent alone leaves the look as it is.
bool ApplicationTheme::applyDesktop()
{
    const QString fitting = themeForDesktop(
        QStringLiteral(":/hvthemeapp/themes"),
        {QStringLiteral("dark"), QStringLiteral("light"), QStringLiteral("contrast")},
        d->desktop->colorScheme(), d->desktop->contrast());
    return fitting == d->name || apply(fitting);
}

bool ApplicationTheme::apply(const QString &name)
{
    const QString folder = QStringLiteral(":/hvthemeapp/themes");
    if (!QFile::exists(folder + QLatin1Char('/') + name + QLatin1String(".theme")))
        return false;
    changeTheme(d->theme.get(), name, folder);
    addMissingImages(*d->theme);
    d->name = name;

    QString sheet;
    for (const char *templates : {":/stylesheet", ":/hvthemeapp/stylesheet"})
        sheet += findStyleSheet(d->theme.get(), QLatin1String(templates), QStringLiteral("global"))
            + QLatin1Char('\n');
    restyle(*qApp, sheet, [this] {
        QApplication::setPalette(applicationPalette(*d->theme));
        IconColors::setValues(d->theme->values());
    });
    Q_EMIT nameChanged();
    Q_EMIT changed();
    return true;
}

} // namespace HV
