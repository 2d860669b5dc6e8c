// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <hvtheme/workabletheming.h>

#include <QApplication>
#include <QPushButton>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    HV::WorkableTheme theme;
    HV::changeAppStyleSheet(&theme, "dark", "themes"); // default.theme, then dark.theme

    QPushButton apply("Apply");
    apply.setProperty("style", "general"); // a variant of the built-in templates
    apply.show();
    return QApplication::exec();
}
