// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <hvtheme/theme.h>
#include <hvtheme/workabletheming.h>

#include "expectedmessages.h"
#include "messages.h"
#include "qtversion.h"
#include "temporaryfolder.h"
#include "themestore.h"

#include <memory>
#include <type_traits>

static_assert(!std::is_copy_constructible_v<HV::Theme> && !std::is_copy_assignable_v<HV::Theme>);
static_assert(!std::is_convertible_v<QString, HV::Theme>);

class tst_Theme : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_log.start(); }
    void cleanup() { REPORT_STRAY_MESSAGES(m_log); }

    void layout();
    void metaObjectIsBare();
    void construction();
    void parentDeletesTheTheme();
    void setDisplayName();
    void clear();
    void clearKeepsTheObject();
    void clearOfAnEmptyTheme();

    void values();
    void valuesHaveTheLastKind_data();
    void valuesHaveTheLastKind();
    void valuesAreCached();
    void emptyValuesAreNotCached();
    void valuesAreOneObject();

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

QString inApplicationFolder(const QString &path)
{
    return QCoreApplication::applicationDirPath() + path;
}

const QColor Black(Qt::black);

} // namespace

void tst_Theme::layout()
{
    const HV::Theme theme("layout");
    const auto offset = [&theme](const auto &member) {
        return int(reinterpret_cast<const char *>(&member)
                   - reinterpret_cast<const char *>(&theme));
    };

    const QVector<int> offsets = {offset(Store::of(theme, Store::Id())),
                                  offset(Store::of(theme, Store::FilePath())),
                                  offset(Store::of(theme, Store::DisplayName())),
                                  offset(Store::of(theme, Store::Values())),
                                  offset(Store::of(theme, Store::ImageFiles())),
                                  offset(Store::of(theme, Store::Palettes())),
                                  offset(Store::of(theme, Store::Colors())),
                                  offset(Store::of(theme, Store::Gradients())),
                                  offset(Store::of(theme, Store::Flags())),
                                  offset(Store::of(theme, Store::Integers()))};

    // Three texts, then maps, each of which is one pointer to shared data.
    const int pointer = int(sizeof(void *));
    const int text = QtDifference::pointersOfText * pointer;
    QVector<int> expected;
    int next = int(sizeof(QObject));
    for (int i = 0; i < 10; ++i) {
        expected.append(next);
        next += i < 3 ? text : pointer;
    }
    QCOMPARE(offsets, expected);
    QCOMPARE(int(sizeof(HV::Theme)), next);
    QCOMPARE(sizeof(HV::WorkableTheme), sizeof(HV::Theme));
}

void tst_Theme::metaObjectIsBare()
{
    const QMetaObject &meta = HV::Theme::staticMetaObject;
    QCOMPARE(meta.className(), "HV::Theme");
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.enumeratorCount(), meta.enumeratorOffset());
    QCOMPARE(meta.classInfoCount(), meta.classInfoOffset());
    QCOMPARE(meta.constructorCount(), 0);
}

void tst_Theme::construction()
{
    QObject parent;
    HV::Theme theme("zorka.global.theme", &parent);

    QCOMPARE(theme.id(), QString("zorka.global.theme"));
    QVERIFY(theme.filePath().isNull());
    QVERIFY(theme.displayName().isNull());
    QVERIFY(Store::isEmpty(theme));
    QCOMPARE(theme.parent(), &parent);
    QCOMPARE(HV::Theme("alone").parent(), nullptr);
}

void tst_Theme::parentDeletesTheTheme()
{
    auto parent = std::make_unique<QObject>();
    const QPointer<HV::Theme> theme = new HV::Theme("theme", parent.get());
    const QPointer<QObject> child = new QObject(theme);
    parent.reset();
    QVERIFY(theme.isNull());
    QVERIFY(child.isNull());
} // NOLINT(clang-analyzer-cplusplus.NewDeleteLeaks): the parent has deleted them

