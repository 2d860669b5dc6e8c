// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <inspector/inspection.h>

#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMetaEnum>
#include <QRegularExpression>
#include <QStyle>
#include <QVariant>

#include <algorithm>

namespace
{

// What people look for where no rule says it.
struct PlainProperty {
    const char *name;
    QPalette::ColorRole role; // of a colour, or NoRole
};

const PlainProperty plainProperties[] = {
    {"color", QPalette::WindowText},
    {"background-color", QPalette::Window},
    {"selection-color", QPalette::HighlightedText},
    {"selection-background-color", QPalette::Highlight},
    {"alternate-background-color", QPalette::AlternateBase},
};

const char *const drawnByStyle[] = {"border-top-width", "padding-top", "margin-top", "min-height"};

bool isSame(const StyleMatch &one, const StyleMatch &other)
{
    return one.offset == other.offset && one.sheet == other.sheet && one.node == other.node
        && one.isOfWidget == other.isOfWidget;
}

// A view paints on its viewport, and a box that is edited in its field; roles are theirs.
const QWidget *groundOf(const QWidget *widget)
{
    if (const auto *area = qobject_cast<const QAbstractScrollArea *>(widget))
        return area->viewport();
    if (const auto *box = qobject_cast<const QComboBox *>(widget); box && box->lineEdit())
        return box->lineEdit();
    const auto *field = qobject_cast<const QAbstractSpinBox *>(widget)
        ? widget->findChild<const QLineEdit *>(QString(), Qt::FindDirectChildrenOnly)
        : nullptr;
    return field ? field : widget;
}

QString sourceOf(const StyleMatch &match, const QWidget *styled)
{
    const QObject *object = styled;
    for (int i = 0; object && i < match.sheet; ++i)
        object = object->parent();
    return match.sheet == StyleMatch::application || !object ? QString() : nameOf(object);
}

class Maker
{
public:
    Maker(Inspection *inspection, const InspectedSheet &sheet)
        : m_result(*inspection)
        , m_sheet(sheet)
        , m_properties(sheet.cascade().properties(inspection->element))
    {
    }

    void makeRules()
    {
        const QVector<StyleMatch> matches = m_sheet.cascade().matches(m_result.element);
        const StyleRule *known = nullptr;
        for (const StyleMatch &match : matches) {
            const bool isApplication = match.sheet == StyleMatch::application;
            const StyleRule *rule = isApplication ? m_sheet.rules().ruleAt(match.offset) : nullptr;
            const bool isNew = m_result.rules.isEmpty()
                || m_result.rules.constLast().selector != match.selector
                || m_result.rules.constLast().declarations.constLast().match.sheet != match.sheet
                || m_result.rules.constLast().node != match.node
                || m_result.rules.constLast().isOfWidget != match.isOfWidget || rule != known;
            known = rule;
            if (isNew) {
                InspectedRule made;
                made.selector = match.selector;
                made.specificity = match.specificity;
                made.source = sourceOf(match, m_result.styledWidget);
                made.place = rule ? m_sheet.placeOfRule(rule->start) : match.place;
                made.isOfWidget = match.isOfWidget;
                made.node = match.node;
                made.isApplication = isApplication;
                m_result.rules.append(made);
            }
            m_result.rules.last().declarations.prepend(declaration(match));
            m_result.rules.last().offset = match.offset;
        }
    }

    void makeValues()
    {
        for (const StyleProperty &property : qAsConst(m_properties)) {
            InspectedValue value;
            value.property = property.name;
            value.value = property.winner().value;
            value.match = property.winner();
            value.origin = originOf(value.match);
            value.chains = m_sheet.chains(value.origin);
            m_result.values.append(value);
        }
        for (const PlainProperty &plain : plainProperties) {
            if (!has(QLatin1String(plain.name)))
                m_result.values.append(ofPalette(plain));
        }
        if (!has(QStringLiteral("font-size")) && !has(QStringLiteral("font-family")))
            m_result.values.append(ofFont());
        for (const char *name : drawnByStyle) {
            if (has(QLatin1String(name)))
                continue;
            InspectedValue value;
            value.property = QLatin1String(name);
            value.source = QStringLiteral("as the style draws it (%1)").arg(styleName());
            m_result.values.append(value);
        }
    }

private:
    DeclarationOrigin originOf(const StyleMatch &match) const
    {
        if (match.sheet == StyleMatch::application)
            return m_sheet.originOf(match.offset);
        return {match.place, match.value, {}};
    }

