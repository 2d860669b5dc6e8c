// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/theme/themefile.h>
#include <analysis/theme/themefolder.h>
#include <hvtheme/inifile.h>

#include "qtversion.h"
#include "temporaryfolder.h"

#include <QDir>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

class tst_ThemeFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void keys_data();
    void keys();
    void positions();
    void duplicates();
    void skippedLines();
    void agreesWithSettings_data();
    void agreesWithSettings();
    void refused_data();
    void refused();
    void changedMeanwhile();
    void folder();
    void folderRefused();

private:
    QString write(const QString &name, const QByteArray &content) const;

    QTemporaryDir m_folder;
};

void tst_ThemeFile::initTestCase()
{
    QVERIFY(m_folder.isValid());
}

QString tst_ThemeFile::write(const QString &name, const QByteArray &content) const
{
    QString path = m_folder.filePath(name);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(path));
    return path;
}

void tst_ThemeFile::keys_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QStringList>("keys");

    QTest::newRow("plain") << QByteArray("[Palettes]\nBg_1=1\n") << QStringList{"Palettes/Bg_1"};
    QTest::newRow("top-level") << QByteArray("ThemeName=x\n") << QStringList{"ThemeName"};
    QTest::newRow("general") << QByteArray("[General]\na=1\n[GENERAL]\nb=2\n")
                             << QStringList{"a", "b"};
    QTest::newRow("real-general") << QByteArray("[%General]\na=1\n[%general]\nb=1\n")
                                  << QStringList{"General/a", "general/b"};
    QTest::newRow("array") << QByteArray("[Gradients]\nH\\1\\pos=0\nH\\size=1\n")
                           << QStringList{"Gradients/H/1/pos", "Gradients/H/size"};
    QTest::newRow("nested-header")
        << QByteArray("[Colors/a\\b]\nc=1\n") << QStringList{"Colors/a/b/c"};
    QTest::newRow("hexadecimal") << QByteArray("[A%20B]\nc%2Fd=1\n%U4E2D=1\n%zz=1\n")
                                 << QStringList{"A B/c/d", QStringLiteral("A B/\u4e2d"), "A B/%zz"};
    QTest::newRow("latin-1") << QByteArray("[A]\n\xC3\xA9=1\n")
                             << QStringList{QStringLiteral("A/\u00c3\u00a9")};
    QTest::newRow("byte-order-mark") << QByteArray("\xEF\xBB\xBF[A]\nb=1\n") << QStringList{"A/b"};
    QTest::newRow("comments") << QByteArray("; a=1\n[A] ; b=1\nc=1;d=2\n#e=1\n")
                              << QStringList{"A/c", "A/#e"};
    QTest::newRow("continued") << QByteArray("[A]\nb=1\\\nc=2\nd=3\\\r\ne=4\n")
                               << QStringList{"A/b", "A/d"};
    QTest::newRow("quoted-line-end")
        << QByteArray("[A]\nb=\"1\nc=2\"\nd=1\n") << QStringList{"A/b", "A/d"};
    QTest::newRow("case") << QByteArray("[a]\nB=1\n[A]\nb=1\n") << QStringList{"a/B", "A/b"};
    QTest::newRow("carriage-returns") << QByteArray("[A]\rb=1\rc=1\r") << QStringList{"A/b", "A/c"};
    QTest::newRow("open-header") << QByteArray("[A\nb=1\n") << QStringList{"A/b"};
    QTest::newRow("empty") << QByteArray() << QStringList();
}

void tst_ThemeFile::keys()
{
    QFETCH(QByteArray, content);
    QFETCH(QStringList, keys);
    const QString path = write(QStringLiteral("keys.theme"), content);
    QString error;
    const std::optional<ThemeFile> file = ThemeFile::read(path, &error);
    QVERIFY2(file, qPrintable(error));
    QStringList found;
    for (const ThemeFileEntry &entry : file->entries())
        found << entry.key;
    QCOMPARE(found, keys);
}

