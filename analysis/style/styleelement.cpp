// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/style/styleelement.h>

#include <analysis/style/styleparser.h>
#include <analysis/style/stylevocabulary.h>

#include <QtWidgets>

namespace
{

using Match = StyleSelector::Attribute::Match;

QString styleSheetName(const char *className)
{
    return QString::fromLatin1(className).replace(QLatin1Char(':'), QLatin1Char('-'));
}

bool isToolTip(const QObject *object)
{
    return qstrcmp(object->metaObject()->className(), "QTipLabel") == 0;
}

const QObject *styleSheetParent(const QObject *object)
{
    const auto *owner =
        isToolTip(object) ? object->property("_q_stylesheet_parent").value<QObject *>() : nullptr;
    return owner ? owner : object->parent();
}

QStringList classesOf(const QObject *object)
{
    const QMetaObject *meta = object->metaObject();
    if (isToolTip(object))
        return QStringList(QStringLiteral("QToolTip"));
    QStringList names;
    for (; meta; meta = meta->superClass())
        names << styleSheetName(meta->className());
    return names;
}

// The style below the one that applies style sheets: that one's child, or the application's style.
QString baseStyleName(const QWidget *widget)
{
    for (const QStyle *style : {widget->style(), QApplication::style()}) {
        const bool isWrapper = style->inherits("QStyleSheetStyle");
        const QStyle *base = isWrapper ? style->findChild<QStyle *>() : style;
        if (base)
            return styleSheetName(base->metaObject()->className());
    }
    return {};
}

// Null where an attribute selector would not match, whatever it asks for.
QString attributeOf(const QObject *object, const QString &name)
{
    const QVariant value = object->property(name.toLatin1().constData());
    if (!value.isValid()) {
        const auto *widget = qobject_cast<const QWidget *>(object);
        if (name == QLatin1String("class"))
            return styleSheetName(object->metaObject()->className());
        return name == QLatin1String("style") && widget ? baseStyleName(widget) : QString();
    }
    const int type = value.userType();
    return type == QMetaType::QStringList || type == QMetaType::QVariantList
        ? value.toStringList().join(QLatin1Char(' '))
        : value.toString();
}

StyleNode nodeOf(const QObject *object, const QStringList &attributes)
{
    StyleNode node;
    node.classes = classesOf(object);
    node.name = object->objectName();
    node.styleSheet = StyleParser::readPart(object->property("styleSheet").toString());
    for (const QString &name : attributes) {
        const QString value = attributeOf(object, name);
        if (!value.isNull())
            node.attributes.insert(name, value);
    }
    return node;
}

QSet<QString> optionStates(const QWidget *widget)
{
    QStyleOption option;
    option.initFrom(widget);
    const auto is = [&option](QStyle::StateFlag flag) { return option.state.testFlag(flag); };
    QSet<QString> states;
    const auto add = [&states](bool holds, const char *name) {
        if (holds)
            states << QLatin1String(name);
    };
    add(is(QStyle::State_Enabled), "enabled");
    add(!is(QStyle::State_Enabled), "disabled");
    add(is(QStyle::State_Enabled) && is(QStyle::State_MouseOver), "hover");
    add(is(QStyle::State_HasFocus), "focus");
    add(is(QStyle::State_Active), "active");
    add(widget->isWindow(), "window");
    return states;
}

// Boxes are off where other buttons are nothing, checkable or not.
QSet<QString> buttonStates(const QWidget *widget)
{
    const auto *button = qobject_cast<const QAbstractButton *>(widget);
    const auto *checkBox = qobject_cast<const QCheckBox *>(widget);
    const bool isBox = checkBox || qobject_cast<const QRadioButton *>(widget);
    QSet<QString> states;
    if (checkBox && checkBox->checkState() == Qt::PartiallyChecked)
        states << QStringLiteral("indeterminate");
    else if (button && button->isChecked())
        states << QStringLiteral("checked") << QStringLiteral("on");
    else if (isBox)
        states << QStringLiteral("unchecked") << QStringLiteral("off");
    if (button && button->isDown())
        states << QStringLiteral("pressed");
    const bool isOpen = button && (button->isDown() || states.contains(QStringLiteral("on")));
    states << QLatin1String(isOpen ? "open" : "closed");
    return states;
}

// What classes know of themselves, by their properties, so that a class derived outside of Qt is
// understood as well.
QSet<QString> propertyStates(const QWidget *widget)
{
    QSet<QString> states;
    const auto add = [&](const char *property, const char *held, const char *missing) {
        const QVariant value = widget->property(property);
        const char *name = !value.isValid() ? nullptr : value.toBool() ? held : missing;
        if (name)
            states << QLatin1String(name);
    };
    add("readOnly", "read-only", nullptr);
    add("editable", "editable", nullptr);
    add("flat", "flat", nullptr);
    add("default", "default", nullptr);
    add("frame", nullptr, "no-frame");
    states += buttonStates(widget);
    const QVariant orientation = widget->property("orientation");
    const bool isHorizontal = orientation.isValid() && orientation.toInt() == Qt::Horizontal;
    states << QLatin1String(isHorizontal ? "horizontal" : "vertical");
    return states;
}

bool matchesText(const StyleSelector::Attribute &attribute, const QString &text)
{
    const QString &value = attribute.value;
    switch (attribute.match) {
    case Match::Exists:
        return true;
    case Match::Equals:
        return text == value;
    case Match::HasWord:
        return text.split(QLatin1Char(' ')).contains(value);
    case Match::HasDash:
        return text == value || text.startsWith(value + QLatin1Char('-'));
    case Match::StartsWith:
        return text.startsWith(value);
    case Match::EndsWith:
        return text.endsWith(value);
    case Match::Contains:
        return text.contains(value);
    }
    return false;
}

bool matchesStep(const StyleSelector::Step &step, const StyleNode &node)
{
    if (step.type != QLatin1String("*") && !node.classes.contains(step.type))
        return false;
    for (const StyleSelector::Attribute &attribute : step.attributes) {
        const auto found = node.attributes.constFind(attribute.name);
        if (found == node.attributes.cend() || !matchesText(attribute, *found))
            return false;
    }
    return step.ids.isEmpty() || step.ids == QStringList(node.name);
}

} // namespace

