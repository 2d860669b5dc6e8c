// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include <format/place.h>

#include <QtTest>

class tst_Place : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void text_data();
    void text();
    void textPosition_data();
    void textPosition();
};

void tst_Place::text_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shortText");

    QTest::newRow("plain") << "a/b.theme"
                           << "a/b.theme:3:14"
                           << "b.theme:3";
    QTest::newRow("percent-number") << "a%2b/c%1.theme"
                                    << "a%2b/c%1.theme:3:14"
                                    << "c%1.theme:3";
    QTest::newRow("percent-locale") << "%L1/%L2"
                                    << "%L1/%L2:3:14"
                                    << "%L2:3";
    QTest::newRow("colon") << "a:7:b.qss"
                           << "a:7:b.qss:3:14"
                           << "a:7:b.qss:3";
    QTest::newRow("resource") << ":/stylesheet/a.qss"
                              << ":/stylesheet/a.qss:3:14"
                              << "a.qss:3";
    QTest::newRow("no-file") << ""
                             << ":3:14"
                             << ":3";
}

void tst_Place::text()
{
    QFETCH(QString, file);
    const Place place{file, {3, 14}};
    QTEST(place.text(), "text");
    QTEST(place.shortText(), "shortText");
    QCOMPARE(place.lineText(), file + ":3");
}

void tst_Place::textPosition_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("offset");
    QTest::addColumn<QString>("position");

    QTest::newRow("first") << "ab\ncd" << 0 << "f:1:1";
    QTest::newRow("line-end") << "ab\ncd" << 2 << "f:1:3";
    QTest::newRow("second-line") << "ab\ncd" << 3 << "f:2:1";
    QTest::newRow("end") << "ab\ncd" << 5 << "f:2:3";
    QTest::newRow("behind") << "ab\ncd" << 99 << "f:2:3";
    QTest::newRow("before") << "ab\ncd" << -20 << "f:1:1";
    QTest::newRow("empty") << "" << 0 << "f:1:1";
}

void tst_Place::textPosition()
{
    QFETCH(QString, text);
    QFETCH(int, offset);
    QTEST((Place{"f", ::textPosition(text, offset)}.text()), "position");
}

QTEST_APPLESS_MAIN(tst_Place)
#include "tst_place.moc"
