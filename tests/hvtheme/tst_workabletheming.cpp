// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <hvtheme/theming.h>
#include <hvtheme/workabletheming.h>

#include "expectedmessages.h"
#include "messages.h"
#include "temporaryfolder.h"
#include "themestore.h"
#include "vocabularies.h"

#include <QApplication>
#include <QLabel>
#include <QMetaEnum>
#include <QRegularExpression>

#include <memory>
#include <type_traits>

static_assert(!std::is_convertible_v<int, HV::WorkableTheme::Palette>, "scoped");
static_assert(int(HV::WorkableTheme::Palette::B50_) == 27);

class tst_WorkableTheming : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_log.start(); }
    void cleanup() { REPORT_STRAY_MESSAGES(m_log); }

    void construction();
    void metaObject();
    void metacast();
    void metacall();
    void enumeration_data();
    void enumeration();
    void enumerationsAreInOrder();
    void derivedEnumerations();
    void integersByEnumeration();

    void changeThemeReadsFilesNamedTheme_data();
    void changeThemeReadsFilesNamedTheme();
    void changeAppStyleSheet();
    void changeAppStyleSheetReplacesTheWhole();
    void changeAppStyleSheetOfAnEmptyTheme();

private:
    CapturedMessages m_log;
};

namespace
{

QStringList numbered(const QString &stem, int count)
{
    QStringList keys;
    for (int i = 1; i <= count; ++i)
        keys.append(stem + QString::number(i));
    return keys;
}

const QStringList IntegerKeys = {"FontSize_XS", "FontSize_S",  "FontSize_M",
                                 "FontSize_L",  "FontSize_XL", "FontSize_XXL"};

const QStringList PaletteKeys = numbered("Brand_", 10) + numbered("Bg_", 7)
    + QStringList{"W100", "W90", "W80", "W40", "W20", "W15", "W10", "W8"}
    + QStringList{"B20", "B32", "B50_", "B100"} + numbered("Red_", 10) + numbered("Yellow_", 10)
    + numbered("Green_", 10) + numbered("Orange_", 10);

QMetaEnum enumerator(const QMetaObject &meta, const char *name)
{
    return meta.enumerator(meta.indexOfEnumerator(name));
}

QStringList keys(const QMetaEnum &enumeration)
{
    QStringList keys;
    for (int i = 0; i < enumeration.keyCount(); ++i)
        keys.append(enumeration.key(i));
    return keys;
}

QString templates()
{
    QString text;
    HV::readStyleSheet(":/stylesheet", text);
    return text;
}

// The keys of the templates' tokens of one kind, in the order of the text.
QStringList tokenKeys(const QString &kind)
{
    QStringList keys;
    const QRegularExpression token("global[.]theme[.]" + kind + "[.]([A-Za-z0-9_]+)");
    QRegularExpressionMatchIterator it = token.globalMatch(templates());
    while (it.hasNext())
        keys.append(it.next().captured(1));
    return keys;
}

// A theme file with every key that the templates use and every key that is required.
QByteArray completeTheme(const QByteArray &name, const QByteArray &color)
{
    QByteArray text = "ThemeName=" + name + "\n[Palettes]\n";
    for (const QString &key : PaletteKeys)
        text += key.toLatin1() + "=fff\n";
    text += "[Colors]\n";
    for (const QString &key : tokenKeys("color"))
        text += key.toLatin1() + '=' + color + '\n';
    text += "[ImageFiles]\n";
    for (const QString &key : tokenKeys("image"))
        text += key.toLatin1() + "=:/stylesheet/dialog.qss\n"; // any file that exists
    text += "[Integers]\n";
    for (const QString &key : IntegerKeys)
        text += key.toLatin1() + "=13\n";
    return text;
}

} // namespace

void tst_WorkableTheming::construction()
{
    QObject parent;
    const auto theme = std::make_unique<HV::WorkableTheme>(&parent);
    QCOMPARE(theme->id(), QString("zorka.global.theme"));
    QCOMPARE(theme->parent(), &parent);
    QVERIFY(theme->filePath().isNull());
    QVERIFY(theme->displayName().isNull());
    QVERIFY(Store::isEmpty(*theme));
    QVERIFY(qobject_cast<HV::Theme *>(static_cast<QObject *>(theme.get())));
    QVERIFY(qobject_cast<HV::WorkableTheme *>(static_cast<QObject *>(theme.get())));
    QVERIFY(theme->inherits("HV::WorkableTheme"));
    QVERIFY(theme->inherits("HV::Theme"));
    QVERIFY(theme->inherits("QObject"));
    QCOMPARE(HV::WorkableTheme().parent(), nullptr);
    const HV::Theme plain("plain");
    QVERIFY(!plain.inherits("HV::WorkableTheme"));
}