void tst_Theme::setDisplayName()
{
    HV::Theme theme("named");
    theme.setDisplayName("Mine");
    QCOMPARE(theme.displayName(), QString("Mine"));
    QVERIFY(Store::isEmpty(theme));
    QVERIFY(theme.filePath().isNull());

    readText(theme, "[Flags]\nRound=1\n");
    QCOMPARE(theme.displayName(), QString("Mine"));
    const QVariantMap values = theme.values();
    theme.setDisplayName("Yours");
    QCOMPARE(theme.displayName(), QString("Yours"));
    QCOMPARE(theme.values(), values);

    readText(theme, "ThemeName=Theirs\n");
    QCOMPARE(theme.displayName(), QString("Theirs"));
    theme.setDisplayName("Mine");
    theme.clear();
    QVERIFY(theme.displayName().isNull());
}

void tst_Theme::clear()
{
    HV::Theme theme("cleared");
    readText(theme, Sample + Sky);
    COMPARE_MESSAGES(m_log, Expected::invalidGradients(SkySubKeys));
    QVERIFY(!theme.values().isEmpty());
    QVERIFY(!theme.filePath().isEmpty());

    theme.clear();
    QCOMPARE(theme.id(), QString("cleared"));
    QVERIFY(theme.filePath().isNull());
    QVERIFY(theme.displayName().isNull());
    QVERIFY(Store::isEmpty(theme));
    QCOMPARE(theme.values(), QVariantMap());

    QCOMPARE(theme.flag("Round"), false);
    QCOMPARE(theme.integer("Gap"), 0);
    QCOMPARE(theme.color("Text"), Black);
    QCOMPARE(theme.imageFile("add"), QString());
    QCOMPARE(theme.gradient("Sky"), QGradientStops());
    QCOMPARE(theme.readNamedColor("Ink").first, Black); // the palette is empty too
    COMPARE_MESSAGES(m_log,
                     (Messages{Expected::noFlag("Round"), Expected::noInteger("Gap"),
                               Expected::noColor("Text"), Expected::noImageFile("add"),
                               Expected::noGradient("Sky"), Expected::badColor("Ink", "#Ink")}));
}

void tst_Theme::clearKeepsTheObject()
{
    QObject parent;
    HV::Theme theme("kept", &parent);
    QObject child(&theme);
    theme.setObjectName("name");
    theme.setProperty("dynamic", 5);
    readText(theme, Sample);

    theme.clear();
    QCOMPARE(theme.parent(), &parent);
    QCOMPARE(theme.children(), QObjectList{&child});
    QCOMPARE(theme.objectName(), QString("name"));
    QCOMPARE(theme.property("dynamic").toInt(), 5);
}

void tst_Theme::clearOfAnEmptyTheme()
{
    HV::Theme theme("empty");
    theme.clear();
    theme.clear();
    QCOMPARE(theme.id(), QString("empty"));
    QVERIFY(theme.filePath().isNull());
    QVERIFY(theme.displayName().isNull());
    QVERIFY(Store::isEmpty(theme));
}

void tst_Theme::values()
{
    HV::Theme theme("values");
    readText(theme,
             "ThemeName=Flat\n"
             "[Palettes]\nW100=fff\n"
             "[Colors]\nColor_W100=W100\nColor_B=#80102030\n"
             "[ImageFiles]\narrow=images/arrow.png\nnone=\nicon=:/icons/a.png\n"
             "[Flags]\nCompact=1\n"
             "[Integers]\nGap=-3\nBox/Gap=4\n"
                 + Sky);
    COMPARE_MESSAGES(m_log, Expected::invalidGradients(SkySubKeys));

    const QVariantMap expected = {{"Color_W100", QColor(255, 255, 255)},
                                  {"Color_B", QColor(16, 32, 48, 128)},
                                  {"arrow", inApplicationFolder("/images/arrow.png")},
                                  {"none", inApplicationFolder("")},
                                  {"icon", ":/icons/a.png"},
                                  {"Compact", true},
                                  {"Gap", -3LL},
                                  {"Box/Gap", 4LL}};
    const QVariantMap values = theme.values();
    QCOMPARE(values, expected);
    QCOMPARE(values.value("Color_W100").userType(), int(QMetaType::QColor));
    QCOMPARE(values.value("Compact").userType(), int(QMetaType::Bool));
    QCOMPARE(values.value("Gap").userType(), int(QMetaType::LongLong));
    QCOMPARE(values.value("arrow").userType(), int(QMetaType::QString));
}

