// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <hvtheme/workabletheming.h>

#include <QCoreApplication>
#include <QFile>

// Succeeds if both pictures are where the theme says and wear the theme's colours.
int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    HV::WorkableTheme theme;
    HV::changeTheme(&theme, "forest",
                    QCoreApplication::applicationDirPath() + "/../share/consumer");
    for (const char *key : {"add", "leaf"}) {
        QFile file(theme.imageFile(key));
        if (!file.open(QIODevice::ReadOnly))
            return 1;
        const QByteArray text = file.readAll();
        if (text.contains("global.theme") || !text.contains("#c0ffee"))
            return 2;
    }
    return 0;
}
