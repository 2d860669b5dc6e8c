// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "missingimages.h"

#include "iconplugins.h"

#include <hvtheme/theme.h>

#include <QSettings>

namespace HV
{

void addMissingImages(Theme &theme)
{
    registerIcons();
    // One group per key, with a section ImageFiles inside, since a theme reads sections whole.
    QSettings drawings(QStringLiteral(":/hvthemeapp/icons/imagefiles.ini"), QSettings::IniFormat);
    const QStringList keys = drawings.childGroups();
    const QString missing(QLatin1Char('?'));
    for (const QString &key : keys) {
        if (theme.imageFile(key, missing, false) != missing) // an empty path reads as another one
            continue;
        drawings.beginGroup(key);
        theme.readImageFiles(drawings, false, *theme.metaObject());
        drawings.endGroup();
    }
}

} // namespace HV
