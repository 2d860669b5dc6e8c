// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <inspector/inspectedsheet.h>

#include <analysis/messagelog.h>
#include <analysis/style/styleparser.h>
#include <format/quotedurls.h>
#include <hvtheme/workabletheming.h>

#include <QApplication>

#include <algorithm>

namespace
{

QVector<int> lineStartsOf(const QString &text)
{
    QVector<int> starts{0};
    for (int i = int(text.indexOf(QLatin1Char('\n'))); i >= 0;
         i = int(text.indexOf(QLatin1Char('\n'), i + 1)))
        starts.append(i + 1);
    return starts;
}

// Returns -1 if no rule has the offset: one may begin in a template and end in the next one.
int ruleIndexAt(const QVector<StyleRule> &rules, int offset)
{
    const auto after =
        std::upper_bound(rules.cbegin(), rules.cend(), offset,
                         [](int wanted, const StyleRule &rule) { return wanted < rule.start; });
    const int index = int(after - rules.cbegin()) - 1;
    return index >= 0 && offset < rules.at(index).end ? index : -1;
}

} // namespace

void sortAsWritten(QVector<StoredValue> *values, const ThemeStack &theme)
{
    const auto place = [&](const StoredValue &value) {
        return std::make_pair(value.definition->layer != &theme.base(),
                              value.definition->entry()->start);
    };
    std::sort(values->begin(), values->end(),
              [&](const StoredValue &one, const StoredValue &other) {
                  return place(one) < place(other);
              });
}

// A part of the style sheet that one template was made into. Values have no braces and
// no semicolons, so the rules of both correspond one by one.
struct InspectedSheet::Section {
    TemplateText templates;
    StyleRules rules; // of the templates
    QVector<StyleRule> finished; // the same as they stand in the style sheet
    int start = 0;
    int end = 0;
};

InspectedSheet::InspectedSheet(const QString &styleSheet, const InspectedTheme &theme)
    : m_text(styleSheet)
    , m_lineStarts(lineStartsOf(styleSheet))
    , m_theme(theme)
    , m_readSize(int(StyleParser::readPart(styleSheet).size()))
    , m_cascade(styleSheet.left(m_readSize))
    , m_rules(styleSheet)
{
    for (const InspectedTheme::Template &source : theme.templates)
        addSection(source);
}

InspectedSheet::~InspectedSheet() = default;

std::unique_ptr<InspectedSheet> InspectedSheet::inForce()
{
    return std::make_unique<InspectedSheet>(qApp->styleSheet(), InspectedTheme::inForce());
}

void InspectedSheet::addSection(const InspectedTheme::Template &source)
{
    QString error;
    const std::optional<TemplateText> templates =
        TemplateText::read({source.file}, source.prefix, &error);
    if (!templates) {
        m_problem = error;
        return;
    }
    const QString finished = withQuotedUrls(
        finishedStyleSheet(source.prefix, m_theme.values, templates->text()).text, m_theme.values);
    const int from = m_sections.empty() ? 0 : m_sections.back()->end;
    const int start = finished.isEmpty() ? -1 : int(m_text.indexOf(finished, from));
    if (start < 0)
        return; // the program has replaced it, or a file has changed since
    auto section = std::make_unique<Section>(Section{
        *templates, StyleRules(templates->text()), {}, start, start + int(finished.size())});
    for (const StyleRule &rule : m_rules.rules()) {
        if (rule.start >= section->start && rule.end <= section->end)
            section->finished.append(rule);
    }
    const QVector<StyleRule> &written = section->rules.rules();
    const bool isSame =
        std::equal(written.cbegin(), written.cend(), section->finished.cbegin(),
                   section->finished.cend(), [](const StyleRule &one, const StyleRule &other) {
                       return one.declarations.size() == other.declarations.size();
                   });
    if (isSame)
        m_sections.push_back(std::move(section));
}

const InspectedSheet::Section *InspectedSheet::sectionAt(int offset) const
{
    for (const auto &section : m_sections) {
        if (offset >= section->start && offset < section->end)
            return section.get();
    }
    return nullptr;
}

