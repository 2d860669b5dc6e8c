// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "standinportal.h"

#include <hvthemeapp/desktopsettings.h>

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QPalette>

using HV::DesktopSettings;
using ColorScheme = DesktopSettings::ColorScheme;
using Contrast = DesktopSettings::Contrast;
using Version = StandInPortal::Version;
using Values = StandInPortal::Values;

Q_DECLARE_METATYPE(StandInPortal::Version)
Q_DECLARE_METATYPE(StandInPortal::Values)

namespace
{

// What a program that follows the desktop must react within, restyling included.
const int reactionMs = 200;

QPalette palette(bool isDark)
{
    return {isDark ? Qt::white : Qt::black,
            Qt::gray,
            Qt::white,
            Qt::black,
            Qt::gray,
            isDark ? Qt::white : Qt::black,
            Qt::red,
            isDark ? Qt::black : Qt::white,
            isDark ? QColor(20, 20, 20) : QColor(230, 230, 230)};
}

/*! The user's folders, empty, for as long as it lives. */
class Home : public TemporaryFolder
{
public:
    Home()
    {
        QDir().mkpath(filePath("config/gtk-3.0"));
        qputenv("XDG_CONFIG_HOME", filePath("config").toLocal8Bit());
        qputenv("XDG_CONFIG_DIRS", filePath("system").toLocal8Bit());
        qputenv("XDG_CACHE_HOME", filePath("cache").toLocal8Bit());
        qunsetenv("GTK_THEME");
    }

    bool remembers() const { return QFile::exists(filePath("cache/hvtheme/desktop.ini")); }
};

/*! Says on its standard output what it finds at once and after the first turns of the event loop. */
int report()
{
    QElapsedTimer timer;
    timer.start();
    const DesktopSettings settings(palette(true));
    QTextStream out(stdout);
    out << (settings.colorScheme() == ColorScheme::Dark ? "dark" : "light");
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    out << ' ' << timer.elapsed() << '\n';
    return 0;
}

} // namespace

class tst_DesktopSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void portal_data();
    void portal();
    void change();
    void changesThatComeTogether();
    void strangersAreNotHeard();
    void silentPortal();
    void latePortal();
    void answerThatNeverComes();
    void restartedPortal();
    void portalThatComesLater();
    void remembered();
    void forgotten();
    void unusableMemory();
    void files_data();
    void files();
    void changedFile_data();
    void changedFile();
    void startPalette();
    void nothingBlocks_data();
    void nothingBlocks();

private:
    const PrivateBus m_bus;
};

void tst_DesktopSettings::portal_data()
{
    QTest::addColumn<Version>("version");
    QTest::addColumn<Values>("values");
    QTest::addColumn<ColorScheme>("scheme");
    QTest::addColumn<Contrast>("contrast");
    QTest::addColumn<QColor>("accentColor");

    const QColor none;
    const auto u = [](uint number) { return QVariant(number); };
    for (const Version version : {Version::Old, Version::New}) {
        const QByteArray name = version == Version::Old ? "old-" : "new-";
        const auto row = [&](const char *tag, const Values &values, ColorScheme scheme,
                             Contrast contrast = Contrast::Normal, const QColor &color = QColor()) {
            QTest::newRow(QByteArray(name + tag).constData())
                << version << values << scheme << contrast << color;
        };
        row("nothing", {}, ColorScheme::Light);
        row("none", {{"color-scheme", u(0)}}, ColorScheme::Light);
        row("dark", {{"color-scheme", u(1)}}, ColorScheme::Dark);
        row("light", {{"color-scheme", u(2)}}, ColorScheme::Light);
        row("all", {{"color-scheme", u(1)}, {"contrast", u(1)}, {"accent-color", accent(1, .4, 0)}},
            ColorScheme::Dark, Contrast::High, QColor(255, 102, 0));
        row("contrast-alone", {{"contrast", u(1)}}, ColorScheme::Light, Contrast::High);
        row("accent-out-of-range", {{"accent-color", accent(1.1, 0, 0)}}, ColorScheme::Light);
        row("accent-negative", {{"accent-color", accent(0, -1, 0)}}, ColorScheme::Light);
        row("accent-no-number", {{"accent-color", accent(qQNaN(), 0, 0)}}, ColorScheme::Light);
        row("unknown-numbers", {{"color-scheme", u(7)}, {"contrast", u(9)}}, ColorScheme::Light);
        row("texts", {{"color-scheme", "dark"}, {"contrast", "high"}, {"accent-color", "#f00"}},
            ColorScheme::Light);
        row("signed", {{"color-scheme", 1}}, ColorScheme::Light);
        row("lists", {{"color-scheme", QStringList{"1"}}, {"accent-color", QByteArray("abc")}},
            ColorScheme::Light);
        row("accent-of-another-shape", {{"accent-color", QVariant::fromValue(QSize(1, 2))}},
            ColorScheme::Light);
        row("wrapped-too-often", {{"color-scheme", StandInPortal::wrapped(u(1), 9)}},
            ColorScheme::Light);
    }
}

