// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "messages.h"
#include "quietplatform.h"
#include "temporaryfolder.h"

#include <hvtheme/workabletheming.h>
#include <hvthemeapp/applicationtheme.h>

#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QTextBrowser>
#include <QToolTip>
#include <QVBoxLayout>
#include <QtTest>

using HV::ApplicationTheme;

/*! A vocabulary of an application's own. */
class OwnTheme : public HV::WorkableTheme
{
    Q_OBJECT

public:
    enum class Color {
        Accent,
        Quiet
    };
    Q_ENUM(Color)
};

namespace
{

const char *const sampleFolder = HVTHEME_SOURCE_DIR "/themes";

QByteArray fileText(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// The sample themes without their images, which are not where the test runs, under other names.
void writeThemes(const TemporaryFolder &folder, const QByteArray &more = QByteArray())
{
    folder.write("default.theme", fileText(":/hvthemeapp/themes/default.theme"));
    for (const char *name : {"dark", "light"}) {
        const QByteArray text = fileText(QString(":/hvthemeapp/themes/%1.theme").arg(name));
        folder.write(QString("%1.theme").arg(name == QByteArray("dark") ? "night" : "day"),
                     text + more);
    }
}

// What the library has logged, with severity and category.
QStringList logged(CapturedMessages &log)
{
    QStringList lines;
    const Messages messages = log.take();
    for (const Message &message : messages)
        lines.append(QString("%1 %2 %3").arg(message.severity).arg(message.category, message.text));
    return lines;
}

QStringList warning(const QString &text)
{
    return {QString("%1 hvtheme.app %2").arg(QtWarningMsg).arg(text)};
}

QStringList checkedTexts(const QMenu &menu)
{
    QStringList texts;
    const QList<QAction *> actions = menu.actions();
    for (const QAction *action : actions) {
        if (action->isChecked())
            texts.append(action->text());
    }
    return texts;
}

QAction *actionNamed(const QMenu &menu, const QString &text)
{
    const QList<QAction *> actions = menu.actions();
    const auto it = std::find_if(actions.cbegin(), actions.cend(),
                                 [&](const QAction *action) { return action->text() == text; });
    return it == actions.cend() ? nullptr : *it;
}

} // namespace

class tst_ApplicationTheme : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void looks_data();
    void looks();
    void namesAreThoseOfTheFolder();
    void ownFolder();
    void folderBesideTheExecutable();
    void ownSuffix();
    void suffixThatCannotBeHad_data();
    void suffixThatCannotBeHad();
    void suffixOfFollowedThemes();
    void ownVocabulary();
    void missingKeyOfOwnVocabulary();
    void ownTemplates();
    void everythingInForceWhenChanged();
    void paintedOnce();
    void ownStyleSheetStays();
    void styleSheetOfAFile_data();
    void styleSheetOfAFile();
    void picturesOfAFile();
    void styleSheetWithoutAFile();
    void whatPalettesDoNotReach();
    void titleBarsFollow();
    void saveAndRestore();
    void menuInStep();
    void liveReload_data();
    void liveReload();
    void objectsTakeTurns();
    void properties();

private:
    CapturedMessages m_log;
};

void tst_ApplicationTheme::initTestCase()
{
    QVERIFY(ApplicationTheme().setName("dark")); // the library's resources are there now
}

void tst_ApplicationTheme::init()
{
    qApp->setStyleSheet(QString());
    m_log.start();
}

void tst_ApplicationTheme::cleanup()
{
    REPORT_STRAY_MESSAGES(m_log);
}

void tst_ApplicationTheme::looks_data()
{
    QTest::addColumn<QString>("displayName");
    QTest::addColumn<bool>("isDark");

    QTest::newRow("dark") << "Dark" << true;
    QTest::newRow("light") << "Light" << false;
    QTest::newRow("contrast") << "High contrast" << true;
}

