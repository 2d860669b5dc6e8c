// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef ANALYSIS_STYLE_STYLERULES_H
#define ANALYSIS_STYLE_STYLERULES_H

#include <analysis/style/styleselector.h>

#include <QString>
#include <QVector>

/*! \brief One `property: value` of a style sheet; offsets into its text. */
struct StyleDeclaration {
    QString property; //!< as written
    QString value; //!< without comments, blanks simplified
    int start = 0; //!< of the property
    int end = 0; //!< behind the value

    /*! \brief Tells whether the value ends in `!important`, which Qt reads and takes no notice of. */
    bool isImportant() const;
    /*! \brief Returns the value without `!important`. */
    QString plainValue() const;
};

/*! \brief One `selector { … }` of a style sheet; offsets into its text. */
struct StyleRule {
    QString selector; //!< without comments, blanks simplified; with commas if there are several
    int start = 0; //!< of the selector
    int end = 0; //!< behind the closing brace
    QVector<StyleSelector> selectors; //!< each by itself, those that are not valid too
    QVector<StyleDeclaration> declarations;

    /*! \brief Returns the declaration that \a offset lies in, or null. */
    const StyleDeclaration *declarationAt(int offset) const;
};

/*!
 * \brief The rules of a style sheet or template, and where they stand in its text.
 *
 * Found by braces, semicolons, quotation marks and comments alone, so that a template, which is no
 * style sheet yet, is understood as well. As in Qt, no comment begins in quotation marks. Whether Qt
 * accepts the rules is not said here. Takes time linear in the text.
 */
class StyleRules
{
public:
    /*! \brief A comment with its slashes; one that is never closed reaches to the text's end. */
    struct Comment {
        int start;
        int end;
        bool isClosed;
    };

    explicit StyleRules(const QString &text);

    /*! \brief Returns the rules in the order of the text. */
    const QVector<StyleRule> &rules() const { return m_rules; }

    /*! \brief Returns the rule that \a offset lies in, or null. */
    const StyleRule *ruleAt(int offset) const;

    /*! \brief Tells whether \a offset lies in a comment. */
    bool isComment(int offset) const;

    /*! \brief Returns the comments in the order of the text. */
    const QVector<Comment> &comments() const { return m_comments; }

private:
    QVector<Comment> m_comments;
    QVector<StyleRule> m_rules;
};

#endif
