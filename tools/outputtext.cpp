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
    stream.setCodec("UTF-8");
    stream << "hvtheme: " << printable(message) << '\n';
}

bool isColorTerminal()
{
    return ::isatty(STDOUT_FILENO) == 1 && qEnvironmentVariableIsEmpty("NO_COLOR")
        && qgetenv("TERM") != "dumb";
}