void tst_ApplicationTheme::looks()
{
    QFETCH(QString, displayName);
    QFETCH(bool, isDark);
    ApplicationTheme theme;
    const QSignalSpy changes(&theme, &ApplicationTheme::changed);
    const QSignalSpy names(&theme, &ApplicationTheme::nameChanged);
    QVERIFY(theme.setName(QTest::currentDataTag()));
    QCOMPARE(changes.count(), 1);
    QCOMPARE(names.count(), 1);
    QCOMPARE(theme.theme()->displayName(), displayName);
    QCOMPARE(theme.displayName(theme.name()), displayName);
    QCOMPARE(QApplication::palette().color(QPalette::Window).lightness() < 128, isDark);
    QCOMPARE(QApplication::palette(), theme.palette());
    QVERIFY(!qApp->styleSheet().contains("global.theme"));
    QPushButton button("push");
    QVERIFY(!button.grab().isNull());
    QCOMPARE(theme.problem(), QString());
}

void tst_ApplicationTheme::namesAreThoseOfTheFolder()
{
    ApplicationTheme theme;
    QCOMPARE(theme.names(), QStringList({"contrast", "dark", "light"}));

    TemporaryFolder folder;
    folder.write("default.theme", "ThemeName=Only\n[Colors]\nX=#fff\n");
    QVERIFY(theme.setFolder(folder.path()));
    QCOMPARE(theme.names(), QStringList("default"));
    folder.write("b.theme", "ThemeName=Zebra\n[Colors]\nY=#fff\n");
    QCOMPARE(theme.names(), QStringList({"b", "default"}));
    QCOMPARE(theme.displayName("b"), "Zebra");
    folder.write("default.theme", "ThemeName=Shared\n[Integers]\nX=1\n");
    QCOMPARE(theme.names(), QStringList("b"));
}

void tst_ApplicationTheme::ownFolder()
{
    TemporaryFolder folder;
    writeThemes(folder);
    folder.write("dark.theme", fileText(":/hvthemeapp/themes/light.theme"));
    ApplicationTheme theme;
    const QString builtIn = theme.folder();
    const QSignalSpy folders(&theme, &ApplicationTheme::folderChanged);
    QVERIFY(theme.setName("dark"));
    const QColor dark = theme.palette().color(QPalette::Window);

    QVERIFY(theme.setFolder(folder.path())); // its "dark" comes into force at once
    QCOMPARE(folders.count(), 1);
    QVERIFY(theme.palette().color(QPalette::Window) != dark);
    QVERIFY(theme.setName("night"));
    QCOMPARE(theme.palette().color(QPalette::Window), dark);
    QCOMPARE(theme.theme()->filePath(), folder.filePath("default.theme"));

    QVERIFY(theme.setFolder(QString())); // which has no "night": the look stays
    QCOMPARE(theme.folder(), builtIn);
    QCOMPARE(theme.name(), "night");
    QVERIFY(theme.setName("light"));
}

void tst_ApplicationTheme::folderBesideTheExecutable()
{
    const QString beside = QCoreApplication::applicationDirPath() + "/themes";
    QVERIFY(!QFileInfo::exists(beside));
    QVERIFY(QDir().mkpath(beside));
    const auto removeIt = qScopeGuard([&] { QDir(beside).removeRecursively(); });
    ApplicationTheme theme;
    QCOMPARE(theme.names(), QStringList({"contrast", "dark", "light"})); // no default file in it
    QVERIFY(QFile::copy(QString(sampleFolder) + "/default.theme", beside + "/default.theme"));
    QVERIFY(QFile::copy(":/hvthemeapp/themes/dark.theme", beside + "/own.theme"));
    QCOMPARE(theme.folder(), beside);
    QCOMPARE(theme.names(), QStringList("own"));
    QVERIFY(theme.setName("own"));

    QVERIFY(theme.setSuffix("look")); // of which it has no default file
    QCOMPARE(theme.names(), QStringList({"contrast", "dark", "light"}));
    QVERIFY(QFile::copy(beside + "/default.theme", beside + "/default.look"));
    QVERIFY(QFile::copy(beside + "/own.theme", beside + "/other.look"));
    QCOMPARE(theme.folder(), beside);
    QCOMPARE(theme.names(), QStringList("other"));
}

