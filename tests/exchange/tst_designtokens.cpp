// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <exchange/designtokens.h>
#include <exchange/themewriter.h>

#include <QtTest>

using namespace Exchange;

class tst_DesignTokens : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void roundTrip();
    void positionsThatAreNoNumbers_data();
    void positionsThatAreNoNumbers();
    void keysThatAreNoNames_data();
    void keysThatAreNoNames();
    void colors_data();
    void colors();
    void tokensOfOthers();
    void otherTypesInOurGroups_data();
    void otherTypesInOurGroups();
    void paletteNames_data();
    void paletteNames();
    void refused_data();
    void refused();
    void manyGroups();
    void themeFiles();
};

namespace
{

ThemeContent smallTheme()
{
    ThemeContent theme;
    theme.name = "night";
    theme.displayName = QString::fromUtf8("Nacht, \"tief\"");
    theme.palette = {{"Ink", QColor("#102030")}, {"Veil", QColor(255, 255, 255, 51)}};
    theme.colors = {{"Text", {QColor("#102030"), "Ink"}},
                    {"Direct", {QColor(1, 2, 3, 4), QString()}},
                    {"Key with blanks", {QColor("#abcdef"), QString()}}};
    theme.imageFiles = {{"add", "../share/a,b.svg"}, {"none", ""}};
    theme.gradients = {{"Heading", {{0, QColor("#000000")}, {0.33333333, QColor(9, 8, 7, 6)}}}};
    theme.flags = {{"Dark", true}, {"Loud", false}};
    theme.integers = {
        {"FontSize_L", 14}, {"Width", -3}, {"Most", 2147483647}, {"Least", -2147483647 - 1}};
    return theme;
}

} // namespace

void tst_DesignTokens::roundTrip()
{
    QString error;
    const ThemeContent theme = smallTheme();
    const auto text = designTokens(theme, &error);
    QVERIFY2(text, qPrintable(error));
    const auto read = readDesignTokens(*text, &error);
    QVERIFY2(read, qPrintable(error));
    QCOMPARE(read->name, theme.name);
    QCOMPARE(read->displayName, theme.displayName);
    QCOMPARE(read->palette, theme.palette);
    QVERIFY(read->colors == theme.colors);
    QCOMPARE(read->imageFiles, theme.imageFiles);
    QCOMPARE(read->gradients, theme.gradients);
    QCOMPARE(read->flags, theme.flags);
    QCOMPARE(read->integers, theme.integers);
    QCOMPARE(*designTokens(*read, &error), *text);
}

void tst_DesignTokens::positionsThatAreNoNumbers_data()
{
    QTest::addColumn<double>("position");
    QTest::addColumn<QString>("text");
    QTest::newRow("nan") << qQNaN() << "nan";
    QTest::newRow("infinite") << qInf() << "inf";
    QTest::newRow("minus-infinite") << -qInf() << "-inf";
}

void tst_DesignTokens::positionsThatAreNoNumbers()
{
    QFETCH(double, position);
    QFETCH(QString, text);
    ThemeContent theme;
    theme.gradients.insert("Glow", {{0, Qt::red}, {position, Qt::red}});
    QString error;
    QVERIFY(!designTokens(theme, &error));
    QCOMPARE(error,
             "the gradient \"Glow\" has a stop at " + text + ", which no design token can say");
}

void tst_DesignTokens::keysThatAreNoNames_data()
{
    QTest::addColumn<QString>("key");
    for (const char *key : {"a.b", "a{", "}", "$a", ""})
        QTest::newRow(*key ? key : "empty") << key;
}

void tst_DesignTokens::keysThatAreNoNames()
{
    QFETCH(QString, key);
    ThemeContent theme;
    theme.palette.insert(key, Qt::red);
    QString error;
    QVERIFY(!designTokens(theme, &error));
    QCOMPARE(error,
             "the key \"" + key
                 + "\" cannot name a design token: it holds a dot or a brace, or begins with a "
                   "dollar sign");
}

