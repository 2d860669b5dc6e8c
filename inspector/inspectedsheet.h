// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef INSPECTOR_INSPECTEDSHEET_H
#define INSPECTOR_INSPECTEDSHEET_H

#include <analysis/explanation.h>
#include <analysis/style/stylecascade.h>
#include <analysis/style/stylerules.h>
#include <inspector/inspectedtheme.h>

#include <QSet>

#include <memory>

/*! \brief Where a declaration of the application's style sheet was written. */
struct DeclarationOrigin {
    Place place; //!< in a template; else without a file, in the style sheet itself
    QString value; //!< as the template has it, with tokens
    QVector<TemplateToken> tokens; //!< in value; offsets count its characters

    bool isTemplate() const { return !place.file.isEmpty(); }
};

/*! \brief A token and where its value comes from. */
struct ValueChain {
    TemplateToken token;
    QString prefix; //!< of the token
    QString value; //!< as style sheets have it
    QVector<ExplanationStep>
        steps; //!< key, palette entries, definitions without effect; in that order
    QStringList palette; //!< the entries that the value goes through, the nearest first
};

/*!
 * \brief The style sheet that an application has in force, and what it was made of.
 *
 * Which rule wins is asked of the very text that Qt has, so that it holds whatever the program did to
 * it. Where a rule comes from is found by laying the theme's templates, with its values, over that
 * text; what they do not cover is the program's own. A value that does not change.
 */
class InspectedSheet
{
public:
    InspectedSheet(const QString &styleSheet, const InspectedTheme &theme);
    ~InspectedSheet();
    Q_DISABLE_COPY_MOVE(InspectedSheet)

    /*! \brief Returns the application's style sheet and theme as they are now. */
    static std::unique_ptr<InspectedSheet> inForce();

    QString text() const { return m_text; }
    const InspectedTheme &theme() const { return m_theme; }
    const StyleCascade &cascade() const { return m_cascade; }
    const StyleRules &rules() const { return m_rules; }

    /*! \brief Returns the theme's files with their templates, or null if they cannot be read. */
    const ThemeProject *project() const;
    /*! \brief Returns the absolute folder that the theme's image paths start from. */
    QString applicationFolder() const;
    /*! \brief Returns the place of the first rule of text() that Qt cannot read, which it drops with
     *         all that follows; line 0 if it reads everything. */
    Place unreadPlace() const;
    /*! \brief Returns why there is no project(), in a sentence. */
    QString problem() const;

    /*! \brief Returns where the declaration at \a offset of text() was written. */
    DeclarationOrigin originOf(int offset) const;

    /*! \brief Returns where the rule at \a offset of text() was written. */
    Place placeOfRule(int offset) const;

    /*! \brief Returns where the value of each token of \a origin comes from. */
    QVector<ValueChain> chains(const DeclarationOrigin &origin) const;

    /*! \brief Returns the offsets in text() of declarations whose tokens name \a key. */
    QSet<int> declarationsOfKey(const QString &key) const;
    /*! \brief Returns the offsets in text() of declarations whose value goes through \a entry. */
    QSet<int> declarationsOfPalette(const QString &entry) const;
    /*! \brief Returns the offsets in text() of the declarations of the rule at \a offset. */
    QSet<int> declarationsOfRule(int offset) const;

    /*! \brief Returns the palette entries of the theme with their colours, in the theme's order. */
    QVector<QPair<QString, QColor>> palette() const;

    /*! \brief Returns what the accent makes of a colour, or palette entry, called \a key; invalid if the
     *         program shows what the theme's files say. */
    QColor colorOfAccent(Kind kind, const QString &key) const;

private:
    struct Section;
    const Section *sectionAt(int offset) const;
    Place placeIn(int offset) const; // of the style sheet itself
    void addSection(const InspectedTheme::Template &source);
    ValueChain chain(const TemplateToken &token, const QString &prefix) const;
    ValueChain madeChain(const TemplateToken &token, const QString &prefix) const;
    void tellAccent(Kind kind, const QString &key, ValueChain *chain) const;

    const QString m_text;
    const QVector<int> m_lineStarts;
    const InspectedTheme m_theme;
    const int m_readSize; // of the text, by Qt
    const StyleCascade m_cascade;
    const StyleRules m_rules;
    std::vector<std::unique_ptr<Section>> m_sections;
    mutable std::unique_ptr<ThemeProject> m_project;
    mutable QHash<QString, ValueChain> m_chains;
    mutable QHash<QString, QSet<int>> m_users; // declarations by key
    mutable std::size_t m_sectionsRead = 0; // into m_users
    mutable QString m_problem;
    mutable bool m_isProjectRead = false;
};

/*! \brief Puts values of \a theme in the order of its files, the default file first. */
void sortAsWritten(QVector<StoredValue> *values, const ThemeStack &theme);

#endif
