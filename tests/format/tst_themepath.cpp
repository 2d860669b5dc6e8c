// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include <format/themepath.h>
#include <hvtheme/theme.h>
#include <hvtheme/theming.h>

#include <QtTest>

class tst_ThemePath : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void names_data();
    void names();
    void listing();
    void templates();
    void opened_data();
    void opened();
    void images_data();
    void images();
};

namespace
{

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(path));
    file.write(content);
}

} // namespace

void tst_ThemePath::names_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isName");

    QTest::newRow("word") << "night" << true;
    QTest::newRow("words-of-any-language") << QString::fromUtf8("Nacht \u00fc.2") << true;
    QTest::newRow("empty") << "" << false;
    QTest::newRow("hidden") << ".night" << false;
    QTest::newRow("path") << "a/night" << false;
    QTest::newRow("placeholder") << "night%1" << false;
    QTest::newRow("null") << QString("a") + QChar(0) << false;
    QTest::newRow("space-in-front") << " night" << false;
    QTest::newRow("space-behind") << "night " << false;
}

void tst_ThemePath::names()
{
    QFETCH(QString, name);
    QTEST(isNewThemeName(name), "isName");
}

void tst_ThemePath::listing()
{
    QTemporaryDir folder;
    for (const char *name : {"zoo.theme", "default.theme", "Night.THEME", "a.b.theme", ".theme",
                             ".hidden.theme", "x.themes", "y.theme.bak", "mytheme", "day.Theme"})
        write(folder.filePath(name), "x=1");
    QVERIFY(QDir(folder.path()).mkdir("folder.theme"));

    const ThemeListing listing = listThemes(folder.path());
    QStringList names = listing.names;
    QCOMPARE(names.takeFirst(), QString("default"));
    names.sort();
    QCOMPARE(names, QStringList({".hidden", "a.b", "zoo"}));
    QStringList misses = listing.nearMisses;
    misses.sort();
    QCOMPARE(misses, QStringList({"Night.THEME", "day.Theme"}));
    QCOMPARE(listThemes(folder.path(), "THEME").names, QStringList("Night"));
    QCOMPARE(themeSuffixIn(folder.path(), "THEME"), "THEME");
    QCOMPARE(themeSuffixIn(builtInThemesFolder(), "THEME"), "theme");
    QVERIFY(listThemes(folder.filePath("nowhere")).names.isEmpty());
}

// Those that the library reads, in its order.
void tst_ThemePath::templates()
{
    QTemporaryDir folder;
    for (const char *name :
         {"b.qss", "A.css", "a.qss", "C.QSS", ".hidden.qss", "b.qss.bak", "qss", "d.Css"})
        write(folder.filePath(name), QByteArray(name) + '\n');
    QVERIFY(QDir(folder.path()).mkdir("folder.qss"));
    QString read;
    HV::readStyleSheet(folder.path(), read);
    QString named;
    for (const QString &path : templateFilePaths(folder.path())) {
        QCOMPARE(path, folder.path() + '/' + QFileInfo(path).fileName());
        named += QFileInfo(path).fileName() + '\n';
    }
    QCOMPARE(named, read);
    QCOMPARE(named.count('\n'), 5);
    QCOMPARE(templateFilePaths(folder.filePath("none")), QStringList());
    QVERIFY(templateFilePaths(":/stylesheet").contains(":/stylesheet/global.qss"));
}

void tst_ThemePath::opened_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isSame");

    QTest::newRow("plain") << "themes"
                           << "night" << true;
    QTest::newRow("escape") << "a%20b"
                            << "night" << true;
    QTest::newRow("number-1") << "a%1b"
                              << "night" << false;
    QTest::newRow("number-2") << "a%2b"
                              << "night" << false;
    QTest::newRow("number-3") << "a%3b"
                              << "night" << false;
    QTest::newRow("number-4") << "a%4b"
                              << "night" << true;
    QTest::newRow("locale") << "a%L1b"
                            << "night" << false;
    QTest::newRow("name-1") << "themes"
                            << "n%1" << false;
    QTest::newRow("name-4") << "themes"
                            << "n%4" << true;
}

// The library is asked which file it opens: that one is put where the function says.
void tst_ThemePath::opened()
{
    QFETCH(QString, folder);
    QFETCH(QString, name);
    QTemporaryDir root;
    const QString path = root.filePath(folder);
    const QString opened = openedThemeFilePath(path, name, "theme");
    QTEST(opened == themeFilePath(path, name), "isSame");
    QVERIFY(QDir().mkpath(QFileInfo(opened).path()));
    write(opened, "ThemeName=found\n[Integers]\nX=1\n");
    HV::Theme theme("id");
    HV::changeTheme(&theme, name, path, "theme");
    QCOMPARE(theme.displayName(), QString("found"));
}

void tst_ThemePath::images_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("path");

    QTest::newRow("relative") << "images/a.svg"
                              << "/app/images/a.svg";
    QTest::newRow("out") << "../a.svg"
                         << "/a.svg";
    QTest::newRow("resource") << ":/a.svg"
                              << ":/a.svg";
    QTest::newRow("absolute") << "/a.svg"
                              << "/app/a.svg";
    QTest::newRow("empty") << ""
                           << "/app";
}

void tst_ThemePath::images()
{
    QFETCH(QString, stored);
    QTEST(imageFilePath("/app", stored), "path");
    const QString own = QCoreApplication::applicationDirPath();
    QTemporaryDir folder;
    write(folder.filePath("default.theme"), "[ImageFiles]\nKey=" + stored.toUtf8() + '\n');
    HV::Theme theme("id");
    HV::changeTheme(&theme, QString(), folder.path(), "theme");
    QCOMPARE(imageFilePath(own, stored), theme.imageFile("Key", QString(), false));
}

QTEST_GUILESS_MAIN(tst_ThemePath)
#include "tst_themepath.moc"
