// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "commandrun.h"

#include <QRegularExpression>
#include <QtTest>

#include <unistd.h>

// `hvtheme new`: what it writes passes the check, and what it cannot write leaves no trace.
class tst_New : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void passesTheCheck_data();
    void passesTheCheck();
    void contrastHasItsPrice();
    void files_data();
    void files();
    void displayNames();
    void recordsItsParameters();
    void copies();
    void copyOfAnotherSuffix();
    void openQuotationMark_data();
    void openQuotationMark();
    void refused_data();
    void refused();
    void keepsWhatIsThere();
    void copyNeverReplacesItsSource();
    void writesAllOrNothing();
    void leavesNoFolders();
    void keepsAllIfOneCannotBeWritten();
    void writesInPlace();
};

namespace
{

QStringList filesIn(const QString &folder)
{
    return QDir(folder).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

void tst_New::passesTheCheck_data()
{
    QTest::addColumn<QStringList>("options");

    for (const char *brand : {"#3060F0", "C0A060", "steelblue", "#000000", "#ffffff", "#808080",
                              "#0000ff", "#ffff00", "#ff0000", "#00ff00"})
        QTest::newRow(brand) << QStringList{"--brand", brand};
    QTest::newRow("warm") << QStringList{"--brand", "#8a3324", "--neutral", "warm"};
    QTest::newRow("own-neutral") << QStringList{"--brand", "#8a3324", "--neutral", "#30ff60"};
    QTest::newRow("flat") << QStringList{"--brand", "#8a3324", "--depth", "1"};
}

// Neither errors nor warnings, for the built-in templates as for all further ones.
void tst_New::passesTheCheck()
{
    QFETCH(QStringList, options);
    const QTemporaryDir folder;
    const QString made = folder.filePath("themes");
    const CommandRun run(QStringList{"new", made} + options);
    QCOMPARE(run.errors, QByteArray());
    QCOMPARE(run.exitCode, 0);

    const CommandRun check({"check", made});
    QVERIFY2(!check.output.contains(" error: ") && !check.output.contains(" warning: "),
             check.output.constData());
    QCOMPARE(check.exitCode, 0);
}

// Meanings that all carry much contrast have no room to differ in lightness; that is said.
void tst_New::contrastHasItsPrice()
{
    const QTemporaryDir folder;
    const QStringList order{"new", folder.filePath("themes"), "--brand", "#8a3324"};
    const QByteArray note = "note: dark: error, warning, success and highlight cannot all be told";
    QVERIFY(!CommandRun(order).output.contains(note));
    const CommandRun run(order + QStringList{"--force", "--text-contrast", "7"});
    QVERIFY2(run.output.contains(note), run.output.constData());
    QCOMPARE(run.exitCode, 0);
}

void tst_New::files_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("all") << QStringList()
                         << QStringList{"contrast.theme", "dark.theme", "default.theme",
                                        "light.theme"};
    QTest::newRow("some") << QStringList{"--looks", "light, dark"}
                          << QStringList{"dark.theme", "default.theme", "light.theme"};
    QTest::newRow("twice") << QStringList{"--looks", "light,light"}
                           << QStringList{"default.theme", "light.theme"};
    QTest::newRow("named") << QStringList{"--looks", "dark", "--name", "Stage Light"}
                           << QStringList{"default.theme", "stage-light-dark.theme"};
    QTest::newRow("suffix") << QStringList{"--looks", "dark", "--suffix", "look"}
                            << QStringList{"dark.look", "default.look"};
}

void tst_New::files()
{
    QFETCH(QStringList, options);
    QFETCH(QStringList, expected);
    const QTemporaryDir folder;
    const CommandRun run(QStringList{"new", folder.path(), "--brand", "#3060F0"} + options);
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(filesIn(folder.path()), expected);
    for (const QString &file : expected) // each is told of
        QVERIFY(run.output.contains((folder.filePath(file) + '\n').toUtf8()));
    for (const QString &file : expected)
        QVERIFY(!contentOf(folder.filePath(file)).contains("[ImageFiles]"));

    // Comments name the files of this folder, and the command that made them.
    const QString suffix = QFileInfo(expected.constFirst()).suffix();
    const QByteArray base = contentOf(folder.filePath("default." + suffix));
    const QByteArray look = contentOf(folder.filePath(expected.constFirst()));
    QVERIFY(base.contains(QByteArray("; " + expected.constFirst().toUtf8() + " for \""))
            || expected.constFirst() != "dark." + suffix);
    QVERIFY(look.contains(QByteArray("Read after default." + suffix.toUtf8() + ','))
            || expected.constFirst().startsWith("default"));
    QCOMPARE(base.contains("--suffix \"look\"\n"), suffix == "look");
}

void tst_New::displayNames()
{
    const QTemporaryDir folder;
    const CommandRun run({"new", folder.path(), "--brand", "#3060F0", "--name", "stage light"});
    QCOMPARE(run.exitCode, 0);
    QVERIFY(contentOf(folder.filePath("stage-light-dark.theme"))
                .contains("\nThemeName=Stage light dark\n"));
    QVERIFY(contentOf(folder.filePath("default.theme")).contains("\nThemeName=Default\n"));
}

// The default file says how the folder came about, and that makes it again.
void tst_New::recordsItsParameters()
{
    const QTemporaryDir folder;
    const QStringList options{"--brand", "#8A3324",         "--neutral", "warm",    "--name",
                              "Rust",    "--text-contrast", "6.5",       "--depth", "2"};
    QCOMPARE(CommandRun(QStringList{"new", folder.filePath("a")} + options).exitCode, 0);
    const QByteArray text = contentOf(folder.filePath("a/default.theme"));
    QVERIFY2(text.contains(
                 "hvtheme new FOLDER --brand #8A3324 --neutral warm --text-contrast 6.5 --depth 2 "
                 "--name \"Rust\"\n"),
             text.constData());
    QCOMPARE(CommandRun(QStringList{"new", folder.filePath("b")} + options).exitCode, 0);
    for (const QString &file : filesIn(folder.filePath("a")))
        QCOMPARE(contentOf(folder.filePath("b/") + file), contentOf(folder.filePath("a/") + file));
}

void tst_New::copies()
{
    const QTemporaryDir folder;
    const QString samples = HVTHEME_TEST_DIR "/../themes";
    const CommandRun exact({"new", folder.filePath("exact"), "--from", samples + "/dark"});
    QCOMPARE(exact.exitCode, 0);
    for (const char *file : {"dark.theme", "default.theme"})
        QCOMPARE(contentOf(folder.filePath("exact/") + file), contentOf(samples + '/' + file));

    const CommandRun rust({"new", folder.filePath("rust"), "--from", samples + "/dark", "--brand",
                           "#8A3324", "--name", "Rust"});
    QCOMPARE(rust.exitCode, 0);
    QCOMPARE(filesIn(folder.filePath("rust")), QStringList({"default.theme", "rust.theme"}));
    const QByteArray own = contentOf(folder.filePath("rust/rust.theme"));
    QVERIFY(own.contains("\nThemeName=Rust\n"));
    QVERIFY(own.contains("\nadd=../share/hvtheme/themes/dark/add.svg\n"));
    QVERIFY(contentOf(folder.filePath("rust/default.theme")).contains("\nBrand=#8A3324\n"));
}

void tst_New::copyOfAnotherSuffix()
{
    const QByteArray text("[General]\nThemeName=Mine\n");
    const TemporaryTheme source(text); // its default.theme is none of this suffix
    const QStringList arguments{"--from", source.path("night"), "--suffix", "look"};
    const QTemporaryDir folder;
    const QString out = folder.filePath("out");
    source.write("night.look", text);
    QCOMPARE(CommandRun(QStringList{"new", out} + arguments).errors,
             "hvtheme: " + source.path("default.look").toUtf8() + ": no such theme file\n");
    source.write("default.look", "[Flags]\nA=1\n");
    QCOMPARE(CommandRun(QStringList{"new", out} + arguments).exitCode, 0);
    QCOMPARE(filesIn(out), QStringList({"default.look", "night.look"}));
    QCOMPARE(contentOf(folder.filePath("out/default.look")), QByteArray("[Flags]\nA=1\n"));

    // Themes are there already, of this suffix; of the other there are none yet.
    const QStringList anew{"new", out, "--brand", "red"};
    QVERIFY(CommandRun(anew + QStringList{"--suffix", "look"})
                .errors.contains("there are themes already (default.look, night.look)"));
    QCOMPARE(CommandRun(anew).exitCode, 0);
}

void tst_New::openQuotationMark_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QByteArray>("reason");
    QTest::newRow("brand") << QStringList{"--brand", "#2060a0"}
                           << QByteArray("/own: nothing can be added to the default file without "
                                         "changing other entries; look for a quotation mark");
    QTest::newRow("name") << QStringList{"--name", "Rust"}
                          << QByteArray("/own: the name cannot be added without changing other "
                                        "entries; look for a quotation mark");
}

