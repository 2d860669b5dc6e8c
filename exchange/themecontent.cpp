// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <exchange/themecontent.h>

#include <analysis/theme/storedvalues.h>

namespace Exchange
{

ThemeContent themeContent(const ThemeStack &theme)
{
    ThemeContent content;
    content.name = theme.name();
    content.displayName = theme.displayName();
    const auto values = storedValues(theme, QString());
    for (const StoredValue &value : values) {
        const QString key = value.key();
        switch (value.kind()) {
        case Kind::Palette:
            content.palette.insert(key, value.value.value<QColor>());
            break;
        case Kind::Color:
            content.colors.insert(key, {value.value.value<QColor>(), value.palette});
            break;
        case Kind::ImageFile:
            content.imageFiles.insert(key, value.definition->value->text());
            break;
        case Kind::Gradient:
            content.gradients.insert(key, value.value.value<QGradientStops>());
            break;
        case Kind::Flag:
            content.flags.insert(key, value.value.toBool());
            break;
        case Kind::Integer:
            content.integers.insert(key, value.value.toLongLong());
            break;
        }
    }
    return content;
}

} // namespace Exchange
