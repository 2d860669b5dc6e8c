// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

// Templates are one text to the library and to Qt, so a comment goes on into the next file.
void Rules::unterminatedComment(const ThemeProject &input, Report &report)
{
    const TemplateText &templates = input.templates();
    for (const StyleRules::Comment &comment : input.styleRules().comments()) {
        const QString file = templates.fileAt(comment.start).input.path();
        const QString endFile = templates.fileAt(comment.end - 1).input.path();
        if (isBuiltInTemplate(input, comment.start) || (comment.isClosed && file == endFile))
            continue;
        const QString end = comment.isClosed ? endFile.section(QLatin1Char('/'), -1)
                % QLatin1Char(':') % QString::number(templates.positionAt(comment.end - 1).line)
                                             : QStringLiteral("the end of all templates");
        report.addAtTemplate(templates, comment.start,
                             QLatin1String("the comment is not closed in this file, and swallows "
                                           "all rules up to ")
                                 % end);
    }
}
