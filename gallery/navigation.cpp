// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "navigation.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <QVariant>

namespace Gallery
{

namespace
{

constexpr int ownWidth = 200;
constexpr int searchWidth = 340; // selectors are long
constexpr int mostResults = 300;

QListWidget *createList(const char *name, const QString &label)
{
    auto *list = new QListWidget;
    list->setObjectName(QString::fromLatin1(name));
    list->setAccessibleName(label);
    list->setProperty("style", QStringLiteral("simpleList"));
    list->setTextElideMode(Qt::ElideMiddle);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    return list;
}

} // namespace

Navigation::Navigation(const QVector<Page> &pages, Searcher searcher)
    : m_searcher(std::move(searcher))
    , m_search(new QLineEdit)
    , m_stack(new QStackedWidget)
    , m_pages(createList("pages", QStringLiteral("Pages")))
    , m_results(createList("results", QStringLiteral("Search results")))
{
    setProperty("style", QStringLiteral("BG1"));
    m_search->setObjectName(QStringLiteral("search"));
    m_search->setAccessibleName(QStringLiteral("Search pages, keys and selectors"));
    m_search->setPlaceholderText(QStringLiteral("Search"));
    m_search->setToolTip(QStringLiteral("Pages, keys and selectors (Ctrl+F)"));
    m_search->setClearButtonEnabled(true);
    m_stack->addWidget(m_pages);
    m_stack->addWidget(m_results);
    auto *head = new QVBoxLayout;
    head->setContentsMargins(8, 8, 8, 8);
    head->addWidget(m_search);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(head);
    column->addWidget(m_stack, 1);
    setFixedWidth(ownWidth);
    setPages(pages);

    for (QWidget *part : {static_cast<QWidget *>(m_search), static_cast<QWidget *>(m_results)})
        part->installEventFilter(this);
    connect(m_pages, &QListWidget::currentRowChanged, this, &Navigation::pageChanged);
    connect(m_search, &QLineEdit::textChanged, this, &Navigation::showResults);
    connect(m_results, &QListWidget::itemActivated, this, &Navigation::lead);
    connect(m_results, &QListWidget::itemClicked, this, &Navigation::lead);
}

void Navigation::setPages(const QVector<Page> &pages)
{
    const QSignalBlocker blocker(m_pages);
    const QString before = page();
    m_pages->clear();
    for (const Page &page : pages) {
        auto *item = new QListWidgetItem(page.title, m_pages);
        item->setData(Qt::UserRole, page.name);
    }
    setPage(before);
}

QString Navigation::page() const
{
    const QListWidgetItem *item = m_pages->currentItem();
    return item == nullptr ? QString() : item->data(Qt::UserRole).toString();
}

void Navigation::setPage(const QString &page)
{
    int row = 0;
    for (int i = 0; i < m_pages->count(); ++i) {
        if (m_pages->item(i)->data(Qt::UserRole).toString() == page)
            row = i;
    }
    m_pages->setCurrentRow(row);
}

void Navigation::beginSearch()
{
    m_search->setFocus(Qt::ShortcutFocusReason);
    m_search->selectAll();
}

void Navigation::refresh()
{
    if (!m_search->text().isEmpty())
        showResults();
}

void Navigation::search(const QString &text)
{
    m_search->setText(text);
    m_search->setFocus(Qt::ShortcutFocusReason);
}

void Navigation::showResults()
{
    m_results->clear();
    const QString text = m_search->text().trimmed();
    const bool isSearch = !text.isEmpty();
    setFixedWidth(isSearch ? searchWidth : ownWidth);
    m_stack->setCurrentWidget(isSearch ? m_results : m_pages);
    if (!isSearch)
        return;
    m_found = m_searcher(text).mid(0, mostResults);
    for (const SearchResult &result : qAsConst(m_found)) {
        auto *item =
            new QListWidgetItem(result.text + QLatin1Char('\n') + result.detail, m_results);
        item->setToolTip(item->text());
    }
    if (m_found.isEmpty()) {
        auto *none =
            new QListWidgetItem(QStringLiteral("Nothing has this in its name."), m_results);
        none->setFlags(Qt::NoItemFlags);
    } else {
        m_results->setCurrentRow(0);
    }
}

void Navigation::close()
{
    m_search->clear();
    Q_EMIT closed();
}

void Navigation::lead()
{
    const int row = m_results->currentRow();
    if (row >= 0 && row < m_found.size())
        Q_EMIT led(m_found.at(row).target);
}

bool Navigation::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(object, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key == Qt::Key_Escape) {
        close();
        return true;
    }
    if (object != m_search)
        return false;
    if (key == Qt::Key_Down) {
        m_stack->currentWidget()->setFocus();
        return true;
    }
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        lead();
        return true;
    }
    return false;
}

} // namespace Gallery
