// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <hvtheme/theme.h>

#include "expectedmessages.h"
#include "messages.h"
#include "temporaryfolder.h"
#include "themestore.h"

class tst_Reading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_log.start(); }
    void cleanup() { REPORT_STRAY_MESSAGES(m_log); }

    void displayName_data();
    void displayName();

    void palette_data();
    void palette();
    void color_data();
    void color();
    void imageFile_data();
    void imageFile();
    void flag_data();
    void flag();
    void integer_data();
    void integer();

    void wholeFile();
    void sections_data();
    void sections();

private:
    CapturedMessages m_log;
};

namespace
{

const QColor Black(Qt::black);

using NamedColor = QPair<QColor, QString>;

} // namespace

Q_DECLARE_METATYPE(NamedColor)

void tst_Reading::displayName_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("expected");

    const QString none;
    QTest::newRow("named") << none << QByteArray("ThemeName=Night Sky\n") << "Night Sky";
    QTest::newRow("general") << none << QByteArray("[General]\nThemeName=Night\n") << "Night";
    QTest::newRow("general-last") << none << QByteArray("[Flags]\n[General]\nThemeName=Night\n")
                                  << "Night";
    QTest::newRow("quoted-list") << none << QByteArray("ThemeName=\"Night, Sky\"\n")
                                 << "Night, Sky";
    QTest::newRow("list") << none << QByteArray("ThemeName=Night, Sky\n") << "";
    QTest::newRow("number") << none << QByteArray("ThemeName=7\n") << "7";
    QTest::newRow("empty") << none << QByteArray("ThemeName=\n") << "";
    QTest::newRow("absent") << none << QByteArray() << "unnamed";
    QTest::newRow("other-case") << none << QByteArray("themename=Night\n") << "unnamed";
    QTest::newRow("in-a-section") << none << QByteArray("[Palette]\nThemeName=Night\n")
                                  << "unnamed";

    QTest::newRow("replaced") << "Day" << QByteArray("ThemeName=Night\n") << "Night";
    QTest::newRow("kept") << "Day" << QByteArray("[Flags]\n") << "Day";
    QTest::newRow("emptied") << "Day" << QByteArray("ThemeName=\n") << "";
    QTest::newRow("empty-then-absent") << "" << QByteArray() << "unnamed";
    QTest::newRow("unnamed-then-named") << "unnamed" << QByteArray("ThemeName=Night\n") << "Night";
}

void tst_Reading::displayName()
{
    QFETCH(QString, before);
    QFETCH(QByteArray, text);
    QFETCH(QString, expected);

    HV::Theme theme("names");
    theme.setDisplayName(before);
    readText(theme, text);
    QCOMPARE(theme.displayName(), expected);
    QVERIFY(!theme.displayName().isNull() || text.contains(", ")); // a list has no text at all
    QVERIFY(Store::isEmpty(theme));
}

void tst_Reading::palette_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QColor>("expected"); // of the key "Ink"
    QTest::addColumn<Messages>("messages");

    const Messages none;
    QTest::newRow("hash") << QByteArray("Ink=#102030\n") << QColor(16, 32, 48) << none;
    QTest::newRow("no-hash") << QByteArray("Ink=102030\n") << QColor(16, 32, 48) << none;
    QTest::newRow("digits-only") << QByteArray("Ink=123\n") << QColor(17, 34, 51) << none;
    QTest::newRow("word") << QByteArray("Ink=red\n") << Black
                          << Messages{Expected::badColor("red", "#red")};
    QTest::newRow("empty") << QByteArray("Ink=\n") << Black
                           << Messages{Expected::badColor("", "#")};
    QTest::newRow("list") << QByteArray("Ink=16,32,48\n") << Black
                          << Messages{Expected::badColor("", "#")};
    // Entries are visited in the order of their keys, whatever the order of the lines.
    QTest::newRow("entry-before") << QByteArray("Ink=Coal\nCoal=#102030\n") << QColor(16, 32, 48)
                                  << none;
    QTest::newRow("entry-after") << QByteArray("Tar=#102030\nInk=Tar\n") << Black
                                 << Messages{Expected::badColor("Tar", "#Tar")};
    QTest::newRow("entry-of-an-earlier-file")
        << QByteArray("Ink=Zinc\n") << QColor(48, 32, 16) << none;
    QTest::newRow("itself") << QByteArray("Ink=Ink\n") << Black
                            << Messages{Expected::badColor("Ink", "#Ink")};
    QTest::newRow("last-line-of-a-key")
        << QByteArray("Ink=#fff\nInk=#102030\n") << QColor(16, 32, 48) << none;
}

void tst_Reading::palette()
{
    QFETCH(QByteArray, text);
    QFETCH(QColor, expected);
    QFETCH(Messages, messages);

    HV::Theme theme("palettes");
    readText(theme, "[Palettes]\nZinc=#302010\n");
    readText(theme, "[Palettes]\n" + text);
    COMPARE_MESSAGES(m_log, messages);
    QCOMPARE(Store::of(theme, Store::Palettes()).value("Ink"), expected);
    QVERIFY(Store::of(theme, Store::Colors()).isEmpty());
}

