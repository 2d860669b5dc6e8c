// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "messages.h"
#include "temporaryfolder.h"

#include <hvtheme/theme.h>
#include <hvthemeapp/applicationtheme.h>
#include <hvthemeapp/themedicon.h>

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QThread>
#include <QVBoxLayout>
#include <QtTest>

#include <atomic>
#include <memory>
#include <thread>

using HV::ApplicationTheme;

namespace
{

QByteArray sample(const QString &name)
{
    QFile file(QString(":/hvthemeapp/themes/%1.theme").arg(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// The kinds of damage that a file or folder may have.
void damage(const TemporaryFolder &folder, const QString &name, const QByteArray &how)
{
    const QString path = folder.filePath(name);
    if (how == "missing")
        QFile::remove(path);
    else if (how == "empty")
        folder.write(name, QByteArray());
    else if (how == "binary")
        folder.write(name,
                     QByteArray("\x7f"
                                "ELF=\0\1\2",
                                8));
    else if (how == "no-key")
        folder.write(name, "just words\n");
    else if (how == "folder")
        QFile::remove(path), QDir().mkpath(path);
    else if (how == "pipe")
        QFile::remove(path), mkfifo(qPrintable(path), 0600);
    else if (how == "huge")
        folder.write(name, "A=1\n" + QByteArray(5 * 1024 * 1024, ';'));
    else if (how != "unreadable")
        folder.write(name, how);
}

class SwitchingWidget : public QWidget
{
public:
    SwitchingWidget(ApplicationTheme *theme, QEvent::Type when, QWidget *parent = nullptr)
        : QWidget(parent)
        , m_theme(theme)
        , m_when(when)
    {
    }

    bool event(QEvent *event) override
    {
        const bool result = QWidget::event(event);
        if (event->type() == m_when && std::exchange(isArmed, false))
            isAccepted = m_theme->setName("light");
        return result;
    }

    bool isArmed = false;
    bool isAccepted = false;

private:
    ApplicationTheme *m_theme;
    QEvent::Type m_when;
};

} // namespace

class tst_BadLooks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void damagedTheme_data();
    void damagedTheme();
    void badImages_data();
    void badImages();
    void missingImage();
    void damagedTemplates_data();
    void damagedTemplates();
    void restyledWithDamage();
    void noTemporaryFiles_data();
    void noTemporaryFiles();
    void noTemplates_data();
    void noTemplates();
    void missingFolders();
    void names_data();
    void names();
    void themeThatLacksColors();
    void namesBesideAPipe();
    void changedWhileRead();
    void templatesChangedWhileRead();
    void iconChangedWhileRead();
    void switchFromWithin_data();
    void switchFromWithin();
    void deletedByItsSwitch();
    void widgetsDeletedByASwitch();

private:
    // Compares the problem with what was logged, once, and the look with what it was.
    void compareProblem(const ApplicationTheme &theme, const QString &begin, const QString &end);

    CapturedMessages m_log;
    std::unique_ptr<ApplicationTheme> m_theme;
    QString m_styleSheet;
    QPalette m_palette;
};

void tst_BadLooks::initTestCase()
{
    QVERIFY(ApplicationTheme().setName("dark"));
}

void tst_BadLooks::init()
{
    m_log.start();
    m_theme = std::make_unique<ApplicationTheme>();
    QVERIFY(m_theme->setName("dark"));
    m_styleSheet = qApp->styleSheet();
    m_palette = QApplication::palette();
}

void tst_BadLooks::cleanup()
{
    m_theme.reset();
    REPORT_STRAY_MESSAGES(m_log);
}

void tst_BadLooks::compareProblem(const ApplicationTheme &theme, const QString &begin,
                                  const QString &end)
{
    const QString problem = theme.problem();
    QVERIFY2(problem.startsWith(begin), qPrintable(problem));
    QVERIFY2(problem.endsWith(end), qPrintable(problem));
    const Messages messages = m_log.take();
    QCOMPARE(messages.size(), 1);
    QCOMPARE(messages.first().text, problem);
    QCOMPARE(messages.first().category, "hvtheme.app");
    QCOMPARE(messages.first().severity, QtWarningMsg);
    QCOMPARE(qApp->styleSheet(), m_styleSheet);
    QCOMPARE(QApplication::palette(), m_palette);
}

void tst_BadLooks::damagedTheme_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("how");
    QTest::addColumn<QString>("fault");

    const std::pair<const char *, const char *> kinds[] = {
        {"missing", "is no file"},       {"empty", "has no key"},  {"binary", "is no text"},
        {"no-key", "has no key"},        {"folder", "is no file"}, {"pipe", "is no file"},
        {"huge", "is larger than 4 MiB"}};
    for (const char *file : {"default", "night"}) {
        for (const auto &[how, fault] : kinds)
            QTest::addRow("%s-%s", file, how) << file << QByteArray(how) << fault;
    }
    QTest::newRow("default-unreadable")
        << "default" << QByteArray("unreadable") << "cannot be read";
    QTest::newRow("night-unreadable") << "night" << QByteArray("unreadable") << "cannot be read";
}

void tst_BadLooks::damagedTheme()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, how);
    QFETCH(QString, fault);
    TemporaryFolder folder;
    folder.write("default.theme", sample("default"));
    folder.write("night.theme", sample("dark"));
    folder.write("day.theme", sample("light"));
    QVERIFY(m_theme->setFolder(folder.path()));
    damage(folder, file + ".theme", how);
    std::unique_ptr<Unreadable> unreadable;
    if (how == "unreadable")
        unreadable = std::make_unique<Unreadable>(folder.filePath(file + ".theme"));
    QVERIFY(!m_theme->setName("night"));
    const QString quoted = "\"" + folder.filePath(file + ".theme") + "\" " + fault;
    if (file == "default")
        compareProblem(*m_theme, quoted + ", and every", "put what all themes share there.");
    else
        compareProblem(*m_theme,
                       "The theme \"night\" cannot be read: " + quoted + "; choose one of: day",
                       ".");
    QCOMPARE(m_theme->name(), "dark");
    QCOMPARE(m_theme->theme()->displayName(), "Dark");
}

