// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "messages.h"
#include "temporaryfolder.h"

#include <colormath/contrast.h>
#include <hvtheme/workabletheming.h>
#include <hvthemeapp/applicationtheme.h>
#include <hvthemeapp/themedicon.h>
#include <maker/lookcolors.h>

#include <QApplication>
#include <QPointer>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QtTest>

#include <functional>

using HV::ApplicationTheme;

// An accent takes the place of the brand, and text stays as legible as it was.
class tst_Accent : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void textStaysLegible_data();
    void textStaysLegible();
    void isSeen();
    void mainButton_data();
    void mainButton();
    void defaultWithAnotherGround();
    void optionalKeys_data();
    void optionalKeys();
    void givesTheBrandBack();
    void beforeTheFirstLook();
    void survivesASwitch();
    void signalsOnce();
    void opacityDoesNotCount();
    void themeWithoutBrand();
    void tonesOfTheThemesOwn();
    void openQuotationMark();
    void refusedAfterAPaint();
    void filePathIsTheThemes();
    void saveAndRestore();
    void deletedByASlot();

private:
    CapturedMessages m_log;
};

void tst_Accent::init()
{
    qApp->setStyleSheet(QString());
    m_log.start();
}

void tst_Accent::cleanup()
{
    REPORT_STRAY_MESSAGES(m_log);
}

void tst_Accent::textStaysLegible_data()
{
    QTest::addColumn<QString>("look");
    QTest::addColumn<QColor>("accent");

    for (const char *look : {"dark", "light", "contrast"}) {
        for (const char *accent : {"#c0a060", "#ff0000", "#ffff00", "#000000", "#ffffff", "#00a050",
                                   "#0000ff", "#808080"})
            QTest::addRow("%s-%s", look, accent) << look << QColor(accent);
    }
}

void tst_Accent::textStaysLegible()
{
    QFETCH(QString, look);
    QFETCH(QColor, accent);
    ApplicationTheme theme;
    QVERIFY(theme.setAccent(accent));
    QVERIFY(theme.setName(look));
    const Maker::Look kind = look == "contrast" ? Maker::Look::Contrast
        : look == "light"                       ? Maker::Look::Light
                                                : Maker::Look::Dark;
    for (const Maker::ColorPair &pair : Maker::colorPairs()) {
        QColor ground = theme.theme()->color(pair.layers.first());
        for (int i = 1; i < pair.layers.size(); ++i)
            ground = ColorMath::over(theme.theme()->color(pair.layers.at(i)), ground);
        const double ratio =
            ColorMath::contrastRatio(theme.theme()->color(pair.foreground), ground);
        // Text at 7:1 leaves an edge in the colour of its ground less than 3:1.
        const bool isImpossible =
            kind == Maker::Look::Contrast && pair.need == Maker::Need::EdgeOfGround;
        QVERIFY2(ratio >= (isImpossible ? 1.9 : Maker::requiredRatio(pair.need, kind, 4.5)),
                 qPrintable(pair.foreground + " on " + pair.layers.join('+')));
    }
    const QPalette palette = theme.palette();
    QVERIFY(ColorMath::contrastRatio(palette.color(QPalette::HighlightedText),
                                     palette.color(QPalette::Highlight))
            >= (look == "contrast" ? 7.0 : 4.5));
}

// A button of the main action is painted in the accent itself.
void tst_Accent::isSeen()
{
    ApplicationTheme theme;
    QVERIFY(theme.setName("dark"));
    QPushButton button;
    button.setProperty("style", "general");
    button.resize(80, 30);
    const QColor accent("#7a2f9c");
    QVERIFY(button.grab().toImage().pixelColor(40, 15) != accent);
    QVERIFY(theme.setAccent(accent));
    QCOMPARE(button.grab().toImage().pixelColor(40, 15), accent);
}