// It would take in what is added behind it.
void tst_New::openQuotationMark()
{
    QFETCH(QStringList, options);
    QFETCH(QByteArray, reason);
    const TemporaryTheme source("[Palettes]\nBrand_6=#2449CC\nVeil=\"#80000000\n");
    source.write("own.theme",
                 "[Colors]\nColor_W100=#ffffff\nGeneralButtonBackgroundNormal=Brand_6\nA=\"x\n");
    const QTemporaryDir place;
    const CommandRun run(QStringList{"new", place.filePath("out"), "--from", source.path("own")}
                         + options);
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.errors.contains(reason), run.errors.constData());
    QCOMPARE(run.errors.count('\n'), 1);
    QVERIFY(!QFileInfo::exists(place.filePath("out")));
}

void tst_New::refused_data()
{
    QTest::addColumn<QStringList>("arguments"); // "OUT" stands for a folder that is not there
    QTest::addColumn<QByteArray>("reason");

    QTest::newRow("no-folder") << QStringList{"--brand", "red"} << QByteArray("FOLDER is missing");
    QTest::newRow("empty-folder") << QStringList{"", "--brand", "red"}
                                  << QByteArray("FOLDER is empty");
    QTest::newRow("two-folders") << QStringList{"OUT", "more", "--brand", "red"}
                                 << QByteArray("one argument too many: more");
    QTest::newRow("no-brand") << QStringList{"OUT"} << QByteArray("--brand is missing");
    QTest::newRow("no-color") << QStringList{"OUT", "--brand", "bright"}
                              << QByteArray("--brand: \"bright\" is no colour; write #RRGGBB");
    QTest::newRow("empty-color") << QStringList{"OUT", "--brand", ""}
                                 << QByteArray("--brand: \"\" is no colour; write #RRGGBB");
    QTest::newRow("translucent") << QStringList{"OUT", "--brand", "#80FF0000"}
                                 << QByteArray("--brand: #80FF0000 is translucent");
    QTest::newRow("transparent") << QStringList{"OUT", "--brand", "transparent"}
                                 << QByteArray("--brand: \"transparent\" is no colour");
    QTest::newRow("neutral") << QStringList{"OUT", "--brand", "red", "--neutral", "tepid"}
                             << QByteArray("--neutral: \"tepid\" is no colour");
    QTest::newRow("contrast") << QStringList{"OUT", "--brand", "red", "--text-contrast", "11"}
                              << QByteArray("--text-contrast: \"11\" is no number from 4.5 to 10");
    QTest::newRow("depth") << QStringList{"OUT", "--brand", "red", "--depth", "nan"}
                           << QByteArray("--depth: \"nan\" is no number from 1 to 4");
    QTest::newRow("look") << QStringList{"OUT", "--brand", "red", "--looks", "dark,dim"}
                          << QByteArray("--looks: no look is called \"dim\"");
    QTest::newRow("name-with-slash") << QStringList{"OUT", "--brand", "red", "--name", "../x"}
                                     << QByteArray("--name: \"../x\" cannot name files");
    QTest::newRow("name-default") << QStringList{"OUT", "--brand", "red", "--name", "Default"}
                                  << QByteArray("--name: \"Default\" cannot name files");
    QTest::newRow("from-and-looks")
        << QStringList{"OUT", "--from", "themes/night", "--looks", "dark"}
        << QByteArray("do not go with --from");
    QTest::newRow("from-nowhere") << QStringList{"OUT", "--from", "nowhere/dark"}
                                  << QByteArray("nowhere/default.theme: no such theme file");
    QTest::newRow("from-no-theme") << QStringList{"OUT", "--from", "themes/dusk"}
                                   << QByteArray("themes/dusk.theme: no such theme file");
    QTest::newRow("from-default") << QStringList{"OUT", "--from", "themes/default", "--brand",
                                                 "red"}
                                  << QByteArray("--from: the default file is copied with each "
                                                "theme; name a theme");
    QTest::newRow("from-with-suffix")
        << QStringList{"OUT", "--from", "themes/night.theme"}
        << QByteArray("themes/night.theme.theme: no such theme file; write themes/night\n");
    QTest::newRow("file-in-the-way") << QStringList{"OUT/file", "--brand", "red"}
                                     << QByteArray("a file is in the way; name a folder");
    QTest::newRow("read-only") << QStringList{"/proc", "--brand", "red"}
                               << QByteArray("/proc/default.theme: ");
    QTest::newRow("no-suffix") << QStringList{"OUT", "--brand", "red", "--suffix", ""}
                               << QByteArray("--suffix needs a text");
    QTest::newRow("suffix-with-slash")
        << QStringList{"OUT", "--brand", "red", "--suffix", "/../x"}
        << QByteArray("--suffix: \"/../x\" cannot be the end of a file name");
    QTest::newRow("name-with-umlaut")
        << QStringList{"OUT", "--brand", "red", "--name", QString::fromUtf8("ü")}
        << QByteArray("--name");
    QTest::newRow("no-place") << QStringList{"/proc/themes", "--brand", "red"}
                              << QByteArray("/proc/themes: the folder cannot be made: ");
}