void tst_ApplicationTheme::ownSuffix()
{
    TemporaryFolder folder;
    writeThemes(folder); // night.theme and day.theme, and with another suffix:
    folder.write("default.look", fileText(folder.filePath("default.theme")));
    folder.write(
        "night.look",
        fileText(folder.filePath("day.theme")).replace("ThemeName=Light", "ThemeName=White night"));
    ApplicationTheme theme;
    QCOMPARE(theme.suffix(), "theme");
    const QSignalSpy suffixes(&theme, &ApplicationTheme::suffixChanged);
    QVERIFY(theme.setSuffix("look")); // the themes inside the library are there all the same
    QCOMPARE(theme.names(), QStringList({"contrast", "dark", "light"}));
    QVERIFY(theme.setName("light"));
    const QColor light = theme.palette().color(QPalette::Window);
    QVERIFY(theme.setFolder(folder.path()));
    QCOMPARE(theme.names(), QStringList("night"));
    QCOMPARE(theme.displayName("night"), "White night");
    QVERIFY(theme.setName("night"));
    QCOMPARE(theme.palette().color(QPalette::Window), light);
    QCOMPARE(theme.theme()->filePath(), folder.filePath("default.look"));
    QVERIFY(theme.setSuffix("look"));
    QCOMPARE(suffixes.count(), 1);

    const QSignalSpy folders(&theme, &ApplicationTheme::folderChanged); // as names() are others
    const std::unique_ptr<QMenu> menu(theme.menu());
    QVERIFY(theme.setSuffix(QString())); // its "night" comes into force at once
    QCOMPARE(theme.suffix(), "theme");
    QCOMPARE(suffixes.count(), 2);
    QCOMPARE(folders.count(), 1);
    QVERIFY(theme.palette().color(QPalette::Window) != light);
    QCOMPARE(theme.names(), QStringList({"day", "night"}));
    QVERIFY(actionNamed(*menu, "Light"));

    QVERIFY(theme.setName("day"));
    QVERIFY(theme.setSuffix("look")); // which has no "day": the look stays
    QCOMPARE(theme.name(), "day");
    QVERIFY(theme.setName("night"));
}

void tst_ApplicationTheme::suffixThatCannotBeHad_data()
{
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QString>("fault"); // behind the path of the file

    QTest::newRow("no-default-file") << "none"
                                     << "default.none\" is no file";
    QTest::newRow("upper-case") << "Theme"
                                << "default.Theme\" is no file";
    QTest::newRow("default-file-without-keys") << "empty"
                                               << "default.empty\" has no key";
    QTest::newRow("theme-that-is-no-text") << "bad"
                                           << "night.bad\" is no text";
}

// The good look stays, and so does the suffix.
void tst_ApplicationTheme::suffixThatCannotBeHad()
{
    QFETCH(QString, suffix);
    QFETCH(QString, fault);
    TemporaryFolder folder;
    writeThemes(folder);
    folder.write("default.empty", "\n");
    folder.write("default.bad", fileText(folder.filePath("default.theme")));
    folder.write("night.bad", QByteArray("a=\0", 4));
    ApplicationTheme theme;
    QVERIFY(theme.setFolder(folder.path()));
    QVERIFY(theme.setName("night"));
    const QSignalSpy suffixes(&theme, &ApplicationTheme::suffixChanged);
    const QSignalSpy changes(&theme, &ApplicationTheme::changed);
    const QString sheet = qApp->styleSheet();
    QVERIFY(!theme.setSuffix(suffix));
    QVERIFY2(theme.problem().contains(folder.filePath(fault)), qPrintable(theme.problem()));
    QCOMPARE(logged(m_log), warning(theme.problem()));
    QCOMPARE(theme.suffix(), "theme");
    QCOMPARE(theme.names(), QStringList({"day", "night"}));
    QCOMPARE(suffixes.count(), 0);
    QCOMPARE(changes.count(), 0);
    QCOMPARE(qApp->styleSheet(), sheet);
    QVERIFY(theme.setName("night"));
    QCOMPARE(theme.problem(), QString());
}

// Which theme is dark stands in the files of the suffix.
void tst_ApplicationTheme::suffixOfFollowedThemes()
{
    TemporaryFolder folder;
    writeThemes(folder);
    QVERIFY(QFile::rename(folder.filePath("default.theme"), folder.filePath("default.look")));
    QVERIFY(QFile::rename(folder.filePath("night.theme"), folder.filePath("a.look")));
    QVERIFY(QFile::rename(folder.filePath("day.theme"), folder.filePath("b.look")));
    ApplicationTheme theme;
    QVERIFY(theme.setSuffix("look"));
    QVERIFY(theme.setFolder(folder.path()));
    QVERIFY(theme.followDesktop());
    const bool isDark = QApplication::palette().color(QPalette::Window).lightness() < 128;
    QCOMPARE(theme.name(), isDark ? "a" : "b");
    ApplicationTheme usual;
    QVERIFY(usual.followDesktop());
    QCOMPARE(QApplication::palette().color(QPalette::Window).lightness() < 128, isDark);
}

