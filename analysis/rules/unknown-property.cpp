// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>
#include <analysis/style/stylevocabulary.h>
#include <analysis/suggestion.h>

#include <QRegularExpression>

namespace
{

bool isUnknown(const QString &property)
{
    static const QRegularExpression name(QStringLiteral("^-?[A-Za-z_][\\w-]*$"));
    static const QSet<QString> known(StyleVocabulary::properties().cbegin(),
                                     StyleVocabulary::properties().cend());
    return name.match(property).hasMatch() && !known.contains(property.toLower())
        && !property.startsWith(QLatin1String("qproperty-"), Qt::CaseInsensitive);
}

void check(const ThemeProject &project, Report &report)
{
    const Suggestion properties(StyleVocabulary::properties());
    for (const StyleRule &rule : project.styleRules().rules()) {
        for (const StyleDeclaration &declaration : rule.declarations) {
            if (isUnknown(declaration.property) && !isBuiltInTemplate(project, declaration.start))
                report.addAtTemplate(project.templates(), declaration.start,
                                     QLatin1String("Qt knows no property ") % declaration.property
                                         % QLatin1String(" and takes no notice of it")
                                         % properties.question(declaration.property.toLower()));
        }
    }
}

} // namespace

namespace LintRules
{

extern const LintRule unknownProperty{"unknown-property", Severity::Warning,
                                      "Qt does not know a property.", check};

} // namespace LintRules
