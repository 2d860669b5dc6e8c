// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/explanation.h>

#include <analysis/suggestion.h>
#include <format/applicationkeys.h>

#include <QFileInfo>

#include <algorithm>
#include <iterator>

namespace
{

QString shortPlace(const Definition &definition)
{
    return QFileInfo(definition.layer->file.path()).fileName() % QLatin1String(", line ")
        % QString::number(definition.entry()->keyPosition.line);
}

QString articleFor(const QString &noun)
{
    return QLatin1String(QStringLiteral("aeiou").contains(noun.at(0)) ? "an " : "a ") % noun;
}

using Topic = ExplanationStep::Topic;

ExplanationStep step(Topic topic, const ThemeFile &file, const ThemeFileEntry &entry,
                     const QString &value)
{
    return {topic,
            {file.path(), entry.keyPosition},
            QLatin1Char('[') % entry.section() % QLatin1String("] ") % entry.name()
                % QLatin1Char('=') % value};
}

ExplanationStep step(Topic topic, const Definition &definition)
{
    const QString value =
        definition.value->isList() ? QStringLiteral("(a list)") : definition.value->text();
    return step(topic, definition.layer->file, *definition.entry(), value);
}

} // namespace

// One hop after the other: a file of 16 MB has room for a million of them.
QVector<ExplanationStep> originSteps(const ThemeStack &theme, const Definition &definition)
{
    QVector<ExplanationStep> steps;
    const Definition *each = &definition;
    const auto append = [&](const Definition &origin) {
        steps.append(step(Topic::Origin, origin));
        if (origin.kind() == Kind::Palette)
            steps.last().paletteEntry = origin.key();
    };
    while (each->palette >= 0) {
        append(*each);
        each = &theme.definitions().at(each->palette);
    }
    append(*each);
    const QString &text = each->value->text();
    const bool isColor = each->kind() == Kind::Color || each->kind() == Kind::Palette;
    if (isColor && !isHexadecimalColor(text)) {
        const bool isLate = theme.find(Kind::Palette, text) != nullptr;
        const QString note = isLate
            ? QStringLiteral("the palette entry of that name is stored only later, so it is black")
            : QStringLiteral("neither a palette entry nor a hexadecimal colour, so it is black");
        steps.append({Topic::Note, {}, note});
    }
    if (each->kind() == Kind::Gradient) {
        const QString prefix = each->entry()->key % QLatin1Char('/');
        for (const ThemeFileEntry &entry : each->layer->file.entries()) {
            if (entry.isEffective && entry.key.startsWith(prefix))
                steps.append(step(Topic::Origin, each->layer->file, entry,
                                  QString::fromUtf8(entry.rawValue.trimmed())));
        }
    }
    return steps;
}

Explanation::Explanation(const ThemeProject &project, const ThemeStack &theme, const QString &key)
    : m_input(project)
    , m_theme(theme)
    , m_key(key)
{
    const auto values = storedValues(theme, project.options().applicationFolder);
    for (const StoredValue &value : values) {
        if (value.key() == key)
            tellValue(value);
    }
    if (!m_isDefined)
        tellUnknown();
    tellWithoutEffect();
    tellUsers();
    tellTokens();
}

void Explanation::add(Topic topic, const QString &text, const Place &place)
{
    m_steps.append({topic, place, text});
}

void Explanation::tellValue(const StoredValue &value)
{
    m_isDefined = true;
    add(Topic::Value,
        m_key % QLatin1String(" is ") % articleFor(nounOf(value.kind())) % QLatin1String(": ")
            % valueText(value.value));
    m_steps += originSteps(m_theme, *value.definition);
    if (value.isHidden)
        add(Topic::Note,
            QStringLiteral("hidden from style sheets by a value of another kind, see below"));
}

void Explanation::tellUnknown()
{
    QStringList names;
    for (const Definition &definition : m_theme.definitions())
        names << definition.key();
    const QString question = names.contains(m_key) ? QString() : Suggestion(names).question(m_key);
    add(Topic::Statement,
        QLatin1String("The theme ") % m_theme.name() % QLatin1String(" has no value called ")
            % m_key % question);
}

