// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <inspector/widgettree.h>

#include <inspector/inspection.h>
#include <inspector/outline.h>

#include <QApplication>
#include <QSet>

#include <algorithm>
#include <tuple>

namespace
{

constexpr int numberRole = Qt::UserRole;
constexpr int searchRole = Qt::UserRole + 1;

QString textOf(const QWidget *widget)
{
    for (const char *property :
         {"text", "title", "windowTitle", "currentText", "placeholderText"}) {
        const QString text = widget->property(property).toString();
        if (!text.isEmpty())
            return text.left(60).simplified();
    }
    return {};
}

QString searchText(const QWidget *widget, const QString &shown)
{
    QString text = shown;
    const QList<QByteArray> names = widget->dynamicPropertyNames();
    for (const QByteArray &name : names) {
        if (!name.startsWith("_q_"))
            text += QLatin1Char(' ') % QString::fromLatin1(name) % QLatin1Char('=')
                % widget->property(name.constData()).toString();
    }
    for (const QMetaObject *meta = widget->metaObject()->superClass(); meta;
         meta = meta->superClass())
        text += QLatin1Char(' ') % QLatin1String(meta->className());
    return text;
}

// Qt hands its windows out in any order: what can be seen comes first, then the alphabet.
QWidgetList sortedWindows()
{
    QWidgetList windows = QApplication::topLevelWidgets();
    const auto rank = [](const QWidget *window) {
        return std::make_tuple(window->isHidden(), nameOf(window), textOf(window));
    };
    std::stable_sort(
        windows.begin(), windows.end(),
        [&rank](const QWidget *left, const QWidget *right) { return rank(left) < rank(right); });
    return windows;
}

} // namespace

WidgetTree::WidgetTree(std::function<bool(const QWidget *)> isOwn, QObject *parent)
    : QSortFilterProxyModel(parent)
    , m_isOwn(std::move(isOwn))
{
    setSourceModel(&m_items);
    setFilterRole(searchRole);
    setFilterCaseSensitivity(Qt::CaseInsensitive);
    setRecursiveFilteringEnabled(true);
}

void WidgetTree::append(QStandardItem *parent, QWidget *widget, QSet<const QWidget *> *known)
{
    // Graphics proxies may make a circle of parents.
    if (m_isOwn(widget) || Outline::isFrame(widget) || known->contains(widget))
        return;
    known->insert(widget);
    const QString text = textOf(widget);
    const QString shown = nameOf(widget)
        % (text.isEmpty() ? QString()
                          : QString(QStringLiteral("  “") % text % QStringLiteral("”")));
    auto *item = new QStandardItem(shown);
    item->setEditable(false);
    item->setData(m_widgets.size(), numberRole);
    item->setData(searchText(widget, shown), searchRole);
    if (!widget->isVisible())
        item->setForeground(QColor(110, 110, 110));
    m_widgets.append(widget);
    m_itemOf.insert(widget, item);
    const QObjectList &children = widget->children();
    for (QObject *child : children) {
        if (child->isWidgetType() && !static_cast<QWidget *>(child)->isWindow())
            append(item, static_cast<QWidget *>(child), known);
    }
    parent->appendRow(item); // with its children, so that views hear of it once
}

void WidgetTree::refresh()
{
    setSourceModel(nullptr); // nobody need hear of each item
    m_items.clear();
    m_widgets.clear();
    m_itemOf.clear();
    QSet<const QWidget *> known;
    const QWidgetList windows = sortedWindows();
    for (QWidget *window : windows) {
        const QWidget *above = window->parentWidget(); // dialogs have one
        while (above && !m_isOwn(above))
            above = above->parentWidget();
        if (!above)
            append(m_items.invisibleRootItem(), window, &known);
    }
    setSourceModel(&m_items);
}

QWidget *WidgetTree::widgetAt(const QModelIndex &index) const
{
    return index.isValid() ? m_widgets.value(index.data(numberRole).toInt()) : nullptr;
}

QModelIndex WidgetTree::indexOf(const QWidget *widget) const
{
    const QStandardItem *item = m_itemOf.value(widget);
    // A widget that is gone may have left its address to another one.
    const bool isIt = item && m_widgets.value(item->data(numberRole).toInt()) == widget;
    return isIt ? mapFromSource(item->index()) : QModelIndex();
}

QList<QWidget *> WidgetTree::widgets() const
{
    QList<QWidget *> all;
    for (const QPointer<QWidget> &widget : m_widgets) {
        if (widget)
            all.append(widget);
    }
    return all;
}
