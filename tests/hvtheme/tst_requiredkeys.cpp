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

using Vocabulary = std::function<HV::Theme *()>;
using Reader = void (HV::Theme::*)(QSettings &, bool, const QMetaObject &);
Q_DECLARE_METATYPE(Vocabulary)
Q_DECLARE_METATYPE(Reader)

/*! What the first file of a theme must define. */
class tst_RequiredKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_log.start(); }
    void cleanup() { REPORT_STRAY_MESSAGES(m_log); }

    void vocabulary_data();
    void vocabulary();
    void libraryKeys();
    void settingsWithoutAFileNameAreFirstEachTime();
    void readersAskTheGivenVocabulary_data();
    void readersAskTheGivenVocabulary();
    void flagsAreLookedForAmongFlags();

private:
    CapturedMessages m_log;
};

namespace
{

const QStringList LibraryIntegers = {"FontSize_XS", "FontSize_S",  "FontSize_M",
                                     "FontSize_L",  "FontSize_XL", "FontSize_XXL"};

QStringList numbered(const QString &stem, int count)
{
    QStringList keys;
    for (int i = 1; i <= count; ++i)
        keys.append(stem + QString::number(i));
    return keys;
}

QStringList libraryPalettes()
{
    return numbered("Brand_", 10) + numbered("Bg_", 7)
        + QStringList{"W100", "W90", "W80", "W40", "W20", "W15", "W10", "W8"}
    + QStringList{"B20", "B32", "B50_", "B100"} + numbered("Red_", 10) + numbered("Yellow_", 10)
        + numbered("Green_", 10) + numbered("Orange_", 10);
}

} // namespace

void tst_RequiredKeys::settingsWithoutAFileNameAreFirstEachTime()
{
    ExtendedVocabulary theme;
    QSettings nameless(QString(), QSettings::IniFormat);
    QVERIFY(nameless.fileName().isEmpty());
    const Messages missing = Expected::keysNotSet(Expected::Palettes, {"Ink", "Paper", "Rule"})
        + Expected::keysNotSet(Expected::Colors, {"Text"})
        + Expected::keysNotSet(Expected::Integers, LibraryIntegers);
    for (int i = 0; i < 2; ++i) {
        theme.readSettings(nameless);
        QVERIFY(theme.filePath().isEmpty());
        COMPARE_MESSAGES(m_log, missing);
    }
    readText(theme, "ThemeName=First\n"); // still the first file
    COMPARE_MESSAGES(m_log, missing);
    QVERIFY(!theme.filePath().isEmpty());
}

void tst_RequiredKeys::vocabulary_data()
{
    QTest::addColumn<Vocabulary>("vocabulary");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<Messages>("messages");

    const Vocabulary plain = [] { return new HV::Theme("plain"); };
    const Vocabulary own = [] { return new OwnVocabulary; };
    const Vocabulary extended = [] { return new ExtendedVocabulary; };
    const Vocabulary inherited = [] { return new InheritedVocabulary; };
    const Vocabulary gapped = [] { return new GappedVocabulary; };
    const auto notSet = Expected::keysNotSet;
    const Messages integersNotSet = notSet(Expected::Integers, LibraryIntegers);

    QTest::newRow("plain-nothing") << plain << QByteArray() << Messages();
    QTest::newRow("plain-unknown-keys") << plain << QByteArray("[Integers]\nAny=1\n") << Messages();
    QTest::newRow("own-nothing") << own << QByteArray()
                                 << notSet(Expected::Palettes, {"Ink", "Paper"})
            + notSet(Expected::Colors, {"Text", "Ground"})
            + notSet(Expected::ImageFiles, {"add", "close"})
            + notSet(Expected::Gradients, {"Sky", "Dusk"})
            + notSet(Expected::Flags, {"Round", "Flat"})
            + notSet(Expected::Integers, {"Gap", "Width"});
    QTest::newRow("own-half")
        << own
        << QByteArray("[Palettes]\nPaper=fff\n[Colors]\nText=fff\n[ImageFiles]\nclose=x\n"
                      "[Flags]\nRound=0\n[Integers]\nWidth=0\n")
        << notSet(Expected::Palettes, {"Ink"}) + notSet(Expected::Colors, {"Ground"})
            + notSet(Expected::ImageFiles, {"add"}) + notSet(Expected::Gradients, {"Sky", "Dusk"})
            + notSet(Expected::Flags, {"Flat"}) + notSet(Expected::Integers, {"Gap"});

    // Required gradients are looked for among the flags, which are read later.
    const QByteArray allButGradients =
        "[Palettes]\nInk=000\nPaper=fff\n[Colors]\nText=Ink\nGround=Paper\n"
        "[ImageFiles]\nadd=x\nclose=x\n[Integers]\nGap=1\nWidth=1\n[Flags]\nRound=1\nFlat=1\n";
    const QByteArray sky = "[Gradients]\nSky=1\nSky\\size=1\nSky\\1\\pos=0\nSky\\1\\color=fff\n";
    const Messages skySubKeys =
        Expected::invalidGradients({"Sky/1/color", "Sky/1/pos", "Sky/size"});
    QTest::newRow("own-gradient-is-set")
        << own << allButGradients + sky
        << skySubKeys + notSet(Expected::Gradients, {"Sky", "Dusk"});
    QTest::newRow("own-flag-of-the-same-file") << own << allButGradients + "Sky=1\nDusk=1\n"
                                               << notSet(Expected::Gradients, {"Sky", "Dusk"});

    // Only the vocabulary's keys are required; a derived enumeration replaces the base's one.
    QTest::newRow("extended-nothing") << extended << QByteArray()
                                      << notSet(Expected::Palettes, {"Ink", "Paper", "Rule"})
            + notSet(Expected::Colors, {"Text"}) + integersNotSet;
    QTest::newRow("extended-library-keys")
        << extended << QByteArray("[Palettes]\nBrand_1=fff\nPaper=fff\n[Colors]\nOther=fff\n")
        << notSet(Expected::Palettes, {"Ink", "Rule"}) + notSet(Expected::Colors, {"Text"})
            + integersNotSet;
    QTest::newRow("inherited-nothing") << inherited << QByteArray()
                                       << notSet(Expected::Palettes, {"Ink", "Paper", "Rule"})
            + notSet(Expected::Colors, {"Text"}) + integersNotSet;
    QTest::newRow("gapped-nothing")
        << gapped << QByteArray() << notSet(Expected::Flags, {"Round", "Flat", "Even"});
    QTest::newRow("other-case") << gapped << QByteArray("[Flags]\nround=1\nFlat=1\nEven=1\n")
                                << notSet(Expected::Flags, {"Round"});
}

