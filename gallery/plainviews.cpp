// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "plainviews.h"

#include <hvthemeapp/themedicon.h>

#include <QDockWidget>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QTextEdit>
#include <QToolBar>
#include <QToolBox>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace Gallery
{

namespace
{

constexpr QSize viewSize(250, 160);
constexpr QSize windowSize(520, 210);

QLabel *createContent(const char *text)
{
    auto *label = new QLabel(QString::fromLatin1(text));
    label->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    label->setMargin(8);
    return label;
}

} // namespace

QWidget *createTree()
{
    auto *tree = new QTreeWidget;
    tree->setFixedSize(viewSize);
    tree->setHeaderLabels({QStringLiteral("Name"), QStringLiteral("State")});
    for (const char *name : {"Spots", "Washes"}) {
        auto *group = new QTreeWidgetItem(tree, {QString::fromLatin1(name), QString()});
        for (const char *state : {"on", "off"}) {
            auto *item =
                new QTreeWidgetItem(group, {QStringLiteral("Unit"), QString::fromLatin1(state)});
            item->setCheckState(0, state[1] == 'n' ? Qt::Checked : Qt::Unchecked);
        }
        group->setExpanded(true);
    }
    tree->setCurrentItem(tree->topLevelItem(0)->child(0));
    return tree;
}

QWidget *createTable()
{
    auto *table = new QTableWidget(4, 3);
    table->setFixedSize(viewSize);
    table->horizontalHeader()->setDefaultSectionSize(70);
    table->setAlternatingRowColors(true);
    for (int i = 0; i < 12; ++i)
        table->setItem(i / 3, i % 3, new QTableWidgetItem(QString::number(i * 11)));
    table->setCurrentCell(1, 1);
    return table;
}

QWidget *createTabs()
{
    auto *tabs = new QTabWidget;
    tabs->setFixedSize(viewSize);
    auto *page = new QWidget;
    auto *column = new QVBoxLayout(page);
    column->addWidget(new QLabel(QStringLiteral("A page with a field:")));
    column->addWidget(new QLineEdit(QStringLiteral("Text")));
    column->addStretch();
    tabs->addTab(page, QStringLiteral("First"));
    tabs->addTab(createContent("Another page"), QStringLiteral("Second"));
    tabs->addTab(createContent("A third page"), QStringLiteral("Off"));
    tabs->setTabEnabled(2, false);
    return tabs;
}

QWidget *createToolBox()
{
    auto *box = new QToolBox;
    box->setFixedSize(viewSize);
    for (const char *title : {"One", "Two", "Three"})
        box->addItem(createContent("Content"), QString::fromLatin1(title));
    box->setItemEnabled(2, false);
    return box;
}

QWidget *createMainWindow()
{
    auto *window = new QMainWindow;
    window->setWindowFlags(Qt::Widget);
    window->setFixedSize(windowSize);
    for (const char *title : {"&File", "&Edit", "&View"}) {
        QMenu *menu = window->menuBar()->addMenu(QString::fromLatin1(title));
        menu->addAction(QStringLiteral("Entry"));
        menu->addAction(QStringLiteral("Disabled"))->setEnabled(false);
    }
    QToolBar *bar = window->addToolBar(QStringLiteral("Tools"));
    for (const char *icon : {"project_new", "project_save", "undo", "redo"})
        bar->addAction(HV::themedIcon(QString::fromLatin1(icon)), QString::fromLatin1(icon));
    bar->addSeparator();
    bar->actions().at(3)->setEnabled(false);
    window->setCentralWidget(
        new QTextEdit(QStringLiteral("A text in the middle of a main window.")));
    auto *dock = new QDockWidget(QStringLiteral("Dock"));
    auto *list = new QListWidget;
    list->addItems({QStringLiteral("First"), QStringLiteral("Second"), QStringLiteral("Third")});
    list->setCurrentRow(1);
    dock->setWidget(list);
    window->addDockWidget(Qt::RightDockWidgetArea, dock);
    window->statusBar()->showMessage(QStringLiteral("Ready"));
    return window;
}

QWidget *createMdiArea()
{
    auto *area = new QMdiArea;
    area->setFixedSize(windowSize);
    int offset = 12;
    for (const char *title : {"Behind", "In front"}) {
        QMdiSubWindow *window = area->addSubWindow(createContent("A window within a window"));
        window->setWindowTitle(QString::fromLatin1(title));
        window->setGeometry(offset, offset, 320, 120);
        offset += 60;
    }
    return area;
}

} // namespace Gallery
