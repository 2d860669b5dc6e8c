// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

namespace
{

// Returns the first character of the text that stands for bytes which are none, or -1.
int firstFault(const QByteArray &bytes, const QString &text)
{
    const QByteArray written = QString(QChar(QChar::ReplacementCharacter)).toUtf8();
    int at = 0; // in the bytes
    for (int i = 0; i < text.size(); ++i) {
        const QChar character = text.at(i);
        if (character == QChar(QChar::ReplacementCharacter)
            && bytes.mid(at, written.size()) != written)
            return i;
        const bool isPair = character.isHighSurrogate() && i + 1 < text.size();
        at += int(text.mid(i, isPair ? 2 : 1).toUtf8().size());
        i += isPair ? 1 : 0;
    }
    return -1;
}

// Line ends and NUL never are parts of a character of several bytes, so lines can be decoded alone.
void checkLine(const InputFile &file, const QByteArray &line, int number, Report &report)
{
    const QByteArray bytes = line.startsWith("\xef\xbb\xbf") ? line.mid(3) : line;
    const QString text = QString::fromUtf8(bytes.constData(), bytes.size());
    if (text.toUtf8() == bytes)
        return;
    const int fault = firstFault(bytes, text);
    if (fault >= 0)
        report.add(
            {file.path(), {number, fault + 1}},
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
            if (lineEnd < 0 && end >= 0) {
                const int column =
                    int(QString::fromUtf8(read.constData() + start, stop - start).size()) + 1;
                report.add({file.input.path(), {number + 1, column}},
                           QStringLiteral("a NUL byte: the library reads nothing behind it"));
            }
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