void tst_RequiredKeys::vocabulary()
{
    QFETCH(Vocabulary, vocabulary);
    QFETCH(QByteArray, text);
    QFETCH(Messages, messages);

    const std::unique_ptr<HV::Theme> theme(vocabulary());
    readText(*theme, text);
    COMPARE_MESSAGES(m_log, messages);

    readText(*theme, "ThemeName=Second\n"); // a later file requires nothing
    COMPARE_MESSAGES(m_log, Messages());

    theme->clear();
    readText(*theme, text);
    COMPARE_MESSAGES(m_log, messages);
}

void tst_RequiredKeys::libraryKeys()
{
    HV::WorkableTheme theme;
    readText(theme, "[Integers]\n");
    COMPARE_MESSAGES(m_log,
                     Expected::keysNotSet(Expected::Palettes, libraryPalettes())
                         + Expected::keysNotSet(Expected::Integers, LibraryIntegers));
    readText(theme, "[Integers]\n");
    COMPARE_MESSAGES(m_log, Messages());
}

void tst_RequiredKeys::readersAskTheGivenVocabulary_data()
{
    QTest::addColumn<Reader>("reader");
    QTest::addColumn<Messages>("messages");

    const auto notSet = Expected::keysNotSet;
    QTest::newRow("palettes") << &HV::Theme::readPalettes
                              << notSet(Expected::Palettes, {"Ink", "Paper"});
    QTest::newRow("colors") << &HV::Theme::readColors
                            << notSet(Expected::Colors, {"Text", "Ground"});
    QTest::newRow("image-files") << &HV::Theme::readImageFiles
                                 << notSet(Expected::ImageFiles, {"add", "close"});
    QTest::newRow("gradients") << &HV::Theme::readGradients
                               << notSet(Expected::Gradients, {"Sky", "Dusk"});
    QTest::newRow("flags") << &HV::Theme::readFlags << notSet(Expected::Flags, {"Round", "Flat"});
    QTest::newRow("integers") << &HV::Theme::readIntegers
                              << notSet(Expected::Integers, {"Gap", "Width"});
}

void tst_RequiredKeys::readersAskTheGivenVocabulary()
{
    QFETCH(Reader, reader);
    QFETCH(Messages, messages);

    HV::Theme theme("bare");
    const TemporaryFolder folder;
    QSettings settings(folder.write("empty.theme", {}), QSettings::IniFormat);
    (theme.*reader)(settings, true, OwnVocabulary::staticMetaObject);
    COMPARE_MESSAGES(m_log, messages);
    (theme.*reader)(settings, false, OwnVocabulary::staticMetaObject);
    (theme.*reader)(settings, true, HV::Theme::staticMetaObject);
    COMPARE_MESSAGES(m_log, Messages());
    QVERIFY(Store::isEmpty(theme));
}

void tst_RequiredKeys::flagsAreLookedForAmongFlags()
{
    const TemporaryFolder folder;
    QSettings settings(folder.write("flags.theme", "[Flags]\nSky=0\n[Integers]\nRound=1\n"),
                       QSettings::IniFormat);
    const QMetaObject &own = OwnVocabulary::staticMetaObject;

    HV::Theme theme("bare");
    theme.readFlags(settings, true, own);
    COMPARE_MESSAGES(m_log, Expected::keysNotSet(Expected::Flags, {"Round", "Flat"}));
    theme.readGradients(settings, true, own);
    COMPARE_MESSAGES(m_log, Expected::keysNotSet(Expected::Gradients, {"Dusk"}));

    HV::Theme integers("integers");
    integers.readIntegers(settings, false, own);
    integers.readFlags(settings, true, own);
    COMPARE_MESSAGES(m_log, Expected::keysNotSet(Expected::Flags, {"Round", "Flat"}));
}

QTEST_GUILESS_MAIN(tst_RequiredKeys)

#include "tst_requiredkeys.moc"
