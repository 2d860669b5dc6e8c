// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef INSPECTOR_INSPECTION_H
#define INSPECTOR_INSPECTION_H

#include <inspector/inspectedsheet.h>
#include <inspector/widgetparts.h>

#include <QFont>
#include <QMargins>
#include <QPalette>
#include <QPointer>
#include <QWidget>

/*! \brief A declaration of a matching rule, and what became of it. */
struct InspectedDeclaration {
    StyleMatch match;
    DeclarationOrigin origin;
    QStringList inForce; //!< the properties that it decides; never shorthands
    QVector<StyleMatch> overriddenBy; //!< those that decide the others, each once

    bool isOverridden() const { return inForce.isEmpty(); }
};

/*! \brief A rule that matches, with its declarations in their order. */
struct InspectedRule {
    QString selector; //!< the one that matches
    int specificity = 0;
    QString source; //!< whose style sheet: empty for the application's, else the class and name
    Place place;
    bool isOfWidget = false; //!< a sub-control takes colour and font from this one
    int node = 0; //!< as StyleMatch::node
    int offset = 0; //!< of the first declaration
    bool isApplication = true; //!< offset counts the application's style sheet
    QVector<InspectedDeclaration> declarations;
};

/*! \brief A property in force and where its value comes from. */
struct InspectedValue {
    QString property;
    QString value; //!< as Qt has it
    QString source; //!< in a sentence, where no rule says it
    StyleMatch match; //!< if a rule does
    DeclarationOrigin origin;
    QVector<ValueChain> chains;

    bool isOfRule() const { return !match.property.isEmpty(); }
};

/*! \brief Sizes around a widget's contents, from the inside out. */
struct BoxModel {
    QSize contents;
    QMargins padding;
    QMargins border;
    QMargins margin;
    QRect geometry;
};

/*! \brief How a text stands out from the ground it is drawn on. */
struct TextContrast {
    QColor text;
    QColor ground; //!< most of what is seen behind and around it
    double ratio = 0;
    bool isLarge = false; //!< for which 3:1 is enough
    QString
        passingEntry; //!< the nearest palette entry that passes; empty if it passes, or none does
    QColor passingColor;

    double wanted() const { return isLarge ? 3.0 : 4.5; }
    bool passes() const { return ratio >= wanted(); }
};

/*!
 * \brief All that is known of why a widget, or a part of one, looks as it does.
 *
 * A value; the widgets may die. Made in a few milliseconds.
 */
struct Inspection {
    QPointer<QWidget> widget; //!< that was picked
    QPointer<QWidget> styledWidget; //!< whose rules it has: itself or the one around it
    StyleElement element;
    QString subControl;

    QVector<InspectedRule> rules; //!< the strongest first
    QVector<InspectedValue> values; //!< in force, by name; what no rule says comes last
    BoxModel box;
    QFont font;
    QPalette palette;

    /*!
     * \brief Looks at a part of \a widget, in the states of \a part.
     *
     * \param part  of StyleElement::styledWidget(\a widget); a part without states is in those of
     *              the widget.
     */
    static Inspection of(QWidget *widget, const WidgetPart &part, const InspectedSheet &sheet);

    /*! \brief Returns the value of \a property, or null. */
    const InspectedValue *value(const QString &property) const;
};

/*!
 * \brief Measures the text of \a inspection on what is painted behind it, or returns nothing where no
 *        text is.
 *
 * Paints the window, so it is asked for by itself. \a rect is the part in the styled widget; empty
 * for all of it.
 */
std::optional<TextContrast> textContrast(const Inspection &inspection, const QRect &rect,
                                         const InspectedSheet &sheet);

/*! \brief Returns the class and the object name: "QPushButton#ok". */
QString nameOf(const QObject *object);

#endif
