// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <hvtheme/theme.h>
#include <hvtheme/theming.h>

#include "expectedmessages.h"
#include "messages.h"
#include "temporaryfolder.h"

using Files = QMap<QString, QByteArray>;
Q_DECLARE_METATYPE(Files)

/*! From templates in folders, lists and strings to finished style sheets. */
class tst_Theming : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_log.start(); }
    void cleanup() { REPORT_STRAY_MESSAGES(m_log); }

    void dpiSpecificImageFile_data();
    void dpiSpecificImageFile();
    void replaceStyleSheet_data();
    void replaceStyleSheet();
    void replaceStyleSheetWithoutTheme_data();
    void replaceStyleSheetWithoutTheme();
    void replaceStyleSheetBuildsTheValuesOnce();

    void folder_data();
    void folder();
    void folderThatIsNone();
    void folderOfLinks();
    void folderWithAnUnreadableFile();
    void folderPathIsTakenAsGiven();
    void folderWithoutAPath();
    void list_data();
    void list();
    void decoding_data();
    void decoding();
    void findStyleSheet();
    void findStyleSheetWithoutTheme();

private:
    CapturedMessages m_log;
};

void tst_Theming::dpiSpecificImageFile_data()
{
    QTest::addColumn<QString>("path");

    QTest::newRow("null") << QString();
    QTest::newRow("empty") << QString("");
    QTest::newRow("relative") << "img/add.png";
    QTest::newRow("uncleaned") << "/img//../add.png";
    QTest::newRow("resource") << ":/add.png";
    QTest::newRow("density") << "add@2x.png";
}

void tst_Theming::dpiSpecificImageFile()
{
    QFETCH(QString, path);
    QCOMPARE(HV::dpiSpecificImageFile(path), path);
    QCOMPARE(HV::dpiSpecificImageFile(path).isNull(), path.isNull());
}

void tst_Theming::replaceStyleSheet_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<Messages>("messages");

    const QString missing = QCoreApplication::applicationDirPath() + "/no/such.png";
    QTest::newRow("all-kinds") << "a: global.theme.color.Text; b: global.theme.integer.Gap|px; "
                                  "c: url(global.theme.image.root);"
                               << "a: #102030; b: 4px; c: url(:/);" << Messages();
    QTest::newRow("absent-keys") << "a: global.theme.color.A; b: global.theme.integer.B|px; "
                                    "c: url(global.theme.image.C);"
                                 << "a: ; b: px; c: url();" << Messages{Expected::noImage("C", "")};
    QTest::newRow("missing-image")
        << "url(global.theme.image.no)"
        << "url(" + missing + ')' << Messages{Expected::noImage("no", missing)};
    QTest::newRow("flag") << "global.theme.color.Round"
                          << "true" << Messages();
    QTest::newRow("palette-entry") << "<global.theme.color.Ink>"
                                   << "<>" << Messages();
    QTest::newRow("nothing") << ""
                             << "" << Messages();

    // Colours, then images, then integers: what a pass inserts is seen by those behind it alone.
    QTest::newRow("color-gives-an-image") << "global.theme.color.toImage"
                                          << ":/:/" << Messages();
    QTest::newRow("color-gives-an-integer") << "global.theme.color.toInteger"
                                            << ":/4" << Messages();
    QTest::newRow("image-gives-an-integer")
        << "global.theme.image.toInteger"
        << ":/4" << Messages{Expected::noImage("toInteger", ":/global.theme.integer.Gap")};
    QTest::newRow("image-gives-no-color")
        << "global.theme.image.toColor"
        << ":/global.theme.color.Text"
        << Messages{Expected::noImage("toColor", ":/global.theme.color.Text")};
    QTest::newRow("integer-gives-no-image") << "global.theme.integer.toImage"
                                            << ":/global.theme.image.root" << Messages();
    QTest::newRow("integer-gives-no-color") << "global.theme.integer.toColor"
                                            << ":/global.theme.color.Text" << Messages();
}

void tst_Theming::replaceStyleSheet()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QFETCH(Messages, messages);

    HV::Theme theme("tokens");
    readText(theme,
             "[Palettes]\nInk=#102030\n[Colors]\nText=Ink\n[Flags]\nRound=1\n"
             "[Integers]\nGap=4\n[ImageFiles]\nroot=:/\nno=no/such.png\n"
             "toImage=:/global.theme.image.root\ntoInteger=:/global.theme.integer.Gap\n"
             "toColor=:/global.theme.color.Text\n");
    HV::replaceStyleSheet(&theme, "global", text);
    QCOMPARE(text, expected);
    COMPARE_MESSAGES(m_log, messages);
}

