// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <format/place.h>

TextPosition textPosition(const QString &text, int offset)
{
    const int end = qBound(0, offset, int(text.size()));
    TextPosition position{1, 1};
    int lineStart = 0;
    for (int i = 0; i < end; ++i) {
        if (text.at(i) == QLatin1Char('\n')) {
            ++position.line;
            lineStart = i + 1;
        }
    }
    position.column = end - lineStart + 1;
    return position;
}

// Put together, never with arg(): a name of a file may hold a "%1".
QString Place::text() const
{
    return lineText() % QLatin1Char(':') % QString::number(position.column);
}

QString Place::lineText() const
{
    return file % QLatin1Char(':') % QString::number(position.line);
}

QString Place::shortText() const
{
    return file.mid(file.lastIndexOf(QLatin1Char('/')) + 1) % QLatin1Char(':')
        % QString::number(position.line);
}
