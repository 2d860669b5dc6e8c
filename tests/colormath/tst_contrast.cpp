// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <colormath/contrast.h>

#include <QtTest>

class tst_Contrast : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void relativeLuminance_data();
    void relativeLuminance();
    void contrastRatio_data();
    void contrastRatio();
    void contrastText_data();
    void contrastText();
    void over_data();
    void over();
};

void tst_Contrast::relativeLuminance_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<double>("expected");

    QTest::newRow("black") << QColor(Qt::black) << 0.0;
    QTest::newRow("white") << QColor(Qt::white) << 1.0;
    QTest::newRow("red") << QColor(255, 0, 0) << 0.2126;
    QTest::newRow("green") << QColor(0, 255, 0) << 0.7152;
    QTest::newRow("blue") << QColor(0, 0, 255) << 0.0722;
    QTest::newRow("middle-grey") << QColor(128, 128, 128) << 0.215861;
    // 10 / 255 lies below the threshold, where the curve is a straight line.
    QTest::newRow("linear-part") << QColor(10, 10, 10) << 10.0 / 255.0 / 12.92;
    QTest::newRow("alpha-does-not-count") << QColor(255, 255, 255, 10) << 1.0;
    QTest::newRow("hsv") << QColor::fromHsv(120, 255, 255) << 0.7152;
    QTest::newRow("invalid-is-black") << QColor() << 0.0;
}

void tst_Contrast::relativeLuminance()
{
    QFETCH(QColor, color);
    QFETCH(double, expected);
    QVERIFY2(qAbs(ColorMath::relativeLuminance(color) - expected) < 1e-5,
             qPrintable(QString::number(ColorMath::relativeLuminance(color), 'g', 8)));
}

void tst_Contrast::contrastRatio_data()
{
    QTest::addColumn<QColor>("foreground");
    QTest::addColumn<QColor>("background");
    QTest::addColumn<QString>("expected"); // two decimals, as ratios are quoted

    const QColor white(Qt::white);
    const QColor black(Qt::black);
    QTest::newRow("most") << black << white << "21.00";
    QTest::newRow("order-does-not-matter") << white << black << "21.00";
    QTest::newRow("least") << QColor("#1E6FFF") << QColor("#1E6FFF") << "1.00";
    QTest::newRow("passes-AA") << QColor("#767676") << white << "4.54";
    QTest::newRow("fails-AA") << QColor("#777777") << white << "4.48";
    QTest::newRow("red-on-white") << QColor(255, 0, 0) << white << "4.00";
    QTest::newRow("translucent-foreground") << QColor(0, 0, 0, 128) << white << "4.00";
    QTest::newRow("transparent-foreground") << QColor(0, 0, 0, 0) << white << "1.00";
    QTest::newRow("background-counts-as-opaque") << black << QColor(255, 255, 255, 3) << "21.00";
}

void tst_Contrast::contrastRatio()
{
    QFETCH(QColor, foreground);
    QFETCH(QColor, background);
    QFETCH(QString, expected);
    QCOMPARE(QString::number(ColorMath::contrastRatio(foreground, background), 'f', 2), expected);
}

void tst_Contrast::contrastText_data()
{
    QTest::addColumn<double>("ratio");
    QTest::addColumn<QString>("expected");

    QTest::newRow("none") << 1.0 << "1.00:1";
    QTest::newRow("most") << 21.0 << "21.00:1";
    QTest::newRow("enough") << 4.5 << "4.50:1";
    QTest::newRow("not-quite") << 4.4999 << "4.49:1";
}

void tst_Contrast::contrastText()
{
    QFETCH(double, ratio);
    QFETCH(QString, expected);
    QCOMPARE(ColorMath::contrastText(ratio), expected);
}

void tst_Contrast::over_data()
{
    QTest::addColumn<QColor>("front");
    QTest::addColumn<QColor>("back");
    QTest::addColumn<QString>("expected");

    const QColor clear(10, 20, 30, 0);
    const QColor half(255, 0, 0, 128);
    QTest::newRow("opaque-front-hides") << QColor("#123456") << QColor("#ABCDEF") << "#ff123456";
    QTest::newRow("clear-front-shows") << clear << QColor("#ABCDEF") << "#ffabcdef";
    QTest::newRow("half-on-opaque") << half << QColor(Qt::white) << "#ffff7f7f";
    QTest::newRow("half-on-half") << half << QColor(0, 0, 255, 128) << "#c0aa0055";
    QTest::newRow("half-on-clear") << half << clear << "#80ff0000";
    QTest::newRow("clear-on-clear") << clear << clear << "#00000000";
}

void tst_Contrast::over()
{
    QFETCH(QColor, front);
    QFETCH(QColor, back);
    QFETCH(QString, expected);
    QCOMPARE(ColorMath::over(front, back).name(QColor::HexArgb), expected);
}

QTEST_GUILESS_MAIN(tst_Contrast)
#include "tst_contrast.moc"
