// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

namespace
{

// Line ends and NUL never are parts of a character of several bytes, so lines can be decoded alone.
void checkLine(const InputFile &file, const QByteArray &line, int number, Report &report)
{
    const QByteArray bytes = line.startsWith("\xef\xbb\xbf") ? line.mid(3) : line;
    const QString text = QString::fromUtf8(bytes.constData(), bytes.size());
    if (text.toUtf8() == bytes)
        return;
    const int column = int(text.indexOf(QChar(QChar::ReplacementCharacter))) + 1;
    report.add({file.path(), {number, column}},
               QStringLiteral("these bytes are not UTF-8 and come out as replacement characters"));
}

void check(const ThemeProject &project, Report &report)
{
    for (const TemplateText::File &file : project.templates().files()) {
        const QByteArray content = file.input.content();
        const int end = int(content.indexOf('\0'));
        const QByteArray read = content.left(end < 0 ? content.size() : end);
        int number = 0;
        for (int start = 0; start <= read.size(); ++number) {
            const int lineEnd = int(read.indexOf('\n', start));
            const int stop = lineEnd < 0 ? int(read.size()) : lineEnd;
            checkLine(file.input, read.mid(start, stop - start), number + 1, report);
            if (lineEnd < 0 && end >= 0)
                report.add({file.input.path(), {number + 1, stop - start + 1}},
                           QStringLiteral("a NUL byte: the library reads nothing behind it"));
            start = stop + 1;
        }
    }
}

} // namespace

namespace LintRules
{

extern const LintRule templateEncoding{"template-encoding", Severity::Error,
                                       "A template is not UTF-8 or holds a NUL byte.", check};

} // namespace LintRules
