// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <colormath/distance.h>

#include <QColor>
#include <QtTest>

using ColorMath::Lab;

Q_DECLARE_METATYPE(ColorMath::Lab)

class tst_Distance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void toLab_data();
    void toLab();
    void distance_data();
    void distance();
    void colorsOfThemes();
};

void tst_Distance::toLab_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<Lab>("expected");

    QTest::newRow("black") << QColor(Qt::black) << Lab{0, 0, 0};
    QTest::newRow("white") << QColor(Qt::white) << Lab{100, 0, 0};
    QTest::newRow("grey") << QColor(119, 119, 119) << Lab{50.03, 0, 0};
    QTest::newRow("red") << QColor(255, 0, 0) << Lab{53.24, 80.09, 67.20};
    QTest::newRow("green") << QColor(0, 255, 0) << Lab{87.73, -86.18, 83.18};
    QTest::newRow("blue") << QColor(0, 0, 255) << Lab{32.30, 79.19, -107.86};
    QTest::newRow("dark") << QColor(5, 5, 5) << Lab{1.37, 0, 0};
    QTest::newRow("alpha-does-not-count") << QColor(255, 0, 0, 9) << Lab{53.24, 80.09, 67.20};
}

void tst_Distance::toLab()
{
    QFETCH(QColor, color);
    QFETCH(Lab, expected);
    const double tolerance =
        0.03; // published figures differ by that, with the digits of the matrix
    const Lab lab = ColorMath::toLab(color);
    const bool isNear = qAbs(lab.lightness - expected.lightness) < tolerance
        && qAbs(lab.a - expected.a) < tolerance && qAbs(lab.b - expected.b) < tolerance;
    QVERIFY2(isNear, qPrintable(QString("%1 %2 %3").arg(lab.lightness).arg(lab.a).arg(lab.b)));
}