void tst_BadLooks::badImages_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("image");
    QTest::addColumn<QString>("fault");

    for (const char *file : {"default", "night"}) {
        QTest::addRow("%s-own-token", file)
            << file << "x/global.theme.image.up"
            << "the path of its image \"up\" holds the token of an image";
        QTest::addRow("%s-pipe", file) << file << "PIPE"
                                       << "its image \"up\" is no file";
    }
}

// Neither would come to an end.
void tst_BadLooks::badImages()
{
    QFETCH(QString, file);
    QFETCH(QString, image);
    QFETCH(QString, fault);
    TemporaryFolder folder;
    damage(folder, "pipe", "pipe");
    image.replace(
        "PIPE",
        QDir(QCoreApplication::applicationDirPath()).relativeFilePath(folder.filePath("pipe")));
    folder.write("default.theme", sample("default"));
    folder.write("night.theme", sample("dark"));
    folder.write(file + ".theme",
                 QByteArray(sample(file == "default" ? file : "dark"))
                     + "\n[ImageFiles]\nup=" + image.toUtf8() + "\n");
    QVERIFY(m_theme->setFolder(folder.path()));
    QVERIFY(!m_theme->setName("night"));
    compareProblem(*m_theme,
                   "The theme \"night\" cannot be read: " + fault + "; choose one of: night", ".");
}

// However many rules show it.
void tst_BadLooks::missingImage()
{
    TemporaryFolder folder;
    folder.write("default.theme", sample("default"));
    folder.write("night.theme",
                 QByteArray(sample("dark")) + "\n[ImageFiles]\ndown=nowhere/down.png\n");
    folder.write("templates/own.qss",
                 "QPushButton {image: url(own.theme.image.down);}\n"
                 "QToolButton {image: url(own.theme.image.down);}\n");
    const QString path =
        QDir::cleanPath(QCoreApplication::applicationDirPath() + "/nowhere/down.png");
    QVERIFY(m_theme->addTemplates(folder.filePath("templates"), "own"));
    QVERIFY(m_theme->setFolder(folder.path()));
    QVERIFY(m_theme->setName("night"));
    const Messages messages = m_log.take();
    QCOMPARE(messages.size(), 1);
    QCOMPARE(messages.first().text, "\"down\" \t \"" + path + "\"  is not exist!");
    // The path stands wherever it would without.
    QVERIFY(qApp->styleSheet().count(path) > 5);
    QVERIFY(!qApp->styleSheet().contains("theme.image"));
}

