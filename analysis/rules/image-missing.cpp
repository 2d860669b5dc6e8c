// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

#include <QFileInfo>

void Rules::imageMissing(const ThemeProject &input, Report &report)
{
    QHash<QString, bool> exists;
    for (const ThemeImage &image : themeImages(input)) {
        if (!exists.contains(image.path))
            exists.insert(image.path, QFileInfo::exists(image.path));
        if (!exists.value(image.path))
            report.addAtValue(*image.definition,
                              QStringLiteral("image file %1 does not exist (the application's "
                                             "folder is %2)")
                                  .arg(image.path, input.options().applicationFolder));
    }
}
