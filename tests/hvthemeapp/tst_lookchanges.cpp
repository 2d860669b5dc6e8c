// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

// Looks that change where the application is in the middle of something: a paint, a signal, another change.

#include "temporaryfolder.h"

#include <hvtheme/theme.h>
#include <hvthemeapp/applicationtheme.h>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QEventLoop>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QTextBrowser>
#include <QTimer>
#include <QtTest>

#include <functional>
#include <memory>
#include <vector>

using HV::ApplicationTheme;

namespace
{

class Painting : public QWidget
{
public:
    std::function<void()> call;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        if (call)
            std::exchange(call, nullptr)();
        painter.drawText(rect(), Qt::AlignCenter, "text");
    }
};

using Change = std::function<void(ApplicationTheme &)>;
using OwnerChange = std::function<void(std::unique_ptr<ApplicationTheme> &)>;
using Signal = void (ApplicationTheme::*)();

} // namespace

Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(OwnerChange)
Q_DECLARE_METATYPE(Signal)

class tst_LookChanges : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void waiting_data();
    void waiting();
    void newerThanWhatWaits();
    void byASignal_data();
    void byASignal();
    void deletedByASignal_data();
    void deletedByASignal();
    void liftingEndsInAPaint_data();
    void liftingEndsInAPaint();
    void twoThemesAtOnce();
    void menuMadeAnew();
    void accentThatCannotBe();
    void accentsOfUserAndLook();
    void restoredTheme();
    void settledBeforeAnybodyIsTold_data();
    void settledBeforeAnybodyIsTold();
    void lastRequest_data();
    void lastRequest();
    void lastRequestOfTwoThemes();
    void folderBeforeTheFirstLook();
    void failingRestore_data();
    void failingRestore();
    void accentBesideTheDesktops();
    void idleWhileSomethingWaits_data();
    void idleWhileSomethingWaits();
    void additions_data();
    void additions();
    void additionsAndAnotherTheme();
    void deletedByADocument();
    void documentsSayNothing();
    void barsOfTheProgram();
    void filtersOfTheProgram();

private:
    TemporaryFolder m_folder; // the themes of the library, each with a name of its own
    std::unique_ptr<ApplicationTheme> m_theme;
};

void tst_LookChanges::initTestCase()
{
    const ApplicationTheme theme; // the library's resources are there now
    for (const QString name : {"default", "dark", "light", "contrast"}) {
        QFile file(":/hvthemeapp/themes/" + name + ".theme");
        QVERIFY(file.open(QIODevice::ReadOnly));
        m_folder.write(name + ".theme", file.readAll().replace("ThemeName=", "ThemeName=my "));
    }
}

void tst_LookChanges::init()
{
    qApp->setStyleSheet(QString());
    m_theme = std::make_unique<ApplicationTheme>();
    QVERIFY(m_theme->setName("dark"));
}

void tst_LookChanges::waiting_data()
{
    QTest::addColumn<Change>("change");
    QTest::newRow("fonts") << Change([](ApplicationTheme &theme) { theme.setKeepsFonts(true); });
    QTest::newRow("accent") << Change([](ApplicationTheme &theme) { theme.setAccent(Qt::red); });
    QTest::newRow("unsaved") << Change([](ApplicationTheme &theme) {
        QFile file(":/hvthemeapp/themes/light.theme");
        QVERIFY(file.open(QIODevice::ReadOnly));
        theme.setUnsavedTexts({{file.fileName(), file.readAll() + "\n"}});
    });
    QTest::newRow("once more") << Change([](ApplicationTheme &theme) { theme.restyleAgain(); });
}

// A change of something else does not call back the theme that was chosen before it.
void tst_LookChanges::waiting()
{
    QFETCH(Change, change);
    Painting widget;
    bool isAccepted = false;
    widget.call = [&] {
        isAccepted = m_theme->setName("light");
        change(*m_theme);
    };
    widget.grab();
    QVERIFY(isAccepted);
    QCOMPARE(m_theme->name(), QString("dark"));
    QTRY_COMPARE(m_theme->name(), QString("light"));
}

void tst_LookChanges::newerThanWhatWaits()
{
    Painting widget;
    widget.call = [&] { m_theme->setName("light"); };
    widget.grab();
    QVERIFY(m_theme->setName("contrast"));
    QCoreApplication::processEvents();
    QCOMPARE(m_theme->name(), QString("contrast"));
}

