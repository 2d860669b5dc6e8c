// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

// It lives in the library itself, which makes it a static one for Qt.
#define QT_STATICPLUGIN

#include "iconengine.h"

#include <QIconEnginePlugin>

class HVDrawingIconPlugin : public QIconEnginePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QIconEngineFactoryInterface_iid FILE "hvicon.json")

public:
    // The icon adds the file by itself when it is told one; streams tell none.
    QIconEngine *create(const QString &) override { return new HV::IconEngine; }
};

#include "iconengineplugin.moc"
