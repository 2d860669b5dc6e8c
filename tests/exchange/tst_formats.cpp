// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <exchange/formats.h>

#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

using namespace Exchange;

class tst_Formats : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void css();
    void cssGradients_data();
    void cssGradients();
    void gimp();
    void scheme();
};

void tst_Formats::css()
{
    ThemeContent theme;
    theme.palette = {{"Ink", QColor("#102030")}, {"Veil", QColor(255, 255, 255, 8)}};
    theme.colors = {{"Text", {QColor("#102030"), "Ink"}}, {"a b", {QColor(1, 2, 3, 4), QString()}}};
    theme.integers = {{"FontSize_L", 14}, {"Width", 3}};
    theme.gradients = {{"Heading", {{0, QColor("#000000")}, {0.5, QColor("#ffffff")}}}};
    theme.flags = {{"Dark", true}};
    QCOMPARE(
        cssProperties(theme),
        QByteArray(":root {\n"
                   "  --palette-Ink: #102030;\n"
                   "  --palette-Veil: #ffffff08;\n"
                   "  --color-Text: var(--palette-Ink);\n"
                   "  --color-a\\ b: #01020304;\n"
                   "  --integer-FontSize_L: 14px;\n"
                   "  --integer-Width: 3;\n"
                   "  --gradient-Heading: linear-gradient(to right, #000000 0%, #ffffff 50%);\n"
                   "  --flag-Dark: 1;\n"
                   "}\n"));
}

void tst_Formats::cssGradients_data()
{
    QTest::addColumn<QGradientStops>("stops");
    QTest::addColumn<QByteArray>("expected");

    QTest::newRow("two") << QGradientStops{{0, Qt::black}, {1, Qt::white}}
                         << QByteArray("linear-gradient(to right, #000000 0%, #ffffff 100%)");
    QTest::newRow("one") << QGradientStops{{0.25, Qt::black}}
                         << QByteArray("linear-gradient(to right, #000000 25%, #000000 25%)");
    QTest::newRow("out-of-order") << QGradientStops{{1, Qt::black}, {0, Qt::white}}
                                  << QByteArray(
                                         "linear-gradient(to right, #ffffff 0%, #000000 100%)");
    QTest::newRow("outside") << QGradientStops{{-1, Qt::red},
                                               {0, Qt::black},
                                               {1, Qt::white},
                                               {1.5, Qt::red}}
                             << QByteArray("linear-gradient(to right, #000000 0%, #ffffff 100%)");
    QTest::newRow("all-outside") << QGradientStops{{2, Qt::red}} << QByteArray("none");
}

// Valid CSS, and what Qt paints.
void tst_Formats::cssGradients()
{
    QFETCH(QGradientStops, stops);
    QFETCH(QByteArray, expected);
    ThemeContent theme;
    theme.gradients = {{"G", stops}};
    QCOMPARE(cssProperties(theme), QByteArray(":root {\n  --gradient-G: " + expected + ";\n}\n"));
}

void tst_Formats::gimp()
{
    ThemeContent theme;
    theme.displayName = "Two\nlines";
    theme.palette = {{"Run_10", QColor(1, 2, 3)}, {"Run_2", QColor(255, 254, 253)}};
    QCOMPARE(gimpPalette(theme),
             QByteArray("GIMP Palette\nName: Two lines\nColumns: 10\n#\n"
                        "255 254 253 \tRun_2\n"
                        "  1   2   3 \tRun_10\n"));
}

// Read back by Qt: a list for each group, in the order of the roles.
void tst_Formats::scheme()
{
    QPalette palette(Qt::darkGray);
    palette.setColor(QPalette::Disabled, QPalette::Text, QColor(1, 2, 3, 4));
    const QTemporaryDir folder;
    QFile file(folder.filePath("scheme.conf"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(paletteFile(palette));
    file.close();
    const QSettings settings(file.fileName(), QSettings::IniFormat);
    const QVector<QPair<QString, QPalette::ColorGroup>> groups{{"active", QPalette::Active},
                                                               {"disabled", QPalette::Disabled},
                                                               {"inactive", QPalette::Inactive}};
    for (const auto &group : groups) {
        const QStringList colors =
            settings.value("ColorScheme/" + group.first + "_colors").toStringList();
        QCOMPARE(colors.size(), int(QPalette::PlaceholderText) + 1);
        for (int role = 0; role < colors.size(); ++role)
            QCOMPARE(QColor(colors.at(role)).rgba(),
                     palette.color(group.second, QPalette::ColorRole(role)).rgba());
    }
}

QTEST_MAIN(tst_Formats)
#include "tst_formats.moc"
