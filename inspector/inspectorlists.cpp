// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <inspector/inspectorlists.h>

#include <analysis/theme/storedvalues.h>
#include <inspector/colorswatch.h>

#include <QCoreApplication>
#include <QFontInfo>
#include <QIcon>
#include <QMetaEnum>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

namespace
{

using namespace InspectorLists;

constexpr int swatchSide = 12;

QString tr(const char *text)
{
    return QCoreApplication::translate("InspectorPane", text);
}

QString placeText(const Place &place)
{
    return place.file.isEmpty() ? QStringLiteral("own style sheet:%1:%2")
                                      .arg(place.position.line)
                                      .arg(place.position.column)
                                : place.shortText();
}

QString fullPlace(const Place &place)
{
    return place.file.isEmpty() ? placeText(place) : place.text();
}

void setSwatch(QTreeWidgetItem *item, int column, const QString &text)
{
    const QColor color(text);
    if (color.isValid())
        item->setIcon(column,
                      colorSwatch(color, QSize(swatchSide, swatchSide),
                                  item->treeWidget()->devicePixelRatioF()));
}

void setUsers(QTreeWidgetItem *item, const QSet<int> &declarations, const QString &what)
{
    QVariantList offsets;
    for (const int offset : declarations)
        offsets << offset;
    item->setData(0, Declarations, offsets);
    item->setData(0, Name, what);
}

void setUsers(QTreeWidgetItem *item, UserKind kind, const QString &name)
{
    item->setData(0, Users, kind);
    item->setData(0, Name, name);
}

void setKey(QTreeWidgetItem *item, Kind kind, const QString &key, const QString &property)
{
    item->setData(0, Key, key);
    item->setData(0, KeyKind, int(kind));
    item->setData(0, Property, property);
}

QTreeWidgetItem *row(QTreeWidgetItem *parent, const QStringList &texts, const QString &place = {})
{
    auto *item = new QTreeWidgetItem(parent, texts);
    for (int column = 0; column < texts.size(); ++column)
        item->setToolTip(column, place.isEmpty() ? texts.at(column) : place);
    return item;
}

QString marginText(const QMargins &margins)
{
    return QStringLiteral("%1 %2 %3 %4")
        .arg(margins.top())
        .arg(margins.right())
        .arg(margins.bottom())
        .arg(margins.left());
}

QString noKeyReason(const InspectedValue &value)
{
    if (!value.isOfRule())
        return tr("%1 has no key of a theme: it is %2.").arg(value.property, value.source);
    if (!value.origin.isTemplate())
        return tr("%1 is set by a style sheet of the program's own (%2), which no theme changes.")
            .arg(value.property,
                 placeText(value.match.place.file.isEmpty() ? value.origin.place
                                                            : value.match.place));
    return tr("%1 is written in the template itself, %2, so it is the same in all themes.")
        .arg(value.property, value.origin.place.text());
}

// The key of a colour is what people look for where a value is made of several.
void setKeyOf(QTreeWidgetItem *item, const InspectedValue &value)
{
    item->setData(0, Property, value.property);
    const ValueChain *chosen = nullptr;
    for (const ValueChain &chain : value.chains) {
        if (!chosen || (chosen->token.kind != Kind::Color && chain.token.kind == Kind::Color))
            chosen = &chain;
    }
    if (chosen)
        setKey(item, chosen->token.kind, chosen->token.key, value.property);
    else
        item->setData(0, Reason, noKeyReason(value));
}

void addChain(QTreeWidgetItem *item, const ValueChain &chain, const InspectedValue &value)
{
    const QString token = Tokens::opening(chain.prefix, chain.token.kind) % chain.token.key;
    auto *link = row(item, {token, chain.value, placeText(value.origin.place)},
                     fullPlace(value.origin.place));
    setSwatch(link, 1, chain.value);
    setUsers(link, OfKey, chain.token.key);
    setKey(link, chain.token.kind, chain.token.key, value.property);
    for (const ExplanationStep &step : chain.steps) {
        using Topic = ExplanationStep::Topic;
        const QString where = step.place.file.isEmpty() ? QString() : step.place.text();
        auto *line = row(link, {step.text, QString(), where}, where);
        if (step.topic == Topic::Ineffective) {
            QFont font = item->treeWidget()->font();
            font.setStrikeOut(true);
            line->setFont(0, font);
            continue;
        }
        setKey(line, chain.token.kind, chain.token.key, value.property);
        if (!chain.palette.contains(step.paletteEntry))
            continue;
        setUsers(line, OfPalette, step.paletteEntry);
        setKey(line, Kind::Palette, step.paletteEntry, value.property);
    }
    link->setExpanded(true);
}

void addDeclaration(QTreeWidgetItem *item, const InspectedDeclaration &declaration,
                    const InspectedRule &rule, const InspectedSheet &sheet)
{
    QStringList by;
    for (const StyleMatch &other : declaration.overriddenBy)
        by << other.selector;
    auto *line = row(item,
                     {declaration.match.property, declaration.match.value,
                      placeText(declaration.origin.place), QString(), by.join(QLatin1String(", "))},
                     fullPlace(declaration.origin.place));
    setSwatch(line, 1, declaration.match.value);
    if (rule.isApplication)
        setUsers(line, {declaration.match.offset}, declaration.match.property);
    InspectedValue value;
    value.property = declaration.match.property;
    value.match = declaration.match;
    value.origin = declaration.origin;
    value.chains = sheet.chains(declaration.origin);
    setKeyOf(line, value);
    if (!declaration.isOverridden())
        return;
    for (int column = 0; column < 2; ++column) {
        QFont font = item->treeWidget()->font();
        font.setStrikeOut(true);
        line->setFont(column, font);
        line->setData(column, Qt::AccessibleTextRole, tr("overridden: %1").arg(line->text(column)));
    }
}

} // namespace

