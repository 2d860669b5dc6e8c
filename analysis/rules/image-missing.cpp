// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

#include <QFileInfo>
#include <QMap>

namespace
{

// Of one file and one folder: what is wrong is the folder.
struct MissingImages {
    QMap<TextPosition, const ThemeImage *> images; // the first is reported
};

void check(const ThemeProject &project, Report &report)
{
    QHash<QString, bool> exists;
    QMap<QPair<QString, QString>, MissingImages> missing;
    const QVector<ThemeImage> images = themeImages(project);
    for (const ThemeImage &image : images) {
        if (!exists.contains(image.path))
            exists.insert(image.path, QFileInfo::exists(image.path));
        if (exists.value(image.path))
            continue;
        const Place place = image.definition->valuePlace();
        missing[{place.file, QFileInfo(image.path).path()}].images.insert(place.position, &image);
    }
    for (const MissingImages &group : qAsConst(missing)) {
        const ThemeImage &first = *group.images.first();
        const int count = int(group.images.size());
        const QString others =
            count == 1 ? QString() : QStringLiteral(" (and %1 more in its folder)").arg(count - 1);
        report.addAtValue(*first.definition,
                          QStringLiteral("image file %1%2 does not exist (the application's folder "
                                         "is %3)")
                              .arg(first.path, others, project.options().applicationFolder));
    }
}

} // namespace

namespace LintRules
{

extern const LintRule imageMissing{"image-missing", Severity::Error,
                                   "An image file does not exist.", check};

} // namespace LintRules
