// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "findingspane.h"

#include <QCheckBox>
#include <QClipboard>
#include <QDesktopServices>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QStatusTipEvent>
#include <QTreeView>
#include <QUrl>
#include <QVariant>

namespace Gallery
{

namespace
{

void say(QWidget *widget, const QString &text)
{
    QStatusTipEvent told(text);
    QCoreApplication::sendEvent(widget, &told);
}

} // namespace

void copyText(QWidget *widget, const QString &text)
{
    QGuiApplication::clipboard()->setText(text);
    say(widget, QStringLiteral("Copied: ") + text);
}

bool canOpen(const Place &place)
{
    return !place.file.startsWith(QLatin1Char(':')) && QFileInfo(place.file).isFile();
}

void openPlace(QWidget *widget, const Place &place)
{
    QGuiApplication::clipboard()->setText(place.text());
    const QUrl url = QUrl::fromLocalFile(QFileInfo(place.file).absoluteFilePath());
    const bool isOpened = canOpen(place) && QDesktopServices::openUrl(url);
    say(widget,
        (isOpened ? QStringLiteral("Opened in your editor, and copied: ")
                  : QStringLiteral("No editor could be opened. Copied: "))
            + place.text());
}

FindingsPane::FindingsPane(QWidget *parent)
    : QWidget(parent)
    , m_view(new QTreeView)
    , m_summary(new QLabel)
{
    setProperty("style", QStringLiteral("BG1"));
    m_summary->setObjectName(QStringLiteral("found"));
    auto *notes = new QCheckBox(QStringLiteral("Show notes"));
    notes->setObjectName(QStringLiteral("notes"));
    auto *head = new QHBoxLayout;
    head->setContentsMargins(10, 4, 10, 4);
    head->addWidget(m_summary, 1);
    head->addWidget(notes);

    m_view->setObjectName(QStringLiteral("findings"));
    m_view->setAccessibleName(QStringLiteral("Findings"));
    m_view->setModel(&m_list);
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true);
    m_view->setAllColumnsShowFocus(true);
    m_view->setContextMenuPolicy(Qt::CustomContextMenu);
    m_view->header()->setStretchLastSection(false);
    m_view->header()->resizeSection(FindingList::Degree, 80);
    m_view->header()->resizeSection(FindingList::Where, 170);
    m_view->header()->setSectionResizeMode(FindingList::What, QHeaderView::Stretch);
    m_view->header()->resizeSection(FindingList::Rule, 160);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(head);
    column->addWidget(m_view, 1);

    connect(notes, &QCheckBox::toggled, &m_list, &FindingList::setNotesShown);
    connect(m_view, &QTreeView::activated, this, [this](const QModelIndex &index) {
        if (const Finding *finding = m_list.findingAt(index))
            Q_EMIT led(*finding);
    });
    connect(m_view, &QWidget::customContextMenuRequested, this, &FindingsPane::openMenu);
}

void FindingsPane::setFindings(const QVector<Finding> &findings)
{
    m_list.setFindings(findings);
    m_summary->setText(m_list.summary());
}

void FindingsPane::chooseFirst()
{
    m_view->setCurrentIndex(m_list.index(0, 0));
}

void FindingsPane::openMenu(const QPoint &place)
{
    QModelIndex index = m_view->indexAt(place);
    if (!index.isValid()) // with the menu key
        index = m_view->currentIndex();
    const Finding *found = m_list.findingAt(index);
    if (found == nullptr)
        return;
    const Finding finding = *found; // while the menu is open they may be found anew
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(QStringLiteral("Show specimen"), this, [=] { Q_EMIT led(finding); });
    menu->addAction(QStringLiteral("Open file"), this, [=] { openPlace(this, finding.place); })
        ->setEnabled(canOpen(finding.place));
    menu->addSeparator();
    menu->addAction(QStringLiteral("Copy place"), this,
                    [=] { copyText(this, finding.place.text()); })
        ->setEnabled(!finding.place.file.isEmpty());
    menu->addAction(QStringLiteral("Copy finding"), this, [=] {
        copyText(this, finding.place.text() + QLatin1String(": ") + finding.message);
    });
    menu->popup(m_view->viewport()->mapToGlobal(place));
}

} // namespace Gallery
