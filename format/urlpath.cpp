// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <format/urlpath.h>

#include <QVector>

namespace
{

// No word of a style sheet begins or goes on with these. Above U+00FF everything is a letter.
bool isStrange(const QString &path, int index)
{
    const ushort code = path.at(index).unicode();
    const bool isAssigned = index + 1 < path.size() && path.at(index + 1) == QLatin1Char('=');
    switch (code) {
    case '&':
    case '?':
    case '`':
    case '%':
    case '\\':
        return true;
    case '$':
    case '^':
        return !isAssigned; // "$=" and "^=" are words
    case '<':
        return path.mid(index, 4) != QLatin1String("<!--");
    case '\t':
    case '\n':
    case '\f':
    case '\r':
        return false;
    case '/':
        return path.mid(index, 2) == QLatin1String("/*"); // a comment
    default:
        return code < ' ' || (code >= 0x7f && code <= 0xff);
    }
}

} // namespace

int urlPathFault(const QString &path)
{
    const QString opening = QStringLiteral("([{");
    const QString closing = QStringLiteral(")]}");
    QVector<int> open[3];
    for (int i = 0; i < path.size(); ++i) {
        const QChar character = path.at(i);
        if (character == QLatin1Char('"') || character == QLatin1Char('\'')) {
            const int end = int(path.indexOf(character, i + 1));
            const int escape = int(path.indexOf(QLatin1Char('\\'), i + 1));
            if (end < 0)
                return i;
            if (escape >= 0 && escape < end)
                return escape;
            i = end;
        } else if (opening.contains(character)) {
            open[opening.indexOf(character)].append(i);
        } else if (closing.contains(character)) {
            QVector<int> &partners = open[closing.indexOf(character)];
            if (partners.isEmpty())
                return i;
            partners.removeLast();
        } else if (isStrange(path, i)) {
            return i;
        }
    }
    int first = -1;
    for (const QVector<int> &left : open) {
        if (!left.isEmpty() && (first < 0 || left.first() < first))
            first = left.first();
    }
    return first;
}

QString urlPathFaultText(const QString &path, int index)
{
    const QString both = path.mid(index, 2);
    const bool isComment = both == QLatin1String("/*");
    return isComment || both.at(0).isHighSurrogate() ? both : both.left(1);
}
