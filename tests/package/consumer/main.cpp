// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <hvtheme/theme.h>
#include <hvtheme/theming.h>
#include <hvtheme/workabletheming.h>

#include <QCoreApplication>

#include <cstdio>

// Prints the name of the theme "night" in the folder that the argument names, and a built-in template
// in its colours.
int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    HV::Theme theme(QStringLiteral("consumer"));
    HV::changeTheme(&theme, QStringLiteral("night"), application.arguments().value(1));
    const QString styleSheet = HV::findStyleSheet(
        &theme, QStringList(QStringLiteral(":/stylesheet/tooltip.qss")), QStringLiteral("global"));
    std::printf("%s\n%s", qUtf8Printable(theme.displayName()), qUtf8Printable(styleSheet));
    return 0;
}