void tst_Accent::mainButton_data()
{
    QTest::addColumn<QString>("look");
    QTest::addColumn<QColor>("accent");
    QTest::addColumn<QColor>("text");

    QTest::newRow("yellow-in-dark") << "dark" << QColor("#ffd000") << QColor("#000000");
    QTest::newRow("white-in-dark") << "dark" << QColor("#ffffff") << QColor("#000000");
    QTest::newRow("blue-in-dark") << "dark" << QColor("#1040c0") << QColor("#f7f9fc");
    QTest::newRow("blue-in-light") << "light" << QColor("#1040c0") << QColor("#ffffff");
    QTest::newRow("black-in-light") << "light" << QColor("#000000") << QColor("#ffffff");
    QTest::newRow("yellow-in-contrast") << "contrast" << QColor("#ffff00") << QColor("#000000");
}

// The default button is the accent unchanged, whatever it is, and text and icon have the colour that
// stands on it.
void tst_Accent::mainButton()
{
    QFETCH(QString, look);
    QFETCH(QColor, accent);
    QFETCH(QColor, text);
    ApplicationTheme theme;
    QVERIFY(theme.setAccent(accent));
    QVERIFY(theme.setName(look));
    for (const bool hasIcon : {false, true}) {
        QPushButton button(hasIcon ? QString() : QStringLiteral("HHH"));
        if (hasIcon)
            button.setIcon(HV::themedIcon("stop"));
        button.setIconSize({24, 24});
        button.setDefault(true);
        button.resize(100, 40);
        const QImage image = button.grab().toImage();
        QCOMPARE(image.pixelColor(10, 20), accent);
        bool isSeen = false;
        for (int i = 0; i < 100 * 30; ++i)
            isSeen = isSeen || image.pixelColor(i % 100, 5 + i / 100) == text;
        QVERIFY2(isSeen, hasIcon ? "icon" : "text");
    }
}

// A button with a property of the templates keeps their text, be it the default one or not.
void tst_Accent::defaultWithAnotherGround()
{
    ApplicationTheme theme;
    QVERIFY(theme.setName("light"));
    const QColor text = theme.theme()->color("DefaultForegroundColor");
    for (const char *style : {"transparent", "assist", "menuButton", "editButton", "helper"}) {
        QPushButton button("HHH");
        button.setProperty("style", style);
        button.setDefault(true);
        button.resize(100, 40);
        const QImage image = button.grab().toImage();
        bool isSeen = false;
        for (int i = 0; i < 100 * 30; ++i)
            isSeen = isSeen || image.pixelColor(i % 100, 5 + i / 100) == text;
        QVERIFY2(isSeen, style);
    }
}

void tst_Accent::optionalKeys_data()
{
    QTest::addColumn<QByteArray>("keys");
    QTest::addColumn<QStringList>("colors"); // ground, under the pointer, pressed, text

    const QByteArray buttons = "GeneralButtonBackgroundNormal=#102030\n"
                               "GeneralButtonBackgroundHover=#203040\n"
                               "GeneralButtonBackgroundPressed=#304050\nColor_W100=#fefefe\n";
    QTest::newRow("none") << buttons << QStringList{"#102030", "#203040", "#304050", "#fefefe"};
    QTest::newRow("all") << buttons
            + "AccentBackgroundColor=#ffee00\nAccentHoverColor=#eedd00\n"
              "AccentPressedColor=#ddcc00\nAccentForegroundColor=#010101\n"
                         << QStringList{"#ffee00", "#eedd00", "#ddcc00", "#010101"};
    QTest::newRow("ground") << buttons + "AccentBackgroundColor=#000040\n"
                            << QStringList{"#000040", "#000040", "#000040", "#fefefe"};
    QTest::newRow("text") << buttons + "AccentForegroundColor=#ffff80\n"
                          << QStringList{"#102030", "#203040", "#304050", "#ffff80"};
}

// A theme may have some of the four keys or none, and nobody is told.
void tst_Accent::optionalKeys()
{
    QFETCH(QByteArray, keys);
    QFETCH(QStringList, colors);
    TemporaryFolder folder;
    QByteArray text = "[Colors]\n" + keys;
    HV::WorkableTheme sample;
    HV::changeTheme(&sample, "dark", ":/hvthemeapp/themes");
    const QVariantMap &values = sample.values();
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        const bool isGiven = keys.contains(QByteArray(it.key().toLatin1() + '='))
            || it.key().startsWith("Accent") || it->userType() != QMetaType::QColor;
        if (!isGiven)
            text += it.key().toLatin1() + '=' + it->value<QColor>().name(QColor::HexArgb).toLatin1()
                + '\n';
    }
    folder.write("default.theme", text);
    ApplicationTheme theme;
    QVERIFY(theme.setFolder(folder.path()));
    QVERIFY(theme.setName("default"));
    QStringList found;
    for (const char *key : {"AccentBackgroundColor", "AccentHoverColor", "AccentPressedColor",
                            "AccentForegroundColor"})
        found.append(theme.theme()->color(key).name());
    QCOMPARE(found, colors);
}

