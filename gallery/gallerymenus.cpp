// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "gallerywindow.h"

#include "navigation.h"
#include "pagemenu.h"
#include "zoomarea.h"

#include <QApplication>
#include <QFileDialog>
#include <QListWidget>
#include <QMenuBar>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>

namespace Gallery
{

void GalleryWindow::buildMenus()
{
    // The inspector has keys of its own, so these letters are few.
    QMenu *menu = menuBar()->addMenu(QStringLiteral("&Gallery"));
    menu->addAction(QStringLiteral("Open &folder…"), this, &GalleryWindow::chooseFolder,
                    QKeySequence::Open);
    m_recent = menu->addMenu(QStringLiteral("&Recent folders"));
    m_recent->setObjectName(QStringLiteral("recent"));
    connect(menu, &QMenu::aboutToShow, this, &GalleryWindow::listRecentFolders);
    menu->addAction(QStringLiteral("Open f&orm…"), this, &GalleryWindow::chooseForm,
                    QKeySequence(QStringLiteral("Ctrl+Shift+O")));
    menu->addSeparator();
    m_find = menu->addAction(QStringLiteral("&Search"), m_navigation, &Navigation::beginSearch,
                             QKeySequence::Find);
    menu->addAction(QStringLiteral("&Inspect what has the focus"), this,
                    &GalleryWindow::inspectFocused, QKeySequence(QStringLiteral("Ctrl+I")));
    menu->addSeparator();
    menu->addAction(QStringLiteral("&Quit"), this, &QWidget::close,
                    QKeySequence(QStringLiteral("Ctrl+Q")));
    buildViewMenu();
    // Its own filter has this key while the inspector has the focus.
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) {
        const bool isInspector = m_inspector && now != nullptr && m_inspector->isAncestorOf(now);
        m_find->setShortcut(isInspector ? QKeySequence() : QKeySequence(QKeySequence::Find));
    });
}

void GalleryWindow::buildViewMenu()
{
    QMenu *menu = menuBar()->addMenu(QStringLiteral("&View"));
    auto *larger = menu->addAction(QStringLiteral("Zoom &in"), this, [this] { m_area->zoomBy(1); });
    larger->setShortcuts(
        {QKeySequence(QKeySequence::ZoomIn), QKeySequence(QStringLiteral("Ctrl+="))});
    menu->addAction(
        QStringLiteral("Zoom &out"), this, [this] { m_area->zoomBy(-1); }, QKeySequence::ZoomOut);
    menu->addAction(
        QStringLiteral("&As it is"), this, [this] { m_area->setZoom(100); },
        QKeySequence(QStringLiteral("Ctrl+0")));
    menu->addSeparator();
    for (const Pane pane : {Pane::Inspector, Pane::Findings, Pane::Messages}) {
        const int number = int(pane) + 1;
        menu->addAction(
            QStringLiteral("&%1 %2").arg(number).arg(m_panes->tabText(int(pane))), this,
            [this, pane] {
                showPane(pane);
                m_panes->tabBar()->setFocus(Qt::ShortcutFocusReason);
            },
            QKeySequence(QStringLiteral("Ctrl+%1").arg(number)));
    }
    menu->addSeparator();
    menu->addAction(
        QStringLiteral("&Next part of the window"), this, [this] { visitNextPart(1); },
        QKeySequence(Qt::Key_F6));
    menu->addAction(
        QStringLiteral("&Previous part of the window"), this, [this] { visitNextPart(-1); },
        QKeySequence(QStringLiteral("Shift+F6")));
}

void GalleryWindow::listRecentFolders()
{
    m_recent->clear();
    const QStringList folders = m_memory.recentFolders();
    for (const QString &folder : folders) {
        QString title = folder;
        title.replace(QLatin1Char('&'), QLatin1String("&&"));
        m_recent->addAction(title, this, [this, folder] { openFolder(folder); });
    }
    m_recent->setEnabled(!folders.isEmpty());
}

void GalleryWindow::chooseFolder()
{
    const ThemeSource &source = showsMade() ? m_ownSource : m_source;
    const QString folder = QFileDialog::getExistingDirectory(
        this, QStringLiteral("Folder of themes"), source.themesFolder);
    if (!folder.isEmpty())
        openFolder(folder);
}

void GalleryWindow::chooseForm()
{
    const QString file = QFileDialog::getOpenFileName(
        this, QStringLiteral("Form"), m_formFile, QStringLiteral("Forms of Qt Designer (*.ui)"));
    if (!file.isEmpty())
        openForm(file);
}

void GalleryWindow::openPageMenu(QWidget *at, const QPoint &place)
{
    if (at == nullptr)
        return;
    auto *menu = new PageMenu(at, m_applied, this);
    connect(menu, &PageMenu::inspected, this, [this](QWidget *widget) {
        showPane(Pane::Inspector);
        inspect(widget);
    });
    connect(menu, &PageMenu::searched, this,
            [this](const QString &key) { m_navigation->search(key); });
    menu->popup(place);
}

void GalleryWindow::inspectFocused()
{
    QWidget *focus = QApplication::focusWidget();
    if (focus == nullptr || page() == nullptr || !page()->isAncestorOf(focus)) {
        statusBar()->showMessage(QStringLiteral(
            "Nothing on the page has the focus; F6 leads to the page, Tab goes on."));
        return;
    }
    showPane(Pane::Inspector);
    inspect(focus);
}

// The pages, what is on the page, the panes; round and round.
void GalleryWindow::visitNextPart(int step)
{
    const QWidget *focus = QApplication::focusWidget();
    const QVector<QWidget *> parts{m_navigation, m_area, m_panes};
    int current = 0;
    for (int i = 0; i < parts.size(); ++i) {
        const bool isPage = parts.at(i) == m_area && page() != nullptr && focus != nullptr
            && page()->isAncestorOf(focus);
        if (focus != nullptr && (isPage || parts.at(i)->isAncestorOf(focus)))
            current = i;
    }
    switch ((current + step + parts.size()) % parts.size()) {
    case 0:
        m_navigation->findChild<QListWidget *>(QStringLiteral("pages"))
            ->setFocus(Qt::ShortcutFocusReason);
        break;
    case 1:
        m_area->currentWidget()->setFocus(Qt::ShortcutFocusReason);
        break;
    default:
        m_panes->tabBar()->setFocus(Qt::ShortcutFocusReason);
    }
}

} // namespace Gallery
