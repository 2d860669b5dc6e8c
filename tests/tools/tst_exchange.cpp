// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "commandrun.h"

#include <QtTest>

// `hvtheme export` and `hvtheme import`: what goes out comes back, and nothing half.
class tst_Exchange : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void roundTrip_data();
    void roundTrip();
    void roundTripOfRareThemes_data();
    void roundTripOfRareThemes();
    void noNumber();
    void tokensOfOthers();
    void brandOfOthers_data();
    void brandOfOthers();
    void oneNoteForAll_data();
    void oneNoteForAll();
    void importedFiles_data();
    void importedFiles();
    void exportRefused_data();
    void exportRefused();
    void importRefused_data();
    void importRefused();
    void importNowhere_data();
    void importNowhere();
    void filesOfTheSystem();
    void fullDisk();
    void keepsWhatIsThere();
};

namespace
{

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString written(const QTemporaryDir &folder, const QString &name, const QByteArray &content)
{
    QFile file(folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(name));
    return file.fileName();
}

} // namespace

void tst_Exchange::roundTrip_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("theme");

    for (const char *look : {"dark", "light", "contrast"})
        QTest::newRow(look) << HVTHEME_TEST_DIR "/../themes" << look;
    QTest::newRow("night") << "themes"
                           << "night";
}

// Values, palette entries behind colours, paths, flags and names: all that a theme has in store.
void tst_Exchange::roundTrip()
{
    QFETCH(QString, folder);
    QFETCH(QString, theme);
    const QTemporaryDir place;
    const QString tokens = place.filePath("tokens.json");
    const CommandRun out({"export", folder, theme, "-o", tokens});
    QCOMPARE(out.errors, QByteArray());
    QCOMPARE(out.exitCode, 0);
    const QString made = place.filePath("made");
    const CommandRun in({"import", tokens, made});
    QCOMPARE(in.errors, QByteArray());
    QCOMPARE(in.output, QString("%1/default.theme\n%1/%2.theme\n").arg(made, theme).toUtf8());
    const CommandRun again({"export", made, theme});
    QCOMPARE(again.output, contentOf(tokens));

    // Kind, key, value and palette entry; the place in the file differs.
    const auto values = [&](const QString &from) {
        QByteArrayList rows;
        const CommandRun run({"values", from, theme, "--format", "csv", "--app-dir", "images"});
        for (const QByteArray &line : run.output.split('\n'))
            rows << line.split(',').mid(0, 3).join(',');
        return rows;
    };
    QVERIFY(values(folder).size() > 3);
    QCOMPARE(values(made), values(folder));
}

void tst_Exchange::roundTripOfRareThemes_data()
{
    QTest::addColumn<QString>("theme");
    QTest::addColumn<QByteArray>("content");

    const QByteArray palette = "[Palettes]\nInk=#102030\n";
    const QByteArray colors = "[Colors]\nText=Ink\n";
    QTest::newRow("without-colors") << "night" << QByteArray("ThemeName=Night\n[Flags]\nDark=1\n");
    QTest::newRow("empty") << "night" << QByteArray();
    QTest::newRow("capital") << "Night"
                             << "ThemeName=N\n" + colors;
    QTest::newRow("blanks") << "Stage Light 2.0"
                            << "ThemeName=N\n" + colors;
    QTest::newRow("umlaut") << QString::fromUtf8("Über") << "ThemeName=N\n" + colors;
    QTest::newRow("no-display-name") << "night"
                                     << "ThemeName=\n" + colors;
    QTest::newRow("least-integer")
        << "night" << QByteArray("ThemeName=N\n[Integers]\nLeast=-2147483648\nMost=2147483647\n");
    QTest::newRow("default-file") << "default"
                                  << "ThemeName=Basis\n" + palette + colors + "[Flags]\nDark=1\n";
    QTest::newRow("default-file-without-colors") << "default"
                                                 << "ThemeName=Basis\n" + palette;
}