QString Explanation::reasonOf(const Definition &definition) const
{
    switch (definition.fate) {
    case Definition::Fate::Stored:
        break;
    case Definition::Fate::Replaced:
        return shortPlace(m_theme.definitions().at(definition.other))
            % QLatin1String(" sets the flag again, and of flags the last file's counts");
    case Definition::Fate::Exists: {
        const Definition &other = m_theme.definitions().at(definition.other);
        return other.kind() == definition.kind()
            ? shortPlace(other) % QLatin1String(" has the key already, and the first file's counts")
            : shortPlace(other) % QLatin1String(" has an integer of this name, which keeps it out");
    }
    case Definition::Fate::Invalid:
        return QStringLiteral(
            "not a whole gradient: it needs a size, and \"pos\" and \"color\" for "
            "every stop");
    }
    return {};
}

void Explanation::tellWithoutEffect()
{
    for (const Definition &definition : m_theme.definitions()) {
        if (definition.key() != m_key || definition.fate == Definition::Fate::Stored)
            continue;
        m_steps.append(step(Topic::Ineffective, definition));
        add(Topic::Note, reasonOf(definition));
    }
    QVector<const ThemeLayer *> layers{&m_theme.base()};
    if (m_theme.own() && m_theme.own() != &m_theme.base())
        layers << m_theme.own();
    for (const ThemeLayer *layer : qAsConst(layers)) {
        const bool isRead = layer == &m_theme.base() || m_theme.isOwnRead();
        for (const ThemeFileEntry &entry : layer->file.entries()) {
            if (entry.name() != m_key || (isRead && entry.isEffective))
                continue;
            m_steps.append(step(Topic::Ineffective, layer->file, entry,
                                QString::fromUtf8(entry.rawValue.trimmed())));
            add(Topic::Note,
                isRead ? QStringLiteral("the key is given again in the same file")
                       : QStringLiteral("the file is never read: the default theme is itself "
                                        "called \"%1\"")
                             .arg(m_theme.displayName()));
        }
    }
}

void Explanation::tellUsers()
{
    const int entry = m_theme.stored(Kind::Palette).value(m_key, -1);
    if (entry < 0)
        return;
    int count = 0;
    for (int i = 0; i < m_theme.definitions().size(); ++i) {
        const Definition &definition = m_theme.definitions().at(i);
        if (definition.fate != Definition::Fate::Stored
            || !m_theme.paletteEntriesOf(i).contains(entry))
            continue;
        ++count;
        m_steps.append(step(Topic::Taker, definition));
    }
    if (count == 0)
        add(Topic::Statement, QStringLiteral("No colour, palette entry or gradient takes it."));
}

void Explanation::tellTokens()
{
    const TemplateText &templates = m_input.templates();
    const StyleRules &rules = m_input.styleRules();
    int count = 0;
    for (const TemplateToken &token : templates.tokens()) {
        if (token.key != m_key)
            continue;
        ++count;
        const StyleRule *rule = rules.ruleAt(token.offset);
        const StyleDeclaration *declaration = rule ? rule->declarationAt(token.offset) : nullptr;
        QString where = rules.isComment(token.offset) ? QStringLiteral("in a comment")
            : declaration
            ? rule->selector % QLatin1String(" { ") % declaration->property % QLatin1String(" }")
            : QStringLiteral("outside a declaration");
        if (m_isDefined && !m_theme.find(token.kind, m_key))
            where +=
                QLatin1String(", by ") % articleFor(nounOf(token.kind)) % QLatin1String(" token");
        add(Topic::Token, where, templates.placeAt(token.offset));
    }
    const bool isVisible = std::any_of(std::begin(allKinds), std::end(allKinds), [&](Kind kind) {
        return isInStyleSheets(kind) && m_theme.find(kind, m_key);
    });
    if (m_isDefined && !isVisible)
        add(Topic::Statement,
            QStringLiteral("Style sheets see neither palette entries nor gradients."));
    else if (count == 0)
        add(Topic::Statement,
            m_isDefined && isOptionalColor(m_key)
                ? QStringLiteral("No template uses it; the application library takes it.")
                : QStringLiteral("No template uses it."));
}
