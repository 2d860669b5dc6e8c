// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "gallerywindow.h"

#include "findingspane.h"
#include "makerpage.h"
#include "navigation.h"
#include "pages.h"
#include "shownpart.h"
#include "visioneffect.h"
#include "windowparts.h"
#include "zoomarea.h"

#include <analysis/rules/rules.h>
#include <analysis/themeproject.h>
#include <format/themepath.h>

#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QMenuBar>
#include <QRegularExpression>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStatusBar>
#include <QTabWidget>
#include <QVBoxLayout>
#include <QVariant>

namespace Gallery
{

namespace
{

constexpr int checkDelayMs = 100; // first the user sees the new look

QString titleOf(const QString &title, int count)
{
    return count == 0 ? title : QStringLiteral("%1 (%2)").arg(title).arg(count);
}

} // namespace

GalleryWindow::GalleryWindow(const Options &options, QSettings *memory)
    : m_memory(memory)
    , m_source(options.source)
    , m_formFile(options.formFile)
    , m_themes(createThemeChooser())
    , m_eyes(createEyes(options.vision))
    , m_zooms(createZooms())
    , m_area(new ZoomArea)
    , m_panes(new QTabWidget)
    , m_findings(new FindingsPane)
    , m_windowVision(new WindowVision(this))
{
    if (m_source.themeName.isEmpty())
        m_source.themeName = themeNames(m_source.themesFolder).value(0);
    m_log.setPlaceFinder([this](const QString &text) { return m_applied.placesFor(text); });
    m_checkTimer.setSingleShot(true);
    m_checkTimer.setInterval(checkDelayMs);
    m_refreshTimer.setSingleShot(true);
    m_refreshTimer.setInterval(0);
    m_navigation = new Navigation(
        listedPages(), [this](const QString &text) { return index().search(text, listedPages()); });
    const QString first =
        options.formFile.isEmpty() ? QString() : QString::fromLatin1(formPageName);
    m_navigation->setPage(options.pages.value(0, first));
    buildParts();
    buildMenus();
    connectParts();
    seeWith(options.vision);
    m_area->setZoom(m_memory.zoom());
    m_memory.keepForm(m_formFile);
    reload();
    showPane(options.pane.value_or(Pane::Inspector));
    if (!m_memory.geometry().isEmpty())
        restoreGeometry(m_memory.geometry());
    if (!m_memory.panes().isEmpty())
        m_splitter->restoreState(m_memory.panes());
}

// Its look is not to be looked at when the pages are gone.
GalleryWindow::~GalleryWindow()
{
    // Widgets that go with the window give the focus away when its own members are gone already.
    disconnect(qApp, nullptr, this, nullptr);
    delete m_inspector;
}

void GalleryWindow::buildParts()
{
    setWindowTitle(QStringLiteral("Theme gallery"));
    buildPanes();
    auto *pagesAndPage = new QWidget;
    auto *row = new QHBoxLayout(pagesAndPage);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(m_navigation);
    row->addWidget(m_area, 1);

    m_splitter = new QSplitter(Qt::Vertical);
    m_splitter->addWidget(pagesAndPage);
    m_splitter->addWidget(m_panes);
    m_splitter->setStretchFactor(0, 1);
    m_splitter->setSizes({430, 410});

    auto *central = new QWidget;
    auto *column = new QVBoxLayout(central);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(createHeader(m_themes, m_eyes, m_zooms));
    column->addWidget(m_splitter, 1);
    setCentralWidget(central);
    statusBar()->setSizeGripEnabled(false);
    resize(1420, 920);
}

// In the order of Pane.
void GalleryWindow::buildPanes()
{
    m_panes->setObjectName(QStringLiteral("panes"));
    m_panes->setAccessibleName(QStringLiteral("Panes"));
    m_panes->setDocumentMode(true);
    auto *host = new QWidget;
    (new QVBoxLayout(host))->setContentsMargins(0, 0, 0, 0);
    m_panes->addTab(host, QStringLiteral("Inspector"));
    m_panes->addTab(m_findings, QStringLiteral("Findings"));
    m_panes->addTab(createMessagePane(&m_log), QStringLiteral("Messages"));
    m_panes->tabBar()->setAccessibleName(QStringLiteral("Panes"));
}

void GalleryWindow::connectParts()
{
    connect(m_themes, &QComboBox::textActivated, this, &GalleryWindow::chooseTheme);
    connect(&m_workshop, &ThemeWorkshop::made, this, &GalleryWindow::showMade);
    connect(m_eyes, qOverload<int>(&QComboBox::currentIndexChanged), this,
            [this](int index) { seeWith(ColorMath::Vision(index)); });
    connectArea();
    connect(m_navigation, &Navigation::pageChanged, this, &GalleryWindow::showPage);
    connect(m_navigation, &Navigation::led, this, &GalleryWindow::lead);
    connect(m_navigation, &Navigation::closed, this, [this] {
        (m_led ? m_led.data() : m_area->currentWidget())->setFocus(Qt::OtherFocusReason);
    });
    connect(m_findings, &FindingsPane::led, this, &GalleryWindow::leadToFinding);
    connect(m_panes, &QTabWidget::currentChanged, this, [this] { showPane(pane()); });
    for (const auto change : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(&m_log, change, this, &GalleryWindow::titlePanes);
    connect(&m_log, &QAbstractItemModel::modelReset, this, &GalleryWindow::titlePanes);
    connect(&m_watcher, &HV::ThemeWatcher::changed, this, &GalleryWindow::reload);
    connect(&m_applied, &AppliedTheme::left, this, &GalleryWindow::follow);
    connect(&m_checkTimer, &QTimer::timeout, this, &GalleryWindow::check);
    connect(&m_refreshTimer, &QTimer::timeout, this, [this] {
        if (m_inspector && pane() == Pane::Inspector)
            m_inspector->refresh();
    });
}

void GalleryWindow::connectArea()
{
    connect(m_zooms, qOverload<int>(&QComboBox::activated), this,
            [this] { m_area->setZoom(m_zooms->currentData().toInt()); });
    const auto showZoom = [this](int percent) {
        m_zooms->setCurrentIndex(m_zooms->findData(percent));
    };
    connect(m_area, &ZoomArea::zoomChanged, this, showZoom);
    connect(m_area, &ZoomArea::zoomChanged, this, [this] {
        m_marker.clear();
        refreshInspector(); // the page stands in another window now
    });
    showZoom(m_area->zoom());
    connect(m_area, &ZoomArea::clicked, this, [this](QWidget *at) {
        m_marker.clear();
        if (pane() == Pane::Inspector)
            inspect(at);
    });
    connect(m_area, &ZoomArea::picked, this, [this](QWidget *at) {
        showPane(Pane::Inspector);
        inspect(at);
    });
    connect(m_area, &ZoomArea::menuWanted, this, &GalleryWindow::openPageMenu);
}

void GalleryWindow::closeEvent(QCloseEvent *event)
{
    if (m_inspector && !m_inspector->mayClose(SaveBar::Closing::Program)) {
        event->ignore();
        return;
    }
    m_memory.keepWindow(saveGeometry(), m_splitter->saveState(), m_area->zoom());
    QMainWindow::closeEvent(event);
}

void GalleryWindow::seeWith(ColorMath::Vision vision)
{
    for (QWidget *part :
         {static_cast<QWidget *>(menuBar()), centralWidget(), static_cast<QWidget *>(statusBar())})
        VisionEffect::apply(vision, part);
    m_windowVision->setVision(vision);
}

Problem GalleryWindow::reload()
{
    QElapsedTimer timer;
    timer.start();
    m_log.clear();
    const QPoint scrolled = m_area->scrolled();
    const Problem problem = m_applied.load(m_source);
    m_problem = problem;
    m_isIndexed = false;
    listThemes();
    if (page() == nullptr || showsForm() || showsThemeValues(m_navigation->page()))
        showPage();
    else
        settlePage(page());
    m_area->settle();
    m_area->scrollTo(scrolled);
    watch();
    tell(problem, timer.elapsed());
    if (problem == Problem::None && !showsMade())
        m_memory.keepSource(m_source);
    m_checkTimer.start();
    m_navigation->refresh();
    Q_EMIT reloaded();
    return problem;
}

void GalleryWindow::watch()
{
    QStringList files = m_applied.files();
    if (showsMade()) // nobody but the workshop writes those, and it tells
        files = files.filter(QRegularExpression(
            QStringLiteral("^(?!%1/)").arg(QRegularExpression::escape(m_workshop.folder()))));
    if (!m_formFile.isEmpty())
        files.append(m_formFile);
    m_watcher.setPaths(files,
                       m_source.templateFolders
                           + (showsMade() ? QStringList() : QStringList{m_source.themesFolder}));
}

void GalleryWindow::tell(Problem problem, qint64 elapsedMs)
{
    statusBar()->showMessage(
        problem == Problem::None   ? QStringLiteral("Restyled in %1 ms").arg(elapsedMs)
            : m_applied.isLoaded() ? QStringLiteral("This is the last good theme; see the messages")
                                   : QStringLiteral("No theme could be loaded; see the messages"));
    if (problem != Problem::None)
        showPane(Pane::Messages);
}

Problem GalleryWindow::openFolder(const QString &folder)
{
    ThemeSource source = m_source;
    source.themesFolder = folder;
    source.themeName = themeNames(folder).value(0);
    const Problem problem = checkThemesFolder(source);
    if (problem != Problem::None) {
        statusBar()->showMessage(QStringLiteral("That folder cannot be shown; see the messages"));
        showPane(Pane::Messages);
        return problem;
    }
    if (QFileInfo(folder) != QFileInfo(m_source.themesFolder))
        source.applicationFolder.clear(); // it was that of the themes before
    m_source = source;
    return reload();
}

// The inspector has saved a new theme and goes on with it.
void GalleryWindow::follow(const QString &folder, const QString &name)
{
    if (QFileInfo(folder) != QFileInfo(m_source.themesFolder)) {
        m_source.themesFolder = folder;
        m_source.applicationFolder.clear();
    }
    m_source.themeName = name;
    reload();
}

void GalleryWindow::openForm(const QString &file)
{
    m_formFile = file;
    m_memory.keepForm(file);
    m_navigation->setPages(listedPages());
    if (showsForm())
        showPage();
    else
        m_navigation->setPage(QString::fromLatin1(formPageName));
    watch();
}

void GalleryWindow::chooseTheme(const QString &name)
{
    for (const auto look : {Maker::Look::Dark, Maker::Look::Light, Maker::Look::Contrast}) {
        if (showsMade() && name == Maker::lookName(look)) {
            m_workshop.setLook(look);
            return;
        }
    }
    m_source.themeName = name;
    reload();
}

void GalleryWindow::showMade()
{
    if (!showsMade())
        m_ownSource = m_source;
    m_source.themesFolder = m_workshop.folder();
    m_source.themeName = Maker::lookName(m_workshop.look());
    reload();
}

void GalleryWindow::leaveMade()
{
    if (!showsMade())
        return;
    m_source = m_ownSource;
    reload();
}

void GalleryWindow::listThemes()
{
    const QSignalBlocker blocker(m_themes);
    QStringList names = themeNames(m_source.themesFolder);
    if (!names.contains(m_source.themeName))
        names.append(m_source.themeName); // wanted, and watched for
    m_themes->clear();
    m_themes->addItems(names);
    m_themes->setCurrentText(m_source.themeName);
}

QVector<Page> GalleryWindow::listedPages() const
{
    QVector<Page> all = pages();
    if (!m_formFile.isEmpty())
        all.append({QString::fromLatin1(formPageName), QFileInfo(m_formFile).fileName()});
    return all;
}

void GalleryWindow::showPage()
{
    const QString name = m_navigation->page();
    m_memory.keepPage(name);
    if (name == QLatin1String(makerPageName)) {
        if (!showsMade())
            m_workshop.beginWith(lookOf(*m_applied.theme()));
        MakerPage *made = createMakerPage(&m_workshop);
        connect(made, &MakerPage::left, this, &GalleryWindow::leaveMade);
        setPage(made);
        return;
    }
    QWidget *page = showsForm() ? createFormPage(m_formFile)
                                : createPage(name, *m_applied.theme(), m_applied.palette());
    if (page != nullptr)
        setPage(page);
}

void GalleryWindow::setPage(QWidget *page)
{
    m_marker.clear();
    m_area->setPage(page, showsForm() ? ZoomArea::Fit::OwnSize : ZoomArea::Fit::Fill);
    refreshInspector();
}

// A page that is new is the last in Qt's order, behind the panes.
bool GalleryWindow::focusNextPrevChild(bool next)
{
    QList<QWidget *> order;
    QList<QWidget *> ofPage;
    QList<QWidget *> ofPanes;
    for (QWidget *each = nextInFocusChain(); each != this; each = each->nextInFocusChain()) {
        const bool canFocus = (each->focusPolicy() & Qt::TabFocus) && each->focusProxy() == nullptr
            && each->isVisible() && each->isEnabled() && each->window() == this;
        if (!canFocus)
            continue;
        const bool isOfPage = page() != nullptr && page()->isAncestorOf(each);
        (isOfPage ? ofPage : m_panes->isAncestorOf(each) ? ofPanes : order).append(each);
    }
    order += ofPage + ofPanes;
    const int count = int(order.size());
    const int current = int(order.indexOf(focusWidget()));
    if (count == 0)
        return false;
    const int following = current < 0 ? 0 : (current + (next ? 1 : count - 1)) % count;
    order.at(following)->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

void GalleryWindow::refreshInspector()
{
    m_refreshTimer.start(); // once all is laid out
}

QWidget *GalleryWindow::page() const
{
    return m_area->page();
}

bool GalleryWindow::showsForm() const
{
    return m_navigation->page() == QLatin1String(formPageName);
}

Pane GalleryWindow::pane() const
{
    return Pane(m_panes->currentIndex());
}

void GalleryWindow::showPane(Pane pane)
{
    m_marker.clear();
    m_panes->setCurrentIndex(int(pane));
    m_memory.keepPane(pane);
    if (pane != Pane::Inspector || m_inspector)
        return;
    m_inspector = new InspectorPane([this] { return m_applied.inspectedSheet(); },
                                    m_panes->widget(int(pane)));
    m_panes->widget(int(pane))->layout()->addWidget(m_inspector);
    m_inspector->setFinder([this](const QPoint &place) {
        QWidget *widget = m_area->widgetAt(place);
        return widget == nullptr ? Picker::Seen()
                                 : Picker::Seen{widget, m_area->mapFromScreen(widget, place)};
    });
    connect(m_inspector, &InspectorPane::picked, this, [this] { showPane(Pane::Inspector); });
}

void GalleryWindow::leadToFirstFinding()
{
    m_findings->chooseFirst();
    if (const Finding *first = m_findings->list().findingAt(m_findings->list().index(0, 0)))
        leadToFinding(*first);
}

void GalleryWindow::titlePanes()
{
    m_panes->setTabText(int(Pane::Findings),
                        titleOf(QStringLiteral("Findings"), m_findings->list().weightyCount()));
    m_panes->setTabText(int(Pane::Messages), titleOf(QStringLiteral("Messages"), m_log.rowCount()));
}

void GalleryWindow::inspect(QWidget *widget)
{
    if (!m_inspector)
        return;
    QWidget *specimen = specimenOf(widget);
    if (specimen == nullptr) {
        m_inspector->pick(widget);
        return;
    }
    const ShownPart shown = partShownBy(specimen);
    m_inspector->pick(shown.widget, shown.part);
}

void GalleryWindow::lead(const Target &target)
{
    if (!target.isValid())
        return;
    m_navigation->setPage(target.page);
    m_marker.clear();
    m_led = target.selector.isEmpty() ? findKey(page(), target.key)
                                      : findSpecimen(page(), target.selector);
    if (!m_led)
        return;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest); // of a page that is new
    m_area->reveal(m_led);
    if (pane() == Pane::Inspector && !target.selector.isEmpty())
        inspect(m_led);
    else
        m_marker.add(m_led);
}

// As the command does it: all themes of the folder, with the templates that are not the gallery's own.
void GalleryWindow::check()
{
    ThemeProjectOptions options;
    options.folder = m_source.themesFolder;
    options.templates += m_source.templateFolders;
    options.applicationFolder = m_source.applicationFolder.isEmpty()
        ? QCoreApplication::applicationDirPath()
        : m_source.applicationFolder;
    QString error;
    const auto project = ThemeProject::read(options, &error);
    m_findings->setFindings(project ? runLintRules(*project)
                                    : QVector<Finding>{{{}, Severity::Error, error, {}}});
    titlePanes();
    Q_EMIT checked();
}

void GalleryWindow::leadToFinding(const Finding &finding)
{
    const QStringList names = themeNames(m_source.themesFolder);
    for (const QString &name : names) {
        const QString file = themeFilePath(m_source.themesFolder, name);
        if (QFileInfo(file) == QFileInfo(finding.place.file) && name != m_source.themeName)
            chooseTheme(name);
    }
    const Target target = index().targetOfPlace(finding.place);
    lead(target);
    copyText(this, finding.place.text());
    if (!target.isValid())
        statusBar()->showMessage(QStringLiteral("No specimen shows this. Copied: ")
                                 + finding.place.text());
}

const SpecimenIndex &GalleryWindow::index()
{
    if (!m_isIndexed)
        m_index = SpecimenIndex(m_applied.project());
    m_isIndexed = true;
    return m_index;
}

} // namespace Gallery
