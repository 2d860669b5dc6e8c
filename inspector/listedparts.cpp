// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

// Parts of which a widget shows many: items, tabs, entries of menus, sections.

#include <inspector/parts.h>

#include <analysis/style/styleelement.h>

#include <QtWidgets>

namespace
{

QSet<QString> position(int index, int count)
{
    if (count == 1)
        return {QStringLiteral("only-one")};
    return {index == 0               ? QStringLiteral("first")
                : index == count - 1 ? QStringLiteral("last")
                                     : QStringLiteral("middle")};
}

void setEnabled(QSet<QString> *states, bool isEnabled)
{
    set(states, "enabled", isEnabled);
    set(states, "disabled", !isEnabled);
    if (!isEnabled)
        set(states, "hover", false);
}

bool isHidden(const QAbstractItemView *view, int row)
{
    if (const auto *list = qobject_cast<const QListView *>(view))
        return list->isRowHidden(row);
    const auto *table = qobject_cast<const QTableView *>(view);
    return table && table->isRowHidden(row);
}

// Rows before that of an index that are not hidden: Qt paints every other one as alternate.
int rowsBefore(const QAbstractItemView *view, const QModelIndex &index)
{
    int count = 0;
    if (const auto *tree = qobject_cast<const QTreeView *>(view)) {
        for (QModelIndex above = tree->indexAbove(index); above.isValid();
             above = tree->indexAbove(above))
            ++count;
        return count;
    }
    for (int row = 0; row < index.row(); ++row)
        count += isHidden(view, row) ? 0 : 1;
    return count;
}

// Tells whether each row lies below the one before it.
bool goesDown(const QAbstractItemView *view)
{
    if (const auto *list = qobject_cast<const QListView *>(view))
        return list->flow() == QListView::TopToBottom && !list->isWrapping()
            && list->viewMode() == QListView::ListMode;
    if (const auto *table = qobject_cast<const QTableView *>(view))
        return !table->verticalHeader()->sectionsMoved();
    return qobject_cast<const QTreeView *>(view) != nullptr;
}

// The columns that may be seen, of models that may have thousands.
QVector<int> seenColumns(const QAbstractItemView *view)
{
    QVector<int> columns;
    if (const auto *list = qobject_cast<const QListView *>(view))
        return {list->modelColumn()};
    const auto *table = qobject_cast<const QTableView *>(view);
    const auto *tree = qobject_cast<const QTreeView *>(view);
    const QHeaderView *header = table ? table->horizontalHeader() : tree ? tree->header() : nullptr;
    const int count = header ? header->count() : view->model()->columnCount(view->rootIndex());
    for (int column = 0; column < count; ++column) {
        const int left = header ? header->sectionViewportPosition(column) : 0;
        const bool isSeen = !header
            || (!header->isSectionHidden(column) && left < view->viewport()->width()
                && left + header->sectionSize(column) > 0);
        if (isSeen)
            columns << column;
    }
    return columns;
}

} // namespace

void Parts::addItems(const QAbstractItemView *view)
{
    const QAbstractItemModel *model = view->model();
    const QRect visible = view->viewport()->rect();
    if (!model)
        return;
    QModelIndex index = view->indexAt(QPoint(2, 2));
    if (!index.isValid())
        index = model->index(0, 0, view->rootIndex());
    const QVector<int> columns = seenColumns(view);
    const bool isDownward = goesDown(view);
    int number = view->alternatingRowColors() && index.isValid() ? rowsBefore(view, index) : 0;
    for (int row = 0; index.isValid() && row < most; ++row) {
        if (isDownward && view->visualRect(index).top() > visible.bottom())
            break;
        for (const int column : columns) {
            if (column >= model->columnCount(index.parent()))
                continue;
            const QModelIndex cell = index.sibling(index.row(), column);
            if (!view->visualRect(cell).intersects(visible))
                continue;
            addItem(view, cell, view->alternatingRowColors() && number % 2 == 1);
        }
        number += isHidden(view, index.row()) ? 0 : 1;
        const auto *tree = qobject_cast<const QTreeView *>(view);
        index = tree ? tree->indexBelow(index) : index.sibling(index.row() + 1, index.column());
    }
    if (qobject_cast<const QTreeView *>(view))
        addQuiet({"branch"});
}

void Parts::addItem(const QAbstractItemView *view, const QModelIndex &cell, bool isAlternate)
{
    QSet<QString> states = m_states;
    setEnabled(&states,
               states.contains(QStringLiteral("enabled"))
                   && cell.flags().testFlag(Qt::ItemIsEnabled));
    const bool isSelected = view->selectionModel() && view->selectionModel()->isSelected(cell);
    const bool hasFocus =
        cell == view->currentIndex() && m_states.contains(QStringLiteral("focus"));
    set(&states, "selected", isSelected);
    set(&states, "focus", hasFocus);
    set(&states, "hover", false);
    set(&states, "alternate", isAlternate);
    states += position(cell.column(), cell.model()->columnCount(cell.parent()));
    const QString label = cell.data().toString();
    add("item", view->visualRect(cell), states, label);
    const QVariant check = cell.data(Qt::CheckStateRole);
    if (!check.isValid())
        return;
    set(&states, "checked", check.toInt() == Qt::Checked);
    set(&states, "unchecked", check.toInt() == Qt::Unchecked);
    set(&states, "indeterminate", check.toInt() == Qt::PartiallyChecked);
    add("indicator", {}, states, label);
}

