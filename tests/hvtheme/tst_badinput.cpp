// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <hvtheme/theme.h>
#include <hvtheme/theming.h>

#include "expectedmessages.h"
#include "messages.h"
#include "temporaryfolder.h"
#include "themestore.h"
#include "vocabularies.h"

#include <algorithm>
#include <functional>

using Prepare = std::function<void(const TemporaryFolder &, const QString &)>;
Q_DECLARE_METATYPE(Prepare)

/*! Whatever stands in a file's place, the fixed values and the fixed messages come, and no crash. */
class tst_BadInput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_log.start(); }
    void cleanup() { REPORT_STRAY_MESSAGES(m_log); }

    void themeFileWithoutContent_data();
    void themeFileWithoutContent();
    void unreadableThemeFile_data();
    void unreadableThemeFile();
    void binaryThemeFile_data();
    void binaryThemeFile();
    void cutThemeFile();
    void largeThemeFile();
    void gradientSizeWithoutStops();
    void binaryTemplate();
    void largeTemplate();

private:
    CapturedMessages m_log;
};

namespace
{

// Bytes of every value, the same in every run.
QByteArray noise(int size, quint32 seed)
{
    QByteArray bytes;
    bytes.reserve(size);
    for (int i = 0; i < size; ++i) {
        seed = seed * 1664525 + 1013904223;
        bytes.append(char(seed >> 24));
    }
    return bytes;
}

const Messages RequiredByOwnVocabulary = Expected::keysNotSet(Expected::Palettes, {"Ink", "Paper"})
    + Expected::keysNotSet(Expected::Colors, {"Text", "Ground"})
    + Expected::keysNotSet(Expected::ImageFiles, {"add", "close"})
    + Expected::keysNotSet(Expected::Gradients, {"Sky", "Dusk"})
    + Expected::keysNotSet(Expected::Flags, {"Round", "Flat"})
    + Expected::keysNotSet(Expected::Integers, {"Gap", "Width"});

// Everything that can be asked of a theme, whatever it has read; of an empty one, what is missing.
void askAll(HV::Theme &theme)
{
    for (int n = -1; n < 3; ++n) {
        theme.flag(n);
        theme.integer(n);
        theme.color(n);
        theme.imageFile(n);
        theme.gradient(n);
    }
    QString text = "global.theme.color.Text global.theme.image.add global.theme.integer.Gap|px";
    HV::replaceStyleSheet(&theme, "global", text);
}

// What noise says as a theme file is Qt's business, and so is Qt's own warning of a broken variant.
bool areOurs(const Messages &messages)
{
    return std::all_of(messages.cbegin(), messages.cend(), [](const Message &message) {
        return message.file == "hvtheme/theme.cpp" || message.file == "hvtheme/theming.cpp"
            || message.text.startsWith("QVariant::load: ");
    });
}

} // namespace

void tst_BadInput::themeFileWithoutContent_data()
{
    QTest::addColumn<Prepare>("prepare");

    QTest::newRow("missing") << Prepare([](const TemporaryFolder &, const QString &) {});
    QTest::newRow("empty") << Prepare(
        [](const TemporaryFolder &folder, const QString &name) { folder.write(name, {}); });
    QTest::newRow("line-breaks") << Prepare(
        [](const TemporaryFolder &folder, const QString &name) { folder.write(name, "\n\r\n\n"); });
    QTest::newRow("no-entry") << Prepare([](const TemporaryFolder &folder, const QString &name) {
        folder.write(name, "[Palettes]\n[Colors\n]\n[]\n;[Integers]\n");
    });
    QTest::newRow("folder") << Prepare([](const TemporaryFolder &folder, const QString &name) {
        folder.write(name + "/inside.theme", "[Integers]\nGap=1\n");
    });
    QTest::newRow("dangling-link")
        << Prepare([](const TemporaryFolder &folder, const QString &name) {
               QVERIFY(QFile::link(folder.filePath("gone"), folder.filePath(name)));
           });
    QTest::newRow("link-to-itself")
        << Prepare([](const TemporaryFolder &folder, const QString &name) {
               QVERIFY(QFile::link(folder.filePath(name), folder.filePath(name)));
           });
    QTest::newRow("utf-16") << Prepare([](const TemporaryFolder &folder, const QString &name) {
        const QByteArray text("\xff\xfe[\0F\0l\0a\0g\0s\0]\0\n\0", 18);
        folder.write(name, text);
    });
}

