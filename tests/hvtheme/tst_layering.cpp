// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <hvtheme/theme.h>

#include "expectedmessages.h"
#include "messages.h"
#include "temporaryfolder.h"
#include "themestore.h"
#include "vocabularies.h"

#include <functional>
#include <memory>

using Reader = void (HV::Theme::*)(QSettings &, bool, const QMetaObject &);
using Check = std::function<bool(const HV::Theme &)>;
Q_DECLARE_METATYPE(Reader)
Q_DECLARE_METATYPE(Check)

/*! How the files of a theme combine. */
class tst_Layering : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_log.start(); }
    void cleanup() { REPORT_STRAY_MESSAGES(m_log); }

    void filePathIsTheFirstFiles();

    void laterFile_data();
    void laterFile();
    void laterFlag_data();
    void laterFlag();
    void sameFileTwice();
    void groupIsLeftAsFound_data();
    void groupIsLeftAsFound();

private:
    CapturedMessages m_log;
};

namespace
{

const QStringList LibraryIntegers = {"FontSize_XS", "FontSize_S",  "FontSize_M",
                                     "FontSize_L",  "FontSize_XL", "FontSize_XXL"};

void laterFileColumns()
{
    QTest::addColumn<QByteArray>("first");
    QTest::addColumn<QByteArray>("second");
    QTest::addColumn<Messages>("messages");
    QTest::addColumn<Check>("holds");
}

} // namespace

void tst_Layering::filePathIsTheFirstFiles()
{
    const TemporaryFolder folder;
    const QString first = folder.write("first.theme", "[Flags]\nRound=1\n");
    const QString second = folder.write("second.theme", "ThemeName=Second\n");

    HV::Theme theme("layers");
    QSettings firstSettings(first, QSettings::IniFormat);
    theme.readSettings(firstSettings);
    QCOMPARE(theme.filePath(), first);
    QSettings secondSettings(second, QSettings::IniFormat);
    theme.readSettings(secondSettings);
    QCOMPARE(theme.filePath(), first);
    QCOMPARE(theme.displayName(), QString("Second"));

    theme.clear();
    theme.readSettings(secondSettings);
    QCOMPARE(theme.filePath(), second);
}

void tst_Layering::laterFile_data()
{
    laterFileColumns();
    const auto exist = Expected::keysExist;

    QTest::newRow("palette-kept") << QByteArray("[Palettes]\nInk=#102030\n")
                                  << QByteArray("[Palettes]\nInk=#fff\nNew=#fff\n")
                                  << exist(Expected::Palettes, {"Ink"})
                                  << Check([](const HV::Theme &theme) {
                                         return Store::of(theme, Store::Palettes())
                                             == Store::PaletteMap{{"Ink", {16, 32, 48}},
                                                                  {"New", {255, 255, 255}}};
                                     });
    QTest::newRow("color-kept") << QByteArray("[Colors]\nText=#102030\n")
                                << QByteArray("[Colors]\nText=#fff\nNew=#fff\n")
                                << exist(Expected::Colors, {"Text"})
                                << Check([](const HV::Theme &theme) {
                                       return theme.color("Text") == QColor(16, 32, 48)
                                           && theme.color("New") == QColor(255, 255, 255);
                                   });
    QTest::newRow("color-kept-though-its-palette-changed")
        << QByteArray("[Palettes]\nInk=#102030\n[Colors]\nText=Ink\n")
        << QByteArray("[Palettes]\nInk=#fff\n[Colors]\nText=Ink\nNew=Ink\n")
        << exist(Expected::Palettes, {"Ink"}) + exist(Expected::Colors, {"Text"})
        << Check([](const HV::Theme &theme) {
               const QPair<QColor, QString> ink({16, 32, 48}, "Ink");
               return Store::of(theme, Store::Colors())
                   == Store::ColorMap{{"Text", ink}, {"New", ink}};
           });
    QTest::newRow("invalid-color-kept-unread")
        << QByteArray("[Colors]\nText=#102030\n") << QByteArray("[Colors]\nText=nonsense\n")
        << exist(Expected::Colors, {"Text"})
        << Check([](const HV::Theme &theme) { return theme.color("Text") == QColor(16, 32, 48); });
    QTest::newRow("image-file-kept")
        << QByteArray("[ImageFiles]\nadd=:/a\n") << QByteArray("[ImageFiles]\nadd=:/b\nnew=:/b\n")
        << exist(Expected::ImageFiles, {"add"}) << Check([](const HV::Theme &theme) {
               return theme.imageFile("add") == ":/a" && theme.imageFile("new") == ":/b";
           });
    QTest::newRow("integer-kept") << QByteArray("[Integers]\nGap=1\n")
                                  << QByteArray("[Integers]\nGap=2\nNew=2\n")
                                  << exist(Expected::Integers, {"Gap"})
                                  << Check([](const HV::Theme &theme) {
                                         return theme.integer("Gap") == 1
                                             && theme.integer("New") == 2;
                                     });
    QTest::newRow("reports-in-key-order")
        << QByteArray("[Integers]\nb=1\nA=1\nB=1\n") << QByteArray("[Integers]\nb=1\nB=1\nA=1\n")
        << exist(Expected::Integers, {"A", "B", "b"})
        << Check([](const HV::Theme &) { return true; });
    QTest::newRow("other-case-is-another-key")
        << QByteArray("[Integers]\nGap=1\n") << QByteArray("[Integers]\ngap=2\n") << Messages()
        << Check([](const HV::Theme &theme) {
               return theme.integer("Gap") == 1 && theme.integer("gap") == 2;
           });

    QTest::newRow("one-key-in-every-section")
        << QByteArray("[Palettes]\nX=fff\n[ImageFiles]\nX=:/x\n[Integers]\nX=1\n")
        << QByteArray("[Colors]\nX=X\n") << Messages() << Check([](const HV::Theme &theme) {
               return theme.color("X") == QColor(255, 255, 255) && theme.imageFile("X") == ":/x"
                   && theme.integer("X") == 1;
           });
}

