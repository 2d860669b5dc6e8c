// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <hvtheme/theme.h>

#include "expectedmessages.h"
#include "messages.h"
#include "temporaryfolder.h"
#include "themestore.h"
#include "vocabularies.h"

#include <functional>
#include <limits>
#include <memory>

using Lookup = std::function<QVariant(const HV::Theme &)>;
using Vocabulary = std::function<HV::Theme *()>;
Q_DECLARE_METATYPE(Lookup)
Q_DECLARE_METATYPE(Vocabulary)

class tst_Lookups : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_log.start(); }
    void cleanup() { REPORT_STRAY_MESSAGES(m_log); }

    void lookupByKey_data();
    void lookupByKey();
    void lookupByNumber_data();
    void lookupByNumber();
    void lookupOutsideTheVocabulary_data();
    void lookupOutsideTheVocabulary();
    void lookupsChangeNothing();

private:
    CapturedMessages m_log;
};

namespace
{

const QByteArray Sample = R"(ThemeName=Sample
[Palettes]
Ink=#102030
[Colors]
Text=Ink
Accent=#80ff0000
[ImageFiles]
add=../img/add.png
[Flags]
Round=1
Flat=0
[Integers]
Gap=-3
Width=16
)";

const QByteArray Sky = R"([Gradients]
Sky=1
Sky\size=2
Sky\1\pos=0
Sky\1\color=#102030
Sky\2\pos=0.5
Sky\2\color=fff
)";

const QStringList SkySubKeys = {"Sky/1/color", "Sky/1/pos", "Sky/2/color", "Sky/2/pos", "Sky/size"};

// QVariant does not compare gradients, so their results are texts.
QString described(const QGradientStops &stops)
{
    QStringList texts;
    for (const QGradientStop &stop : stops)
        texts.append(QString::number(stop.first) + ' ' + stop.second.name(QColor::HexArgb));
    return texts.join(", ");
}

// A key is a QString or a position.
template<typename Key>
Lookup flag(Key key)
{
    return [key](const HV::Theme &theme) { return QVariant(theme.flag(key)); };
}

template<typename Key>
Lookup integer(Key key)
{
    return [key](const HV::Theme &theme) { return QVariant(theme.integer(key)); };
}

template<typename Key>
Lookup color(Key key)
{
    return [key](const HV::Theme &theme) { return QVariant(theme.color(key)); };
}

template<typename Key>
Lookup gradient(Key key)
{
    return [key](const HV::Theme &theme) { return QVariant(described(theme.gradient(key))); };
}

template<typename Key>
Lookup imageFile(Key key, const QString &defaultFile = QString(), bool warn = true)
{
    return [key, defaultFile, warn](const HV::Theme &theme) {
        return QVariant(theme.imageFile(key, defaultFile, warn));
    };
}

const QColor Black(Qt::black);

} // namespace

void tst_Lookups::lookupByKey_data()
{
    QTest::addColumn<Lookup>("lookup");
    QTest::addColumn<QVariant>("expected");
    QTest::addColumn<Messages>("messages");

    const QString up = QFileInfo(QCoreApplication::applicationDirPath()).path();
    const Messages none;

    QTest::newRow("flag-true") << flag("Round") << QVariant(true) << none;
    QTest::newRow("flag-false") << flag("Flat") << QVariant(false) << none;
    QTest::newRow("flag-missing") << flag("Brand_1") << QVariant(false)
                                  << Messages{Expected::noFlag("Brand_1")};
    QTest::newRow("flag-other-case")
        << flag("round") << QVariant(false) << Messages{Expected::noFlag("round")};
    QTest::newRow("flag-of-another-kind")
        << flag("Gap") << QVariant(false) << Messages{Expected::noFlag("Gap")};
    QTest::newRow("flag-empty-key")
        << flag("") << QVariant(false) << Messages{Expected::noFlag("")};

    QTest::newRow("integer") << integer("Width") << QVariant(16LL) << none;
    QTest::newRow("integer-negative") << integer("Gap") << QVariant(-3LL) << none;
    QTest::newRow("integer-missing")
        << integer("Depth") << QVariant(0LL) << Messages{Expected::noInteger("Depth")};
    QTest::newRow("integer-other-case")
        << integer("width") << QVariant(0LL) << Messages{Expected::noInteger("width")};
    QTest::newRow("integer-of-another-kind")
        << integer("Round") << QVariant(0LL) << Messages{Expected::noInteger("Round")};

    QTest::newRow("color") << color("Accent") << QVariant(QColor(255, 0, 0, 128)) << none;
    QTest::newRow("color-from-the-palette")
        << color("Text") << QVariant(QColor(16, 32, 48)) << none;
    QTest::newRow("color-missing")
        << color("Color_W100") << QVariant(Black) << Messages{Expected::noColor("Color_W100")};
    QTest::newRow("color-other-case")
        << color("text") << QVariant(Black) << Messages{Expected::noColor("text")};
    QTest::newRow("color-palette-key")
        << color("Ink") << QVariant(Black) << Messages{Expected::noColor("Ink")};

    QTest::newRow("image-file") << imageFile("add") << QVariant(up + "/img/add.png") << none;
    QTest::newRow("image-file-default-unused")
        << imageFile("add", "x.png") << QVariant(up + "/img/add.png") << none;
    QTest::newRow("image-file-missing")
        << imageFile("close") << QVariant("") << Messages{Expected::noImageFile("close")};
    QTest::newRow("image-file-other-case")
        << imageFile("Add") << QVariant("") << Messages{Expected::noImageFile("Add")};

    QTest::newRow("gradient") << gradient("Sky") << QVariant("0 #ff102030, 0.5 #ffffffff") << none;
    QTest::newRow("gradient-missing")
        << gradient("Dusk") << QVariant("") << Messages{Expected::noGradient("Dusk")};
    QTest::newRow("gradient-other-case")
        << gradient("sky") << QVariant("") << Messages{Expected::noGradient("sky")};

    // QDebug escapes what it quotes.
    Message quotes = Expected::noFlag("");
    quotes.text = R"(Flag type  "say \"no\"" is not exist.)";
    QTest::newRow("key-with-quotes") << flag("say \"no\"") << QVariant(false) << Messages{quotes};
    Message newline = Expected::noColor("");
    newline.text = R"(Color type  "two\nlines" is invalid.)";
    QTest::newRow("key-with-newline")
        << color("two\nlines") << QVariant(Black) << Messages{newline};
}