void tst_BadInput::themeFileWithoutContent()
{
    QFETCH(Prepare, prepare);

    const TemporaryFolder folder;
    prepare(folder, "default.theme");
    prepare(folder, "dark.theme");
    OwnVocabulary theme;
    HV::changeTheme(&theme, "dark", folder.path(), "theme");
    COMPARE_MESSAGES(m_log, RequiredByOwnVocabulary);
    QCOMPARE(theme.displayName(), QString("unnamed"));
    QCOMPARE(theme.filePath(), folder.filePath("default.theme"));
    QVERIFY(Store::isEmpty(theme));

    askAll(theme);
    Messages messages;
    const QStringList keys[] = {{},
                                {"Round", "Gap", "Text", "add", "Sky"},
                                {"Flat", "Width", "Ground", "close", "Dusk"},
                                {}};
    for (int n = -1; n < 3; ++n) {
        const QStringList &key = keys[n + 1];
        if (key.isEmpty()) {
            messages << Expected::noFlag(n) << Expected::noInteger(n) << Expected::noColor(n)
                     << Expected::noImageFile(n) << Expected::noGradient(n);
        } else {
            messages << Expected::noFlag(key[0]) << Expected::noInteger(key[1])
                     << Expected::noColor(key[2]) << Expected::noImageFile(key[3])
                     << Expected::noGradient(key[4]);
        }
    }
    COMPARE_MESSAGES(m_log, messages << Expected::noImage("add", ""));
}

void tst_BadInput::unreadableThemeFile_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("displayName");
    QTest::addColumn<QVariantMap>("values");

    QTest::newRow("default") << "default.theme"
                             << "Dark" << QVariantMap{{"Width", 2LL}};
    QTest::newRow("named") << "dark.theme"
                           << "Default" << QVariantMap{{"Gap", 1LL}};
}

void tst_BadInput::unreadableThemeFile()
{
    QFETCH(QString, file);
    QFETCH(QString, displayName);
    QFETCH(QVariantMap, values);

    const TemporaryFolder folder;
    folder.write("default.theme", "ThemeName=Default\n[Integers]\nGap=1\n");
    folder.write("dark.theme", "ThemeName=Dark\n[Integers]\nWidth=2\n");
    HV::Theme theme("unreadable");
    const Unreadable unreadable(folder.filePath(file));
    HV::changeTheme(&theme, "dark", folder.path(), "theme");
    QCOMPARE(theme.displayName(), displayName);
    QCOMPARE(theme.values(), values);
    QCOMPARE(theme.filePath(), folder.filePath("default.theme"));
}

void tst_BadInput::binaryThemeFile_data()
{
    QTest::addColumn<QByteArray>("bytes");

    for (quint32 seed = 1; seed <= 20; ++seed)
        QTest::addRow("noise-%u", seed) << noise(4096, seed);
    for (quint32 seed = 1; seed <= 20; ++seed) {
        QByteArray text;
        for (const char *section :
             {"Palettes", "Colors", "ImageFiles", "Gradients", "Flags", "Integers"})
            text += QByteArray("\n[") + section + "]\nK=" + noise(40, seed) + "\n"
                + noise(40, seed + 100) + "=1\n";
        QTest::addRow("noise-in-sections-%u", seed) << text;
    }
    QTest::newRow("nul-bytes") << QByteArray(100, '\0');
    QTest::newRow("nul-in-a-value") << QByteArray("[Colors]\nText=f\0f\n", 18);
    QTest::newRow("backslashes") << "[Colors]\nText=\\x\\xg\\" + QByteArray(100, '\\');
    QTest::newRow("percents") << QByteArray("[Colors]\n%%%=1\n%U=2\n%U0=3\n%0g=4\n");
    QTest::newRow("quotes") << QByteArray("[Colors]\nText=\"\"\"\n\"=1\nGround=\"open\n");
    QTest::newRow("variants") << QByteArray("[Colors]\nText=@Variant(\\0\\0\\0\\x7f\\xff)\n"
                                            "Ground=@Variant()\n[Integers]\nGap=@ByteArray(7)\n"
                                            "Width=@Invalid()\n[Flags]\nRound=@Rect(1 2 3 4)\n");
    QTest::newRow("slashes") << QByteArray("[Gradients]\n/=1\n//=2\nK\\\\=3\nK//size=4\n\\=5\n");
}