// The same files' names, and the same bytes when it is exported again.
void tst_Exchange::roundTripOfRareThemes()
{
    QFETCH(QString, theme);
    QFETCH(QByteArray, content);
    const TemporaryTheme folder("ThemeName=Default\n[Palettes]\nInk=#102030\n");
    folder.write(theme + ".theme", content);
    const QTemporaryDir place;
    const QString tokens = place.filePath("tokens.json");
    const CommandRun out({"export", folder.path(), theme, "-o", tokens});
    QCOMPARE(out.errors, QByteArray());
    const QString made = place.filePath("made");
    const CommandRun in({"import", tokens, made});
    QCOMPARE(in.errors, QByteArray());
    const QStringList files = QDir(made).entryList(QDir::Files, QDir::Name);
    QVERIFY2(files.contains(theme + ".theme") && files.size() == (theme == "default" ? 1 : 2),
             qPrintable(files.join(' ')));
    const CommandRun again({"export", made, theme});
    QCOMPARE(again.output, contentOf(tokens));
}

void tst_Exchange::noNumber()
{
    const TemporaryTheme folder(
        "ThemeName=Default\n[Gradients]\nGlow=1\nGlow\\1\\pos=nan\nGlow\\1\\color=#102030\n"
        "Glow\\size=1\n");
    const QTemporaryDir place;
    const CommandRun out({"export", folder.path(), "default", "-o", place.filePath("t.json")});
    QCOMPARE(out.exitCode, 2);
    QCOMPARE(
        out.errors,
        QByteArray("hvtheme: the gradient \"Glow\" has a stop at nan, which no design token can "
                   "say\n"));
    QVERIFY(!QFileInfo::exists(place.filePath("t.json")));
}

void tst_Exchange::brandOfOthers_data()
{
    QTest::addColumn<QByteArray>("tokens");
    QTest::addColumn<QByteArray>("brand");

    const QByteArray scale = R"("50":{"$value":"#eff6ff"},"100":{"$value":"#dbeafe"},
                                "500":{"$value":"#3b82f6"},"600":{"$value":"#2563eb"},
                                "900":{"$value":"#1e3a8a"})";
    QTest::newRow("scale") << R"("primary":{)" + scale + "}" << QByteArray("primary_500, #3B82F6");
    QTest::newRow("scale-beside-another") << R"("accent":{"500":{"$value":"#ff0000"}},"primary":{)"
            + scale + "}" << QByteArray("primary_500, #3B82F6");
    QTest::newRow("scale-of-ten") << QByteArray(
        R"("primary":{"1":{"$value":"#eff6ff"},"6":{"$value":"#2563eb"},
                                    "10":{"$value":"#14213d"}})")
                                  << QByteArray("primary_6, #2563EB");
    QTest::newRow("scale-without-a-name")
        << R"("blue":{)" + scale + R"(},"grey":{"500":{"$value":"#808080"}})"
        << QByteArray("blue_500, #3B82F6");
    QTest::newRow("called-so") << QByteArray(
        R"("brand":{"accent":{"$value":"#00ff00"},"primary":{"$value":"#8a3324"}})")
                               << QByteArray("brand_primary, #8A3324");
    QTest::newRow("called-so-beside-its-states")
        << QByteArray(R"("primary":{"$value":"#8a3324"},"primary-hover":{"$value":"#ff0000"})")
        << QByteArray("primary, #8A3324");
    QTest::newRow("text-of-that-rank") << QByteArray(R"("fill":{"primary":{"$value":"#8a3324"}},
                         "text":{"primary":{"$value":"#101014"}})")
                                       << QByteArray("fill_primary, #8A3324");
    QTest::newRow("translucent-brand")
        << QByteArray(R"("brand":{"$value":"#ff000080"},"x":{"$value":"#8a3324"})")
        << QByteArray("x, #8A3324");
}

void tst_Exchange::brandOfOthers()
{
    QFETCH(QByteArray, tokens);
    QFETCH(QByteArray, brand);
    const QTemporaryDir place;
    const CommandRun run({"import", written(place, "t.json", R"({"$type":"color",)" + tokens + '}'),
                          place.filePath("made")});
    QCOMPARE(run.errors, QByteArray());
    QVERIFY2(run.output.contains(QByteArray("so themes are made of " + brand + '\n')),
             run.output.constData());
}

void tst_Exchange::oneNoteForAll_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QByteArray>("note");
    QTest::newRow("one") << 1
                         << QByteArray("note: the palette entry Brand_1 is made of the brand; the "
                                       "token is left out\n");
    QTest::newRow("three") << 3
                           << QByteArray("note: 3 palette entries (Brand_1, Brand_2, Brand_3) are "
                                         "made of the brand; the tokens are left out\n");
    QTest::newRow("nine") << 9
                          << QByteArray("note: 9 palette entries (Brand_1, Brand_2, Brand_3, ...) "
                                        "are made of the brand; the tokens are left out\n");
}

void tst_Exchange::oneNoteForAll()
{
    QFETCH(int, count);
    QFETCH(QByteArray, note);
    QByteArray tokens;
    for (int i = 1; i <= count; ++i)
        tokens += ",\"Brand_" + QByteArray::number(i) + R"(":{"$value":"#3060f0"})";
    const QTemporaryDir place;
    const CommandRun run(
        {"import", written(place, "t.json", R"({"palette":{"$type":"color")" + tokens + "}}"),
         place.filePath("made")});
    QCOMPARE(run.errors, QByteArray());
    QVERIFY2(run.output.contains(note), run.output.constData());
    QCOMPARE(run.output.count("left out"), 1);
}