const ThemeProject *InspectedSheet::project() const
{
    if (m_isProjectRead || m_theme.folder.isNull())
        return m_project.get();
    m_isProjectRead = true;
    ThemeProjectOptions options;
    options.folder = m_theme.folder;
    options.suffix = m_theme.suffix;
    options.themes = QStringList(m_theme.name);
    options.contents = m_theme.unsavedTexts;
    options.applicationFolder = applicationFolder();
    options.templates.clear();
    for (const InspectedTheme::Template &source : m_theme.templates) {
        if (source.prefix == m_theme.templates.constFirst().prefix)
            options.templates << source.file;
    }
    if (!m_theme.templates.isEmpty())
        options.prefix = m_theme.templates.constFirst().prefix;
    const MessageLog silence; // what the theme lacks was said when it came into force
    m_project = ThemeProject::read(options, &m_problem);
    return m_project.get();
}

QString InspectedSheet::applicationFolder() const
{
    return m_theme.applicationFolder.isNull() ? QCoreApplication::applicationDirPath()
                                              : m_theme.applicationFolder;
}

Place InspectedSheet::placeIn(int offset) const
{
    const auto line =
        std::upper_bound(m_lineStarts.cbegin() + 1, m_lineStarts.cend(), offset); // 0 is a start
    return {QString(), {int(line - m_lineStarts.cbegin()), offset - *std::prev(line) + 1}};
}

Place InspectedSheet::unreadPlace() const
{
    return m_readSize == m_text.size() ? Place() : placeOfRule(m_readSize);
}

QString InspectedSheet::problem() const
{
    project();
    return m_problem;
}

DeclarationOrigin InspectedSheet::originOf(int offset) const
{
    DeclarationOrigin origin{placeIn(offset), {}, {}};
    const StyleRule *rule = m_rules.ruleAt(offset);
    const StyleDeclaration *declaration = rule ? rule->declarationAt(offset) : nullptr;
    if (!declaration)
        return origin;
    origin.value = declaration->value;
    const Section *section = sectionAt(offset);
    if (!section)
        return origin;
    const int number = ruleIndexAt(section->finished, offset);
    if (number < 0)
        return origin;
    const StyleRule &finished = section->finished.at(number);
    int index = 0;
    while (finished.declarations.at(index).start != declaration->start)
        ++index;
    const StyleDeclaration &written = section->rules.rules().at(number).declarations.at(index);
    origin.place = section->templates.placeAt(written.start);
    origin.value = written.value;
    origin.tokens = Tokens::find(written.value, section->templates.prefix());
    return origin;
}

Place InspectedSheet::placeOfRule(int offset) const
{
    const Section *section = sectionAt(offset);
    if (!section)
        return placeIn(offset);
    const int number = ruleIndexAt(section->finished, offset);
    return number < 0 ? placeIn(offset)
                      : section->templates.placeAt(section->rules.rules().at(number).start);
}

// The same few keys come again and again.
ValueChain InspectedSheet::chain(const TemplateToken &token, const QString &prefix) const
{
    const QString name = Tokens::opening(prefix, token.kind) % token.key;
    auto known = m_chains.find(name);
    if (known == m_chains.end())
        known = m_chains.insert(name, madeChain(token, prefix));
    known->token = token;
    return *known;
}

ValueChain InspectedSheet::madeChain(const TemplateToken &token, const QString &prefix) const
{
    ValueChain chain{token, prefix, m_theme.values.value(token.key).toString(), {}, {}};
    const QVariant value = m_theme.values.value(token.key);
    if (value.userType() == QMetaType::QColor)
        chain.value = valueText(value);
    const ThemeProject *files = project();
    if (!files)
        return chain;
    const ThemeStack &stack = files->theme(m_theme.name);
    const Explanation explanation(*files, stack, token.key);
    using Topic = ExplanationStep::Topic;
    bool isOurs = false;
    for (const ExplanationStep &step : explanation.steps()) {
        if (step.topic != Topic::Note)
            isOurs = step.topic == Topic::Origin || step.topic == Topic::Ineffective;
        if (isOurs)
            chain.steps.append(step);
    }
    if (!explanation.isDefined())
        chain.steps.prepend({Topic::Statement,
                             {},
                             QStringLiteral("The theme's files do not have it: the application "
                                            "library completes the look.")});
    tellAccent(token.kind, token.key, &chain);
    const Definition *definition = stack.find(token.kind, token.key);
    while (definition && definition->palette >= 0) {
        definition = &stack.definitions().at(definition->palette);
        chain.palette << definition->key();
        tellAccent(Kind::Palette, definition->key(), &chain);
    }
    return chain;
}

