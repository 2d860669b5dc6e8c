// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "mnemonics.h"
#include "quietplatform.h"

#include <gallery/findingspane.h>
#include <gallery/gallerywindow.h>
#include <gallery/shownpart.h>
#include <gallery/zoomarea.h>
#include <inspector/changepanel.h>
#include <inspector/inspectorlists.h>
#include <inspector/newthemedialog.h>

#include <analysis/rules/rules.h>

#include <QtTest>
#include <QtWidgets>

#include <memory>

using namespace Gallery;

/*! The gallery as a place to work: what a user does with keys and the mouse, and what it leads to. */
class tst_Workplace : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();
    void clickShowsKeys_data();
    void clickShowsKeys();
    void directPickOpensTheInspector();
    void pickingFindsDeafSpecimens();
    void findingsAreThoseOfCheck();
    void findingLeads_data();
    void findingLeads();
    void findingOpensItsFile();
    void search_data();
    void search();
    void escapeEndsTheSearch();
    void searchFollowsTheTheme();
    void zoomKeys_data();
    void zoomKeys();
    void zoomsByWheel_data();
    void zoomsByWheel();
    void aClickIsOne();
    void zoomedPageIsAlive();
    void contextMenu_data();
    void contextMenu();
    void placesOfAnotherApplication();
    void quits();
    void asksBeforeChangesAreLost_data();
    void asksBeforeChangesAreLost();
    void goesOnWithANewTheme();
    void isRemembered();
    void nothingIsKeptWithoutMemory();
    void forgetsWhatIsGone();
    void opensAFolder();
    void badFolderChangesNothing_data();
    void badFolderChangesNothing();
    void ownPaletteIsShown();
    void formKeepsItsSize_data();
    void formKeepsItsSize();
    void everythingByKeyboard_data();
    void everythingByKeyboard();
    void partsByKeyboard();
    void noLetterTwice_data();
    void noLetterTwice();
    void openFile(const QUrl &url) { m_opened = url; } // what the desktop would do

private:
    Options optionsFor(const QString &page) const;
    void open(const Options &options, QSettings *memory = nullptr);
    void open(const QString &page) { open(optionsFor(page)); }
    void share(const QString &page, Pane pane = Pane::Inspector);
    QString copyOfThemes(const QByteArray &from = {}, const QByteArray &to = {});
    void openChecked(const Options &options);
    void click(const QPoint &place, Qt::KeyboardModifiers modifiers = {}) const;
    template<typename Widget>
    Widget *part(const char *name) const
    {
        return m_window->findChild<Widget *>(QString::fromLatin1(name));
    }
    QPoint centerOf(const QWidget *widget) const;
    QString page() const;

    std::unique_ptr<QuietPlatform> m_quiet;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<GalleryWindow> m_window;
    QString m_sharing; // the test function whose rows have one window
    QUrl m_opened;
};

namespace
{

const QString samples = QStringLiteral(HVTHEME_SOURCE_DIR "/themes");

bool isSilent = false;
QtMessageHandler handler = nullptr;

// Below those of the windows, which put back what was there before them.
void handle(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (!isSilent)
        handler(type, context, text);
}

QStringList keysOf(const Inspection &inspection)
{
    QStringList keys;
    for (const InspectedValue &value : inspection.values) {
        for (const ValueChain &chain : value.chains)
            keys.append(chain.token.key);
    }
    return keys;
}

QByteArray form(int width, int height)
{
    return QStringLiteral(
               "<ui version=\"4.0\"><class>Form</class><widget class=\"QWidget\" name=\"Form\">"
               "<property name=\"geometry\"><rect><x>0</x><y>0</y><width>%1</width>"
               "<height>%2</height></rect></property><layout class=\"QVBoxLayout\"><item>"
               "<widget class=\"QPushButton\" name=\"ok\"><property name=\"text\">"
               "<string>A button with a long text</string></property></widget></item>"
               "</layout></widget></ui>")
        .arg(width)
        .arg(height)
        .toUtf8();
}

// "dark.theme:LINE" of the line that begins with \a start.
QString placeOf(const QByteArray &start)
{
    QFile file(samples + QLatin1String("/dark.theme"));
    int line = 1;
    if (file.open(QIODevice::ReadOnly)) {
        while (!file.atEnd() && !file.readLine().startsWith(start))
            ++line;
    }
    return QStringLiteral("dark.theme:%1").arg(line);
}

bool write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

} // namespace

void tst_Workplace::initTestCase()
{
    handler = qInstallMessageHandler(handle);
    m_quiet = std::make_unique<QuietPlatform>();
    QApplication::setStyle(QStringLiteral("fusion"));
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "openFile");
}

// Messages of the program's end are no test's.
void tst_Workplace::cleanupTestCase()
{
    m_window.reset();
    m_quiet.reset();
    qInstallMessageHandler(handler);
}

void tst_Workplace::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_opened.clear();
    QGuiApplication::clipboard()->clear();
}

void tst_Workplace::cleanup()
{
    ProgramChanges::ofProgram()->discard(); // else it asks
    if (m_sharing.isEmpty())
        m_window.reset();
    isSilent = false;
    m_folder.reset();
}

Options tst_Workplace::optionsFor(const QString &page) const
{
    Options options;
    options.source = {samples, QStringLiteral("dark"), {}};
    options.pages = QStringList{page};
    return options;
}

void tst_Workplace::open(const Options &options, QSettings *memory)
{
    m_sharing.clear();
    m_window.reset();
    m_window = std::make_unique<GalleryWindow>(options, memory);
    if (!memory) // the screen is no larger, and what is outside cannot be clicked
        m_window->resize(790, 780);
    m_window->show();
    QApplication::setActiveWindow(m_window.get());
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

// A window takes long to make, so all rows of a test have one, and find it as it was at first.
void tst_Workplace::share(const QString &page, Pane pane)
{
    if (m_sharing != QLatin1String(QTest::currentTestFunction())) {
        Options options = optionsFor(page);
        options.pane = pane;
        open(options);
        m_sharing = QLatin1String(QTest::currentTestFunction());
        return;
    }
    auto *list = part<QListWidget>("pages");
    for (int i = 0; i < list->count(); ++i) {
        if (list->item(i)->data(Qt::UserRole) == page)
            list->setCurrentRow(i);
    }
    QCOMPARE(this->page(), page);
    m_window->findChild<ZoomArea *>()->setZoom(100);
    m_window->findChild<ZoomArea *>()->scrollTo(QPoint());
    if (m_window->inspector())
        m_window->inspector()->pick(m_window->statusBar());
    m_window->showPane(pane);
    QApplication::setActiveWindow(m_window.get());
}

// The sample themes in a folder of the test's, with other words in them.
QString tst_Workplace::copyOfThemes(const QByteArray &from, const QByteArray &to)
{
    QString folder = m_folder->filePath(QStringLiteral("themes"));
    QDir().mkdir(folder);
    for (const char *name : {"default", "dark", "light", "contrast"}) {
        const QString file = QLatin1Char('/') + QLatin1String(name) + QLatin1String(".theme");
        QFile original(samples + file);
        if (!original.open(QIODevice::ReadOnly))
            return {};
        QByteArray content = original.readAll();
        if (!from.isEmpty())
            content.replace(from, to);
        write(folder + file, content);
    }
    return folder;
}

// The library complains of bad themes as well, which is not what is looked at.
void tst_Workplace::openChecked(const Options &options)
{
    isSilent = true;
    m_window.reset();
    open(options);
    const bool isChecked =
        QTest::qWaitFor([this] { return !part<QLabel>("found")->text().isEmpty(); });
    isSilent = false;
    QVERIFY(isChecked);
}

void tst_Workplace::click(const QPoint &place, Qt::KeyboardModifiers modifiers) const
{
    QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, modifiers,
                      m_window->mapFromGlobal(place));
}

