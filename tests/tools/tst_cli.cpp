// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <QDir>
#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <atomic>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

// The command as its users have it: arguments in, exit code and two streams out.
class tst_Cli : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void usage_data();
    void usage();
    void help_data();
    void help();
    void badInput_data();
    void badInput();
    void badTemplates_data();
    void badTemplates();
    void unreadable();
    void exitCodes_data();
    void exitCodes();
    void saysWhatToDo();
    void formats_data();
    void formats();
    void controlCharacters();
    void noColorInPipes();
    void endlessSubstitutionEnds();
    void themeWithoutImages();
    void changingFile_data();
    void changingFile();
    void needsNoDisplay();
    void missingPlatform();
    void longNames_data();
    void longNames();
};

namespace
{

struct Result {
    int code = -1;
    QByteArray output;
    QByteArray errors;
};

Result run(const QStringList &arguments, const QStringList &environment = {})
{
    QProcess process;
    if (!environment.isEmpty())
        process.setEnvironment(environment);
    process.start(QStringLiteral(HVTHEME_COMMAND), arguments);
    if (!process.waitForFinished(120000)) {
        process.kill();
        process.waitForFinished();
        return {};
    }
    if (process.exitStatus() != QProcess::NormalExit)
        return {};
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(path));
}

// A sparse file.
void writeLarge(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || !file.resize(100LL * 1024 * 1024))
        qFatal("cannot write %s", qPrintable(path));
}

void makePipe(const QString &path)
{
    if (::mkfifo(QFile::encodeName(path).constData(), 0600) != 0)
        qFatal("cannot make the pipe %s", qPrintable(path));
}

void writeTheme(const QTemporaryDir &folder)
{
    write(folder.filePath("default.theme"), "ThemeName=Default\n[Colors]\nText=#ffffff\n");
    write(folder.filePath("nothing.json"), "{\"Palette\": [], \"Integer\": []}");
    write(folder.filePath("plain.qss"), "QLabel { color: global.theme.color.Text; }");
}

QStringList checkArguments(const QTemporaryDir &folder)
{
    return {"check",
            folder.path(),
            "--vocabulary",
            folder.filePath("nothing.json"),
            "--no-builtin",
            "--templates",
            folder.filePath("plain.qss")};
}

} // namespace

void tst_Cli::usage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("error");

    QTest::newRow("nothing") << QStringList()
                             << "hvtheme: a command is missing (see hvtheme --help)\n";
    QTest::newRow("unknown-command")
        << QStringList("paint") << "hvtheme: no command is called \"paint\" (see hvtheme --help)\n";
    const QString seeHelp = QStringLiteral(" (see hvtheme check --help)\n");
    QTest::newRow("no-folder") << QStringList("check")
                               << "hvtheme: check: FOLDER is missing" + seeHelp;
    QTest::newRow("unknown-option") << QStringList({"check", "--fast", "."})
                                    << "hvtheme: check: Unknown option 'fast'." + seeHelp;
    QTest::newRow("format")
        << QStringList({"check", "--format", "xml", "."})
        << "hvtheme: check: no format is called \"xml\"; there are text, json and sarif" + seeHelp;
    QTest::newRow("severity")
        << QStringList({"check", "--fail-on", "never", "."})
        << "hvtheme: check: no severity is called \"never\"; there are info, warning and error"
            + seeHelp;
    QTest::newRow("rule")
        << QStringList({"check", "--disable", "no-such-rule", "."})
        << "hvtheme: check: no rule is called \"no-such-rule\"; --rules lists them" + seeHelp;
    for (const char *ratio : {"0.5", "22", "much", "nan"})
        QTest::addRow("contrast-%s", ratio)
            << QStringList({"check", "--min-contrast", ratio, "."})
            << "hvtheme: check: --min-contrast is a number from 1 to 21" + seeHelp;
    QTest::newRow("prefix") << QStringList({"check", "--prefix", "a.*", "."})
                            << "hvtheme: check: a prefix is made of letters, digits and underscores"
            + seeHelp;
    QTest::newRow("control-character")
        << QStringList("\x1b[31m")
        << "hvtheme: no command is called \"\\x1b[31m\" (see hvtheme --help)\n";
}

void tst_Cli::usage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, error);
    const Result result = run(arguments);
    QCOMPARE(QString::fromUtf8(result.errors), error);
    QCOMPARE(result.code, 2);
    QCOMPARE(result.output, QByteArray());
}

void tst_Cli::help_data()
{
    QTest::addColumn<QString>("command");
    for (const char *command : {"check", "render", "values", "explain", "diff", "sheet"})
        QTest::newRow(command) << command;
}

