// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

#include <algorithm>
#include <tuple>

// clang-format off
const QVector<Rule> &allRules()
{
    static const QVector<Rule> rules = {
        {"required-key",         Severity::Error,   "A required key is not set.", Rules::requiredKey},
        {"key-exists",           Severity::Error,   "The default file has the key already, so this value has no effect.", Rules::keyExists},
        {"invalid-color",        Severity::Error,   "A colour text is neither a palette entry nor a hexadecimal colour.", Rules::invalidColor},
        {"palette-order",        Severity::Error,   "A palette entry is named before it is stored.", Rules::paletteOrder},
        {"invalid-gradient",     Severity::Error,   "A gradient is not whole and is dropped.", Rules::invalidGradient},
        {"flag-kept-out",        Severity::Error,   "An integer of its name keeps a flag out.", Rules::flagKeptOut},

        {"flag-number",          Severity::Error,   "A flag is not a decimal number and is stored as false.", Rules::flagNumber},
        {"integer-number",       Severity::Error,   "An integer is not a decimal number and is stored as 0.", Rules::integerNumber},
        {"number-wraps",         Severity::Error,   "A number does not fit into 32 bits and wraps.", Rules::numberWraps},
        {"gradient-position",    Severity::Warning, "A position in a gradient is no number, out of range or out of order.", Rules::gradientPosition},
        {"value-list",           Severity::Error,   "Commas turn a value into a list, which is stored as nothing.", Rules::valueList},
        {"duplicate-key",        Severity::Warning, "A key is given twice in one file.", Rules::duplicateKey},
        {"unknown-section",      Severity::Warning, "The library does not read the section or top-level key.", Rules::unknownSection},
        {"skipped-line",         Severity::Warning, "A line is neither a value nor a section nor a comment.", Rules::skippedLine},
        {"garbled-text",         Severity::Warning, "Text that is not ASCII comes out garbled.", Rules::garbledText},
        {"shared-name",          Severity::Warning, "Values of several kinds have one name, and style sheets see one of them.", Rules::sharedName},
        {"theme-never-read",     Severity::Error,   "The default file's display name keeps a theme's file from being read.", Rules::themeNeverRead},
        {"default-read-twice",   Severity::Info,    "Asking for the theme \"default\" reads the default file twice.", Rules::defaultReadTwice},
        {"theme-name",           Severity::Warning, "A theme file has no ThemeName.", Rules::themeName},

        {"undefined-token",      Severity::Error,   "No theme defines the key of a token.", Rules::undefinedToken},
        {"missing-value",        Severity::Warning, "A theme lacks a value that templates use and other themes have.", Rules::missingValue},
        {"token-kind",           Severity::Warning, "A token names a key of another kind.", Rules::tokenKind},
        {"swallowed-unit",       Severity::Error,   "An integer token takes its unit for a part of the key.", Rules::swallowedUnit},
        {"stray-separator",      Severity::Error,   "A \"|\" behind a colour or image token stays in the style sheet.", Rules::straySeparator},
        {"endless-substitution", Severity::Error,   "A value reproduces its own token, so substitution never ends.", Rules::endlessSubstitution},
        {"template-encoding",    Severity::Error,   "A template is not UTF-8 or holds a NUL byte.", Rules::templateEncoding},
        {"style-sheet-syntax",   Severity::Error,   "Qt cannot parse the finished style sheet.", Rules::styleSheetSyntax},
        {"unterminated-comment", Severity::Error,   "A template's comment is not closed and swallows rules.", Rules::unterminatedComment},
        {"unknown-class",        Severity::Warning, "A selector names a class that is nearly one of Qt's.", Rules::unknownClass},
        {"unknown-subcontrol",   Severity::Warning, "A selector names a sub-control that no widget has.", Rules::unknownSubcontrol},
        {"unknown-pseudo-state", Severity::Warning, "A selector names a state that does not exist.", Rules::unknownPseudoState},
        {"unknown-property",     Severity::Warning, "Qt does not know a property.", Rules::unknownProperty},

        {"image-missing",        Severity::Error,   "An image file does not exist.", Rules::imageMissing},
        {"image-unreadable",     Severity::Error,   "An image file cannot be read or decoded.", Rules::imageUnreadable},
        {"image-outside",        Severity::Info,    "An image path leaves the application's folder.", Rules::imageOutside},

        {"unused-key",           Severity::Info,    "No template uses a colour, image file or integer.", Rules::unusedKey},
        {"unused-palette",       Severity::Info,    "Nothing uses a palette entry.", Rules::unusedPalette},

        {"contrast",             Severity::Warning, "Text and its background are too close.", Rules::contrast},
    };
    return rules;
}
// clang-format on

QVector<Finding> runRules(const ThemeProject &input, const QStringList &disabled)
{
    Report report;
    for (const Rule &rule : allRules()) {
        if (disabled.contains(QLatin1String(rule.name)))
            continue;
        report.begin(rule);
        rule.check(input, report);
    }
    return report.findings();
}

void Report::add(const QString &file, TextPosition position, const QString &message)
{
    add(file, position, message, m_rule->severity);
}

void Report::add(const QString &file, TextPosition position, const QString &message,
                 Severity severity)
{
    const QString rule = QLatin1String(m_rule->name);
    const QString identity = QStringLiteral("%1:%2:%3:%4:%5")
                                 .arg(file)
                                 .arg(position.line)
                                 .arg(position.column)
                                 .arg(rule, message);
    if (m_seen.contains(identity))
        return;
    m_seen.insert(identity);
    m_findings.append({file, position, severity, message, rule});
}

void Report::addAtKey(const Definition &definition, const QString &message)
{
    add(definition.layer->file.path(), definition.entry()->keyPosition, message);
}

void Report::addAtValue(const Definition &definition, const QString &message)
{
    add(definition.layer->file.path(), definition.entry()->valuePosition, message);
}

void Report::addAtColor(const ColorText &color, const QString &message)
{
    add(color.definition->layer->file.path(), color.entry->valuePosition, message);
}

void Report::addAtTemplate(const TemplateText &templates, int offset, const QString &message)
{
    add(templates.fileAt(offset).input.path(), templates.positionAt(offset), message);
}

QVector<Finding> Report::findings() const
{
    QVector<Finding> sorted = m_findings;
    std::stable_sort(sorted.begin(), sorted.end(), [](const Finding &a, const Finding &b) {
        return std::tie(a.file, a.position.line, a.position.column, a.rule, a.message)
            < std::tie(b.file, b.position.line, b.position.column, b.rule, b.message);
    });
    return sorted;
}