void tst_New::refused()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, reason);
    const QTemporaryDir folder;
    const QString out = folder.filePath("out");
    arguments.replaceInStrings(QRegularExpression("^OUT$"), out);
    if (arguments.value(0) == "OUT/file") {
        arguments[0] = folder.filePath("file");
        QFile file(arguments.at(0));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    const CommandRun run(QStringList{"new"} + arguments);
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.errors.contains(reason), run.errors.constData());
    QCOMPARE(run.errors.count('\n'), 1);
    QCOMPARE(run.output, QByteArray());
    QVERIFY(!QFileInfo::exists(out));
}

void tst_New::keepsWhatIsThere()
{
    const TemporaryTheme folder("[General]\nThemeName=Mine\n");
    const QStringList arguments{"new", folder.path(), "--brand", "#3060F0"};
    const CommandRun refused(arguments);
    QCOMPARE(refused.exitCode, 2);
    QVERIFY2(refused.errors.contains("there are themes already (default.theme); name another "
                                     "folder, or write over them with --force"),
             refused.errors.constData());
    QCOMPARE(contentOf(folder.path("default.theme")), QByteArray("[General]\nThemeName=Mine\n"));
    QCOMPARE(filesIn(folder.path()), QStringList{"default.theme"});

    folder.write("night.theme", "[Flags]\nA=1\n");
    QCOMPARE(CommandRun(arguments + QStringList{"--force"}).exitCode, 0);
    QVERIFY(contentOf(folder.path("default.theme")).contains("Brand_1="));
    QCOMPARE(contentOf(folder.path("night.theme")), QByteArray("[Flags]\nA=1\n"));
}