    InspectedDeclaration declaration(const StyleMatch &match) const
    {
        InspectedDeclaration made{match, originOf(match), {}, {}};
        for (const StyleProperty &property : m_properties) {
            const bool isSetter =
                std::any_of(property.matches.cbegin(), property.matches.cend(),
                            [&](const StyleMatch &other) { return isSame(match, other); });
            if (!isSetter)
                continue;
            const StyleMatch &winner = property.winner();
            const bool isKnown =
                std::any_of(made.overriddenBy.cbegin(), made.overriddenBy.cend(),
                            [&](const StyleMatch &other) { return isSame(winner, other); });
            if (isSame(winner, match))
                made.inForce << property.name;
            else if (!isKnown)
                made.overriddenBy << winner;
        }
        return made;
    }

    bool has(const QString &property) const
    {
        return std::any_of(m_properties.cbegin(), m_properties.cend(),
                           [&](const StyleProperty &other) { return other.name == property; });
    }

    QString styleName() const
    {
        const QStyle *style = m_result.styledWidget->style();
        const QStyle *base =
            style->inherits("QStyleSheetStyle") ? style->findChild<QStyle *>() : style;
        if (!base)
            base = QApplication::style()->findChild<QStyle *>();
        return QLatin1String((base ? base : style)->metaObject()->className());
    }

    InspectedValue ofPalette(const PlainProperty &plain) const
    {
        const QWidget *widget = m_result.styledWidget;
        const QWidget *ground = groundOf(widget);
        const bool isGround = plain.role == QPalette::Window;
        QPalette::ColorRole role = plain.role;
        if (role == QPalette::WindowText)
            role = ground->foregroundRole();
        if (isGround) {
            role = ground->backgroundRole();
            widget = ground;
        }
        InspectedValue value;
        value.property = QLatin1String(plain.name);
        value.value = widget->palette().color(role).name();
        const QString roleName =
            QLatin1String(QMetaEnum::fromType<QPalette::ColorRole>().valueToKey(role));
        const QWidget *owner = widget;
        while (owner
               && !(owner->testAttribute(Qt::WA_SetPalette)
                    && owner->palette().isBrushSet(QPalette::Active, role)))
            owner = owner->parentWidget();
        const bool isOwn = owner == widget || owner == m_result.styledWidget;
        value.source = isOwn ? QStringLiteral("%1 of its own palette").arg(roleName)
            : owner
            ? QStringLiteral("%1 of the palette of its parent %2").arg(roleName, nameOf(owner))
            : QStringLiteral("%1 of the application's palette").arg(roleName);
        const bool isFilled = widget->isWindow() || widget->autoFillBackground();
        if (isGround && !isFilled)
            value.source += QStringLiteral(", if the style fills it; else the parent shows");
        return value;
    }

    InspectedValue ofFont() const
    {
        const QWidget *owner = m_result.styledWidget;
        while (owner && !owner->testAttribute(Qt::WA_SetFont))
            owner = owner->parentWidget();
        InspectedValue value;
        value.property = QStringLiteral("font");
        value.value = m_result.font.toString();
        value.source = owner == m_result.styledWidget ? QStringLiteral("its own font")
            : owner ? QStringLiteral("font of its parent %1").arg(nameOf(owner))
                    : QStringLiteral("the application's font");
        return value;
    }

