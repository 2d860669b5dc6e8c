// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

#include <algorithm>

namespace
{

// A byte that is not ASCII was meant as UTF-8 if it reads as such. What does not was written as
// Latin-1 and comes out right.
bool isGarbled(const QByteArray &bytes)
{
    const bool isAscii =
        std::all_of(bytes.cbegin(), bytes.cend(), [](char byte) { return uchar(byte) < 0x80; });
    if (isAscii)
        return false;
    const QByteArray text = 'x' + bytes; // a byte order mark counts only at the beginning
    return QString::fromUtf8(text.constData(), text.size()).toUtf8() == text;
}

void check(const ThemeProject &project, Report &report)
{
    for (const auto &layer : project.layers()) {
        for (const ThemeFileEntry &entry : layer->file.entries()) {
            if (isGarbled(entry.rawKey))
                report.add({layer->file.path(), entry.keyPosition},
                           QStringLiteral("the key is read as Latin-1 and becomes \"%1\"; write "
                                          "other characters as %Uhhhh")
                               .arg(entry.name()));
            // A byte order mark makes the values, not the keys, UTF-8.
            if (isGarbled(entry.rawValue) && !layer->file.hasByteOrderMark())
                report.add({layer->file.path(), entry.valuePosition},
                           QStringLiteral("the value is read as Latin-1 and becomes \"%1\"; write "
                                          "other characters as \\xhhhh")
                               .arg(QString::fromLatin1(entry.rawValue.trimmed())));
        }
    }
}

} // namespace

namespace LintRules
{

extern const LintRule garbledText{"garbled-text", Severity::Warning,
                                  "Text that is not ASCII comes out garbled.", check};

} // namespace LintRules