QPoint tst_Workplace::centerOf(const QWidget *widget) const
{
    return m_window->findChild<ZoomArea *>()->mapToScreen(widget, widget->rect().center());
}

QString tst_Workplace::page() const
{
    return part<QListWidget>("pages")->currentItem()->data(Qt::UserRole).toString();
}

void tst_Workplace::clickShowsKeys_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("selector");
    QTest::addColumn<int>("zoom");
    QTest::addColumn<QString>("widgetClass");
    QTest::addColumn<QString>("subControl");
    QTest::addColumn<QString>("key");

    // clang-format off
    QTest::newRow("alive") << "buttons" << "QPushButton[style=general]" << 100 << "QPushButton" << "" << "AccentBackgroundColor";
    QTest::newRow("held") << "buttons" << "QPushButton[style=general]:hover" << 100 << "QPushButton" << "" << "AccentHoverColor";
    QTest::newRow("disabled") << "buttons" << "QPushButton[style=general]:disabled" << 100 << "QPushButton" << "" << "GeneralButtonBackgroundDisabled";
    QTest::newRow("sub-control") << "sliders" << "QSlider:handle:horizontal" << 100 << "QSlider" << "handle" << "HighlightedForegroundColor";
    QTest::newRow("inner-widget") << "calendar" << "QCalendarWidget QToolButton" << 100 << "QPrevNextCalButton" << "" << "turn_prev";
    QTest::newRow("larger") << "buttons" << "QPushButton[style=general]:hover" << 150 << "QPushButton" << "" << "AccentHoverColor";
    QTest::newRow("smaller") << "buttons" << "QPushButton[style=general]:disabled" << 67 << "QPushButton" << "" << "GeneralButtonBackgroundDisabled";
    // clang-format on
}

void tst_Workplace::clickShowsKeys()
{
    QFETCH(QString, page);
    QFETCH(QString, selector);
    QFETCH(int, zoom);
    QFETCH(QString, key);
    share(page);
    const QWidget *before = m_window->inspector()->pickedWidget();
    auto *area = m_window->findChild<ZoomArea *>();
    area->setZoom(zoom);
    QWidget *specimen = findSpecimen(m_window->page(), selector);
    QVERIFY(specimen);
    QVERIFY(!keysOf(m_window->inspector()->inspection()).contains(key));
    QCoreApplication::processEvents();
    area->reveal(specimen);
    click(centerOf(specimen));
    QTRY_VERIFY(m_window->inspector()->pickedWidget() != before);
    QWidget *picked = m_window->inspector()->pickedWidget();
    QVERIFY(picked == specimen || specimen->isAncestorOf(picked));
    QTEST(QString::fromLatin1(picked->metaObject()->className()), "widgetClass");
    const Inspection &inspection = m_window->inspector()->inspection();
    QTEST(inspection.subControl, "subControl");
    // With Qt 6 a click of a test leads the pointer there, and leaves it.
    QTest::mouseMove(m_window->windowHandle(), QPoint(1, 1));
    m_window->inspector()->refresh();
    QVERIFY2(keysOf(inspection).contains(key), qPrintable(keysOf(inspection).join(' ')));
}

void tst_Workplace::directPickOpensTheInspector()
{
    Options options = optionsFor(QStringLiteral("buttons"));
    options.pane = Pane::Findings;
    open(options);
    QVERIFY(!m_window->inspector());
    QWidget *specimen = findSpecimen(m_window->page(), QStringLiteral("QPushButton:hover"));
    click(centerOf(specimen)); // an ordinary click leaves the findings alone
    QCoreApplication::processEvents();
    QCOMPARE(int(m_window->pane()), int(Pane::Findings));
    for (const int zoom : {100, 100, 200}) { // the first time there is no inspector yet
        m_window->findChild<ZoomArea *>()->setZoom(zoom);
        m_window->showPane(Pane::Findings);
        if (m_window->inspector())
            m_window->inspector()->pick(m_window->statusBar());
        m_window->showPane(Pane::Findings);
        QCoreApplication::processEvents();
        m_window->findChild<ZoomArea *>()->reveal(specimen);
        click(centerOf(specimen), Qt::ControlModifier | Qt::ShiftModifier);
        QTRY_COMPARE(int(m_window->pane()), int(Pane::Inspector));
        QCOMPARE(m_window->inspector()->pickedWidget(), specimen);
    }
}

// Specimens that are held in a state let the mouse through.
void tst_Workplace::pickingFindsDeafSpecimens()
{
    open(QStringLiteral("buttons"));
    QWidget *specimen = findSpecimen(m_window->page(), QStringLiteral("QPushButton:hover"));
    QVERIFY(specimen->testAttribute(Qt::WA_TransparentForMouseEvents));
    QTest::keyClick(m_window.get(), Qt::Key_P, Qt::AltModifier);
    click(centerOf(specimen));
    QCOMPARE(m_window->inspector()->pickedWidget(), specimen);
}

void tst_Workplace::findingsAreThoseOfCheck()
{
    Options options = optionsFor(QStringLiteral("buttons"));
    options.source.themesFolder =
        copyOfThemes("SliderAcrossBackgroundColor=Brand_5", "SliderAcrossBackgroundColor=redd");
    openChecked(options);

    ThemeProjectOptions project;
    project.folder = options.source.themesFolder;
    project.applicationFolder = QCoreApplication::applicationDirPath();
    QString error;
    const auto read = ThemeProject::read(project, &error);
    QVERIFY2(read, qPrintable(error));
    QStringList expected;
    const auto all = runLintRules(*read);
    for (const Finding &finding : all)
        expected.append(finding.place.text() + finding.message);
    expected.sort();
    const FindingList &list = m_window->findings().list();
    QCOMPARE(list.rowCount(), list.weightyCount());
    QVERIFY(list.rowCount() > 0 && list.rowCount() < expected.size());
    QCOMPARE(part<QTabWidget>("panes")->tabText(int(Pane::Findings)),
             QStringLiteral("Findings (%1)").arg(list.weightyCount()));
    QVERIFY(list.summary().startsWith(QLatin1String("1 error, ")));
    QCOMPARE(part<QLabel>("found")->text(), list.summary());
    m_window->showPane(Pane::Findings);
    QTest::keyClick(part<QCheckBox>("notes"), Qt::Key_Space);
    QStringList found;
    for (int row = 0; row < list.rowCount(); ++row) {
        const Finding *finding = list.findingAt(list.index(row, 0));
        found.append(finding->place.text() + finding->message);
    }
    found.sort();
    QCOMPARE(found, expected);
}

