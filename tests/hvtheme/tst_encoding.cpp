// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <hvtheme/inifile.h>
#include <hvtheme/theming.h>
#include <hvtheme/workabletheming.h>

#include "messages.h"
#include "temporaryfolder.h"

// What the bytes of theme files mean: the same with every Qt.
class tst_Encoding : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_log.start(); }
    void cleanup() { m_log.stop(); }

    void value_data();
    void value();
    void key_data();
    void key();
    void plainFileIsRead();
    void fileIsReadAgain();
    void pathStays();

private:
    CapturedMessages m_log;
};

namespace
{

const QByteArray byteOrderMark("\xef\xbb\xbf");

} // namespace

void tst_Encoding::value_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("expected");

    const QString garbled = QString(QChar(0xc3)) + QChar(0xa9);
    // clang-format off
    QTest::newRow("ascii")               << QByteArray("Cafe") << QString("Cafe");
    QTest::newRow("latin-1")             << QByteArray("Caf\xe9") << QString(QString("Caf") + QChar(0xe9));
    QTest::newRow("all-of-latin-1")      << QByteArray("\x80\x85\xa0\xff") << QString(QString(QChar(0x80)) + QChar(0x85) + QChar(0xa0) + QChar(0xff));
    QTest::newRow("quoted-latin-1")      << QByteArray("\"Caf\xe9, one\"") << QString(QString("Caf") + QChar(0xe9) + ", one");
    QTest::newRow("utf-8")               << QByteArray("Caf\xc3\xa9") << QString("Caf" + garbled);
    QTest::newRow("latin-1-and-escape")  << QByteArray("\xe9\\x4e2d") << QString(QString(QChar(0xe9)) + QChar(0x4e2d));
    QTest::newRow("escape")              << QByteArray("\\xe9") << QString(QChar(0xe9));
    QTest::newRow("nul-and-latin-1")     << QByteArray("a\0b\xe9", 4) << QString(QString("a") + QChar(0) + "b" + QChar(0xe9));
    // clang-format on
}

void tst_Encoding::value()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, expected);

    const TemporaryFolder folder;
    HV::WorkableTheme theme;
    folder.write("default.theme", "ThemeName=" + text + "\n[ImageFiles]\nA=:/" + text + "\n");
    HV::changeTheme(&theme, QString(), folder.path());
    QCOMPARE(theme.displayName(), expected);
    if (!text.startsWith('"'))
        QCOMPARE(theme.imageFile("A"), ":/" + expected);

    folder.write("marked.theme",
                 byteOrderMark + "\nThemeName="
                     + QString(expected).replace(QChar(0x4e2d), "\\x4e2d").toUtf8() + "\n");
    if (text.contains('"'))
        return;
    HV::changeTheme(&theme, "marked", folder.path());
    QCOMPARE(theme.displayName(), expected);
}

void tst_Encoding::key_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("key");

    // clang-format off
    QTest::newRow("latin-1")       << QByteArray("[Colors]\nK\xe9=#123456\n") << QString(QString("K") + QChar(0xe9));
    QTest::newRow("utf-8")         << QByteArray("[Colors]\nK\xc3\xa9=#123456\n") << QString(QString("K") + QChar(0xc3) + QChar(0xa9));
    QTest::newRow("escaped")       << QByteArray("[Colors]\nK%E9=#123456\n;\xe9\n") << QString(QString("K") + QChar(0xe9));
    QTest::newRow("escaped-more")  << QByteArray("[Colors]\nK%U4E2D=#123456\n;\xe9\n") << QString(QString("K") + QChar(0x4e2d));
    QTest::newRow("below-another") << QByteArray("[Colors]\nx\\\xe9=#123456\n") << QString(QString("x/") + QChar(0xe9));
    QTest::newRow("twice")         << QByteArray("[Colors]\nK\xe9=#ffffff\nK\xe9=#123456\n") << QString(QString("K") + QChar(0xe9));
    // clang-format on
}

void tst_Encoding::key()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, key);

    const TemporaryFolder folder;
    folder.write("default.theme", text);
    HV::WorkableTheme theme;
    HV::changeTheme(&theme, QString(), folder.path());
    QCOMPARE(theme.color(key), QColor(0x12, 0x34, 0x56));
}

// Everything else of such a file is what it is in a file of ASCII.
void tst_Encoding::plainFileIsRead()
{
    const QByteArray text(
        "ThemeName=Plain\n[General]\nOther=1\n[%General]\nMore=2\n[Palettes]\nInk=#010203\n"
        "[Colors]\nText=Ink\nList=a, b\n[Gradients]\nSky=1\nSky/size=1\n"
        "Sky/1/pos=0.5\nSky/1/color=Ink\n[Integers]\nGap=-3\nBig=4294967297\n[Flags]\nOn=1\n");
    const TemporaryFolder folder;
    const QString ascii = folder.write("ascii.theme", text);
    const QString latin = folder.write("latin.theme", text + "; \xe9\n");
    QSettings expected(ascii, HV::iniFormat(ascii));
    QSettings actual(latin, HV::iniFormat(latin));
    QCOMPARE(actual.allKeys(), expected.allKeys());
    QVERIFY(!expected.allKeys().isEmpty());
    const QStringList keys = expected.allKeys();
    for (const QString &key : keys)
        QCOMPARE(actual.value(key), expected.value(key));
    QCOMPARE(actual.childGroups(), expected.childGroups());
}

void tst_Encoding::fileIsReadAgain()
{
    const TemporaryFolder folder;
    HV::WorkableTheme theme;
    folder.write("default.theme", "ThemeName=\xe9t\xe9\n");
    HV::changeTheme(&theme, QString(), folder.path());
    QCOMPARE(theme.displayName(), QString(QString(QChar(0xe9)) + 't' + QChar(0xe9)));
    folder.write("default.theme", "ThemeName=summer\n");
    HV::changeTheme(&theme, QString(), folder.path());
    QCOMPARE(theme.displayName(), QString("summer"));
    folder.write("default.theme", "ThemeName=\xe9t\xe9, again\n");
    HV::changeTheme(&theme, QString(), folder.path());
    QCOMPARE(theme.displayName(), QString()); // a list
}

void tst_Encoding::pathStays()
{
    const TemporaryFolder folder;
    const QString path = folder.write("default.theme", "ThemeName=\xe9\n");
    HV::WorkableTheme theme;
    HV::changeTheme(&theme, QString(), folder.path());
    QCOMPARE(theme.filePath(), path);
}

QTEST_GUILESS_MAIN(tst_Encoding)
#include "tst_encoding.moc"
