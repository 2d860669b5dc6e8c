// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <inspector/widgetparts.h>

#include <analysis/style/styleelement.h>

#include <QtWidgets>

namespace
{

constexpr int mostParts = 400;

// The options of widgets are filled by protected functions; a class that is never made reaches them.
template<typename Widget, typename Option>
struct OptionOf : Widget {
    using Filler = void (Widget::*)(Option *) const;
    static Option of(const Widget *widget)
    {
        Option option;
        (widget->*static_cast<Filler>(&OptionOf::initStyleOption))(&option);
        return option;
    }
};

// What StyleElement leaves to those who know the painter.
QSet<QString> ownStates(const QWidget *widget)
{
    QSet<QString> states;
    const auto *window = qobject_cast<const QMainWindow *>(widget->parentWidget());
    auto *bar = qobject_cast<QToolBar *>(const_cast<QWidget *>(widget)); // NOLINT
    if (window && bar) {
        static const QHash<int, const char *> sides{{Qt::LeftToolBarArea, "left"},
                                                    {Qt::RightToolBarArea, "right"},
                                                    {Qt::TopToolBarArea, "top"},
                                                    {Qt::BottomToolBarArea, "bottom"}};
        states << QLatin1String(sides.value(int(window->toolBarArea(bar)), "top"));
    }
    const QWidget *list = nullptr;
    if (qobject_cast<const QComboBox *>(widget)) {
        const QObjectList &children = widget->children();
        for (const QObject *child : children) {
            if (child->inherits("QComboBoxPrivateContainer"))
                list = static_cast<const QWidget *>(child);
        }
    }
    if (list && list->isVisible())
        states << QStringLiteral("on") << QStringLiteral("checked");
    return states;
}

class Parts
{
public:
    explicit Parts(const QWidget *widget)
        : m_widget(widget)
        , m_states(StyleElement::of(widget, {}).states + ownStates(widget))
    {
        add(QString(), widget->rect(), m_states);
        m_isActive = m_states.contains(QStringLiteral("active"));
    }

    QVector<WidgetPart> all() const { return m_parts; }
    const QSet<QString> &states() const { return m_states; }

    // What Qt leaves of the widget's states for a sub-control that the mouse is not at.
    QSet<QString> quiet() const
    {
        QSet<QString> states = m_states;
        return states.intersect(
            {QStringLiteral("enabled"), QStringLiteral("disabled"), QStringLiteral("horizontal"),
             QStringLiteral("vertical"), QStringLiteral("focus"), QStringLiteral("read-only"),
             QStringLiteral("editable"), QStringLiteral("closed"), QStringLiteral("no-frame")});
    }

    void add(const QString &subControl, const QRect &rect, const QSet<QString> &states,
             const QString &label = {})
    {
        if (m_parts.size() < mostParts)
            m_parts.append({subControl, label, rect, states});
    }
    void add(const char *subControl, const QRect &rect, const QSet<QString> &states,
             const QString &label = {})
    {
        add(QLatin1String(subControl), rect, states, label);
    }

    void addQuiet(std::initializer_list<const char *> subControls)
    {
        for (const char *subControl : subControls)
            add(subControl, {}, quiet());
    }

    // The rectangle of a sub-control of a complex widget, with its states.
    template<typename Option>
    void addComplex(const char *subControl, QStyle::ComplexControl control, QStyle::SubControl part,
                    const Option &option)
    {
        const QRect rect = m_widget->style()->subControlRect(control, &option, part, m_widget);
        const bool isActive = option.activeSubControls.testFlag(part);
        if (rect.isValid())
            add(subControl, rect, isActive ? m_states : quiet());
    }