void tst_BadInput::binaryThemeFile()
{
    QFETCH(QByteArray, bytes);

    const TemporaryFolder folder;
    folder.write("default.theme", bytes);
    folder.write("dark.theme", bytes);
    OwnVocabulary theme;
    HV::changeTheme(&theme, "dark", folder.path(), "theme");
    QCOMPARE(theme.filePath(), folder.filePath("default.theme"));
    askAll(theme);
    QVERIFY(areOurs(m_log.take()));
}

void tst_BadInput::cutThemeFile()
{
    const QByteArray text = "ThemeName=Night\n[Palettes]\nInk=#102030\n[Colors]\nText=Ink\n"
                            "[Gradients]\nSky=1\nSky\\size=1\nSky\\1\\pos=0\nSky\\1\\color=Ink\n"
                            "[Flags]\nRound=1\n[Integers]\nGap=\"1\"\n";
    for (int size = 0; size <= text.size(); ++size) {
        HV::Theme theme("cut");
        readText(theme, text.left(size));
        askAll(theme);
    }
    QVERIFY(areOurs(m_log.take()));
}

void tst_BadInput::largeThemeFile()
{
    constexpr int Count = 20000;
    QByteArray text = "[Palettes]\nInk=102030\n[Colors]\n";
    for (int i = 0; i < Count; ++i)
        text += "Color_" + QByteArray::number(i) + "=Ink\n";
    text += "[ImageFiles]\nlong=" + QByteArray(1000000, 'a') + '\n' + QByteArray(100000, 'k')
        + "=:/x\n[Integers]\nGap=" + QByteArray(100000, '9') + '\n';

    HV::Theme theme("large");
    readText(theme, text);
    QCOMPARE(Store::of(theme, Store::Colors()).size(), Count);
    QCOMPARE(theme.color("Color_19999"), QColor(16, 32, 48));
    QCOMPARE(theme.integer("Gap"), 0);
    QCOMPARE(Store::of(theme, Store::ImageFiles()).value("long").size(), 1000000);
    QCOMPARE(theme.imageFile(QString(100000, 'k')), QString(":/x"));
    QCOMPARE(theme.values().size(), Count + 3);
}

void tst_BadInput::gradientSizeWithoutStops()
{
    HV::Theme theme("gradients");
    readText(theme, "[Gradients]\nK=1\nK\\size=100000\nK\\1\\pos=0\nK\\1\\color=fff\n");
    COMPARE_MESSAGES(m_log, Expected::invalidGradients({"K", "K/1/color", "K/1/pos", "K/size"}));
    QVERIFY(Store::isEmpty(theme));
}

void tst_BadInput::binaryTemplate()
{
    HV::Theme theme("templates");
    readText(theme, "[Integers]\nGap=4\n");
    for (quint32 seed = 1; seed <= 20; ++seed) {
        const TemporaryFolder folder;
        QByteArray bytes = noise(4096, seed);
        bytes.replace('\0', "\xff\xf0global.theme.integer.Gap|\x80");
        folder.write("a.qss", bytes);
        const QString styleSheet = HV::findStyleSheet(&theme, folder.path(), "global");
        QVERIFY(!styleSheet.isEmpty());
        QVERIFY(!styleSheet.contains("global.theme.integer.Gap"));
    }
}

void tst_BadInput::largeTemplate()
{
    HV::Theme theme("templates");
    readText(theme, "[Integers]\nGap=4\n");
    const TemporaryFolder folder;
    const QByteArray line = "QLabel { font-size: global.theme.integer.Gap|px; }\n";
    folder.write("a.qss", line.repeated(20000));
    const QString styleSheet = HV::findStyleSheet(&theme, folder.path(), "global");
    QCOMPARE(styleSheet, QString("QLabel { font-size: 4px; }\n").repeated(20000));
}

QTEST_GUILESS_MAIN(tst_BadInput)

#include "tst_badinput.moc"
