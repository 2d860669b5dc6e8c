// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

namespace
{

// Templates are one text to the library and to Qt, so a comment goes on into the next file.
void check(const ThemeProject &project, Report &report)
{
    const TemplateText &templates = project.templates();
    for (const StyleRules::Comment &comment : project.styleRules().comments()) {
        const QString file = templates.fileAt(comment.start).input.path();
        const QString endFile = templates.fileAt(comment.end - 1).input.path();
        if (isBuiltInTemplate(project, comment.start) || (comment.isClosed && file == endFile))
            continue;
        const QString end = comment.isClosed ? templates.placeAt(comment.end - 1).shortText()
                                             : QStringLiteral("the end of all templates");
        report.addAtTemplate(templates, comment.start,
                             QLatin1String("the comment is not closed in this file, and swallows "
                                           "all rules up to ")
                                 % end);
    }
}

} // namespace

namespace LintRules
{

extern const LintRule unterminatedComment{"unterminated-comment", Severity::Error,
                                          "A template's comment is not closed and swallows rules.",
                                          check};

} // namespace LintRules
