// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

#include <QFileInfo>

namespace
{

void check(const ThemeProject &project, Report &report)
{
    QHash<QString, bool> exists;
    for (const ThemeImage &image : themeImages(project)) {
        if (!exists.contains(image.path))
            exists.insert(image.path, QFileInfo::exists(image.path));
        if (!exists.value(image.path))
            report.addAtValue(*image.definition,
                              QStringLiteral("image file %1 does not exist (the application's "
                                             "folder is %2)")
                                  .arg(image.path, project.options().applicationFolder));
    }
}

} // namespace

namespace LintRules
{

extern const LintRule imageMissing{"image-missing", Severity::Error,
                                   "An image file does not exist.", check};

} // namespace LintRules