    void addItems(const QAbstractItemView *view);
    void addTabs(const QTabBar *bar);
    void addTabs(const QToolBox *box);
    void addActions(const QWidget *menu);
    void addSections(const QHeaderView *header);
    void addButton(const QAbstractButton *button);
    void addRange();
    void addEdit();
    void addContainer();

private:
    const QWidget *m_widget;
    const QSet<QString> m_states;
    bool m_isActive = false;
    QVector<WidgetPart> m_parts;
};

QSet<QString> position(int index, int count)
{
    if (count == 1)
        return {QStringLiteral("only-one")};
    return {index == 0               ? QStringLiteral("first")
                : index == count - 1 ? QStringLiteral("last")
                                     : QStringLiteral("middle")};
}

void set(QSet<QString> *states, const char *name, bool holds)
{
    if (holds)
        states->insert(QLatin1String(name));
    else
        states->remove(QLatin1String(name));
}

void setEnabled(QSet<QString> *states, bool isEnabled)
{
    set(states, "enabled", isEnabled);
    set(states, "disabled", !isEnabled);
    if (!isEnabled)
        set(states, "hover", false);
}

void Parts::addItems(const QAbstractItemView *view)
{
    const QAbstractItemModel *model = view->model();
    const QRect visible = view->viewport()->rect();
    if (!model)
        return;
    QModelIndex index = view->indexAt(QPoint(2, 2));
    if (!index.isValid())
        index = model->index(0, 0, view->rootIndex());
    const QModelIndex focus = view->currentIndex();
    for (int row = 0; index.isValid() && row < mostParts; ++row) {
        for (int column = 0; column < model->columnCount(index.parent()); ++column) {
            const QModelIndex cell = index.sibling(index.row(), column);
            const QRect rect = view->visualRect(cell);
            if (!rect.intersects(visible))
                continue;
            QSet<QString> states = m_states;
            setEnabled(&states,
                       states.contains(QStringLiteral("enabled"))
                           && cell.flags().testFlag(Qt::ItemIsEnabled));
            const bool isSelected =
                view->selectionModel() && view->selectionModel()->isSelected(cell);
            set(&states, "selected", isSelected);
            set(&states, "focus", cell == focus && m_states.contains(QStringLiteral("focus")));
            set(&states, "hover", false);
            set(&states, "alternate", view->alternatingRowColors() && row % 2 == 1);
            states += position(column, model->columnCount(index.parent()));
            const QString label = cell.data().toString();
            add("item", rect, states, label);
            const QVariant check = cell.data(Qt::CheckStateRole);
            if (check.isValid()) {
                set(&states, "checked", check.toInt() == Qt::Checked);
                set(&states, "unchecked", check.toInt() == Qt::Unchecked);
                set(&states, "indeterminate", check.toInt() == Qt::PartiallyChecked);
                add("indicator", {}, states, label);
            }
        }
        const auto *tree = qobject_cast<const QTreeView *>(view);
        index = tree ? tree->indexBelow(index) : index.sibling(index.row() + 1, index.column());
    }
    if (qobject_cast<const QTreeView *>(view))
        addQuiet({"branch"});
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
    }
}

void Parts::addTabs(const QToolBox *box)
{
    const auto buttons = box->findChildren<QAbstractButton *>(
        QStringLiteral("qt_toolbox_toolboxbutton"), Qt::FindDirectChildrenOnly);
    for (int i = 0; i < box->count(); ++i) {
        QSet<QString> states = m_states;
        setEnabled(&states, box->isEnabled() && box->isItemEnabled(i));
        set(&states, "selected", i == box->currentIndex());
        set(&states, "previous-selected", i - 1 == box->currentIndex());
        set(&states, "next-selected", i + 1 == box->currentIndex());
        states += position(i, box->count());
        QRect rect;
        for (const QAbstractButton *button : buttons) {
            if (button->text() == box->itemText(i))
                rect = button->geometry();
        }
        add("tab", rect, states, box->itemText(i));
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
        add("section", rect, states,
            header->model()->headerData(section, header->orientation()).toString());
    }
}

void Parts::addButton(const QAbstractButton *button)
{
    QStyleOptionButton option;
    option.initFrom(button);
    if (qobject_cast<const QCheckBox *>(button))
        add("indicator",
            button->style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, button),
            m_states);
    if (qobject_cast<const QRadioButton *>(button))
        add("indicator",
            button->style()->subElementRect(QStyle::SE_RadioButtonIndicator, &option, button),
            m_states);
    const auto *push = qobject_cast<const QPushButton *>(button);
    if (push && push->menu())
        add("menu-indicator", {}, m_states);
    const auto *tool = qobject_cast<const QToolButton *>(button);
    if (!tool || !tool->menu())
        return;
    if (tool->popupMode() == QToolButton::MenuButtonPopup)
        addQuiet({"menu-button", "menu-arrow"});
    else
        add("menu-indicator", {}, m_states);
}

void Parts::addRange()
{
    if (const auto *bar = qobject_cast<const QScrollBar *>(m_widget)) {
        const auto option = OptionOf<QScrollBar, QStyleOptionSlider>::of(bar);
        const auto add = [&](const char *name, QStyle::SubControl part) {
            addComplex(name, QStyle::CC_ScrollBar, part, option);
        };
        add("handle", QStyle::SC_ScrollBarSlider);
        add("add-line", QStyle::SC_ScrollBarAddLine);
        add("sub-line", QStyle::SC_ScrollBarSubLine);
        add("add-page", QStyle::SC_ScrollBarAddPage);
        add("sub-page", QStyle::SC_ScrollBarSubPage);
        addQuiet({"up-arrow", "down-arrow", "left-arrow", "right-arrow"});
    } else if (const auto *slider = qobject_cast<const QSlider *>(m_widget)) {
        const auto option = OptionOf<QSlider, QStyleOptionSlider>::of(slider);
        addComplex("groove", QStyle::CC_Slider, QStyle::SC_SliderGroove, option);
        addComplex("handle", QStyle::CC_Slider, QStyle::SC_SliderHandle, option);
        addQuiet({"add-page", "sub-page"});
    } else if (const auto *progress = qobject_cast<const QProgressBar *>(m_widget)) {
        QStyleOptionProgressBar option;
        option.initFrom(progress);
        add("chunk",
            progress->style()->subElementRect(QStyle::SE_ProgressBarContents, &option, progress),
            m_states);
    }
}

