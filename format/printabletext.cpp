// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <format/printabletext.h>

namespace
{

bool isUnsafe(QChar character)
{
    switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
    case QChar::Other_Format: // among them the bidirectional overrides, which can reorder a report
        return true;
    default:
        return false;
    }
}

} // namespace

QString printable(const QString &text)
{
    QString result;
    result.reserve(text.size());
    for (const QChar character : text) {
        const ushort code = character.unicode();
        if (!isUnsafe(character))
            result += character;
        else if (code < 0x100)
            result += QStringLiteral("\\x%1").arg(code, 2, 16, QLatin1Char('0'));
        else
            result += QStringLiteral("\\u%1").arg(code, 4, 16, QLatin1Char('0'));
    }
    return result;
}
