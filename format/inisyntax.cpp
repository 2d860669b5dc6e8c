// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <format/inisyntax.h>

namespace
{

bool isSpace(char character)
{
    return character == ' ' || (character >= '\t' && character <= '\r');
}

bool isLineEnd(char character)
{
    return character == '\n' || character == '\r';
}

// A backslash takes the next character along, and a line end of two characters whole.
int behindEscape(const QByteArray &text, int position)
{
    if (position >= text.size())
        return position;
    const char first = text.at(position++);
    if (position < text.size()) {
        const char second = text.at(position);
        if (isLineEnd(first) && isLineEnd(second) && first != second)
            ++position;
    }
    return position;
}

int behindComment(const QByteArray &text, int position)
{
    while (position < text.size() && !isLineEnd(text.at(position)))
        ++position;
    while (position < text.size() && isSpace(text.at(position)))
        ++position;
    return position;
}

} // namespace

bool IniSyntax::nextLine(const QByteArray &text, int *position, Line *line)
{
    bool inQuotes = false;
    int start = *position;
    while (start < text.size() && isSpace(text.at(start)))
        ++start;
    line->equals = -1;

    int i = start;
    for (bool ended = false; i < text.size() && !ended; ++i) {
        const char character = text.at(i);
        if (character == '"') {
            inQuotes = !inQuotes;
        } else if (character == '=' && !inQuotes && line->equals < 0) {
            line->equals = i;
        } else if (character == '\\') {
            i = behindEscape(text, i + 1) - 1;
        } else if (isLineEnd(character) && i == start) {
            ++start;
        } else if (character == ';' && i == start) {
            start = behindComment(text, i + 1);
            i = start - 1;
        } else if ((isLineEnd(character) || character == ';') && !inQuotes) {
            ended = true;
            --i;
        }
    }
    line->start = start;
    line->end = i;
    *position = i;
    return line->end > line->start;
}

QString IniSyntax::unescapedKey(const QByteArray &escaped)
{
    QString key;
    key.reserve(escaped.size());
    for (int i = 0; i < escaped.size();) {
        const char character = escaped.at(i);
        if (character == '\\') {
            key += QLatin1Char('/');
            ++i;
            continue;
        }
        if (character == '%' && i + 1 < escaped.size()) {
            const bool isLong = escaped.at(i + 1) == 'U';
            const int first = i + (isLong ? 2 : 1);
            const int digits = isLong ? 4 : 2;
            bool ok = false;
            const int code = escaped.mid(first, digits).toInt(&ok, 16);
            if (first + digits <= escaped.size() && ok) {
                key += QChar(ushort(code));
                i = first + digits;
                continue;
            }
        }
        key += QLatin1Char(character);
        ++i;
    }
    return key;
}
