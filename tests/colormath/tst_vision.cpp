// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <colormath/distance.h>
#include <colormath/vision.h>

#include <QImage>
#include <QtTest>

using namespace ColorMath;

class tst_Vision : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void greysStay_data();
    void greysStay();
    void confusion_data();
    void confusion();
    void picture();
    void alphaIsKept();
};

void tst_Vision::greysStay_data()
{
    QTest::addColumn<int>("vision");
    QTest::newRow("normal") << int(Vision::Normal);
    QTest::newRow("protan") << int(Vision::Protan);
    QTest::newRow("deutan") << int(Vision::Deutan);
    QTest::newRow("tritan") << int(Vision::Tritan);
}

void tst_Vision::greysStay()
{
    QFETCH(int, vision);
    for (int level = 0; level < 256; ++level)
        QCOMPARE(seenBy(Vision(vision), QColor(level, level, level)), QColor(level, level, level));
}

void tst_Vision::confusion_data()
{
    QTest::addColumn<QColor>("first");
    QTest::addColumn<QColor>("second");
    QTest::addColumn<int>("worst");
    QTest::addColumn<double>("atMost");

    // Pairs of one lightness along the lines of confusion.
    QTest::newRow("red-green-protan")
        << QColor(0x9a, 0x58, 0x40) << QColor(0x5a, 0x6b, 0x40) << int(Vision::Protan) << 12.0;
    QTest::newRow("red-green-deutan")
        << QColor(0xb0, 0x78, 0x60) << QColor(0x90, 0x88, 0x5e) << int(Vision::Deutan) << 8.0;
    QTest::newRow("blue-green-tritan")
        << QColor(0x20, 0x80, 0xa0) << QColor(0x20, 0x85, 0x80) << int(Vision::Tritan) << 5.0;
}

void tst_Vision::confusion()
{
    QFETCH(QColor, first);
    QFETCH(QColor, second);
    QFETCH(int, worst);
    QFETCH(double, atMost);

    Vision found = Vision::Normal;
    const double least = leastDistance(first, second, &found);
    QVERIFY2(least <= atMost, qPrintable(QString::number(least)));
    QCOMPARE(int(found), worst);
    QVERIFY(least < distance(toLab(first), toLab(second)));
}

void tst_Vision::picture()
{
    QImage image(2, 1, QImage::Format_RGB32);
    image.setPixelColor(0, 0, Qt::red);
    image.setPixelColor(1, 0, Qt::green);
    const QImage seen = seenBy(Vision::Deutan, image);
    QCOMPARE(seen.pixelColor(0, 0), seenBy(Vision::Deutan, QColor(Qt::red)));
    QCOMPARE(seen.pixelColor(1, 0), seenBy(Vision::Deutan, QColor(Qt::green)));
    QCOMPARE(seenBy(Vision::Normal, image), image);
}

void tst_Vision::alphaIsKept()
{
    QCOMPARE(seenBy(Vision::Protan, QColor(255, 0, 0, 77)).alpha(), 77);
}

QTEST_GUILESS_MAIN(tst_Vision)
#include "tst_vision.moc"