void tst_Cli::help()
{
    QFETCH(QString, command);
    const Result result = run({command, "--help"});
    QCOMPARE(result.code, 0);
    QCOMPARE(result.errors, QByteArray());
    QVERIFY(result.output.startsWith(QByteArray("Usage: hvtheme " + command.toUtf8() + ' ')));
    QVERIFY(run({"--help"}).output.contains(QByteArray("  " + command.toUtf8() + "  ")));
}

void tst_Cli::badInput_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("reason");

    const struct {
        const char *name;
        const char *reason;
    } inputs[] = {
        {"no-folder", "no such folder; name the one with the theme files"},
        {"file-for-folder", "not a folder; name the one with the theme files"},
        {"no-default", "no default.theme here, with which every theme begins"},
        {"folder-for-file", "not a regular file"},
        {"dangling-link", "No such file or directory"},
        {"binary", "a binary file, not a theme file"},
        {"large", "larger than 16 MB, which no file of this kind is"},
        {"named-pipe", "not a regular file"},
        {"device", "not a regular file"},
    };
    for (const char *command : {"check", "render", "values", "explain", "diff", "sheet"}) {
        for (const auto &input : inputs)
            QTest::addRow("%s-%s", command, input.name) << command << input.name << input.reason;
    }
}

static void makeBad(const QTemporaryDir &folder, const QString &input)
{
    const QString file = folder.filePath("default.theme");
    if (input == "folder-for-file")
        QDir(folder.path()).mkdir("default.theme");
    else if (input == "dangling-link")
        QFile::link(folder.filePath("nowhere"), file);
    else if (input == "binary")
        write(file, QByteArray("[Colors]\nText=\0\1\2\n", 19));
    else if (input == "large")
        writeLarge(file);
    else if (input == "named-pipe")
        makePipe(file);
    else if (input == "device")
        QFile::link("/dev/zero", file);
    else if (input == "file-for-folder")
        write(folder.filePath("plain"), "x");
}

void tst_Cli::badInput()
{
    QFETCH(QString, command);
    QFETCH(QString, input);
    QFETCH(QString, reason);
    const QTemporaryDir folder;
    makeBad(folder, input);
    QString path = folder.path();
    if (input == "no-folder")
        path += "/none";
    else if (input == "file-for-folder")
        path += "/plain";

    QStringList arguments{command, path};
    if (command != "check")
        arguments << "default";
    if (command == "explain" || command == "diff")
        arguments << "other";
    if (command == "sheet")
        arguments << "-o" << folder.filePath("sheet.html");
    const QStringList before = QDir(folder.path()).entryList(QDir::AllEntries | QDir::System);
    const Result result = run(arguments);
    QCOMPARE(result.code, 2);
    QCOMPARE(result.output, QByteArray());
    QVERIFY2(result.errors.startsWith(QByteArray("hvtheme: " + path.toUtf8())),
             result.errors.constData());
    QVERIFY2(result.errors.endsWith(QByteArray(": " + reason.toUtf8() + '\n')),
             result.errors.constData());
    QCOMPARE(result.errors.count('\n'), 1);
    QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::System), before);
}

void tst_Cli::badTemplates_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("reason");

    QTest::newRow("missing") << "missing"
                             << "No such file or directory";
    QTest::newRow("named-pipe") << "named-pipe"
                                << "not a regular file";
    QTest::newRow("large") << "large"
                           << "larger than 64 MB, which no file of this kind is";
    QTest::newRow("empty-folder") << "empty-folder"
                                  << "no templates (*.qss, *.css) in this folder";
}

void tst_Cli::badTemplates()
{
    QFETCH(QString, input);
    QFETCH(QString, reason);
    const QTemporaryDir folder;
    writeTheme(folder);
    const QString path = folder.filePath("bad.qss");
    if (input == "named-pipe")
        makePipe(path);
    else if (input == "large")
        writeLarge(path);
    else if (input == "empty-folder")
        QVERIFY(QDir(folder.path()).mkdir("bad.qss"));
    const Result result = run({"check", folder.path(), "--templates", path});
    QCOMPARE(result.code, 2);
    QCOMPARE(QString::fromUtf8(result.errors), "hvtheme: " + path + ": " + reason + '\n');
    QCOMPARE(result.output, QByteArray());
}

void tst_Cli::unreadable()
{
    if (::geteuid() == 0)
        QSKIP("nothing is unreadable for root");
    const QTemporaryDir folder;
    writeTheme(folder);
    QVERIFY(QFile::setPermissions(folder.filePath("default.theme"), {}));
    const Result result = run(checkArguments(folder));
    QCOMPARE(result.code, 2);
    QVERIFY(result.errors.endsWith("default.theme: Permission denied\n"));
}