void tst_Exchange::tokensOfOthers()
{
    const QTemporaryDir place;
    const QString tokens = written(place, "tokens.json", R"({
        "grey": {"$type": "color", "$value": "#808080"},
        "brand": {"primary": {"$type": "color", "$value": "#8a3324"}}
    })");
    const CommandRun run({"import", tokens, place.filePath("made"), "--name", "Rust"});
    QCOMPARE(run.errors, QByteArray());
    QVERIFY2(run.output.contains("note: no token names a colour of a theme, so themes are made of "
                                 "brand_primary, #8A3324\n"),
             run.output.constData());
    const QByteArray base = contentOf(place.filePath("made/default.theme"));
    QVERIFY(base.contains("\nbrand_primary=#8A3324\n") && base.contains("\ngrey=#808080\n"));
    const CommandRun check({"check", place.filePath("made")});
    QVERIFY2(check.exitCode == 0, check.output.constData());
}

void tst_Exchange::importedFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QByteArray>("lines"); // of the default file

    const QStringList looks{"contrast.theme", "dark.theme", "default.theme", "light.theme"};
    QTest::newRow("group-color-of-others")
        << QByteArray(R"({"color":{"$type":"color","primary":{"$value":"#8a3324"},
                                   "text":{"$value":"#101010"}}})")
        << looks << QByteArray("\ncolor_primary=#8A3324\ncolor_text=#101010\n");
    QTest::newRow("color-of-the-templates")
        << QByteArray(R"({"color":{"$type":"color","Color_W100":{"$value":"#8a3324"}}})")
        << QStringList{"default.theme", "imported.theme"} << QByteArray("ThemeName=Default\n");
    QTest::newRow("called-default")
        << QByteArray(R"({"color":{"$type":"color","Color_W100":{"$value":"#8a3324"}},
                          "palette":{"$type":"color","Ink":{"$value":"#101010"}},
                          "$extensions":{"hvtheme":{"name":"Default"}}})")
        << QStringList{"default.theme", "imported.theme"} << QByteArray("Ink=#101010\n");
    QTest::newRow("name-with-a-path")
        << QByteArray(R"({"color":{"$type":"color","Color_W100":{"$value":"#8a3324"}},
                          "$extensions":{"hvtheme":{"name":"../x"}}})")
        << QStringList{"default.theme", "imported.theme"} << QByteArray("ThemeName=Default\n");
    QTest::newRow("name-with-a-place-mark")
        << QByteArray(R"({"color":{"$type":"color","Color_W100":{"$value":"#8a3324"}},
                          "$extensions":{"hvtheme":{"name":"a%1"}}})")
        << QStringList{"default.theme", "imported.theme"} << QByteArray("ThemeName=Default\n");
    QTest::newRow("strange-names")
        << QByteArray("{\"palette\":{\"$type\":\"color\",\"\xe5\x93\x81\":{\"$value\":\"#101010\"},"
                      "\";x\":{\"$value\":\"#202020\"},\"a=b\":{\"$value\":\"#303030\"},"
                      "\"a\\n[Colors]\\nb\":{\"$value\":\"#404040\"}}}")
        << looks
        << QByteArray("\n%3Bx=#202020\na%0A%5BColors%5D%0Ab=#404040\na%3Db=#303030\n"
                      "%U54C1=#101010\n");
}

