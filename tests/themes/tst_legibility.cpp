// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <colormath/contrast.h>
#include <hvtheme/workabletheming.h>

#include <QCoreApplication>
#include <QtTest>

#include <cmath>

namespace
{

const QStringList looks{"dark", "light", "contrast"};

QString themesFolder()
{
    return QCoreApplication::applicationDirPath() % QLatin1String("/../share/hvtheme/themes");
}

double lightness(const QColor &color)
{
    const double luminance = ColorMath::relativeLuminance(color);
    return luminance > 0.008856 ? 116 * std::cbrt(luminance) - 16 : 903.3 * luminance;
}

} // namespace

/*! Whether the sample themes can be read: the steps of their palette, and text on its background. */
class tst_Legibility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void paletteSteps_data();
    void paletteSteps();
    void paletteContrast_data();
    void paletteContrast();
    void contrast_data();
    void contrast();
};

void tst_Legibility::paletteSteps_data()
{
    QTest::addColumn<QString>("run");
    QTest::addColumn<int>("count");
    QTest::addColumn<double>("start");
    QTest::addColumn<double>("step");

    for (const char *run : {"Brand", "Red", "Yellow", "Green", "Orange"})
        QTest::newRow(run) << run << 10 << 100.0 << -9.0;
    QTest::newRow("Bg") << "Bg" << 7 << 0.0 << 3.0;
}

void tst_Legibility::paletteSteps()
{
    QFETCH(QString, run);
    QFETCH(int, count);
    QFETCH(double, start);
    QFETCH(double, step);

    HV::WorkableTheme theme;
    HV::changeTheme(&theme, "default", themesFolder());
    for (int n = 1; n <= count; ++n) {
        const QString name = run % QLatin1Char('_') % QString::number(n);
        const QPair<QColor, QString> entry = theme.readNamedColor(name);
        QCOMPARE(entry.second, name);
        // Eight bits a channel are no finer than this near black.
        const double error = qAbs(lightness(entry.first) - (start + step * n));
        QVERIFY2(error < 0.35,
                 qUtf8Printable(name % QLatin1String(" is off by ") % QString::number(error)));
    }
}

void tst_Legibility::paletteContrast_data()
{
    QTest::addColumn<int>("stepsApart");
    QTest::addColumn<double>("minimum");

    QTest::newRow("5") << 5 << 4.0;
    QTest::newRow("6") << 6 << 5.5;
    QTest::newRow("7") << 7 << 7.5;
}

// What default.theme promises to those who pick steps for a look, within a run and across runs.
void tst_Legibility::paletteContrast()
{
    QFETCH(int, stepsApart);
    QFETCH(double, minimum);

    HV::WorkableTheme theme;
    HV::changeTheme(&theme, "default", themesFolder());
    const QStringList runs{"Brand_", "Red_", "Yellow_", "Green_", "Orange_"};
    for (int n = 1; n + stepsApart <= 10; ++n) {
        for (const QString &lightRun : runs) {
            for (const QString &darkRun : runs) {
                const QString light = lightRun % QString::number(n);
                const QString dark = darkRun % QString::number(n + stepsApart);
                const double ratio = ColorMath::contrastRatio(theme.readNamedColor(dark).first,
                                                              theme.readNamedColor(light).first);
                QVERIFY2(ratio >= minimum, qUtf8Printable(dark % QLatin1String(" on ") % light));
            }
        }
    }
}

