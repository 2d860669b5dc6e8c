// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

#include <QFileInfo>

void Rules::themeNeverRead(const ThemeProject &input, Report &report)
{
    const ThemeFile &base = input.base().base().file;
    const ThemeFileEntry *name = base.find(QStringLiteral("ThemeName"));
    for (const ThemeStack *theme : input.themes()) {
        if (theme->isOwnRead())
            continue;
        report.add(base.path(), name ? name->valuePosition : TextPosition{1, 1},
                   QStringLiteral("the display name equals the name of %1, so the library takes "
                                  "this theme for it and never reads that file")
                       .arg(QFileInfo(theme->own()->file.path()).fileName()));
    }
}