void tst_Workplace::findingLeads_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::addColumn<QByteArray>("templates");
    QTest::addColumn<QString>("rule");
    QTest::addColumn<QString>("place"); // file:line
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("theme");
    QTest::addColumn<QString>("selector");

    // clang-format off
    QTest::newRow("color") << QByteArray("SliderAcrossBackgroundColor=Brand_5") << QByteArray("SliderAcrossBackgroundColor=redd") << QByteArray() << "invalid-color" << placeOf("SliderAcrossBackgroundColor") << "sliders" << "dark" << "QSlider:handle:horizontal";
    QTest::newRow("palette-entry") << QByteArray("[Palettes]\n") << QByteArray("[Palettes]\nOwn_1=#123456\n") << QByteArray() << "unused-palette" << "default.theme:29" << "colours" << "dark" << "";
    QTest::newRow("other-theme") << QByteArray("ThemeName=Light\n") << QByteArray("ThemeName=Light\n[Colors]\nOwn=#12\n") << QByteArray() << "invalid-color" << "light.theme:14" << "colours" << "light" << "";
    QTest::newRow("template") << QByteArray() << QByteArray() << QByteArray("\nQPushButton[style=assist]:hover {\n  colour: red;\n}\n") << "unknown-property" << "own.qss:3" << "buttons" << "dark" << "QPushButton[style=assist]:hover";
    // clang-format on
}

void tst_Workplace::findingLeads()
{
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    QFETCH(QByteArray, templates);
    QFETCH(QString, rule);
    QFETCH(QString, place);
    QFETCH(QString, selector);
    Options options = optionsFor(QStringLiteral("menus"));
    options.source.themesFolder = copyOfThemes(from, to);
    options.pane = Pane::Findings;
    if (!templates.isEmpty()) {
        QDir().mkdir(m_folder->filePath(QStringLiteral("own")));
        QVERIFY(write(m_folder->filePath(QStringLiteral("own/own.qss")), templates));
        options.source.templateFolders = QStringList{m_folder->filePath(QStringLiteral("own"))};
    }
    openChecked(options);
    part<QCheckBox>("notes")->setChecked(true);
    auto *view = part<QTreeView>("findings");
    QModelIndex index;
    for (int row = 0; row < view->model()->rowCount(); ++row) {
        if (view->model()->index(row, FindingList::Rule).data() == rule
            && view->model()->index(row, FindingList::Where).data() == place)
            index = view->model()->index(row, 0);
    }
    QVERIFY(index.isValid());
    isSilent = true; // another theme may be loaded, with its complaints
    view->setFocus();
    view->setCurrentIndex(index);
    QTest::keyClick(view, Qt::Key_Return);
    QTEST(page(), "page");
    QTEST(part<QComboBox>("themes")->currentText(), "theme");
    QVERIFY(QGuiApplication::clipboard()->text().contains(place + QLatin1Char(':')));
    int frames = 0;
    const auto children = m_window->findChildren<QWidget *>();
    for (QWidget *child : children)
        frames += Outline::isFrame(child) && child->isVisible() ? 1 : 0;
    QCOMPARE(frames, 1);
    if (selector.isEmpty())
        return;
    QWidget *specimen = findSpecimen(m_window->page(), selector);
    QVERIFY(!specimen->visibleRegion().isEmpty());
    m_window->showPane(Pane::Inspector); // with the inspector open it is shown there
    m_window->lead({page(), selector, {}});
    QCOMPARE(specimenOf(m_window->inspector()->pickedWidget()), specimen);
}

void tst_Workplace::findingOpensItsFile()
{
    Options options = optionsFor(QStringLiteral("buttons"));
    options.source.themesFolder =
        copyOfThemes("SliderAcrossBackgroundColor=Brand_5", "SliderAcrossBackgroundColor=redd");
    options.pane = Pane::Findings;
    openChecked(options);
    auto *view = part<QTreeView>("findings");
    view->setFocus();
    view->setCurrentIndex(view->model()->index(0, 0));
    QContextMenuEvent wanted(QContextMenuEvent::Keyboard, QPoint(5, 5));
    QCoreApplication::sendEvent(view, &wanted);
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    QVERIFY(menu);
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Down);
    QCOMPARE(menu->activeAction()->text(), QStringLiteral("Open file"));
    QTest::keyClick(menu, Qt::Key_Return);
    const QString file = options.source.themesFolder + QLatin1String("/dark.theme");
    QCOMPARE(m_opened.toLocalFile(), file);
    QCOMPARE(QGuiApplication::clipboard()->text(),
             file + placeOf("SliderAcross").mid(10) + QLatin1String(":29"));
    QVERIFY(m_window->statusBar()->currentMessage().contains(placeOf("SliderAcross")
                                                             + QLatin1String(":29")));
}

void tst_Workplace::search_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("result"); // the first
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("shown"); // selector of the specimen, or key

    // clang-format off
    QTest::newRow("page") << "calen" << "Calendar\npage" << "calendar" << "";
    QTest::newRow("color") << "editborder" << "EditBorderColor\ncolour, Colours" << "colours" << "EditBorderColor";
    QTest::newRow("palette") << "brand_6" << "Brand_6\npalette entry, Colours" << "colours" << "Brand_6";
    QTest::newRow("image") << "shortcut_show" << "shortcut_show\nimage file of QPushButton[imageBtn=shortcutShow]" << "image-buttons" << "QPushButton[imageBtn=shortcutShow]";
    QTest::newRow("selector") << "style=editErr" << "QLineEdit[style=editError]\nInputs" << "inputs" << "QLineEdit[style=editError]";
    QTest::newRow("several-words") << "spinbox error" << "QSpinBox[style=editError]\nInputs" << "inputs" << "QSpinBox[style=editError]";
    // clang-format on
}

void tst_Workplace::search()
{
    QFETCH(QString, text);
    QFETCH(QString, shown);
    share(QStringLiteral("buttons"));
    QTest::keyClick(m_window->windowHandle(), Qt::Key_F, Qt::ControlModifier);
    auto *field = part<QLineEdit>("search");
    QVERIFY(field->hasFocus());
    QTest::keyClicks(field, text);
    auto *results = part<QListWidget>("results");
    QVERIFY(results->isVisible());
    QTEST(results->item(0)->text(), "result");
    QTest::keyClick(field, Qt::Key_Return);
    QTEST(page(), "page");
    if (shown.isEmpty())
        return;
    QWidget *part = findSpecimen(m_window->page(), shown);
    part = part ? part : findKey(m_window->page(), shown);
    QVERIFY(part);
    QVERIFY(!part->visibleRegion().isEmpty());
}