namespace
{

struct Pair {
    const char *foreground;
    const char *layers; // the lowest first, joined by "+"; "*" stands for each BackgroundColor_n
    double ordinary; // in dark and light
    double high; // in contrast
};

// What the built-in templates put together. The text of a disabled button is DefaultForegroundColor
// and that of a disabled field Color_W100, so these are held to the measure of ordinary text.
// clang-format off
const Pair pairs[] = {
    {"DefaultForegroundColor",     "*",                                      4.5, 7.0},
    {"DefaultForegroundColor",     "*+Color_W15",                            4.5, 7.0},
    {"DefaultForegroundColor",     "*+Color_B20",                            4.5, 7.0},
    {"DefaultForegroundColor",     "*+Color_B32",                            4.5, 7.0},
    {"DefaultForegroundColor",     "*+Color_B32+Color_Brand_7",              4.5, 7.0},
    {"DefaultForegroundColor",     "*+Color_B32+Color_Brand_8",              4.5, 7.0},
    {"DefaultForegroundColor",     "*+Color_Brand_8",                        4.5, 7.0},
    {"DefaultForegroundColor",     "*+Color_Yellow_10",                      4.5, 7.0},
    {"DefaultForegroundColor",     "*+GeneralButtonBackgroundNormal",        4.5, 7.0},
    {"DefaultForegroundColor",     "*+GeneralButtonBackgroundHover",         4.5, 7.0},
    {"DefaultForegroundColor",     "*+GeneralButtonBackgroundPressed",       4.5, 7.0},
    {"DefaultForegroundColor",     "*+GeneralButtonBackgroundDisabled",      4.5, 7.0},
    {"DefaultForegroundColor",     "*+AssistButtonBackgroundNormal",         4.5, 7.0},
    {"DefaultForegroundColor",     "*+AssistButtonBackgroundHover",          4.5, 7.0},
    {"DefaultForegroundColor",     "*+AssistButtonBackgroundPressed",        4.5, 7.0},
    {"DefaultForegroundColor",     "*+AssistButtonBackgroundDisabled",       4.5, 7.0},
    {"DefaultForegroundColor",     "MenuBackgroundColor",                    4.5, 7.0},
    {"DefaultForegroundColor",     "MenuHighlightBackgroundColor",           4.5, 7.0},
    {"DefaultForegroundColor",     "ToolTipBackgroundColor",                 4.5, 7.0},
    {"DefaultForegroundColor",     "EditBackgroundColor",                    4.5, 7.0},
    {"DefaultForegroundColor",     "EditHighlightBorderColor",               4.5, 7.0},
    {"Color_W100",                 "*",                                      4.5, 7.0},
    {"Color_W100",                 "EditBackgroundColor",                    4.5, 7.0},
    {"Color_W100",                 "EditBackgroundColor+Color_W15",          4.5, 7.0},
    {"Color_W100",                 "EditBackgroundColor+Color_B20",          4.5, 7.0},
    {"Color_W100",                 "EditHighlightBorderColor",               4.5, 7.0},
    {"Color_W100",                 "EditDisabledBackgroundColor",            4.5, 7.0},
    {"HighlightedForegroundColor", "*",                                      4.5, 7.0},
    {"ErrorHintForegroundColor",   "*",                                      4.5, 7.0},
    {"Color_W40",                  "*",                                      4.5, 7.0},
    {"Color_Yellow_6",             "*",                                      4.5, 7.0},
    {"Color_Green_6",              "*",                                      4.5, 7.0},
    {"Color_Orange_6",             "*",                                      4.5, 7.0},
    {"DisabledForegroundColor",    "*",                                      3.0, 3.0},
    {"DisabledForegroundColor",    "*+Color_Yellow_10",                      3.0, 3.0},
    {"DisabledForegroundColor",    "EditBackgroundColor",                    3.0, 3.0},
    {"DisabledForegroundColor",    "EditDisabledBackgroundColor",            3.0, 3.0},
    {"DisabledForegroundColor",    "MenuBackgroundColor",                    3.0, 3.0},
    {"DisabledForegroundColor",    "MenuHighlightBackgroundColor",           3.0, 3.0},
    // Frames and marks. In contrast 7:1 for text leaves less than 3:1 to an edge in the colour of its
    // ground, so text comes first.
    {"EditBorderColor",            "EditBackgroundColor",                    3.0, 3.0},
    {"EditHighlightBorderColor",   "EditBackgroundColor",                    3.0, 1.9},
    {"Color_Brand_8",              "BackgroundColor_2",                      3.0, 2.9},
    {"Color_Red_6",                "EditBackgroundColor",                    3.0, 3.0},
    {"Color_Green_6",              "EditBackgroundColor",                    3.0, 3.0},
    {"Color_Brand_6",              "BackgroundColor_4",                      3.0, 3.0},
    {"Color_Orange_6",             "BackgroundColor_4",                      3.0, 3.0},
    {"ScrollBarHandleBackgroundColor", "*+ScrollBarGrooveBackgroundColor",   3.0, 3.0},
    {"EditBackgroundColor",        "HighlightedForegroundColor",             3.0, 3.0},
};
// clang-format on

QColor composite(const HV::Theme &theme, const QStringList &layers)
{
    QColor result = theme.color(layers.first());
    for (const QString &layer : layers.mid(1))
        result = ColorMath::over(theme.color(layer), result);
    return result;
}

} // namespace

void tst_Legibility::contrast_data()
{
    QTest::addColumn<QString>("look");
    QTest::addColumn<QString>("foreground");
    QTest::addColumn<QStringList>("layers");
    QTest::addColumn<double>("minimum");

    for (const QString &look : looks) {
        for (const Pair &pair : pairs) {
            const bool anySurface = pair.layers[0] == '*';
            for (int n = 0; n < (anySurface ? 8 : 1); ++n) {
                QString layers = QString::fromLatin1(pair.layers);
                layers.replace(QLatin1Char('*'),
                               QLatin1String("BackgroundColor_") % QString::number(n));
                QTest::addRow("%s-%s-on-%s", qUtf8Printable(look), pair.foreground,
                              qUtf8Printable(layers))
                    << look << QString::fromLatin1(pair.foreground)
                    << layers.split(QLatin1Char('+'))
                    << (look == "contrast" ? pair.high : pair.ordinary);
            }
        }
    }
}

void tst_Legibility::contrast()
{
    QFETCH(QString, look);
    QFETCH(QString, foreground);
    QFETCH(QStringList, layers);
    QFETCH(double, minimum);

    HV::WorkableTheme theme;
    HV::changeTheme(&theme, look, themesFolder());
    const double ratio =
        ColorMath::contrastRatio(theme.color(foreground), composite(theme, layers));
    QVERIFY2(ratio >= minimum, qUtf8Printable(QString::number(ratio) % QLatin1String(" : 1")));
}

QTEST_GUILESS_MAIN(tst_Legibility)
#include "tst_legibility.moc"