void tst_LookChanges::byASignal_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("name");
    QTest::newRow("chosen") << Change([](ApplicationTheme &theme) { theme.setName("contrast"); })
                            << "contrast";
    QTest::newRow("not followed") << Change([](ApplicationTheme &theme) {
        theme.setFollowsDesktop(false);
    }) << QString();
}

void tst_LookChanges::byASignal()
{
    QFETCH(Change, change);
    QFETCH(QString, name);
    bool isFirst = true;
    connect(m_theme.get(), &ApplicationTheme::followsDesktopChanged, [&] {
        if (std::exchange(isFirst, false))
            change(*m_theme);
    });
    m_theme->followDesktop();
    QCoreApplication::processEvents();
    QVERIFY(!m_theme->followsDesktop());
    if (!name.isEmpty())
        QCOMPARE(m_theme->name(), name);
}

void tst_LookChanges::deletedByASignal_data()
{
    QTest::addColumn<Signal>("signal");
    QTest::addColumn<Change>("change");
    const auto row = [](const char *tag, Signal signal, const Change &change) {
        QTest::newRow(tag) << signal << change;
    };
    row("fonts", &ApplicationTheme::changed, [](auto &theme) { theme.setKeepsFonts(true); });
    row("name", &ApplicationTheme::changed, [](auto &theme) { theme.setName("light"); });
    row("accent", &ApplicationTheme::changed, [](auto &theme) { theme.setAccent(Qt::red); });
    row("desktop", &ApplicationTheme::nameChanged, [](auto &theme) { theme.followDesktop(); });
    row("folder", &ApplicationTheme::changed,
        [](auto &theme) { theme.setFolder(":/hvthemeapp/themes"); });
    row("problem", &ApplicationTheme::problemChanged,
        [](auto &theme) { theme.setFolder("/there is none"); });
    row("no problem", &ApplicationTheme::problemChanged, [](auto &theme) {
        theme.blockSignals(true);
        theme.setFolder("/there is none");
        theme.blockSignals(false);
        theme.setName("light");
    });
    row("templates", &ApplicationTheme::problemChanged, [](auto &theme) {
        theme.blockSignals(true);
        theme.setFolder("/there is none");
        theme.blockSignals(false);
        theme.addTemplates(QDir::tempPath());
    });
}

void tst_LookChanges::deletedByASignal()
{
    QFETCH(Signal, signal);
    QFETCH(Change, change);
    const QPointer<ApplicationTheme> theme(new ApplicationTheme);
    QVERIFY(theme->setName("contrast"));
    if (QByteArray(QTest::currentDataTag()).contains("problem")
        || QByteArray(QTest::currentDataTag()) == "templates")
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("there is none"));
    connect(theme.data(), signal, theme.data(), [&] { delete theme.data(); });
    change(*theme);
    QCoreApplication::processEvents();
    delete theme.data();
    QVERIFY(m_theme->setName("light"));
}

void tst_LookChanges::liftingEndsInAPaint_data()
{
    QTest::addColumn<OwnerChange>("change");
    QTest::newRow("off") << OwnerChange([](auto &theme) { theme->setLiftsText(false); });
    QTest::newRow("deleted") << OwnerChange([](auto &theme) { theme.reset(); });
    QTest::newRow("off and events") << OwnerChange([](auto &theme) {
        theme->setLiftsText(false);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    });
}

void tst_LookChanges::liftingEndsInAPaint()
{
    QFETCH(OwnerChange, change);
    m_theme->setLiftsText(true);
    Painting widget;
    widget.call = [&] { change(m_theme); };
    widget.grab();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    widget.grab();
    QVERIFY(!m_theme || !m_theme->liftsText());
}

// The look of one object is not mixed with that of another.
void tst_LookChanges::twoThemesAtOnce()
{
    class Switching : public QWidget
    {
    public:
        ApplicationTheme *other = nullptr;

    protected:
        void changeEvent(QEvent *event) override
        {
            if (event->type() == QEvent::StyleChange && other)
                std::exchange(other, nullptr)->setName("contrast");
            QWidget::changeEvent(event);
        }
    };
    ApplicationTheme other;
    Switching widget;
    widget.show();
    QSignalSpy changes(m_theme.get(), &ApplicationTheme::changed);
    connect(m_theme.get(), &ApplicationTheme::changed,
            [&] { QCOMPARE(QApplication::palette(), m_theme->palette()); });
    widget.other = &other;
    QVERIFY(m_theme->setName("light"));
    QCOMPARE(changes.size(), 1);
    QVERIFY(!widget.other);
    QTRY_COMPARE(other.name(), QString("contrast"));
    QCOMPARE(ApplicationTheme::inForce(), &other);
    QCOMPARE(QApplication::palette(), other.palette());
}

