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

#include <algorithm>

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

QString ApplicationTheme::Private::fitting(const ThemeFolder &themes) const
{
    return themeForDesktop(themes.path(), themes.suffix(), themes.names(), desktop->colorScheme(),
                           desktop->contrast());
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
        apply(nameFolder, name);
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

bool ApplicationTheme::Private::apply(const ThemeFolder &themes, const QString &newName)
{
    if (!guiApplication())
        return report(tr("There is no application to give a look to; make a QApplication first."));
    for (const QString &fault : {themes.problemOf(newName), templates.problem()}) {
        if (!fault.isEmpty())
            return report(fault);
    }
    if (lookInForce().isChanging || isPainting()) {
        applyLater(themes, newName);
        return true;
    }

    QString fault;
    const auto derived = readTheme(*theme, themes, newName, accent, unsavedTexts, &fault);
    if (!derived)
        return report(fault);
    const QString lacks = derived->isEmpty()
        ? QString()
        : QStringLiteral("The theme \"%1\" lacks %2 of the colours that a look is made of (%3); "
                         "they are derived from those that it has.")
              .arg(themes.file(newName), QString::number(derived->size()), firstOf(*derived));
    if (!lacks.isEmpty() && derivedColors.value(themes.file(newName)) != lacks)
        qCWarning(lcApp, "%ls", qUtf16Printable(lacks));
    derivedColors.insert(themes.file(newName), lacks);

    const bool isOther = newName != name;
    name = newName;
    nameFolder = themes;
    laterFolder.reset(); // what waits is older than this
    const QPointer<ApplicationTheme> guard(q);
    report(QString());
    if (guard)
        q->restyleAgain();
    if (guard && isOther)
        Q_EMIT q->nameChanged();
    return true;
}

// The accent stays what it was if the look does not come into force.
bool ApplicationTheme::Private::applyWithAccent(const QColor &newAccent, const ThemeFolder &themes,
                                                const QString &newName)
{
    const QColor former = std::exchange(accent, newAccent);
    const QPointer<ApplicationTheme> guard(q);
    const bool isApplied = newName.isNull() || apply(themes, newName);
    if (!guard)
        return isApplied;
    if (!isApplied && accent == newAccent)
        accent = former;
    if (accent != former)
        Q_EMIT q->accentChanged();
    return isApplied;
}

// A look in force goes over to the theme of its name, or to the one that fits the desktop; without one
// it stays.
bool ApplicationTheme::Private::applySameName(const ThemeFolder &themes)
{
    const QString problemOfFolder = themes.problem();
    if (!problemOfFolder.isEmpty())
        return report(problemOfFolder);
    if (name.isNull())
        return true;
    const QString sameName = desktop ? fitting(themes) : name;
    return !themes.names().contains(sameName) || apply(themes, sameName);
}

// A change of the accent alone leaves a look that does not follow it as it is.
bool ApplicationTheme::Private::applyDesktop()
{
    const ThemeFolder next = nextFolder();
    const QString fittingName = fitting(next);
    const QColor nextAccent = followsAccent ? desktop->accentColor() : ownAccent;
    const bool isInForce = lookInForce().owner == q && fittingName == name && next == nameFolder
        && nextAccent == accent;
    return isInForce ? report(QString()) : applyWithAccent(nextAccent, next, fittingName);
}

// Neither a painter nor a polish may lose the rules that it is at work with.
void ApplicationTheme::Private::applyLater(const ThemeFolder &themes, const QString &newName)
{
    const bool isPending = laterFolder.has_value();
    laterFolder = themes;
    laterName = newName;
    if (isPending)
        return;
    const auto applyPending = [this] {
        const std::optional<ThemeFolder> pending = std::exchange(laterFolder, std::nullopt);
        if (pending)
            apply(*pending, laterName);
    };
    QMetaObject::invokeMethod(q, applyPending, Qt::QueuedConnection);
}

void ApplicationTheme::restyleAgain()
{
    if (d->name.isNull())
        return;
    if (lookInForce().isChanging || isPainting()) {
        d->applyLater(d->comingFolder(), d->comingName());
        return;
    }
    const QString look = d->templates.styleSheet(d->theme.get(), d->keepsFonts);
    QString styleSheet = look;
    QPalette palette = applicationPalette(d->theme->values());
    lookInForce().isChanging = true;
    ThemedStyle::install();
    d->ownStyleSheet.reset();
    complete(&palette, &styleSheet);
    lookInForce().owner = this;
    // A class that does without our complete() knows alone what else is the application's.
    const bool isAllKnown = d->ownStyleSheet.has_value();
    lookInForce().styleSheet = {look, isAllKnown ? styleSheet : look,
                                d->ownStyleSheet.value_or(QString())};
    d->palette = palette;
    d->watch();
    d->lift();

    // What happens to a widget may run any code of the application, which may delete the object.
    const QPointer<ApplicationTheme> guard(this);
    setProgramLook(palette, QVariantMap(d->theme->values()), styleSheet);
    lookInForce().isChanging = false;
    if (guard)
        Q_EMIT changed();
}

void ApplicationTheme::complete(QPalette *, QString *styleSheet)
{
    const QString own = styleSheetBeside(lookInForce().styleSheet);
    d->ownStyleSheet = own;
    *styleSheet += own;
}

} // namespace HV