void tst_WorkableTheming::metaObject()
{
    const HV::WorkableTheme theme;
    const QMetaObject &meta = HV::WorkableTheme::staticMetaObject;
    QCOMPARE(theme.metaObject(), &meta);
    QCOMPARE(meta.className(), "HV::WorkableTheme");
    QCOMPARE(meta.superClass(), &HV::Theme::staticMetaObject);
    QCOMPARE(meta.classInfoCount(), meta.classInfoOffset());
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.constructorCount(), 0);
}

void tst_WorkableTheming::metacast()
{
    HV::WorkableTheme theme;
    QCOMPARE(theme.qt_metacast("HV::WorkableTheme"), &theme);
    QCOMPARE(theme.qt_metacast("HV::Theme"), static_cast<HV::Theme *>(&theme));
    QCOMPARE(theme.qt_metacast("QObject"), static_cast<QObject *>(&theme));
    QCOMPARE(theme.qt_metacast("WorkableTheme"), nullptr);
    QCOMPARE(theme.qt_metacast(nullptr), nullptr);
    HV::Theme plain("plain");
    QCOMPARE(plain.qt_metacast("HV::WorkableTheme"), nullptr);
}

void tst_WorkableTheming::metacall()
{
    HV::WorkableTheme theme;
    const int own = QObject::staticMetaObject.methodCount();
    QCOMPARE(theme.qt_metacall(QMetaObject::InvokeMetaMethod, own + 2, nullptr), 2);
}

void tst_WorkableTheming::enumeration_data()
{
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("Color") << QStringList();
    QTest::newRow("ImageFile") << QStringList();
    QTest::newRow("Gradient") << QStringList();
    QTest::newRow("Flag") << QStringList();
    QTest::newRow("Integer") << IntegerKeys;
    QTest::newRow("Palette") << PaletteKeys;
}

void tst_WorkableTheming::enumeration()
{
    QFETCH(QStringList, expected);

    const QMetaEnum enumeration =
        enumerator(HV::WorkableTheme::staticMetaObject, QTest::currentDataTag());
    QVERIFY(enumeration.isValid());
    QVERIFY(enumeration.isScoped());
    QVERIFY(!enumeration.isFlag());
    QCOMPARE(enumeration.scope(), "HV::WorkableTheme");
    QCOMPARE(keys(enumeration), expected);
    for (int i = 0; i < enumeration.keyCount(); ++i)
        QCOMPARE(enumeration.value(i), i);
    QVERIFY(!enumeration.key(int(expected.size())));
}

void tst_WorkableTheming::enumerationsAreInOrder()
{
    const QMetaObject &meta = HV::WorkableTheme::staticMetaObject;
    QCOMPARE(meta.enumeratorOffset(), QObject::staticMetaObject.enumeratorCount());
    QStringList names;
    for (int i = meta.enumeratorOffset(); i < meta.enumeratorCount(); ++i)
        names.append(meta.enumerator(i).name());
    QCOMPARE(names, (QStringList{"Color", "ImageFile", "Gradient", "Flag", "Integer", "Palette"}));

    const QMetaEnum palette = enumerator(meta, "Palette");
    QCOMPARE(palette.keyCount(), 69);
    QCOMPARE(palette.key(24), "W8");
    QCOMPARE(palette.key(27), "B50_");
    QCOMPARE(palette.key(34), "Red_6");
    QCOMPARE(palette.key(68), "Orange_10");
}

void tst_WorkableTheming::derivedEnumerations()
{
    const InheritedVocabulary theme;
    const QMetaObject &meta = *theme.metaObject();
    QCOMPARE(keys(enumerator(meta, "Palette")), (QStringList{"Ink", "Paper", "Rule"}));
    QCOMPARE(keys(enumerator(meta, "Color")), QStringList{"Text"});
    QCOMPARE(keys(enumerator(meta, "Integer")), IntegerKeys);
    QVERIFY(enumerator(meta, "Flag").isValid());
    QVERIFY(!enumerator(HV::Theme::staticMetaObject, "Integer").isValid());
    QCOMPARE(theme.id(), QString("zorka.global.theme"));
}