void tst_ThemeFile::positions()
{
    const QString path = write(QStringLiteral("positions.theme"),
                               "\xEF\xBB\xBF[Colors]\r\n"
                               "  \xC3\xA9 =  fff ; white\r\n"
                               "\r\n"
                               "; comment\r\n"
                               "b=\\\r\n"
                               "  1\r\n"
                               "c=2");
    QString error;
    const std::optional<ThemeFile> file = ThemeFile::read(path, &error);
    QVERIFY2(file, qPrintable(error));
    QCOMPARE(file->sections().size(), 1);
    QCOMPARE(file->sections().first().name, QStringLiteral("Colors"));
    QCOMPARE(file->sections().first().position.line, 1);
    QCOMPARE(file->sections().first().position.column, 1);
    QCOMPARE(file->entries().size(), 3);

    const ThemeFileEntry first = file->entries().at(0);
    QCOMPARE(first.keyPosition.line, 2);
    QCOMPARE(first.keyPosition.column, 3);
    QCOMPARE(first.valuePosition.column, 8);
    QCOMPARE(first.rawKey, QByteArray("\xC3\xA9"));
    QCOMPARE(first.rawValue, QByteArray("  fff "));
    QCOMPARE(first.section(), QStringLiteral("Colors"));
    QCOMPARE(file->entries().at(1).keyPosition.line, 5);
    QCOMPARE(file->entries().at(2).keyPosition.line, 7);
    QCOMPARE(file->entries().at(2).valuePosition.column, 3);
    QVERIFY(file->hasByteOrderMark());
}

void tst_ThemeFile::duplicates()
{
    // The second [B] is one section with the first, and "B/c" of [General] is read before it.
    const QString path = write(QStringLiteral("duplicates.theme"),
                               "[B]\nc=1\nc=2\n[General]\nB\\c=3\n[B]\nc=4\nd=5\n");
    QString error;
    const std::optional<ThemeFile> file = ThemeFile::read(path, &error);
    QVERIFY2(file, qPrintable(error));
    QCOMPARE(file->find(QStringLiteral("B/c"))->rawValue, QByteArray("4"));
    QCOMPARE(file->find(QStringLiteral("B/d"))->rawValue, QByteArray("5"));
    QCOMPARE(file->find(QStringLiteral("B/e")), nullptr);
    int effective = 0;
    for (const ThemeFileEntry &entry : file->entries())
        effective += entry.isEffective ? 1 : 0;
    QCOMPARE(effective, 2);
    QCOMPARE(QSettings(path, QSettings::IniFormat).value("B/c").toString(), QStringLiteral("4"));
}

void tst_ThemeFile::skippedLines()
{
    const QString path = write(QStringLiteral("skipped.theme"), "[A]\n# note\nb=1\nnothing\n");
    QString error;
    const std::optional<ThemeFile> file = ThemeFile::read(path, &error);
    QVERIFY2(file, qPrintable(error));
    QCOMPARE(file->skippedLines().size(), 2);
    QCOMPARE(file->skippedLines().at(0).line, 2);
    QCOMPARE(file->skippedLines().at(1).line, 4);
}

void tst_ThemeFile::agreesWithSettings_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 8; ++seed)
        QTest::addRow("seed-%u", seed) << seed;
}

// The key as the Qt of this test has it.
static QString keyAsRead(const ThemeFileEntry &entry)
{
    static const QRegularExpression end("[ \\t\\r\\n]*$");
    static const QRegularExpression blanks("[ \\t]*$");
    QString key = entry.key;
    if (QtDifference::keysEndBeforeLineBreaks) {
        const QString raw = QString::fromLatin1(entry.rawKey).remove(blanks);
        key.chop(int(end.match(raw).capturedLength()));
    }
    return key;
}

