// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <tools/command_check.h>

#include <tools/commandline.h>
#include <tools/outputtext.h>
#include <tools/themefolder.h>

int runCheck(const QStringList &arguments)
{
    QCommandLineParser parser;
    if (const std::optional<int> code = parseArguments(parser, QStringLiteral("check"), arguments))
        return *code;
    return ExitUnusable;
}
