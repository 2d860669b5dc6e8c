// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

// A window with one button for the test `inspector_screen`. Usage: screen-program [FOLDER], the folder of
// theme files, if it is made with a look of its own.

#ifdef HVTHEME_OWN_LOOK
#include <hvthemeapp/applicationtheme.h>
#include <hvthemeinspector/inspector.h>
#endif

#include <QtWidgets>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
#ifdef HVTHEME_OWN_LOOK
    HV::ApplicationTheme theme;
    if (!theme.setFolder(application.arguments().value(1)) || !theme.setName("dark"))
        return 1;
    HV::Inspector::installShortcut();
#endif
    QWidget window;
    window.setWindowTitle("Screen program");
    QPushButton button("Push", &window);
    button.setProperty("style", "general");
    button.setGeometry(20, 20, 120, 40);
    window.setGeometry(0, 0, 160, 120);
    window.show();
    return QApplication::exec();
}