void tst_LookChanges::menuMadeAnew()
{
    std::unique_ptr<QMenu> menu(m_theme->menu());
    connect(m_theme.get(), &ApplicationTheme::changed, [&] { menu.reset(m_theme->menu()); });
    for (const int choice : {2, 3, 0}) {
        QAction *action = menu->actions().at(choice);
        action->trigger();
    }
    QVERIFY(m_theme->followsDesktop());
}

void tst_LookChanges::accentThatCannotBe()
{
    TemporaryFolder folder;
    folder.write("default.theme", "[Palettes]\nBrand_5=#204080\n");
    folder.write("mine.theme", "[Colors]\nColor=Brand_5\n");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("lacks .* of the colours"));
    QVERIFY(m_theme->setFolder(folder.path()));
    QVERIFY(m_theme->setName("mine"));
    QVERIFY(QFile::remove(folder.filePath("mine.theme")));
    QSignalSpy changes(m_theme.get(), &ApplicationTheme::accentChanged);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("mine.theme"));
    for (int again = 0; again < 2; ++again) {
        QVERIFY(!m_theme->setAccent(Qt::red));
        QVERIFY(!m_theme->accent().isValid());
    }
    QCOMPARE(changes.size(), 0);
}

void tst_LookChanges::accentsOfUserAndLook()
{
    QVERIFY(m_theme->setAccent(Qt::red));
    m_theme->setFollowsAccent(true);
    m_theme->setFollowsAccent(false);
    QCOMPARE(m_theme->accent(), QColor(Qt::red));
}

void tst_LookChanges::restoredTheme()
{
    TemporaryFolder folder;
    QSettings settings(folder.filePath("settings.ini"), QSettings::IniFormat);
    settings.setValue("Theme", "gone");
    settings.setValue("Accent", "#ff0000");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("gone"));
    QVERIFY(!m_theme->restore(settings));
    QVERIFY(!m_theme->accent().isValid());
    QCOMPARE(m_theme->name(), QString("dark"));
    settings.setValue("Theme", "light");
    QVERIFY(m_theme->restore(settings));
    QCOMPARE(m_theme->accent(), QColor(Qt::red));
    settings.clear();
    m_theme->save(settings);
    QCOMPARE(settings.value("Accent").toString(), QString("#ff0000"));
}

void tst_LookChanges::settledBeforeAnybodyIsTold_data()
{
    QTest::addColumn<Change>("before");
    QTest::addColumn<Change>("change");
    const auto row = [](const char *tag, const Change &before, const Change &change) {
        QTest::newRow(tag) << before << change;
    };
    const Change follow = [](auto &theme) { theme.followDesktop(); };
    const Change none = [](auto &) {};
    const QString folder = m_folder.path();
    const auto choose = [](const QString &name) {
        return [name](auto &theme) { theme.setName(name); };
    };
    row("chosen while followed", follow, choose("contrast"));
    row("the same while followed", follow, [](auto &theme) { theme.setName(theme.name()); });
    row("followed", choose("contrast"), follow);
    row("not followed", follow, [](auto &theme) { theme.setFollowsDesktop(false); });
    row("folder", none, [folder](auto &theme) { theme.setFolder(folder); });
    row("folder while followed", follow, [folder](auto &theme) { theme.setFolder(folder); });
    row(
        "first folder", [folder](auto &theme) { theme.setFolder(folder); },
        [](auto &theme) { theme.setFolder(QString()); });
    row("accent", none, [](auto &theme) { theme.setAccent(Qt::red); });
    row(
        "chosen after another accent", [](auto &theme) { theme.setFollowsAccent(true); },
        [](auto &theme) { theme.setAccent(Qt::red); });
    row(
        "after a problem",
        [](auto &theme) {
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression("there is none"));
            theme.setFolder("/there is none");
        },
        choose("light"));
    row("restored", follow, [](auto &theme) {
        const TemporaryFolder files;
        QSettings settings(files.filePath("settings.ini"), QSettings::IniFormat);
        settings.setValue("Theme", "contrast");
        settings.setValue("Accent", "#ff0000");
        theme.restore(settings);
    });
}

