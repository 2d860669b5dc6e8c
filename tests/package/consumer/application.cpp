// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <hvthemeapp/applicationtheme.h>
#include <hvthemeapp/themedicon.h>

#include <QApplication>
#include <QIcon>
#include <QPalette>

#include <cstdio>

// Prints the built-in theme that the program has, how it looks, and whether it has icons.
int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    HV::ApplicationTheme theme;
    theme.setName(QStringLiteral("dark"));

    const QPalette palette = QApplication::palette();
    const bool dark = palette.color(QPalette::Window).lightness()
        < palette.color(QPalette::WindowText).lightness();
    std::printf("%s, %s, %s, %s\n", qUtf8Printable(theme.name()), dark ? "dark" : "light",
                application.styleSheet().contains(QLatin1String("QPushButton")) ? "styled"
                                                                                : "plain",
                HV::themedIcon(QStringLiteral("save")).pixmap(16).isNull() ? "no icons" : "icons");
    return 0;
}
