// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_GALLERYWINDOW_H
#define GALLERY_GALLERYWINDOW_H

#include "appliedtheme.h"
#include "memory.h"
#include "messagelist.h"
#include "options.h"
#include "specimenindex.h"
#include "themeworkshop.h"

#include <hvthemeapp/themewatcher.h>
#include <inspector/inspectorpane.h>

#include <QMainWindow>
#include <QPointer>
#include <QTimer>

class QComboBox;
class QSplitter;
class QTabWidget;
struct Finding;

namespace Gallery
{

class FindingsPane;
class Navigation;
class WindowVision;
class ZoomArea;

/*!
 * \brief The gallery's window: choosers, the pages with their search, and panes for work on a theme.
 *
 * It restyles the program whenever a file that the theme or the form comes from changes. Its parts
 * are found by object name: `themes`, `eyes`, `zoom`, `pages`, `page` (the scroll area), `panes` (the tabs), `messages`,
 * and those of Navigation, FindingsPane and ZoomArea.
 */
class GalleryWindow final : public QMainWindow
{
    Q_OBJECT

public:
    /*! \brief Opens what \a options say. Without \a memory nothing is remembered; it must live as long. */
    explicit GalleryWindow(const Options &options, QSettings *memory = nullptr);
    ~GalleryWindow() override;

    /*! \brief Reads everything again and shows it; a problem leaves the last good theme. */
    Problem reload();

    /*! \brief Shows the themes of \a folder; one that has none is told of, and all stays as it is. */
    Problem openFolder(const QString &folder);
    /*! \brief Shows the form \a file on the page of the form. */
    void openForm(const QString &file);

    /*! \brief Returns the page that is shown, null before the first. */
    QWidget *page() const;
    const MessageList &messages() const { return m_log; }
    const FindingsPane &findings() const { return *m_findings; }

    /*! \brief Returns what the last reload() found. */
    Problem problem() const { return m_problem; }

    void showPane(Pane pane);
    /*! \brief Does what Return does on the first finding, if there is one. */
    void leadToFirstFinding();
    Pane pane() const;
    /*! \brief Returns the inspector's pane, which there is from the first time that it is shown; may be
     *         null. */
    InspectorPane *inspector() const { return m_inspector; }
    /*! \brief Shows in the inspector why \a widget of the page, or the specimen it belongs to, looks as it
     *         does. */
    void inspect(QWidget *widget);

    /*! \brief Goes to \a target, and marks it or, if it is open, shows it in the inspector. */
    void lead(const Target &target);

Q_SIGNALS:
    /*! \brief A reload() is over, whether or not it found a problem. */
    void reloaded();
    /*! \brief The themes were checked, some time after a reload(). */
    void checked();

protected:
    void closeEvent(QCloseEvent *event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void buildParts();
    void buildPanes();
    void buildMenus();
    void buildViewMenu();
    void connectArea();
    void connectParts();
    void listRecentFolders();
    void seeWith(ColorMath::Vision vision);
    void chooseTheme(const QString &name);
    void follow(const QString &folder, const QString &name);
    void chooseFolder();
    void chooseForm();
    void showMade();
    void leaveMade();
    bool showsMade() const { return m_source.themesFolder == m_workshop.folder(); }
    void listThemes();
    void showPage();
    void setPage(QWidget *page);
    QVector<Page> listedPages() const;
    bool showsForm() const;
    void watch();
    void tell(Problem problem, qint64 elapsedMs);
    void check();
    void leadToFinding(const Finding &finding);
    const SpecimenIndex &index();
    void openPageMenu(QWidget *at, const QPoint &place);
    void inspectFocused();
    void refreshInspector();
    void visitNextPart(int step);
    void titlePanes();

    Memory m_memory;
    MessageList m_log;
    AppliedTheme m_applied;
    HV::ThemeWatcher m_watcher;
    ThemeSource m_source;
    ThemeSource m_ownSource; //!< what was shown before the first made theme
    ThemeWorkshop m_workshop;
    QString m_formFile;
    SpecimenIndex m_index;
    bool m_isIndexed = false;
    Problem m_problem = Problem::None;
    QTimer m_checkTimer;
    QTimer m_refreshTimer; //!< of the inspector
    Outline m_marker;
    QPointer<QWidget> m_led; //!< where the user was led to last

    QComboBox *m_themes;
    QComboBox *m_eyes;
    QComboBox *m_zooms;
    Navigation *m_navigation = nullptr;
    ZoomArea *m_area;
    QSplitter *m_splitter = nullptr;
    QTabWidget *m_panes;
    FindingsPane *m_findings;
    QPointer<InspectorPane> m_inspector;
    QMenu *m_recent = nullptr;
    QAction *m_find = nullptr;
    WindowVision *m_windowVision;
};

} // namespace Gallery

#endif
