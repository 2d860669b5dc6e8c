// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <hvthemeapp/applicationtheme.h>

#include <QtWidgets>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    HV::ApplicationTheme theme; // dark, light and contrast are inside
    theme.followDesktop(); // or theme.setName("dark")

    QMainWindow window;
    window.menuBar()->addMenu(theme.menu(&window)); // lets the user choose
    window.show();
    return QApplication::exec();
}