// What the lexical rules speak of.
static const char *const pieces[] = {"[Palettes]\n",
                                     "[Colors]\n",
                                     "[Gradients]\n",
                                     "[General]\n",
                                     "[%General]\n",
                                     "[a\\b]\n",
                                     "[a]\n",
                                     "[a/b]\n",
                                     "[A]\r\n",
                                     "[ a ]\n",
                                     "[%61]\n",
                                     "[a",
                                     "]",
                                     "[",
                                     "\n",
                                     "\r",
                                     "\r\n",
                                     "\n\r",
                                     "\\\n",
                                     "\\\r\n",
                                     "\\",
                                     "\"",
                                     ";",
                                     "#",
                                     "; c=1\n",
                                     " ",
                                     "\t",
                                     "=",
                                     "key=",
                                     "b\\c=",
                                     "b/c=",
                                     "c =",
                                     " d=",
                                     "%20=",
                                     "%U4E2D=",
                                     "%U00=",
                                     "%2",
                                     "%",
                                     "%zz=",
                                     "\xC3\xA9=",
                                     "\xE9=",
                                     "Key=",
                                     "a,b",
                                     "x\\x4e2dy",
                                     "@Variant",
                                     "@@",
                                     "\"q;=\"",
                                     "[b]c=",
                                     "/e=",
                                     "f/=",
                                     "//=",
                                     "\\="};

// Files of random pieces, among them everything that the lexical rules speak of, and each value
// different, so that the value tells which of several entries took effect.
static QByteArray randomFile(QRandomGenerator *random)
{
    constexpr int count = int(sizeof pieces / sizeof *pieces);
    QByteArray text = random->bounded(16) == 0 ? QByteArray("\xEF\xBB\xBF") : QByteArray();
    const int length = random->bounded(1, 40);
    for (int i = 0; i < length; ++i) {
        text += pieces[random->bounded(count)];
        if (text.endsWith('='))
            text += 'v' + QByteArray::number(i) + 'e' + (random->bounded(5) > 0 ? "\n" : "");
    }
    return text;
}

void tst_ThemeFile::agreesWithSettings()
{
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    for (int i = 0; i < 1000; ++i) {
        QByteArray content = randomFile(&random);
        if (QtDifference::markIsForKeysToo && content.startsWith("\xEF\xBB\xBF")) {
            for (int at = 3; at < content.size(); ++at)
                content[at] = char(content.at(at) & 0x7f);
            content.insert(3, '\n');
        }
        // A name of its own each: QSettings keeps what it read under a name for a while.
        const QString path = write(QStringLiteral("random-%1-%2.theme").arg(seed).arg(i), content);
        QString error;
        const std::optional<ThemeFile> file = ThemeFile::read(path, &error);
        QVERIFY2(file, qPrintable(error));
        QStringList keys;
        for (const ThemeFileEntry &entry : file->entries()) {
            if (entry.isEffective)
                keys << keyAsRead(entry);
        }
        keys.removeDuplicates();
        keys.sort();

        const QString asRead =
            write(QStringLiteral("read-%1-%2.theme").arg(seed).arg(i), HV::iniText(content));
        const QSettings settings(asRead, QSettings::IniFormat);
        QStringList expected = settings.allKeys();
        expected.sort();
        if (keys != expected)
            qDebug() << content << keys << expected;
        QCOMPARE(keys, expected);
        for (const QString &key : qAsConst(keys)) {
            // QSettings::value() tidies slashes, allKeys() does not: such keys cannot be looked up.
            if (key.isEmpty() || key.startsWith('/') || key.endsWith('/') || key.contains("//"))
                continue;
            const QString value = settings.value(key).toString();
            static const QRegularExpression mark(QStringLiteral("^v\\d+e"));
            const QString expectedMark = mark.match(value).captured();
            const QByteArray raw = file->find(key)->rawValue.trimmed();
            if (!expectedMark.isEmpty())
                QCOMPARE(mark.match(QString::fromLatin1(raw)).captured(), expectedMark);
        }
        QFile::remove(path);
        QFile::remove(asRead);
    }
}

