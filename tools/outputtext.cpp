// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <tools/outputtext.h>

#include <format/printabletext.h>

#include <QTextStream>

#include <cstdio>
#include <unistd.h>

void printError(const QString &message)
{
    QTextStream stream(stderr);
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0) // UTF-8 by itself from there on
    stream.setCodec("UTF-8");
#endif
    stream << "hvtheme: " << printable(message) << '\n';
}

bool isColorTerminal()
{
    return ::isatty(STDOUT_FILENO) == 1 && qEnvironmentVariableIsEmpty("NO_COLOR")
        && qgetenv("TERM") != "dumb";
}
