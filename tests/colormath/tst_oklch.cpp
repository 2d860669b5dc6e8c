// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <colormath/contrast.h>
#include <colormath/oklch.h>

#include <QRandomGenerator>
#include <QtTest>

using namespace ColorMath;

namespace
{

double hueDifference(double first, double second)
{
    const double difference = qAbs(first - second);
    return qMin(difference, 360.0 - difference);
}

} // namespace

class tst_Oklch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void conversion_data();
    void conversion();
    void lightness_data();
    void lightness();
    void keepsLightnessAndHue();
    void lifting_data();
    void lifting();
    void liftingReachesTheRatio();
};

void tst_Oklch::conversion_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<double>("lightness");
    QTest::addColumn<double>("chroma");
    QTest::addColumn<double>("hue");

    QTest::newRow("white") << QColor(Qt::white) << 1.0 << 0.0 << 0.0;
    QTest::newRow("black") << QColor(Qt::black) << 0.0 << 0.0 << 0.0;
    QTest::newRow("grey") << QColor(128, 128, 128) << 0.5999 << 0.0 << 0.0;
    QTest::newRow("red") << QColor(255, 0, 0) << 0.6280 << 0.2577 << 29.23;
    QTest::newRow("green") << QColor(0, 255, 0) << 0.8664 << 0.2948 << 142.50;
    QTest::newRow("blue") << QColor(0, 0, 255) << 0.4520 << 0.3132 << 264.05;
    QTest::newRow("alpha-does-not-count") << QColor(255, 0, 0, 10) << 0.6280 << 0.2577 << 29.23;
}

void tst_Oklch::conversion()
{
    QFETCH(QColor, color);
    QFETCH(double, lightness);
    QFETCH(double, chroma);
    QFETCH(double, hue);

    const Oklch result = toOklch(color);
    QVERIFY2(qAbs(result.lightness - lightness) < 0.0005,
             qPrintable(QString::number(result.lightness)));
    QVERIFY2(qAbs(result.chroma - chroma) < 0.0005, qPrintable(QString::number(result.chroma)));
    QVERIFY2(qAbs(result.hue - hue) < 0.05, qPrintable(QString::number(result.hue)));
}

void tst_Oklch::lightness_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<double>("expected");

    QTest::newRow("black") << QColor(0, 0, 0) << 0.0;
    QTest::newRow("white") << QColor(255, 255, 255) << 100.0;
    QTest::newRow("grey") << QColor(119, 119, 119) << 50.03;
    QTest::newRow("near-black") << QColor(5, 5, 5) << 1.371;
    QTest::newRow("blue") << QColor(0, 0, 255) << 32.30;
}

void tst_Oklch::lightness()
{
    QFETCH(QColor, color);
    QFETCH(double, expected);
    QVERIFY2(qAbs(cieLightness(color) - expected) < 0.01,
             qPrintable(QString::number(cieLightness(color))));
}

void tst_Oklch::keepsLightnessAndHue()
{
    for (int lightness = 19; lightness <= 91; lightness += 9) {
        for (int step = 0; step < 48; ++step) {
            const double hue = 7.5 * step;
            for (const double chroma : {0.0, 0.02, 0.1, 0.25}) {
                const QColor color = colorAtLightness(lightness, chroma, hue);
                const QByteArray what = QStringLiteral("L* %1 C %2 h %3: %4")
                                            .arg(lightness)
                                            .arg(chroma)
                                            .arg(hue)
                                            .arg(color.name())
                                            .toUtf8();
                QVERIFY2(qAbs(cieLightness(color) - lightness) < 0.4, what.constData());
                const Oklch result = toOklch(color);
                QVERIFY2(result.chroma <= chroma + 0.006, what.constData());
                // Eight bits tell the hue of a strong colour to a few degrees, less near black.
                if (result.chroma > 0.06)
                    QVERIFY2(hueDifference(result.hue, hue) < 4.0, what.constData());
            }
        }
    }
}

void tst_Oklch::lifting_data()
{
    QTest::addColumn<QColor>("text");
    QTest::addColumn<QColor>("ground");
    QTest::addColumn<double>("ratio");
    QTest::addColumn<QColor>("expected");

    const QColor dark("#171a1f");
    QTest::newRow("enough") << QColor("#f0a0a0") << dark << 4.5 << QColor("#f0a0a0");
    QTest::newRow("enough-and-translucent")
        << QColor(255, 255, 255, 200) << dark << 4.5 << QColor(255, 255, 255, 200);
    QTest::newRow("white-is-all-there-is")
        << QColor("#777777") << QColor("#777777") << 21.0 << QColor(Qt::black);
}

void tst_Oklch::lifting()
{
    QFETCH(QColor, text);
    QFETCH(QColor, ground);
    QFETCH(double, ratio);
    QFETCH(QColor, expected);
    QCOMPARE(liftedToContrast(text, ground, ratio), expected);
}

void tst_Oklch::liftingReachesTheRatio()
{
    QRandomGenerator random(20260101);
    for (int i = 0; i < 400; ++i) {
        const QColor text(QRgb(random.generate() | 0xff000000u));
        const QColor ground(QRgb(random.generate() | 0xff000000u));
        const QColor lifted = liftedToContrast(text, ground, 4.5);
        const QByteArray what =
            (text.name() + " on " + ground.name() + ": " + lifted.name()).toUtf8();
        QVERIFY2(contrastRatio(lifted, ground) >= 4.5, what.constData());
        const Oklch before = toOklch(text);
        const Oklch after = toOklch(lifted);
        if (after.chroma > 0.06 && after.lightness > 0.3)
            QVERIFY2(hueDifference(before.hue, after.hue) < 4.0, what.constData());
    }
}

QTEST_GUILESS_MAIN(tst_Oklch)
#include "tst_oklch.moc"
