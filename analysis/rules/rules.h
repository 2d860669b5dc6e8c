// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef ANALYSIS_RULES_RULES_H
#define ANALYSIS_RULES_RULES_H

#include <analysis/rules/finding.h>
#include <analysis/themeproject.h>

#include <QSet>

struct Rule;

/*! \brief A colour text as the library reads it: a palette entry, a colour or a gradient's stop. */
struct ColorText {
    const Definition *definition = nullptr;
    const ThemeFileEntry *entry = nullptr;
    QVariant value;
    bool isResolved = false; //!< whether it names a palette entry that is stored by then

    QString text() const { return value.toString(); }
    bool isList() const { return value.type() == QVariant::StringList; }
    /*! \brief Tells whether the palette entry that the text names is stored only later. */
    bool isNamedTooEarly(const ThemeStack &stack) const;
};

/*! \brief Collects what the rules find; the same finding, met in several themes, counts once. */
class Report
{
public:
    /*! \brief Sets the rule in whose name the next findings are added. */
    void begin(const Rule &rule) { m_rule = &rule; }

    void add(const QString &file, TextPosition position, const QString &message);
    void add(const QString &file, TextPosition position, const QString &message, Severity severity);

    /*! \brief Adds a finding at the key, or else at the value, of \a definition. */
    void addAtKey(const Definition &definition, const QString &message);
    void addAtValue(const Definition &definition, const QString &message);
    void addAtColor(const ColorText &color, const QString &message);

    /*! \brief Adds a finding at \a offset of the templates. */
    void addAtTemplate(const TemplateText &templates, int offset, const QString &message);

    /*! \brief Returns all findings, sorted by file, line and column. */
    QVector<Finding> findings() const;

private:
    const Rule *m_rule = nullptr;
    QVector<Finding> m_findings;
    QSet<QString> m_seen;
};

/*! \brief One thing that `hvtheme check` looks for. */
struct Rule {
    const char *name; //!< stable: it stands in reports, options and the name of its page
    Severity severity;
    const char *summary; //!< one sentence
    void (*check)(const ThemeProject &input, Report &report);
};

/*! \brief Returns all rules, in the order of the documentation. */
const QVector<Rule> &allRules();

/*! \brief Returns what all rules but the \a disabled ones, given by name, find. */
QVector<Finding> runRules(const ThemeProject &input, const QStringList &disabled = {});

/*! \brief Returns every colour text that the library looks at when it loads \a stack. */
QVector<ColorText> colorTexts(const ThemeStack &stack);

/*! \brief Returns the entry of a stop's "pos" or "color", the stop counted from 0; may be null. */
const ThemeFileEntry *stopEntry(const Definition &gradient, int stop, const QString &key);

/*! \brief An image file that is a file: a resource is in the application, out of reach here. */
struct ThemeImage {
    const Definition *definition = nullptr;
    QString path;
};

/*! \brief Returns the image files of all themes, with paths in the application's folder. */
QVector<ThemeImage> themeImages(const ThemeProject &input);

/*! \brief Tells whether any theme gives style sheets a value for \a key. */
bool isDefined(const ThemeProject &input, const QString &key);

/*! \brief Returns the key that was meant if an integer token took its unit for a part of it. */
std::optional<QString> keyWithoutUnit(const ThemeProject &input, const TemplateToken &token);

/*! \brief Tells whether \a offset lies in a template of the library, which nobody can mend. */
bool isBuiltInTemplate(const ThemeProject &input, int offset);

/*! \brief Returns "FILE:LINE" of \a definition, the file without its folder. */
QString placeOf(const Definition &definition);

/*! \brief Returns the keys of \a kind that are in force in \a stack. */
QStringList storedKeys(const ThemeStack &stack, Kind kind);

/*! \brief Returns where a key of \a kind belongs in \a file: its section's header, else 1:1. */
TextPosition sectionPosition(const ThemeFile &file, Kind kind);

/*! \brief Returns the kind whose value style sheets see for \a key, or nothing. */
std::optional<Kind> kindInStyleSheets(const ThemeStack &stack, const QString &key);

namespace Rules
{

// What the library itself would report.
void requiredKey(const ThemeProject &input, Report &report);
void keyExists(const ThemeProject &input, Report &report);
void invalidColor(const ThemeProject &input, Report &report);
void paletteOrder(const ThemeProject &input, Report &report);
void invalidGradient(const ThemeProject &input, Report &report);
void flagKeptOut(const ThemeProject &input, Report &report);

// What it takes silently.
void flagNumber(const ThemeProject &input, Report &report);
void integerNumber(const ThemeProject &input, Report &report);
void numberWraps(const ThemeProject &input, Report &report);
void gradientPosition(const ThemeProject &input, Report &report);
void valueList(const ThemeProject &input, Report &report);
void duplicateKey(const ThemeProject &input, Report &report);
void unknownSection(const ThemeProject &input, Report &report);
void skippedLine(const ThemeProject &input, Report &report);
void garbledText(const ThemeProject &input, Report &report);
void sharedName(const ThemeProject &input, Report &report);
void themeNeverRead(const ThemeProject &input, Report &report);
void defaultReadTwice(const ThemeProject &input, Report &report);
void themeName(const ThemeProject &input, Report &report);

// Templates.
void undefinedToken(const ThemeProject &input, Report &report);
void missingValue(const ThemeProject &input, Report &report);
void tokenKind(const ThemeProject &input, Report &report);
void swallowedUnit(const ThemeProject &input, Report &report);
void straySeparator(const ThemeProject &input, Report &report);
void endlessSubstitution(const ThemeProject &input, Report &report);
void templateEncoding(const ThemeProject &input, Report &report);
void styleSheetSyntax(const ThemeProject &input, Report &report);
void unterminatedComment(const ThemeProject &input, Report &report);
void unknownClass(const ThemeProject &input, Report &report);
void unknownSubcontrol(const ThemeProject &input, Report &report);
void unknownPseudoState(const ThemeProject &input, Report &report);
void unknownProperty(const ThemeProject &input, Report &report);

// Images.
void imageMissing(const ThemeProject &input, Report &report);
void imageUnreadable(const ThemeProject &input, Report &report);
void imageOutside(const ThemeProject &input, Report &report);

// What nothing uses.
void unusedKey(const ThemeProject &input, Report &report);
void unusedPalette(const ThemeProject &input, Report &report);

// What can be read.
void contrast(const ThemeProject &input, Report &report);

} // namespace Rules

#endif
