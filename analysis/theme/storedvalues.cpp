// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/theme/storedvalues.h>

#include <hvtheme/workabletheming.h>

#include <QStringList>

namespace
{

QVariant valueOf(const Definition &definition, const ThemeStack &stack,
                 const QString &applicationFolder)
{
    const HV::WorkableTheme &theme = stack.theme();
    const QString key = definition.key();
    switch (definition.kind()) {
    case Kind::Palette:
        return theme.readNamedColor(key).first;
    case Kind::Color:
        return theme.color(key);
    case Kind::ImageFile:
        return imageFilePath(applicationFolder, definition.value->text());
    case Kind::Gradient:
        return QVariant::fromValue(theme.gradient(key));
    case Kind::Flag:
        return theme.flag(key);
    case Kind::Integer:
        return theme.integer(key);
    }
    return {};
}

bool isHidden(const Definition &definition, const ThemeStack &stack)
{
    const std::optional<Kind> seen = kindInStyleSheets(stack, definition.key());
    return isInStyleSheets(definition.kind()) && seen != definition.kind();
}

} // namespace

QVector<StoredValue> storedValues(const ThemeStack &theme, const QString &applicationFolder,
                                  Kind kind)
{
    QVector<StoredValue> values;
    QStringList keys = theme.stored(kind).keys();
    keys.sort();
    for (const QString &key : qAsConst(keys)) {
        StoredValue stored;
        stored.definition = theme.find(kind, key);
        stored.value = valueOf(*stored.definition, theme, applicationFolder);
        if (stored.definition->palette >= 0)
            stored.palette = theme.definitions().at(stored.definition->palette).key();
        stored.isHidden = isHidden(*stored.definition, theme);
        values.append(stored);
    }
    return values;
}

QVector<StoredValue> storedValues(const ThemeStack &theme, const QString &applicationFolder)
{
    QVector<StoredValue> values;
    for (const Kind kind : allKinds)
        values += storedValues(theme, applicationFolder, kind);
    return values;
}

// QVariant compares types that it does not know, such as gradients, by address.
bool isSameValue(const QVariant &first, const QVariant &second)
{
    const int gradient = qMetaTypeId<QGradientStops>();
    if (first.userType() == gradient && second.userType() == gradient)
        return first.value<QGradientStops>() == second.value<QGradientStops>();
    return first == second;
}

QString numberText(double number)
{
    return QString::number(number, 'g', 6);
}

QString valueText(const QVariant &value)
{
    if (value.userType() != qMetaTypeId<QGradientStops>())
        return value.toString();
    QStringList stops;
    const auto gradient = value.value<QGradientStops>();
    for (const QGradientStop &stop : gradient)
        stops << numberText(stop.first) % QLatin1Char(' ') % QVariant(stop.second).toString();
    return stops.join(QLatin1String(", "));
}