void tst_Workplace::escapeEndsTheSearch()
{
    open(QStringLiteral("buttons"));
    QTest::keyClick(m_window->windowHandle(), Qt::Key_F, Qt::ControlModifier);
    auto *field = part<QLineEdit>("search");
    QTest::keyClicks(field, QStringLiteral("no such thing"));
    auto *results = part<QListWidget>("results");
    QCOMPARE(results->count(), 1);
    QCOMPARE(results->item(0)->text(), QStringLiteral("Nothing has this in its name."));
    QTest::keyClick(field, Qt::Key_Return); // leads nowhere
    QCOMPARE(page(), QStringLiteral("buttons"));
    field->selectAll();
    QTest::keyClicks(field, QStringLiteral("QPushButton"));
    QTest::keyClick(field, Qt::Key_Down); // into the list
    QVERIFY(results->hasFocus());
    QTest::keyClick(results, Qt::Key_Down);
    QCOMPARE(results->currentRow(), 1);
    QTest::keyClick(results, Qt::Key_Escape);
    QVERIFY(field->text().isEmpty());
    QVERIFY(!results->isVisible());
    QVERIFY(part<QListWidget>("pages")->isVisible());
}

// A key that the theme gets while it is searched for is found.
void tst_Workplace::searchFollowsTheTheme()
{
    Options options = optionsFor(QStringLiteral("buttons"));
    options.source.themesFolder = copyOfThemes();
    open(options);
    part<QLineEdit>("search")->setText(QStringLiteral("SomethingNew"));
    auto *results = part<QListWidget>("results");
    QCOMPARE(results->item(0)->text(), QStringLiteral("Nothing has this in its name."));
    QFile theme(options.source.themesFolder + QStringLiteral("/dark.theme"));
    QVERIFY(theme.open(QIODevice::ReadWrite));
    const QByteArray text =
        theme.readAll().replace("[Colors]\n", "[Colors]\nSomethingNew=#123456\n");
    QVERIFY(theme.seek(0) && theme.write(text) == text.size());
    theme.close();
    QCOMPARE(int(m_window->reload()), int(Problem::None));
    QVERIFY2(results->item(0)->text().startsWith(QLatin1String("SomethingNew\n")),
             qPrintable(results->item(0)->text()));
}

void tst_Workplace::zoomKeys_data()
{
    QTest::addColumn<QVector<int>>("keys");
    QTest::addColumn<int>("zoom");

    QTest::newRow("larger") << QVector<int>{Qt::Key_Plus} << 125;
    QTest::newRow("larger-without-shift") << QVector<int>{Qt::Key_Equal, Qt::Key_Equal} << 150;
    QTest::newRow("smaller") << QVector<int>{Qt::Key_Minus} << 80;
    QTest::newRow("back") << QVector<int>{Qt::Key_Plus, Qt::Key_Plus, Qt::Key_0} << 100;
    QTest::newRow("there-and-back") << QVector<int>{Qt::Key_Plus, Qt::Key_Minus} << 100;
    QTest::newRow("least") << QVector<int>(4, Qt::Key_Minus) << 50;
    QTest::newRow("most") << QVector<int>(6, Qt::Key_Plus) << 400;
}

void tst_Workplace::zoomKeys()
{
    QFETCH(QVector<int>, keys);
    QFETCH(int, zoom);
    share(QStringLiteral("buttons"));
    QWidget *specimen = findSpecimen(m_window->page(), QStringLiteral("QPushButton"));
    for (const int key : qAsConst(keys))
        QTest::keyClick(m_window->windowHandle(), Qt::Key(key), Qt::ControlModifier);
    QCOMPARE(m_window->findChild<ZoomArea *>()->zoom(), zoom);
    QCOMPARE(part<QComboBox>("zoom")->currentText(), QStringLiteral("%1 %").arg(zoom));
    const auto *area = m_window->findChild<ZoomArea *>();
    const int zoomed = area->mapToScreen(specimen, QPoint(specimen->width(), 0)).x()
        - area->mapToScreen(specimen, QPoint()).x();
    QVERIFY(qAbs(zoomed - specimen->width() * zoom / 100.0) <= 1);
}

void tst_Workplace::zoomsByWheel_data()
{
    QTest::addColumn<int>("turned"); // at a time
    QTest::addColumn<int>("times");
    QTest::addColumn<int>("zoom");

    QTest::newRow("mouse") << 120 << 2 << 150;
    QTest::newRow("touchpad") << 30 << 8 << 150;
    QTest::newRow("touchpad-back") << -40 << 3 << 80;
    QTest::newRow("less-than-a-step") << 30 << 3 << 100;
}

void tst_Workplace::zoomsByWheel()
{
    QFETCH(int, turned);
    QFETCH(int, times);
    QFETCH(int, zoom);
    open(QStringLiteral("buttons"));
    QWidget *page = m_window->page();
    for (int i = 0; i < times; ++i) {
        QWheelEvent wheel(QPointF(3, 3), page->mapToGlobal(QPoint(3, 3)), {}, {0, turned}, {},
                          Qt::ControlModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(m_window->page(), &wheel);
    }
    QCOMPARE(m_window->findChild<ZoomArea *>()->zoom(), zoom);
}

void tst_Workplace::aClickIsOne()
{
    share(QStringLiteral("buttons"));
    QWidget *specimen = findSpecimen(m_window->page(), QStringLiteral("QPushButton"));
    auto *area = m_window->findChild<ZoomArea *>();
    area->reveal(specimen);
    QSignalSpy clicked(area, &ZoomArea::clicked);
    QTest::mousePress(specimen, Qt::LeftButton);
    QTRY_COMPARE(clicked.size(), 1);
    QTest::mouseRelease(specimen, Qt::LeftButton);
    QCoreApplication::processEvents();
    QCOMPARE(clicked.size(), 1);
}

void tst_Workplace::zoomedPageIsAlive()
{
    open(QStringLiteral("inputs"));
    auto *area = m_window->findChild<ZoomArea *>();
    area->setZoom(200);
    auto *edit =
        qobject_cast<QLineEdit *>(findSpecimen(m_window->page(), QStringLiteral("QLineEdit")));
    QVERIFY(edit);
    area->reveal(edit);
    QCoreApplication::processEvents();
    click(centerOf(edit));
    QVERIFY(edit->hasFocus());
    QTest::keyClick(m_window->windowHandle(), Qt::Key_End);
    QTest::keyClick(m_window->windowHandle(), Qt::Key_X);
    QVERIFY(edit->text().endsWith(QLatin1Char('x')));
    area->setZoom(100);
    QVERIFY(edit->text().endsWith(QLatin1Char('x')));
    part<QListWidget>("pages")->setCurrentRow(0); // other pages take the zoom over
    area->setZoom(50);
    part<QListWidget>("pages")->setCurrentRow(4);
    QVERIFY(!m_window->grab().isNull());
}

void tst_Workplace::contextMenu_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("at"); // selector of a specimen, or a key
    QTest::addColumn<QString>("menu"); // empty: the action stands in the first
    QTest::addColumn<QString>("action"); // how it begins
    QTest::addColumn<QString>("copied"); // a regular expression

    // clang-format off
    QTest::newRow("selector") << "buttons" << "QPushButton[style=general]:disabled" << "" << "Copy selector" << "^QPushButton\\[style=general\\]:disabled$";
    QTest::newRow("property") << "buttons" << "QPushButton[style=general]:disabled" << "" << "Copy setProperty" << "^widget->setProperty\\(\"style\", \"general\"\\);$";
    QTest::newRow("key") << "buttons" << "QPushButton[style=general]:disabled" << "Copy key" << "GeneralButtonBackgroundDisabled" << "^GeneralButtonBackgroundDisabled$";
    QTest::newRow("place") << "buttons" << "QPushButton[style=general]:disabled" << "Copy place" << placeOf("GeneralButtonBackgroundDisabled") + "  (GeneralButtonBackgroundDisabled)" << "/themes/" + placeOf("GeneralButtonBackgroundDisabled") + ":1$";
    QTest::newRow("rule") << "buttons" << "QPushButton[style=general]:disabled" << "Show rule" << "QPushButton[style=general]:disabled  (" << "";
    QTest::newRow("inspect") << "buttons" << "QPushButton[style=general]:disabled" << "" << "Inspect" << "";
    QTest::newRow("swatch-key") << "colours" << "EditBorderColor" << "" << "Copy key" << "^EditBorderColor$";
    QTest::newRow("swatch-place") << "colours" << "EditBorderColor" << "" << "Copy place " + placeOf("EditBorderColor") << "/themes/" + placeOf("EditBorderColor") + ":1$";
    QTest::newRow("swatch-users") << "colours" << "EditBorderColor" << "" << "Show what uses it" << "";
    // clang-format on
}

