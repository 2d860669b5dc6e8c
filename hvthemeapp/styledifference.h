// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_STYLEDIFFERENCE_H
#define HVTHEMEAPP_STYLEDIFFERENCE_H

#include <QHash>
#include <QPair>
#include <QString>
#include <QVector>

#include <optional>

class QWidget;
struct QMetaObject;

namespace HV
{

/*!
 * \brief Which widgets the difference between two style sheets may concern.
 *
 * The two were made of the same templates, so that they have the same rules and differ in values.
 * A widget that is named too much costs its restyling, so what is hard to tell counts as concerned.
 * Internal.
 */
class StyleDifference
{
public:
    /*! \brief Compares two style sheets; returns nothing if they differ in more than values. */
    static std::optional<StyleDifference> between(const QString &before, const QString &after);

    /*! \brief Returns whether values differ that may change sizes, fonts or properties of widgets: any
     *         but colours, gradients and round corners. */
    bool changesLayout() const { return m_changesLayout; }

    /*! \brief Returns whether a rule with another value may be one of \a widget's, as it is now if
     *         nothing but the paint changes, else in whatever state. */
    bool concerns(const QWidget &widget) const;

private:
    struct Subject { // what a selector asks of the widget itself
        QString type; // empty for any
        QVector<QPair<QString, QString>> properties; // with the values wanted; null for any
        bool isHovered = false; // it must be, or something on it
        bool isPressed = false;

        bool operator==(const Subject &other) const
        {
            return type == other.type && properties == other.properties
                && isHovered == other.isHovered && isPressed == other.isPressed;
        }
    };

    static Subject subjectOf(const QString &selector);
    static bool isInState(const Subject &subject, const QWidget &widget);
    void add(const QString &selectors);
    QVector<int> subjectsFor(const QMetaObject &type) const;

    QVector<Subject> m_subjects;
    mutable QHash<const QMetaObject *, QVector<int>> m_subjectsOfType; // as they are asked for
    bool m_changesLayout = false;
};

} // namespace HV

#endif // HVTHEMEAPP_STYLEDIFFERENCE_H
