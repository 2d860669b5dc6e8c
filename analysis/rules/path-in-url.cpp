// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>
#include <format/urlpath.h>

#include <QMap>

namespace
{

struct Fault {
    const Definition *first = nullptr;
    QString path;
    int index = -1;
    QSet<QString> paths;
};

bool isBefore(const Place &first, const Place &second)
{
    return first.file == second.file ? first.position < second.position : first.file < second.file;
}

// The folder or file whose name it is: all images in that folder have one cause.
QString cause(const QString &path, int index)
{
    return path.left(path.indexOf(QLatin1Char('/'), index + 1)); // the fault may be a "/"
}

void check(const ThemeProject &project, Report &report)
{
    QMap<QString, Fault> faults; // by cause
    const auto images = themeImages(project);
    for (const ThemeImage &image : images) {
        const int index = urlPathFault(image.path);
        if (index < 0)
            continue;
        const QString path = cause(image.path, index);
        Fault &fault = faults[path];
        if (!fault.first || isBefore(image.definition->valuePlace(), fault.first->valuePlace()))
            fault.first = image.definition;
        fault.path = path;
        fault.index = index;
        fault.paths.insert(image.path);
    }
    for (const Fault &fault : qAsConst(faults)) {
        const QString others = fault.paths.size() == 1
            ? QString()
            : QStringLiteral(" (%1 images)").arg(fault.paths.size());
        report.addAtValue(
            *fault.first,
            QStringLiteral("Qt cannot read \"%1\" in the path %2, which stands in url(...) "
                           "without quotation marks, and drops the style sheet from there on or "
                           "the image; rename the folder or the file%3")
                .arg(urlPathFaultText(fault.path, fault.index), fault.path, others));
    }
}

} // namespace

namespace LintRules
{

extern const LintRule pathInUrl{"path-in-url", Severity::Error,
                                "The path of an image holds a character that ends the style sheet.",
                                check};

} // namespace LintRules