void tst_ApplicationTheme::ownVocabulary()
{
    TemporaryFolder folder;
    writeThemes(folder, "\n[Colors]\nAccent=#123456\nQuiet=Brand_6\n");
    auto own = std::make_unique<OwnTheme>();
    const OwnTheme *const given = own.get();
    ApplicationTheme theme(std::move(own));
    QVERIFY(theme.setFolder(folder.path()));
    for (const char *name : {"night", "day"}) {
        QVERIFY(theme.setName(name));
        QCOMPARE(theme.theme(), given);
        QCOMPARE(given->color(int(OwnTheme::Color::Accent)), QColor("#123456"));
    }
}

void tst_ApplicationTheme::missingKeyOfOwnVocabulary()
{
    TemporaryFolder folder;
    writeThemes(folder, "\n[Colors]\nAccent=#123456\n");
    ApplicationTheme theme(std::make_unique<OwnTheme>());
    QVERIFY(theme.setFolder(folder.path()));
    QVERIFY(theme.setName("night"));
    const Messages messages = m_log.take();
    QCOMPARE(messages.size(), 1);
    QCOMPARE(messages.first().text,
             QString("Theme Color Key [ \"Quiet\" ] is must bu set,but is not set."));
}

void tst_ApplicationTheme::ownTemplates()
{
    TemporaryFolder folder;
    folder.write("t/a.qss", "Own { color: mine.theme.color.Color_W100; }");
    folder.write("t/b.css", "Other { x: global.theme.color.Color_W100; }");
    folder.write("t/c.txt", "Third {}");
    ApplicationTheme theme;
    const QSignalSpy changes(&theme, &ApplicationTheme::changed);
    QVERIFY(theme.addTemplates(folder.filePath("t"), "mine"));
    QCOMPARE(changes.count(), 0);
    QVERIFY(theme.setName("dark"));
    const QString color = theme.theme()->color("Color_W100").name();
    QVERIFY(qApp->styleSheet().contains("Own { color: " + color + "; }"));
    QVERIFY(qApp->styleSheet().contains("x: global.theme.color.Color_W100"));
    QVERIFY(!qApp->styleSheet().contains("Third"));

    folder.write("u/d.qss", "Fourth {}");
    QVERIFY(theme.addTemplates(folder.filePath("u")));
    QCOMPARE(changes.count(), 2);
    QVERIFY(qApp->styleSheet().indexOf("Own {") < qApp->styleSheet().indexOf("Fourth {"));
}

void tst_ApplicationTheme::everythingInForceWhenChanged()
{
    ApplicationTheme theme;
    QVERIFY(theme.setName("light"));
    QLabel label("text");
    label.ensurePolished();
    int calls = 0;
    connect(&theme, &ApplicationTheme::changed, &label, [&] {
        ++calls;
        QCOMPARE(QApplication::palette(), theme.palette());
        QCOMPARE(label.palette().color(QPalette::Window), theme.palette().color(QPalette::Window));
        QCOMPARE(label.palette().color(QPalette::WindowText).rgb(),
                 theme.theme()->color("DefaultForegroundColor").rgb());
    });
    QVERIFY(theme.setName("dark"));
    QCOMPARE(calls, 1);
}

// An opaque window is easily painted by itself, and once more with what is on it.
void tst_ApplicationTheme::paintedOnce()
{
    class Counter : public QObject
    {
    public:
        QHash<const QObject *, int> paints;
        bool eventFilter(QObject *object, QEvent *event) override
        {
            if (event->type() == QEvent::Paint)
                ++paints[object];
            return false;
        }
    };
    const QuietPlatform quiet;
    ApplicationTheme theme;
    QVERIFY(theme.setName("light"));
    QWidget window;
    auto *column = new QVBoxLayout(&window);
    auto *box = new QGroupBox("Box");
    auto *inBox = new QVBoxLayout(box);
    inBox->addWidget(new QLabel("Label"));
    inBox->addWidget(new QPushButton("Button"));
    column->addWidget(box);
    column->addWidget(new QLineEdit("Edit"));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCoreApplication::processEvents();
    Counter counter;
    const auto all = window.findChildren<QWidget *>() << &window;
    for (QWidget *widget : all)
        widget->installEventFilter(&counter);
    QVERIFY(theme.setName("dark"));
    QTRY_COMPARE(counter.paints.size(), all.size());
    QCoreApplication::processEvents();
    for (const QWidget *widget : all)
        QVERIFY2(counter.paints.value(widget) == 1, widget->metaObject()->className());
}