void tst_Exchange::importedFiles()
{
    QFETCH(QByteArray, content);
    QFETCH(QStringList, files);
    QFETCH(QByteArray, lines);
    const QTemporaryDir place;
    const QString made = place.filePath("made");
    const CommandRun run({"import", written(place, "tokens.json", content), made});
    QCOMPARE(run.errors, QByteArray());
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(QDir(made).entryList(QDir::Files, QDir::Name), files);
    const QByteArray base = contentOf(made + "/default.theme");
    QVERIFY2(base.contains(lines), base.constData());
}

void tst_Exchange::exportRefused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("reason");

    QTest::newRow("format") << QStringList{"themes", "night", "--format", "pdf"}
                            << QByteArray("no format is called \"pdf\"; there are tokens, css, "
                                          "palette and gpl");
    QTest::newRow("theme") << QStringList{"themes", "dusk"} << QByteArray("dusk");
    QTest::newRow("no-theme") << QStringList{"themes"}
                              << QByteArray("the name of a theme is missing");
    QTest::newRow("empty-output") << QStringList{"themes", "night", "-o", ""}
                                  << QByteArray("--output needs the name of a file");
    QTest::newRow("own-source") << QStringList{"themes", "night", "-o", "themes/night.theme"}
                                << QByteArray("night.theme");
}

void tst_Exchange::exportRefused()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, reason);
    const CommandRun run(QStringList{"export"} + arguments);
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.errors.contains(reason), run.errors.constData());
    QCOMPARE(run.errors.count('\n'), 1);
    QCOMPARE(run.output, QByteArray());
}

void tst_Exchange::importRefused_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("reason");

    QTest::newRow("empty") << QByteArray() << QByteArray("tokens.json: no JSON: ");
    QTest::newRow("binary") << QByteArray(1000, '\0') << QByteArray("tokens.json: no JSON: ");
    QTest::newRow("no-color") << QByteArray("{}")
                              << QByteArray("tokens.json: there is no token of the type color");
    QTest::newRow("circle")
        << QByteArray(R"({"color":{"a":{"$value":"{color.a}"}}})")
        << QByteArray("tokens.json: token color.a: it is an alias of itself: color.a -> color.a");
    QByteArray chain = R"({"c0":{"$type":"color","$value":"#123"})";
    chain.reserve(1500000);
    for (int i = 1; i < 20000; ++i)
        chain += ",\"c" + QByteArray::number(i) + R"(":{"$type":"color","$value":"{c)"
            + QByteArray::number(i - 1) + "}\"}";
    QTest::newRow("long-chain") << chain + "}" << QByteArray("aliases of aliases without end");
    QTest::newRow("deep") << QByteArray(200000, '[') << QByteArray("tokens.json: no JSON: ");
    QByteArray groups;
    for (int i = 0; i < 200; ++i)
        groups += "{\"a\":";
    QTest::newRow("groups-in-groups") << groups + R"({"$type":"color","$value":"#123"})"
            + QByteArray(200, '}') << QByteArray("groups within groups without end");
    QTest::newRow("translucent")
        << QByteArray(R"({"x":{"glass":{"$type":"color","$value":"#ff000080"}}})")
        << QByteArray(
               "tokens.json: all colours are translucent; a theme is made of opaque colours");
    QTest::newRow("wrong-color") << QByteArray(R"({"a":{"$type":"color","$value":"bright"}})")
                                 << QByteArray("tokens.json: token a: ");
}

void tst_Exchange::importRefused()
{
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, reason);
    const QTemporaryDir place;
    const CommandRun run(
        {"import", written(place, "tokens.json", content), place.filePath("made")});
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.errors.contains(reason), run.errors.constData());
    QCOMPARE(run.errors.count('\n'), 1);
    QVERIFY(!QFileInfo::exists(place.filePath("made")));
}

