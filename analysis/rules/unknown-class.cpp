// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>
#include <analysis/style/stylevocabulary.h>
#include <analysis/suggestion.h>

namespace
{

// An application has classes of its own, so that a name is suspicious only if one of Qt's is near.
QString meantClass(const Suggestion &classes, const QString &type)
{
    static const QSet<QString> known(StyleVocabulary::classes().cbegin(),
                                     StyleVocabulary::classes().cend());
    if (type == QLatin1String("QTipLabel"))
        return QStringLiteral("QToolTip");
    if (type == QLatin1String("*") || known.contains(type)
        || !type.startsWith(QLatin1Char('Q'), Qt::CaseInsensitive))
        return {};
    return classes.nearest(type);
}

void check(const ThemeProject &project, Report &report)
{
    const Suggestion classes(StyleVocabulary::classes());
    for (const StyleRule &rule : project.styleRules().rules()) {
        for (const StyleSelector &selector : rule.selectors) {
            for (const StyleSelector::Step &step : selector.steps) {
                const QString meant = meantClass(classes, step.type);
                if (!meant.isEmpty() && !isBuiltInTemplate(project, step.offset))
                    report.addAtTemplate(project.templates(), step.offset,
                                         QLatin1String("Qt has no widget class ") % step.type
                                             % QLatin1String("; did you mean ") % meant
                                             % QLatin1Char('?'));
            }
        }
    }
}

} // namespace

namespace LintRules
{

extern const LintRule unknownClass{"unknown-class", Severity::Warning,
                                   "A selector names a class that is nearly one of Qt's.", check};

} // namespace LintRules