void tst_Cli::exitCodes_data()
{
    QTest::addColumn<QByteArray>("addition");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<int>("code");

    const QByteArray warning("[Sounds]\nBeep=1\n");
    const QByteArray error("[Colors]\nBack=red\n");
    const QByteArray info("[Palettes]\nSpare=#101010\n");
    const QStringList none;
    QTest::newRow("clean") << QByteArray() << none << 0;
    QTest::newRow("info") << info << none << 0;
    QTest::newRow("info-fails") << info << QStringList({"--fail-on", "info"}) << 1;
    QTest::newRow("warning") << warning << none << 1;
    QTest::newRow("warning-passes") << warning << QStringList({"--fail-on", "error"}) << 0;
    QTest::newRow("warning-disabled")
        << warning << QStringList({"--disable", "unknown-section"}) << 0;
    QTest::newRow("error") << error << QStringList({"--fail-on", "error"}) << 1;
    QTest::newRow("no-such-theme") << QByteArray() << QStringList("dark") << 2;
    QTest::newRow("named-default") << QByteArray() << QStringList("default") << 0;
    QTest::newRow("no-app-dir") << QByteArray() << QStringList({"--app-dir", "/nowhere"}) << 2;
}

void tst_Cli::exitCodes()
{
    QFETCH(QByteArray, addition);
    QFETCH(QStringList, options);
    QFETCH(int, code);
    const QTemporaryDir folder;
    writeTheme(folder);
    QFile file(folder.filePath("default.theme"));
    QVERIFY(file.open(QIODevice::Append));
    file.write(addition);
    file.close();
    const Result result = run(checkArguments(folder) + options);
    QVERIFY2(result.code == code, result.errors.constData());
    QCOMPARE(result.errors.isEmpty(), code != 2);
}

void tst_Cli::saysWhatToDo()
{
    const QTemporaryDir folder;
    writeTheme(folder);
    QCOMPARE(run(checkArguments(folder) + QStringList{"--app-dir", "/nowhere"}).errors,
             QByteArray("hvtheme: check: /nowhere: no such folder; --app-dir takes that of the "
                        "application's program (see hvtheme check --help)\n"));
}

void tst_Cli::formats_data()
{
    QTest::addColumn<QString>("format");
    QTest::newRow("json") << "json";
    QTest::newRow("sarif") << "sarif";
}

void tst_Cli::formats()
{
    QFETCH(QString, format);
    const QTemporaryDir folder;
    writeTheme(folder);
    const Result result = run(checkArguments(folder) << "--format" << format);
    QCOMPARE(result.code, 0);
    QJsonParseError error;
    QVERIFY(QJsonDocument::fromJson(result.output, &error).isObject());
    QCOMPARE(error.error, QJsonParseError::NoError);
}

void tst_Cli::controlCharacters()
{
    const QTemporaryDir folder;
    writeTheme(folder);
    write(folder.filePath("default.theme"),
          "ThemeName=Default\n[\x1b[31m]\na=1\n[Flags]\nb=\\x1b]0;x\n");
    const Result result = run(checkArguments(folder));
    QCOMPARE(result.code, 1);
    QVERIFY(result.output.contains("\\x1b"));
    for (const char character : result.output)
        QVERIFY(uchar(character) >= 0x20 || character == '\n');
}

void tst_Cli::noColorInPipes()
{
    const QTemporaryDir folder;
    writeTheme(folder);
    write(folder.filePath("default.theme"), "[Flags]\na=true\n");
    QVERIFY(!run(checkArguments(folder)).output.contains('\x1b'));
}

void tst_Cli::endlessSubstitutionEnds()
{
    const QTemporaryDir folder;
    writeTheme(folder);
    write(folder.filePath("default.theme"),
          "ThemeName=Default\n[Colors]\nText=#ffffff\n[ImageFiles]\na=global.theme.image.a\n");
    write(folder.filePath("plain.qss"), "QLabel { image: url(global.theme.image.a); }");
    const Result result = run(checkArguments(folder));
    QCOMPARE(result.code, 1);
    QVERIFY(result.output.contains("[endless-substitution]"));
}

// The application library draws them all; a colour it does not have.
void tst_Cli::themeWithoutImages()
{
    const QTemporaryDir folder;
    for (const char *name : {"default.theme", "dark.theme", "light.theme"})
        QFile::copy(HVTHEME_SOURCE_DIR "/themes/" + QString(name), folder.filePath(name));
    QFile file(folder.filePath("light.theme"));
    QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner)
            && file.open(QIODevice::ReadOnly));
    QByteArray text = file.readAll();
    file.close();
    QVERIFY(text.contains("\n[ImageFiles]\n") && text.contains("\nEditBackgroundColor="));
    text.replace("\n[ImageFiles]\n", "\n[Images]\n");
    write(file.fileName(), text);
    QVERIFY(!run({"check", folder.path()}).output.contains("[missing-value]"));
    text.replace("\nEditBackgroundColor=", "\nOtherColor=");
    write(file.fileName(), text);
    const Result result = run({"check", folder.path()});
    QCOMPARE(result.output.count("[missing-value]"), 1);
    QVERIFY(result.output.contains("theme light has no colour EditBackgroundColor"));
}

