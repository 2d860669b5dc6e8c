// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <format/inisyntax.h>

namespace
{

bool isSpace(char character)
{
    return character == ' ' || (character >= '\t' && character <= '\r');
}

// A backslash takes the next character along, and a line end of two characters whole.
int behindEscape(const QByteArray &text, int position)
{
    if (position >= text.size())
        return position;
    const char first = text.at(position++);
    if (position < text.size()) {
        const char second = text.at(position);
        if (IniSyntax::isLineEnd(first) && IniSyntax::isLineEnd(second) && first != second)
            ++position;
    }
    return position;
}

int behindComment(const QByteArray &text, int position)
{
    while (position < text.size() && !IniSyntax::isLineEnd(text.at(position)))
        ++position;
    while (position < text.size() && isSpace(text.at(position)))
        ++position;
    return position;
}

bool isPlainInKeys(ushort code)
{
    return (code >= 'a' && code <= 'z') || (code >= 'A' && code <= 'Z')
        || (code >= '0' && code <= '9') || code == '_' || code == '-' || code == '.';
}

bool isHexadecimalDigit(ushort code)
{
    return (code >= '0' && code <= '9') || (code >= 'a' && code <= 'f')
        || (code >= 'A' && code <= 'F');
}

// Returns what the backslash in front of position says and moves position behind it: a character, or
// nothing for the end of a line and for letters that mean nothing.
QString unescaped(const QByteArray &text, int *position)
{
    const auto number = [&](int base) {
        int code = 0;
        for (int digit = 0; *position < text.size(); ++*position) {
            bool isDigit = false;
            digit = text.mid(*position, 1).toInt(&isDigit, base);
            if (!isDigit)
                break;
            code = (code * base + digit) & 0xffff;
        }
        return QString(QChar(ushort(code)));
    };
    if (*position >= text.size())
        return {};
    const char letter = text.at(*position);
    static const QByteArray letters("abfnrtv\"?'\\");
    static const QByteArray characters("\a\b\f\n\r\t\v\"?'\\");
    const int plain = int(letters.indexOf(letter));
    if (letter >= '0' && letter <= '7')
        return number(8);
    if (letter == 'x' && *position + 1 < text.size()
        && isHexadecimalDigit(uchar(text.at(*position + 1)))) {
        ++*position;
        return number(16);
    }
    *position = behindEscape(text, *position);
    return plain < 0 ? QString() : QString(QLatin1Char(characters.at(plain)));
}

QString chopped(QString text)
{
    while (text.endsWith(QLatin1Char(' ')) || text.endsWith(QLatin1Char('\t')))
        text.chop(1);
    return text;
}

// Returns how many code units from position on stand for one character that can be seen, or 0: half
// characters and marks of byte order do not survive a conversion.
int seenLength(const QString &text, int position)
{
    const QChar first = text.at(position);
    if (!first.isSurrogate())
        return first.isPrint() ? 1 : 0;
    if (!first.isHighSurrogate() || position + 1 >= text.size())
        return 0;
    const QChar second = text.at(position + 1);
    if (!second.isLowSurrogate())
        return 0;
    return QChar::isPrint(QChar::surrogateToUcs4(first, second)) ? 2 : 0;
}

// A text that begins with "@" is a type to QSettings unless the "@" is doubled; one with a NUL in it
// has to have its type.
QString markedText(const QString &value)
{
    if (value.contains(QChar(0)))
        return QLatin1String("@String(") + value + QLatin1Char(')');
    return value.startsWith(QLatin1Char('@')) ? QString(QLatin1Char('@') + value) : value;
}

} // namespace

bool IniSyntax::isLineEnd(char character)
{
    return character == '\n' || character == '\r';
}

int IniSyntax::behindLine(const QByteArray &text, int position)
{
    while (position < text.size() && !isLineEnd(text.at(position)))
        ++position;
    if (position < text.size())
        position += text.mid(position, 2) == "\r\n" ? 2 : 1;
    return position;
}

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