void tst_Reading::color_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<NamedColor>("expected");
    QTest::addColumn<Messages>("messages");

    const Messages none;
    QTest::newRow("entry") << QByteArray("Ink") << NamedColor({16, 32, 48}, "Ink") << none;
    QTest::newRow("hash") << QByteArray("#102030") << NamedColor({16, 32, 48}, "") << none;
    QTest::newRow("no-hash") << QByteArray("102030") << NamedColor({16, 32, 48}, "") << none;
    QTest::newRow("alpha") << QByteArray("#80102030") << NamedColor({16, 32, 48, 128}, "") << none;
    QTest::newRow("quoted") << QByteArray("\"Ink\"") << NamedColor({16, 32, 48}, "Ink") << none;
    QTest::newRow("word") << QByteArray("red") << NamedColor(Black, "")
                          << Messages{Expected::badColor("red", "#red")};
    QTest::newRow("no-such-entry") << QByteArray("Paper") << NamedColor(Black, "")
                                   << Messages{Expected::badColor("Paper", "#Paper")};
    QTest::newRow("color-not-entry") << QByteArray("Accent") << NamedColor(Black, "")
                                     << Messages{Expected::badColor("Accent", "#Accent")};
    QTest::newRow("list") << QByteArray("rgb(1,2,3)") << NamedColor(Black, "")
                          << Messages{Expected::badColor("", "#")};
}

void tst_Reading::color()
{
    QFETCH(QByteArray, text);
    QFETCH(NamedColor, expected);
    QFETCH(Messages, messages);

    const QByteArray file = "[Palettes]\nInk=#102030\n[Colors]\nAccent=#fff\nText=" + text + '\n';
    HV::Theme first("first");
    readText(first, file);
    COMPARE_MESSAGES(m_log, messages);
    QCOMPARE(Store::of(first, Store::Colors()).value("Text"), expected);

    HV::Theme second("second"); // a later file stores the same pair
    readText(second, "[Palettes]\nInk=#102030\n");
    readText(second, "[Colors]\nAccent=#fff\nText=" + text + '\n');
    COMPARE_MESSAGES(m_log, messages);
    QCOMPARE(Store::of(second, Store::Colors()), Store::of(first, Store::Colors()));
}

void tst_Reading::imageFile_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("expected");

    QTest::newRow("path") << QByteArray("../img/add.png") << "../img/add.png";
    QTest::newRow("uncleaned") << QByteArray("./img//a/../add.png") << "./img//a/../add.png";
    QTest::newRow("resource") << QByteArray(":/add.png") << ":/add.png";
    QTest::newRow("any-text") << QByteArray("no path at all") << "no path at all";
    QTest::newRow("empty") << QByteArray() << "";
    QTest::newRow("list") << QByteArray("a.png, b.png") << "";
    QTest::newRow("quoted-comma") << QByteArray("\"a,b.png\"") << "a,b.png";
}

void tst_Reading::imageFile()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, expected);

    HV::Theme theme("images");
    readText(theme, "[ImageFiles]\nadd=" + text + '\n');
    QCOMPARE(Store::of(theme, Store::ImageFiles()), (Store::ImageFileMap{{"add", expected}}));
}

void tst_Reading::flag_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("expected");

    QTest::newRow("1") << QByteArray("1") << true;
    QTest::newRow("0") << QByteArray("0") << false;
    QTest::newRow("2") << QByteArray("2") << true;
    QTest::newRow("minus-1") << QByteArray("-1") << true;
    QTest::newRow("true") << QByteArray("true") << false;
    QTest::newRow("yes") << QByteArray("yes") << false;
    QTest::newRow("empty") << QByteArray() << false;
    QTest::newRow("fraction") << QByteArray("1.5") << false;
    QTest::newRow("hexadecimal") << QByteArray("0x1") << false;
    QTest::newRow("list") << QByteArray("1,1") << false;
    QTest::newRow("2-to-the-31") << QByteArray("2147483648") << true;
    QTest::newRow("2-to-the-32") << QByteArray("4294967296") << false; // 32 bits are left
}

void tst_Reading::flag()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, expected);

    HV::Theme theme("flags");
    readText(theme, "[Flags]\nRound=" + text + '\n');
    QCOMPARE(Store::of(theme, Store::Flags()), (Store::FlagMap{{"Round", expected}}));
}

