// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <format/place.h>

// Put together, never with arg(): a name of a file may hold a "%1".
QString Place::text() const
{
    return file % QLatin1Char(':') % QString::number(position.line) % QLatin1Char(':')
        % QString::number(position.column);
}

QString Place::shortText() const
{
    return file.mid(file.lastIndexOf(QLatin1Char('/')) + 1) % QLatin1Char(':')
        % QString::number(position.line);
}
