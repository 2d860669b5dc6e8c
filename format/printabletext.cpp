// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <format/printabletext.h>

#include <system_error>

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

QString printableLines(const QString &text)
{
    QString result;
    int start = 0;
    for (int at = 0; at <= text.size(); ++at) {
        const bool isKept = at < text.size() && (text.at(at) == u'\n' || text.at(at) == u'\t');
        if (at < text.size() && !isKept)
            continue;
        result += printable(text.mid(start, at - start));
        if (isKept)
            result += text.at(at);
        start = at + 1;
    }
    return result;
}

QString systemReason(int number)
{
    return QString::fromLocal8Bit(std::generic_category().message(number).c_str());
}