void tst_Lookups::lookupByKey()
{
    QFETCH(Lookup, lookup);
    QFETCH(QVariant, expected);
    QFETCH(Messages, messages);

    HV::Theme theme("keys");
    readText(theme, Sample + Sky);
    COMPARE_MESSAGES(m_log, Expected::invalidGradients(SkySubKeys));

    QCOMPARE(lookup(theme), expected);
    COMPARE_MESSAGES(m_log, messages);
}

void tst_Lookups::lookupByNumber_data()
{
    QTest::addColumn<Vocabulary>("vocabulary");
    QTest::addColumn<Lookup>("lookup");
    QTest::addColumn<QVariant>("expected");
    QTest::addColumn<Messages>("messages");

    const QString up = QFileInfo(QCoreApplication::applicationDirPath()).path();
    const Vocabulary own = [] { return new OwnVocabulary; };
    const Vocabulary gapped = [] { return new GappedVocabulary; };
    const Vocabulary extended = [] { return new ExtendedVocabulary; };
    const Vocabulary inherited = [] { return new InheritedVocabulary; };
    const Vocabulary workable = [] { return new HV::WorkableTheme; };
    const Messages none;

    QTest::newRow("flag-0") << own << flag(0) << QVariant(true) << none;
    QTest::newRow("flag-1") << own << flag(1) << QVariant(false) << none;
    QTest::newRow("integer-0") << own << integer(0) << QVariant(-3LL) << none;
    QTest::newRow("integer-1") << own << integer(1) << QVariant(16LL) << none;
    QTest::newRow("color-0") << own << color(0) << QVariant(QColor(16, 32, 48)) << none;
    QTest::newRow("image-file-0") << own << imageFile(0) << QVariant(up + "/img/add.png") << none;
    QTest::newRow("gradient-0") << own << gradient(0) << QVariant("0 #ff102030, 0.5 #ffffffff")
                                << none;

    // A number that names a key goes on as that key: the message is the one by key.
    QTest::newRow("color-1-not-loaded")
        << own << color(1) << QVariant(Black) << Messages{Expected::noColor("Ground")};
    QTest::newRow("image-file-1-not-loaded") << own << imageFile(1, "x.png") << QVariant("x.png")
                                             << Messages{Expected::noImageFile("close")};
    QTest::newRow("image-file-1-quietly")
        << own << imageFile(1, "x.png", false) << QVariant("x.png") << none;
    QTest::newRow("gradient-1-not-loaded")
        << own << gradient(1) << QVariant("") << Messages{Expected::noGradient("Dusk")};
    QTest::newRow("integer-not-loaded")
        << workable << integer(3) << QVariant(0LL) << Messages{Expected::noInteger("FontSize_L")};
    QTest::newRow("integer-last-of-the-library")
        << workable << integer(5) << QVariant(0LL) << Messages{Expected::noInteger("FontSize_XXL")};

    // The number is a position: neither a value nor an alias is translated.
    QTest::newRow("flag-position-0") << gapped << flag(0) << QVariant(true) << none;
    QTest::newRow("flag-position-1") << gapped << flag(1) << QVariant(false) << none;
    QTest::newRow("flag-position-2-alias")
        << gapped << flag(2) << QVariant(false) << Messages{Expected::noFlag("Even")};
    QTest::newRow("flag-value-10")
        << gapped << flag(10) << QVariant(false) << Messages{Expected::noFlag(10)};

    // The most derived enumeration of a name wins whole; the others are still found.
    QTest::newRow("color-of-the-derived-class")
        << extended << color(0) << QVariant(QColor(16, 32, 48)) << none;
    QTest::newRow("color-past-the-derived-class")
        << extended << color(1) << QVariant(Black) << Messages{Expected::noColor(1)};
    QTest::newRow("integer-of-the-base-class")
        << extended << integer(0) << QVariant(0LL) << Messages{Expected::noInteger("FontSize_XS")};
    QTest::newRow("color-two-classes-down")
        << inherited << color(0) << QVariant(QColor(16, 32, 48)) << none;
}

