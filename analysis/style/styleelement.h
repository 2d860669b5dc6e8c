// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef ANALYSIS_STYLE_STYLEELEMENT_H
#define ANALYSIS_STYLE_STYLEELEMENT_H

#include <analysis/style/stylerules.h>

#include <QHash>
#include <QSet>
#include <QStringList>
#include <QVector>

class QWidget;

/*! \brief One object as selectors see it. */
struct StyleNode {
    QStringList classes; //!< its own first, then those it is derived from; "::" written "--"
    QString name; //!< the object name
    QHash<QString, QString> attributes; //!< properties as text; none has a null text
    QString styleSheet; //!< its own, not the application's
};

/*!
 * \brief What a style sheet can style: a widget or a part of one, in a state.
 *
 * A value, made by hand or from a widget; it keeps no pointer.
 */
struct StyleElement {
    QVector<StyleNode> path; //!< the widget itself first, then its parent and so on
    QString subControl; //!< such as "item"; empty for the widget itself
    QSet<QString>
        states; //!< such as "hover"; of two opposites both are named, "enabled" or "disabled"
    bool isPropagating = false; //!< whether colour and font go down to children

    /*!
     * \brief Returns \a widget as it is now.
     *
     * A scroll area's viewport and the line edit inside a combo or spin box have the rules of the
     * widget around them, which is what is returned for them. States that only a painter knows
     * ("first", "alternate", "selected" and others of items) are left to the caller.
     *
     * \param attributes  the properties to read, as named by StyleCascade::attributes(); those that
     *                    the widgets' own style sheets ask for come of themselves.
     */
    static StyleElement of(const QWidget *widget, const QStringList &attributes);

    /*! \brief Returns the widget whose rules \a widget has: itself or the one around it. */
    static const QWidget *styledWidget(const QWidget *widget);
};

/*! \brief Returns the properties of objects that the selectors of \a rules ask for, sorted. */
QStringList attributesIn(const QVector<StyleRule> &rules);

/*! \brief Tells whether \a selector names the object of \a path, whatever part and states it asks for. */
bool matchesObject(const StyleSelector &selector, const QVector<StyleNode> &path);

/*! \brief Tells whether the part and states that \a selector asks for are those of \a element. */
bool matchesState(const StyleSelector &selector, const StyleElement &element);

#endif
