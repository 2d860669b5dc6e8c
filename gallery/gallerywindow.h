// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_GALLERYWINDOW_H
#define GALLERY_GALLERYWINDOW_H

#include "appliedtheme.h"
#include "messagelist.h"
#include "options.h"
#include "themeworkshop.h"

#include <hvthemeapp/themewatcher.h>

#include <QMainWindow>

class QComboBox;
class QListWidget;
class QScrollArea;

namespace Gallery
{

/*!
 * \brief The gallery's window: a chooser of themes, the pages, and a pane of messages.
 *
 * It restyles the program whenever a file that the theme or the form comes from changes. Its parts
 * are found by object name: `themes`, `eyes`, `pages`, `page` (the scroll area) and `messages`.
 */
class GalleryWindow final : public QMainWindow
{
    Q_OBJECT

public:
    explicit GalleryWindow(const Options &options);

    /*! \brief Reads everything again and shows it; a problem leaves the last good theme. */
    Problem reload();

    /*! \brief Returns the page that is shown, null before the first. */
    QWidget *page() const;
    const MessageList &messages() const { return m_log; }

Q_SIGNALS:
    /*! \brief A reload() is over, whether or not it found a problem. */
    void reloaded();

private:
    void buildParts();
    void seeWith(ColorMath::Vision vision);
    void chooseTheme(const QString &name);
    void showMade();
    void leaveMade();
    bool showsMade() const { return m_source.themesFolder == m_workshop.folder(); }
    void listThemes();
    void showPage();
    void setPage(QWidget *page);
    QString pageName() const;
    bool showsForm() const;

    MessageList m_log;
    AppliedTheme m_applied;
    HV::ThemeWatcher m_watcher;
    ThemeSource m_source;
    ThemeSource m_ownSource; //!< what was shown before the first made theme
    ThemeWorkshop m_workshop;
    QString m_formFile;
    QComboBox *m_themes = nullptr;
    QComboBox *m_eyes = nullptr;
    QListWidget *m_pages = nullptr;
    QScrollArea *m_area = nullptr;
};

} // namespace Gallery

#endif