void tst_New::copyNeverReplacesItsSource()
{
    const QByteArray text("[General]\nThemeName=Mine\n");
    const TemporaryTheme folder(text);
    folder.write("night.theme", text);
    const QString roundabout = folder.path("../" + QFileInfo(folder.path()).fileName() + "/night");
    for (const QString &source : {folder.path("night"), roundabout}) {
        const CommandRun run({"new", folder.path(), "--from", source, "--brand", "red", "--force"});
        QCOMPARE(run.exitCode, 2);
        QCOMPARE(run.errors,
                 "hvtheme: " + folder.path().toUtf8()
                     + ": the theme that --from names is in this folder and would be written over; "
                       "name another folder\n");
    }
    QCOMPARE(contentOf(folder.path("default.theme")), text);
    QCOMPARE(contentOf(folder.path("night.theme")), text);
}

// A limit on the size of files stands for a full disk.
void tst_New::writesAllOrNothing()
{
    const TemporaryTheme folder("[General]\nThemeName=Mine\n");
    QProcess shell;
    shell.start("sh",
                {"-c", "trap '' XFSZ; ulimit -f 4; exec \"$@\"", "sh", commandPath(), "new",
                 folder.path(), "--brand", "#3060F0", "--force"});
    QVERIFY(shell.waitForFinished(20000));
    QCOMPARE(shell.exitCode(), 2);
    const QByteArray errors = shell.readAllStandardError();
    QVERIFY2(errors.endsWith(".theme: File too large\n"), errors.constData());
    QCOMPARE(errors.count('\n'), 1);
    QCOMPARE(filesIn(folder.path()), QStringList{"default.theme"});
    QCOMPARE(contentOf(folder.path("default.theme")), QByteArray("[General]\nThemeName=Mine\n"));
}