// Who is told of one change and writes down the choice, or asks for something else, finds all of it.
void tst_LookChanges::settledBeforeAnybodyIsTold()
{
    QFETCH(Change, before);
    QFETCH(Change, change);
    before(*m_theme);
    const auto state = [this] {
        const ApplicationTheme &theme = *m_theme;
        const QPalette palette = QApplication::palette();
        return QStringList{"name " + theme.name(),
                           "folder " + theme.folder(),
                           "shown as " + theme.displayName("dark"),
                           QString("follows %1").arg(theme.followsDesktop()),
                           "accent " + theme.accent().name(),
                           "problem " + theme.problem(),
                           "ground " + palette.color(QPalette::Window).name(),
                           "brand " + theme.theme()->color("AccentBackgroundColor").name()};
    };
    QVector<QPair<QByteArray, QStringList>> told;
    const auto record = [&](const char *signal) { told.append({signal, state()}); };
    using A = ApplicationTheme;
    connect(m_theme.get(), &A::changed, this, [&] { record("changed"); });
    connect(m_theme.get(), &A::nameChanged, this, [&] { record("name"); });
    connect(m_theme.get(), &A::folderChanged, this, [&] { record("folder"); });
    connect(m_theme.get(), &A::followsDesktopChanged, this, [&] { record("follows"); });
    connect(m_theme.get(), &A::accentChanged, this, [&] { record("accent"); });
    connect(m_theme.get(), &A::problemChanged, this, [&] { record("problem"); });
    change(*m_theme);
    QVERIFY(!told.isEmpty());
    for (const auto &[signal, seen] : qAsConst(told))
        QVERIFY2(
            seen == state(),
            qPrintable(signal + ": " + seen.join(", ") + "\nat the end: " + state().join(", ")));
}

void tst_LookChanges::lastRequest_data()
{
    QTest::addColumn<Change>("before");
    QTest::addColumn<Change>("change"); // in a paint
    QTest::addColumn<QString>("name"); // null: that of before
    QTest::addColumn<QString>("shownName");

    const QString folder = m_folder.path();
    const Change none = [](auto &) {};
    const Change follow = [](auto &theme) { theme.followDesktop(); };
    QTest::newRow("name, folder") << none << Change([folder](auto &theme) {
        theme.setName("light");
        theme.setFolder(folder);
    }) << "light"
                                  << "my Light";
    QTest::newRow("folder, name") << none << Change([folder](auto &theme) {
        theme.setFolder(folder);
        theme.setName("light");
    }) << "light"
                                  << "my Light";
    QTest::newRow("name, desktop") << follow << Change([](auto &theme) {
        theme.setName("contrast");
        theme.followDesktop();
    }) << QString() << QString();
    QTest::newRow("desktop, name") << none << Change([](auto &theme) {
        theme.followDesktop();
        theme.setName("contrast");
    }) << "contrast" << QString();
}

void tst_LookChanges::lastRequest()
{
    QFETCH(Change, before);
    QFETCH(Change, change);
    QFETCH(QString, name);
    QFETCH(QString, shownName);
    before(*m_theme);
    const QString former = m_theme->name();
    const bool isFollowing = m_theme->followsDesktop();
    Painting widget;
    widget.call = [&] { change(*m_theme); };
    widget.grab();
    for (int again = 0; again < 3; ++again)
        QCoreApplication::processEvents();
    QCOMPARE(m_theme->name(), name.isNull() ? former : name);
    QCOMPARE(m_theme->followsDesktop(), isFollowing);
    if (!shownName.isNull())
        QCOMPARE(m_theme->theme()->displayName(), shownName);
}

void tst_LookChanges::lastRequestOfTwoThemes()
{
    ApplicationTheme other;
    Painting widget;
    widget.call = [&] { m_theme->setName("light"); };
    widget.grab();
    QVERIFY(other.setName("contrast"));
    QCoreApplication::processEvents();
    QCOMPARE(ApplicationTheme::inForce(), &other);
    QCOMPARE(QApplication::palette(), other.palette());
    QCOMPARE(m_theme->name(), QString("dark"));
}

void tst_LookChanges::folderBeforeTheFirstLook()
{
    ApplicationTheme theme;
    Painting widget;
    widget.call = [&] {
        theme.setName("light");
        theme.setFolder(m_folder.path());
    };
    widget.grab();
    QTRY_COMPARE(theme.name(), QString("light"));
    QCOMPARE(theme.theme()->displayName(), QString("my Light"));
}

void tst_LookChanges::failingRestore_data()
{
    QTest::addColumn<bool>("follows");
    QTest::addColumn<bool>("wasFollowing");
    QTest::newRow("desktop") << true << false;
    QTest::newRow("name") << false << false;
    QTest::newRow("desktop while followed") << true << true;
    QTest::newRow("name while followed") << false << true;
}

