// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

// What the pane is made of; what happens in it stands in inspectorpane.cpp.

#include <inspector/changelist.h>
#include <inspector/changepanel.h>
#include <inspector/inspectorpane.h>
#include <inspector/pickedpart.h>
#include <inspector/plaintree.h>
#include <inspector/propertyeditor.h>
#include <inspector/whynot.h>

#include <QtWidgets>

QWidget *InspectorPane::makeTools()
{
    auto *tools = new QWidget;
    auto *row = new QHBoxLayout(tools);
    row->setContentsMargins(0, 0, 0, 0);
    m_pick = new QToolButton;
    m_pick->setText(tr("&Pick"));
    m_pick->setShortcut(QKeySequence(QStringLiteral("Alt+P")));
    m_pick->setCheckable(true);
    m_pick->setAccessibleName(tr("Pick a widget with the mouse"));
    m_pick->setToolTip(
        tr("Point at a widget; Escape ends it. Ctrl+Shift+click picks at any time."));
    row->addWidget(m_pick);
    m_filter = new QLineEdit;
    m_filter->setToolTip(tr("Class, object name, property=value or text"));
    // Looks give hints inside of edits their own colour, so it stands beside.
    auto *filterLabel = new QLabel(tr("&Filter:"));
    filterLabel->setBuddy(m_filter);
    row->addWidget(filterLabel);
    m_filter->setAccessibleName(tr("Filter of the widgets"));
    m_filter->setClearButtonEnabled(false);
    row->addWidget(m_filter, 1);
    auto *again = new QPushButton(tr("&Refresh"));
    again->setShortcut(QKeySequence(Qt::Key_F5));
    row->addWidget(again);
    connect(m_pick, &QToolButton::toggled, &m_picker, &Picker::setPicking);
    connect(again, &QPushButton::clicked, this, &InspectorPane::refresh);
    connect(m_filter, &QLineEdit::textChanged, this, [this](const QString &text) {
        m_tree.setFilterFixedString(text);
        if (!text.isEmpty())
            m_widgets->expandAll();
        m_widgets->scrollTo(m_widgets->currentIndex());
    });
    auto *find = new QShortcut(QKeySequence::Find, this);
    find->setContext(Qt::WidgetWithChildrenShortcut);
    connect(find, &QShortcut::activated, m_filter, [this] { m_filter->setFocus(); });
    return tools;
}

QTreeWidget *InspectorPane::makeList(const QString &title, const QStringList &columns)
{
    auto *list = new PlainTree<QTreeWidget>;
    list->setHeaderLabels(columns);
    list->setAccessibleName(title);
    list->setUniformRowHeights(true);
    list->setColumnWidth(0, 260);
    if (columns.size() > 2)
        list->setColumnWidth(1, 150);
    m_tabs->addTab(list, title);
    connect(list, &QTreeWidget::currentItemChanged, this,
            [this](const QTreeWidgetItem *item) { showChange(item); });
    connect(list, &QTreeWidget::itemActivated, this, [this](const QTreeWidgetItem *item) {
        showChange(item);
        if (m_change->isVisible())
            m_change->setFocus(Qt::TabFocusReason); // which selects what is there
        else
            showUsersOf(item);
    });
    return list;
}

QWidget *InspectorPane::makeDetails()
{
    auto *details = new QWidget;
    auto *column = new QVBoxLayout(details);
    column->setContentsMargins(6, 0, 0, 0);
    m_picked = new PickedPart;
    column->addWidget(m_picked);
    connect(m_picked, &PickedPart::stateForced, this, &InspectorPane::force);
    connect(m_picked, &PickedPart::partChosen, this, [this](int index) {
        m_part = m_parts.value(index);
        look();
    });
    m_contrast = new QLabel;
    m_contrast->setAccessibleName(tr("Contrast of the text"));
    column->addWidget(m_contrast);
    m_tabs = new QTabWidget;
    m_tabs->setAccessibleName(tr("Why it looks so"));
    m_change = new ChangePanel(m_changes);
    m_values = makeList(tr("Values"), {tr("Property"), tr("Value"), tr("Where")});
    m_rules = makeList(tr("Rules"),
                       {tr("Rule"), tr("Value"), tr("Where"), tr("Weight"), tr("Overridden by")});
    m_boxes = makeList(tr("Box, font, palette"), {tr("What"), tr("Value")});
    m_theme = makeList(tr("Theme"), {tr("Key"), tr("Value")});
    m_whyNot = new WhyNot;
    m_tabs->addTab(m_whyNot, tr("Why not"));
    m_properties = new PropertyEditor(m_changes);
    m_tabs->addTab(m_properties, tr("Properties"));
    m_tabs->addTab(new ChangeList(m_changes), tr("Changes"));
    connect(m_tabs, &QTabWidget::currentChanged, this, [this] {
        const auto *list = qobject_cast<QTreeWidget *>(m_tabs->currentWidget());
        showChange(list ? list->currentItem() : nullptr);
    });
    auto *halves = new QSplitter(Qt::Vertical);
    halves->setChildrenCollapsible(false);
    halves->addWidget(m_tabs);
    halves->addWidget(m_change);
    halves->setStretchFactor(0, 1);
    halves->setSizes({260, 240});
    column->addWidget(halves, 1);
    auto *users = new QPushButton(tr("&Show everything that uses this"));
    users->setToolTip(tr("Of the rule, value, key or palette entry that is chosen above"));
    connect(users, &QPushButton::clicked, this, [this] {
        const auto *list = m_tabs->currentWidget()->inherits("QTreeWidget")
            ? static_cast<QTreeWidget *>(m_tabs->currentWidget())
            : nullptr;
        if (list && list->currentItem())
            showUsersOf(list->currentItem());
    });
    column->addWidget(users);
    return details;
}