void tst_Workplace::contextMenu()
{
    QFETCH(QString, page);
    QFETCH(QString, at);
    QFETCH(QString, menu);
    QFETCH(QString, action);
    QFETCH(QString, copied);
    share(page, Pane::Messages);
    QWidget *widget = page == QLatin1String("colours") ? findKey(m_window->page(), at)
                                                       : findSpecimen(m_window->page(), at);
    m_window->findChild<ZoomArea *>()->reveal(widget);
    QWidget *under = QApplication::widgetAt(centerOf(widget));
    const QPoint place = centerOf(widget);
    QContextMenuEvent wanted(QContextMenuEvent::Mouse, under->mapFromGlobal(place), place);
    QCoreApplication::sendEvent(under, &wanted);
    auto *shown = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    QVERIFY(shown);
    QMenu *searched = shown;
    const auto submenus = shown->findChildren<QMenu *>();
    for (QMenu *each : submenus)
        searched = each->title() == menu ? each : searched;
    QAction *found = nullptr;
    const auto actions = searched->actions();
    for (QAction *each : actions)
        found = found == nullptr && each->text().startsWith(action) ? each : found;
    QVERIFY(found);
    QVERIFY(found->isEnabled());
    found->trigger();
    shown->close();
    if (!copied.isEmpty()) {
        const QString text = QGuiApplication::clipboard()->text();
        QVERIFY2(text.contains(QRegularExpression(copied)), qPrintable(text));
    } else if (page == QLatin1String("colours")) {
        QCOMPARE(part<QLineEdit>("search")->text(), at);
        QVERIFY(part<QListWidget>("results")->count() > 1);
    } else {
        QCOMPARE(int(m_window->pane()), int(Pane::Inspector));
        QCOMPARE(m_window->inspector()->pickedWidget(), widget);
    }
}

// Its themes are shown in another text, with other lines, than that of their files.
void tst_Workplace::placesOfAnotherApplication()
{
    Options options = optionsFor(QStringLiteral("buttons"));
    options.source.applicationFolder = QCoreApplication::applicationDirPath();
    open(options);
    QWidget *button =
        findSpecimen(m_window->page(), QStringLiteral("QPushButton[style=general]:disabled"));
    m_window->findChild<ZoomArea *>()->reveal(button);
    const QPoint place = centerOf(button);
    QWidget *under = QApplication::widgetAt(place);
    QContextMenuEvent wanted(QContextMenuEvent::Mouse, under->mapFromGlobal(place), place);
    QCoreApplication::sendEvent(under, &wanted);
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    QVERIFY(menu);
    const QString key = QStringLiteral("GeneralButtonBackgroundDisabled");
    const QString expected = placeOf(key.toLatin1()) + QStringLiteral("  (%1)").arg(key);
    QStringList places;
    const auto menus = menu->findChildren<QMenu *>();
    for (const QMenu *each : menus) {
        const auto actions = each->actions();
        for (const QAction *action : actions) {
            if (each->title() == QLatin1String("Copy place") && action->text().contains(key))
                places << action->text();
        }
    }
    QCOMPARE(places, QStringList(expected));
    menu->close();
}

void tst_Workplace::quits()
{
    open(QStringLiteral("buttons"));
    QTest::keyClick(m_window->windowHandle(), Qt::Key_Q, Qt::ControlModifier);
    QVERIFY(!m_window->isVisible());
}

void tst_Workplace::asksBeforeChangesAreLost_data()
{
    QTest::addColumn<QString>("answer"); // a button's text, or nothing for Escape
    QTest::addColumn<bool>("closes");
    QTest::addColumn<bool>("isSaved");

    QTest::newRow("cancel") << "Cancel" << false << false;
    QTest::newRow("escape") << "" << false << false;
    QTest::newRow("save") << "&Save" << true << true;
    QTest::newRow("discard") << "&Discard" << true << false;
}

void tst_Workplace::asksBeforeChangesAreLost()
{
    QFETCH(QString, answer);
    QFETCH(bool, closes);
    QFETCH(bool, isSaved);
    Options options = optionsFor(QStringLiteral("buttons"));
    options.source.themesFolder = copyOfThemes();
    open(options);
    ProgramChanges *changes = ProgramChanges::ofProgram();
    const QString file = options.source.themesFolder + QStringLiteral("/dark.theme");
    QVERIFY2(changes->setValue(file, QStringLiteral("Colors/DefaultForegroundColor"),
                               QStringLiteral("#ffeedd")),
             qPrintable(changes->problem()));
    QStringList questions;
    QTimer answering; // the key may be at work some events later
    connect(&answering, &QTimer::timeout, this, [&] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box || !box->isVisible())
            return;
        questions.append(box->text());
        QCOMPARE(Mnemonics(box).collisions(), QStringList());
        if (answer.isEmpty()) {
            QTest::keyClick(box, Qt::Key_Escape);
            return;
        }
        const auto buttons = box->buttons();
        for (QAbstractButton *each : buttons) {
            if (each->text().contains(answer))
                each->click();
        }
    });
    answering.start(10);
    QTest::keyClick(m_window->windowHandle(), Qt::Key_Q, Qt::ControlModifier);
    QCOMPARE(questions, QStringList("1 unsaved change in dark.theme. Save them?"));
    QCOMPARE(m_window->isVisible(), !closes);
    QCOMPARE(changes->isUnsaved(), !closes);
    QFile saved(file);
    QVERIFY(saved.open(QIODevice::ReadOnly));
    QCOMPARE(saved.readAll().contains("DefaultForegroundColor=#ffeedd\n"), isSaved);
}