void Parts::addTabs(const QTabBar *bar)
{
    for (int i = 0; i < bar->count(); ++i) {
        QSet<QString> states = m_states;
        setEnabled(&states, bar->isEnabled() && bar->isTabEnabled(i));
        set(&states, "selected", i == bar->currentIndex());
        set(&states, "focus", i == bar->currentIndex() && states.contains(QStringLiteral("focus")));
        set(&states, "hover", false);
        set(&states, "previous-selected", i - 1 == bar->currentIndex());
        set(&states, "next-selected", i + 1 == bar->currentIndex());
        states -= {QStringLiteral("horizontal"), QStringLiteral("vertical")};
        const bool isUpright = bar->shape() == QTabBar::RoundedWest
            || bar->shape() == QTabBar::RoundedEast || bar->shape() == QTabBar::TriangularWest
            || bar->shape() == QTabBar::TriangularEast;
        states << (isUpright ? QStringLiteral("vertical") : QStringLiteral("horizontal"));
        states += position(i, bar->count());
        static const char *const sides[] = {"top", "bottom", "left", "right"};
        states << QLatin1String(sides[int(bar->shape()) % 4]);
        add("tab", bar->tabRect(i), states, bar->tabText(i));
        for (const auto side : {QTabBar::LeftSide, QTabBar::RightSide}) {
            const QWidget *button = bar->tabButton(i, side);
            if (!isCloseButton(button))
                continue;
            QSet<QString> ofButton = StyleElement::of(button, {}).states;
            set(&ofButton, "selected", i == bar->currentIndex());
            add("close-button", button->geometry(), ofButton, bar->tabText(i));
        }
    }
}

void Parts::addTabs(const QToolBox *box)
{
    QVector<QRect> rects; // the layout has a button and a page by turns, in the order of the pages
    for (int i = 0; box->layout() && i < box->layout()->count(); ++i) {
        const QWidget *button = box->layout()->itemAt(i)->widget();
        if (button && button->objectName() == QLatin1String("qt_toolbox_toolboxbutton"))
            rects.append(button->geometry());
    }
    for (int i = 0; i < box->count(); ++i) {
        QSet<QString> states = m_states;
        setEnabled(&states, box->isEnabled() && box->isItemEnabled(i));
        set(&states, "selected", i == box->currentIndex());
        set(&states, "previous-selected", i - 1 == box->currentIndex());
        set(&states, "next-selected", i + 1 == box->currentIndex());
        states += position(i, box->count());
        add("tab", rects.value(i), states, box->itemText(i));
    }
}

void Parts::addActions(const QWidget *widget)
{
    const auto *menu = qobject_cast<const QMenu *>(widget);
    const auto *bar = qobject_cast<const QMenuBar *>(widget);
    const QAction *active = menu ? menu->activeAction() : bar->activeAction();
    const auto actions = widget->actions();
    for (QAction *action : actions) {
        const QRect rect = menu ? menu->actionGeometry(action) : bar->actionGeometry(action);
        if (!action->isVisible() || rect.isEmpty())
            continue;
        if (action->isSeparator()) {
            add("separator", rect, quiet());
            continue;
        }
        QSet<QString> states = m_states;
        setEnabled(&states, widget->isEnabled() && action->isEnabled());
        set(&states, "selected", action == active);
        set(&states, "hover", false);
        set(&states, "checked", action->isCheckable() && action->isChecked());
        set(&states, "unchecked", action->isCheckable() && !action->isChecked());
        set(&states, "default", menu && action == menu->defaultAction());
        if (action->isCheckable()) {
            const bool isExclusive = action->actionGroup() && action->actionGroup()->isExclusive();
            set(&states, isExclusive ? "exclusive" : "non-exclusive", true);
            set(&states, action->isChecked() ? "on" : "off", true);
        }
        add("item", rect, states, action->text());
        if (action->isCheckable())
            add("indicator", {}, states, action->text());
        if (action->menu())
            add("right-arrow", {}, states, action->text());
    }
    if (menu && menu->isTearOffEnabled())
        addQuiet({"tearoff"});
}

void Parts::addSections(const QHeaderView *header)
{
    for (int visual = 0; visual < header->count(); ++visual) {
        const int section = header->logicalIndex(visual);
        const int from = header->sectionViewportPosition(section);
        const int size = header->sectionSize(section);
        if (header->isSectionHidden(section))
            continue;
        const bool isRow = header->orientation() == Qt::Vertical;
        const QRect rect =
            isRow ? QRect(0, from, header->width(), size) : QRect(from, 0, size, header->height());
        if (!rect.intersects(header->viewport()->rect()))
            continue;
        QSet<QString> states = quiet() + position(visual, header->count());
        set(&states, "active", m_isActive);
        set(&states, "horizontal", !isRow);
        set(&states, "vertical", isRow);
        const QItemSelectionModel *selection = header->selectionModel();
        if (selection && header->highlightSections()) {
            const QModelIndex root = header->rootIndex();
            const bool isTouched = isRow ? selection->rowIntersectsSelection(section, root)
                                         : selection->columnIntersectsSelection(section, root);
            const bool isWhole = isRow ? selection->isRowSelected(section, root)
                                       : selection->isColumnSelected(section, root);
            set(&states, "on", isTouched);
            set(&states, "checked", isTouched);
            set(&states, "pressed", isWhole);
        }
        const QString label =
            header->model()->headerData(section, header->orientation()).toString();
        add("section", rect, states, label);
        if (header->isSortIndicatorShown() && header->sortIndicatorSection() == section)
            add(header->sortIndicatorOrder() == Qt::AscendingOrder ? "up-arrow" : "down-arrow", {},
                states, label);
    }
}