void InspectorLists::showRules(QTreeWidget *list, const Inspection &inspection,
                               const InspectedSheet &sheet)
{
    list->clear();
    for (const InspectedRule &rule : inspection.rules) {
        QString title = rule.selector;
        if (!rule.source.isEmpty())
            title += tr("  (of %1 itself)").arg(rule.source);
        else if (rule.isOfWidget)
            title += tr("  (of the widget)");
        auto *item = new QTreeWidgetItem(
            list, {title, QString(), placeText(rule.place), QString::number(rule.specificity)});
        item->setToolTip(0, fullPlace(rule.place));
        item->setToolTip(2, fullPlace(rule.place));
        if (rule.isApplication)
            setUsers(item, sheet.declarationsOfRule(rule.offset), rule.selector);
        for (const InspectedDeclaration &declaration : rule.declarations)
            addDeclaration(item, declaration, rule, sheet);
        item->setExpanded(true);
    }
}

void InspectorLists::showValues(QTreeWidget *list, const Inspection &inspection,
                                const InspectedSheet &sheet)
{
    list->clear();
    for (const InspectedValue &value : inspection.values) {
        const QString place = value.isOfRule() ? placeText(value.origin.place) : value.source;
        auto *item = new QTreeWidgetItem(list, {value.property, value.value, place});
        setSwatch(item, 1, value.value);
        item->setToolTip(2, value.isOfRule() ? fullPlace(value.origin.place) : value.source);
        if (value.isOfRule() && value.match.sheet == StyleMatch::application)
            setUsers(item, {value.match.offset}, value.property);
        setKeyOf(item, value);
        for (const ValueChain &chain : value.chains)
            addChain(item, chain, value);
    }
    const Place unread = sheet.unreadPlace();
    if (unread.position.line > 0)
        new QTreeWidgetItem(
            list,
            {tr("Qt cannot read the style sheet from here on"), QString(), placeText(unread)});
    if (!sheet.problem().isEmpty())
        new QTreeWidgetItem(list,
                            {tr("The theme's files cannot be read"), QString(), sheet.problem()});
}