void tst_LookChanges::failingRestore()
{
    QFETCH(bool, follows);
    QFETCH(bool, wasFollowing);
    const TemporaryFolder folder;
    folder.write("templates/a.qss", "QLabel#a {color: #010203;}");
    QVERIFY(m_theme->addTemplates(folder.filePath("templates")));
    QVERIFY(m_theme->setAccent(Qt::blue));
    m_theme->setFollowsDesktop(wasFollowing);
    const QString former = m_theme->name();
    QVERIFY(QDir(folder.filePath("templates")).removeRecursively());

    QSettings settings(folder.filePath("settings.ini"), QSettings::IniFormat);
    settings.setValue("Theme", "light");
    settings.setValue("Accent", "#ff0000");
    settings.setValue("FollowsDesktop", follows);
    QSignalSpy changes(m_theme.get(), &ApplicationTheme::followsDesktopChanged);
    connect(m_theme.get(), &ApplicationTheme::problemChanged, this,
            [&] { QCOMPARE(m_theme->followsDesktop(), wasFollowing); });
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("does not exist"));
    QVERIFY(!m_theme->restore(settings));
    QCOMPARE(changes.size(), 0);
    QCOMPARE(m_theme->followsDesktop(), wasFollowing);
    QCOMPARE(m_theme->name(), former);
    QCOMPARE(m_theme->accent(), QColor(Qt::blue));
    m_theme->save(settings);
    QCOMPARE(settings.value("Accent").toString(), QString("#0000ff"));
}

// The desktop's is the accent then, and here it has none.
void tst_LookChanges::accentBesideTheDesktops()
{
    m_theme->setFollowsAccent(true);
    m_theme->followDesktop();
    const QColor former = m_theme->accent();
    QSignalSpy changes(m_theme.get(), &ApplicationTheme::changed);
    QSignalSpy accents(m_theme.get(), &ApplicationTheme::accentChanged);
    QVERIFY(m_theme->setAccent(Qt::red));
    QCOMPARE(m_theme->accent(), former);
    QCOMPARE(changes.size() + accents.size(), 0);
    const TemporaryFolder folder;
    QSettings settings(folder.filePath("settings.ini"), QSettings::IniFormat);
    m_theme->save(settings);
    QCOMPARE(settings.value("Accent").toString(), QString("#ff0000"));
    m_theme->setFollowsAccent(false);
    QCOMPARE(m_theme->accent(), QColor(Qt::red));
    QCOMPARE(accents.size(), 1);
}

void tst_LookChanges::idleWhileSomethingWaits_data()
{
    QTest::addColumn<bool>("isInPaint");
    QTest::newRow("restyling") << false;
    QTest::newRow("paint") << true;
}

// A dialog that a widget opens as it restyles may stay for minutes.
void tst_LookChanges::idleWhileSomethingWaits()
{
    QFETCH(bool, isInPaint);
    class Restyled : public QWidget
    {
    public:
        std::function<void()> call;

    protected:
        void changeEvent(QEvent *event) override
        {
            if (event->type() == QEvent::StyleChange && call)
                std::exchange(call, nullptr)();
            QWidget::changeEvent(event);
        }
    };
    int turns = 0;
    const auto dialog = [&] {
        m_theme->setName("contrast");
        QEventLoop loop;
        QTimer::singleShot(300, &loop, &QEventLoop::quit);
        const auto count = connect(QAbstractEventDispatcher::instance(),
                                   &QAbstractEventDispatcher::awake, this, [&] { ++turns; });
        loop.exec();
        disconnect(count);
    };
    Restyled restyled;
    Painting painting;
    if (isInPaint) {
        painting.call = dialog;
        painting.grab();
    } else {
        restyled.show();
        restyled.call = dialog;
        QVERIFY(m_theme->setName("light"));
    }
    QVERIFY2(turns > 0 && turns < 50, qPrintable(QString::number(turns)));
    QTRY_COMPARE(m_theme->name(), QString("contrast"));
    QCOMPARE(QApplication::palette(), m_theme->palette());
}

