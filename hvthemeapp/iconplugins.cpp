// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "iconplugins.h"

#include <QGuiApplication>
#include <QtPlugin>

// The names are those that Qt's macros make.
// NOLINTBEGIN(readability-identifier-naming)
extern const QStaticPlugin qt_static_plugin_HVDrawingIconPlugin();
extern const QStaticPlugin qt_static_plugin_HVDrawingImagePlugin();
// NOLINTEND(readability-identifier-naming)

// Outside of all namespaces, as the macros ask for. Called, not left to a static object: the linker
// drops those of a static library.
static void registerEverything()
{
    Q_INIT_RESOURCE(hvthemeapp_icons);
    qRegisterStaticPluginFunction(qt_static_plugin_HVDrawingIconPlugin());
    qRegisterStaticPluginFunction(qt_static_plugin_HVDrawingImagePlugin());
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QGuiApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
}

namespace HV
{

void registerIcons()
{
    static const bool isDone = (registerEverything(), true);
    Q_UNUSED(isDone)
}

} // namespace HV
