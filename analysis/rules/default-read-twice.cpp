// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

namespace
{

void check(const ThemeProject &project, Report &report)
{
    const ThemeLayer &layer = project.base().base();
    const QString displayName = project.base().displayName();
    if (QString::compare(displayName, layer.name, Qt::CaseInsensitive) == 0)
        return;
    const ThemeFileEntry *name = layer.file.find(QStringLiteral("ThemeName"));
    report.add({layer.file.path(), name ? name->valuePosition : TextPosition{1, 1}},
               QStringLiteral("the display name \"%1\" is not \"%2\", so asking for the theme "
                              "\"%2\" reads this file twice and logs every key; ask with an "
                              "empty name, or with \"%1\"")
                   .arg(displayName, layer.name));
}

} // namespace

namespace LintRules
{

extern const LintRule defaultReadTwice{
    "default-read-twice", Severity::Info,
    "Asking for the theme \"default\" reads the default file twice.", check};

} // namespace LintRules
