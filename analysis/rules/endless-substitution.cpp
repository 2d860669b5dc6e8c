// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

void Rules::endlessSubstitution(const ThemeProject &input, Report &report)
{
    for (const ThemeStack *theme : input.themes()) {
        const QString key = input.finished(*theme).endlessKey;
        if (key.isNull())
            continue;
        // Only the text of an image file can hold a token; those of the other kinds are formatted.
        const Definition *definition = theme->find(Kind::ImageFile, key);
        if (definition)
            report.addAtValue(*definition,
                              QStringLiteral("the value of %1 brings its own token back, so the "
                                             "substitution never ends")
                                  .arg(key));
    }
}