void InspectorLists::showBox(QTreeWidget *list, const Inspection &inspection)
{
    list->clear();
    const BoxModel &box = inspection.box;
    const auto add = [list](const QString &what, const QString &value) {
        auto *item = new QTreeWidgetItem(list, {what, value});
        setSwatch(item, 1, value);
    };
    add(tr("geometry"),
        QStringLiteral("%1, %2  %3 × %4")
            .arg(box.geometry.x())
            .arg(box.geometry.y())
            .arg(box.geometry.width())
            .arg(box.geometry.height()));
    add(tr("margin"), marginText(box.margin));
    add(tr("border"), marginText(box.border));
    add(tr("padding"), marginText(box.padding));
    add(tr("contents"),
        QStringLiteral("%1 × %2").arg(box.contents.width()).arg(box.contents.height()));
    const QFontInfo font(inspection.font);
    add(tr("font"),
        QStringLiteral("%1, %2 px, weight %3")
            .arg(font.family())
            .arg(font.pixelSize())
            .arg(inspection.font.weight()));
    const auto roles = QMetaEnum::fromType<QPalette::ColorRole>();
    for (int role = 0; role < QPalette::NColorRoles; ++role) {
        if (role != QPalette::NoRole)
            add(QLatin1String(roles.valueToKey(role)),
                inspection.palette.color(QPalette::ColorRole(role)).name());
    }
}

void InspectorLists::showTheme(QTreeWidget *list, const InspectedSheet &sheet)
{
    QSet<QString> closed;
    for (int i = 0; i < list->topLevelItemCount(); ++i) {
        if (!list->topLevelItem(i)->isExpanded())
            closed << list->topLevelItem(i)->text(0);
    }
    const bool isFirst = list->topLevelItemCount() == 0;
    list->clear();
    const ThemeProject *project = sheet.project();
    if (!project)
        return;
    const ThemeStack &theme = project->theme(sheet.theme().name);
    for (const Kind kind :
         {Kind::Palette, Kind::Color, Kind::Integer, Kind::ImageFile, Kind::Flag}) {
        auto values = storedValues(theme, project->options().applicationFolder, kind);
        sortAsWritten(&values, theme);
        auto *group = new QTreeWidgetItem(
            list, {QStringLiteral("[%1]").arg(sectionName(kind)), QString::number(values.size())});
        for (const StoredValue &value : qAsConst(values)) {
            if (value.isHidden)
                continue;
            const bool isColor = value.value.userType() == QMetaType::QColor;
            const QColor ofAccent = sheet.colorOfAccent(kind, value.key());
            const auto color = ofAccent.isValid() ? ofAccent : value.value.value<QColor>();
            QString text = isColor
                ? color.name(color.alpha() < 255 ? QColor::HexArgb : QColor::HexRgb)
                : valueText(value.value);
            if (ofAccent.isValid())
                text += QLatin1String("  ") % tr("of the accent");
            else if (!value.palette.isEmpty())
                text += QLatin1String("  ") % value.palette;
            auto *item = row(group, {value.key(), text}, value.definition->valuePlace().text());
            if (isColor)
                setSwatch(item, 1, color.name(QColor::HexArgb));
            setUsers(item, kind == Kind::Palette ? OfPalette : OfKey, value.key());
            setKey(item, kind, value.key(), QString());
        }
        group->setExpanded(isFirst ? kind == Kind::Palette : !closed.contains(group->text(0)));
    }
}

QSet<int> InspectorLists::declarationsOf(const QTreeWidgetItem *item, const InspectedSheet &sheet)
{
    const QString what = item->data(0, Name).toString();
    const int kind = item->data(0, Users).toInt();
    if (kind == OfKey)
        return sheet.declarationsOfKey(what);
    if (kind == OfPalette)
        return sheet.declarationsOfPalette(what);
    QSet<int> declarations;
    const QVariantList offsets = item->data(0, Declarations).toList();
    for (const QVariant &offset : offsets)
        declarations << offset.toInt();
    return declarations;
}

QString InspectorLists::idOf(const QTreeWidgetItem *item)
{
    if (!item)
        return {};
    QStringList ids; // with those above, as one key may stand behind several properties
    for (; item; item = item->parent()) {
        const QString key = item->data(0, Key).toString();
        ids << item->data(0, Property).toString() % QLatin1Char('/')
                % (key.isEmpty() ? item->text(0) : key);
    }
    return ids.join(QLatin1Char('\n'));
}

QTreeWidgetItem *InspectorLists::find(const QTreeWidget *list, const QString &id)
{
    for (QTreeWidgetItemIterator it(const_cast<QTreeWidget *>(list)); *it; ++it) { // NOLINT
        if (idOf(*it) == id)
            return *it;
    }
    return nullptr;
}
