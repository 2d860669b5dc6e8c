// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>
#include <format/applicationkeys.h>

#include <QFileInfo>

#include <algorithm>

bool ColorText::isNamedTooEarly(const ThemeStack &stack) const
{
    return !isResolved && stack.find(Kind::Palette, text());
}

// A palette entry is stored once and stays, so whether it was there in time is a matter of order.
QVector<ColorText> colorTexts(const ThemeStack &stack)
{
    QVector<ColorText> texts;
    for (int i = 0; i < stack.definitions().size(); ++i) {
        const Definition &definition = stack.definitions().at(i);
        const auto append = [&](const ThemeFileEntry *entry, const QVariant &value) {
            const int palette = stack.stored(Kind::Palette).value(value.toString(), -1);
            texts.append({&definition, entry, value, palette >= 0 && palette < i});
        };
        if (definition.fate == Definition::Fate::Exists)
            continue;
        if (definition.kind() == Kind::Palette || definition.kind() == Kind::Color)
            append(definition.entry(), definition.value->value);
        for (int stop = 0; stop < definition.value->stops.size(); ++stop) {
            const GradientStopValue &value = definition.value->stops.at(stop);
            const ThemeFileEntry *entry = stopEntry(definition, stop, QStringLiteral("color"));
            if (value.hasPosition && value.hasColor && entry)
                append(entry, value.color);
        }
    }
    return texts;
}

const ThemeFileEntry *stopEntry(const Definition &gradient, int stop, const QString &key)
{
    return gradient.layer->file.find(sectionName(Kind::Gradient) % QLatin1Char('/') % gradient.key()
                                     % QLatin1Char('/') % QString::number(stop + 1)
                                     % QLatin1Char('/') % key);
}

QVector<const Definition *> definitionsWithoutNumber(const ThemeProject &project, Kind kind)
{
    QVector<const Definition *> definitions;
    for (const ThemeStack *theme : project.allThemes()) {
        for (const Definition &definition : theme->definitions()) {
            bool isNumber = false;
            definition.value->value.toLongLong(&isNumber);
            if (definition.kind() == kind && !definition.value->isList() && !isNumber
                && definition.fate != Definition::Fate::Exists)
                definitions.append(&definition);
        }
    }
    return definitions;
}

QVector<ThemeImage> themeImages(const ThemeProject &project)
{
    QVector<ThemeImage> images;
    for (const ThemeStack *theme : project.allThemes()) {
        for (const int index : theme->stored(Kind::ImageFile)) {
            const Definition &definition = theme->definitions().at(index);
            const QString path =
                imageFilePath(project.options().applicationFolder, definition.value->text());
            if (!isResourcePath(path))
                images.append({&definition, path});
        }
    }
    return images;
}

bool isDefined(const ThemeProject &project, const QString &key)
{
    const std::vector<const ThemeStack *> &themes = project.allThemes();
    return std::any_of(themes.cbegin(), themes.cend(), [&key](const ThemeStack *theme) {
        return kindInStyleSheets(*theme, key).has_value();
    });
}

bool isBuiltInTemplate(const ThemeProject &project, int offset)
{
    return project.templates().fileAt(offset).input.path().startsWith(QLatin1String(":/"));
}

bool isGivenByApplication(const ThemeProject &project, const TemplateToken &token,
                          bool isWithoutImages)
{
    const bool isGiven = (token.kind == Kind::ImageFile && isWithoutImages)
        || (token.kind == Kind::Color && isOptionalColor(token.key));
    return isGiven && isBuiltInTemplate(project, token.offset);
}

QString firstOfMany(const QStringList &keys)
{
    constexpr int shown = 3;
    const QString first = keys.mid(0, shown).join(QLatin1String(", "));
    return keys.size() <= shown ? first
                                : first % QStringLiteral(" and %1 more").arg(keys.size() - shown);
}

QStringList storedKeys(const ThemeStack &stack, Kind kind)
{
    return stack.stored(kind).keys();
}

TextPosition sectionPosition(const ThemeFile &file, Kind kind)
{
    for (const ThemeFileSection &section : file.sections()) {
        if (section.name == sectionName(kind))
            return section.position;
    }
    return {1, 1};
}
