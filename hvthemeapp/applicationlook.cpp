// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

// How a look comes into force: as a whole, or not at all.

#include "applicationtheme_p.h"

#include "applicationpalette.h"
#include "desktoptheme.h"
#include "programlook.h"
#include "themedstyle.h"
#include "themereading.h"

#include <QApplication>
#include <QLoggingCategory>
#include <QPointer>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace HV
{
namespace
{

Q_LOGGING_CATEGORY(lcApp, "hvtheme.app")

// Long lists tell nobody more than their beginning.
QString firstOf(const QStringList &keys)
{
    constexpr int shown = 3;
    const QString text = keys.mid(0, shown).join(QLatin1String(", "));
    return keys.size() > shown ? text + QLatin1String(", ...") : text;
}

} // namespace

QApplication *guiApplication()
{
    return qobject_cast<QApplication *>(QCoreApplication::instance());
}

LookInForce &lookInForce()
{
    static LookInForce look;
    return look;
}

QStringList ApplicationTheme::Private::files() const
{
    QStringList files{nameFolder.defaultFile(), nameFolder.file(name)};
    files += templates.files();
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

ThemeFolder ApplicationTheme::Private::folderWith(const QString &otherSuffix) const
{
    return folder.isNull() ? ThemeFolder::usual(otherSuffix) : ThemeFolder(folder, otherSuffix);
}

QString ApplicationTheme::Private::fitting(const ThemeFolder &themes,
                                           const DesktopSettings &settings)
{
    return themeForDesktop(themes.path(), themes.suffix(), themes.names(), settings.colorScheme(),
                           settings.contrast());
}

void ApplicationTheme::Private::watch()
{
    if (watcher && !name.isNull())
        watcher->setPaths(files(), templates.folders());
}

// An application that ends takes its event filters with it.
void ApplicationTheme::Private::lift()
{
    if (!liftsText || !guiApplication()) {
        legibleText.reset();
        return;
    }
    if (!legibleText)
        legibleText.reset(new LegibleText);
    legibleText->setIsHighContrast(theme->values().value(QStringLiteral("HighContrast")).toBool());
    legibleText->begin();
}

void ApplicationTheme::Private::reload()
{
    if (lookInForce().owner == q)
        apply(comingFolder(), comingName(), accent);
}

// Returns false for a problem, so that it ends what failed. Whoever is told may delete the object.
bool ApplicationTheme::Private::report(const QString &newProblem)
{
    const bool isNone = newProblem.isEmpty();
    if (newProblem != problem) {
        problem = newProblem;
        if (!isNone)
            qCWarning(lcApp, "%ls", qUtf16Printable(newProblem));
        Q_EMIT q->problemChanged();
    }
    return isNone;
}

// Empty if nothing keeps the look from coming into force.
QString ApplicationTheme::Private::faultOf(const ThemeFolder &themes, const QString &newName) const
{
    if (!guiApplication())
        return tr("There is no application to give a look to; make a QApplication first.");
    const QString fault = themes.problemOf(newName);
    return fault.isEmpty() ? templates.problem() : fault;
}

// Returns what keeps the theme from being read; the theme is then what it was.
QString ApplicationTheme::Private::read(const ThemeFolder &themes, const QString &newName,
                                        const QColor &newAccent)
{
    QString fault;
    const auto derived = readTheme(*theme, themes, newName, newAccent, unsavedTexts, &fault);
    if (!derived) {
        QString again;
        if (name.isNull())
            theme->clear();
        else
            readTheme(*theme, nameFolder, name, shownAccent, unsavedTexts, &again);
        return fault;
    }
    const QString file = themes.file(newName);
    const QString lacks = derived->isEmpty()
        ? QString()
        : QStringLiteral("The theme \"%1\" lacks %2 of the colours that a look is made of (%3); "
                         "they are derived from those that it has.")
              .arg(file, QString::number(derived->size()), firstOf(*derived));
    if (!lacks.isEmpty() && derivedColors.value(file) != lacks)
        qCWarning(lcApp, "%ls", qUtf16Printable(lacks));
    derivedColors.insert(file, lacks);
    return {};
}

// Nothing changes before it is sure that the look comes, and everything before anybody is told.
bool ApplicationTheme::Private::apply(const ThemeFolder &themes, const QString &newName,
                                      const QColor &newAccent, const Settle &settle)
{
    const bool mustWait = lookInForce().isChanging || isPainting();
    QString fault = faultOf(themes, newName);
    if (fault.isEmpty() && !mustWait)
        fault = read(themes, newName, newAccent);
    if (!fault.isEmpty())
        return report(fault);

    const bool isOtherAccent = accent != newAccent;
    accent = newAccent;
    if (settle)
        settle();
    const QPointer<ApplicationTheme> guard(q);
    if (mustWait)
        applyLater(themes, newName);
    else
        show(themes, newName);
    if (guard && isOtherAccent)
        Q_EMIT q->accentChanged();
    return true;
}

// Gives the application the theme that was read.
void ApplicationTheme::Private::show(const ThemeFolder &themes, const QString &newName)
{
    lookInForce().waiting = {}; // it is older than this
    const bool isOther = newName != name;
    if (isOther)
        extent = Extent::Whole;
    name = newName;
    nameFolder = themes;
    shownAccent = accent;
    // For the inspector; folder() and suffix() may be others by now.
    q->setProperty("hvthemeFilesInForce", QStringList{themes.path(), themes.suffix()});
    const bool hadProblem = !problem.isEmpty();
    problem.clear();
    const QPointer<ApplicationTheme> guard(q);
    restyle();
    if (guard && hadProblem)
        Q_EMIT q->problemChanged();
    if (guard && isOther)
        Q_EMIT q->nameChanged();
}

// A look in force, or one that waits, goes over to the theme of its name, or to the one that fits the
// desktop; without one it stays.
bool ApplicationTheme::Private::applySameName(const ThemeFolder &themes, const Settle &settle)
{
    const QString problemOfFolder = themes.problem();
    if (!problemOfFolder.isEmpty())
        return report(problemOfFolder);
    QString sameName = comingName();
    if (!sameName.isNull() && desktop)
        sameName = fitting(themes, *desktop);
    if (themes.names().contains(sameName))
        return apply(themes, sameName, accent, settle);
    settle();
    return report(QString());
}

// A change of the accent alone leaves a look that does not follow it as it is.
bool ApplicationTheme::Private::applyDesktop(const DesktopSettings &settings,
                                             const QColor &nextOwnAccent, const Settle &settle)
{
    const ThemeFolder next = nextFolder();
    const QString fittingName = fitting(next, settings);
    const QColor nextAccent = followsAccent ? settings.accentColor() : nextOwnAccent;
    const bool isLast = !lookInForce().waiting.theme || isWaiting();
    const bool isInForce = lookInForce().owner == q && isLast && fittingName == comingName()
        && next == comingFolder() && nextAccent == accent;
    if (!isInForce)
        return apply(next, fittingName, nextAccent, settle);
    if (settle)
        settle();
    return report(QString());
}

// Neither a painter nor a polish may lose the rules that it is at work with.
void ApplicationTheme::Private::applyLater(const ThemeFolder &themes, const QString &newName)
{
    lookInForce().waiting = {q, themes, newName};
    if (!lookInForce().isChanging) // the end of the change does it else
        applyWaitingSoon();
}

void ApplicationTheme::Private::applyWaitingSoon()
{
    QMetaObject::invokeMethod(qApp, &applyWaiting, Qt::QueuedConnection);
}

void ApplicationTheme::Private::applyWaiting()
{
    if (!lookInForce().waiting.theme || lookInForce().isChanging)
        return;
    if (isPainting()) { // with an event loop in it, of whose end nobody is told
        constexpr int soon = 50; // ms
        QTimer::singleShot(soon, qApp, &applyWaiting);
        return;
    }
    const LookInForce::Waiting pending = std::exchange(lookInForce().waiting, {});
    Private *const d = pending.theme->d.get();
    if (!d->apply(pending.folder, pending.name, d->accent) && pending.theme)
        d->dropAccent();
}

// Whether a theme can have an accent that was set while something was under way is known afterwards.
void ApplicationTheme::Private::dropAccent()
{
    if (name.isNull() || accent == shownAccent)
        return;
    if (ownAccent == accent)
        ownAccent = shownAccent;
    accent = shownAccent;
    Q_EMIT q->accentChanged();
}

// The user's choice: a theme, and an accent.
bool ApplicationTheme::Private::choose(const QString &newName, const QColor &nextOwnAccent)
{
    const bool wasFollowing = desktop != nullptr;
    const QPointer<ApplicationTheme> guard(q);
    const auto settle = [&] {
        ownAccent = nextOwnAccent;
        forgetDesktop();
    };
    if (!apply(nextFolder(), newName, nextOwnAccent, settle))
        return false;
    if (guard && wasFollowing && !desktop)
        Q_EMIT q->followsDesktopChanged();
    return true;
}

bool ApplicationTheme::Private::follow(const QColor &nextOwnAccent, Failing failing)
{
    if (!guiApplication())
        return apply(ThemeFolder(), QString(), accent);
    const bool isNew = !desktop;
    auto made = isNew ? std::make_unique<DesktopSettings>(startPalette()) : nullptr;
    const DesktopSettings &settings = isNew ? *made : *desktop;
    const auto settle = [&] {
        ownAccent = nextOwnAccent;
        if (made)
            begin(std::move(made));
    };
    if (failing == Failing::Follows)
        settle();
    const QPointer<ApplicationTheme> guard(q);
    const bool isApplied = applyDesktop(settings, nextOwnAccent, settle);
    if (guard && isNew && !made)
        Q_EMIT q->followsDesktopChanged();
    return isApplied;
}

void ApplicationTheme::Private::begin(std::unique_ptr<DesktopSettings> settings)
{
    desktop = std::move(settings);
    connect(desktop.get(), &DesktopSettings::changed, q, [this] {
        const ApplicationTheme *owner = lookInForce().owner;
        if (owner == q || (!owner && name.isNull()))
            applyDesktop(*desktop, ownAccent);
    });
}

// Not deleted at once: its signal may be what led here.
void ApplicationTheme::Private::forgetDesktop()
{
    if (!desktop)
        return;
    desktop->disconnect(q);
    desktop.release()->deleteLater();
}

void ApplicationTheme::restyleAgain()
{
    if (d->name.isNull())
        return;
    if (lookInForce().isChanging || isPainting()) {
        d->applyLater(d->comingFolder(), d->comingName());
        return;
    }
    const QPointer<ApplicationTheme> guard(this);
    if (d->report(d->templates.problem()) && guard)
        d->restyle();
}

void ApplicationTheme::Private::restyle()
{
    const QString look = templates.styleSheet(theme.get(), keepsFonts);
    QString styleSheet = look;
    QPalette newPalette = applicationPalette(theme->values());
    lookInForce().isChanging = true;
    ThemedStyle::install();
    ownStyleSheet.reset();
    q->complete(&newPalette, &styleSheet);
    lookInForce().owner = q;
    // A class that does without our complete() knows alone what else is the application's.
    const bool isAllKnown = ownStyleSheet.has_value();
    lookInForce().styleSheet = {look, isAllKnown ? styleSheet : look,
                                ownStyleSheet.value_or(QString())};
    palette = newPalette;
    watch();
    lift();

    // What happens to a widget may run any code of the application, which may delete the object.
    const QPointer<ApplicationTheme> guard(q);
    setProgramLook(newPalette, QVariantMap(theme->values()), styleSheet,
                   std::exchange(extent, Extent::Whole));
    lookInForce().isChanging = false;
    if (lookInForce().waiting.theme)
        applyWaitingSoon();
    if (guard)
        Q_EMIT guard->changed();
}

void ApplicationTheme::complete(QPalette *, QString *styleSheet)
{
    const QString own = styleSheetBeside(lookInForce().styleSheet);
    d->ownStyleSheet = own;
    *styleSheet += own;
}

} // namespace HV