void tst_Theming::replaceStyleSheetWithoutTheme_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QStringList>("images");

    QTest::newRow("no-token") << "QLabel {}"
                              << "QLabel {}" << QStringList();
    QTest::newRow("all-kinds") << "a global.theme.color.A b global.theme.image.B c "
                                  "global.theme.integer.C|px global.theme.image.D"
                               << "a  b  c px " << QStringList{"B", "D"};
    QTest::newRow("other-prefix") << "local.theme.color.A"
                                  << "local.theme.color.A" << QStringList();
}

void tst_Theming::replaceStyleSheetWithoutTheme()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QFETCH(QStringList, images);

    Messages messages{Expected::nullThemeInReplace()};
    for (const QString &key : images)
        messages.append(Expected::noImage(key, ""));
    HV::replaceStyleSheet(nullptr, "global", text);
    QCOMPARE(text, expected);
    COMPARE_MESSAGES(m_log, messages);
}

void tst_Theming::replaceStyleSheetBuildsTheValuesOnce()
{
    HV::Theme theme("cached");
    readText(theme, "[Integers]\nGap=4\n");
    QString text = "global.theme.integer.Gap";
    HV::replaceStyleSheet(&theme, "global", text);
    QCOMPARE(text, QString("4"));

    readText(theme, "[Integers]\nWidth=8\n");
    text = "<global.theme.integer.Width>";
    HV::replaceStyleSheet(&theme, "global", text);
    QCOMPARE(text, QString("<>"));
}

void tst_Theming::folder_data()
{
    QTest::addColumn<Files>("files");
    QTest::addColumn<QString>("expected");

    QTest::newRow("empty") << Files() << "";
    QTest::newRow("both-suffixes-by-name-ignoring-case")
        << Files{{"b.qss", "b"}, {"A.css", "A"}, {"c.txt", "c"}} << "Ab";
    QTest::newRow("mixed") << Files{{"C.QSS", "1"}, {"a.Css", "2"}, {"B.qss", "3"}, {"d.css", "4"}}
                           << "2314";
    QTest::newRow("nothing-between") << Files{{"a.qss", "QLabel {"}, {"b.qss", "}"}} << "QLabel {}";
    QTest::newRow("other-names")
        << Files{{"qss", "1"}, {"a.qss.bak", "2"}, {"a.sqss", "3"}, {"aqss", "4"}, {"a.qss~", "5"}}
        << "";
    QTest::newRow("hidden") << Files{{".a.qss", "1"}, {".qss", "2"}, {"a.qss", "3"}} << "3";
    QTest::newRow("subfolder") << Files{{"sub.qss/a.qss", "1"}, {"b.qss", "2"}} << "2";
    QTest::newRow("empty-file") << Files{{"a.qss", ""}, {"b.qss", "b"}} << "b";
    QTest::newRow("names-with-spaces") << Files{{"a b.qss", "1"}, {"c%1.qss", "2"}} << "12";
    QTest::newRow("tokens-stay") << Files{{"a.qss", "global.theme.color.A"}}
                                 << "global.theme.color.A";
}

void tst_Theming::folder()
{
    QFETCH(Files, files);
    QFETCH(QString, expected);

    const TemporaryFolder folder;
    for (auto it = files.cbegin(); it != files.cend(); ++it)
        folder.write(it.key(), *it);

    QString text = "before";
    HV::readStyleSheet(folder.path(), text);
    QCOMPARE(text, QString("before" + expected));
    HV::readStyleSheet(folder.path(), text); // it appends
    QCOMPARE(text, QString("before" + expected + expected));
    HV::readStyleSheet(folder.path() + '/', text); // a doubled slash does no harm
    QCOMPARE(text, QString("before" + expected + expected + expected));
}

void tst_Theming::folderThatIsNone()
{
    const TemporaryFolder folder;
    const QString file = folder.write("a.qss", "a");
    QString text = "before";
    HV::readStyleSheet(folder.filePath("gone"), text);
    HV::readStyleSheet(file, text);
    HV::readStyleSheet(":/no/such/folder", text);
    QCOMPARE(text, QString("before"));
}