// The pairs published by Sharma, Wu and Dalal (2005) to test the formula; most of them lie where a
// plausible mistake in it changes the fourth decimal.
void tst_Distance::distance_data()
{
    QTest::addColumn<Lab>("first");
    QTest::addColumn<Lab>("second");
    QTest::addColumn<QString>("expected");

    // clang-format off
    QTest::newRow("01") << Lab{50.0000,   2.6772, -79.7751} << Lab{50.0000,   0.0000, -82.7485} << "2.0425";
    QTest::newRow("02") << Lab{50.0000,   3.1571, -77.2803} << Lab{50.0000,   0.0000, -82.7485} << "2.8615";
    QTest::newRow("03") << Lab{50.0000,   2.8361, -74.0200} << Lab{50.0000,   0.0000, -82.7485} << "3.4412";
    QTest::newRow("04") << Lab{50.0000,  -1.3802, -84.2814} << Lab{50.0000,   0.0000, -82.7485} << "1.0000";
    QTest::newRow("05") << Lab{50.0000,  -1.1848, -84.8006} << Lab{50.0000,   0.0000, -82.7485} << "1.0000";
    QTest::newRow("06") << Lab{50.0000,  -0.9009, -85.5211} << Lab{50.0000,   0.0000, -82.7485} << "1.0000";
    QTest::newRow("07") << Lab{50.0000,   0.0000,   0.0000} << Lab{50.0000,  -1.0000,   2.0000} << "2.3669";
    QTest::newRow("08") << Lab{50.0000,  -1.0000,   2.0000} << Lab{50.0000,   0.0000,   0.0000} << "2.3669";
    QTest::newRow("09") << Lab{50.0000,   2.4900,  -0.0010} << Lab{50.0000,  -2.4900,   0.0009} << "7.1792";
    QTest::newRow("10") << Lab{50.0000,   2.4900,  -0.0010} << Lab{50.0000,  -2.4900,   0.0010} << "7.1792";
    QTest::newRow("11") << Lab{50.0000,   2.4900,  -0.0010} << Lab{50.0000,  -2.4900,   0.0011} << "7.2195";
    QTest::newRow("12") << Lab{50.0000,   2.4900,  -0.0010} << Lab{50.0000,  -2.4900,   0.0012} << "7.2195";
    QTest::newRow("13") << Lab{50.0000,  -0.0010,   2.4900} << Lab{50.0000,   0.0009,  -2.4900} << "4.8045";
    QTest::newRow("14") << Lab{50.0000,  -0.0010,   2.4900} << Lab{50.0000,   0.0010,  -2.4900} << "4.8045";
    QTest::newRow("15") << Lab{50.0000,  -0.0010,   2.4900} << Lab{50.0000,   0.0011,  -2.4900} << "4.7461";
    QTest::newRow("16") << Lab{50.0000,   2.5000,   0.0000} << Lab{50.0000,   0.0000,  -2.5000} << "4.3065";
    QTest::newRow("17") << Lab{50.0000,   2.5000,   0.0000} << Lab{73.0000,  25.0000, -18.0000} << "27.1492";
    QTest::newRow("18") << Lab{50.0000,   2.5000,   0.0000} << Lab{61.0000,  -5.0000,  29.0000} << "22.8977";
    QTest::newRow("19") << Lab{50.0000,   2.5000,   0.0000} << Lab{56.0000, -27.0000,  -3.0000} << "31.9030";
    QTest::newRow("20") << Lab{50.0000,   2.5000,   0.0000} << Lab{58.0000,  24.0000,  15.0000} << "19.4535";
    QTest::newRow("21") << Lab{50.0000,   2.5000,   0.0000} << Lab{50.0000,   3.1736,   0.5854} << "1.0000";
    QTest::newRow("22") << Lab{50.0000,   2.5000,   0.0000} << Lab{50.0000,   3.2972,   0.0000} << "1.0000";
    QTest::newRow("23") << Lab{50.0000,   2.5000,   0.0000} << Lab{50.0000,   1.8634,   0.5757} << "1.0000";
    QTest::newRow("24") << Lab{50.0000,   2.5000,   0.0000} << Lab{50.0000,   3.2592,   0.3350} << "1.0000";
    QTest::newRow("25") << Lab{60.2574, -34.0099,  36.2677} << Lab{60.4626, -34.1751,  39.4387} << "1.2644";
    QTest::newRow("26") << Lab{63.0109, -31.0961,  -5.8663} << Lab{62.8187, -29.7946,  -4.0864} << "1.2630";
    QTest::newRow("27") << Lab{61.2901,   3.7196,  -5.3901} << Lab{61.4292,   2.2480,  -4.9620} << "1.8731";
    QTest::newRow("28") << Lab{35.0831, -44.1164,   3.7933} << Lab{35.0232, -40.0716,   1.5901} << "1.8645";
    QTest::newRow("29") << Lab{22.7233,  20.0904, -46.6940} << Lab{23.0331,  14.9730, -42.5619} << "2.0373";
    QTest::newRow("30") << Lab{36.4612,  47.8580,  18.3852} << Lab{36.2715,  50.5065,  21.2231} << "1.4146";
    QTest::newRow("31") << Lab{90.8027,  -2.0831,   1.4410} << Lab{91.1528,  -1.6435,   0.0447} << "1.4441";
    QTest::newRow("32") << Lab{90.9257,  -0.5406,  -0.9208} << Lab{88.6381,  -0.8985,  -0.7239} << "1.5381";
    QTest::newRow("33") << Lab{ 6.7747,  -0.2908,  -2.4247} << Lab{ 5.8714,  -0.0985,  -2.2286} << "0.6377";
    QTest::newRow("34") << Lab{ 2.0776,   0.0795,  -1.1350} << Lab{ 0.9033,  -0.0636,  -0.5514} << "0.9082";
    // clang-format on
}

void tst_Distance::distance()
{
    QFETCH(Lab, first);
    QFETCH(Lab, second);
    QFETCH(QString, expected);
    QCOMPARE(QString::number(ColorMath::distance(first, second), 'f', 4), expected);
    QCOMPARE(QString::number(ColorMath::distance(second, first), 'f', 4), expected);
}

void tst_Distance::colorsOfThemes()
{
    const Lab black = ColorMath::toLab(Qt::black);
    const Lab white = ColorMath::toLab(Qt::white);
    QCOMPARE(ColorMath::distance(white, white), 0.0);
    QCOMPARE(QString::number(ColorMath::distance(black, white), 'f', 2), QString("100.00"));
}

QTEST_GUILESS_MAIN(tst_Distance)
#include "tst_distance.moc"
