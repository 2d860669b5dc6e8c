// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/theme/themevalues.h>

#include <analysis/theme/memorysettings.h>

#include <QSettings>

namespace
{

// A number of stops that is out of all proportion to the file would only cost time: each stop
// needs two keys of its own, so a gradient with more stops than keys is invalid anyway.
void readStops(QSettings *settings, int keyCount, ThemeValue *value)
{
    value->gradientSize = settings->beginReadArray(value->key);
    const int count = qMin(value->gradientSize, keyCount);
    for (int i = 0; i < count; ++i) {
        settings->setArrayIndex(i);
        const QString position = QStringLiteral("pos");
        const QString color = QStringLiteral("color");
        value->stops.append({settings->contains(position), settings->contains(color),
                             settings->value(position), settings->value(color)});
    }
    settings->endArray();
}

} // namespace

bool ThemeValue::isValidGradient() const
{
    if (gradientSize < 1 || stops.size() < gradientSize)
        return false;
    for (const GradientStopValue &stop : stops) {
        if (!stop.hasPosition || !stop.hasColor)
            return false;
    }
    return true;
}

ThemeValues ThemeValues::read(const QByteArray &content)
{
    ThemeValues result;
    MemorySettings memory(content);
    QSettings &settings = memory.settings();
    const QString nameKey = QStringLiteral("ThemeName");
    result.hasDisplayName = settings.contains(nameKey);
    result.displayName = settings.value(nameKey);
    for (const Kind kind : allKinds) {
        settings.beginGroup(sectionName(kind));
        const QStringList keys = settings.allKeys();
        for (const QString &key : keys) {
            ThemeValue value;
            value.kind = kind;
            value.key = key;
            value.value = settings.value(key);
            if (kind == Kind::Gradient)
                readStops(&settings, int(keys.size()), &value);
            result.values.append(value);
        }
        settings.endGroup();
    }
    const QStringList keys = settings.allKeys();
    for (const QString &key : keys) {
        if (settings.value(key).userType() == QMetaType::QStringList)
            result.listKeys << key;
    }
    return result;
}
