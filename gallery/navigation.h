// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_NAVIGATION_H
#define GALLERY_NAVIGATION_H

#include "specimenindex.h"

#include <QWidget>

class QLineEdit;
class QListWidget;
class QStackedWidget;

namespace Gallery
{

/*!
 * \brief The list of pages, and the search that takes its place while there is something to find.
 *
 * Its parts are `search`, `pages` and `results`.
 */
class Navigation final : public QWidget
{
    Q_OBJECT

public:
    using Searcher = std::function<QVector<SearchResult>(const QString &)>;

    /*! \brief Lists \a pages; \a searcher is asked at every key. */
    Navigation(const QVector<Page> &pages, Searcher searcher);

    void setPages(const QVector<Page> &pages);
    QString page() const;
    /*! \brief Chooses \a page; the first if there is none of that name. */
    void setPage(const QString &page);

    void beginSearch();
    /*! \brief Searches for \a text. */
    void search(const QString &text);
    /*! \brief Searches anew, since there may be other keys now. */
    void refresh();

    bool eventFilter(QObject *object, QEvent *event) override;

Q_SIGNALS:
    void pageChanged();
    void led(const Target &target);
    /*! \brief The user is done with searching. */
    void closed();

private:
    void showResults();
    void close();
    void lead();

    const Searcher m_searcher;
    QVector<SearchResult> m_found;
    QLineEdit *m_search;
    QStackedWidget *m_stack;
    QListWidget *m_pages;
    QListWidget *m_results;
};

} // namespace Gallery

#endif
