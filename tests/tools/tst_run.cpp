// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "commandrun.h"

#include <QtTest>

#include <csignal>

// `hvtheme run` becomes another program: what that one sees, and what its caller gets.
class tst_Run : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void environment_data();
    void environment();
    void restOfTheEnvironment();
    void pluginRequest_data();
    void pluginRequest();
    void arguments_data();
    void arguments();
    void inputAndOutput();
    void exitCodes_data();
    void exitCodes();
    void signal();
    void usage_data();
    void usage();
    void themesFolder();
    void missingPlugin();
};

namespace
{

struct Run {
    int code = -1;
    QProcess::ExitStatus status = QProcess::CrashExit;
    QByteArray output;
    QByteArray errors;
};

Run run(const QStringList &arguments, const QProcessEnvironment &environment,
        const QByteArray &input = {}, const QString &command = commandPath())
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(command, QStringList("run") + arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished(20000))
        return {};
    return {process.exitCode(), process.exitStatus(), process.readAllStandardOutput(),
            process.readAllStandardError()};
}

// The environment of the tests without what is looked at here.
QProcessEnvironment plainEnvironment()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"QT_PLUGIN_PATH", "QT_QPA_GENERIC_PLUGINS", "QT_QPA_PLATFORM"})
        environment.remove(name);
    return environment;
}

QString valueSeen(const QStringList &options, const QProcessEnvironment &environment,
                  const QByteArray &variable)
{
    const Run seen = run(options + QStringList{"--", "env"}, environment);
    for (const QByteArray &line : seen.output.split('\n')) {
        if (line.startsWith(QByteArray(variable + '=')))
            return QString::fromLocal8Bit(line.mid(variable.size() + 1));
    }
    return {};
}

QString pluginsFolder()
{
    return QStringLiteral(HVTHEME_BUILD_PLUGINS);
}

} // namespace

void tst_Run::environment_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("plugins");
    QTest::addColumn<QString>("expectedPath");
    QTest::addColumn<QString>("expectedPlugins");

    const QString folder = pluginsFolder();
    const QString entry = "hvtheme:program=env&theme=dark";
    QTest::newRow("unset") << QString() << QString() << folder << entry;
    QTest::newRow("empty") << ""
                           << "" << folder << entry;
    QTest::newRow("others") << "/a:/b"
                            << "evdevkeyboard:/dev/x,tslib"
                            << "/a:/b:" + folder << entry + ",evdevkeyboard:/dev/x,tslib";
    QTest::newRow("there-already") << folder + ":/b"
                                   << "tslib," + entry << folder + ":/b"
                                   << "tslib," + entry;
    QTest::newRow("another-theme")
        << folder << "hvtheme:theme=light" << folder << entry + ",hvtheme:theme=light";
}

void tst_Run::environment()
{
    QFETCH(QString, path);
    QFETCH(QString, plugins);
    QFETCH(QString, expectedPath);
    QFETCH(QString, expectedPlugins);
    QProcessEnvironment environment = plainEnvironment();
    if (!path.isNull())
        environment.insert("QT_PLUGIN_PATH", path);
    if (!plugins.isNull())
        environment.insert("QT_QPA_GENERIC_PLUGINS", plugins);
    const QStringList options{"--theme", "dark"};
    QCOMPARE(valueSeen(options, environment, "QT_PLUGIN_PATH"), expectedPath);
    QCOMPARE(valueSeen(options, environment, "QT_QPA_GENERIC_PLUGINS"), expectedPlugins);
}

void tst_Run::restOfTheEnvironment()
{
    QProcessEnvironment environment = plainEnvironment();
    environment.insert("HVTHEME_TEST", QString::fromUtf8("kept \xc3\xa9"));
    QList<QByteArray> lines = run({"--", "env"}, environment).output.split('\n');
    lines.removeAll({});
    for (auto line = lines.begin(); line != lines.end();)
        line = line->startsWith("QT_PLUGIN_PATH=") || line->startsWith("QT_QPA_GENERIC_PLUGINS=")
            ? lines.erase(line)
            : line + 1;
    QStringList seen;
    for (const QByteArray &line : qAsConst(lines))
        seen << QString::fromLocal8Bit(line);
    QStringList expected = environment.toStringList();
    seen.sort();
    expected.sort();
    QCOMPARE(seen, expected);
}

void tst_Run::pluginRequest_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("expected");

    QTest::newRow("nothing") << QStringList() << "hvtheme:program=env";
    QTest::newRow("follow") << QStringList("--follow") << "hvtheme:program=env";
    QTest::newRow("no-lift") << QStringList("--no-lift") << "hvtheme:program=env&lift=no";
    QTest::newRow("built-in") << QStringList({"--theme", "dark"})
                              << "hvtheme:program=env&theme=dark";
    QTest::newRow("templates") << QStringList(
        {"--templates", "/proc", "--templates", "/proc/self", "--prefix", "mine"})
                               << "hvtheme:program=env&templates=%2Fproc&templates=%2Fproc%2Fself&"
                                  "prefix=mine";
}