void tst_Cli::changingFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("theme") << "default.theme"
                           << QByteArray("ThemeName=Default\n[Colors]\nText=#ffffff\n");
    QTest::newRow("template") << "plain.qss"
                              << QByteArray("QLabel { color: global.theme.color.Text; }");
}

// Whatever the moment, the report is one of a whole file, or none at all.
void tst_Cli::changingFile()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    const QTemporaryDir folder;
    writeTheme(folder);
    std::atomic<bool> isDone{false};
    std::thread writer([&] {
        for (int i = 0; !isDone; ++i) {
            write(folder.filePath(name), content + QByteArray(i % 7, '\n'));
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
    });
    QStringList problems;
    for (int i = 0; i < 20; ++i) {
        const Result result = run(checkArguments(folder));
        const bool isRefused = result.code == 2 && result.errors.count('\n') == 1
            && result.errors.endsWith(
                QString(name + ": changed while it was read, try again\n").toUtf8());
        // An emptied file that is read before the rest is written is a file without a name.
        const bool isWhole = (result.code == 0 || result.code == 1) && result.errors.isEmpty();
        if (!isRefused && !isWhole)
            problems << QString::number(result.code) + result.errors;
    }
    isDone = true;
    writer.join();
    QCOMPARE(problems, QStringList());
}

void tst_Cli::needsNoDisplay()
{
    const QTemporaryDir folder;
    writeTheme(folder);
    const QString leaks =
        "LSAN_OPTIONS=" + qEnvironmentVariable("LSAN_OPTIONS"); // Qt's own are known
    const Result result =
        run(checkArguments(folder), {"QT_QPA_PLATFORM=xcb", "DISPLAY=:99999", leaks});
    QCOMPARE(result.code, 0);
}

// A command of its own, in whose folder a file leads Qt's plugins to where there are none.
void tst_Cli::missingPlatform()
{
    const QTemporaryDir folder;
    writeTheme(folder);
    const QTemporaryDir programs;
    const QString command = programs.filePath("hvtheme");
    QVERIFY(QFile::copy(HVTHEME_COMMAND, command));
    QFile settings(programs.filePath("qt.conf"));
    QVERIFY(settings.open(QIODevice::WriteOnly));
    settings.write("[Paths]\nPlugins=/nowhere\n");
    settings.close();
    QProcess process;
    process.start(command, checkArguments(folder));
    QVERIFY(process.waitForFinished(30000));
    const QByteArray errors = process.readAllStandardError();
    QVERIFY2(errors.startsWith("hvtheme: This application failed to start because no Qt platform "
                               "plugin could be initialized."),
             errors.constData());
    QCOMPARE(errors.count('\n'), 1);
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 2);
}

void tst_Cli::longNames_data()
{
    QTest::addColumn<QByteArray>("theme");
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("code");
    QTest::addColumn<QByteArray>("lines"); // that the output ends with, but for the templates

    QByteArray chain = "[Palettes]\na000000=#123456\n";
    chain.reserve(500000);
    for (int i = 1; i < 25000; ++i)
        chain += 'a' + QByteArray::number(i).rightJustified(6, '0') + "=a"
            + QByteArray::number(i - 1).rightJustified(6, '0') + '\n';
    QTest::newRow("chain-of-entries") << chain + "[Colors]\nEdge=a024999\n"
                                      << "Edge" << 0 << QByteArray("[Palettes] a000000=#123456\n");
    QTest::newRow("long-key") << "[Colors]\n" + QByteArray(120001, 'a') + "=#fff\n"
                              << QString(120000, 'a') << 1 << QByteArray("No template uses it.\n");
}

// As long as a file may make them: neither the stack nor the patience runs out.
void tst_Cli::longNames()
{
    QFETCH(QByteArray, theme);
    QFETCH(QString, key);
    QFETCH(int, code);
    QFETCH(QByteArray, lines);
    const QTemporaryDir folder;
    QFile file(folder.filePath("default.theme"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(theme) == theme.size());
    file.close();
    const Result result = run({"explain", folder.path(), "default", key});
    QCOMPARE(result.code, code);
    QCOMPARE(result.errors, QByteArray());
    QVERIFY2(result.output.contains(lines), result.output.right(400).constData());
}

QTEST_GUILESS_MAIN(tst_Cli)

#include "tst_cli.moc"