void tst_Accent::givesTheBrandBack()
{
    ApplicationTheme theme;
    QVERIFY(theme.setName("light"));
    const QVariantMap values = HV::WorkableTheme().values();
    const QPalette palette = theme.palette();
    const QString styleSheet = qApp->styleSheet();
    QVERIFY(theme.setAccent(QColor("#8a3324")));
    QVERIFY(theme.palette() != palette);
    theme.resetAccent();
    QVERIFY(!theme.accent().isValid());
    QCOMPARE(theme.palette(), palette);
    QCOMPARE(qApp->styleSheet(), styleSheet);
}

void tst_Accent::beforeTheFirstLook()
{
    ApplicationTheme theme;
    const QSignalSpy changes(&theme, &ApplicationTheme::changed);
    QVERIFY(theme.setAccent(QColor("#8a3324")));
    QCOMPARE(changes.count(), 0);
    QVERIFY(theme.setName("dark"));
    QCOMPARE(theme.theme()->readNamedColor("Brand").first, QColor("#8a3324"));
}

void tst_Accent::survivesASwitch()
{
    ApplicationTheme theme;
    QVERIFY(theme.setAccent(QColor("#8a3324")));
    for (const char *look : {"dark", "light", "contrast"}) {
        QVERIFY(theme.setName(look));
        const QColor tone = theme.theme()->readNamedColor("Brand_6").first;
        QVERIFY2(tone.red() > tone.blue(), look);
    }
}

void tst_Accent::signalsOnce()
{
    ApplicationTheme theme;
    QVERIFY(theme.setName("dark"));
    const QSignalSpy changes(&theme, &ApplicationTheme::changed);
    const QSignalSpy accents(&theme, &ApplicationTheme::accentChanged);
    QVERIFY(theme.setProperty("accent", QColor("#8a3324")));
    QVERIFY(theme.setAccent(QColor("#8a3324")));
    QCOMPARE(changes.count(), 1);
    QCOMPARE(accents.count(), 1);
}

void tst_Accent::opacityDoesNotCount()
{
    ApplicationTheme theme;
    theme.setAccent(QColor(138, 51, 36, 10));
    QCOMPARE(theme.accent(), QColor("#8a3324"));
}

// A theme whose palette has no brand keeps every colour.
void tst_Accent::themeWithoutBrand()
{
    TemporaryFolder folder;
    QByteArray text = "[Colors]\n";
    HV::WorkableTheme sample;
    HV::changeTheme(&sample, "dark", ":/hvthemeapp/themes");
    const QVariantMap &values = sample.values();
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        if (it->userType() == QMetaType::QColor)
            text += it.key().toLatin1() + '=' + it->value<QColor>().name(QColor::HexArgb).toLatin1()
                + '\n';
    }
    folder.write("default.theme", "ThemeName=Own\n" + text);
    ApplicationTheme theme;
    QVERIFY(theme.setFolder(folder.path()));
    QVERIFY(theme.setName("default"));
    const QColor highlighted = theme.theme()->color("HighlightedForegroundColor");
    QVERIFY(theme.setAccent(QColor("#8a3324")));
    QCOMPARE(theme.theme()->color("HighlightedForegroundColor"), highlighted);
}

