// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <hvtheme/theme.h>
#include <hvtheme/theming.h>

#include "expectedmessages.h"
#include "messages.h"
#include "temporaryfolder.h"
#include "themestore.h"
#include "vocabularies.h"

using Files = QMap<QString, QByteArray>;
Q_DECLARE_METATYPE(Files)

/*! changeTheme() with a suffix; the suffix here is "ini", so that no other one works by chance. */
class tst_Switching : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_log.start(); }
    void cleanup() { REPORT_STRAY_MESSAGES(m_log); }

    void change_data();
    void change();
    void changeByDisplayName_data();
    void changeByDisplayName();
    void suffix_data();
    void suffix();
    void requiredKeysAreOfTheDefaultFile_data();
    void requiredKeysAreOfTheDefaultFile();
    void nothingSurvives();
    void folderPathIsTakenAsGiven();
    void directivesInPaths_data();
    void directivesInPaths();
    void linksAndFolders_data();
    void linksAndFolders();

private:
    CapturedMessages m_log;
};

namespace
{

const QByteArray Base = "[Integers]\nGap=1\n[Flags]\nRound=1\n[Colors]\nText=#102030\n";
const QVariantMap BaseValues = {{"Gap", 1LL}, {"Round", true}, {"Text", QColor(16, 32, 48)}};
const Messages None;

// A file that is read although it should not be shows by its reports or its values.
const QByteArray Trap = "ThemeName=Trap\n[Integers]\nTrap=1\nGap=9\n";

const Files Layers = {{"default.ini", "ThemeName=Base\n" + Base},
                      {"dark.ini",
                       "ThemeName=Dark\n[Colors]\nText=#fff\nNew=#fff\n[Flags]\nRound=0\nFlat=1\n"
                       "[Integers]\nGap=9\n"},
                      {"one.ini", "[Colors]\nNew=#fff\n"},
                      {"base.ini", Trap},
                      {"Base.ini", Trap}};

void changeColumns()
{
    QTest::addColumn<Files>("files");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("displayName");
    QTest::addColumn<QVariantMap>("values");
    QTest::addColumn<Messages>("messages");
}

} // namespace

void tst_Switching::change_data()
{
    changeColumns();
    const Files files = {{"default.ini", "ThemeName=Default\n" + Base},
                         {"Default.ini", Trap},
                         {"DEFAULT.ini", Trap},
                         {".ini", Trap},
                         {"dark.ini", "[Integers]\nDark=2\n"}};
    QTest::newRow("default") << files << "default"
                             << "Default" << BaseValues << None;
    QTest::newRow("default-other-case") << files << "DEFAULT"
                                        << "Default" << BaseValues << None;
    QTest::newRow("empty-name") << files << ""
                                << "Default" << BaseValues << None;
    QTest::newRow("null-name") << files << QString() << "Default" << BaseValues << None;
    QTest::newRow("missing-name") << files << "light"
                                  << "Default" << BaseValues << None;
    QTest::newRow("file-name-other-case") << files << "Dark"
                                          << "Default" << BaseValues << None;
    QVariantMap darkValues = BaseValues;
    darkValues.insert("Dark", 2LL);
    QTest::newRow("adds-without-a-name") << files << "dark"
                                         << "Default" << darkValues << None;

    QTest::newRow("adds-and-replaces-flags-and-name")
        << Layers << "dark"
        << "Dark"
        << QVariantMap{{"Gap", 1LL},
                       {"Round", false},
                       {"Text", QColor(16, 32, 48)},
                       {"New", QColor(255, 255, 255)},
                       {"Flat", true}}
        << Messages{Expected::keyExists(Expected::Colors, "Text"),
                    Expected::keyExists(Expected::Integers, "Gap")};
    QVariantMap oneMore = BaseValues;
    oneMore.insert("New", QColor(255, 255, 255));
    QTest::newRow("single-color") << Layers << "one"
                                  << "Base" << oneMore << None;
}

void tst_Switching::change()
{
    QFETCH(Files, files);
    QFETCH(QString, name);
    QFETCH(QString, displayName);
    QFETCH(QVariantMap, values);
    QFETCH(Messages, messages);

    const TemporaryFolder folder;
    for (auto it = files.cbegin(); it != files.cend(); ++it)
        folder.write(it.key(), *it);

    HV::Theme theme("switching");
    for (int i = 0; i < 2; ++i) { // the second time over what the first has left
        HV::changeTheme(&theme, name, folder.path(), "ini");
        COMPARE_MESSAGES(m_log, messages);
        QCOMPARE(theme.displayName(), displayName);
        QCOMPARE(theme.filePath(), folder.filePath("default.ini")); // whether it exists or not
        QCOMPARE(theme.values(), values);
    }
}