// Whatever the portal answers, it has answered: dark is not what the palette says.
void tst_DesktopSettings::portal()
{
    QFETCH(Version, version);
    QFETCH(Values, values);
    const Home home;
    StandInPortal stand(values, version);
    QVERIFY(stand.isOnBus);
    DesktopSettings settings(palette(true));
    QCOMPARE(settings.colorScheme(), ColorScheme::Dark);
    QTRY_VERIFY(home.remembers());
    QCoreApplication::processEvents();
    QTEST(settings.colorScheme(), "scheme");
    QTEST(settings.contrast(), "contrast");
    QTEST(settings.accentColor(), "accentColor");
    QCOMPARE(stand.calls.count("ReadOne"), 3);
}

void tst_DesktopSettings::change()
{
    const Home home;
    StandInPortal stand({{"color-scheme", 2U}});
    DesktopSettings settings(palette(false));
    QSignalSpy changed(&settings, &DesktopSettings::changed);
    QTRY_VERIFY(home.remembers());
    QCOMPARE(changed.size(), 0); // light it was

    QElapsedTimer timer;
    timer.start();
    stand.change("color-scheme", 1U);
    QVERIFY(changed.wait(reactionMs));
    qInfo("%lld ms from the desktop's change to the signal", timer.elapsed());
    QCOMPARE(settings.colorScheme(), ColorScheme::Dark);

    stand.change("color-scheme", 0U);
    QVERIFY(changed.wait(reactionMs));
    QCOMPARE(settings.colorScheme(), ColorScheme::Light);
    stand.change("accent-color", accent(0, 0, 1));
    QVERIFY(changed.wait(reactionMs));
    QCOMPARE(settings.accentColor(), QColor(Qt::blue));
    stand.change("contrast", 1U);
    QVERIFY(changed.wait(reactionMs));
    QCOMPARE(settings.contrast(), Contrast::High);
    QCOMPARE(changed.size(), 4);
}

void tst_DesktopSettings::changesThatComeTogether()
{
    const Home home;
    StandInPortal stand({{"color-scheme", 2U}, {"contrast", 0U}});
    DesktopSettings settings(palette(false));
    QTRY_VERIFY(home.remembers());
    QSignalSpy changed(&settings, &DesktopSettings::changed);
    stand.change("color-scheme", 1U);
    stand.change("contrast", 1U);
    stand.change("font", "Sans");
    stand.change("color-scheme", 1U);
    QTRY_COMPARE_WITH_TIMEOUT(settings.contrast(), Contrast::High, reactionMs);
    QCOMPARE(settings.colorScheme(), ColorScheme::Dark);
    QTest::qWait(20);
    QVERIFY2(changed.size() <= 2, qPrintable(QString::number(changed.size())));
}

