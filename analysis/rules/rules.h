// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef ANALYSIS_RULES_RULES_H
#define ANALYSIS_RULES_RULES_H

#include <analysis/rules/finding.h>
#include <analysis/themeproject.h>

#include <QSet>

struct LintRule;

/*! \brief A colour text as the library reads it: a palette entry, a colour or a gradient's stop. */
struct ColorText {
    const Definition *definition = nullptr;
    const ThemeFileEntry *entry = nullptr;
    QVariant value;
    bool isResolved = false; //!< whether it names a palette entry that is stored by then

    QString text() const { return value.toString(); }
    bool isList() const { return value.userType() == QMetaType::QStringList; }
    /*! \brief Tells whether the palette entry that the text names is stored only later. */
    bool isNamedTooEarly(const ThemeStack &stack) const;
};

/*! \brief Collects what the rules find; the same finding, met in several themes, counts once. */
class Report
{
public:
    /*! \brief Sets the rule in whose name the next findings are added. */
    void begin(const LintRule &rule) { m_rule = &rule; }

    void add(const Place &place, const QString &message);
    void add(const Place &place, const QString &message, Severity severity);

    /*! \brief Adds a finding at the key, or else at the value, of \a definition. */
    void addAtKey(const Definition &definition, const QString &message);
    void addAtValue(const Definition &definition, const QString &message);
    void addAtColor(const ColorText &color, const QString &message);

    /*! \brief Adds a finding at \a offset of the templates. */
    void addAtTemplate(const TemplateText &templates, int offset, const QString &message);

    /*! \brief Returns all findings, sorted by file, line and column. */
    QVector<Finding> findings() const;

private:
    const LintRule *m_rule = nullptr;
    QVector<Finding> m_findings;
    QSet<QString> m_seen;
};

/*!
 * \brief One thing that `hvtheme check` looks for.
 *
 * Each stands in a source of its own, which is named after it: its name, what it looks for and how.
 * The list of sources in CMake is the table of all of them.
 */
struct LintRule {
    const char *name; //!< stable: it stands in reports, options and the name of its page
    Severity severity;
    const char *summary; //!< one sentence
    void (*check)(const ThemeProject &project, Report &report);
};

/*! \brief Returns all rules, in the order of the documentation. */
const QVector<const LintRule *> &allLintRules();

/*! \brief Returns what all rules but the \a disabled ones, given by name, find. */
QVector<Finding> runLintRules(const ThemeProject &project, const QStringList &disabled = {});

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
QVector<ThemeImage> themeImages(const ThemeProject &project);

/*! \brief Returns the values of \a kind that the library stores as 0, being no decimal number. */
QVector<const Definition *> definitionsWithoutNumber(const ThemeProject &project, Kind kind);

/*! \brief Tells whether any theme gives style sheets a value for \a key. */
bool isDefined(const ThemeProject &project, const QString &key);

/*! \brief Returns the key that was meant if an integer token took its unit for a part of it. */
std::optional<QString> keyWithoutUnit(const ThemeProject &project, const TemplateToken &token);

/*! \brief Tells whether \a offset lies in a template of the library, which nobody can mend. */
bool isBuiltInTemplate(const ThemeProject &project, int offset);

/*!
 * \brief Tells whether the application library has something for \a token in themes that have not.
 *
 * It draws all images of the built-in templates itself for a theme \a isWithoutImages, and has
 * colours in place of the optional ones, so such a theme is whole.
 */
bool isGivenByApplication(const ThemeProject &project, const TemplateToken &token,
                          bool isWithoutImages);

/*! \brief Returns the first of \a keys, which have one cause, and how many more there are. */
QString firstOfMany(const QStringList &keys);

/*! \brief Returns the keys of \a kind that are in force in \a stack. */
QStringList storedKeys(const ThemeStack &stack, Kind kind);

/*! \brief Returns where a key of \a kind belongs in \a file: its section's header, else 1:1. */
TextPosition sectionPosition(const ThemeFile &file, Kind kind);

#endif