QStringList attributesIn(const QVector<StyleRule> &rules)
{
    QSet<QString> names;
    for (const StyleRule &rule : rules) {
        for (const StyleSelector &selector : rule.selectors) {
            for (const StyleSelector::Step &step : selector.steps) {
                for (const StyleSelector::Attribute &attribute : step.attributes)
                    names << attribute.name;
            }
        }
    }
    QStringList sorted = names.values();
    sorted.sort();
    return sorted;
}

// Qt has no way back: it takes the nearest ancestor that matches a step, and if that one's parent
// is not what the step before asks for, an outer ancestor is not tried.
bool matchesObject(const StyleSelector &selector, const QVector<StyleNode> &path)
{
    int step = int(selector.steps.size() - 1);
    for (const StyleNode &node : path) {
        const bool isMatch = matchesStep(selector.steps.at(step), node);
        const bool isSubject = step == selector.steps.size() - 1;
        const bool mayBeFurther = !isSubject
            && selector.steps.at(step + 1).combinator == StyleSelector::Combinator::Descendant;
        if (!isMatch && !mayBeFurther)
            return false;
        if (isMatch && selector.steps.at(step).combinator == StyleSelector::Combinator::Sibling
            && step > 0)
            return false; // widgets have no siblings
        if (isMatch && --step < 0)
            return true;
    }
    return false;
}

bool matchesState(const StyleSelector &selector, const StyleElement &element)
{
    if (selector.subControl().compare(element.subControl, Qt::CaseInsensitive) != 0)
        return false;
    bool areHeld = true;
    const QVector<StyleSelector::Pseudo> states = selector.states();
    for (const StyleSelector::Pseudo &state : states) {
        if (!StyleVocabulary::isState(state.name))
            return true;
        const bool isHeld = element.states.contains(state.name.toLower());
        if (isHeld && state.isNegated)
            return false;
        areHeld = areHeld && (isHeld || state.isNegated);
    }
    return areHeld;
}

const QWidget *StyleElement::styledWidget(const QWidget *widget)
{
    const QWidget *parent = widget->parentWidget();
    const auto *area = qobject_cast<const QAbstractScrollArea *>(parent);
    const bool isInnerEdit = qobject_cast<const QLineEdit *>(widget)
        && (qobject_cast<const QComboBox *>(parent)
            || qobject_cast<const QAbstractSpinBox *>(parent));
    return isInnerEdit || (area && area->viewport() == widget) ? parent : widget;
}

StyleElement StyleElement::of(const QWidget *widget, const QStringList &attributes)
{
    const QWidget *styled = styledWidget(widget);
    QStringList names = attributes;
    for (const QObject *object = styled; object; object = styleSheetParent(object))
        names << attributesIn(StyleRules(object->property("styleSheet").toString()).rules());
    names.removeDuplicates();
    StyleElement element;
    for (const QObject *object = styled; object; object = styleSheetParent(object))
        element.path.append(nodeOf(object, names));
    element.states = optionStates(styled) + propertyStates(styled);
    element.isPropagating =
        QCoreApplication::testAttribute(Qt::AA_UseStyleSheetPropagationInWidgetStyles);
    return element;
}