// The selectors follow what the look becomes, so that the next reload does not bring the old theme back.
void tst_Workplace::goesOnWithANewTheme()
{
    Options options = optionsFor(QStringLiteral("buttons"));
    options.source.themesFolder = copyOfThemes();
    QSettings settings(m_folder->filePath(QStringLiteral("memory.ini")), QSettings::IniFormat);
    open(options, &settings);
    const auto ground = [this] {
        QWidget *button =
            findSpecimen(m_window->page(), QStringLiteral("QPushButton[style=general]:disabled"));
        return button->grab().toImage().pixelColor(4, button->height() / 2);
    };
    ProgramChanges *changes = ProgramChanges::ofProgram();
    QVERIFY2(changes->setValue(options.source.themesFolder + QStringLiteral("/dark.theme"),
                               QStringLiteral("Colors/GeneralButtonBackgroundDisabled"),
                               QStringLiteral("#123456")),
             qPrintable(changes->problem()));
    QCOMPARE(ground(), QColor(0x123456));
    auto *dialog = new NewThemeDialog(changes, m_window->inspector());
    dialog->open();
    QCOMPARE(Mnemonics(dialog).collisions(), QStringList());
    const QString folder = m_folder->filePath(QStringLiteral("elsewhere"));
    for (auto *edit : dialog->findChildren<QLineEdit *>()) {
        if (edit->accessibleName() == QLatin1String("Folder"))
            edit->setText(folder);
        else if (edit->accessibleName() == QLatin1String("Name"))
            edit->setText(QStringLiteral("mine"));
    }
    QSignalSpy reloaded(m_window.get(), &GalleryWindow::reloaded);
    dialog->accept();
    QVERIFY(!changes->isUnsaved());
    QTRY_COMPARE(part<QComboBox>("themes")->currentText(), QStringLiteral("mine"));
    QCOMPARE(reloaded.size(), 1);
    QCOMPARE(Memory(&settings).recentFolders().value(0), folder);
    QCOMPARE(int(m_window->reload()), int(Problem::None));
    QCOMPARE(ground(), QColor(0x123456));
    QCOMPARE(HV::ApplicationTheme::inForce()->name(), QStringLiteral("mine"));
}

void tst_Workplace::isRemembered()
{
    const QString file = m_folder->filePath(QStringLiteral("memory.ini"));
    const QString themes = copyOfThemes();
    const QString ui = m_folder->filePath(QStringLiteral("own.ui"));
    QVERIFY(write(ui, form(300, 200)));
    {
        QSettings settings(file, QSettings::IniFormat);
        Options options = optionsFor(QStringLiteral("buttons"));
        Memory(&settings).complete(&options);
        open(options, &settings);
        m_window->setGeometry(30, 40, 1000, 700);
        QCOMPARE(int(m_window->openFolder(themes)), int(Problem::None));
        auto *chooser = part<QComboBox>("themes");
        while (chooser->currentText() != QLatin1String("light"))
            QTest::keyClick(chooser, Qt::Key_Down);
        m_window->openForm(ui);
        QCOMPARE(page(), QStringLiteral("form"));
        part<QListWidget>("pages")->setCurrentRow(5);
        m_window->showPane(Pane::Findings);
        m_window->findChild<ZoomArea *>()->setZoom(80);
        m_window->findChild<QSplitter *>()->setSizes({350, 200});
        m_window->close();
    }
    QSettings settings(file, QSettings::IniFormat);
    Options options;
    Memory(&settings).complete(&options);
    QCOMPARE(options.source.themesFolder, themes);
    QCOMPARE(options.source.themeName, QStringLiteral("light"));
    QCOMPARE(options.formFile, ui);
    open(options, &settings);
    QCOMPARE(m_window->geometry(), QRect(30, 40, 1000, 700));
    QCOMPARE(part<QComboBox>("themes")->currentText(), QStringLiteral("light"));
    QCOMPARE(page(), QStringLiteral("inputs"));
    QCOMPARE(part<QListWidget>("pages")->count(), pages().size() + 1);
    QCOMPARE(int(m_window->pane()), int(Pane::Findings));
    QCOMPARE(m_window->findChild<ZoomArea *>()->zoom(), 80);
    QCOMPARE(Memory(&settings).recentFolders(), QStringList({themes, samples}));

    Options named; // what the command line says counts more
    named.source.themesFolder = samples;
    named.pages = QStringList{"tabs"};
    Memory(&settings).complete(&named);
    QCOMPARE(named.source.themesFolder, samples);
    QCOMPARE(named.source.themeName, QString()); // that was a theme of another folder
    QCOMPARE(named.pages, QStringList{"tabs"});
}

void tst_Workplace::nothingIsKeptWithoutMemory()
{
    QStandardPaths::setTestModeEnabled(true);
    const QString own = QSettings(QSettings::IniFormat, QSettings::UserScope,
                                  QStringLiteral("hvtheme"), QStringLiteral("hvtheme-gallery"))
                            .fileName();
    const bool isThere = QFile::exists(own);
    open(QStringLiteral("buttons"));
    part<QListWidget>("pages")->setCurrentRow(5);
    m_window->close();
    m_window.reset();
    QCOMPARE(QFile::exists(own), isThere);
}

void tst_Workplace::forgetsWhatIsGone()
{
    QSettings settings(m_folder->filePath(QStringLiteral("memory.ini")), QSettings::IniFormat);
    Memory memory(&settings);
    memory.keepSource({m_folder->filePath(QStringLiteral("gone")), QStringLiteral("dark"), {}, {}});
    memory.keepForm(m_folder->filePath(QStringLiteral("gone.ui")));
    memory.keepPage(QStringLiteral("form"));
    Options options;
    memory.complete(&options);
    QCOMPARE(options.source.themesFolder, QString());
    QCOMPARE(options.source.themeName, QString());
    QCOMPARE(options.formFile, QString());
    QCOMPARE(options.pages, QStringList());
    QCOMPARE(memory.recentFolders(), QStringList());
}

