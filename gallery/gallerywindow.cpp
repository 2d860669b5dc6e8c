// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "gallerywindow.h"

#include "makerpage.h"
#include "pages.h"
#include "visioneffect.h"

#include <QComboBox>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QListWidget>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStatusBar>
#include <QStyledItemDelegate>
#include <QVBoxLayout>
#include <QVariant>

namespace Gallery
{

namespace
{

QListWidget *createPageList(const Options &options)
{
    auto *list = new QListWidget;
    list->setObjectName(QStringLiteral("pages"));
    list->setProperty("style", QStringLiteral("simpleList"));
    QVector<Page> entries = pages();
    if (!options.formFile.isEmpty())
        entries.append({QString::fromLatin1(formPageName), QFileInfo(options.formFile).fileName()});
    for (const Page &page : qAsConst(entries)) {
        auto *item = new QListWidgetItem(page.title, list);
        item->setData(Qt::UserRole, page.name);
        if (page.name == options.pages.value(0))
            list->setCurrentItem(item);
    }
    if (list->currentRow() < 0)
        list->setCurrentRow(options.formFile.isEmpty() ? 0 : list->count() - 1);
    list->setFixedWidth(200);
    return list;
}

QComboBox *createEyes(ColorMath::Vision vision)
{
    auto *eyes = new QComboBox;
    eyes->setObjectName(QStringLiteral("eyes"));
    eyes->setAccessibleName(QStringLiteral("Eyes"));
    eyes->setToolTip(QStringLiteral("Whose eyes to see the window with"));
    eyes->addItem(QStringLiteral("Normal"));
    eyes->addItem(QStringLiteral("Protan: no red cones"));
    eyes->addItem(QStringLiteral("Deutan: no green cones"));
    eyes->addItem(QStringLiteral("Tritan: no blue cones"));
    eyes->setCurrentIndex(int(vision));
    eyes->setItemDelegate(new QStyledItemDelegate(eyes)); // or no row would look selected
    return eyes;
}

QWidget *createHeader(QComboBox *themes, QComboBox *eyes)
{
    auto *header = new QWidget;
    header->setProperty("style", QStringLiteral("toolWidget"));
    auto *layout = new QHBoxLayout(header);
    layout->setContentsMargins(12, 8, 12, 8);
    layout->addWidget(new QLabel(QStringLiteral("Theme")));
    layout->addWidget(themes);
    layout->addSpacing(12);
    layout->addWidget(new QLabel(QStringLiteral("Eyes")));
    layout->addWidget(eyes);
    layout->addStretch();
    layout->addWidget(new QLabel(QStringLiteral("Click a selector to copy it.")));
    return header;
}

QWidget *createMessagePane(MessageList *log)
{
    auto *messages = new QListView;
    messages->setObjectName(QStringLiteral("messages"));
    messages->setModel(log);
    messages->setWordWrap(true);
    messages->setSelectionMode(QAbstractItemView::NoSelection);
    auto *title = new QLabel(QStringLiteral("Messages since the last reload"));
    title->setProperty("fontSize", QStringLiteral("S"));
    title->setProperty("style", QStringLiteral("grayHint"));
    title->setContentsMargins(10, 6, 10, 2);
    auto *pane = new QWidget;
    pane->setProperty("style", QStringLiteral("BG1"));
    auto *layout = new QVBoxLayout(pane);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(title);
    layout->addWidget(messages);
    return pane;
}

} // namespace

GalleryWindow::GalleryWindow(const Options &options)
    : m_source(options.source)
    , m_formFile(options.formFile)
    , m_themes(new QComboBox)
    , m_eyes(createEyes(options.vision))
    , m_pages(createPageList(options))
    , m_area(new QScrollArea)
{
    if (m_source.themeName.isEmpty())
        m_source.themeName = themeNames(m_source.themesFolder).value(0);
    m_log.setPlaceFinder([this](const QString &text) { return m_applied.placesFor(text); });
    buildParts();
    connect(m_themes, &QComboBox::textActivated, this, &GalleryWindow::chooseTheme);
    connect(&m_workshop, &ThemeWorkshop::made, this, &GalleryWindow::showMade);
    connect(m_eyes, qOverload<int>(&QComboBox::currentIndexChanged), this,
            [this](int index) { seeWith(ColorMath::Vision(index)); });
    seeWith(options.vision);
    connect(m_pages, &QListWidget::currentRowChanged, this, &GalleryWindow::showPage);
    connect(&m_watcher, &HV::ThemeWatcher::changed, this, &GalleryWindow::reload);
    reload();
}

void GalleryWindow::buildParts()
{
    setWindowTitle(QStringLiteral("Theme gallery"));
    m_themes->setObjectName(QStringLiteral("themes"));
    m_themes->setMinimumWidth(140);
    m_themes->setItemDelegate(new QStyledItemDelegate(m_themes)); // or no row would look selected
    m_area->setObjectName(QStringLiteral("page"));
    m_area->setWidgetResizable(true);

    auto *pagesAndPage = new QWidget;
    auto *row = new QHBoxLayout(pagesAndPage);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(m_pages);
    row->addWidget(m_area, 1);

    auto *splitter = new QSplitter(Qt::Vertical);
    splitter->addWidget(pagesAndPage);
    splitter->addWidget(createMessagePane(&m_log));
    splitter->setStretchFactor(0, 1);
    splitter->setSizes({700, 100});

    auto *central = new QWidget;
    auto *column = new QVBoxLayout(central);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(createHeader(m_themes, m_eyes));
    column->addWidget(splitter, 1);
    setCentralWidget(central);
    statusBar()->setSizeGripEnabled(false);
    resize(1420, 920);
}

void GalleryWindow::seeWith(ColorMath::Vision vision)
{
    for (QWidget *part : {centralWidget(), static_cast<QWidget *>(statusBar())})
        VisionEffect::apply(vision, part);
}

Problem GalleryWindow::reload()
{
    QElapsedTimer timer;
    timer.start();
    m_log.clear();
    const int scrolled = m_area->verticalScrollBar()->value();
    const Problem problem = m_applied.load(m_source);
    listThemes();
    if (page() == nullptr || showsForm() || showsThemeValues(pageName()))
        showPage();
    else
        settlePage(page());
    m_area->verticalScrollBar()->setValue(scrolled);
    QStringList files = m_applied.files();
    if (showsMade()) // nobody but the workshop writes those, and it tells
        files = files.filter(QRegularExpression(
            QStringLiteral("^(?!%1/)").arg(QRegularExpression::escape(m_workshop.folder()))));
    if (!m_formFile.isEmpty())
        files.append(m_formFile);
    m_watcher.setPaths(files,
                       m_source.templateFolders
                           + (showsMade() ? QStringList() : QStringList{m_source.themesFolder}));
    statusBar()->showMessage(
        problem == Problem::None   ? QStringLiteral("Restyled in %1 ms").arg(timer.elapsed())
            : m_applied.isLoaded() ? QStringLiteral("This is the last good theme; see the messages")
                                   : QStringLiteral("No theme could be loaded; see the messages"));
    Q_EMIT reloaded();
    return problem;
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

void GalleryWindow::showPage()
{
    if (pageName() == QLatin1String(makerPageName)) {
        if (!showsMade())
            m_workshop.beginWith(lookOf(*m_applied.theme()));
        MakerPage *made = createMakerPage(&m_workshop);
        connect(made, &MakerPage::left, this, &GalleryWindow::leaveMade);
        setPage(made);
        return;
    }
    QWidget *page =
        showsForm() ? createFormPage(m_formFile) : createPage(pageName(), *m_applied.theme());
    if (page != nullptr)
        setPage(page);
}

void GalleryWindow::setPage(QWidget *page)
{
    delete m_area->takeWidget();
    if (page != nullptr)
        m_area->setWidget(page);
}

QWidget *GalleryWindow::page() const
{
    return m_area->widget();
}

QString GalleryWindow::pageName() const
{
    return m_pages->currentItem()->data(Qt::UserRole).toString();
}

bool GalleryWindow::showsForm() const
{
    return pageName() == QLatin1String(formPageName);
}

} // namespace Gallery