void tst_BadLooks::damagedTemplates_data()
{
    QTest::addColumn<QByteArray>("how");
    QTest::addColumn<QString>("fault");

    QTest::newRow("binary") << QByteArray("binary") << "is no text";
    QTest::newRow("huge") << QByteArray("huge") << "is larger than 4 MiB";
    QTest::newRow("unreadable") << QByteArray("unreadable") << "cannot be read";
    const char *const halfWritten[] = {"A { color: red;", "A { color: red; } }",    "A { B { } }",
                                       "/* A { }",        "A { image: url(\"a); }", "} {"};
    for (const char *text : halfWritten)
        QTest::newRow(text) << QByteArray(text) << "has a rule, comment or text";
}

void tst_BadLooks::damagedTemplates()
{
    QFETCH(QByteArray, how);
    QFETCH(QString, fault);
    TemporaryFolder folder;
    folder.write("a.qss", "/* } */ A[x=\"{\"] {} B { image: url('/*'); }");
    QVERIFY(m_theme->addTemplates(folder.path()));
    m_styleSheet = qApp->styleSheet();
    damage(folder, "a.qss", how);
    std::unique_ptr<Unreadable> unreadable;
    if (how == "unreadable")
        unreadable = std::make_unique<Unreadable>(folder.filePath("a.qss"));
    QVERIFY(!m_theme->setName("light"));
    compareProblem(*m_theme, "\"" + folder.filePath("a.qss") + "\" " + fault,
                   "out of the templates folder.");
}

// Every way to the same look looks at the templates first, and a mended one ends the problem.
void tst_BadLooks::restyledWithDamage()
{
    TemporaryFolder folder;
    folder.write("a.qss", "QLabel#a {color: #010203;}");
    QVERIFY(m_theme->addTemplates(folder.path()));
    m_styleSheet = qApp->styleSheet();
    folder.write("a.qss", "QLabel#a {color: #040506;");
    m_theme->restyleAgain();
    compareProblem(*m_theme, "\"" + folder.filePath("a.qss") + "\" has a rule",
                   "out of the templates folder.");
    folder.write("a.qss", "QLabel#a {color: #040506;}");
    m_theme->restyleAgain();
    QCOMPARE(m_theme->problem(), QString());
    QVERIFY(qApp->styleSheet().contains("#040506"));
}

void tst_BadLooks::noTemporaryFiles_data()
{
    QTest::addColumn<QString>("what");
    for (const char *what : {"accent", "unsaved-texts", "colors-to-derive"})
        QTest::newRow(what) << QString(what);
}

// What goes through a temporary file says so if there can be none, and the theme stays whole.
void tst_BadLooks::noTemporaryFiles()
{
    QFETCH(QString, what);
    TemporaryFolder folder;
    folder.write("default.theme", sample("default"));
    folder.write("bare.theme", "[Colors]\nBackgroundColor_2=#101010\n");
    const QByteArray former = qgetenv("TMPDIR");
    const QVariantMap values = m_theme->theme()->values();
    qputenv("TMPDIR", "/proc");
    const auto back = qScopeGuard([&] {
        if (former.isNull())
            qunsetenv("TMPDIR");
        else
            qputenv("TMPDIR", former);
    });
    if (what == "accent") {
        QVERIFY(!m_theme->setAccent(Qt::red));
    } else if (what == "unsaved-texts") {
        QVERIFY(!m_theme->setUnsavedTexts({{m_theme->folder() + "/dark.theme", "[Colors]\n"}}));
    } else {
        QVERIFY(m_theme->setFolder(folder.path())); // has no theme of the name in force
        QVERIFY(!m_theme->setName("bare"));
    }
    compareProblem(*m_theme, "No temporary file can be written in \"/proc\"",
                   "or let TMPDIR name another folder.");
    QCOMPARE(QVariantMap(m_theme->theme()->values()), values);
}