void tst_Switching::changeByDisplayName_data()
{
    changeColumns();
    // It is the default file's display name that a name is compared with.
    QTest::newRow("named-as-the-default-calls-itself") << Layers << "base"
                                                       << "Base" << BaseValues << None;
    QTest::newRow("named-as-the-default-calls-itself-exactly") << Layers << "Base"
                                                               << "Base" << BaseValues << None;
    QTest::newRow("default-called-otherwise-is-read-twice")
        << Layers << "default"
        << "Base" << BaseValues
        << Messages{Expected::keyExists(Expected::Colors, "Text"),
                    Expected::keyExists(Expected::Integers, "Gap")};
    const Files unnamed = {{"default.ini", Base}, {"unnamed.ini", Trap}, {"Unnamed.ini", Trap}};
    QTest::newRow("unnamed") << unnamed << "unnamed"
                             << "unnamed" << BaseValues << None;
    QTest::newRow("unnamed-other-case") << unnamed << "Unnamed"
                                        << "unnamed" << BaseValues << None;
    QTest::newRow("unnamed-default-is-read-twice")
        << unnamed << "default"
        << "unnamed" << BaseValues
        << Messages{Expected::keyExists(Expected::Colors, "Text"),
                    Expected::keyExists(Expected::Integers, "Gap")};
    const Files emptyName = {{"default.ini", "ThemeName=\n" + Base}, {"dark.ini", "[X]\n"}};
    QTest::newRow("default-with-an-empty-name") << emptyName << ""
                                                << "" << BaseValues << None;
    QTest::newRow("later-file-names-an-empty-name") << emptyName << "dark"
                                                    << "unnamed" << BaseValues << None;

    QTest::newRow("missing-file-names-nothing") << emptyName << "light"
                                                << "" << BaseValues << None;

    const Files orphan = {{"dark.ini", "ThemeName=Dark\n[Integers]\nDark=2\n"}};
    QTest::newRow("no-files") << Files() << "dark"
                              << "unnamed" << QVariantMap() << None;
    QTest::newRow("no-default") << orphan << "dark"
                                << "Dark" << QVariantMap{{"Dark", 2LL}} << None;
    QTest::newRow("no-default-by-its-name") << orphan << "default"
                                            << "unnamed" << QVariantMap() << None;
    QTest::newRow("name-in-a-subfolder")
        << Files{{"default.ini", ""}, {"sub/dark.ini", "ThemeName=Dark\n"}} << "sub/dark"
        << "Dark" << QVariantMap() << None;
}

void tst_Switching::changeByDisplayName()
{
    change();
}

void tst_Switching::suffix_data()
{
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QString>("file");

    QTest::newRow("usual") << "theme"
                           << "default.theme";
    QTest::newRow("with-a-dot") << ".theme"
                                << "default..theme";
    QTest::newRow("two-parts") << "theme.ini"
                               << "default.theme.ini";
    QTest::newRow("empty") << ""
                           << "default.";
    QTest::newRow("null") << QString() << "default.";
}

void tst_Switching::suffix()
{
    QFETCH(QString, suffix);
    QFETCH(QString, file);

    const TemporaryFolder folder;
    folder.write(file, "ThemeName=Found\n");
    HV::Theme theme("suffixes");
    HV::changeTheme(&theme, "found", folder.path(), suffix);
    QCOMPARE(theme.displayName(), QString("Found"));
    QCOMPARE(theme.filePath(), folder.filePath(file));
}

void tst_Switching::requiredKeysAreOfTheDefaultFile_data()
{
    QTest::addColumn<Files>("files");
    QTest::addColumn<Messages>("messages");

    const auto notSet = Expected::keysNotSet;
    const QStringList integers = {"FontSize_XS", "FontSize_S",  "FontSize_M",
                                  "FontSize_L",  "FontSize_XL", "FontSize_XXL"};
    const Messages all = notSet(Expected::Palettes, {"Ink", "Paper", "Rule"})
        + notSet(Expected::Colors, {"Text"}) + notSet(Expected::Integers, integers);
    const QByteArray complete = "[Palettes]\nInk=fff\nPaper=fff\nRule=fff\n[Colors]\nText=Ink\n"
                                "[Integers]\nFontSize_XS=1\nFontSize_S=1\nFontSize_M=1\n"
                                "FontSize_L=1\nFontSize_XL=1\nFontSize_XXL=1\n";

    QTest::newRow("no-files") << Files() << all;
    QTest::newRow("only-the-named-file-is-complete")
        << Files{{"default.ini", ""}, {"dark.ini", complete}} << all;
    QTest::newRow("default-missing") << Files{{"dark.ini", complete}} << all;
    QTest::newRow("default-complete")
        << Files{{"default.ini", complete}, {"dark.ini", ""}} << Messages();
}

