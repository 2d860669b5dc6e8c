// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/theme/themestack.h>

#include <analysis/messagelog.h>
#include <analysis/theme/memorysettings.h>
#include <hvtheme/workabletheming.h>

const ThemeFileEntry *Definition::entry() const
{
    return layer->file.find(sectionName(kind()) % QLatin1Char('/') % key());
}

ThemeStack::ThemeStack(const QString &name, const ThemeLayer *base, const ThemeLayer *own)
    : m_name(name)
    , m_base(base)
    , m_own(own)
    , m_theme(std::make_unique<HV::WorkableTheme>())
{
    const MessageLog log; // what the library says of a theme is found again by the rules
    load(*base);
    if (own) {
        m_isOwnRead = QString::compare(m_theme->displayName(), name, Qt::CaseInsensitive) != 0;
        if (m_isOwnRead)
            load(*own);
    }
    m_theme->values();
}

// Not with HV::changeTheme(): it takes paths only, and another file if a path holds "%1".
void ThemeStack::load(const ThemeLayer &layer)
{
    MemorySettings memory(layer.file.content());
    m_theme->readSettings(memory.settings());
    read(layer);
}

ThemeStack::~ThemeStack() = default;

QSet<int> ThemeStack::paletteEntriesOf(int definition) const
{
    const Definition &taker = m_definitions.at(definition);
    QSet<int> entries{taker.palette};
    for (const GradientStopValue &stop : taker.value->stops)
        entries.insert(m_stored[int(Kind::Palette)].value(stop.color.toString(), -1));
    QSet<int> earlier;
    for (const int entry : qAsConst(entries)) {
        if (entry >= 0 && entry < definition)
            earlier.insert(entry);
    }
    return earlier;
}

QString ThemeStack::displayName() const
{
    return m_theme->displayName();
}

// The duplicate test of flags looks among the integers; of all other kinds among their own.
void ThemeStack::read(const ThemeLayer &layer)
{
    for (const ThemeValue &value : layer.values.values) {
        Definition definition;
        definition.layer = &layer;
        definition.value = &value;
        const int index = int(m_definitions.size());
        QHash<QString, int> &own = m_stored[int(value.kind)];
        const QHash<QString, int> &taken =
            value.kind == Kind::Flag ? m_stored[int(Kind::Integer)] : own;
        const int holder = taken.value(value.key, -1);
        if (value.kind == Kind::Palette || value.kind == Kind::Color)
            definition.palette = m_stored[int(Kind::Palette)].value(value.text(), -1);
        if (holder >= 0) {
            definition.fate = Definition::Fate::Exists;
            definition.other = holder;
        } else if (value.kind == Kind::Gradient && !value.isValidGradient()) {
            definition.fate = Definition::Fate::Invalid;
        } else {
            const int replaced = own.value(value.key, -1);
            if (replaced >= 0) {
                m_definitions[replaced].fate = Definition::Fate::Replaced;
                m_definitions[replaced].other = index;
            }
            own.insert(value.key, index);
        }
        m_definitions.append(definition);
    }
}

const Definition *ThemeStack::find(Kind kind, const QString &key) const
{
    const int index = stored(kind).value(key, -1);
    return index < 0 ? nullptr : &m_definitions.at(index);
}

QVariantMap ThemeStack::values(const QString &applicationFolder) const
{
    QVariantMap values = m_theme->values();
    const QHash<QString, int> &images = stored(Kind::ImageFile);
    for (auto it = images.cbegin(); it != images.cend(); ++it) {
        const QString path = m_definitions.at(*it).value->text();
        values.insert(it.key(), imageFilePath(applicationFolder, path));
    }
    return values;
}

std::optional<Kind> kindInStyleSheets(const ThemeStack &stack, const QString &key)
{
    for (const Kind kind : styleSheetPrecedence) {
        if (stack.stored(kind).contains(key))
            return kind;
    }
    return std::nullopt;
}

bool isHexadecimalColor(const QString &text)
{
    const QLatin1Char hash('#');
    return QColor::isValidColor(text.startsWith(hash) ? text : hash + text);
}
