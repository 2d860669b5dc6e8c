// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEME_TESTS_STYLABLETABLE_H
#define HVTHEME_TESTS_STYLABLETABLE_H

#include <QPalette>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QVector>
#include <QWidget>

#include <functional>

/*! What Qt's style sheet reference lists, and who sees to it in a look. */
namespace Stylable
{

/*! The names in "List of Stylable Widgets", "List of Sub-Controls" and "List of Pseudo-States". */
QStringList referenceWidgets();
QStringList referenceSubControls();
QStringList referenceStates();

/*! The other classes of Qt Widgets that one sees, and the standard dialogs. */
QStringList otherClasses();

using Make = std::function<QWidget *()>; /*!< a new window */
using Hold = std::function<void(QWidget *subject)>; /*!< brings what is looked at into a state */
using Find = std::function<QWidget *(QWidget *window)>;
using Area = std::function<QRect(QWidget *subject)>; /*!< within the subject */

/*! One class, sub-control or state, what it is looked at on, and who sees to it. */
class Row
{
public:
    enum class Means {
        Rule, /*!< a template: without its rules the picture is another */
        Style, /*!< the library's style: with Qt's in its place the picture is another */
        Palette, /*!< the palette: with another colour of a role the picture is another */
        Nothing /*!< nobody: no rule for it can change a picture */
    };

    explicit Row(const QString &name)
        : selector(name)
        , rules(name)
    {
    }

    Row &on(const Make &specimen) { return make = specimen, *this; }
    /*! The state, whose picture must differ from the one without it. */
    Row &when(const Hold &state) { return hold = state, *this; }
    /*! The state or place, which may look like others of its kind. */
    Row &alike(const Hold &state = {}) { return hold = state, isAlike = true, *this; }
    Row &at(const Area &part) { return area = part, *this; }
    Row &found(const Find &subject) { return find = subject, *this; }
    /*! The rules are those that \a selectors name, not those of the row's own name. */
    Row &byRules(const QString &selectors) { return rules = selectors, *this; }
    Row &drawnBy(const QString &function)
    {
        return means = Means::Style, drawing = function, *this;
    }
    Row &coloredBy(QPalette::ColorRole ofPalette)
    {
        return means = Means::Palette, role = ofPalette, *this;
    }
    Row &reachedByNothing() { return means = Means::Nothing, *this; }
    /*! With another of Qt's styles than Fusion below the library's. */
    Row &onStyle(const QString &name) { return style = name, *this; }
    /*! A rule with \a declarations, not the usual ones, proves that the row is what it says. */
    Row &probedBy(const QString &declarations) { return probe = declarations, *this; }
    /*! The reference has no rule for it that shows. */
    Row &unprobed() { return isProbed = false, *this; }

    QString selector; /*!< as the reference writes it */
    Means means = Means::Rule;
    QString rules;
    QString drawing;
    QString style = QStringLiteral("fusion");
    QPalette::ColorRole role = QPalette::NoRole;
    Make make;
    Hold hold;
    bool isAlike = false;
    Area area;
    Find find;
    QString probe;
    bool isProbed = true;
};

const QVector<Row> &rows();

} // namespace Stylable

#endif
