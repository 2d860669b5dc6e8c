// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "standinportal.h"

#include <hvthemeapp/applicationtheme.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QPushButton>
#include <QVBoxLayout>

using HV::ApplicationTheme;

namespace
{

// The user's settings are those of the stand-in alone.
const TemporaryFolder &home()
{
    static const TemporaryFolder folder;
    return folder;
}

} // namespace

class tst_FollowDesktop : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void fittingTheme_data();
    void fittingTheme();
    void ownFolder_data();
    void ownFolder();
    void changeRestylesInTime();
    void ownChoiceEndsIt();
    void choiceWhileFollowing();
    void accentIsFollowedOnRequest();
    void deletedWhileAsked();

private:
    const PrivateBus m_bus;
};

void tst_FollowDesktop::init()
{
    QDir(home().filePath("cache")).removeRecursively();
    qApp->setStyleSheet(QString());
    qApp->setPalette(QPalette(Qt::lightGray));
}

void tst_FollowDesktop::fittingTheme_data()
{
    QTest::addColumn<uint>("scheme");
    QTest::addColumn<uint>("contrast");
    QTest::addColumn<QString>("name");

    QTest::newRow("none") << 0U << 0U << "light";
    QTest::newRow("dark") << 1U << 0U << "dark";
    QTest::newRow("light") << 2U << 0U << "light";
    QTest::newRow("contrast") << 0U << 1U << "contrast";
    QTest::newRow("dark-contrast") << 1U << 1U << "contrast";
    QTest::newRow("light-contrast") << 2U << 1U << "contrast";
}

void tst_FollowDesktop::fittingTheme()
{
    QFETCH(uint, scheme);
    QFETCH(uint, contrast);
    const StandInPortal stand({{"color-scheme", scheme}, {"contrast", contrast}});
    ApplicationTheme theme;
    QVERIFY(theme.followDesktop());
    QVERIFY(theme.followsDesktop());
    QCOMPARE(theme.name(), QString("light")); // as the palette, until the portal answers
    QFETCH(QString, name);
    QTRY_COMPARE(theme.name(), name);
}

void tst_FollowDesktop::ownFolder_data()
{
    QTest::addColumn<uint>("scheme");
    QTest::addColumn<uint>("contrast");
    QTest::addColumn<QString>("name");

    QTest::newRow("dark-by-flag") << 1U << 0U << "berlin";
    QTest::newRow("light-by-ground") << 2U << 0U << "cairo";
    QTest::newRow("dark-contrast-by-name") << 1U << 1U << "contrasty";
    QTest::newRow("light-contrast-by-flag") << 2U << 1U << "athens";
}