    Inspection &m_result;
    const InspectedSheet &m_sheet;
    const QVector<StyleProperty> m_properties;
};

int lengthOf(const Inspection &inspection, const QString &property)
{
    const InspectedValue *value = inspection.value(property);
    if (!value || !value->isOfRule())
        return 0;
    // A shorthand names several; the first is the top, and for equal sides it is all of them.
    const QStringList words = value->value.split(QLatin1Char(' '));
    static const QStringList sides{QStringLiteral("top"), QStringLiteral("right"),
                                   QStringLiteral("bottom"), QStringLiteral("left")};
    QStringList lengths;
    for (QString word : words) {
        bool isLength = false;
        if (word.endsWith(QLatin1String("px")) || word.endsWith(QLatin1String("pt")))
            word.chop(2);
        word.toDouble(&isLength);
        if (isLength)
            lengths << word;
    }
    if (lengths.isEmpty())
        return 0;
    int side = 0;
    for (int i = 0; i < 4; ++i) {
        if (property.contains(sides.at(i)))
            side = i;
    }
    while (side >= lengths.size())
        side = side == 3 && lengths.size() > 1 ? 1 : side - 2 >= 0 ? side - 2 : 0;
    return qRound(lengths.at(side).toDouble());
}

QMargins marginsOf(const Inspection &inspection, const QString &pattern)
{
    const auto length = [&](const char *side) {
        return lengthOf(inspection, pattern.arg(QLatin1String(side)));
    };
    return {length("left"), length("top"), length("right"), length("bottom")};
}

// A side without a style has no width, whatever rules say of that; where no rule tells a style it is native.
bool hasBorder(const Inspection &inspection, const char *side)
{
    const QString property = QStringLiteral("border-%1-").arg(QLatin1String(side));
    const InspectedValue *image = inspection.value(QStringLiteral("border-image"));
    if (image && image->isOfRule())
        return true; // which is cut at the widths
    const InspectedValue *style = inspection.value(property + QLatin1String("style"));
    static const QRegularExpression drawn(
        QStringLiteral("\\b(dashed|dot-dash|dot-dot-dash|dotted|double|groove|inset|outset|ridge|"
                       "solid|native)\\b"),
        QRegularExpression::CaseInsensitiveOption);
    return !style || !style->isOfRule() || style->value.contains(drawn);
}

QMargins bordersOf(const Inspection &inspection)
{
    const auto width = [&](const char *side) {
        const QString property = QStringLiteral("border-%1-width").arg(QLatin1String(side));
        return hasBorder(inspection, side) ? lengthOf(inspection, property) : 0;
    };
    return {width("left"), width("top"), width("right"), width("bottom")};
}

} // namespace

QString nameOf(const QObject *object)
{
    const QString name = object->objectName();
    return QLatin1String(object->metaObject()->className())
        % (name.isEmpty() ? QString() : QString(QLatin1Char('#') % name));
}

Inspection Inspection::of(QWidget *widget, const WidgetPart &part, const InspectedSheet &sheet)
{
    Inspection made;
    made.widget = widget;
    made.styledWidget = paintedAs(widget);
    made.element = StyleElement::of(made.styledWidget, sheet.cascade().attributes());
    made.subControl = part.subControl;
    made.element.subControl = part.subControl;
    if (!part.states.isEmpty())
        made.element.states = part.states;
    made.font = made.styledWidget->font();
    made.palette = made.styledWidget->palette();
    Maker maker(&made, sheet);
    maker.makeRules();
    maker.makeValues();
    made.box.padding = marginsOf(made, QStringLiteral("padding-%1"));
    made.box.border = bordersOf(made);
    made.box.margin = marginsOf(made, QStringLiteral("margin-%1"));
    made.box.geometry = made.styledWidget->geometry();
    const QRect outer = part.rect.isEmpty() ? made.styledWidget->rect() : part.rect;
    made.box.contents =
        outer.marginsRemoved(made.box.padding + made.box.border + made.box.margin).size();
    return made;
}

const InspectedValue *Inspection::value(const QString &property) const
{
    const auto found =
        std::find_if(values.cbegin(), values.cend(),
                     [&](const InspectedValue &value) { return value.property == property; });
    return found == values.cend() ? nullptr : &*found;
}
