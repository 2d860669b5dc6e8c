// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_APPLICATIONTHEME_P_H
#define HVTHEMEAPP_APPLICATIONTHEME_P_H

#include "applicationtheme.h"

#include "desktopsettings.h"
#include "legibletext.h"
#include "programlook.h"
#include "templatefolders.h"
#include "themefolder.h"
#include "themewatcher.h"

#include <format/themepath.h>
#include <hvtheme/theme.h>

#include <QColor>
#include <QHash>
#include <QPalette>
#include <QPointer>

#include <functional>
#include <memory>
#include <optional>

class QApplication;

namespace HV
{

// An application has one look: who set it last, and its style sheet, which may have been replaced.
struct LookInForce {
    ApplicationTheme *owner = nullptr;
    StyleSheetParts styleSheet;
    bool isChanging = false; // widget by widget

    // What was asked for last while that, or a paint, was under way; by none if nothing was.
    struct Waiting {
        QPointer<ApplicationTheme> theme;
        ThemeFolder folder;
        QString name;
    };
    Waiting waiting;
};

LookInForce &lookInForce();

/*! Returns the application that widgets need; null if there is none, or one without widgets. */
QApplication *guiApplication();

/*! What an application theme knows. Internal. */
class HVTHEMEAPP_NO_EXPORT ApplicationTheme::Private
{
public:
    Private(ApplicationTheme *object, std::unique_ptr<Theme> ownTheme)
        : q(object)
        , theme(std::move(ownTheme))
    {
    }

    bool report(const QString &problem);
    // Called once it is sure that a look comes, before anybody is told.
    using Settle = std::function<void()>;
    bool apply(const ThemeFolder &themes, const QString &newName, const QColor &newAccent,
               const Settle &settle = {});
    bool applySameName(const ThemeFolder &themes, const Settle &settle);
    bool applyDesktop(const DesktopSettings &settings, const QColor &nextOwnAccent,
                      const Settle &settle = {});
    void applyLater(const ThemeFolder &themes, const QString &newName);
    static void applyWaiting();
    static void applyWaitingSoon();
    QString faultOf(const ThemeFolder &themes, const QString &newName) const;
    QString read(const ThemeFolder &themes, const QString &newName, const QColor &newAccent);
    void show(const ThemeFolder &themes, const QString &newName);
    void dropAccent();
    void restyle();
    bool choose(const QString &newName, const QColor &nextOwnAccent);
    enum class Failing {
        Follows,
        ChangesNothing
    };
    bool follow(const QColor &nextOwnAccent, Failing failing);
    void begin(std::unique_ptr<DesktopSettings> settings);
    void forgetDesktop();
    void reload();
    void watch();
    void lift();

    ThemeFolder nextFolder() const { return folderWith(suffix); }
    ThemeFolder folderWith(const QString &otherSuffix) const;
    // The look in force, or the one that waits to be.
    ThemeFolder comingFolder() const
    {
        return isWaiting() ? lookInForce().waiting.folder : nameFolder;
    }
    QString comingName() const { return isWaiting() ? lookInForce().waiting.name : name; }
    bool isWaiting() const { return lookInForce().waiting.theme == q; }
    QStringList files() const;
    static QString fitting(const ThemeFolder &themes, const DesktopSettings &settings);

    ApplicationTheme *const q;
    const std::unique_ptr<Theme> theme;
    QString folder; // that themes will be taken from; null for the default one
    QString suffix = defaultThemeSuffix(); // of their files
    QString name; // of the look in force,
    ThemeFolder nameFolder; // which comes from here
    QColor accent; // in force, or coming; invalid for the brand of the theme itself
    QColor shownAccent; // that the theme in force was read with
    QColor ownAccent; // as it was set, not the desktop's
    QHash<QString, QByteArray> unsavedTexts; // by absolute path
    bool followsAccent = false;
    TemplateFolders templates;
    bool keepsFonts = false;
    bool liftsText = false;
    std::unique_ptr<LegibleText, EndLegibleText> legibleText; // while there is an application
    QPalette palette;
    Extent extent = Extent::Whole; // of what restyleAgain() does next
    std::optional<QString> ownStyleSheet; // of the application, if complete() has added it
    QString problem;
    QHash<QString, QString> derivedColors; // told by file, so that each is told once
    std::unique_ptr<DesktopSettings> desktop; // while it is followed
    std::unique_ptr<ThemeWatcher> watcher; // while files are
};

} // namespace HV

#endif // HVTHEMEAPP_APPLICATIONTHEME_P_H