void tst_Workplace::opensAFolder()
{
    const QString themes = copyOfThemes("GeneralButtonBackgroundDisabled=Brand_9",
                                        "GeneralButtonBackgroundDisabled=#123456");
    QSettings settings(m_folder->filePath(QStringLiteral("memory.ini")), QSettings::IniFormat);
    open(optionsFor(QStringLiteral("buttons")), &settings);
    QTimer answer; // until the dialog is open
    connect(&answer, &QTimer::timeout, this, [&] {
        auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        if (dialog == nullptr || !dialog->isVisible())
            return;
        answer.stop();
        auto *name = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        name->setText(themes);
        QTest::keyClick(name, Qt::Key_Return);
        if (dialog->isVisible())
            dialog->reject();
    });
    answer.start(20);
    QTest::keyClick(m_window->windowHandle(), Qt::Key_O, Qt::ControlModifier);
    auto *button =
        findSpecimen(m_window->page(), QStringLiteral("QPushButton[style=general]:disabled"));
    part<QComboBox>("themes")->setCurrentText(QStringLiteral("dark"));
    Q_EMIT part<QComboBox>("themes")->textActivated(QStringLiteral("dark"));
    QCOMPARE(button->grab().toImage().pixelColor(4, button->height() / 2), QColor(0x123456));
    auto *recent = part<QMenu>("recent");
    auto *first = m_window->menuBar()->actions().constFirst()->menu();
    Q_EMIT first->aboutToShow();
    QStringList offered;
    const auto actions = recent->actions();
    for (QAction *action : actions)
        offered.append(action->text());
    QCOMPARE(offered, QStringList({themes, samples}));
    recent->actions().constLast()->trigger();
    QVERIFY(button->grab().toImage().pixelColor(4, button->height() / 2) != QColor(0x123456));
}

void tst_Workplace::badFolderChangesNothing_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("message");

    QTest::newRow("missing") << "nowhere"
                             << "The themes folder \".*/nowhere\" does not exist";
    QTest::newRow("empty") << "empty"
                           << "empty/default.theme\" is missing or cannot be read";
    QTest::newRow("file") << "file"
                          << "The themes folder \".*/file\" does not exist";
}

void tst_Workplace::badFolderChangesNothing()
{
    QFETCH(QString, folder);
    QFETCH(QString, message);
    QDir().mkdir(m_folder->filePath(QStringLiteral("empty")));
    QVERIFY(write(m_folder->filePath(QStringLiteral("file")), "text"));
    QSettings settings(m_folder->filePath(QStringLiteral("memory.ini")), QSettings::IniFormat);
    open(optionsFor(QStringLiteral("buttons")), &settings);
    const QString sheet = qApp->styleSheet();
    QTest::ignoreMessage(QtCriticalMsg, QRegularExpression(message));
    QCOMPARE(int(m_window->openFolder(m_folder->filePath(folder))), int(Problem::ThemesFolder));
    QCOMPARE(qApp->styleSheet(), sheet);
    QCOMPARE(part<QComboBox>("themes")->currentText(), QStringLiteral("dark"));
    QCOMPARE(m_window->statusBar()->currentMessage(),
             QStringLiteral("That folder cannot be shown; see the messages"));
    QCOMPARE(int(m_window->pane()), int(Pane::Messages));
    QTRY_COMPARE(m_window->messages().rowCount(), 1);
    QCOMPARE(Memory(&settings).recentFolders(), QStringList{samples});
    QCOMPARE(int(m_window->reload()), int(Problem::None)); // of the folder before
}

void tst_Workplace::ownPaletteIsShown()
{
    Options options = optionsFor(QStringLiteral("colours"));
    options.source.themesFolder = copyOfThemes(
        "[Palettes]\n", "[Palettes]\nStage_Left=#123456\n; far right\nStage_Right=#80654321\n");
    open(options);
    QStringList captions;
    for (const char *key : {"Stage_Left", "Stage_Right"}) {
        QWidget *caption = findKey(m_window->page(), QString::fromLatin1(key));
        QVERIFY(caption);
        const auto labels = caption->parentWidget()->findChildren<QLabel *>();
        for (const QLabel *label : labels)
            captions.append(label->text());
    }
    QCOMPARE(captions, QStringList({"Stage_Left", "#123456", "Stage_Right", "#80654321"}));
    open(QStringLiteral("colours")); // themes without have no such heading
    const auto labels = m_window->page()->findChildren<QLabel *>();
    for (const QLabel *label : labels)
        QVERIFY(label->text() != QLatin1String("The theme's own palette"));
}

void tst_Workplace::formKeepsItsSize_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("isKept");

    QTest::newRow("small") << QSize(320, 210) << true;
    QTest::newRow("large") << QSize(2500, 1900) << true;
    QTest::newRow("too-small") << QSize(20, 10) << false; // for its button
}

void tst_Workplace::formKeepsItsSize()
{
    QFETCH(QSize, size);
    QFETCH(bool, isKept);
    Options options = optionsFor(QStringLiteral("form"));
    options.formFile = m_folder->filePath(QStringLiteral("own.ui"));
    QVERIFY(write(options.formFile, form(size.width(), size.height())));
    open(options);
    QCoreApplication::processEvents();
    const QSize shown = m_window->page()->size();
    QCOMPARE(shown == size, isKept);
    QVERIFY(shown.width() >= m_window->page()->minimumSizeHint().width());
    for (const int zoom : {200, 50, 100}) {
        m_window->findChild<ZoomArea *>()->setZoom(zoom);
        QCOMPARE(m_window->page()->size(), shown);
    }
    m_window->reload();
    QCOMPARE(m_window->page()->size(), shown);
}

void tst_Workplace::everythingByKeyboard_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<int>("pane");
    QTest::addColumn<QString>("theme");

    for (const Page &page : pages())
        QTest::newRow(qPrintable(page.name)) << page.name << int(Pane::Messages) << "dark";
    QTest::newRow("inspector") << "tabs" << int(Pane::Inspector) << "dark";
    QTest::newRow("findings") << "tabs" << int(Pane::Findings) << "dark";
    QTest::newRow("light") << "tabs" << int(Pane::Findings) << "light";
    QTest::newRow("contrast") << "tabs" << int(Pane::Findings) << "contrast";
}

// Every widget that Tab leads to from the one that has the focus, once around.
static QList<QWidget *> reachedByTab(QWindow *window)
{
    QSet<QWidget *> reached;
    QList<QWidget *> order;
    constexpr int mostStops = 20; // in one widget: fields of a date
    int stops = 0;
    for (QWidget *focus = QApplication::focusWidget();
         focus && (!reached.contains(focus) || (focus == order.constLast() && stops < mostStops));
         focus = QApplication::focusWidget()) {
        stops = reached.contains(focus) ? stops + 1 : 0;
        if (stops == 0) {
            reached.insert(focus);
            order.append(focus);
        }
        QTest::keyClick(window, Qt::Key_Tab);
    }
    return order;
}

static QStringList notReachedOrNamed(const GalleryWindow &window, const QList<QWidget *> &order)
{
    QStringList problems;
    const auto widgets = window.findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const bool isUsable = widget->isVisible() && widget->isEnabled()
            && (widget->focusPolicy() & Qt::TabFocus) && widget->window() == &window;
        if (!isUsable || qobject_cast<QMenuBar *>(widget)) // which Alt leads to
            continue;
        QWidget *proxied = widget;
        while (proxied->focusProxy())
            proxied = proxied->focusProxy();
        if (widget->objectName().startsWith(QLatin1String("qt_")))
            continue; // parts of a widget of Qt's
        const QString name = nameOf(widget) + QLatin1String(" in ") + nameOf(widget->parent());
        // Of radio buttons Tab reaches one, and the arrows the others.
        if (!order.contains(proxied) && !qobject_cast<QRadioButton *>(widget))
            problems.append(QLatin1String("not reached: ") + name);
        const QAccessibleInterface *told = QAccessible::queryAccessibleInterface(widget);
        if (!told || told->text(QAccessible::Name).trimmed().isEmpty())
            problems.append(QLatin1String("no name: ") + name);
    }
    return problems;
}

