// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef ANALYSIS_STYLE_STYLECASCADE_H
#define ANALYSIS_STYLE_STYLECASCADE_H

#include <analysis/style/styleelement.h>
#include <analysis/style/templatetext.h>
#include <format/place.h>

#include <QStringList>
#include <QVector>

#include <memory>

/*! \brief A declaration of a rule that matches an element: what it says, why it counts and where it stands. */
struct StyleMatch {
    /*! \brief Whose style sheet it comes from: that of the application, or of a widget. */
    static constexpr int application = -1;

    QString property; //!< as the rule names it, in lower case: perhaps a shorthand such as "border"
    QString value; //!< as written, with its tokens
    bool isImportant = false; //!< marked `!important`, which Qt reads and then takes no notice of

    QString selector; //!< the one of the rule's selectors that matches
    int specificity = 0; //!< of that selector
    int sheet = application; //!< or the index in the element's path of the widget that has it
    int node = 0; //!< index in the path of the object that matches: not 0 where it is inherited
    bool isOfWidget = false; //!< the element is a sub-control that takes this from its widget

    Place place; //!< of the declaration; without a file in a widget's own style sheet
    int offset = 0; //!< of the declaration in the whole text
};

/*! \brief One property of an element and all that want to set it. */
struct StyleProperty {
    QString
        name; //!< never a shorthand: "border" is told twelve times, as "border-top-width" and so on
    QVector<StyleMatch> matches; //!< never empty; the first is in force, it overrides the others

    const StyleMatch &winner() const { return matches.constFirst(); }
};

/*!
 * \brief Tells which declarations of a style sheet are in force for an element, and which would be.
 *
 * ```
 * const StyleCascade cascade(templates);
 * const StyleElement element = StyleElement::of(widget, cascade.attributes());
 * for (const StyleProperty &property : cascade.properties(element))
 *     qInfo() << property.name << property.winner().value << property.winner().place.text();
 * ```
 *
 * The order is Qt's, and not in all things that of the web: a style sheet that is nearer to the
 * widget wins, then the greater sum of 256 times the specificity and the number of the rule in its
 * style sheet (so the 257th rule beats the first even if that is a little more specific), then the
 * later declaration. `!important` changes nothing. A declaration whose value Qt cannot read still
 * overrides others. Sub-controls take colour and font from their widget; widgets take them from
 * their parent only if StyleElement::isPropagating says so.
 *
 * Qt's own built-in style sheet, which any other overrides, is left out, and so are rules below
 * `@media`. Needs no QApplication; const functions may be called from several threads.
 */
class StyleCascade
{
public:
    /*! \brief Reads the application's style sheet, with its tokens, from \a templates. */
    explicit StyleCascade(const TemplateText &templates);
    /*! \brief Reads the application's style sheet from a text without files. */
    explicit StyleCascade(const QString &styleSheet);
    ~StyleCascade();
    Q_DISABLE_COPY_MOVE(StyleCascade)

    /*! \brief Returns the properties of objects that selectors ask for, sorted. */
    QStringList attributes() const;

    /*! \brief Returns every declaration of every rule that matches \a element, the strongest first. */
    QVector<StyleMatch> matches(const StyleElement &element) const;

    /*! \brief Returns every property that anything sets for \a element, sorted by name. */
    QVector<StyleProperty> properties(const StyleElement &element) const;

private:
    class Sheet;
    QVector<StyleMatch> own(const StyleElement &element) const;

    std::unique_ptr<Sheet> m_sheet;
};

#endif
