// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "workabletheming.h"

#include "restyling.h"
#include "theming.h"

#include <QApplication>

// A shared library registers its templates when it is loaded; a static one needs the call.
// Q_INIT_RESOURCE declares a function, so it may not stand inside a namespace.
static void initTemplates()
{
#ifdef HVTHEME_STATIC_DEFINE
    Q_INIT_RESOURCE(hvtheme);
#endif
}

namespace HV
{

static const QString pathPrefix = QStringLiteral(":/stylesheet");
static const QString themePrefix = QStringLiteral("global");
[[maybe_unused]] static const QString defaultTheme = QStringLiteral("default");
static const QString themeFileSuffix = QStringLiteral("theme");

WorkableTheme::WorkableTheme(QObject *parent)
    : Theme(QStringLiteral("zorka.global.theme"), parent)
{
}

void changeTheme(Theme *theme, const QString &name, const QString &folder)
{
    changeTheme(theme, name, folder, themeFileSuffix);
}

void changeAppStyleSheet(Theme *theme, const QString &name, const QString &folder)
{
    initTemplates();
    changeTheme(theme, name, folder, themeFileSuffix);
    const QString styleSheet = findStyleSheet(theme, pathPrefix, themePrefix);
    restyle(*qApp, styleSheet);
}

} // namespace HV