void InspectedSheet::tellAccent(Kind kind, const QString &key, ValueChain *chain) const
{
    const QColor shown = colorOfAccent(kind, key);
    if (!shown.isValid())
        return;
    chain->steps.append({ExplanationStep::Topic::Statement,
                         {},
                         QStringLiteral("The accent %1 makes %2 of %3.")
                             .arg(m_theme.accent.name(), valueText(shown), key)});
}

QVector<ValueChain> InspectedSheet::chains(const DeclarationOrigin &origin) const
{
    QVector<ValueChain> chains;
    if (!origin.isTemplate())
        return chains;
    QString prefix;
    for (const InspectedTheme::Template &source : m_theme.templates) {
        if (source.file == origin.place.file)
            prefix = source.prefix;
    }
    for (const TemplateToken &token : origin.tokens)
        chains.append(chain(token, prefix));
    return chains;
}

// Of all keys at once, as all of the text is looked through for that.
QSet<int> InspectedSheet::declarationsOfKey(const QString &key) const
{
    for (; m_sectionsRead < m_sections.size(); ++m_sectionsRead) {
        const Section &section = *m_sections[m_sectionsRead];
        for (int i = 0; i < section.finished.size(); ++i) {
            const auto &written = section.rules.rules().at(i).declarations;
            for (int j = 0; j < written.size(); ++j) {
                const auto tokens = Tokens::find(written.at(j).value, section.templates.prefix());
                for (const TemplateToken &token : tokens)
                    m_users[token.key] << section.finished.at(i).declarations.at(j).start;
            }
        }
    }
    return m_users.value(key);
}

QSet<int> InspectedSheet::declarationsOfPalette(const QString &entry) const
{
    QSet<int> offsets;
    const ThemeProject *files = project();
    if (!files)
        return offsets;
    const ThemeStack &stack = files->theme(m_theme.name);
    const QHash<QString, int> &colors = stack.stored(Kind::Color);
    for (auto it = colors.cbegin(); it != colors.cend(); ++it) {
        const Definition *definition = &stack.definitions().at(*it);
        bool isUser = false;
        while (definition->palette >= 0) {
            definition = &stack.definitions().at(definition->palette);
            isUser = isUser || definition->key() == entry;
        }
        if (isUser)
            offsets += declarationsOfKey(it.key());
    }
    return offsets;
}

QSet<int> InspectedSheet::declarationsOfRule(int offset) const
{
    QSet<int> offsets;
    const StyleRule *rule = m_rules.ruleAt(offset);
    if (!rule)
        return offsets;
    for (const StyleDeclaration &declaration : rule->declarations)
        offsets << declaration.start;
    return offsets;
}

QVector<QPair<QString, QColor>> InspectedSheet::palette() const
{
    QVector<QPair<QString, QColor>> entries;
    const ThemeProject *files = project();
    if (!files)
        return entries;
    const ThemeStack &theme = files->theme(m_theme.name);
    auto values = storedValues(theme, files->options().applicationFolder, Kind::Palette);
    sortAsWritten(&values, theme);
    for (const StoredValue &value : qAsConst(values)) {
        const QColor ofAccent = colorOfAccent(Kind::Palette, value.key());
        entries.append({value.key(), ofAccent.isValid() ? ofAccent : value.value.value<QColor>()});
    }
    return entries;
}

QColor InspectedSheet::colorOfAccent(Kind kind, const QString &key) const
{
    const bool isColor = kind == Kind::Palette || kind == Kind::Color;
    if (!isColor || !m_theme.accent.isValid() || !m_theme.entry || !project())
        return {};
    const ThemeStack &theme = project()->theme(m_theme.name);
    if (!theme.find(kind, key))
        return {};
    const MessageLog silence; // the file may have got an entry that the program does not know yet
    const bool isEntry = kind == Kind::Palette;
    const QColor written =
        isEntry ? theme.theme().readNamedColor(key).first : theme.theme().color(key);
    const auto shown = isEntry ? m_theme.entry(key) : m_theme.values.value(key).value<QColor>();
    return shown.isValid() && shown.rgba() != written.rgba() ? shown : QColor();
}