void tst_DesignTokens::colors_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QColor>("expected");

    QTest::newRow("text") << QByteArray("\"#3060F0\"") << QColor("#3060f0");
    QTest::newRow("three-digits") << QByteArray("\"#abc\"") << QColor("#aabbcc");
    QTest::newRow("opacity-last") << QByteArray("\"#3060f080\"") << QColor(48, 96, 240, 128);
    QTest::newRow("srgb") << QByteArray(R"({"colorSpace":"srgb","components":[1,0.5,0]})")
                          << QColor(255, 128, 0);
    QTest::newRow("alpha") << QByteArray(
        R"({"colorSpace":"srgb","components":[0,0,0],"alpha":0.2})")
                           << QColor(0, 0, 0, 51);
    QTest::newRow("none") << QByteArray(R"({"colorSpace":"srgb","components":["none",1,0]})")
                          << QColor(0, 255, 0);
    QTest::newRow("hex-is-exact") << QByteArray(
        R"({"colorSpace":"srgb","components":[0.1882,0.3765,0.94],"hex":"#3060f0"})")
                                  << QColor("#3060f0");
    QTest::newRow("other-space-with-hex")
        << QByteArray(R"({"colorSpace":"oklch","components":[0.5,0.1,20],"hex":"#804050"})")
        << QColor("#804050");
    QTest::newRow("alias") << QByteArray("\"{other.red}\"") << QColor("#ff0000");
    QTest::newRow("alias-of-an-alias") << QByteArray("\"{other.alias}\"") << QColor("#ff0000");
}

void tst_DesignTokens::colors()
{
    QFETCH(QByteArray, value);
    QFETCH(QColor, expected);
    const QByteArray text = R"({"other":{"$type":"color","red":{"$value":"#f00"},)"
                            R"("alias":{"$value":"{other.red}"}},)"
                            R"("palette":{"$type":"color","X":{"$value":)"
        + value + "}}}";
    QString error;
    const auto theme = readDesignTokens(text, &error);
    QVERIFY2(theme, qPrintable(error));
    QCOMPARE(theme->palette.value("X"), expected);
}

void tst_DesignTokens::tokensOfOthers()
{
    QString error;
    const auto theme = readDesignTokens(R"({
        "brand": {"$type": "color", "primary": {"500": {"$value": "#3060f0"}}},
        "space": {"small": {"$type": "dimension", "$value": {"value": 4, "unit": "px"}}},
        "text": {"muted": {"$type": "color", "$value": "{brand.primary.500}"}},
        "font": {"$type": "fontFamily", "body": {"$value": "Serif"}}
    })",
                                        &error);
    QVERIFY2(theme, qPrintable(error));
    QCOMPARE(theme->palette.keys(), QStringList({"brand_primary_500", "text_muted"}));
    QCOMPARE(theme->palette.value("text_muted"), QColor("#3060f0"));
    QVERIFY(theme->colors.isEmpty() && theme->integers.isEmpty());
}

void tst_DesignTokens::otherTypesInOurGroups_data()
{
    QTest::addColumn<QByteArray>("tokens");
    QTest::addColumn<QStringList>("palette");

    QTest::newRow("palette") << QByteArray(
        R"("palette":{"name":{"$type":"string","$value":"Ocean"}})")
                             << QStringList();
    QTest::newRow("color") << QByteArray(R"("color":{"opacity":{"$type":"number","$value":0.5}})")
                           << QStringList();
    QTest::newRow("color-with-a-type-of-its-own")
        << QByteArray(R"("color":{"$type":"color","gap":{"$type":"dimension","$value":"4px"}})")
        << QStringList();
    QTest::newRow("gradient") << QByteArray(
        R"("gradient":{"angle":{"$type":"number","$value":90}})")
                              << QStringList();
    QTest::newRow("color-in-gradient")
        << QByteArray(R"("gradient":{"start":{"$type":"color","$value":"#123456"}})")
        << QStringList{"gradient_start"};
    QTest::newRow("integer") << QByteArray(
        R"("integer":{"fast":{"$type":"duration","$value":"10ms"}})")
                             << QStringList();
    QTest::newRow("color-in-integer")
        << QByteArray(R"("integer":{"one":{"$type":"color","$value":"#123456"}})")
        << QStringList{"integer_one"};
}

// Others call their groups as we do and keep there what we do not.
void tst_DesignTokens::otherTypesInOurGroups()
{
    QFETCH(QByteArray, tokens);
    QFETCH(QStringList, palette);
    QString error;
    const auto theme = readDesignTokens(
        R"({"brand":{"$type":"color","$value":"#3060f0"},)" + tokens + '}', &error);
    QVERIFY2(theme, qPrintable(error));
    QCOMPARE(theme->palette.keys(), QStringList{"brand"} + palette);
    QVERIFY(theme->colors.isEmpty() && theme->gradients.isEmpty() && theme->integers.isEmpty());
}

void tst_DesignTokens::paletteNames_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QStringList>("palette");
    QTest::addColumn<QString>("edge"); // the entry that color.Edge names

    QTest::newRow("nested-palette")
        << QByteArray(R"({"palette":{"$type":"color","blue":{"500":{"$value":"#3060f0"}}},
                          "color":{"Edge":{"$value":"{palette.blue.500}"}}})")
        << QStringList{"palette_blue_500"} << "palette_blue_500";
    QTest::newRow("entry-without-a-type")
        << QByteArray(R"({"palette":{"blue":{"500":{"$value":"#3060f0"}}},
                          "color":{"Edge":{"$value":"{palette.blue.500}"}}})")
        << QStringList() << "";
    QTest::newRow("entry-of-ours") << QByteArray(R"({"palette":{"Ink":{"$value":"#3060f0"}},
                          "color":{"Edge":{"$value":"{palette.Ink}"}}})")
                                   << QStringList{"Ink"} << "Ink";
    QTest::newRow("group-of-others")
        << QByteArray(R"({"base":{"$type":"color","ink":{"$value":"#3060f0"}},
                          "color":{"Edge":{"$value":"{base.ink}"}}})")
        << QStringList{"base_ink"} << "base_ink";
    QTest::newRow("color-of-a-color") << QByteArray(R"({"color":{"Ink":{"$value":"#3060f0"},
                                                    "Edge":{"$value":"{color.Ink}"}}})")
                                      << QStringList() << "";
    QTest::newRow("one-name-for-two")
        << QByteArray(R"({"brand":{"$type":"color","a-b":{"$value":"#123"},
                                   "a_b":{"$value":"#3060f0"}},
                          "palette":{"brand_a_b_2":{"$value":"#456"}},
                          "color":{"Edge":{"$value":"{brand.a_b}"}}})")
        << QStringList{"brand_a_b", "brand_a_b_2", "brand_a_b_3"} << "brand_a_b_3";
}