// Tab reaches whatever is to be used, and of each it is told and seen that it has the focus.
void tst_Workplace::everythingByKeyboard()
{
    QFETCH(QString, page);
    QFETCH(int, pane);
    QFETCH(QString, theme);
    if (Pane(pane) == Pane::Messages) {
        share(page, Pane(pane));
    } else {
        Options options = optionsFor(page);
        options.pane = Pane(pane);
        options.source.themeName = theme;
        open(options);
    }
    m_window->resize(1800, 1600);
    if (m_window->inspector()) // so that its lists have something
        m_window->inspect(m_window->page()->findChild<QAbstractButton *>());
    QCoreApplication::processEvents();
    part<QComboBox>("themes")->setFocus(Qt::TabFocusReason);
    const QList<QWidget *> order = reachedByTab(m_window->windowHandle());
    QCOMPARE(QApplication::focusWidget(), part<QComboBox>("themes")); // all the way round
    QStringList problems = notReachedOrNamed(*m_window, order);
    for (QWidget *widget : order) {
        const bool isOfPage = m_window->page()->isAncestorOf(widget);
        if (isOfPage && !qobject_cast<QLabel *>(widget))
            continue; // what that looks like is the templates' business
        if (isOfPage)
            m_window->findChild<ZoomArea *>()->reveal(widget);
        const QRect around =
            QRect(widget->mapTo(m_window.get(), QPoint()), widget->size()).adjusted(-3, -3, 3, 3);
        widget->setFocus(Qt::TabFocusReason);
        const QImage focused = m_window->grab(around).toImage();
        widget->clearFocus();
        if (m_window->grab(around).toImage() == focused)
            problems.append(QLatin1String("no visible focus: ") + nameOf(widget)
                            + QLatin1String(" in ") + nameOf(widget->parent()));
    }
    problems.removeDuplicates();
    for (const QString &problem : qAsConst(problems))
        qInfo("%s", qPrintable(problem));
    QVERIFY(problems.isEmpty());
    QVERIFY(order.size() > 8);
    // The page comes between the list of pages and the panes.
    const int tabs = int(order.indexOf(part<QTabWidget>("panes")->tabBar()));
    QVERIFY(tabs > 0);
    for (int i = 0; i < order.size(); ++i) {
        if (m_window->page()->isAncestorOf(order.at(i)))
            QVERIFY(i < tabs && i > order.indexOf(part<QListWidget>("pages")));
    }
}

void tst_Workplace::partsByKeyboard()
{
    open(QStringLiteral("buttons"));
    const auto press = [this](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(m_window->windowHandle(), key, modifiers);
        return QApplication::focusWidget();
    };
    part<QListWidget>("pages")->setFocus();
    QCOMPARE(press(Qt::Key_F6), part<QScrollArea>("page"));
    QCOMPARE(press(Qt::Key_F6), part<QTabWidget>("panes")->tabBar());
    QCOMPARE(press(Qt::Key_F6), part<QListWidget>("pages"));
    QCOMPARE(press(Qt::Key_F6, Qt::ShiftModifier), part<QTabWidget>("panes")->tabBar());
    const QVector<Pane> panes{Pane::Inspector, Pane::Findings, Pane::Messages};
    for (const Pane pane : panes) {
        press(Qt::Key(Qt::Key_1 + int(pane)), Qt::ControlModifier);
        QCOMPARE(int(m_window->pane()), int(pane));
    }
    press(Qt::Key_I, Qt::ControlModifier); // nothing to inspect has the focus
    QCOMPARE(int(m_window->pane()), int(Pane::Messages));
    QVERIFY(m_window->statusBar()->currentMessage().startsWith(QLatin1String("Nothing on")));
    QWidget *specimen = findSpecimen(m_window->page(), QStringLiteral("QPushButton:hover"));
    const auto captions = m_window->page()->findChildren<QLabel *>();
    for (QLabel *caption : captions) {
        if (caption->property(specimenProperty) == QLatin1String("QPushButton:hover"))
            caption->setFocus();
    }
    press(Qt::Key_I, Qt::ControlModifier);
    QCOMPARE(m_window->inspector()->pickedWidget(), specimen);
    // The inspector's own filter has Ctrl+F while the focus is there.
    m_window->inspector()->findChild<QAbstractItemView *>()->setFocus();
    QWidget *filter = press(Qt::Key_F, Qt::ControlModifier);
    QVERIFY(m_window->inspector()->isAncestorOf(filter));
    part<QListWidget>("pages")->setFocus();
    QCOMPARE(press(Qt::Key_F, Qt::ControlModifier), part<QLineEdit>("search"));
}

void tst_Workplace::noLetterTwice_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<int>("kind"); // of the keys that are chosen in the inspector's lists

    QTest::newRow("color") << "tabs" << int(Kind::Color);
    QTest::newRow("image") << "tabs" << int(Kind::ImageFile);
    QTest::newRow("integer") << "tabs" << int(Kind::Integer);
    QTest::newRow("maker-and-color") << "make" << int(Kind::Color);
    QTest::newRow("maker-and-image") << "make" << int(Kind::ImageFile);
}

// Two parts with one Alt key would both be led to by turns.
void tst_Workplace::noLetterTwice()
{
    QFETCH(QString, page);
    QFETCH(int, kind);
    share(page);
    m_window->resize(1800, 1600);
    InspectorPane *inspector = m_window->inspector();
    inspector->pick(m_window->page()->findChild<QAbstractButton *>());
    auto *tabs = inspector->findChild<QTabWidget *>();
    // Specimens have the letters that whoever wrote their texts gave them.
    const QWidget *left = page == QLatin1String("make") ? nullptr : m_window->page();
    bool isChosen = false;
    for (const Pane pane : {Pane::Inspector, Pane::Findings, Pane::Messages}) {
        m_window->showPane(pane);
        const int count = pane == Pane::Inspector ? tabs->count() : 1;
        for (int i = 0; i < count; ++i) {
            tabs->setCurrentIndex(i);
            auto *list = qobject_cast<QTreeWidget *>(tabs->currentWidget());
            QTreeWidget none;
            for (QTreeWidgetItemIterator it(list ? list : &none); *it; ++it) {
                if ((*it)->data(0, InspectorLists::Key).toString().isEmpty()
                    || (*it)->data(0, InspectorLists::KeyKind) != kind)
                    continue;
                list->setCurrentItem(*it);
                isChosen = inspector->findChild<ChangePanel *>()->isVisible() || isChosen;
                break;
            }
            const Mnemonics letters(m_window.get(), left);
            QVERIFY(letters.count() > 1);
            QCOMPARE(letters.collisions(), QStringList());
        }
    }
    QVERIFY(isChosen);
}

QTEST_MAIN(tst_Workplace)

#include "tst_workplace.moc"
