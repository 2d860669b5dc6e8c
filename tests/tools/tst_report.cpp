// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "commandrun.h"

#include <QtTest>

// What `hvtheme check` tells people: the findings, and one line that sums them up.
class tst_Report : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void summary_data();
    void summary();
    void color_data();
    void color();
    void formatsHoldNotesToo_data();
    void formatsHoldNotesToo();
    void applicationBehindALink();
};

namespace
{

const QByteArray clean = "[General]\nThemeName=Default\n[Colors]\nText=#ffffff\n";
const QByteArray oneNote = "[Palettes]\nSpare=#101010\n";
const QByteArray oneWarning = "[Sounds]\nBeep=1\n";
const QByteArray oneError = "[Colors]\nBack=red\n";

QStringList checkArguments(const TemporaryTheme &folder)
{
    folder.write("nothing.json", "{\"Palette\": [], \"Integer\": []}");
    folder.write("plain.qss",
                 "QLabel { color: global.theme.color.Text; background: global.theme.color.Back; }");
    return {"check",        folder.path(), "--vocabulary",          folder.path("nothing.json"),
            "--no-builtin", "--templates", folder.path("plain.qss")};
}

} // namespace

void tst_Report::summary_data()
{
    QTest::addColumn<QByteArray>("addition");
    QTest::addColumn<QString>("options");
    QTest::addColumn<QStringList>("severities"); // of the lines
    QTest::addColumn<QString>("expected");

    const QByteArray back = "[Colors]\nBack=#000000\n";
    const QByteArray broken = "[Colors]\nBack=red\n[Flags]\na=x\n";
    const QStringList none;
    // clang-format off
    QTest::newRow("nothing") << back << "" << none << "no findings";
    QTest::newRow("nothing-with-notes") << back << "--notes" << none << "no findings";
    QTest::newRow("note") << back + oneNote << "" << none << "no errors or warnings; 1 note, see --notes";
    QTest::newRow("note-shown") << back + oneNote << "--notes" << QStringList("info") << "1 note";
    QTest::newRow("notes") << back + oneNote + "Other=#202020\n" << "" << none << "no errors or warnings; 2 notes, see --notes";
    QTest::newRow("notes-that-fail") << back + oneNote << "--fail-on info" << QStringList("info") << "1 note";
    QTest::newRow("warning") << back + oneWarning << "" << QStringList("warning") << "1 warning";
    QTest::newRow("warnings") << back + oneWarning + "[Smells]\nRose=1\n" << "" << QStringList{"warning", "warning"} << "2 warnings";
    QTest::newRow("error") << oneError << "--disable contrast" << QStringList("error") << "1 error";
    QTest::newRow("all") << oneError + oneWarning + oneNote << "--disable contrast" << QStringList{"error", "warning"} << "1 error, 1 warning; 1 note, see --notes";
    QTest::newRow("all-shown") << oneError + oneWarning + oneNote << "--disable contrast --notes" << QStringList{"error", "warning", "info"} << "1 error, 1 warning, 1 note";
    // clang-format on
}

void tst_Report::summary()
{
    QFETCH(QByteArray, addition);
    QFETCH(QString, options);
    QFETCH(QStringList, severities);
    QFETCH(QString, expected);
    const TemporaryTheme folder(clean + addition);
    const CommandRun run(checkArguments(folder) + options.split(' ', Qt::SkipEmptyParts));
    QCOMPARE(run.errors, QByteArray());
    QStringList lines = QString::fromUtf8(run.output).split('\n');
    QCOMPARE(lines.takeLast(), QString());
    QCOMPARE(lines.takeLast(), expected);
    QStringList told;
    for (const QString &line : qAsConst(lines))
        told << line.section(": ", 1, 1);
    QCOMPARE(told, severities);
}

void tst_Report::color_data()
{
    QTest::addColumn<QString>("environment");
    QTest::addColumn<bool>("isColored");

    QTest::newRow("terminal") << "NO_COLOR= TERM=xterm" << true;
    QTest::newRow("refused") << "NO_COLOR=1 TERM=xterm" << false;
    QTest::newRow("dumb") << "NO_COLOR= TERM=dumb" << false;
}

void tst_Report::color()
{
    QFETCH(QString, environment);
    QFETCH(bool, isColored);
    if (QProcess::execute("script", {"-qec", "true", "/dev/null"}) != 0)
        QSKIP("script, which stands in for a terminal, is not installed or gets none");
    const TemporaryTheme folder(clean + oneWarning + oneError + "a\x1b[31m=1\n");
    const QStringList arguments = checkArguments(folder);
    QProcess terminal;
    terminal.start(
        "script",
        {"-qec", environment % ' ' % commandPath() % ' ' % arguments.join(' '), "/dev/null"});
    QVERIFY(terminal.waitForFinished());
    const QByteArray shown = terminal.readAll();
    QVERIFY2(shown.contains(isColored ? "\033[35mwarning\033[0m: " : ": warning: "),
             shown.constData());
    QCOMPARE(shown.contains("\033[31merror\033[0m"), isColored);
    QCOMPARE(shown.contains('\033'), isColored);
}

void tst_Report::formatsHoldNotesToo_data()
{
    QTest::addColumn<QString>("format");
    QTest::newRow("json") << "json";
    QTest::newRow("sarif") << "sarif";
}

void tst_Report::formatsHoldNotesToo()
{
    QFETCH(QString, format);
    const TemporaryTheme folder(clean + oneNote);
    const QStringList arguments = checkArguments(folder) + QStringList{"--format", format};
    const QByteArray report = CommandRun(arguments).output;
    QVERIFY(report.contains("unused-palette"));
    QVERIFY(report.contains("Spare"));
    QCOMPARE(CommandRun(arguments + QStringList("--notes")).output, report);
}

// The application finds itself behind the link, and its images from there.
void tst_Report::applicationBehindALink()
{
    const TemporaryTheme folder(clean + "Back=#000000\n[ImageFiles]\nlogo=../logo.svg\n");
    QVERIFY(QDir(folder.path()).mkpath("real/bin"));
    QVERIFY(QFile::link("real/bin", folder.path("link")));
    folder.write("real/logo.svg",
                 "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"1\" height=\"1\"/>");
    const QStringList options{"--app-dir", folder.path("link"), "--disable", "unused-key"};
    const QByteArray report = CommandRun(checkArguments(folder) + options).output;
    QVERIFY2(!report.contains("[image-missing]"), report.constData());
}

QTEST_GUILESS_MAIN(tst_Report)
#include "tst_report.moc"
