// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <hvtheme/theming.h>
#include <hvtheme/workabletheming.h>

#include <QCoreApplication>
#include <QFile>

#include <cstdio>

// An application as small as can be: writes the style sheet that the library gives it.
// Arguments: folder of themes, theme, then a folder of templates, or several files.
int main(int argc, char **argv)
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QStringList templates = arguments.mid(3);
    HV::WorkableTheme theme;
    HV::changeTheme(&theme, arguments.at(2), arguments.at(1));
    const QString styleSheet = templates.size() == 1
        ? HV::findStyleSheet(&theme, templates.constFirst(), "global")
        : HV::findStyleSheet(&theme, templates, "global");
    QFile output;
    output.open(stdout, QIODevice::WriteOnly);
    output.write(styleSheet.toUtf8());
    return 0;
}
