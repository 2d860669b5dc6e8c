// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "applicationpage.h"

#include "applicationpanels.h"

#include <QDockWidget>
#include <QHBoxLayout>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QVBoxLayout>
#include <QVariant>

namespace Gallery
{

namespace
{

constexpr QSize pageSize(1200, 720);

QWidget *createDockTitle(const QString &title)
{
    auto *bar = new QWidget;
    bar->setProperty("style", QStringLiteral("BG4"));
    auto *layout = new QHBoxLayout(bar);
    layout->setContentsMargins(12, 4, 6, 4);
    layout->setSpacing(6);
    auto *label = new QLabel(title);
    label->setProperty("fontWeight", QStringLiteral("bold"));
    layout->addWidget(label);
    layout->addStretch();
    layout->addWidget(createImageButton("nail", true));
    layout->addWidget(createImageButton("close"));
    return bar;
}

void addDock(QMainWindow *window, const QString &title, Qt::DockWidgetArea area, QWidget *panel)
{
    auto *dock = new QDockWidget(title, window);
    dock->setTitleBarWidget(createDockTitle(title));
    dock->setWidget(panel);
    window->addDockWidget(area, dock);
}

QWidget *createHead()
{
    auto *head = new QWidget;
    auto *layout = new QVBoxLayout(head);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(createTitleBar());
    layout->addWidget(createMenuRow());
    layout->addWidget(createToolRow());
    return head;
}

} // namespace

QWidget *createApplicationPage()
{
    auto *page = new QWidget;
    page->setFixedSize(pageSize);
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(createHead());

    auto *window = new QMainWindow;
    window->setWindowFlags(Qt::Widget);
    window->setProperty("style", QStringLiteral("BG1"));
    window->setCentralWidget(createPatchPanel());
    addDock(window, QStringLiteral("Fixtures"), Qt::LeftDockWidgetArea, createFixturePanel());
    addDock(window, QStringLiteral("Properties"), Qt::RightDockWidgetArea, createPropertyPanel());
    layout->addWidget(window, 1);
    layout->addWidget(createStatusRow());

    QWidget *dialog = createDialog();
    dialog->setParent(page);
    dialog->adjustSize();
    dialog->move(400, 436);
    dialog->raise();
    return page;
}

} // namespace Gallery
