// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <hvthemeapp/applicationtheme.h>

#include <QtWidgets>

#include <cstdio>

// A program that has a theme of its own; tells what came of it as JSON.
int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    HV::ApplicationTheme theme;
    theme.setName("light");
    QLabel label("text");
    label.ensurePolished();
    QCoreApplication::processEvents();
    const QJsonObject facts{
        {"sheet", qApp->styleSheet()},
        {"window", QApplication::palette().color(QPalette::Window).name()},
        {"label", label.palette().color(QPalette::WindowText).name()},
    };
    std::fputs(QJsonDocument(facts).toJson().constData(), stdout);
    return 0;
}