void tst_Theming::folderOfLinks()
{
    const TemporaryFolder folder;
    const QString file = folder.write("text", "linked");
    QVERIFY(QFile::link(file, folder.filePath("a.qss")));
    QVERIFY(QFile::link(folder.filePath("gone"), folder.filePath("dangling.qss")));
    QVERIFY(QFile::link(folder.path(), folder.filePath("folder.qss")));
    QString text;
    HV::readStyleSheet(folder.path(), text);
    QCOMPARE(text, QString("linked"));
}

void tst_Theming::folderWithAnUnreadableFile()
{
    const TemporaryFolder folder;
    folder.write("a.qss", "a");
    folder.write("c.qss", "c");
    const QString path = folder.write("b.qss", "b");
    const Unreadable unreadable(path);
    QString text;
    HV::readStyleSheet(folder.path(), text);
    QCOMPARE(text, QString("ac"));
    COMPARE_MESSAGES(m_log, Messages{Expected::notThereInFolder(path)});
    HV::readStyleSheet(folder.path() + '/', text);
    COMPARE_MESSAGES(m_log, Messages{Expected::notThereInFolder(folder.path() + "//b.qss")});
}

void tst_Theming::folderPathIsTakenAsGiven()
{
    const TemporaryFolder folder;
    folder.write("sub/a.qss", "a");
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folder.path()));
    QString text;
    HV::readStyleSheet("sub", text);
    HV::readStyleSheet("./sub/../sub", text);
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(text, QString("aa"));
}

void tst_Theming::folderWithoutAPath()
{
    const TemporaryFolder folder;
    folder.write("hvtheme-no-such-file.qss", "a");
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folder.path()));
    QString text;
    HV::readStyleSheet(QString(), text); // lists the current folder, then opens below the root
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(text, QString());
    COMPARE_MESSAGES(m_log, Messages{Expected::notThereInFolder("/hvtheme-no-such-file.qss")});
}

void tst_Theming::list_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QStringList>("notThere");

    const QStringList none;
    QTest::newRow("none") << none << "" << none;
    QTest::newRow("list-order") << QStringList{"b.qss", "a.qss"} << "ba" << none;
    QTest::newRow("twice") << QStringList{"a.qss", "a.qss"} << "aa" << none;
    QTest::newRow("any-name") << QStringList{"c.txt", ".hidden"} << "ch" << none;
    QTest::newRow("empty-file") << QStringList{"empty.qss", "a.qss"} << "a" << none;
    QTest::newRow("missing") << QStringList{"gone.qss", "a.qss", "lost.qss"} << "a"
                             << QStringList{"gone.qss", "lost.qss"};
    QTest::newRow("folder") << QStringList{"sub", "a.qss"} << "a" << QStringList{"sub"};
    QTest::newRow("dangling-link")
        << QStringList{"dangling.qss", "b.qss"} << "b" << QStringList{"dangling.qss"};
}

void tst_Theming::list()
{
    QFETCH(QStringList, names);
    QFETCH(QString, expected);
    QFETCH(QStringList, notThere);

    const TemporaryFolder folder;
    const Files files = {{"a.qss", "a"},   {"b.qss", "b"},    {"c.txt", "c"},
                         {".hidden", "h"}, {"empty.qss", ""}, {"sub/a.qss", "s"}};
    for (auto it = files.cbegin(); it != files.cend(); ++it)
        folder.write(it.key(), *it);
    QVERIFY(QFile::link(folder.filePath("gone"), folder.filePath("dangling.qss")));

    QStringList paths;
    for (const QString &name : names)
        paths.append(folder.filePath(name));
    Messages messages;
    for (const QString &name : notThere)
        messages.append(Expected::notThereInList(folder.filePath(name)));

    QString text = "before";
    HV::readStyleSheet(paths, text);
    QCOMPARE(text, QString("before" + expected));
    COMPARE_MESSAGES(m_log, messages);
}

