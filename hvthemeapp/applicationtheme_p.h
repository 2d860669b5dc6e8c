// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_APPLICATIONTHEME_P_H
#define HVTHEMEAPP_APPLICATIONTHEME_P_H

#include "applicationtheme.h"

#include "desktopsettings.h"
#include "legibletext.h"
#include "templatefolders.h"
#include "themefolder.h"
#include "themewatcher.h"

#include <hvtheme/theme.h>

#include <QColor>
#include <QHash>
#include <QPalette>

#include <memory>

namespace HV
{

// An application has one look: who set it last, and the style sheet without what is not ours.
struct LookInForce {
    ApplicationTheme *owner = nullptr;
    QString styleSheet;
};

LookInForce &lookInForce();

/*! What an application theme knows. Internal. */
class HVTHEMEAPP_NO_EXPORT ApplicationTheme::Private
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
    QHash<QString, QByteArray> unsavedTexts; // by absolute path
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

} // namespace HV

#endif // HVTHEMEAPP_APPLICATIONTHEME_P_H