// No folder stays of those that were made on the way.
void tst_New::leavesNoFolders()
{
    const QTemporaryDir folder;
    QProcess shell;
    shell.start("sh",
                {"-c", "trap '' XFSZ; ulimit -f 4; exec \"$@\"", "sh", commandPath(), "new",
                 folder.filePath("some/where/new"), "--brand", "#3060F0"});
    QVERIFY(shell.waitForFinished(20000));
    QCOMPARE(shell.exitCode(), 2);
    QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
}

// A file with two names is written in place, and nobody may write to a program that runs.
void tst_New::keepsAllIfOneCannotBeWritten()
{
    const TemporaryTheme folder("[General]\nThemeName=Mine\n");
    const QString program = folder.path("dark.theme");
    const QString sleep = QStandardPaths::findExecutable("sleep");
    if (sleep.isEmpty())
        QSKIP("no program to run");
    QVERIFY(QFile::copy(sleep, program));
    QVERIFY(
        ::link(program.toLocal8Bit().constData(), folder.path("other").toLocal8Bit().constData())
        == 0);
    const QByteArray before = contentOf(program);
    QProcess running;
    running.start(program, {"60"});
    QVERIFY(running.waitForStarted());

    const CommandRun run({"new", folder.path(), "--brand", "#3060F0", "--force"});
    running.kill();
    QVERIFY(running.waitForFinished());
    QCOMPARE(run.exitCode, 2);
    QCOMPARE(run.errors, QString("hvtheme: %1: Text file busy\n").arg(program).toUtf8());
    QCOMPARE(filesIn(folder.path()), QStringList({"dark.theme", "default.theme", "other"}));
    QCOMPARE(contentOf(folder.path("default.theme")), QByteArray("[General]\nThemeName=Mine\n"));
    QVERIFY(contentOf(program) == before);
}

// In place, a file becomes shorter and longer as it should, and stays one with its other name.
void tst_New::writesInPlace()
{
    for (const int size : {0, 20, 200000}) {
        const TemporaryTheme folder("[General]\nThemeName=Mine\n" + QByteArray(size, ';'));
        const QByteArray other = folder.path("other").toLocal8Bit();
        QVERIFY(::link(folder.path("default.theme").toLocal8Bit().constData(), other.constData())
                == 0);
        const QStringList options{"--brand", "#3060F0", "--force"};
        QCOMPARE(CommandRun(QStringList{"new", folder.path()} + options).exitCode, 0);
        const QTemporaryDir fresh;
        QCOMPARE(CommandRun(QStringList{"new", fresh.path()} + options).exitCode, 0);
        QCOMPARE(contentOf(folder.path("default.theme")),
                 contentOf(fresh.filePath("default.theme")));
        QCOMPARE(contentOf(folder.path("other")), contentOf(fresh.filePath("default.theme")));
    }
}

QTEST_GUILESS_MAIN(tst_New)
#include "tst_new.moc"