void tst_Theme::valuesHaveTheLastKind_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QVariant>("expected");

    const QByteArray color = "[Colors]\nAccent=#102030\n";
    const QByteArray flag = "[Flags]\nAccent=1\n";
    const QByteArray integer = "[Integers]\nAccent=7\n";
    const QByteArray image = "[ImageFiles]\nAccent=:/accent.png\n";

    QTest::newRow("color") << color << QVariant(QColor(16, 32, 48));
    QTest::newRow("flag-over-color") << color + flag << QVariant(true);
    QTest::newRow("integer-over-color") << color + integer << QVariant(7LL);
    QTest::newRow("image-over-color") << color + image << QVariant(":/accent.png");
    QTest::newRow("integer-over-flag") << flag + integer << QVariant(7LL);
    QTest::newRow("image-over-flag") << flag + image << QVariant(":/accent.png");
    QTest::newRow("image-over-integer") << integer + image << QVariant(":/accent.png");
    QTest::newRow("image-over-all") << color + flag + integer + image << QVariant(":/accent.png");
}

void tst_Theme::valuesHaveTheLastKind()
{
    QFETCH(QByteArray, text);
    QFETCH(QVariant, expected);

    HV::Theme theme("kinds");
    readText(theme, text);
    QCOMPARE(theme.values(), (QVariantMap{{"Accent", expected}}));
    QCOMPARE(theme.values().value("Accent").userType(), expected.userType());
}

void tst_Theme::valuesAreCached()
{
    HV::Theme theme("cached");
    readText(theme, "[Colors]\nText=#102030\n[Flags]\nRound=0\n");
    const QVariantMap first = theme.values();
    QCOMPARE(first, (QVariantMap{{"Text", QColor(16, 32, 48)}, {"Round", false}}));

    readText(theme, "[Colors]\nAccent=#fff\n[Flags]\nRound=1\n[Integers]\nGap=2\n");
    QCOMPARE(theme.flag("Round"), true);
    QCOMPARE(theme.integer("Gap"), 2);
    QCOMPARE(theme.values(), first);

    theme.clear();
    readText(theme, "[Integers]\nGap=2\n");
    QCOMPARE(theme.values(), (QVariantMap{{"Gap", 2LL}}));
}

void tst_Theme::emptyValuesAreNotCached()
{
    HV::Theme theme("late");
    QCOMPARE(theme.values(), QVariantMap());
    readText(theme, "[Palettes]\nInk=#102030\n" + Sky);
    COMPARE_MESSAGES(m_log, Expected::invalidGradients(SkySubKeys));
    QCOMPARE(theme.values(), QVariantMap()); // neither kind is a value
    readText(theme, "[Colors]\nText=Ink\n");
    QCOMPARE(theme.values(), (QVariantMap{{"Text", QColor(16, 32, 48)}}));
}

void tst_Theme::valuesAreOneObject()
{
    HV::Theme theme("reference");
    const QVariantMap &values = theme.values();
    QCOMPARE(&values, &Store::of(theme, Store::Values()));
    QVERIFY(values.isEmpty());
    readText(theme, "[Flags]\nRound=1\n");
    QCOMPARE(&theme.values(), &values);
    QCOMPARE(values.size(), 1);
    theme.clear();
    QVERIFY(values.isEmpty());
}

QTEST_GUILESS_MAIN(tst_Theme)

#include "tst_theme.moc"
