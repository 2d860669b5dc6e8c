// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

#include <QFileInfo>

namespace
{

void check(const ThemeProject &project, Report &report)
{
    const QString suffix = project.options().suffix;
    for (const QString &path : project.nearMisses()) {
        const QString name = QFileInfo(path).completeBaseName();
        report.add({path, {1, 1}},
                   QStringLiteral("no theme: the library opens %1 alone, in this letter case")
                       .arg(themeFileName(name, suffix)));
    }
}

} // namespace

namespace LintRules
{

extern const LintRule themeSuffix{"theme-suffix", Severity::Warning,
                                  "A file is no theme for the letter case of its suffix alone.",
                                  check};

} // namespace LintRules
