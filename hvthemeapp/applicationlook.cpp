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

LookInForce &lookInForce()
{
    static LookInForce look;
    return look;
}

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

    const QStringList derived = readTheme(*d->theme, themes, name, d->accent, d->unsavedTexts);
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
