// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

#include <QDir>
#include <QMap>

namespace
{

// A layout beside the program leads every image out, so each file is told of once.
void check(const ThemeProject &project, Report &report)
{
    const QString folder = QDir::cleanPath(project.options().applicationFolder) % QLatin1Char('/');
    QMap<QString, QMap<int, const Definition *>> outside; // by file and line
    for (const ThemeImage &image : themeImages(project)) {
        const Definition &definition = *image.definition;
        if (!QString(image.path % QLatin1Char('/')).startsWith(folder))
            outside[definition.layer->file.path()].insert(definition.entry()->keyPosition.line,
                                                          &definition);
    }
    for (const QMap<int, const Definition *> &images : qAsConst(outside)) {
        const Definition &first = *images.first();
        const QString others = images.size() == 1
            ? QString()
            : QStringLiteral(" (%1 more in this file)").arg(images.size() - 1);
        report.addAtValue(first,
                          QStringLiteral("image path %1 leaves the application's folder%2")
                              .arg(first.value->text(), others));
    }
}

} // namespace

namespace LintRules
{

extern const LintRule imageOutside{"image-outside", Severity::Info,
                                   "An image path leaves the application's folder.", check};

} // namespace LintRules