// Four themes with names of their own. They lack most of what a theme has, which is another matter.
void tst_FollowDesktop::ownFolder()
{
    QFETCH(uint, scheme);
    QFETCH(uint, contrast);
    const auto builtIn = [](const char *name) {
        QFile file(QString(":/hvthemeapp/themes/%1.theme").arg(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    const auto withoutFlags = [](const QByteArray &text) {
        return text.left(text.indexOf("\n[Flags]") + 1);
    };
    const QByteArray light = withoutFlags(builtIn("light"));
    const TemporaryFolder themes;
    themes.write("default.theme", builtIn("default"));
    themes.write("athens.theme", light + "[Flags]\nHighContrast=1\n");
    themes.write("berlin.theme", builtIn("dark"));
    themes.write("cairo.theme", light);
    themes.write("contrasty.theme", withoutFlags(builtIn("contrast")));
    const StandInPortal stand({{"color-scheme", scheme}, {"contrast", contrast}});
    ApplicationTheme theme;
    QVERIFY(theme.setFolder(themes.path()));
    QVERIFY2(theme.followDesktop(), qPrintable(theme.problem()));
    QFETCH(QString, name);
    QTRY_COMPARE(theme.name(), name);
}

// Two hundred widgets in a window, from the portal's signal to the end of the restyling.
void tst_FollowDesktop::changeRestylesInTime()
{
    StandInPortal stand({{"color-scheme", 2U}});
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    for (int i = 0; i < 200; ++i)
        layout->addWidget(new QPushButton("button"));
    ApplicationTheme theme;
    QVERIFY(theme.followDesktop());
    QTRY_COMPARE(stand.calls.size(), 3);
    QTest::qWait(50);
    const QSignalSpy names(&theme, &ApplicationTheme::nameChanged);
    QSignalSpy changed(&theme, &ApplicationTheme::changed);
    for (const uint scheme : {1U, 2U, 1U}) {
        QElapsedTimer timer;
        timer.start();
        stand.change("color-scheme", scheme);
        QVERIFY(changed.wait());
        qInfo("%lld ms for a window of 200 buttons", timer.elapsed());
        QVERIFY(timer.elapsed() < 200);
        QCOMPARE(theme.name(), scheme == 1U ? QString("dark") : QString("light"));
    }
    QCOMPARE(changed.size(), 3);
    QCOMPARE(names.size(), 3);
}

void tst_FollowDesktop::ownChoiceEndsIt()
{
    StandInPortal stand({{"color-scheme", 1U}});
    ApplicationTheme theme;
    QSignalSpy follows(&theme, &ApplicationTheme::followsDesktopChanged);
    QVERIFY(theme.followDesktop());
    QTRY_COMPARE(theme.name(), QString("dark"));
    QVERIFY(theme.setName("contrast"));
    QVERIFY(!theme.followsDesktop());
    QCOMPARE(follows.size(), 2);
    stand.change("color-scheme", 2U);
    QTest::qWait(50);
    QCOMPARE(theme.name(), QString("contrast"));
    theme.setFollowsDesktop(true);
    QTRY_COMPARE(theme.name(), QString("light"));
}

// The program answers a change of the desktop with a choice of its own.
void tst_FollowDesktop::choiceWhileFollowing()
{
    const StandInPortal stand({{"color-scheme", 1U}});
    ApplicationTheme theme;
    QVERIFY(theme.followDesktop());
    connect(&theme, &ApplicationTheme::changed, &theme, [&] {
        if (theme.name() == "dark")
            theme.setName("contrast");
    });
    QTRY_COMPARE(theme.name(), QString("contrast"));
    QVERIFY(!theme.followsDesktop());
}

void tst_FollowDesktop::accentIsFollowedOnRequest()
{
    StandInPortal stand({{"color-scheme", 1U}, {"accent-color", accent(0.5, 0.25, 0)}});
    ApplicationTheme theme;
    QVERIFY(theme.followDesktop());
    QTRY_COMPARE(theme.name(), QString("dark"));
    QVERIFY(!theme.accent().isValid());

    QSignalSpy accents(&theme, &ApplicationTheme::accentChanged);
    QSignalSpy changes(&theme, &ApplicationTheme::changed);
    theme.setFollowsAccent(true);
    QCOMPARE(theme.accent(), QColor(128, 64, 0));
    QCOMPARE(theme.theme()->readNamedColor("Brand").first, QColor(128, 64, 0));
    QCOMPARE(accents.size(), 1);
    QCOMPARE(changes.size(), 1);

    stand.change("accent-color", accent(0, 0.5, 0));
    QTRY_COMPARE(theme.accent(), QColor(0, 128, 0));
    QCOMPARE(changes.size(), 2);
    stand.change("accent-color", accent(-1, -1, -1)); // none
    QTRY_VERIFY(!theme.accent().isValid());
    stand.change("accent-color", accent(0, 0.5, 0));
    QTRY_VERIFY(theme.accent().isValid());
    theme.setFollowsAccent(false);
    QVERIFY(!theme.accent().isValid());
}

void tst_FollowDesktop::deletedWhileAsked()
{
    StandInPortal stand({{"color-scheme", 1U}}, StandInPortal::Version::New,
                        StandInPortal::Manner::Silent);
    {
        ApplicationTheme theme;
        QVERIFY(theme.followDesktop());
        QTRY_COMPARE(stand.calls.size(), 3);
    }
    stand.answer();
    QTest::qWait(20);
}

int main(int argc, char **argv)
{
    qputenv("XDG_CONFIG_HOME", home().filePath("config").toLocal8Bit());
    qputenv("XDG_CONFIG_DIRS", home().filePath("system").toLocal8Bit());
    qputenv("XDG_CACHE_HOME", home().filePath("cache").toLocal8Bit());
    qunsetenv("GTK_THEME");
    QApplication application(argc, argv);
    tst_FollowDesktop test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_followdesktop.moc"
