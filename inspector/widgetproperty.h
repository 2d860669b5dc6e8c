// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef INSPECTOR_WIDGETPROPERTY_H
#define INSPECTOR_WIDGETPROPERTY_H

#include <inspector/inspectedsheet.h>

#include <QMap>
#include <QPointer>
#include <QVariant>
#include <QWidget>

/*! \brief A dynamic property of a widget that was changed. */
struct PropertyChange {
    QPointer<QWidget> widget;
    QString widgetName; //!< for when it has died
    QString name;
    QVariant before; //!< invalid if it had none
    QVariant value; //!< invalid if it is taken away
};

/*! \brief Gives \a widget the dynamic property and lets it find its rules anew; an invalid \a value takes it away. */
void setWidgetProperty(QWidget *widget, const QString &name, const QVariant &value);

/*! \brief Returns \a text as a value of the type that \a before has; as text if that cannot be. */
QVariant propertyValue(const QString &text, const QVariant &before);

/*!
 * \brief Returns the dynamic properties that rules of \a sheet ask \a widget for, by name, each with the values
 *        that they ask for, sorted.
 *
 * Rules count that name the class of the widget, one that it is derived from, or none.
 */
QMap<QString, QStringList> styledProperties(const InspectedSheet &sheet, const QWidget *widget);

#endif
