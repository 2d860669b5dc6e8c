// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "commandrun.h"

#include <QtTest>

#include <sys/stat.h>

// Whatever is named by mistake ends in one line, exit code 2, and nothing written.
class tst_CommandInput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void badFolder_data();
    void badFolder();
    void badTemplate_data();
    void badTemplate();
    void unreadableFile();
    void imagesThatAreNone_data();
    void imagesThatAreNone();
};

namespace
{

// The arguments of each command that reads a folder, FOLDER standing for it.
const QStringList allCommands{"render FOLDER night -o OUT",
                              "values FOLDER night",
                              "explain FOLDER night Veil",
                              "diff FOLDER default night",
                              "sheet FOLDER night -o OUT.html",
                              "sheet FOLDER night -o OUT.png",
                              "check FOLDER"};

void makePipe(const QString &path)
{
    if (::mkfifo(qPrintable(path), 0600) != 0)
        qFatal("cannot make a pipe at %s", qPrintable(path));
}

// A sparse file: nothing is written, and yet it is 100 MB large.
void makeLarge(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || !file.resize(qint64(100) * 1024 * 1024))
        qFatal("cannot make a large file at %s", qPrintable(path));
}

void verifyRefused(const QString &command, const QString &folder, const QString &reason)
{
    const QTemporaryDir outputs;
    QString line = command;
    line.replace("FOLDER", folder).replace("OUT", outputs.filePath("out"));
    const CommandRun run(line.split(' '));
    QVERIFY2(run.isFinished, qPrintable(line));
    QVERIFY2(run.errors.contains(reason.toUtf8()), qPrintable(line + '\n' + run.errors));
    QCOMPARE(run.errors.count('\n'), 1);
    QCOMPARE(run.output, QByteArray());
    QCOMPARE(run.exitCode, 2);
    QVERIFY(QDir(outputs.path()).isEmpty());
}

} // namespace

void tst_CommandInput::badFolder_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("reason");

    const QStringList sorts{"missing",   "file",   "empty", "pipe",     "device",
                            "directory", "binary", "large", "own-pipe", "endless-gradient"};
    const QStringList reasons{"no such folder; name the one with the theme files",
                              "not a folder; name the one with the theme files",
                              "no default.theme",
                              "not a regular file",
                              "not a regular file",
                              "not a regular file",
                              "binary",
                              "larger than",
                              "not a regular file",
                              "claims"};
    for (const QString &command : allCommands) {
        for (int i = 0; i < sorts.size(); ++i)
            QTest::addRow("%s-%s", qPrintable(command.section(' ', 0, 0) + command.right(5)),
                          qPrintable(sorts.at(i)))
                << command << sorts.at(i) << reasons.at(i);
    }
}

void tst_CommandInput::badFolder()
{
    QFETCH(QString, command);
    QFETCH(QString, what);
    QFETCH(QString, reason);

    const TemporaryTheme theme("[Palettes]\nVeil=#FFF\n");
    theme.write("night.theme", "");
    const QString file = theme.path("default.theme");
    if (what == "missing")
        return verifyRefused(command, theme.path("missing"), reason);
    if (what == "file")
        return verifyRefused(command, file, reason);
    if (what == "binary")
        theme.write("default.theme", QByteArray("[Palettes]\n\0\1\2", 14));
    else if (what == "endless-gradient")
        theme.write("default.theme", "[Gradients]\na=1\na\\size=2000000000\n");
    else if (what == "large")
        makeLarge(file);
    else
        QVERIFY(QFile::remove(what == "own-pipe" ? theme.path("night.theme") : file));
    if (what == "device")
        QVERIFY(QFile::link("/dev/zero", file));
    else if (what == "directory")
        QVERIFY(QDir(theme.path()).mkdir("default.theme"));
    else if (what == "pipe")
        makePipe(file);
    else if (what == "own-pipe")
        makePipe(theme.path("night.theme"));
    verifyRefused(command, theme.path(), reason);
}

void tst_CommandInput::badTemplate_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("reason");

    const QStringList commands{"render FOLDER default -o OUT", "explain FOLDER default Veil"};
    for (const QString &command : commands) {
        const QString tag = command.section(' ', 0, 0);
        QTest::newRow(qPrintable(tag + "-missing")) << command << "missing.qss"
                                                    << "No such file";
        QTest::newRow(qPrintable(tag + "-empty-folder")) << command << "empty"
                                                         << "no templates";
        QTest::newRow(qPrintable(tag + "-pipe")) << command << "pipe.qss"
                                                 << "not a regular file";
        QTest::newRow(qPrintable(tag + "-large")) << command << "large.qss"
                                                  << "larger than";
    }
}

void tst_CommandInput::badTemplate()
{
    QFETCH(QString, command);
    QFETCH(QString, what);
    QFETCH(QString, reason);

    const TemporaryTheme theme("[Palettes]\nVeil=#FFF\n");
    QVERIFY(QDir(theme.path()).mkdir("empty"));
    makePipe(theme.path("pipe.qss"));
    makeLarge(theme.path("large.qss"));
    verifyRefused(command + " --templates " + theme.path(what), theme.path(), reason);
}

void tst_CommandInput::unreadableFile()
{
    const TemporaryTheme theme("[Palettes]\nVeil=#FFF\n");
    QFile file(theme.path("default.theme"));
    QVERIFY(file.setPermissions({}));
    if (file.open(QIODevice::ReadOnly))
        QSKIP("this user may read every file");
    for (const QString &command : allCommands)
        verifyRefused(command.contains("diff") ? "diff FOLDER default default" : command,
                      theme.path(), "Permission denied");
}

void tst_CommandInput::imagesThatAreNone_data()
{
    QTest::addColumn<QString>("output");

    QTest::newRow("page") << "out.html";
    QTest::newRow("picture") << "out.png";
}

// A theme may name anything as an image; a sheet shows that there is none and goes on.
void tst_CommandInput::imagesThatAreNone()
{
    QFETCH(QString, output);
    const TemporaryTheme theme("[ImageFiles]\na=pipe.png\nb=large.png\nc=text.png\nd=lost.png\n"
                               "e=empty\nf=zero.png\n");
    makePipe(theme.path("pipe.png"));
    makeLarge(theme.path("large.png"));
    theme.write("text.png", "no image");
    QVERIFY(QDir(theme.path()).mkdir("empty"));
    QVERIFY(QFile::link("/dev/zero", theme.path("zero.png")));
    const CommandRun run(
        {"sheet", theme.path(), "default", "--app-dir", theme.path(), "-o", theme.path(output)});
    QVERIFY(run.isFinished);
    QCOMPARE(
        run.errors,
        QByteArray("hvtheme: image file b: " + theme.path("large.png").toUtf8()
                   + " is larger than 4 MB, too much for a sheet, which shows it as missing\n"));
    QCOMPARE(run.exitCode, 0);
    QFile file(theme.path(output));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.size() > 500);
    QVERIFY(!file.readAll().contains("src=\"data:"));
}

QTEST_GUILESS_MAIN(tst_CommandInput)
#include "tst_commandinput.moc"