QByteArray IniSyntax::escapedKey(const QString &key)
{
    QByteArray escaped;
    for (const QChar character : key) {
        const ushort code = character.unicode();
        if (code == '/')
            escaped += '\\';
        else if (isPlainInKeys(code))
            escaped += char(code);
        else if (code <= 0xff)
            escaped += '%' + QByteArray::number(code, 16).toUpper().rightJustified(2, '0');
        else
            escaped += "%U" + QByteArray::number(code, 16).toUpper().rightJustified(4, '0');
    }
    return escaped;
}

QStringList IniSyntax::unescapedValue(const QByteArray &escaped, Encoding encoding)
{
    QStringList parts;
    QString part;
    bool inQuotes = false;
    bool hasQuotes = false;
    bool skipsSpace = true;
    const auto finish = [&] {
        part = hasQuotes ? part : chopped(part);
        parts.append(part.startsWith(QLatin1String("@@")) ? part.mid(1) : part);
        part.clear();
        hasQuotes = false;
        skipsSpace = true;
    };
    for (int i = 0; i < escaped.size();) {
        const char character = escaped.at(i);
        const bool isBlank = character == ' ' || character == '\t';
        if (isBlank && skipsSpace) {
            ++i;
            continue;
        }
        skipsSpace = false;
        if (character == '\\') {
            part += unescaped(escaped, &++i);
        } else if (character == '"') {
            inQuotes = !inQuotes;
            hasQuotes = true;
            skipsSpace = !inQuotes;
            ++i;
        } else if (character == ',' && !inQuotes) {
            finish();
            ++i;
        } else {
            int end = i + 1;
            while (end < escaped.size() && escaped.at(end) != '\\' && escaped.at(end) != '"'
                   && escaped.at(end) != ',')
                ++end;
            const QByteArray run = escaped.mid(i, end - i);
            part += encoding == Encoding::Utf8 ? QString::fromUtf8(run) : QString::fromLatin1(run);
            i = end;
        }
    }
    finish();
    return parts;
}

bool IniSyntax::isQuoted(const QByteArray &escaped)
{
    if (escaped.size() < 2 || !escaped.startsWith('"'))
        return false;
    int i = 1;
    while (i < escaped.size() && escaped.at(i) != '"')
        i += escaped.at(i) == '\\' ? 2 : 1;
    return i == escaped.size() - 1;
}

QByteArray IniSyntax::escapedValue(const QString &value, Encoding encoding, Quotes quotes)
{
    const QString text = markedText(value);
    const bool hasOuterSpace = text.startsWith(QLatin1Char(' ')) || text.endsWith(QLatin1Char(' '));
    bool needsQuotes = quotes == Quotes::Always || hasOuterSpace;
    bool isBehindNumber = false; // which would take a digit that follows as its own
    QByteArray escaped;
    for (int i = 0; i < text.size(); ++i) {
        const ushort code = text.at(i).unicode();
        const bool isAscii = code >= ' ' && code < 0x7f;
        const int seen = !isAscii && encoding == Encoding::Utf8 ? seenLength(text, i) : 0;
        const bool isNumber =
            (!isAscii && seen == 0) || (isBehindNumber && isHexadecimalDigit(code));
        needsQuotes = needsQuotes || code == ';' || code == ',' || code == '=';
        if (code == '\n' || code == '\r' || code == '\t') {
            escaped += code == '\n' ? "\\n" : code == '\r' ? "\\r" : "\\t";
        } else if (isNumber) {
            escaped += "\\x" + QByteArray::number(code, 16);
        } else if (seen > 0) {
            escaped += text.mid(i, seen).toUtf8();
            i += seen - 1;
        } else {
            if (code == '"' || code == '\\')
                escaped += '\\';
            escaped += char(code);
        }
        isBehindNumber = isNumber && code != '\n' && code != '\r' && code != '\t';
    }
    return needsQuotes ? '"' + escaped + '"' : escaped;
}