void tst_LookChanges::additions_data()
{
    QTest::addColumn<QString>("set"); // by the program after each change; %1 is what is in force
    QTest::addColumn<QString>("own"); // that is there after three changes

    QTest::newRow("nothing") << "%1"
                             << "QFrame { margin: 1px }";
    QTest::newRow("replaced") << "QFrame { margin: 2px }"
                              << "QFrame { margin: 2px }";
    QTest::newRow("appended") << "%1\nQFrame { margin: 2px }"
                              << "QFrame { margin: 1px }"
            + QString("\nQFrame { margin: 2px }").repeated(3);
    QTest::newRow("put before") << "QFrame { margin: 2px }\n%1"
                                << QString("QFrame { margin: 2px }\n").repeated(3)
            + "QFrame { margin: 1px }";
    QTest::newRow("cleared") << ""
                             << "";
}

namespace
{

class WithAdditions : public ApplicationTheme
{
protected:
    void complete(QPalette *palette, QString *styleSheet) override
    {
        ApplicationTheme::complete(palette, styleSheet);
        *styleSheet = "/*first*/" + *styleSheet + "/*last " + name() + "*/";
    }
};

} // namespace

// What a class adds stands in the style sheet once, and what the application has set stays.
void tst_LookChanges::additions()
{
    QFETCH(QString, set);
    QFETCH(QString, own);
    qApp->setStyleSheet("QFrame { margin: 1px }");
    WithAdditions theme;
    QVERIFY(theme.setName("contrast"));
    for (const char *name : {"dark", "light", "contrast"}) {
        qApp->setStyleSheet(QString(set).replace("%1", qApp->styleSheet()));
        QVERIFY(theme.setName(name));
    }
    const QString whole = qApp->styleSheet();
    QVERIFY(whole.startsWith("/*first*/"));
    QVERIFY2(whole.endsWith('\n' + own + "/*last contrast*/"), qPrintable(whole.right(300)));
    QCOMPARE(whole.count("/*first*/"), 1);
    QCOMPARE(whole.count("/*last"), 1);
    QCOMPARE(whole.count("margin: 1px"), own.count("margin: 1px"));
}

void tst_LookChanges::additionsAndAnotherTheme()
{
    qApp->setStyleSheet("QFrame { margin: 1px }");
    QVERIFY(m_theme->setName("light"));
    const QString look = qApp->styleSheet();
    WithAdditions theme;
    QVERIFY(theme.setName("dark"));
    QVERIFY(m_theme->setName("light"));
    QCOMPARE(qApp->styleSheet(), look);
}

void tst_LookChanges::deletedByADocument()
{
    QTextEdit edit;
    edit.setHtml("<a href='x'>link</a>");
    std::vector<std::unique_ptr<QLabel>> labels(50);
    for (std::unique_ptr<QLabel> &label : labels)
        label = std::make_unique<QLabel>("<a href='x'>link</a>");
    connect(edit.document(), &QTextDocument::contentsChanged, [&] { labels.clear(); });
    QVERIFY(m_theme->setName("light"));
    QVERIFY(labels.empty());
}

// A program may save its text whenever that changes.
void tst_LookChanges::documentsSayNothing()
{
    QTextBrowser browser;
    QTextEdit edit;
    for (QTextEdit *each : {static_cast<QTextEdit *>(&browser), &edit})
        each->setHtml("<a href='x'>link</a>");
    QSignalSpy browserChanges(&browser, &QTextEdit::textChanged);
    QSignalSpy changes(&edit, &QTextEdit::textChanged);
    const QString before = edit.toHtml();
    QVERIFY(m_theme->setName("light"));
    QVERIFY(edit.toHtml() != before); // the link has its colour
    QCOMPARE(browserChanges.size(), 0);
    QCOMPARE(changes.size(), 0);
    edit.append("text");
    QVERIFY(!changes.isEmpty());
}

// A meter of the program's own, which a rule for bars must not cover.
void tst_LookChanges::barsOfTheProgram()
{
    class Meter : public QProgressBar
    {
    public:
        int paints = 0;

    protected:
        void paintEvent(QPaintEvent *) override { ++paints; }
    };
    Meter meter;
    meter.setOrientation(Qt::Vertical);
    meter.grab();
    QCOMPARE(meter.paints, 1);
}

void tst_LookChanges::filtersOfTheProgram()
{
    class Counter : public QObject
    {
    public:
        int paints = 0;
        bool eventFilter(QObject *, QEvent *event) override
        {
            paints += event->type() == QEvent::Paint;
            return false;
        }
    } counter;
    QMenu menu;
    menu.addAction("one");
    menu.addSeparator();
    menu.addAction("two");
    menu.installEventFilter(&counter);
    menu.ensurePolished();
    menu.grab();
    QCOMPARE(counter.paints, 1);
}

QTEST_MAIN(tst_LookChanges)
#include "tst_lookchanges.moc"
