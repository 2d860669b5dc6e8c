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

} // namespace

void Rules::unknownProperty(const ThemeProject &input, Report &report)
{
    const Suggestion properties(StyleVocabulary::properties());
    for (const StyleRule &rule : input.styleRules().rules()) {
        for (const StyleDeclaration &declaration : rule.declarations) {
            if (isUnknown(declaration.property) && !isBuiltInTemplate(input, declaration.start))
                report.addAtTemplate(input.templates(), declaration.start,
                                     QLatin1String("Qt knows no property ") % declaration.property
                                         % QLatin1String(" and takes no notice of it")
                                         % properties.question(declaration.property.toLower()));
        }
    }
}
