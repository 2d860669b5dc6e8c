// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "applicationtheme.h"

#include "applicationpalette.h"
#include "desktopsettings.h"
#include "desktoptheme.h"
#include "iconplugins.h"
#include "legibletext.h"
#include "programlook.h"
#include "templatefolders.h"
#include "themedstyle.h"
#include "themefolder.h"
#include "thememenu.h"
#include "themereading.h"
#include "themewatcher.h"

#include <hvtheme/workabletheming.h>

#include <QApplication>
#include <QFileInfo>
#include <QHash>
#include <QLoggingCategory>
#include <QPointer>
#include <QSettings>
#include <QWidget>

#include <algorithm>

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

Q_LOGGING_CATEGORY(lcApp, "hvtheme.app")

const QString themeKey = QStringLiteral("Theme");
const QString accentKey = QStringLiteral("Accent");
const QString followsDesktopKey = QStringLiteral("FollowsDesktop");

// An application has one look: who set it last, and the style sheet without what is not ours.
struct LookInForce {
    const ApplicationTheme *owner = nullptr;
    QString styleSheet;
};

LookInForce &lookInForce()
{
    static LookInForce look;
    return look;
}

// Long lists tell nobody more than their beginning.
QString firstOf(const QStringList &keys)
{
    constexpr int shown = 3;
    const QString text = keys.mid(0, shown).join(QLatin1String(", "));
    return keys.size() > shown ? text + QLatin1String(", ...") : text;
}

} // namespace

class ApplicationTheme::Private
{
public:
    explicit Private(std::unique_ptr<Theme> ownTheme)
        : theme(std::move(ownTheme))
    {
    }

    QString nextFolder() const { return folder.isNull() ? ThemeFolder::defaultPath() : folder; }
    QStringList files() const;
    QString fitting(const QString &ofFolder) const;

    const std::unique_ptr<Theme> theme;
    QString folder; // that themes will be taken from; null for the default one
    QString name; // of the look in force,
    QString nameFolder; // which comes from here
    QColor accent; // invalid for the brand of the theme itself
    bool followsAccent = false;
    TemplateFolders templates;
    bool keepsFonts = false;
    std::unique_ptr<LegibleText> legibleText; // null unless text is lifted
    QPalette palette;
    QString problem;
    QHash<QString, QString> derivedColors; // told by file, so that each is told once
    std::unique_ptr<DesktopSettings> desktop; // while it is followed
    std::unique_ptr<ThemeWatcher> watcher; // while files are
    bool isApplying = false;
    QString laterFolder; // of a look that waits, or null
    QString laterName;
};

QStringList ApplicationTheme::Private::files() const
{
    const ThemeFolder themes(nameFolder);
    QStringList files = QStringList{themes.defaultFile(), themes.file(name)} + templates.files();
    const QVariantMap &values = theme->values();
    for (const QVariant &value : values) {
        if (value.userType() == QMetaType::QString)
            files.append(value.toString());
    }
    const auto isFixed = [](const QString &file) {
        return file.isEmpty() || file.startsWith(QLatin1Char(':'));
    };
    files.erase(std::remove_if(files.begin(), files.end(), isFixed), files.end());
    return files;
}

QString ApplicationTheme::Private::fitting(const QString &ofFolder) const
{
    return themeForDesktop(ofFolder, ThemeFolder(ofFolder).names(), desktop->colorScheme(),
                           desktop->contrast());
}

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

void ApplicationTheme::watch()
{
    if (!d->watcher || d->name.isNull())
        return;
    d->watcher->setPaths(d->files(), d->templates.folders());
}

void ApplicationTheme::reload()
{
    if (lookInForce().owner == this)
        apply(d->nameFolder, d->name);
}

Theme *ApplicationTheme::theme() const
{
    return d->theme.get();
}

QPalette ApplicationTheme::palette() const
{
    return d->palette;
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

// Returns false for a problem, so that it ends what failed.
bool ApplicationTheme::report(const QString &problem)
{
    if (problem != d->problem) {
        d->problem = problem;
        if (!problem.isEmpty())
            qCWarning(lcApp, "%ls", qUtf16Printable(problem));
        Q_EMIT problemChanged();
    }
    return problem.isEmpty();
}

bool ApplicationTheme::apply(const QString &folder, const QString &name)
{
    if (!qobject_cast<QApplication *>(QCoreApplication::instance()))
        return report(tr("There is no application to give a look to; make a QApplication first."));
    const ThemeFolder themes(folder);
    for (const QString &problem : {themes.problemOf(name), d->templates.problem()}) {
        if (!problem.isEmpty())
            return report(problem);
    }
    if (d->isApplying || isPainting()) {
        applyLater(folder, name);
        return true;
    }

    const QStringList derived = readTheme(*d->theme, themes, name, d->accent);
    const QString lacks = derived.isEmpty()
        ? QString()
        : QStringLiteral("The theme \"%1\" lacks %2 of the colours that a look is made of (%3); "
                         "they are derived from those that it has.")
              .arg(themes.file(name), QString::number(derived.size()), firstOf(derived));
    if (!lacks.isEmpty() && d->derivedColors.value(themes.file(name)) != lacks)
        qCWarning(lcApp, "%ls", qUtf16Printable(lacks));
    d->derivedColors.insert(themes.file(name), lacks);

    const bool isOther = name != d->name;
    d->name = name;
    d->nameFolder = folder;
    const QPointer<ApplicationTheme> guard(this);
    report(QString());
    restyleAgain();
    if (guard && isOther)
        Q_EMIT nameChanged();
    return true;
}

// Neither a painter nor a polish may lose the rules that it is at work with.
void ApplicationTheme::applyLater(const QString &folder, const QString &name)
{
    const bool isPending = !d->laterFolder.isNull();
    d->laterFolder = folder;
    d->laterName = name;
    if (isPending)
        return;
    const auto applyPending = [this] {
        const QString laterFolder = d->laterFolder;
        d->laterFolder = QString();
        apply(laterFolder, d->laterName);
    };
    QMetaObject::invokeMethod(this, applyPending, Qt::QueuedConnection);
}

void ApplicationTheme::restyleAgain()
{
    if (d->name.isNull())
        return;
    if (d->isApplying || isPainting()) {
        applyLater(d->nameFolder, d->name);
        return;
    }
    const QString look = d->templates.styleSheet(d->theme.get(), d->keepsFonts);
    QString styleSheet = look;
    QPalette palette = applicationPalette(d->theme->values());
    d->isApplying = true;
    ThemedStyle::install();
    complete(&palette, &styleSheet);
    lookInForce() = {this, look};
    d->palette = palette;
    watch();

    // What happens to a widget may run any code of the application, which may delete the object.
    const QPointer<ApplicationTheme> guard(this);
    setProgramLook(palette, QVariantMap(d->theme->values()), styleSheet);
    if (!guard)
        return;
    d->isApplying = false;
    Q_EMIT changed();
}

void ApplicationTheme::complete(QPalette *, QString *styleSheet)
{
    const QString own = styleSheetBeside(lookInForce().styleSheet);
    if (!own.isEmpty())
        *styleSheet += own;
}

} // namespace HV