// The default file is read before the palette of the theme over it.
void tst_Accent::tonesOfTheThemesOwn()
{
    TemporaryFolder folder;
    folder.write("default.theme", "[Colors]\nGeneralButtonBackgroundNormal=#2D63F0\n");
    folder.write("own.theme",
                 "[Palettes]\nBrand_6=#2D63F0\n[Colors]\nColor_Brand_6=Brand_6\n"
                 "BackgroundColor_3=#202020\nDefaultForegroundColor=#ffffff\n");
    ApplicationTheme theme;
    QVERIFY(theme.setFolder(folder.path()));
    QVERIFY(theme.setName("own"));
    QVERIFY(theme.setAccent(QColor("#a02020")));
    const QColor ground = theme.theme()->color("GeneralButtonBackgroundNormal");
    QVERIFY2(ground.red() > ground.blue(), qPrintable(ground.name()));
    m_log.take(); // most colours are derived
}

// An accent that cannot be written into the theme is refused, and the look stays.
void tst_Accent::openQuotationMark()
{
    TemporaryFolder folder;
    folder.write("default.theme", "[Palettes]\nBrand_6=#2D63F0\nVeil=\"#80000000\n");
    folder.write("own.theme",
                 "[Colors]\nGeneralButtonBackgroundNormal=Brand_6\nColor_W100=#ffffff\n");
    ApplicationTheme theme;
    QVERIFY(theme.setFolder(folder.path()));
    QVERIFY(theme.setName("own"));
    const QColor ground = theme.theme()->color("GeneralButtonBackgroundNormal");
    QVERIFY(!theme.setAccent(QColor("#ffd000")));
    QVERIFY2(theme.problem().contains("look for a quotation mark that is never closed"),
             qPrintable(theme.problem()));
    QVERIFY(!theme.accent().isValid());
    QCOMPARE(theme.theme()->color("GeneralButtonBackgroundNormal"), ground);
    m_log.take(); // most colours are derived
}

// Whether it can be had is not known before the end of the paint.
void tst_Accent::refusedAfterAPaint()
{
    class Painting : public QWidget
    {
    public:
        std::function<void()> call;

    protected:
        void paintEvent(QPaintEvent *) override { call(); }
    };
    TemporaryFolder folder;
    folder.write("default.theme", "[Palettes]\nBrand_6=#2D63F0\nVeil=\"#80000000\n");
    folder.write("own.theme",
                 "[Colors]\nGeneralButtonBackgroundNormal=Brand_6\nColor_W100=#ffffff\n");
    ApplicationTheme theme;
    QVERIFY(theme.setFolder(folder.path()));
    QVERIFY(theme.setName("own"));
    Painting widget;
    widget.call = [&] { theme.setAccent(QColor("#ffd000")); };
    widget.grab();
    QCoreApplication::processEvents();
    QVERIFY2(theme.problem().contains("look for a quotation mark that is never closed"),
             qPrintable(theme.problem()));
    QVERIFY(!theme.accent().isValid());
    QVERIFY2(theme.setName("own"), qPrintable(theme.problem())); // not with that accent again
    m_log.take(); // most colours are derived
}

void tst_Accent::filePathIsTheThemes()
{
    ApplicationTheme theme;
    QVERIFY(theme.setAccent(QColor("#8a3324")));
    QVERIFY(theme.setName("dark"));
    QCOMPARE(theme.theme()->filePath(), QString(":/hvthemeapp/themes/default.theme"));
}

void tst_Accent::saveAndRestore()
{
    TemporaryFolder folder;
    QSettings settings(folder.path() + "/settings.ini", QSettings::IniFormat);
    {
        ApplicationTheme theme;
        QVERIFY(theme.setName("light"));
        QVERIFY(theme.setAccent(QColor("#8a3324")));
        theme.save(settings);
    }
    ApplicationTheme theme;
    const QSignalSpy changes(&theme, &ApplicationTheme::changed);
    QVERIFY(theme.restore(settings));
    QCOMPARE(theme.accent(), QColor("#8a3324"));
    QCOMPARE(theme.name(), QString("light"));
    QCOMPARE(changes.count(), 1); // look and accent come into force together
}

void tst_Accent::deletedByASlot()
{
    auto *theme = new ApplicationTheme;
    QVERIFY(theme->setName("dark"));
    const QPointer<ApplicationTheme> guard(theme);
    connect(theme, &ApplicationTheme::changed, theme, [theme] { delete theme; });
    theme->setAccent(QColor("#8a3324"));
    QVERIFY(guard.isNull());
}

QTEST_MAIN(tst_Accent)
#include "tst_accent.moc"