void tst_DesktopSettings::strangersAreNotHeard()
{
    const Home home;
    StandInPortal stand({{"color-scheme", 2U}});
    DesktopSettings settings(palette(false));
    QTRY_VERIFY(home.remembers());
    QSignalSpy changed(&settings, &DesktopSettings::changed);
    QDBusMessage signal = QDBusMessage::createSignal(
        "/org/freedesktop/portal/desktop", "org.freedesktop.portal.Settings", "SettingChanged");
    signal << "org.freedesktop.appearance"
           << "color-scheme" << QVariant::fromValue(QDBusVariant(1U));
    QVERIFY(QDBusConnection::sessionBus().send(signal));
    stand.change("accent-color", accent(0, 0, 1)); // comes after the stranger's
    QVERIFY(changed.wait());
    QCOMPARE(settings.colorScheme(), ColorScheme::Light);
}

void tst_DesktopSettings::silentPortal()
{
    const Home home;
    home.write("config/kdeglobals", "[General]\nColorScheme=BreezeDark\n");
    const StandInPortal stand({}, Version::New, StandInPortal::Manner::Silent);
    QElapsedTimer timer;
    timer.start();
    DesktopSettings settings(palette(false));
    QCOMPARE(settings.colorScheme(), ColorScheme::Dark);
    QTRY_COMPARE(stand.calls.size(), 3);
    QVERIFY2(timer.elapsed() < reactionMs, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(settings.colorScheme(), ColorScheme::Dark);
    QVERIFY(!home.remembers());
}

void tst_DesktopSettings::latePortal()
{
    const Home home;
    StandInPortal stand({{"color-scheme", 1U}}, Version::New, StandInPortal::Manner::Silent);
    DesktopSettings settings(palette(false));
    QSignalSpy changed(&settings, &DesktopSettings::changed);
    QTRY_COMPARE(stand.calls.size(), 3);
    QCOMPARE(settings.colorScheme(), ColorScheme::Light);
    stand.answer();
    QVERIFY(changed.wait(reactionMs));
    QCOMPARE(settings.colorScheme(), ColorScheme::Dark);
    QCOMPARE(changed.size(), 1);
}

void tst_DesktopSettings::answerThatNeverComes()
{
    const Home home;
    StandInPortal stand({{"color-scheme", 1U}, {"contrast", 1U}});
    stand.silentKey = "accent-color";
    DesktopSettings settings(palette(false));
    QSignalSpy changed(&settings, &DesktopSettings::changed);
    QVERIFY(changed.wait(reactionMs));
    QCOMPARE(settings.colorScheme(), ColorScheme::Dark);
    QCOMPARE(settings.contrast(), Contrast::High);
    QCOMPARE(changed.size(), 1);
    stand.change("color-scheme", 2U);
    QVERIFY(changed.wait(reactionMs));
    QCOMPARE(settings.colorScheme(), ColorScheme::Light);
}

void tst_DesktopSettings::restartedPortal()
{
    const Home home;
    auto stand = std::make_unique<StandInPortal>(Values{{"color-scheme", 1U}});
    DesktopSettings settings(palette(false));
    QSignalSpy changed(&settings, &DesktopSettings::changed);
    QVERIFY(changed.wait());
    QCOMPARE(settings.colorScheme(), ColorScheme::Dark);
    stand.reset();
    QTest::qWait(20);
    QCOMPARE(settings.colorScheme(), ColorScheme::Dark); // what it said holds
    stand = std::make_unique<StandInPortal>(Values{{"color-scheme", 2U}}, Version::Old);
    QVERIFY(changed.wait());
    QCOMPARE(settings.colorScheme(), ColorScheme::Light);
    stand->change("color-scheme", 1U);
    QVERIFY(changed.wait(reactionMs));
    QCOMPARE(settings.colorScheme(), ColorScheme::Dark);
}

void tst_DesktopSettings::portalThatComesLater()
{
    const Home home;
    DesktopSettings settings(palette(false));
    QSignalSpy changed(&settings, &DesktopSettings::changed);
    QTest::qWait(50);
    QCOMPARE(changed.size(), 0);
    const StandInPortal stand({{"color-scheme", 1U}});
    QVERIFY(changed.wait());
    QCOMPARE(settings.colorScheme(), ColorScheme::Dark);
}

void tst_DesktopSettings::remembered()
{
    const Home home;
    const StandInPortal stand(
        {{"color-scheme", 1U}, {"contrast", 1U}, {"accent-color", accent(.2, .3, .7)}});
    QColor color;
    {
        DesktopSettings settings(palette(false));
        QSignalSpy changed(&settings, &DesktopSettings::changed);
        QVERIFY(changed.wait());
        color = settings.accentColor();
        QVERIFY(color.isValid());
    }
    DesktopSettings settings(palette(false));
    QCOMPARE(settings.colorScheme(), ColorScheme::Dark);
    QCOMPARE(settings.contrast(), Contrast::High);
    QCOMPARE(settings.accentColor(), color);
    QSignalSpy changed(&settings, &DesktopSettings::changed);
    QTRY_COMPARE(stand.calls.size(), 6);
    QTest::qWait(20);
    QCOMPARE(changed.size(), 0); // the first frame was right
}

void tst_DesktopSettings::forgotten()
{
    const Home home;
    home.write("cache/hvtheme/desktop.ini", "[General]\nPortal=1\nColorScheme=dark\n");
    DesktopSettings settings(palette(false));
    QCOMPARE(settings.colorScheme(), ColorScheme::Dark);
    QSignalSpy changed(&settings, &DesktopSettings::changed);
    QVERIFY(changed.wait()); // there is no portal any more
    QCOMPARE(settings.colorScheme(), ColorScheme::Light);
    QCOMPARE(DesktopSettings(palette(false)).colorScheme(), ColorScheme::Light);
}

void tst_DesktopSettings::unusableMemory()
{
    const Home home;
    home.write("cache/hvtheme", "a file in the place of the folder");
    const StandInPortal stand({{"color-scheme", 1U}});
    DesktopSettings settings(palette(false));
    QSignalSpy changed(&settings, &DesktopSettings::changed);
    QVERIFY(changed.wait());
    QCOMPARE(settings.colorScheme(), ColorScheme::Dark);
}

void tst_DesktopSettings::files_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<ColorScheme>("scheme");
    QTest::addColumn<Contrast>("contrast");
    QTest::addColumn<QColor>("accentColor");

    const QByteArray window = "[Colors:Window]\nBackgroundNormal=";
    const auto row = [](const char *tag, const char *name, const QByteArray &text,
                        ColorScheme scheme, Contrast contrast = Contrast::Normal,
                        const QColor &color = QColor()) {
        QTest::newRow(tag) << QString(name) << text << scheme << contrast << color;
    };
    row("none", "unknown", "", ColorScheme::Light);
    row("kde-dark", "kdeglobals", window + "32,35,38\nForegroundNormal=252,252,252\n",
        ColorScheme::Dark);
    row("kde-light", "kdeglobals", window + "239,240,241\n", ColorScheme::Light);
    row("kde-name", "kdeglobals", "[General]\nColorScheme=BreezeDark\n", ColorScheme::Dark);
    row("kde-accent", "kdeglobals", "[General]\nAccentColor=61,174,233\n", ColorScheme::Light,
        Contrast::Normal, QColor(61, 174, 233));
    row("kde-contrast", "kdeglobals",
        "[General]\nColorScheme=BreezeHighContrast\n" + window + "0,0,0\n", ColorScheme::Dark,
        Contrast::High);
    row("kde-bad-colour", "kdeglobals", window + "32,-1,300\n[General]\nAccentColor=1,2\n",
        ColorScheme::Light);
    row("kde-binary", "kdeglobals", QByteArray("\0\xff[Colors:Window\n\0=\0", 20),
        ColorScheme::Light);
    row("kde-huge", "kdeglobals", window + "0,0,0\n" + QByteArray(2 << 20, ';'),
        ColorScheme::Light);
    const QByteArray gtk = "[Settings]\n";
    row("gtk-prefers-dark", "gtk-3.0/settings.ini", gtk + "gtk-application-prefer-dark-theme=1\n",
        ColorScheme::Dark);
    row("gtk-prefers-dark-word", "gtk-3.0/settings.ini",
        gtk + "gtk-application-prefer-dark-theme=true\n", ColorScheme::Dark);
    row("gtk-prefers-light", "gtk-3.0/settings.ini",
        gtk + "gtk-theme-name=Adwaita\ngtk-application-prefer-dark-theme=0\n", ColorScheme::Light);
    row("gtk-dark-theme", "gtk-3.0/settings.ini", gtk + "gtk-theme-name=Adwaita-dark\n",
        ColorScheme::Dark);
    row("gtk-contrast", "gtk-3.0/settings.ini", gtk + "gtk-theme-name=HighContrastInverse\n",
        ColorScheme::Dark, Contrast::High);
    row("gtk-4", "gtk-4.0/settings.ini", gtk + "gtk-theme-name=Orchis-Dark\n", ColorScheme::Dark);
    row("gtk-no-theme", "gtk-3.0/settings.ini", gtk + "gtk-font-name=Sans 10\n",
        ColorScheme::Light);
}

