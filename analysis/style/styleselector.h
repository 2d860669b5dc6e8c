// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef ANALYSIS_STYLE_STYLESELECTOR_H
#define ANALYSIS_STYLE_STYLESELECTOR_H

#include <QString>
#include <QStringList>
#include <QVector>

/*!
 * \brief One selector of a style sheet, such as `QMenu::item:selected`, taken apart as Qt does.
 *
 * Offsets are those of the text it was read from, so that each piece can be pointed at.
 */
struct StyleSelector {
    /*! \brief `[name]`, `[name="value"]` and their like; `.name` is `[class~="name"]`. */
    struct Attribute {
        enum class Match {
            Exists,
            Equals,
            HasWord,
            HasDash,
            StartsWith,
            EndsWith,
            Contains
        };

        QString name;
        QString value; //!< without quotation marks
        Match match = Match::Exists;
    };

    /*! \brief What follows a colon, or two: Qt makes no difference. */
    struct Pseudo {
        QString name; //!< as written, without "!"; letter case makes no difference
        bool isNegated = false;
        bool isDoubled = false; //!< written with two colons, as sub-controls are meant to be
        int offset = 0; //!< of the name or its "!"

        /*! \brief Returns the name with its "!". */
        QString text() const { return isNegated ? QString(QLatin1Char('!') + name) : name; }
    };

    /*! \brief How a step is joined to the one before it. */
    enum class Combinator {
        Descendant,
        Child,
        Sibling
    };

    /*! \brief What stands between two combinators. */
    struct Step {
        QString type; //!< "*" if none is given
        QStringList ids; //!< without "#"
        QVector<Attribute> attributes;
        QVector<Pseudo> pseudos; //!< of a step that is not the last they count, but say nothing
        Combinator combinator = Combinator::Descendant;
        int offset = 0;
    };

    QString text; //!< as written, blanks simplified
    int offset = 0;
    QVector<Step> steps; //!< the last one is the widget that the rule styles

    /*!
     * \brief Tells whether it could be taken apart; else there are no steps.
     *
     * What Qt refuses is not valid, and neither is `QLabel >`, which Qt reads and never matches.
     * Names and values with a backslash in them, which Qt reads, too, are not understood here.
     */
    bool isValid() const { return !steps.isEmpty(); }

    const Step &subject() const { return steps.constLast(); }

    /*! \brief Returns the sub-control, such as "item": the first pseudo, if it names no state. */
    QString subControl() const;

    /*! \brief Returns the states, such as "hover", in their order. */
    QVector<Pseudo> states() const;

    /*! \brief Returns what Qt weighs a selector with: 256 a name, 16 a condition, 1 a class. */
    int specificity() const;

    /*!
     * \brief Takes one selector apart, in time linear in \a text.
     *
     * \param offset  where \a text begins in the text that offsets are meant for.
     * \param looks   set to how many times a character was looked at; may be null.
     */
    static StyleSelector parsed(const QString &text, int offset = 0, int *looks = nullptr);

    /*! \brief Takes apart what stands before a brace: selectors with commas between them. */
    static QVector<StyleSelector> parsedList(const QString &text, int offset = 0);
};

#endif