void tst_Theming::decoding_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("expected");

    QTest::newRow("utf-8") << QByteArray("a\xc3\xa9z") << QString("a") + QChar(0xe9) + 'z';
    QTest::newRow("byte-order-mark") << QByteArray("\xef\xbb\xbf/**/") << "/**/";
    QTest::newRow("byte-order-mark-alone") << QByteArray("\xef\xbb\xbf") << "";
    QTest::newRow("latin-1") << QByteArray("a\xe9z")
                             << QString("a") + QChar(QChar::ReplacementCharacter) + 'z';
    QTest::newRow("crlf") << QByteArray("a\r\nb\r\n") << "a\nb\n";
    QTest::newRow("lone-carriage-return") << QByteArray("a\rb") << "ab";
    QTest::newRow("nul") << QByteArray("before\0after", 12) << "before";
    QTest::newRow("nul-first") << QByteArray("\0after", 6) << "";
    QTest::newRow("utf-16") << QByteArray("\xff\xfe"
                                          "a\0b\0",
                                          6)
                            << QString(2, QChar(QChar::ReplacementCharacter)) + 'a';
}

void tst_Theming::decoding()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, expected);

    const TemporaryFolder folder;
    const QStringList paths = {folder.write("a.qss", bytes), folder.write("b.qss", "|b")};
    QString fromFolder;
    HV::readStyleSheet(folder.path(), fromFolder);
    QCOMPARE(fromFolder, QString(expected + "|b"));
    QString fromList;
    HV::readStyleSheet(paths, fromList);
    QCOMPARE(fromList, fromFolder);
}

void tst_Theming::findStyleSheet()
{
    const TemporaryFolder folder;
    const QString first = folder.write("a.qss", "<app.theme.color.Text>app.theme.integer.");
    const QString second = folder.write("b.qss", "Gap|px global.theme.color.Text");
    const QString third = folder.write("c.qss", " app.theme.image.no");
    const QString gone = folder.filePath("gone.qss");
    HV::Theme theme("found");
    readText(theme, "[Colors]\nText=#102030\n[Integers]\nGap=4\n[ImageFiles]\nno=:/no.png\n");

    const QString expected = "<#102030>4px global.theme.color.Text :/no.png";
    QCOMPARE(HV::findStyleSheet(&theme, folder.path(), "app"), expected);
    COMPARE_MESSAGES(m_log, Messages{Expected::noImage("no", ":/no.png")});
    QCOMPARE(HV::findStyleSheet(&theme, QStringList{first, gone, second, third}, "app"), expected);
    COMPARE_MESSAGES(
        m_log, (Messages{Expected::notThereInList(gone), Expected::noImage("no", ":/no.png")}));

    // The passes run in the order of colours, images and integers here as well.
    const QString chain =
        folder.write("chain", "app.theme.color.x app.theme.image.x app.theme.color.y");
    theme.clear();
    readText(theme,
             "[ImageFiles]\nx=:/app.theme.integer.Gap\ny=:/app.theme.image.z\nz=:/\n"
             "[Integers]\nGap=4\n");
    QCOMPARE(HV::findStyleSheet(&theme, QStringList{chain}, "app"), QString(":/4 :/4 :/:/"));
    COMPARE_MESSAGES(m_log, Messages{Expected::noImage("x", ":/app.theme.integer.Gap")});
}

void tst_Theming::findStyleSheetWithoutTheme()
{
    const TemporaryFolder folder;
    const QString first = folder.write("a.qss", "a app.theme.color.A b app.theme.image.B c ");
    const QString second = folder.write("b.qss", "app.theme.integer.C|px");
    const QString expected = "a  b  c px";

    // The files are read before the theme is looked at.
    QCOMPARE(HV::findStyleSheet(nullptr, QStringList{first, "/gone.qss", second}, "app"), expected);
    COMPARE_MESSAGES(m_log,
                     (Messages{Expected::notThereInList("/gone.qss"), Expected::nullThemeInList(),
                               Expected::noImage("B", "")}));

    QCOMPARE(HV::findStyleSheet(nullptr, folder.path(), "app"), expected);
    COMPARE_MESSAGES(m_log, (Messages{Expected::nullThemeInFolder(), Expected::noImage("B", "")}));
    const QString third = folder.write("c.qss", "c");
    const Unreadable unreadable(third);
    QCOMPARE(HV::findStyleSheet(nullptr, folder.path(), "app"), expected);
    COMPARE_MESSAGES(m_log,
                     (Messages{Expected::notThereInFolder(third), Expected::nullThemeInFolder(),
                               Expected::noImage("B", "")}));
}

QTEST_GUILESS_MAIN(tst_Theming)

#include "tst_theming.moc"