void tst_DesktopSettings::files()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, text);
    const Home home;
    home.write("config/" + name, text);
    const DesktopSettings settings(palette(false));
    QTEST(settings.colorScheme(), "scheme");
    QTEST(settings.contrast(), "contrast");
    QTEST(settings.accentColor(), "accentColor");
}

void tst_DesktopSettings::changedFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isReplaced");

    QTest::newRow("gtk-written") << "gtk-3.0/settings.ini" << false;
    QTest::newRow("gtk-replaced") << "gtk-3.0/settings.ini" << true;
    QTest::newRow("kde-replaced") << "kdeglobals" << true;
}

void tst_DesktopSettings::changedFile()
{
    QFETCH(QString, name);
    QFETCH(bool, isReplaced);
    const auto text = [&](bool isDark) {
        return name == "kdeglobals"
            ? QByteArray(isDark ? "[Colors:Window]\nBackgroundNormal=1,2,3\n"
                                : "[Colors:Window]\nBackgroundNormal=231,232,233\n")
            : QByteArray(isDark ? "[Settings]\ngtk-theme-name=Adwaita-dark\n"
                                : "[Settings]\ngtk-theme-name=Adwaita\n");
    };
    const Home home;
    const QString path = home.write("config/" + name, text(false));
    DesktopSettings settings(palette(false));
    QSignalSpy changed(&settings, &DesktopSettings::changed);
    for (const bool isDark : {true, false, true}) {
        if (isReplaced) {
            const QString other = home.write("config/other", text(isDark));
            QCOMPARE(std::rename(other.toLocal8Bit().constData(), path.toLocal8Bit().constData()),
                     0);
        } else {
            home.write("config/" + name, text(isDark));
        }
        QVERIFY(changed.wait(reactionMs));
        QCOMPARE(settings.colorScheme(), isDark ? ColorScheme::Dark : ColorScheme::Light);
    }
}