// What is no file is no template, whatever it is called; a pipe would be waited for.
void tst_BadLooks::noTemplates_data()
{
    QTest::addColumn<QByteArray>("how");
    for (const char *how : {"missing", "folder", "pipe"})
        QTest::newRow(how) << QByteArray(how);
}

void tst_BadLooks::noTemplates()
{
    QFETCH(QByteArray, how);
    TemporaryFolder folder;
    folder.write("a.qss", "QLabel#a {color: #010203;}");
    QVERIFY(m_theme->addTemplates(folder.path()));
    QVERIFY(qApp->styleSheet().contains("QLabel#a"));
    damage(folder, "a.qss", how);
    QVERIFY(m_theme->setName("light"));
    QVERIFY(!qApp->styleSheet().contains("QLabel#a"));
}

void tst_BadLooks::missingFolders()
{
    TemporaryFolder folder;
    const QString missing = folder.filePath("missing");
    QVERIFY(!m_theme->setFolder(missing));
    compareProblem(*m_theme, "The themes folder \"" + missing + "\" does not exist",
                   "name one that does.");
    QVERIFY(!m_theme->addTemplates(missing));
    compareProblem(*m_theme, "The templates folder \"" + missing + "\" does not exist",
                   "name one that does.");
    QVERIFY(m_theme->setName("light"));
    QCOMPARE(m_theme->problem(), QString());
}

void tst_BadLooks::names_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("empty") << "";
    QTest::newRow("unknown") << "nope";
    QTest::newRow("other-case") << "Dark";
    QTest::newRow("path") << "../themes/dark";
    QTest::newRow("absolute") << "/etc/passwd";
    QTest::newRow("long") << QString(5000, 'x');
}

void tst_BadLooks::names()
{
    QFETCH(QString, name);
    QVERIFY(!m_theme->setName(name));
    compareProblem(*m_theme, "The theme \"" + name + "\" cannot be read: ",
                   "; choose one of: contrast, dark, light.");
    QVERIFY(!m_theme->setName(name));
    QCOMPARE(m_log.take().size(), 0); // it was said
}

void tst_BadLooks::themeThatLacksColors()
{
    TemporaryFolder folder;
    folder.write("default.theme", "ThemeName=Shared\n");
    folder.write("own.theme",
                 "[Colors]\nBackgroundColor_2=#202830\nHighlightedForegroundColor=#50c0a0\n");
    QVERIFY(m_theme->setFolder(folder.path()));
    for (int i = 0; i < 2; ++i) {
        QVERIFY(m_theme->setName("own"));
        QVERIFY(m_theme->setName("own"));
    }
    const Messages messages = m_log.take();
    QCOMPARE(messages.size(), 1);
    QCOMPARE(messages.first().text,
             "The theme \"" + folder.filePath("own.theme")
                 + "\" lacks 44 of the colours that a look is made of "
                   "(AssistButtonBackgroundDisabled, AssistButtonBackgroundHover, "
                   "AssistButtonBackgroundNormal, ...); they are derived from those that it has.");
    QCOMPARE(m_theme->problem(), QString());
    QCOMPARE(m_theme->palette().color(QPalette::Window), QColor("#202830"));
    QCOMPARE(m_theme->theme()->color("BackgroundColor_3"), QColor("#202830")); // a relative
    QCOMPARE(m_theme->theme()->color("Color_Brand_6"), QColor("#50c0a0"));
    QVERIFY(m_theme->theme()->color("DefaultForegroundColor").lightness() > 200);
    QCOMPARE(m_theme->theme()->integer("FontSize_L"), qint64(14));
}