void tst_Reading::integer_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<qint64>("expected");

    QTest::newRow("14") << QByteArray("14") << Q_INT64_C(14);
    QTest::newRow("minus-3") << QByteArray("-3") << Q_INT64_C(-3);
    QTest::newRow("quoted") << QByteArray("\"14\"") << Q_INT64_C(14);
    QTest::newRow("unit") << QByteArray("14px") << Q_INT64_C(0);
    QTest::newRow("empty") << QByteArray() << Q_INT64_C(0);
    QTest::newRow("word") << QByteArray("wide") << Q_INT64_C(0);
    QTest::newRow("true") << QByteArray("true") << Q_INT64_C(0);
    QTest::newRow("fraction") << QByteArray("1.5") << Q_INT64_C(0);
    QTest::newRow("hexadecimal") << QByteArray("0x10") << Q_INT64_C(0);
    QTest::newRow("list") << QByteArray("1,2") << Q_INT64_C(0);
    QTest::newRow("highest") << QByteArray("2147483647") << Q_INT64_C(2147483647);
    QTest::newRow("2-to-the-31") << QByteArray("2147483648") << Q_INT64_C(-2147483648);
    QTest::newRow("2-to-the-32") << QByteArray("4294967296") << Q_INT64_C(0);
    QTest::newRow("2-to-the-32-and-5") << QByteArray("4294967301") << Q_INT64_C(5);
    QTest::newRow("past-64-bits") << QByteArray("99999999999999999999") << Q_INT64_C(0);
}

void tst_Reading::integer()
{
    QFETCH(QByteArray, text);
    QFETCH(qint64, expected);

    HV::Theme theme("integers");
    readText(theme, "[Integers]\nGap=" + text + '\n');
    QCOMPARE(Store::of(theme, Store::Integers()), (Store::IntegerMap{{"Gap", expected}}));
}

void tst_Reading::wholeFile()
{
    HV::Theme theme("whole");
    readText(theme, R"([General]
ThemeName=Default

[Palettes]
Brand_1=#1E6FFF
Bg_1=0F1115
W100=#FFFFFFFF

[Colors]
EditBackgroundColor=Bg_1
EditBorderColor=#3A3F47
DefaultForegroundColor=W100

[ImageFiles]
checkbox_off=:/images/checkbox_off.png

[Gradients]
Highlight=1
Highlight\size=2
Highlight\1\pos=0
Highlight\1\color=Brand_1
Highlight\2\pos=1
Highlight\2\color=#001E6FFF

[Flags]
RoundCorners=1

[Integers]
FontSize_XS=10
FontSize_S=12
)");
    COMPARE_MESSAGES(
        m_log,
        Expected::invalidGradients({"Highlight/1/color", "Highlight/1/pos", "Highlight/2/color",
                                    "Highlight/2/pos", "Highlight/size"}));

    const QColor brand(30, 111, 255);
    const QColor ground(15, 17, 21);
    const QColor white(255, 255, 255);
    QCOMPARE(theme.displayName(), QString("Default"));
    QCOMPARE(Store::of(theme, Store::Palettes()),
             (Store::PaletteMap{{"Brand_1", brand}, {"Bg_1", ground}, {"W100", white}}));
    QCOMPARE(Store::of(theme, Store::Colors()),
             (Store::ColorMap{{"EditBackgroundColor", {ground, "Bg_1"}},
                              {"EditBorderColor", {QColor(58, 63, 71), ""}},
                              {"DefaultForegroundColor", {white, "W100"}}}));
    QCOMPARE(Store::of(theme, Store::ImageFiles()),
             (Store::ImageFileMap{{"checkbox_off", ":/images/checkbox_off.png"}}));
    QCOMPARE(Store::of(theme, Store::Gradients()),
             (Store::GradientMap{{"Highlight", {{0, brand}, {1, QColor(30, 111, 255, 0)}}}}));
    QCOMPARE(Store::of(theme, Store::Flags()), (Store::FlagMap{{"RoundCorners", true}}));
    QCOMPARE(Store::of(theme, Store::Integers()),
             (Store::IntegerMap{{"FontSize_XS", 10}, {"FontSize_S", 12}}));
}

void tst_Reading::sections_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QStringList>("expected"); // the integers' keys

    QTest::newRow("two") << QByteArray("[Integers]\nB=1\na=2\n") << QStringList{"B", "a"};
    QTest::newRow("in-two-places")
        << QByteArray("[Integers]\nB=1\n[X]\nY=1\n[Integers]\nA=2\n") << QStringList{"A", "B"};
    QTest::newRow("subkey") << QByteArray("[Integers]\nBox\\Gap=1\n") << QStringList{"Box/Gap"};
    QTest::newRow("section-other-case") << QByteArray("[integers]\nA=1\n") << QStringList();
    QTest::newRow("section-singular") << QByteArray("[Integer]\nA=1\n") << QStringList();
    QTest::newRow("section-top-level") << QByteArray("A=1\n") << QStringList();
    QTest::newRow("comment") << QByteArray("[Integers]\n;A=1\nB=1\n") << QStringList{"B"};
}

void tst_Reading::sections()
{
    QFETCH(QByteArray, text);
    QFETCH(QStringList, expected);

    HV::Theme theme("sections");
    readText(theme, text);
    QCOMPARE(QStringList(Store::of(theme, Store::Integers()).keys()), expected);
}

QTEST_GUILESS_MAIN(tst_Reading)

#include "tst_reading.moc"