void tst_DesktopSettings::startPalette()
{
    const Home home;
    QCOMPARE(DesktopSettings(palette(true)).colorScheme(), ColorScheme::Dark);
    QCOMPARE(DesktopSettings(palette(false)).colorScheme(), ColorScheme::Light);
}

void tst_DesktopSettings::nothingBlocks_data()
{
    QTest::addColumn<QString>("address");

    QTest::newRow("no-bus") << "";
    QTest::newRow("no-such-bus") << "unix:path=/nonexistent/bus";
    QTest::newRow("no-address") << "garbage";
}

// The session bus of a process is the first one, so each of these needs a process.
void tst_DesktopSettings::nothingBlocks()
{
    QFETCH(QString, address);
    const Home home;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove("XDG_RUNTIME_DIR");
    environment.insert("DBUS_SESSION_BUS_ADDRESS", address);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationFilePath(), {"--report"});
    QVERIFY(process.waitForFinished());
    const QList<QByteArray> words = process.readAllStandardOutput().trimmed().split(' ');
    QCOMPARE(words.size(), 2);
    QCOMPARE(words.first(), QByteArray("dark"));
    QVERIFY2(words.last().toInt() < reactionMs, words.last().constData());
}

int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    if (application.arguments().contains("--report"))
        return report();
    tst_DesktopSettings test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_desktopsettings.moc"