// Files that are replaced all the time give one look or the other, whole.
// What lists themes opens nothing that would never end.
void tst_BadLooks::namesBesideAPipe()
{
    TemporaryFolder folder;
    folder.write("default.theme", "ThemeName=Base\n");
    folder.write("day.theme", "ThemeName=Day\n[Colors]\nBackgroundColor_3=FFFFFF\n");
    folder.write("night.theme", "ThemeName=Night\n[Colors]\nBackgroundColor_3=000000\n");
    QVERIFY(m_theme->setFolder(folder.path()));
    damage(folder, "default.theme", "pipe");
    damage(folder, "night.theme", "pipe");
    QCOMPARE(m_theme->names(), QStringList("day"));
    QCOMPARE(m_theme->displayName("day"), QString("Day"));
    QCOMPARE(m_theme->displayName("night"), QString("night"));
    QCOMPARE(m_theme->displayName("default"), QString("default"));
    QVERIFY(!m_theme->followDesktop());
    m_theme->setFollowsDesktop(false);
    compareProblem(*m_theme, "\"" + folder.filePath("default.theme") + "\" is no file", QString());
}

void tst_BadLooks::changedWhileRead()
{
    TemporaryFolder folder;
    folder.write("default.theme", sample("default"));
    folder.write("night.theme", sample("dark"));
    QVERIFY(m_theme->setFolder(folder.path()));
    std::atomic<bool> isOver{false};
    std::thread writer([&] {
        for (int i = 0; !isOver; ++i) {
            folder.write("new", sample(i % 2 ? "dark" : "light"));
            rename(qPrintable(folder.filePath("new")), qPrintable(folder.filePath("night.theme")));
        }
    });
    QSet<QString> looks;
    QElapsedTimer time;
    time.start();
    for (int i = 0; i < 20 || (looks.size() < 2 && time.elapsed() < 5000); ++i) {
        if (!m_theme->setName("night"))
            break;
        const bool isDark = m_theme->palette().color(QPalette::Window).lightness() < 128;
        const QColor text = m_theme->palette().color(QPalette::WindowText);
        looks.insert(m_theme->theme()->displayName() + (isDark ? " dark" : " light")
                     + (text.lightness() < 128 ? " ink" : " chalk"));
    }
    isOver = true;
    writer.join();
    QCOMPARE(looks, (QSet<QString>{"Dark dark chalk", "Light light ink"}));
    QCOMPARE(m_theme->problem(), QString());
}

// A template that is replaced all the time gives one rule or the other, never a part.
void tst_BadLooks::templatesChangedWhileRead()
{
    const QByteArray rules[] = {"QLabel#a {color: #010203;}\n",
                                QByteArray("QLabel#a {color: #040506;}\n").repeated(2000)};
    TemporaryFolder folder;
    folder.write("a.qss", rules[0]);
    TemporaryFolder elsewhere;
    QVERIFY(m_theme->addTemplates(folder.path()));
    std::atomic<bool> isOver{false};
    std::thread writer([&] {
        for (int i = 0; !isOver; ++i) {
            elsewhere.write("new", rules[i % 2]);
            rename(qPrintable(elsewhere.filePath("new")), qPrintable(folder.filePath("a.qss")));
        }
    });
    QSet<int> counts;
    QElapsedTimer time;
    time.start();
    for (int i = 0; i < 20 || (counts.size() < 2 && time.elapsed() < 5000); ++i) {
        if (!m_theme->setName(i % 2 ? "dark" : "light"))
            break;
        counts.insert(int(qApp->styleSheet().count("QLabel#a {color: #010203;}")
                          + qApp->styleSheet().count("QLabel#a {color: #040506;}")));
    }
    isOver = true;
    writer.join();
    QCOMPARE(counts, (QSet<int>{1, 2000}));
    QCOMPARE(m_theme->problem(), QString());
}

void tst_BadLooks::iconChangedWhileRead()
{
    const auto filled = [](const char *color) -> QByteArray {
        return QByteArray("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"20\" height=\"20\">"
                          "<rect width=\"20\" height=\"20\" fill=\"")
            + color + "\"/></svg>";
    };
    TemporaryFolder folder;
    folder.write("a.svg", filled("#ff0000"));
    std::atomic<bool> isOver{false};
    std::thread writer([&] {
        for (int i = 0; !isOver; ++i) {
            folder.write("new", filled(i % 2 ? "#ff0000" : "#0000ff"));
            rename(qPrintable(folder.filePath("new")), qPrintable(folder.filePath("a.svg")));
        }
    });
    const QIcon icon = HV::themedIcon(folder.filePath("a.svg"));
    QSet<QRgb> colors;
    QElapsedTimer time;
    time.start();
    for (int i = 0; i < 50 || (colors.size() < 2 && time.elapsed() < 5000); ++i) {
        if (!m_theme->setName(i % 2 ? "dark" : "light")) // draws it anew
            break;
        const QImage picture = icon.pixmap(20).toImage();
        colors.insert(picture.pixel(picture.rect().center()));
    }
    isOver = true;
    writer.join();
    QCOMPARE(colors, (QSet<QRgb>{0xffff0000, 0xff0000ff}));
}