void tst_Switching::requiredKeysAreOfTheDefaultFile()
{
    QFETCH(Files, files);
    QFETCH(Messages, messages);

    const TemporaryFolder folder;
    for (auto it = files.cbegin(); it != files.cend(); ++it)
        folder.write(it.key(), *it);
    ExtendedVocabulary theme;
    HV::changeTheme(&theme, "dark", folder.path(), "ini");
    COMPARE_MESSAGES(m_log, messages);
}

void tst_Switching::nothingSurvives()
{
    const TemporaryFolder folder;
    folder.write("default.ini", "ThemeName=Default\n[Integers]\nGap=1\n");
    folder.write("a.ini",
                 "ThemeName=A\n[Palettes]\nInk=fff\n[Colors]\nText=Ink\n[Flags]\nRound=1\n"
                 "[Integers]\nWidth=1\n[ImageFiles]\nadd=:/a\n");
    folder.write("b.ini", "[Flags]\nFlat=1\n");

    HV::Theme theme("switching");
    theme.setDisplayName("Mine");
    HV::changeTheme(&theme, "a", folder.path(), "ini");
    QCOMPARE(theme.displayName(), QString("A"));
    QCOMPARE(theme.values().size(), 5);

    HV::changeTheme(&theme, "b", folder.path(), "ini");
    QCOMPARE(theme.displayName(), QString("Default"));
    QCOMPARE(theme.values(), (QVariantMap{{"Gap", 1LL}, {"Flat", true}}));
    QVERIFY(Store::of(theme, Store::Palettes()).isEmpty());
    QCOMPARE(theme.id(), QString("switching"));
}

void tst_Switching::folderPathIsTakenAsGiven()
{
    const TemporaryFolder folder;
    folder.write("sub/default.ini", "ThemeName=Found\n");
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folder.path()));
    HV::Theme relative("relative");
    HV::changeTheme(&relative, {}, "sub", "ini");
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(relative.displayName(), QString("Found"));

    HV::Theme slash("slash");
    HV::changeTheme(&slash, {}, folder.filePath("sub/"), "ini");
    QCOMPARE(slash.displayName(), QString("Found"));

    HV::Theme gone("gone");
    HV::changeTheme(&gone, "found", folder.filePath("gone"), "ini");
    QCOMPARE(gone.displayName(), QString("unnamed"));
}

// The parts of a path are filled in one after the other, so directives in a part are filled too.
void tst_Switching::directivesInPaths_data()
{
    QTest::addColumn<QString>("subfolder");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QString>("file");

    QTest::newRow("folder-with-1") << "%1x"
                                   << ""
                                   << "ini"
                                   << "defaultx/ini.%3";
    QTest::newRow("folder-with-2") << "%2x"
                                   << ""
                                   << "ini"
                                   << "defaultx/default.ini";
    QTest::newRow("folder-with-3") << "%3x"
                                   << ""
                                   << "ini"
                                   << "inix/default.ini";
    QTest::newRow("name-with-1") << "x"
                                 << "a%1"
                                 << "ini"
                                 << "x/aini.%3";
    QTest::newRow("name-with-3") << "x"
                                 << "a%3"
                                 << "ini"
                                 << "x/aini.ini";
    QTest::newRow("suffix-with-1") << "x"
                                   << ""
                                   << "%1"
                                   << "x/default.%1";
}

void tst_Switching::directivesInPaths()
{
    QFETCH(QString, subfolder);
    QFETCH(QString, name);
    QFETCH(QString, suffix);
    QFETCH(QString, file);

    const TemporaryFolder folder;
    folder.write(file, "ThemeName=Found\n");
    HV::Theme theme("paths");
    HV::changeTheme(&theme, name, folder.path() + '/' + subfolder, suffix);
    QCOMPARE(theme.displayName(), QString("Found"));
}

void tst_Switching::linksAndFolders_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("displayName");

    QTest::newRow("link") << "linked"
                          << "Dark";
    QTest::newRow("dangling-link") << "dangling"
                                   << "";
    QTest::newRow("folder") << "folder"
                            << "unnamed";
}

void tst_Switching::linksAndFolders()
{
    QFETCH(QString, name);
    QFETCH(QString, displayName);

    const TemporaryFolder folder;
    // With an empty name so far, a file without a name shows that it was read.
    folder.write("default.ini", "ThemeName=\n[Integers]\nGap=1\n");
    const QString dark = folder.write("dark.ini", "ThemeName=Dark\n");
    QVERIFY(QFile::link(dark, folder.filePath("linked.ini")));
    QVERIFY(QFile::link(folder.filePath("gone"), folder.filePath("dangling.ini")));
    folder.write("folder.ini/default.ini", "ThemeName=Inside\n");

    HV::Theme theme("links");
    HV::changeTheme(&theme, name, folder.path(), "ini");
    QCOMPARE(theme.displayName(), displayName);
    QCOMPARE(theme.values(), (QVariantMap{{"Gap", 1LL}}));
}

QTEST_GUILESS_MAIN(tst_Switching)

#include "tst_switching.moc"
