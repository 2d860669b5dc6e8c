// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "applicationtheme_p.h"

#include "applicationpalette.h"
#include "iconplugins.h"
#include "programlook.h"
#include "themedstyle.h"
#include "thememenu.h"

#include <hvtheme/workabletheming.h>

#include <QApplication>
#include <QFileInfo>
#include <QPointer>
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
namespace
{

const QString themeKey = QStringLiteral("Theme");
const QString accentKey = QStringLiteral("Accent");
const QString followsDesktopKey = QStringLiteral("FollowsDesktop");

} // namespace

ApplicationTheme::ApplicationTheme(QObject *parent)
    : ApplicationTheme(std::make_unique<WorkableTheme>(), parent)
{
}

ApplicationTheme::ApplicationTheme(std::unique_ptr<Theme> theme, QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>(std::move(theme)))
{
    initResources();
    registerIcons();
    startPalette();
    if (qApp)
        ThemedStyle::install();
}

ApplicationTheme::~ApplicationTheme()
{
    if (lookInForce().owner == this)
        lookInForce().owner = nullptr;
}

QString ApplicationTheme::folder() const
{
    return d->nextFolder();
}

bool ApplicationTheme::setFolder(const QString &folder)
{
    const QString path =
        folder.isEmpty() ? ThemeFolder::defaultPath() : QFileInfo(folder).absoluteFilePath();
    const QString problem = ThemeFolder(path).problem();
    if (!problem.isEmpty())
        return report(problem);
    const QPointer<ApplicationTheme> guard(this);
    if (!d->name.isNull()) {
        const QString name = d->desktop ? d->fitting(path) : d->name;
        if (ThemeFolder(path).names().contains(name) && !apply(path, name))
            return false;
    }
    if (!guard)
        return true;
    d->folder = folder.isEmpty() ? QString() : path;
    report(QString());
    Q_EMIT folderChanged();
    return true;
}

QStringList ApplicationTheme::names() const
{
    return ThemeFolder(d->nextFolder()).names();
}

QString ApplicationTheme::displayName(const QString &name) const
{
    return ThemeFolder(d->nextFolder()).displayName(name);
}

QString ApplicationTheme::name() const
{
    return d->name;
}

bool ApplicationTheme::setName(const QString &name)
{
    const QPointer<ApplicationTheme> guard(this);
    if (!apply(d->nextFolder(), name))
        return false;
    if (guard)
        setFollowsDesktop(false);
    return true;
}

bool ApplicationTheme::followDesktop()
{
    if (!qApp)
        return apply(QString(), QString());
    if (!d->desktop) {
        d->desktop = std::make_unique<DesktopSettings>(startPalette());
        connect(d->desktop.get(), &DesktopSettings::changed, this, [this] {
            if (lookInForce().owner == this)
                applyDesktop();
        });
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

// A change of the accent alone leaves a look that does not follow it as it is.
bool ApplicationTheme::applyDesktop()
{
    const QString folder = d->nextFolder();
    const QString name = d->fitting(folder);
    const bool isInForce =
        lookInForce().owner == this && name == d->name && folder == d->nameFolder;
    const bool isOtherAccent = d->followsAccent && d->accent != d->desktop->accentColor();
    if (isOtherAccent)
        d->accent = d->desktop->accentColor();
    const QPointer<ApplicationTheme> guard(this);
    const bool isApplied = (isInForce && !isOtherAccent) || apply(folder, name);
    if (guard && isOtherAccent)
        Q_EMIT accentChanged();
    return isApplied;
}

QColor ApplicationTheme::accent() const
{
    return d->accent;
}

bool ApplicationTheme::setAccent(const QColor &accent)
{
    const QColor opaque = accent.isValid() ? QColor(accent.rgb()) : QColor();
    if (opaque == d->accent)
        return true;
    d->accent = opaque;
    const QPointer<ApplicationTheme> guard(this);
    const bool isApplied = d->name.isNull() || apply(d->nameFolder, d->name);
    if (guard)
        Q_EMIT accentChanged();
    return isApplied;
}

bool ApplicationTheme::setUnsavedTexts(const QHash<QString, QByteArray> &texts)
{
    QHash<QString, QByteArray> byPath;
    for (auto it = texts.cbegin(); it != texts.cend(); ++it)
        byPath.insert(QFileInfo(it.key()).absoluteFilePath(), it.value());
    if (byPath == d->unsavedTexts)
        return true;
    d->unsavedTexts = byPath;
    return d->name.isNull() || apply(d->nameFolder, d->name);
}

QHash<QString, QByteArray> ApplicationTheme::unsavedTexts() const
{
    return d->unsavedTexts;
}

bool ApplicationTheme::followsAccent() const
{
    return d->followsAccent;
}

void ApplicationTheme::setFollowsAccent(bool follows)
{
    if (follows == d->followsAccent)
        return;
    d->followsAccent = follows;
    const QPointer<ApplicationTheme> guard(this);
    if (d->desktop && follows)
        applyDesktop();
    else if (!follows)
        setAccent(QColor());
    if (guard)
        Q_EMIT followsAccentChanged();
}

bool ApplicationTheme::addTemplates(const QString &folder, const QString &prefix)
{
    TemplateFolders more = d->templates;
    more.add(QFileInfo(folder).absoluteFilePath(), prefix);
    const QString problem = more.problem();
    if (!problem.isEmpty())
        return report(problem);
    d->templates = more;
    report(QString());
    restyleAgain();
    return true;
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
    const QWidgetList all = QApplication::allWidgets();
    for (QWidget *widget : all)
        widget->update();
    Q_EMIT liftsTextChanged();
}

bool ApplicationTheme::isLiveReload() const
{
    return d->watcher != nullptr;
}

void ApplicationTheme::setLiveReload(bool reload)
{
    if (reload == isLiveReload())
        return;
    d->watcher = reload ? std::make_unique<ThemeWatcher>() : nullptr;
    if (reload) {
        connect(d->watcher.get(), &ThemeWatcher::changed, this, &ApplicationTheme::reload);
        watch();
    }
    Q_EMIT liveReloadChanged();
}

Theme *ApplicationTheme::theme() const
{
    return d->theme.get();
}

QPalette ApplicationTheme::palette() const
{
    return d->palette;
}

ApplicationTheme *ApplicationTheme::inForce()
{
    return lookInForce().owner;
}

QVector<QPair<QString, QString>> ApplicationTheme::templates() const
{
    return d->templates.sources(d->keepsFonts);
}

QString ApplicationTheme::problem() const
{
    return d->problem;
}

QMenu *ApplicationTheme::menu(QWidget *parent)
{
    return new ThemeMenu(this, parent);
}

void ApplicationTheme::save(QSettings &settings) const
{
    settings.setValue(themeKey, d->name);
    settings.setValue(followsDesktopKey, followsDesktop());
    settings.setValue(accentKey, d->accent.isValid() ? d->accent.name() : QString());
}

bool ApplicationTheme::restore(const QSettings &settings)
{
    const bool isFollowing = settings.value(followsDesktopKey).toBool();
    const QString name = settings.value(themeKey).toString();
    if (!isFollowing && name.isEmpty())
        return false;
    const QColor accent(settings.value(accentKey).toString());
    if (accent != d->accent) { // in force with the look, not by a restyling of its own
        d->accent = accent;
        Q_EMIT accentChanged();
    }
    return isFollowing ? followDesktop() : setName(name);
}

} // namespace HV