void tst_Exchange::keepsWhatIsThere()
{
    const TemporaryTheme folder("[General]\nThemeName=Mine\n");
    const QTemporaryDir place;
    const QString tokens = written(place, "t.json", R"({"a":{"$type":"color","$value":"#123"}})");
    const CommandRun run({"import", tokens, folder.path()});
    QCOMPARE(run.exitCode, 2);
    QVERIFY(run.errors.contains("there are themes already"));
    QCOMPARE(contentOf(folder.path("default.theme")), QByteArray("[General]\nThemeName=Mine\n"));
    QCOMPARE(CommandRun({"import", tokens, folder.path(), "--force"}).exitCode, 0);

    QFile large(place.filePath("large.json"));
    QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(qint64(100) * 1024 * 1024));
    const CommandRun refused({"import", large.fileName(), place.filePath("made")});
    QCOMPARE(refused.exitCode, 2);
    QCOMPARE(refused.errors.count('\n'), 1);
}

void tst_Exchange::importNowhere_data()
{
    QTest::addColumn<QStringList>("target");
    QTest::addColumn<QByteArray>("reason");
    QTest::newRow("file-in-the-way")
        << QStringList{"FILE"} << QByteArray("a file is in the way; name a folder");
    QTest::newRow("read-only") << QStringList{"/proc"} << QByteArray("/proc/default.theme: ");
    QTest::newRow("no-place") << QStringList{"/proc/made"}
                              << QByteArray("/proc/made: the folder cannot be made: ");
    QTest::newRow("name") << QStringList{"OUT", "--name", "a/b"}
                          << QByteArray(
                                 "--name: \"a/b\" cannot name files; take letters, digits, ");
    QTest::newRow("name-default") << QStringList{"OUT", "--name", "Default"}
                                  << QByteArray("--name: \"Default\" cannot name files");
}

void tst_Exchange::importNowhere()
{
    QFETCH(QStringList, target);
    QFETCH(QByteArray, reason);
    const QTemporaryDir place;
    const QString tokens = written(place, "t.json", R"({"a":{"$type":"color","$value":"#123"}})");
    target.replaceInStrings("OUT", place.filePath("out"));
    target.replaceInStrings("FILE", tokens);
    const CommandRun run(QStringList{"import", tokens} + target);
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.errors.contains(reason), run.errors.constData());
    QCOMPARE(run.errors.count('\n'), 1);
    QVERIFY(!QFileInfo::exists(place.filePath("out")));
}

// Files of the system can be opened and yet not be read, and have no size before they are.
void tst_Exchange::filesOfTheSystem()
{
    const QTemporaryDir place;
    const QString out = place.filePath("out");
    const CommandRun unreadable({"import", "/proc/self/mem", out});
    QCOMPARE(unreadable.exitCode, 2);
    QCOMPARE(unreadable.errors, QByteArray("hvtheme: /proc/self/mem: Input/output error\n"));
    const CommandRun read({"import", "/proc/self/environ", out});
    QCOMPARE(read.exitCode, 2);
    QVERIFY2(read.errors.startsWith("hvtheme: /proc/self/environ: no JSON: illegal value at byte"),
             read.errors.constData());
}

// A limit on the size of files stands for a full disk.
void tst_Exchange::fullDisk()
{
    const QTemporaryDir place;
    const QString tokens = written(place, "t.json", R"({"a":{"$type":"color","$value":"#123"}})");
    const QString out = place.filePath("out");
    for (const QStringList &arguments :
         {QStringList{"import", tokens, out},
          QStringList{"export", HVTHEME_TEST_DIR "/../themes", "dark", "-o", out}}) {
        QProcess shell;
        shell.start("sh",
                    QStringList{"-c", "trap '' XFSZ; ulimit -f 1; exec \"$@\"", "sh", commandPath()}
                        + arguments);
        QVERIFY(shell.waitForFinished(20000));
        QCOMPARE(shell.exitCode(), 2);
        QCOMPARE(shell.readAllStandardError().count('\n'), 1);
        QVERIFY(!QFileInfo(out).isFile());
        QCOMPARE(QDir(out).entryList(QDir::Files), QStringList());
    }
}

QTEST_GUILESS_MAIN(tst_Exchange)
#include "tst_exchange.moc"