void tst_ApplicationTheme::ownStyleSheetStays()
{
    qApp->setStyleSheet("QLabel { padding: 7px }");
    ApplicationTheme theme;
    for (const char *name : {"dark", "light", "dark"}) {
        QVERIFY(theme.setName(name));
        QCOMPARE(qApp->styleSheet().count("padding: 7px"), 1);
        QVERIFY(qApp->styleSheet().endsWith("QLabel { padding: 7px }"));
    }
    qApp->setStyleSheet("QLabel { padding: 9px }");
    theme.restyleAgain();
    QCOMPARE(qApp->styleSheet().count("padding: 7px"), 0);
    QVERIFY(qApp->styleSheet().endsWith("QLabel { padding: 9px }"));
    QVERIFY(qApp->styleSheet().size() > 20000);

    ApplicationTheme other; // finds the look of the first one
    const int size = int(qApp->styleSheet().size());
    QVERIFY(other.setName("dark"));
    QCOMPARE(qApp->styleSheet().size(), size);
}

void tst_ApplicationTheme::styleSheetOfAFile_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected"); // %1: its folder

    const auto row = [](const char *tag, const char *text, const char *expected) {
        QTest::newRow(tag) << text << expected;
    };
    row("rule", "QLabel { padding: 7px }", "QLabel { padding: 7px }");
    row("spaces around", "\n QLabel { padding: 7px }\n\n", "QLabel { padding: 7px }");
    row("picture", "a { image: url(b.png) }", "a { image: url(\"%1/b.png\") }");
    row("two pictures", "a { image: url(b.png) } c { image: URL( 'd/e f.png' ) }",
        "a { image: url(\"%1/b.png\") } c { image: url(\"%1/d/e f.png\") }");
    row("quoted", "a { image: url(\"b(1).png\") }", "a { image: url(\"%1/b(1).png\") }");
    row("from anywhere", "a { image: url(/b.png) } c { image: url(:/d.png) }",
        "a { image: url(/b.png) } c { image: url(:/d.png) }");
    row("comment", "/* url(b.png) ' */ a { b: 'url(c.png)' }",
        "/* url(b.png) ' */ a { b: 'url(c.png)' }");
    row("text", "a { b: \"\\\"url(c.png)\" }", "a { b: \"\\\"url(c.png)\" }");
    row("not closed", "a { image: url(b.png", "a { image: url(b.png");
    row("empty", "", "");
}

// As the option "-stylesheet" names it.
void tst_ApplicationTheme::styleSheetOfAFile()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    TemporaryFolder folder;
    folder.write("own.qss", text.toUtf8());
    ApplicationTheme theme;
    QVERIFY(theme.setName("dark"));
    const QString look = qApp->styleSheet();
    qApp->setStyleSheet("file:///" + folder.filePath("own.qss"));
    for (int again = 0; again < 2; ++again) {
        theme.restyleAgain();
        QCOMPARE(qApp->styleSheet(), look + expected.replace("%1", folder.path()));
    }
}

void tst_ApplicationTheme::picturesOfAFile()
{
    TemporaryFolder folder;
    const QString name = QStringLiteral("a b'(\u00fc&/");
    const QString file = folder.write(name + "own.qss", "QWidget#own { background: url(red.png) }");
    QImage red(20, 20, QImage::Format_RGB32);
    red.fill(Qt::red);
    QVERIFY(red.save(folder.filePath(name + "red.png")));
    qApp->setStyleSheet("file:///" + file);
    ApplicationTheme theme;
    QVERIFY(theme.setName("dark"));
    QWidget widget;
    widget.setObjectName("own");
    widget.setAttribute(Qt::WA_StyledBackground);
    widget.resize(20, 20);
    QCOMPARE(widget.grab().toImage().pixelColor(10, 10), QColor(Qt::red));
}