// What a colour names is there.
void tst_DesignTokens::paletteNames()
{
    QFETCH(QByteArray, text);
    QFETCH(QStringList, palette);
    QFETCH(QString, edge);
    QString error;
    const auto theme = readDesignTokens(text, &error);
    QVERIFY2(theme, qPrintable(error));
    QCOMPARE(theme->palette.keys(), palette);
    QCOMPARE(theme->colors.value("Edge").palette, edge);
    QCOMPARE(theme->colors.value("Edge").color, QColor("#3060f0"));
    if (!edge.isEmpty())
        QCOMPARE(theme->palette.value(edge), QColor("#3060f0"));
}

// NOLINTNEXTLINE(readability-function-size): a table, one row a case
void tst_DesignTokens::refused_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("error");

    QTest::newRow("empty") << QByteArray() << "no JSON: ";
    QTest::newRow("binary") << QByteArray("\0\1\2", 3) << "no JSON: ";
    QTest::newRow("list") << QByteArray("[]") << "no JSON object";
    QTest::newRow("circle")
        << QByteArray(R"({"palette":{"a":{"$value":"{palette.b}"},"b":{"$value":"{palette.a}"}}})")
        << "token palette.a: it is an alias of itself: palette.a -> palette.b -> palette.a";
    QTest::newRow("self") << QByteArray(R"({"palette":{"a":{"$value":"{palette.a}"}}})")
                          << "token palette.a: it is an alias of itself: palette.a -> palette.a";
    QTest::newRow("nothing") << QByteArray(R"({"palette":{"a":{"$value":"{palette.x}"}}})")
                             << "token palette.a: there is no token palette.x";
    QTest::newRow("word")
        << QByteArray(R"({"palette":{"a":{"$value":"red"}}})")
        << "token palette.a: it is no colour: an object of a colour space, or \"#rrggbb\"";
    QTest::newRow("number") << QByteArray(R"({"palette":{"a":{"$value":7}}})")
                            << "token palette.a: it is no colour";
    QTest::newRow("space")
        << QByteArray(R"({"palette":{"a":{"$value":{"colorSpace":"oklch","components":[0,0,0]}}}})")
        << "token palette.a: of colour spaces other than srgb only \"hex\" is read";
    QTest::newRow("components") << QByteArray(
        R"({"palette":{"a":{"$value":{"colorSpace":"srgb","components":[0]}}}})")
                                << "token palette.a: an sRGB colour has three components";
    QTest::newRow("alpha") << QByteArray(
        R"({"palette":{"a":{"$value":{"colorSpace":"srgb","components":[0,0,0],"alpha":2}}}})")
                           << "token palette.a: alpha is a number from 0 to 1";
    QTest::newRow("alpha-as-text") << QByteArray(
        R"({"palette":{"a":{"$value":{"colorSpace":"srgb","components":[0,0,0],"alpha":"0.5"}}}})")
                                   << "token palette.a: alpha is a number from 0 to 1";
    QTest::newRow("component")
        << QByteArray(
               R"({"palette":{"a":{"$value":{"colorSpace":"srgb","components":["red",0,0]}}}})")
        << "token palette.a: a component of a colour is a number or \"none\"";
    QTest::newRow("hex-as-number") << QByteArray(
        R"({"palette":{"a":{"$value":{"colorSpace":"srgb","components":[0,0,0],"hex":7}}}})")
                                   << "token palette.a: \"\" is no hex colour";
    QTest::newRow("hex-as-word") << QByteArray(
        R"({"palette":{"a":{"$value":{"colorSpace":"srgb","hex":"magenta"}}}})")
                                 << "token palette.a: \"magenta\" is no hex colour";
    QTest::newRow("flag") << QByteArray(R"({"$extensions":{"hvtheme":{"flags":{"Dark":1}}}})")
                          << "$extensions.hvtheme.flags.Dark: a flag is true or false";
    QTest::newRow("image") << QByteArray(
        R"({"$extensions":{"hvtheme":{"imageFiles":{"add":null}}}})")
                           << "$extensions.hvtheme.imageFiles.add: the path of an image is a text";
    QTest::newRow("integer") << QByteArray(R"({"integer":{"a":{"$value":"big"}}})")
                             << "token integer.a: it is no number and no dimension";
    QTest::newRow("unit") << QByteArray(R"({"integer":{"a":{"$value":{"value":1,"unit":"rem"}}}})")
                          << "token integer.a: of dimensions only px is read";
    QTest::newRow("wide") << QByteArray(R"({"integer":{"a":{"$value":1e300}}})")
                          << "token integer.a: the number does not fit into 32 bits";
    QTest::newRow("narrow") << QByteArray(R"({"integer":{"a":{"$value":-2147483649}}})")
                            << "token integer.a: the number does not fit into 32 bits";
    QTest::newRow("gradient") << QByteArray(R"({"gradient":{"a":{"$value":[]}}})")
                              << "token gradient.a: a gradient is a list of stops";
    QTest::newRow("stop") << QByteArray(R"({"gradient":{"a":{"$value":[{"color":"#000"}]}}})")
                          << "token gradient.a: the position of a stop is a number";
    QTest::newRow("stop-to-nothing")
        << QByteArray(R"({"gradient":{"a":{"$value":[{"color":"{x}","position":0}]}}})")
        << "token gradient.a: there is no token x";
}