void tst_BadLooks::switchFromWithin_data()
{
    QTest::addColumn<int>("event");

    QTest::newRow("paint") << int(QEvent::Paint);
    QTest::newRow("style-change") << int(QEvent::StyleChange);
    QTest::newRow("palette-change") << int(QEvent::PaletteChange);
    QTest::newRow("polish") << int(QEvent::Polish);
    QTest::newRow("close") << int(QEvent::Close);
}

void tst_BadLooks::switchFromWithin()
{
    QFETCH(int, event);
    QVERIFY(m_theme->setName("contrast"));
    QWidget window;
    QVBoxLayout layout(&window);
    SwitchingWidget widget(m_theme.get(), QEvent::Type(event));
    widget.setMinimumSize(20, 20);
    QLabel label("text");
    layout.addWidget(&label);
    if (event != QEvent::Close)
        layout.addWidget(&widget);
    const bool isChange = event == QEvent::StyleChange || event == QEvent::PaletteChange;
    widget.isArmed = !isChange;
    widget.ensurePolished();
    window.grab();
    widget.isArmed = isChange || event == QEvent::Close;
    if (isChange)
        QVERIFY(m_theme->setName("dark"));
    widget.close();
    QTRY_COMPARE(m_theme->name(), "light");
    QVERIFY(widget.isAccepted);
    QCOMPARE(QApplication::palette(), m_theme->palette());
    QVERIFY(label.palette().color(QPalette::Window).lightness() > 128);
    window.grab();
}

void tst_BadLooks::deletedByItsSwitch()
{
    auto *theme = new ApplicationTheme;
    QVERIFY(theme->setName("contrast"));
    QWidget widget;
    widget.ensurePolished();
    connect(theme, &ApplicationTheme::changed, [theme] { delete theme; });
    QVERIFY(theme->setName("light"));
    QVERIFY(m_theme->setName("dark"));
}

void tst_BadLooks::widgetsDeletedByASwitch()
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    QVector<QPointer<QWidget>> victims;
    for (int i = 0; i < 10; ++i) {
        victims.append(new QPushButton);
        layout->addWidget(victims.last());
        victims.last()->ensurePolished();
    }
    class Killer : public QObject
    {
    public:
        bool eventFilter(QObject *, QEvent *event) override
        {
            if (event->type() == QEvent::PaletteChange && !victims.isEmpty())
                delete victims.takeLast().data();
            return false;
        }
        QVector<QPointer<QWidget>> victims;
    } killer;
    killer.victims = victims.mid(5);
    victims.first()->installEventFilter(&killer);
    for (const char *name : {"light", "dark", "contrast", "light", "dark", "light", "dark"})
        QVERIFY(m_theme->setName(name));
    QVERIFY(!victims.last());
    QVERIFY(victims.first());
}

int main(int argc, char *argv[])
{
    // Before the application: nothing happens but that it says so, and it works with one.
    auto early = std::make_unique<ApplicationTheme>();
    const bool isEarlyLook = early->setName("dark") || early->followDesktop();
    if (isEarlyLook || !early->problem().contains("QApplication"))
        return 1;
    int result = 0;
    {
        QApplication app(argc, argv);
        if (!early->setName("dark") || !early->followDesktop())
            return 2;
        early->setLiveReload(true);
        tst_BadLooks test;
        result = QTest::qExec(&test, argc, argv);
    }
    if (early->setName("light"))
        return 3;
    early.reset(); // after the application
    return result;
}

#include "tst_badlooks.moc"