void tst_ThemeFile::refused_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("reason");

    QTest::newRow("missing") << m_folder.filePath("no.theme") << "No such file or directory";
    QTest::newRow("folder") << m_folder.path() << "not a regular file";
    QTest::newRow("device") << "/dev/zero"
                            << "not a regular file";
    QTest::newRow("binary") << write("binary.theme", QByteArray("a=\0b", 4))
                            << "a binary file, not a theme file";

    const QString dangling = m_folder.filePath("dangling.theme");
    QFile::link(m_folder.filePath("nowhere"), dangling);
    QTest::newRow("dangling-link") << dangling << "No such file or directory";

    const QString pipe = m_folder.filePath("pipe.theme");
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QTest::newRow("named-pipe") << pipe << "not a regular file";

    QFile large(m_folder.filePath("large.theme"));
    QVERIFY(large.open(QIODevice::WriteOnly));
    QVERIFY(large.resize(qint64(100) * 1024 * 1024)); // a sparse file
    QTest::newRow("100-megabytes")
        << large.fileName() << "larger than 16 MB, which no file of this kind is";
}

void tst_ThemeFile::refused()
{
    QFETCH(QString, path);
    QFETCH(QString, reason);
    QString error;
    QVERIFY(!ThemeFile::read(path, &error));
    QCOMPARE(error, path + ": " + reason);
}

void tst_ThemeFile::changedMeanwhile()
{
    const QString path = write(QStringLiteral("changing.theme"), "a=1\n");
    QString error;
    const std::optional<ThemeFile> file = ThemeFile::read(path, &error);
    QVERIFY2(file, qPrintable(error));
    QVERIFY(file->isUnchanged());
    write(QStringLiteral("changing.theme"), "a=1\nb=2\n");
    QVERIFY(!file->isUnchanged());
    QVERIFY(QFile::remove(path));
    QVERIFY(!file->isUnchanged());
}

void tst_ThemeFile::folder()
{
    QTemporaryDir themes;
    for (const char *name : {"default.theme", "zebra.theme", "dark.theme", "notes.txt", ".theme"}) {
        QFile file(themes.filePath(QLatin1String(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    QString error;
    const std::optional<ThemeFolder> folder =
        ThemeFolder::open(themes.path(), QStringLiteral("theme"), &error);
    QVERIFY2(folder, qPrintable(error));
    QCOMPARE(folder->themeNames(), QStringList({"default", "dark", "zebra"}));
    QCOMPARE(folder->filePath("dark"), themes.path() + "/dark.theme");
    QVERIFY(folder->read("dark", &error));
    QVERIFY(!folder->read("light", &error));
}

void tst_ThemeFile::folderRefused()
{
    QTemporaryDir themes;
    const QString suffix = QStringLiteral("theme");
    QString error;
    QVERIFY(!ThemeFolder::open(themes.filePath("none"), suffix, &error));
    QCOMPARE(error,
             themes.filePath("none") + ": no such folder; name the one with the theme files");
    QVERIFY(!ThemeFolder::open(themes.path(), suffix, &error));
    QCOMPARE(error, themes.path() + ": no default.theme here, with which every theme begins");
    const QTemporaryDir locked;
    {
        const Unreadable folder(locked.path());
        QVERIFY(!ThemeFolder::open(locked.path(), suffix, &error));
    }
    QCOMPARE(error, locked.path() + ": a folder that may not be entered");
    QFile file(themes.filePath("file"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(!ThemeFolder::open(file.fileName(), suffix, &error));
    QCOMPARE(error, file.fileName() + ": not a folder; name the one with the theme files");
}

QTEST_APPLESS_MAIN(tst_ThemeFile)

#include "tst_themefile.moc"
