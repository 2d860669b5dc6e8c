// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <hvthemeinspector/inspector.h>

#include <QApplication>

#include <cstdio>

// Prints whether the inspector is open: before it is opened, then, and after it was closed.
int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    const auto state = [] { return HV::Inspector::isOpen() ? "open" : "closed"; };
    HV::Inspector::installShortcut();
    std::printf("%s, ", state());
    HV::Inspector::open();
    std::printf("%s, ", state());
    HV::Inspector::close();
    std::printf("%s\n", state());
    return 0;
}