void tst_ApplicationTheme::styleSheetWithoutAFile()
{
    ApplicationTheme theme;
    QVERIFY(theme.setName("dark"));
    const QString look = qApp->styleSheet();
    qApp->setStyleSheet("file:////nowhere/own.qss");
    m_log.take(); // what Qt says
    for (int again = 0; again < 2; ++again) {
        theme.restyleAgain();
        QCOMPARE(qApp->styleSheet(), look);
    }
    QCOMPARE(
        logged(m_log),
        warning(
            "The application's style sheet \"/nowhere/own.qss\" cannot be read: No such file or "
            "directory."));
}

void tst_ApplicationTheme::whatPalettesDoNotReach()
{
    QTextBrowser browser;
    browser.setHtml("<a href='x'>link</a> <span style='color: #00ff00'>green</span>");
    QLineEdit edit;
    QMdiArea area;
    QMdiArea ownArea;
    ownArea.setBackground(Qt::red);
    ApplicationTheme theme;
    for (const char *name : {"dark", "light"}) {
        QVERIFY(theme.setName(name));
        for (QWidget *widget : {static_cast<QWidget *>(&browser), static_cast<QWidget *>(&edit)})
            widget->ensurePolished();
        QTextCursor cursor(browser.document());
        cursor.setPosition(2);
        QCOMPARE(cursor.charFormat().foreground().color(), theme.palette().color(QPalette::Link));
        cursor.setPosition(8);
        QCOMPARE(cursor.charFormat().foreground().color(), QColor("#00ff00"));
        QVERIFY(!browser.document()->isModified());
        QCOMPARE(QToolTip::palette().color(QPalette::ToolTipBase),
                 theme.palette().color(QPalette::ToolTipBase));
        QCOMPARE(edit.palette().color(QPalette::PlaceholderText),
                 theme.palette().color(QPalette::PlaceholderText));
        QCOMPARE(area.background().color(), theme.palette().color(QPalette::Dark));
        QCOMPARE(ownArea.background().color(), QColor(Qt::red));
    }
}

void tst_ApplicationTheme::titleBarsFollow()
{
    QMdiArea area;
    area.resize(400, 300);
    QMdiSubWindow *window = area.addSubWindow(new QWidget);
    window->resize(300, 200);
    ApplicationTheme theme;
    for (const char *name : {"dark", "light", "dark", "contrast"}) {
        QVERIFY(theme.setName(name));
        const QColor title = window->grab().toImage().pixelColor(100, 8);
        QCOMPARE(title, theme.palette().color(QPalette::Window));
    }
}

void tst_ApplicationTheme::saveAndRestore()
{
    TemporaryFolder folder;
    QSettings settings(folder.filePath("program.ini"), QSettings::IniFormat);
    ApplicationTheme theme;
    QVERIFY(!theme.restore(settings));
    QCOMPARE(theme.problem(), QString());
    QVERIFY(theme.setName("light"));
    settings.beginGroup("Look");
    theme.save(settings);

    ApplicationTheme next;
    QVERIFY(next.restore(settings));
    QCOMPARE(next.name(), "light");
    QVERIFY(!next.followsDesktop());
    settings.setValue("FollowsDesktop", true);
    QVERIFY(next.restore(settings));
    QVERIFY(next.followsDesktop());
    settings.setValue("FollowsDesktop", false);
    settings.setValue("Theme", "gone");
    QVERIFY(!next.restore(settings));
    QVERIFY(next.problem().contains("\"gone\""));
    QCOMPARE(logged(m_log), warning(next.problem()));
}

void tst_ApplicationTheme::menuInStep()
{
    TemporaryFolder folder;
    writeThemes(folder);
    ApplicationTheme theme;
    const std::unique_ptr<QMenu> menu(theme.menu());
    QCOMPARE(checkedTexts(*menu), QStringList());
    QVERIFY(theme.setName("dark"));
    QCOMPARE(checkedTexts(*menu), QStringList("Dark"));
    actionNamed(*menu, "High contrast")->trigger();
    QCOMPARE(theme.name(), "contrast");
    QCOMPARE(checkedTexts(*menu), QStringList("High contrast"));
    actionNamed(*menu, "As the desktop")->trigger();
    QVERIFY(theme.followsDesktop());
    QCOMPARE(checkedTexts(*menu), QStringList("As the desktop"));

    QVERIFY(theme.setFolder(folder.path()));
    QVERIFY(!actionNamed(*menu, "High contrast"));
    folder.write("third.theme", "ThemeName=Broken & binary\n" + QByteArray(1, '\0'));
    Q_EMIT menu->aboutToShow();
    QVERIFY(theme.setName("night"));
    actionNamed(*menu, "Broken && binary")->trigger();
    QCOMPARE(checkedTexts(*menu), QStringList("Dark"));
    QCOMPARE(logged(m_log), warning(theme.problem()));
}