void tst_Run::pluginRequest()
{
    QFETCH(QStringList, options);
    QFETCH(QString, expected);
    QCOMPARE(valueSeen(options, plainEnvironment(), "QT_QPA_GENERIC_PLUGINS"), expected);
}

void tst_Run::arguments_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("expected");

    const QStringList print{"sh", "-c", "printf '%s|' \"$@\"", "sh"};
    const QStringList printDashed = QStringList("--") + print;
    QTest::newRow("none") << printDashed << QByteArray("|");
    QTest::newRow("spaces-and-signs")
        << printDashed + QStringList{"a b", "", "*", "$HOME"} << QByteArray("a b||*|$HOME|");
    QTest::newRow("own-options") << printDashed + QStringList{"--theme", "x", "--help", "--", "-z"}
                                 << QByteArray("--theme|x|--help|--|-z|");
    QTest::newRow("without-dashes")
        << print + QStringList{"--theme", "x"} << QByteArray("--theme|x|");
    QTest::newRow("meant-for-qt") << printDashed + QStringList{"-qmljsdebugger=port:1", "-style"}
                                  << QByteArray("-qmljsdebugger=port:1|-style|");
    // The caller's shell writes the byte, which no text of Qt can hold.
    const QString script =
        "exec \"$0\" run -- sh -c 'printf \"%s|\" \"$@\"' sh \"$(printf '\\377')\"";
    QTest::newRow("any-bytes") << QStringList({"sh", "-c", script, commandPath()})
                               << QByteArray("\xff|");
}

void tst_Run::arguments()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, expected);
    const Run seen = run(arguments, plainEnvironment());
    QCOMPARE(seen.errors, QByteArray());
    QCOMPARE(seen.output, expected);
}

void tst_Run::inputAndOutput()
{
    const Run seen = run({"--", "sh", "-c", "cat; echo error >&2"}, plainEnvironment(), "input");
    QCOMPARE(seen.output, QByteArray("input"));
    QCOMPARE(seen.errors, QByteArray("error\n"));
    QCOMPARE(seen.code, 0);
}

void tst_Run::exitCodes_data()
{
    QTest::addColumn<QStringList>("program");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("error");

    QTest::newRow("the-program's") << QStringList({"sh", "-c", "exit 7"}) << 7 << "";
    QTest::newRow("not-in-the-path") << QStringList("hvtheme-no-such") << 127
                                     << "hvtheme: run: hvtheme-no-such: no such program\n";
    QTest::newRow("no-such-file") << QStringList("/no/such/file") << 127
                                  << "hvtheme: run: /no/such/file: no such program\n";
    QTest::newRow("a-folder") << QStringList("/") << 126
                              << "hvtheme: run: /: cannot be executed: Permission denied\n";
    QTest::newRow("no-program") << QStringList(HVTHEME_SOURCE_DIR "/README.md") << 126
                                << "hvtheme: run: " HVTHEME_SOURCE_DIR
                                   "/README.md: cannot be executed: Permission denied\n";
    QTest::newRow("control-characters")
        << QStringList("\x1b[31m") << 127 << "hvtheme: run: \\x1b[31m: no such program\n";
}

void tst_Run::exitCodes()
{
    QFETCH(QStringList, program);
    QFETCH(int, code);
    QFETCH(QString, error);
    const Run seen = run(QStringList("--") + program, plainEnvironment());
    QCOMPARE(QString::fromLocal8Bit(seen.errors), error);
    QCOMPARE(seen.code, code);
    QCOMPARE(seen.status, QProcess::NormalExit);
}

void tst_Run::signal()
{
    const Run seen = run({"--", "sh", "-c", "kill -TERM $$"}, plainEnvironment());
    QCOMPARE(seen.status, QProcess::CrashExit);
    QCOMPARE(seen.code, SIGTERM);
}

