// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "applicationtheme.h"

#include "applicationpalette.h"
#include "desktopsettings.h"
#include "desktoptheme.h"
#include "iconcolors.h"
#include "iconplugins.h"
#include "legibletext.h"
#include "missingimages.h"
#include "themedstyle.h"

#include <hvtheme/restyling.h>
#include <hvtheme/theming.h>
#include <hvtheme/workabletheming.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QSettings>
#include <QWidget>

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
    QString styleSheet() const;

    std::unique_ptr<Theme> theme = std::make_unique<WorkableTheme>();
    QString name;
    bool keepsFonts = false;
    std::unique_ptr<LegibleText> legibleText; // null unless text is lifted
    // What the desktop gave the application, before any look of ours.
    const QPalette startPalette = QApplication::palette();
    std::unique_ptr<DesktopSettings> desktop; // while it is followed
};

QString ApplicationTheme::Private::styleSheet() const
{
    QString sheet;
    for (const char *folder : {":/stylesheet", ":/hvthemeapp/stylesheet"}) {
        QStringList files;
        const auto entries = QDir(QLatin1String(folder)).entryInfoList(QDir::Files, QDir::Name);
        for (const QFileInfo &entry : entries)
            files << entry.filePath();
        if (keepsFonts)
            files.removeOne(
                QStringLiteral(":/stylesheet/global.qss")); // the rules that begin with `*`
        sheet += findStyleSheet(theme.get(), files, QStringLiteral("global")) + QLatin1Char('\n');
    }
    return sheet;
}

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

bool ApplicationTheme::keepsFonts() const
{
    return d->keepsFonts;
}

void ApplicationTheme::setKeepsFonts(bool keeps)
{
    if (keeps == d->keepsFonts)
        return;
    d->keepsFonts = keeps;
    restyleAgain();
    Q_EMIT keepsFontsChanged();
}

bool ApplicationTheme::liftsText() const
{
    return d->legibleText != nullptr;
}

void ApplicationTheme::setLiftsText(bool lifts)
{
    if (lifts == liftsText())
        return;
    d->legibleText = lifts ? std::make_unique<LegibleText>() : nullptr;
    if (lifts) {
        const auto follow = [this] {
            const QVariant flag = d->theme->values().value(QStringLiteral("HighContrast"));
            d->legibleText->setIsHighContrast(flag.toBool());
        };
        connect(this, &ApplicationTheme::changed, d->legibleText.get(), follow);
        follow();
    }
    for (QWidget *widget : QApplication::allWidgets())
        widget->update();
    Q_EMIT liftsTextChanged();
}

bool ApplicationTheme::apply(const QString &name)
{
    const QString folder = QStringLiteral(":/hvthemeapp/themes");
    if (!QFile::exists(folder + QLatin1Char('/') + name + QLatin1String(".theme")))
        return false;
    changeTheme(d->theme.get(), name, folder);
    addMissingImages(*d->theme);
    d->name = name;

    restyleAgain();
    Q_EMIT nameChanged();
    return true;
}

void ApplicationTheme::restyleAgain()
{
    if (d->name.isEmpty())
        return;
    QString sheet = d->styleSheet();
    QPalette palette = applicationPalette(*d->theme);
    complete(&palette, &sheet);
    restyle(*qApp, sheet, [&] {
        QApplication::setPalette(palette);
        IconColors::setValues(d->theme->values());
    });
    Q_EMIT changed();
}

void ApplicationTheme::complete(QPalette *, QString *) { }

} // namespace HV
