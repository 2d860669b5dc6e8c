// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "commandrun.h"

#include <QtTest>

// The style sheet that the command writes is the one that an application gets.
class tst_Render : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void equalsAnApplications_data();
    void equalsAnApplications();
    void applicationBehindALink();
    void builtInTemplates();
    void writesTheFileWhole();
    void refusesEndlessSubstitution_data();
    void refusesEndlessSubstitution();
    void keepsWhatItCannotReplace_data();
    void keepsWhatItCannotReplace();
    void namesMissingImagesOnce();
    void namesUnreadablePathOnce();
};

namespace
{

// Where the application stands decides on its image paths, so it is put somewhere else.
QString installedProbe(const QString &folder)
{
    const QString probe = folder + "/probe";
    return QFile::copy(HVTHEME_PROBE, probe) ? probe : QString();
}

QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setWorkingDirectory(dataFolder());
    process.start(program, arguments, QIODevice::ReadOnly);
    if (!process.waitForFinished() || process.exitCode() != 0)
        return QByteArray("failed: ") + process.readAllStandardError();
    return process.readAllStandardOutput();
}

QStringList templateOptions(const QStringList &templates)
{
    QStringList options{"--no-builtin"};
    for (const QString &path : templates)
        options << "--templates" << path;
    return options;
}

} // namespace

void tst_Render::equalsAnApplications_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("theme");
    QTest::addColumn<QStringList>("templates");

    const QString samples = HVTHEME_TEST_DIR "/../themes";
    for (const char *theme : {"default", "dark", "light", "contrast"})
        QTest::newRow(theme) << samples << QString(theme) << QStringList{":/stylesheet"};
    QTest::newRow("own-folder") << "themes"
                                << "night" << QStringList{"templates"};
    QTest::newRow("own-folder-slash") << "themes/"
                                      << "night" << QStringList{"templates/"};
    QTest::newRow("own-files") << "themes"
                               << "night" << QStringList{"templates/b.qss", "templates/A.css"};
    QTest::newRow("same-file-twice")
        << "themes"
        << "default" << QStringList{"templates/b.qss", "templates/b.qss"};
    QTest::newRow("never-read") << "themes"
                                << "plain" << QStringList{"templates"};
}

void tst_Render::equalsAnApplications()
{
    QFETCH(QString, folder);
    QFETCH(QString, theme);
    QFETCH(QStringList, templates);

    const QTemporaryDir application;
    const QString probe = installedProbe(application.path());
    QVERIFY(!probe.isEmpty());
    const QByteArray expected = outputOf(probe, QStringList{folder, theme} + templates);
    const CommandRun run(QStringList{"render", folder, theme, "--app-dir", application.path()}
                         + templateOptions(templates));
    QCOMPARE(run.exitCode, 0);
    QVERIFY(expected.size() > 100);
    QVERIFY2(run.output == expected, qPrintable(firstDifference(expected, run.output)));
}

void tst_Render::applicationBehindALink()
{
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir("real"));
    QVERIFY(QFile::link(folder.filePath("real"), folder.filePath("link")));
    const QString probe = installedProbe(folder.filePath("real"));
    const CommandRun run({"render", "themes", "night", "--no-builtin", "--templates", "templates",
                          "--app-dir", folder.filePath("link")});
    QCOMPARE(run.output, outputOf(probe, {"themes", "night", "templates"}));
    QVERIFY(run.output.contains("/images/add.svg"));
}

void tst_Render::builtInTemplates()
{
    const CommandRun implicit({"render", HVTHEME_TEST_DIR "/../themes", "dark"});
    const CommandRun named({"render", HVTHEME_TEST_DIR "/../themes", "dark", "--no-builtin",
                            "--templates", ":/stylesheet"});
    const CommandRun more({"render", HVTHEME_TEST_DIR "/../themes", "dark", "--templates",
                           dataFolder() + "/templates/A.css"});
    const CommandRun alone({"render", HVTHEME_TEST_DIR "/../themes", "dark", "--no-builtin",
                            "--templates", dataFolder() + "/templates/A.css"});
    QVERIFY(alone.output.size() > 10);
    QCOMPARE(more.output, QByteArray(implicit.output + alone.output));
    QVERIFY(implicit.output.contains("QPushButton"));
    QVERIFY(!implicit.output.contains("global.theme"));
    QCOMPARE(implicit.output, named.output);
}

void tst_Render::writesTheFileWhole()
{
    const TemporaryTheme folder("");
    folder.write("out.qss", QByteArray(99999, ' '));
    const QStringList arguments{"render",       "themes",      "night",
                                "--no-builtin", "--templates", "templates"};
    const CommandRun run(arguments + QStringList{"-o", folder.path("out.qss")});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.output, QByteArray());
    QFile file(folder.path("out.qss"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), CommandRun(arguments).output);
    QCOMPARE(folder.entries(), QStringList({"default.theme", "out.qss"}));
}

