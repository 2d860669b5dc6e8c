// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <tools/outputfile.h>

#include <format/printabletext.h>
#include <tools/outputtext.h>

#include <cerrno>
#include <cstdio>
#include <unistd.h>

bool writeStandardOutput(const QString &text)
{
    const bool isTerminal = ::isatty(STDOUT_FILENO) == 1;
    return writeReport((isTerminal ? printableLines(text) : text).toUtf8());
}

bool writeReport(const QByteArray &report)
{
    const auto size = size_t(report.size());
    if (std::fwrite(report.constData(), 1, size, stdout) == size && std::fflush(stdout) == 0)
        return true;
    printError(QLatin1String("standard output: ") % systemReason(errno));
    return false;
}