void tst_Layering::laterFlag_data()
{
    laterFileColumns();
    const auto exist = Expected::keysExist;

    // Flags are replaced: what counts as taken for them is an integer of the name.
    QTest::newRow("flag-replaced")
        << QByteArray("[Flags]\nRound=1\n") << QByteArray("[Flags]\nRound=0\n") << Messages()
        << Check([](const HV::Theme &theme) { return !theme.flag("Round"); });
    QTest::newRow("flag-kept-beside-an-integer")
        << QByteArray("[Flags]\nRound=1\n[Integers]\nRound=5\n") << QByteArray("[Flags]\nRound=0\n")
        << exist(Expected::Flags, {"Round"}) << Check([](const HV::Theme &theme) {
               return theme.flag("Round") && theme.integer("Round") == 5;
           });
    QTest::newRow("flag-refused-beside-an-integer")
        << QByteArray("[Integers]\nRound=5\n") << QByteArray("[Flags]\nRound=1\n")
        << exist(Expected::Flags, {"Round"}) << Check([](const HV::Theme &theme) {
               return Store::of(theme, Store::Flags()).isEmpty() && theme.integer("Round") == 5;
           });
    QTest::newRow("integer-beside-a-flag")
        << QByteArray("[Flags]\nRound=1\n") << QByteArray("[Integers]\nRound=5\n") << Messages()
        << Check([](const HV::Theme &theme) {
               return theme.flag("Round") && theme.integer("Round") == 5;
           });
}

void tst_Layering::laterFlag()
{
    laterFile();
}

void tst_Layering::laterFile()
{
    QFETCH(QByteArray, first);
    QFETCH(QByteArray, second);
    QFETCH(Messages, messages);
    QFETCH(Check, holds);

    HV::Theme theme("layers");
    readText(theme, first);
    COMPARE_MESSAGES(m_log, Messages());
    readText(theme, second);
    COMPARE_MESSAGES(m_log, messages);
    QVERIFY(holds(theme));
}

void tst_Layering::sameFileTwice()
{
    const QByteArray text = "[Palettes]\nInk=#102030\nBroken=nonsense\n"
                            "[Colors]\nText=Ink\n"
                            "[ImageFiles]\nadd=:/a\n"
                            "[Gradients]\nSky=1\nSky\\size=1\nSky\\1\\pos=0\nSky\\1\\color=Ink\n"
                            "Void=1\n"
                            "[Flags]\nRound=1\n"
                            "[Integers]\nFontSize_S=5\n";
    const Messages subKeys =
        Expected::invalidGradients({"Sky/1/color", "Sky/1/pos", "Sky/size", "Void"});

    ExtendedVocabulary theme;
    readText(theme, text);
    QStringList otherIntegers = LibraryIntegers;
    otherIntegers.removeOne("FontSize_S");
    COMPARE_MESSAGES(m_log,
                     Messages{Expected::badColor("nonsense", "#nonsense")}
                         + Expected::keysNotSet(Expected::Palettes, {"Paper", "Rule"}) + subKeys
                         + Expected::keysNotSet(Expected::Integers, otherIntegers));

    readText(theme, text);
    COMPARE_MESSAGES(m_log,
                     Expected::keysExist(Expected::Palettes, {"Broken", "Ink"})
                         + Expected::keysExist(Expected::Colors, {"Text"})
                         + Expected::keysExist(Expected::ImageFiles, {"add"})
                         + Expected::keysExist(Expected::Gradients, {"Sky"}) + subKeys
                         + Expected::keysExist(Expected::Integers, {"FontSize_S"}));
    QCOMPARE(theme.flag("Round"), true);
}

void tst_Layering::groupIsLeftAsFound_data()
{
    QTest::addColumn<Reader>("reader");

    QTest::newRow("palettes") << &HV::Theme::readPalettes;
    QTest::newRow("colors") << &HV::Theme::readColors;
    QTest::newRow("image-files") << &HV::Theme::readImageFiles;
    QTest::newRow("gradients") << &HV::Theme::readGradients;
    QTest::newRow("flags") << &HV::Theme::readFlags;
    QTest::newRow("integers") << &HV::Theme::readIntegers;
}

void tst_Layering::groupIsLeftAsFound()
{
    QFETCH(Reader, reader);

    const TemporaryFolder folder;
    QSettings settings(folder.write("outer.theme",
                                    "[Outer]\nPalettes\\K=fff\nColors\\K=fff\nImageFiles\\K=1\n"
                                    "Gradients\\K=1\nGradients\\K\\size=1\nGradients\\K\\1\\pos=1\n"
                                    "Gradients\\K\\1\\color=fff\nGradients\\Void=1\n"
                                    "Flags\\K=1\nIntegers\\K=1\n"),
                       QSettings::IniFormat);
    HV::Theme theme("groups");
    for (int i = 0; i < 2; ++i) { // stored, then refused
        (theme.*reader)(settings, true, HV::Theme::staticMetaObject);
        QVERIFY(settings.group().isEmpty());
        QVERIFY(i > 0 || Store::isEmpty(theme));
        settings.beginGroup("Outer");
        (theme.*reader)(settings, true, HV::Theme::staticMetaObject);
        QCOMPARE(settings.group(), QString("Outer"));
        QVERIFY(!Store::isEmpty(theme));
        settings.endGroup();
    }
    m_log.take(); // compared elsewhere
}

QTEST_GUILESS_MAIN(tst_Layering)

#include "tst_layering.moc"