void tst_Run::usage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("error");

    QTest::newRow("nothing") << QStringList() << "a program is missing";
    QTest::newRow("only-options") << QStringList({"--theme", "dark", "--"})
                                  << "a program is missing";
    QTest::newRow("unknown-option") << QStringList({"--fast", "env"}) << "Unknown option 'fast'.";
    QTest::newRow("two-ways") << QStringList({"--theme", "dark", "--follow", "env"})
                              << "--theme and --follow exclude each other";
    QTest::newRow("no-theme")
        << QStringList({"--theme", "day", "env"})
        << "no built-in theme is called \"day\"; there are contrast, dark, light, "
           "or name a folder with --themes";
    QTest::newRow("default")
        << QStringList({"--theme", "default", "env"})
        << "no built-in theme is called \"default\"; there are contrast, dark, "
           "light, or name a folder with --themes";
    QTest::newRow("no-folder") << QStringList({"--themes", "/no/such", "env"})
                               << "/no/such: no such folder; name the one with the theme files";
    QTest::newRow("no-file-of-suffix")
        << QStringList({"--themes", HVTHEME_SOURCE_DIR "/themes", "--suffix", "look", "env"})
        << HVTHEME_SOURCE_DIR "/themes: no default.look here, with which every theme begins";
    QTest::newRow("empty-suffix") << QStringList(
        {"--themes", HVTHEME_SOURCE_DIR "/themes", "--suffix", "", "env"})
                                  << "--suffix needs a text";
    QTest::newRow("suffix-of-nothing")
        << QStringList({"--suffix", "look", "env"})
        << "--suffix is about the files of --themes, which is missing";
    QTest::newRow("no-templates")
        << QStringList({"--templates", "/no/such", "env"})
        << "--templates: /no/such: no such folder, and a program takes templates from folders";
    QTest::newRow("template-file")
        << QStringList({"--templates", HVTHEME_SOURCE_DIR "/README.md", "env"})
        << "--templates: " HVTHEME_SOURCE_DIR
           "/README.md: no such folder, and a program takes templates "
           "from folders";
    QTest::newRow("empty-templates") << QStringList({"--templates", "", "env"})
                                     << "--templates needs the name of a folder or file";
    QTest::newRow("prefix") << QStringList({"--templates", "/proc", "--prefix", "a b", "env"})
                            << "a prefix is made of letters, digits and underscores";
    QTest::newRow("prefix-of-nothing") << QStringList({"--prefix", "mine", "env"})
                                       << "--prefix is about --templates, which is missing";
}

void tst_Run::usage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, error);
    const Run seen = run(arguments, plainEnvironment());
    QCOMPARE(QString::fromLocal8Bit(seen.errors),
             "hvtheme: run: " + error + " (see hvtheme run --help)\n");
    QCOMPARE(seen.code, 2);
    QCOMPARE(seen.output, QByteArray());
}

void tst_Run::themesFolder()
{
    const TemporaryTheme themes("[Colors]\n");
    themes.write("night.theme", "[Colors]\n");
    themes.write(QString::fromUtf8("d,a:r&k \xc3\xa9.theme"), "[Colors]\n");
    const QString folder = QString::fromLatin1(QUrl::toPercentEncoding(themes.path()));
    const QStringList options{"--themes", themes.path(), "--theme"};
    const QPair<const char *, const char *> names[] = {
        {"night", "night"}, {"d,a:r&k \xc3\xa9", "d%2Ca%3Ar%26k%20%C3%A9"}};
    for (const auto &name : names) {
        QCOMPARE(valueSeen(options + QStringList(QString::fromUtf8(name.first)), plainEnvironment(),
                           "QT_QPA_GENERIC_PLUGINS"),
                 "hvtheme:program=env&theme=" + QString(name.second) + "&themes=" + folder);
    }
    themes.write("default.l,k", "[Colors]\n");
    themes.write("day.l,k", "[Colors]\n");
    QCOMPARE(valueSeen(options + QStringList{"day", "--suffix", "l,k"}, plainEnvironment(),
                       "QT_QPA_GENERIC_PLUGINS"),
             "hvtheme:program=env&theme=day&themes=" + folder + "&suffix=l%2Ck");
    const Run seen = run(options + QStringList{"day", "env"}, plainEnvironment());
    const QString errors = QString::fromLocal8Bit(seen.errors);
    QVERIFY2(errors.startsWith("hvtheme: run: " + themes.path() + "/day.theme"
                               + ": No such file or directory; there are default, "),
             qPrintable(errors));
    QVERIFY2(errors.endsWith(" (see hvtheme run --help)\n"), qPrintable(errors));
    QCOMPARE(seen.code, 2);
}

void tst_Run::missingPlugin()
{
    const QTemporaryDir folder;
    const QString copy = folder.filePath("bin/hvtheme");
    QVERIFY(QDir(folder.path()).mkdir("bin") && QFile::copy(commandPath(), copy));
    const Run seen = run({"--", "env"}, plainEnvironment(), {}, copy);
    const QString plugin = QDir::cleanPath(
        folder.filePath("bin/" HVTHEME_PLUGINS_FROM_BIN "/generic/lib" HVTHEME_PLUGIN ".so"));
    QCOMPARE(QString::fromLocal8Bit(seen.errors),
             "hvtheme: run: " + plugin + ": the plugin that themes programs is missing\n");
    QCOMPARE(seen.code, 2);
    // That of another version of Qt does, for programs that use it.
    const QDir plugins = QFileInfo(plugin).dir();
    QVERIFY(plugins.mkpath("."));
    QFile other(plugins.filePath("libhvthemeplugin-qt7.so"));
    QVERIFY(other.open(QIODevice::WriteOnly));
    other.close();
    QCOMPARE(run({"--", "true"}, plainEnvironment(), {}, copy).code, 0);
}

QTEST_GUILESS_MAIN(tst_Run)
#include "tst_run.moc"