void Parts::addEdit()
{
    if (const auto *combo = qobject_cast<const QComboBox *>(m_widget)) {
        const auto option = OptionOf<QComboBox, QStyleOptionComboBox>::of(combo);
        addComplex("drop-down", QStyle::CC_ComboBox, QStyle::SC_ComboBoxArrow, option);
        addQuiet({"down-arrow"});
    } else if (const auto *spin = qobject_cast<const QAbstractSpinBox *>(m_widget)) {
        const auto option = OptionOf<QAbstractSpinBox, QStyleOptionSpinBox>::of(spin);
        addComplex("up-button", QStyle::CC_SpinBox, QStyle::SC_SpinBoxUp, option);
        addComplex("down-button", QStyle::CC_SpinBox, QStyle::SC_SpinBoxDown, option);
        addQuiet({"up-arrow", "down-arrow"});
    }
}

void Parts::addContainer()
{
    if (const auto *box = qobject_cast<const QGroupBox *>(m_widget)) {
        const auto option = OptionOf<QGroupBox, QStyleOptionGroupBox>::of(box);
        addComplex("title", QStyle::CC_GroupBox, QStyle::SC_GroupBoxLabel, option);
        if (box->isCheckable()) {
            const QRect rect = box->style()->subControlRect(QStyle::CC_GroupBox, &option,
                                                            QStyle::SC_GroupBoxCheckBox, box);
            QSet<QString> states = m_states;
            set(&states, box->isChecked() ? "checked" : "unchecked", true);
            set(&states, box->isChecked() ? "on" : "off", true);
            add("indicator", rect, states);
        }
    } else if (const auto *tabs = qobject_cast<const QTabWidget *>(m_widget)) {
        const QRect rect =
            tabs->currentWidget() ? tabs->currentWidget()->parentWidget()->geometry() : QRect();
        add("pane", rect, m_states);
    } else if (const auto *splitter = qobject_cast<const QSplitter *>(m_widget)) {
        for (int i = 1; i < splitter->count(); ++i)
            add("handle", splitter->handle(i)->geometry(), quiet());
    } else if (const auto *toolBox = qobject_cast<const QToolBox *>(m_widget)) {
        addTabs(toolBox);
    } else if (m_widget->inherits("QTableCornerButton")) {
        addQuiet({"section"});
    } else if (qobject_cast<const QDockWidget *>(m_widget)) {
        addQuiet({"title", "close-button", "float-button"});
    } else if (qobject_cast<const QMainWindow *>(m_widget)) {
        addQuiet({"separator"});
    } else if (qobject_cast<const QStatusBar *>(m_widget)) {
        addQuiet({"item"});
    } else if (qobject_cast<const QToolBar *>(m_widget)) {
        addQuiet({"handle", "separator"});
    } else if (qobject_cast<const QAbstractScrollArea *>(m_widget)) {
        addQuiet({"corner"});
    }
}

} // namespace

QWidget *paintedAs(QWidget *widget)
{
    QWidget *parent = widget->parentWidget();
    const bool isHelper = widget->inherits("QSplitterHandle") || widget->inherits("QToolBoxButton")
        || widget->inherits("QToolBarSeparator") || widget->inherits("QComboBoxPrivateContainer");
    if (parent && isHelper)
        return parent;
    return StyleElement::styledWidget(widget) == widget ? widget : parent;
}

QVector<WidgetPart> widgetParts(const QWidget *widget)
{
    Parts parts(widget);
    const auto *header = qobject_cast<const QHeaderView *>(widget);
    if (header && header->model())
        parts.addSections(header);
    else if (const auto *view = qobject_cast<const QAbstractItemView *>(widget); view && !header)
        parts.addItems(view);
    else if (const auto *bar = qobject_cast<const QTabBar *>(widget))
        parts.addTabs(bar);
    else if (qobject_cast<const QMenu *>(widget) || qobject_cast<const QMenuBar *>(widget))
        parts.addActions(widget);
    else if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        parts.addButton(button);
    parts.addRange();
    parts.addEdit();
    parts.addContainer();
    return parts.all();
}

WidgetPart widgetPartAt(const QWidget *widget, const QPoint &position)
{
    const QVector<WidgetPart> parts = widgetParts(widget);
    const auto area = [](const QRect &rect) { return rect.width() * rect.height(); };
    const WidgetPart *best = &parts.constFirst();
    for (const WidgetPart &part : parts) {
        if (part.rect.contains(position) && area(part.rect) < area(best->rect))
            best = &part;
    }
    return *best;
}
