// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <inspector/widgetproperty.h>

#include <QCoreApplication>
#include <QEvent>
#include <QMetaProperty>
#include <QPointer>
#include <QStyle>
#include <QVector>

#include <algorithm>

void setWidgetProperty(QWidget *widget, const QString &name, const QVariant &value)
{
    widget->setProperty(name.toUtf8().constData(), value);
    // Rules are chosen when a widget is polished; its children may be chosen by its property. What
    // they do then may end others of them.
    QVector<QPointer<QWidget>> widgets{widget};
    const auto children = widget->findChildren<QWidget *>();
    for (QWidget *child : children)
        widgets.append(child);
    for (const QPointer<QWidget> &each : qAsConst(widgets)) {
        if (each)
            each->style()->unpolish(each);
        if (each)
            each->style()->polish(each);
        QEvent event(QEvent::StyleChange);
        if (each)
            QCoreApplication::sendEvent(each, &event);
        if (!each)
            continue;
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