void tst_Lookups::lookupByNumber()
{
    QFETCH(Vocabulary, vocabulary);
    QFETCH(Lookup, lookup);
    QFETCH(QVariant, expected);
    QFETCH(Messages, messages);

    const std::unique_ptr<HV::Theme> theme(vocabulary());
    readText(*theme, Sample + Sky);
    m_log.take(); // the reading's own

    QCOMPARE(lookup(*theme), expected);
    COMPARE_MESSAGES(m_log, messages);
}

void tst_Lookups::lookupOutsideTheVocabulary_data()
{
    QTest::addColumn<Vocabulary>("vocabulary");
    QTest::addColumn<int>("n");
    QTest::addColumn<bool>("integerToo");

    const Vocabulary plain = [] { return new HV::Theme("plain"); };
    const Vocabulary workable = [] { return new HV::WorkableTheme; };
    const Vocabulary own = [] { return new OwnVocabulary; };

    QTest::newRow("plain-0") << plain << 0 << true;
    QTest::newRow("plain-minus-1") << plain << -1 << true;
    QTest::newRow("plain-5") << plain << 5 << true;
    QTest::newRow("workable-0") << workable << 0 << false; // its integers have a key 0
    QTest::newRow("workable-minus-1") << workable << -1 << true;
    QTest::newRow("workable-6") << workable << 6 << true;
    QTest::newRow("workable-7") << workable << 7 << true;
    QTest::newRow("workable-99") << workable << 99 << true;
    QTest::newRow("own-minus-1") << own << -1 << true;
    QTest::newRow("own-2") << own << 2 << true;
    QTest::newRow("own-lowest") << own << std::numeric_limits<int>::min() << true;
    QTest::newRow("own-highest") << own << std::numeric_limits<int>::max() << true;
}

void tst_Lookups::lookupOutsideTheVocabulary()
{
    QFETCH(Vocabulary, vocabulary);
    QFETCH(int, n);
    QFETCH(bool, integerToo);

    const std::unique_ptr<HV::Theme> theme(vocabulary());
    QCOMPARE(theme->flag(n), false);
    COMPARE_MESSAGES(m_log, Messages{Expected::noFlag(n)});
    QCOMPARE(theme->color(n), Black);
    COMPARE_MESSAGES(m_log, Messages{Expected::noColor(n)});
    QCOMPARE(theme->gradient(n), QGradientStops());
    COMPARE_MESSAGES(m_log, Messages{Expected::noGradient(n)});
    if (integerToo) {
        QCOMPARE(theme->integer(n), 0);
        COMPARE_MESSAGES(m_log, Messages{Expected::noInteger(n)});
    }

    const QString image = theme->imageFile(n, "x.png", true);
    QVERIFY(image.isEmpty() && !image.isNull()); // the default file has no part in it
    COMPARE_MESSAGES(m_log, Messages{Expected::noImageFile(n)});
    const QString quiet = theme->imageFile(n, "x.png", false);
    QVERIFY(quiet.isEmpty() && !quiet.isNull());
}

void tst_Lookups::lookupsChangeNothing()
{
    HV::Theme theme("unchanged");
    QCOMPARE(theme.flag("Round"), false);
    QCOMPARE(theme.integer("Gap"), 0);
    QCOMPARE(theme.color("Text"), Black);
    QCOMPARE(theme.imageFile("add", "x.png"), QString("x.png"));
    QCOMPARE(theme.gradient("Sky"), QGradientStops());
    QVERIFY(Store::isEmpty(theme));
    COMPARE_MESSAGES(
        m_log,
        (Messages{Expected::noFlag("Round"), Expected::noInteger("Gap"), Expected::noColor("Text"),
                  Expected::noImageFile("add"), Expected::noGradient("Sky")}));
}

QTEST_GUILESS_MAIN(tst_Lookups)

#include "tst_lookups.moc"
