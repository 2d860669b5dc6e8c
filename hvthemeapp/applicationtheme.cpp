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
    , d(std::make_unique<Private>(this, std::move(theme)))
{
    initResources();
    registerIcons();
    if (guiApplication()) {
        startPalette();
        ThemedStyle::install();
    }
}

ApplicationTheme::~ApplicationTheme()
{
    if (lookInForce().owner == this)
        lookInForce().owner = nullptr;
}

QString ApplicationTheme::folder() const
{
    return d->nextFolder().path();
}

bool ApplicationTheme::setFolder(const QString &folder)
{
    const QString path = folder.isEmpty() ? QString() : QFileInfo(folder).absoluteFilePath();
    const ThemeFolder themes =
        path.isNull() ? ThemeFolder::usual(d->suffix) : ThemeFolder(path, d->suffix);
    const QPointer<ApplicationTheme> guard(this);
    if (!d->applySameName(themes, [&] { d->folder = path; }))
        return false;
    if (guard)
        Q_EMIT folderChanged();
    return true;
}

QString ApplicationTheme::suffix() const
{
    return d->suffix;
}

bool ApplicationTheme::setSuffix(const QString &suffix)
{
    const QString next = suffix.isEmpty() ? defaultThemeSuffix() : suffix;
    if (next == d->suffix)
        return true;
    const QPointer<ApplicationTheme> guard(this);
    if (!d->applySameName(d->folderWith(next), [&] { d->suffix = next; }))
        return false;
    if (guard)
        Q_EMIT suffixChanged();
    if (guard)
        Q_EMIT folderChanged();
    return true;
}

QStringList ApplicationTheme::names() const
{
    return d->nextFolder().names();
}

QString ApplicationTheme::displayName(const QString &name) const
{
    return d->nextFolder().displayName(name);
}

QString ApplicationTheme::name() const
{
    return d->name;
}

bool ApplicationTheme::setName(const QString &name)
{
    return d->choose(name, d->ownAccent);
}

bool ApplicationTheme::followDesktop()
{
    return d->follow(d->ownAccent, Private::Failing::Follows);
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
    d->forgetDesktop();
    Q_EMIT followsDesktopChanged();
}

QColor ApplicationTheme::accent() const
{
    return d->accent;
}

bool ApplicationTheme::setAccent(const QColor &accent)
{
    const QColor opaque = accent.isValid() ? QColor(accent.rgb()) : QColor();
    const auto settle = [&] { d->ownAccent = opaque; };
    const bool isOfDesktop = d->desktop && d->followsAccent;
    if (!isOfDesktop && opaque != d->accent && !d->comingName().isNull())
        return d->apply(d->comingFolder(), d->comingName(), opaque, settle);
    settle();
    if (!isOfDesktop && opaque != d->accent) {
        d->accent = opaque;
        Q_EMIT accentChanged();
    }
    return true;
}

void ApplicationTheme::resetAccent()
{
    setAccent(QColor());
}

bool ApplicationTheme::setUnsavedTexts(const QHash<QString, QByteArray> &texts)
{
    QHash<QString, QByteArray> byPath;
    for (auto it = texts.cbegin(); it != texts.cend(); ++it)
        byPath.insert(QFileInfo(it.key()).absoluteFilePath(), it.value());
    if (byPath == d->unsavedTexts)
        return true;
    d->unsavedTexts = byPath;
    if (d->name.isNull())
        return true;
    const QPointer<ApplicationTheme> guard(this);
    d->extent = Extent::Changes;
    const bool isApplied = d->apply(d->comingFolder(), d->comingName(), d->accent);
    if (guard)
        d->extent = Extent::Whole;
    return isApplied;
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
        d->applyDesktop(*d->desktop, d->ownAccent);
    else if (!follows && d->accent != d->ownAccent)
        d->apply(d->comingFolder(), d->comingName(), d->ownAccent);
    if (guard)
        Q_EMIT followsAccentChanged();
}

bool ApplicationTheme::addTemplates(const QString &folder, const QString &prefix)
{
    TemplateFolders more = d->templates;
    more.add(QFileInfo(folder).absoluteFilePath(), prefix);
    const QString problem = more.problem();
    if (!problem.isEmpty())
        return d->report(problem);
    d->templates = more;
    const QPointer<ApplicationTheme> guard(this);
    d->report(QString());
    if (guard)
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
    const QPointer<ApplicationTheme> guard(this);
    restyleAgain();
    if (guard)
        Q_EMIT keepsFontsChanged();
}

bool ApplicationTheme::liftsText() const
{
    return d->liftsText;
}

void ApplicationTheme::setLiftsText(bool lifts)
{
    if (lifts == d->liftsText)
        return;
    d->liftsText = lifts;
    d->lift();
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
        connect(d->watcher.get(), &ThemeWatcher::changed, this, [this] { d->reload(); });
        d->watch();
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
    settings.setValue(accentKey, d->ownAccent.isValid() ? d->ownAccent.name() : QString());
}

bool ApplicationTheme::restore(const QSettings &settings)
{
    const bool isFollowing = settings.value(followsDesktopKey).toBool();
    const QString name = settings.value(themeKey).toString();
    if (!isFollowing && name.isEmpty())
        return false;
    const QColor accent(settings.value(accentKey).toString());
    return isFollowing ? d->follow(accent, Private::Failing::ChangesNothing)
                       : d->choose(name, accent);
}

} // namespace HV
