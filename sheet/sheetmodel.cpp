// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <sheet/sheetmodel.h>

#include <colormath/contrast.h>

#include <QRegularExpression>

#include <algorithm>

namespace
{

QStringList keysInFileOrder(const QVector<StoredValue> &values, const ThemeStack &stack)
{
    QVector<StoredValue> sorted = values;
    std::stable_sort(sorted.begin(), sorted.end(), [&](const StoredValue &a, const StoredValue &b) {
        const auto rank = [&](const StoredValue &value) {
            return std::make_pair(value.definition->layer != &stack.base(),
                                  value.definition->entry()->keyPosition.line);
        };
        return rank(a) < rank(b);
    });
    QStringList keys;
    for (const StoredValue &value : qAsConst(sorted))
        keys << value.key();
    return keys;
}

QSet<QString> textKeys(const ThemeProject &project)
{
    QSet<QString> keys;
    for (const TemplateToken &token : project.tokens()) {
        const StyleRule *rule = project.styleRules().ruleAt(token.offset);
        const StyleDeclaration *declaration = rule ? rule->declarationAt(token.offset) : nullptr;
        if (token.kind == Kind::Color && declaration
            && (declaration->property == QLatin1String("color")
                || declaration->property == QLatin1String("selection-color")))
            keys.insert(token.key);
    }
    return keys;
}

QColor opaque(QColor color)
{
    color.setAlphaF(1.0);
    return color;
}

} // namespace

const StoredValue *SheetTheme::find(Kind kind, const QString &key) const
{
    const auto found = values[int(kind)].constFind(key);
    return found == values[int(kind)].cend() ? nullptr : &*found;
}

QString SheetContrast::text() const
{
    const QString figure = ColorMath::contrastText(ratio);
    return grade.isEmpty() ? figure : figure % QLatin1Char(' ') % grade;
}

SheetModel::SheetModel(const ThemeProject &project, const QStringList &names,
                       const QString &groundKey)
    : m_textKeys(textKeys(project))
{
    for (const QString &name : names)
        addTheme(project.theme(name), project.options().applicationFolder, groundKey);
}

void SheetModel::addTheme(const ThemeStack &stack, const QString &applicationFolder,
                          const QString &groundKey)
{
    SheetTheme theme;
    theme.name = stack.name();
    theme.displayName = stack.displayName();
    for (const Kind kind : allKinds) {
        const auto values = storedValues(stack, applicationFolder, kind);
        for (const StoredValue &value : values)
            theme.values[int(kind)].insert(value.key(), value);
        m_keys[int(kind)] += keysInFileOrder(values, stack);
        m_keys[int(kind)].removeDuplicates();
    }

    const StoredValue *ground = theme.find(Kind::Color, groundKey);
    if (!ground)
        ground = theme.find(Kind::Palette, groundKey);
    theme.groundKey = ground ? groundKey : QString();
    theme.ground = ground ? opaque(ground->value.value<QColor>()) : QColor(Qt::white);
    const bool isDark = ColorMath::contrastRatio(Qt::white, theme.ground)
        > ColorMath::contrastRatio(Qt::black, theme.ground);
    theme.ink = isDark ? Qt::white : Qt::black;
    m_themes.append(theme);
}

QVector<SheetRun> SheetModel::runs() const
{
    static const QRegularExpression numbered(QStringLiteral("^(.*?)_?\\d+_?$"));
    QVector<SheetRun> runs;
    const QStringList palette = keys(Kind::Palette);
    for (const QString &key : palette) {
        const QRegularExpressionMatch match = numbered.match(key);
        const QString name = match.hasMatch() ? match.captured(1) : QString();
        auto run = std::find_if(runs.begin(), runs.end(),
                                [&](const SheetRun &known) { return known.name == name; });
        if (run == runs.end())
            run = runs.insert(runs.end(), SheetRun{name, {}});
        run->keys << key;
    }
    return runs;
}

bool SheetModel::areEqual(Kind kind, const QStringList &keys) const
{
    const auto valueIn = [&](const SheetTheme &theme, const QString &key) {
        const StoredValue *stored = theme.find(kind, key);
        return stored ? stored->value : QVariant();
    };
    return std::all_of(keys.cbegin(), keys.cend(), [&](const QString &key) {
        const QVariant first = valueIn(m_themes.constFirst(), key);
        return std::all_of(m_themes.cbegin(), m_themes.cend(), [&](const SheetTheme &theme) {
            return isSameValue(valueIn(theme, key), first);
        });
    });
}

SheetContrast SheetModel::contrast(const SheetTheme &theme, const StoredValue &color) const
{
    SheetContrast contrast;
    contrast.ratio = ColorMath::contrastRatio(color.value.value<QColor>(), theme.ground);
    if (!isText(color.key()))
        return contrast;
    contrast.grade = contrast.ratio >= 7.0 ? QStringLiteral("AAA")
        : contrast.ratio >= 4.5            ? QStringLiteral("AA")
        : contrast.ratio >= 3.0            ? QStringLiteral("AA large")
                                           : QStringLiteral("low");
    return contrast;
}

bool SheetModel::hasGround() const
{
    return std::any_of(m_themes.cbegin(), m_themes.cend(),
                       [](const SheetTheme &theme) { return !theme.groundKey.isEmpty(); });
}

QString SheetModel::note() const
{
    QString key;
    QStringList missing;
    for (const SheetTheme &theme : m_themes) {
        if (theme.groundKey.isEmpty())
            missing << theme.name;
        else
            key = theme.groundKey;
    }
    QString text;
    if (!key.isEmpty())
        text += QLatin1String("Each theme is shown on its own ") % key % QLatin1String(". ");
    if (!missing.isEmpty())
        text += QLatin1String("White stands in for the background of ")
            % missing.join(QLatin1String(", ")) % QLatin1String(". ");
    if (m_vision != ColorMath::Vision::Normal)
        text += QLatin1String("The sheet is shown as ") % ColorMath::visionName(m_vision)
            % QLatin1String(" eyes see it; values and ratios are the theme's. ");
    return text
        % QLatin1String("A ratio is the contrast with that background by WCAG 2.1. Colours of text "
                        "are graded: AAA from 7:1, AA from 4.5:1, AA for large text from 3:1.");
}