void tst_WorkableTheming::integersByEnumeration()
{
    const TemporaryFolder folder;
    folder.write("default.theme", completeTheme("Default", "fff") + "FontSize_L=16\n");
    HV::WorkableTheme theme;
    HV::changeTheme(&theme, {}, folder.path());
    QCOMPARE(theme.integer(3), 16);
    QCOMPARE(theme.integer(int(HV::WorkableTheme::Integer::FontSize_L)), 16);
    QCOMPARE(theme.integer(int(HV::WorkableTheme::Integer::FontSize_XS)), 13);
}

void tst_WorkableTheming::changeThemeReadsFilesNamedTheme_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("displayName");

    QTest::newRow("default") << "default"
                             << "Default";
    QTest::newRow("empty") << ""
                           << "Default";
    QTest::newRow("named") << "dark"
                           << "Dark";
    QTest::newRow("missing") << "light"
                             << "Default";
}

void tst_WorkableTheming::changeThemeReadsFilesNamedTheme()
{
    QFETCH(QString, name);
    QFETCH(QString, displayName);

    const TemporaryFolder folder;
    folder.write("default.theme", "ThemeName=Default\n");
    folder.write("dark.theme", "ThemeName=Dark\n");
    folder.write("light.ini", "ThemeName=Trap\n");
    folder.write("light", "ThemeName=Trap\n");
    HV::Theme theme("plain");
    HV::changeTheme(&theme, name, folder.path());
    QCOMPARE(theme.displayName(), displayName);
    QCOMPARE(theme.filePath(), folder.filePath("default.theme"));
}

void tst_WorkableTheming::changeAppStyleSheet()
{
    const TemporaryFolder folder;
    folder.write("default.theme", completeTheme("Default", "102030"));
    folder.write("dark.theme", "ThemeName=Dark\n[Colors]\nExtra=fff\n");
    HV::WorkableTheme theme;
    HV::changeAppStyleSheet(&theme, "dark", folder.path());

    QCOMPARE(theme.displayName(), QString("Dark"));
    QCOMPARE(theme.filePath(), folder.filePath("default.theme"));
    QCOMPARE(theme.color("Extra"), QColor(255, 255, 255));

    QString expected = templates();
    QVERIFY(!expected.isEmpty());
    for (const QString &key : IntegerKeys)
        expected.replace("global.theme.integer." + key + '|', "13");
    expected.replace(QRegularExpression("global[.]theme[.]color[.][A-Za-z0-9_]+"), "#102030");
    expected.replace(QRegularExpression("global[.]theme[.]image[.][A-Za-z0-9_]+"),
                     ":/stylesheet/dialog.qss");
    QVERIFY(!expected.contains("global."));
    QCOMPARE(qApp->styleSheet(), expected);
}

void tst_WorkableTheming::changeAppStyleSheetReplacesTheWhole()
{
    const TemporaryFolder folder;
    folder.write("default.theme", completeTheme("Default", "102030"));
    qApp->setStyleSheet("QLabel { color: red; }");
    QLabel label("text");
    label.ensurePolished();
    QCOMPARE(label.palette().color(QPalette::WindowText), QColor(Qt::red));

    HV::WorkableTheme theme;
    HV::changeAppStyleSheet(&theme, "default", folder.path());
    QVERIFY(!qApp->styleSheet().contains("color: red"));
    QCOMPARE(label.palette().color(QPalette::WindowText), QColor(16, 32, 48)); // at once

    const TemporaryFolder other;
    other.write("default.theme", completeTheme("Default", "302010"));
    HV::changeAppStyleSheet(&theme, "default", other.path());
    QVERIFY(!qApp->styleSheet().contains("#102030"));
    QCOMPARE(label.palette().color(QPalette::WindowText), QColor(48, 32, 16));
}

void tst_WorkableTheming::changeAppStyleSheetOfAnEmptyTheme()
{
    HV::WorkableTheme theme;
    HV::changeAppStyleSheet(&theme, "dark", "/no/such/folder");
    QVERIFY(!qApp->styleSheet().isEmpty());
    QVERIFY(!qApp->styleSheet().contains("global.theme."));

    Messages messages = Expected::keysNotSet(Expected::Palettes, PaletteKeys)
        + Expected::keysNotSet(Expected::Integers, IntegerKeys);
    for (const QString &key : tokenKeys("image"))
        messages.append(Expected::noImage(key, ""));
    COMPARE_MESSAGES(m_log, messages);
}

QTEST_MAIN(tst_WorkableTheming)

#include "tst_workabletheming.moc"