void tst_DesignTokens::refused()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, error);
    QString found;
    QVERIFY(!readDesignTokens(text, &found));
    QVERIFY2(found.startsWith(error), qPrintable(found));
    QCOMPARE(found.count('\n'), 0);
}

void tst_DesignTokens::manyGroups()
{
    QByteArray text = "{\"$value\":\"#000\"}";
    for (int i = 0; i < 200; ++i)
        text = "{\"g\":" + text + '}';
    QString error;
    QVERIFY(!readDesignTokens(text, &error));
    QVERIFY2(error.endsWith("groups within groups without end"), qPrintable(error));
}

void tst_DesignTokens::themeFiles()
{
    QString error;
    const auto made = Exchange::themeFiles(smallTheme(), "night", "theme", &error);
    QVERIFY2(made, qPrintable(error));
    QCOMPARE(made->files.size(), 2);
    QCOMPARE(made->files.at(0).fileName, QString("default.theme"));
    QCOMPARE(made->files.at(1).fileName, QString("night.theme"));
    QVERIFY(made->files.at(0).content.contains("Ink=#102030"));
    QVERIFY(made->files.at(1).content.contains("Text=Ink"));
    QVERIFY(made->files.at(1).content.contains("Direct=#04010203"));
    QVERIFY(made->files.at(1).content.contains("Key%20with%20blanks=#ABCDEF"));
    QVERIFY(made->files.at(1).content.contains("Heading\\2\\pos=0.33333333"));
}

QTEST_GUILESS_MAIN(tst_DesignTokens)
#include "tst_designtokens.moc"