void tst_ApplicationTheme::liveReload_data()
{
    QTest::addColumn<bool>("isReplaced");
    QTest::addColumn<QString>("suffix");
    QTest::newRow("in-place") << false << "theme";
    QTest::newRow("by-rename") << true << "theme";
    QTest::newRow("another-suffix") << false << "look";
}

void tst_ApplicationTheme::liveReload()
{
    QFETCH(bool, isReplaced);
    QFETCH(QString, suffix);
    TemporaryFolder folder;
    writeThemes(folder);
    for (const char *name : {"default", "night", "day"}) {
        const QString file = folder.filePath(name);
        QVERIFY(suffix == "theme" || QFile::rename(file + ".theme", file + '.' + suffix));
    }
    const QString night = "night." + suffix;
    ApplicationTheme theme;
    QVERIFY(theme.setSuffix(suffix));
    QVERIFY(theme.setFolder(folder.path()));
    QVERIFY(theme.setName("night"));
    theme.setLiveReload(true);
    for (const char *color : {"#102030", "#405060"}) {
        QSignalSpy changes(&theme, &ApplicationTheme::changed);
        const QByteArray text = fileText(":/hvthemeapp/themes/dark.theme")
                                    .replace("BackgroundColor_2=Bg_2",
                                             QByteArray(QByteArray("BackgroundColor_2=") + color));
        folder.write(isReplaced ? "new" : night, text);
        if (isReplaced)
            QVERIFY(rename(qPrintable(folder.filePath("new")), qPrintable(folder.filePath(night)))
                    == 0);
        QVERIFY(changes.wait());
        QCOMPARE(theme.palette().color(QPalette::Window), QColor(color));
    }
    // A file that is gone leaves the last good look, and is seen when it is back.
    QSignalSpy problems(&theme, &ApplicationTheme::problemChanged);
    const QByteArray text = fileText(folder.filePath(night));
    QVERIFY(QFile::remove(folder.filePath(night)));
    QVERIFY(problems.wait());
    QCOMPARE(theme.palette().color(QPalette::Window), QColor("#405060"));
    QCOMPARE(logged(m_log), warning(theme.problem()));
    folder.write(night, text);
    QVERIFY(problems.wait());
    QCOMPARE(theme.problem(), QString());
}

void tst_ApplicationTheme::objectsTakeTurns()
{
    TemporaryFolder folder;
    writeThemes(folder);
    ApplicationTheme first;
    QVERIFY(first.setFolder(folder.path()));
    QVERIFY(first.setName("night"));
    first.setLiveReload(true);
    ApplicationTheme second;
    QVERIFY(second.setName("light"));
    const QSignalSpy changes(&first, &ApplicationTheme::changed);
    folder.write("night.theme", fileText(folder.filePath("night.theme")) + "\n;\n");
    QTest::qWait(200); // several times as long as a change takes
    QCOMPARE(changes.count(), 0);
    QCOMPARE(QApplication::palette(), second.palette());
    QVERIFY(first.setName("night"));
    QCOMPARE(QApplication::palette(), first.palette());
}

// All of it can be set from a form or a script.
void tst_ApplicationTheme::properties()
{
    ApplicationTheme theme;
    const QMetaObject *const meta = theme.metaObject();
    for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i)
        QVERIFY2(meta->property(i).hasNotifySignal(), meta->property(i).name());
    QVERIFY(theme.setProperty("name", "dark"));
    QCOMPARE(theme.property("name").toString(), "dark");
    QVERIFY(theme.setProperty("followsDesktop", true));
    QVERIFY(theme.property("followsDesktop").toBool());
    QVERIFY(theme.setProperty("liveReload", true));
    QVERIFY(theme.isLiveReload());
}

QTEST_MAIN(tst_ApplicationTheme)
#include "tst_applicationtheme.moc"
