// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "commandrun.h"

#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

// What -o writes, what it keeps, and what it leaves alone.
class tst_Writing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refusesItsInputs_data();
    void refusesItsInputs();
    void keepsWhatTheFileWas_data();
    void keepsWhatTheFileWas();
    void keepsTheOwner();
    void writesThroughLinks();
    void tellsTheRealReason_data();
    void tellsTheRealReason();
    void names_data();
    void names();
};

namespace
{

struct stat statusOf(const QString &path)
{
    struct stat status = {};
    if (::lstat(QFile::encodeName(path).constData(), &status) != 0)
        qFatal("cannot look at %s", qPrintable(path));
    return status;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

CommandRun render(const TemporaryTheme &folder, const QString &output)
{
    return CommandRun({"render", folder.path(), "default", "--no-builtin", "--templates",
                       folder.path("a.qss"), "-o", output});
}

const QByteArray plain = "QLabel { color: red }";

} // namespace

void tst_Writing::refusesItsInputs_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("output");

    QTest::newRow("render-default") << "render"
                                    << "default.theme";
    QTest::newRow("render-theme") << "render"
                                  << "night.theme";
    QTest::newRow("render-template") << "render"
                                     << "a.qss";
    QTest::newRow("render-image") << "render"
                                  << "a.png";
    QTest::newRow("render-link") << "render"
                                 << "link";
    QTest::newRow("render-hard-link") << "render"
                                      << "second";
    QTest::newRow("export-theme") << "export"
                                  << "night.theme";
    QTest::newRow("export-image") << "export"
                                  << "a.png";
    QTest::newRow("sheet-image") << "sheet"
                                 << "a.png";
    QTest::newRow("sheet-theme") << "sheet"
                                 << "page.html";
}

void tst_Writing::refusesItsInputs()
{
    QFETCH(QString, command);
    QFETCH(QString, output);
    const TemporaryTheme folder("[ImageFiles]\na=a.png\n");
    folder.write("night.theme", "ThemeName=Night\n");
    folder.write("a.qss", plain);
    folder.write("a.png", "an image");
    QVERIFY(QFile::link(folder.path("night.theme"), folder.path("link")));
    QVERIFY(QFile::link(folder.path("night.theme"), folder.path("page.html")));
    QVERIFY(::link(qPrintable(folder.path("a.qss")), qPrintable(folder.path("second"))) == 0);
    const QByteArray before = contentOf(folder.path(output));
    const CommandRun run({command, folder.path(), "night", "--app-dir", folder.path(),
                          "--no-builtin", "--templates", folder.path("a.qss"), "-o",
                          folder.path(output)});
    QCOMPARE(QString(run.errors),
             "hvtheme: " + folder.path(output)
                 + ": read by this very command, so it is not replaced; name another file\n");
    QCOMPARE(run.exitCode, 2);
    QCOMPARE(contentOf(folder.path(output)), before);
}

void tst_Writing::keepsWhatTheFileWas_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("hasTwoNames");

    QTest::newRow("private") << 0600 << false;
    QTest::newRow("group") << 0664 << false;
    QTest::newRow("executable") << 0751 << false;
    QTest::newRow("two-names") << 0640 << true;
}

void tst_Writing::keepsWhatTheFileWas()
{
    QFETCH(int, mode);
    QFETCH(bool, hasTwoNames);
    const TemporaryTheme folder("");
    folder.write("a.qss", plain);
    const QString output = folder.path("out.qss");
    folder.write("out.qss", QByteArray(9999, 'x'));
    QCOMPARE(::chmod(qPrintable(output), mode_t(mode)), 0);
    if (hasTwoNames)
        QCOMPARE(::link(qPrintable(output), qPrintable(folder.path("second"))), 0);
    const CommandRun run = render(folder, output);
    QCOMPARE(run.errors, QByteArray());
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(contentOf(output), plain);
    QCOMPARE(int(statusOf(output).st_mode & 07777), mode);
    QCOMPARE(int(statusOf(output).st_nlink), hasTwoNames ? 2 : 1);
    if (hasTwoNames)
        QCOMPARE(contentOf(folder.path("second")), plain);
}

void tst_Writing::keepsTheOwner()
{
    if (::geteuid() != 0)
        QSKIP("only root can give a file away");
    const TemporaryTheme folder("");
    folder.write("a.qss", plain);
    folder.write("out.qss", "");
    const QString output = folder.path("out.qss");
    QCOMPARE(::chown(qPrintable(output), 65534, 65533), 0);
    QCOMPARE(render(folder, output).exitCode, 0);
    QCOMPARE(contentOf(output), plain);
    QCOMPARE(int(statusOf(output).st_uid), 65534);
    QCOMPARE(int(statusOf(output).st_gid), 65533);
}

void tst_Writing::writesThroughLinks()
{
    const TemporaryTheme folder("");
    folder.write("a.qss", plain);
    folder.write("real.qss", "");
    QVERIFY(QFile::link("real.qss", folder.path("first.qss")));
    QVERIFY(QFile::link("first.qss", folder.path("out.qss")));
    QCOMPARE(render(folder, folder.path("out.qss")).exitCode, 0);
    QCOMPARE(contentOf(folder.path("real.qss")), plain);
    QVERIFY(QFileInfo(folder.path("out.qss")).isSymLink());
    QVERIFY(QFileInfo(folder.path("first.qss")).isSymLink());
}

void tst_Writing::tellsTheRealReason_data()
{
    QTest::addColumn<bool>("hasTwoNames");

    QTest::newRow("beside") << false;
    QTest::newRow("in-place") << true;
}

// A limit of the size of files stands in for a full disk: what fails is the writing.
void tst_Writing::tellsTheRealReason()
{
    QFETCH(bool, hasTwoNames);
    const TemporaryTheme folder("");
    folder.write("a.qss", QByteArray(9999, ' '));
    folder.write("out.qss", "kept");
    const QString output = folder.path("out.qss");
    if (hasTwoNames)
        QCOMPARE(::link(qPrintable(output), qPrintable(folder.path("second"))), 0);
    QProcess shell;
    shell.start("bash",
                {"-c", "trap '' XFSZ; ulimit -f 1; exec \"$@\"", "bash", commandPath(), "render",
                 folder.path(), "default", "--no-builtin", "--templates", folder.path("a.qss"),
                 "-o", output});
    QVERIFY(shell.waitForFinished());
    QCOMPARE(QString(shell.readAllStandardError()), "hvtheme: " + output + ": File too large\n");
    QCOMPARE(shell.exitCode(), 2);
    QCOMPARE(contentOf(output), QByteArray("kept"));
    QCOMPARE(folder.entries().filter("out").size(), 1);
}

void tst_Writing::names_data()
{
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("error");
    QTest::addColumn<QByteArray>("standardOutput");

    QTest::newRow("dash") << "-"
                          << "" << plain;
    QTest::newRow("empty")
        << ""
        << "hvtheme: render: --output needs the name of a file (see hvtheme render --help)\n"
        << QByteArray();
}

void tst_Writing::names()
{
    QFETCH(QString, output);
    QFETCH(QString, error);
    QFETCH(QByteArray, standardOutput);
    const TemporaryTheme folder("");
    folder.write("a.qss", plain);
    const CommandRun run = render(folder, output);
    QCOMPARE(QString(run.errors), error);
    QCOMPARE(run.exitCode, error.isEmpty() ? 0 : 2);
    QCOMPARE(run.output, standardOutput);
    QVERIFY(!QFile::exists(dataFolder() + "/-"));
}

QTEST_GUILESS_MAIN(tst_Writing)
#include "tst_writing.moc"
