// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <inspector/widgetproperty.h>

#include <QCoreApplication>
#include <QEvent>
#include <QMetaProperty>
#include <QStyle>

#include <algorithm>

void setWidgetProperty(QWidget *widget, const QString &name, const QVariant &value)
{
    widget->setProperty(name.toUtf8().constData(), value);
    // Rules are chosen when a widget is polished; its children may be chosen by its property.
    QList<QWidget *> widgets = widget->findChildren<QWidget *>();
    widgets.prepend(widget);
    for (QWidget *each : qAsConst(widgets)) {
        each->style()->unpolish(each);
        each->style()->polish(each);
        QEvent event(QEvent::StyleChange);
        QCoreApplication::sendEvent(each, &event);
        each->updateGeometry();
        each->update();
    }
}

QVariant propertyValue(const QString &text, const QVariant &before)
{
    QVariant value(text);
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    const bool isConverted = before.isValid() && value.convert(before.metaType());
#else
    const bool isConverted = before.isValid() && value.convert(before.userType());
#endif
    return isConverted ? value : QVariant(text);
}

QMap<QString, QStringList> styledProperties(const InspectedSheet &sheet, const QWidget *widget)
{
    QStringList classes{QStringLiteral("*")};
    for (const QMetaObject *type = widget->metaObject(); type; type = type->superClass())
        classes << QString::fromLatin1(type->className())
                       .replace(QLatin1String("::"), QLatin1String("--"));
    const auto isOfClass = [&](const QString &name) {
        return name == QLatin1String("class")
            || widget->metaObject()->indexOfProperty(name.toUtf8().constData()) >= 0;
    };
    QMap<QString, QStringList> properties;
    for (const StyleRule &rule : sheet.rules().rules()) {
        for (const StyleSelector &selector : rule.selectors) {
            for (const StyleSelector::Step &step : selector.steps) {
                if (!classes.contains(step.type))
                    continue;
                for (const StyleSelector::Attribute &attribute : step.attributes) {
                    if (!isOfClass(attribute.name))
                        properties[attribute.name] << attribute.value;
                }
            }
        }
    }
    for (QStringList &values : properties) {
        values.removeAll(QString());
        values.sort();
        values.removeDuplicates();
    }
    return properties;
}