void tst_Render::refusesEndlessSubstitution_data()
{
    QTest::addColumn<QByteArray>("theme");
    QTest::addColumn<QByteArray>("styleSheet");

    QTest::newRow("itself") << QByteArray("[ImageFiles]\na=global.theme.image.a\n")
                            << QByteArray("b { image: url(global.theme.image.a) }");
    QTest::newRow("through-another")
        << QByteArray("[ImageFiles]\na=global.theme.image.b\nb=global.theme.image.a\n")
        << QByteArray("global.theme.image.b");
    QTest::newRow("by-another-pass") << QByteArray("[ImageFiles]\na=global.theme.color.a\n")
                                     << QByteArray("global.theme.color.a");
}

void tst_Render::refusesEndlessSubstitution()
{
    QFETCH(QByteArray, theme);
    QFETCH(QByteArray, styleSheet);
    const TemporaryTheme folder(theme);
    folder.write("a.qss", styleSheet);
    const CommandRun run({"render", folder.path(), "default", "--no-builtin", "--templates",
                          folder.path("a.qss"), "-o", folder.path("out.qss")});
    QVERIFY(run.isFinished);
    QCOMPARE(run.exitCode, 1);
    QVERIFY(run.errors.contains("leads back to its own token"));
    QCOMPARE(run.errors.count('\n'), 1);
    QVERIFY(!QFile::exists(folder.path("out.qss")));
}

void tst_Render::keepsWhatItCannotReplace_data()
{
    QTest::addColumn<QString>("output");

    QTest::newRow("device") << "/dev/null";
    QTest::newRow("folder") << "FOLDER";
    QTest::newRow("missing-folder") << "FOLDER/missing/out.qss";
    QTest::newRow("below-a-file") << "FOLDER/default.theme/out.qss";
}

void tst_Render::keepsWhatItCannotReplace()
{
    QFETCH(QString, output);
    const TemporaryTheme folder("");
    const QString file = output.replace("FOLDER", folder.path());
    const CommandRun run(
        {"render", "themes", "night", "--no-builtin", "--templates", "templates", "-o", file});
    QCOMPARE(run.exitCode, 2);
    QCOMPARE(run.output, QByteArray());
    QVERIFY(run.errors.endsWith('\n') && run.errors.contains(file.toUtf8()));
    QCOMPARE(folder.entries(), QStringList("default.theme"));
    QVERIFY(!QFileInfo("/dev/null").isFile());
}

void tst_Render::namesMissingImagesOnce()
{
    const TemporaryTheme folder("[ImageFiles]\nlost=lost.png\nspare=spare.png\n");
    folder.write("a.qss", "global.theme.image.lost global.theme.image.lost");
    const CommandRun run({"render", folder.path(), "default", "--app-dir", folder.path(),
                          "--no-builtin", "--templates", folder.path("a.qss")});
    QCOMPARE(run.exitCode, 0);
    const QString path = QFileInfo(folder.path()).canonicalFilePath() + "/lost.png";
    QCOMPARE(QString(run.errors), "hvtheme: image file lost: " + path + " does not exist\n");
    QCOMPARE(QString(run.output), path + ' ' + path);
}

// The style sheet is written all the same: it is what the application gets.
void tst_Render::namesUnreadablePathOnce()
{
    const TemporaryTheme folder("[ImageFiles]\nfirst=a.png\nsecond=b.png\n");
    folder.write("a.qss",
                 "X { image: url(global.theme.image.first) }\n"
                 "Y { image: url(global.theme.image.second) }\n");
    const QString application = QFileInfo(folder.path()).canonicalFilePath() + "/Q & A";
    QVERIFY(QDir().mkpath(application));
    for (const char *name : {"/a.png", "/b.png"})
        QVERIFY(QFile::copy(folder.path("a.qss"), application + name));
    const CommandRun run({"render", folder.path(), "default", "--app-dir", application,
                          "--no-builtin", "--templates", folder.path("a.qss")});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.errors.count('\n'), 1);
    QCOMPARE(QString(run.errors),
             "hvtheme: Qt cannot read \"&\" in the path " + application
                 + "/a.png, which stands in url(...) without quotation marks, and drops the style "
                   "sheet from there on or the image\n");
    QVERIFY(run.output.contains(QByteArray("url(" + application.toUtf8() + "/b.png)")));
}

QTEST_GUILESS_MAIN(tst_Render)
#include "tst_render.moc"
