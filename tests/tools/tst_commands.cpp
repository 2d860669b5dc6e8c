// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "commandrun.h"

#include <QtTest>

// What the commands print, byte for byte, and how they end.
class tst_Commands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void output_data();
    void output();
    void help_data();
    void help();
    void sameOptions();
    void wrongUsage_data();
    void wrongUsage();
    void suffixInOtherCase();
    void exitCodes_data();
    void exitCodes();
    void laterKindHides();
    void jsonIsWhole();
    void terminalGetsNoControlCharacters();
    void fullDevice_data();
    void fullDevice();
};

void tst_Commands::output_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("golden");

    const char *const app = " --app-dir /opt/demo/bin";
    const char *const templates = " --no-builtin --templates templates";
    const auto row = [&](const char *name, const QString &arguments) {
        QTest::newRow(name) << arguments << QString(name);
    };
    row("values-default", QString("values themes default") + app);
    row("values-night", QString("values themes night") + app);
    row("values-json", QString("values themes night --format json") + app);
    row("values-csv", QString("values themes night --format csv") + app);
    row("diff", "diff themes default night");
    row("diff-none", "diff themes night night");
    row("render", QString("render themes night") + templates + app);
    row("render-files",
        QString("render themes night --no-builtin --templates templates/b.qss"
                " --templates templates/A.css")
            + app);
    row("render-prefix", QString("render themes night --prefix local") + templates + app);
    const QStringList keys{"TitleColor", "Glimmer",    "Shared",  "Broken", "Twice",
                           "Glow",       "Half",       "Rounded", "Kept",   "FontSize_L",
                           "Brand_1",    "TitelColor", "Missing", "Veil",   "Margin"};
    for (const QString &key : keys)
        row(qPrintable("explain-" + key), "explain themes night " + key + templates);
    row("explain-selector", QString("explain themes night QPushButton:hover") + templates + app);
    row("explain-no-rule", QString("explain themes night QSlider::handle:hover") + templates);
    row("explain-color", QString("explain themes night #101820") + templates);
    row("explain-no-color", QString("explain themes night #80123456") + templates);
    row("explain-never-read", QString("explain themes plain TitleColor") + templates);
}

void tst_Commands::output()
{
    QFETCH(QString, arguments);
    QFETCH(QString, golden);
    const CommandRun run(arguments.split(' '));
    QVERIFY2(run.exitCode != 2, run.errors.constData());
    const QString difference = differenceFromGolden(golden, run.output);
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
}

void tst_Commands::help_data()
{
    QTest::addColumn<QString>("usage");

    QTest::newRow("check") << "Usage: hvtheme check [options] FOLDER [THEME...]";
    QTest::newRow("render") << "Usage: hvtheme render [options] FOLDER THEME";
    QTest::newRow("values") << "Usage: hvtheme values [options] FOLDER THEME";
    QTest::newRow("explain") << "Usage: hvtheme explain [options] FOLDER THEME KEY|SELECTOR|COLOR";
    QTest::newRow("diff") << "Usage: hvtheme diff [options] FOLDER THEME_A THEME_B";
    QTest::newRow("export") << "Usage: hvtheme export [options] FOLDER THEME";
    QTest::newRow("import") << "Usage: hvtheme import [options] FILE FOLDER";
    QTest::newRow("new") << "Usage: hvtheme new [options] FOLDER";
    QTest::newRow("sheet") << "Usage: hvtheme sheet [options] FOLDER THEME...";
}

void tst_Commands::help()
{
    QFETCH(QString, usage);
    const QString command = QTest::currentDataTag();
    for (const QStringList &arguments : {QStringList{command, "--help"}, {command, "-h"}}) {
        const CommandRun run(arguments);
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.errors, QByteArray());
        QCOMPARE(QString(run.output).section('\n', 0, 0), usage);
        QVERIFY(run.output.contains("Exit code: 0 "));
    }
    QVERIFY(CommandRun({"--help"}).output.contains(QByteArray("\n  " + command.toLatin1() + ' ')));
}

// The options say what is read, and are the same wherever something is.
void tst_Commands::sameOptions()
{
    const auto lines = [](const QString &command) {
        QStringList told;
        const QString help = CommandRun({command, "--help"}).output;
        static const QRegularExpression option(
            "^  (--(?:suffix|app-dir|templates|no-builtin|prefix) (?:.|\n   )*)",
            QRegularExpression::MultilineOption);
        for (auto hits = option.globalMatch(help); hits.hasNext();)
            told << hits.next().captured(1).simplified();
        return told;
    };
    const QStringList expected = lines("check");
    QCOMPARE(expected.size(), 5);
    for (const char *command : {"render", "values", "explain", "diff", "export", "sheet"})
        QCOMPARE(lines(command), expected);
}

void tst_Commands::wrongUsage_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("error");

    // clang-format off
    QTest::newRow("no-command") << "" << "hvtheme: a command is missing (see hvtheme --help)\n";
    QTest::newRow("unknown-command") << "paint" << "hvtheme: no command is called \"paint\" (see hvtheme --help)\n";
    QTest::newRow("no-folder") << "values" << "hvtheme: values: FOLDER is missing (see hvtheme values --help)\n";
    QTest::newRow("no-theme") << "values themes" << "hvtheme: values: the name of a theme is missing (see hvtheme values --help)\n";
    QTest::newRow("one-theme") << "diff themes night" << "hvtheme: diff: the name of a theme is missing (see hvtheme diff --help)\n";
    QTest::newRow("no-key") << "explain themes night" << "hvtheme: explain: KEY is missing (see hvtheme explain --help)\n";
    QTest::newRow("no-state") << "explain themes night QLabel:hovr" << "hvtheme: explain: Qt has no state \"hovr\"; did you mean hover? (see hvtheme explain --help)\n";
    QTest::newRow("too-many") << "render themes night day" << "hvtheme: render: one argument too many: day (see hvtheme render --help)\n";
    QTest::newRow("unknown-option") << "values themes night --fast" << "hvtheme: values: Unknown option 'fast'. (see hvtheme values --help)\n";
    QTest::newRow("unknown-format") << "values themes night --format xml" << "hvtheme: values: no format is called \"xml\"; there are table, json and csv (see hvtheme values --help)\n";
    QTest::newRow("prefix") << "render themes night --prefix g+" << "hvtheme: render: a prefix is made of letters, digits and underscores (see hvtheme render --help)\n";
    QTest::newRow("no-templates") << "values themes night --no-builtin" << "hvtheme: values: --no-builtin leaves no templates: name some with --templates (see hvtheme values --help)\n";
    QTest::newRow("empty-templates") << "values themes night --templates=" << "hvtheme: values: --templates needs the name of a folder or file (see hvtheme values --help)\n";
    QTest::newRow("empty-suffix") << "values themes night --suffix=" << "hvtheme: values: --suffix needs a text (see hvtheme values --help)\n";
    QTest::newRow("misspelt-theme") << "values themes nihgt" << "hvtheme: themes/nihgt.theme: No such file or directory; did you mean night?\n";
    QTest::newRow("no-such-theme") << "check themes aquarium" << "hvtheme: themes/aquarium.theme: No such file or directory; there are default, night, plain\n";
    QTest::newRow("no-background") << "sheet themes night -o /nowhere/a.png --background TitelColor" << "hvtheme: sheet: no theme has a colour or palette entry called TitelColor; did you mean TitleColor? (see hvtheme sheet --help)\n";
    QTest::newRow("picture-on-standard-output") << "sheet themes night -o -" << "hvtheme: sheet: --output must name a .png or .html file (see hvtheme sheet --help)\n";
    QTest::newRow("no-output") << "sheet themes night" << "hvtheme: sheet: --output must name a .png or .html file (see hvtheme sheet --help)\n";
    QTest::newRow("no-picture") << "sheet themes night -o a.pdf" << "hvtheme: sheet: --output must name a .png or .html file (see hvtheme sheet --help)\n";
    // clang-format on
}

void tst_Commands::wrongUsage()
{
    QFETCH(QString, arguments);
    QFETCH(QString, error);
    const CommandRun run(arguments.split(' ', Qt::SkipEmptyParts));
    QCOMPARE(run.errors, error.toUtf8());
    QCOMPARE(run.output, QByteArray());
    QCOMPARE(run.exitCode, 2);
}

void tst_Commands::suffixInOtherCase()
{
    const TemporaryTheme theme("[Colors]\na=#FFF\n");
    theme.write("Night.THEME", "ThemeName=Night\n");
    const CommandRun run({"values", theme.path(), "Night"});
    QCOMPARE(QString(run.errors),
             "hvtheme: " + theme.path("Night.theme")
                 + ": No such file or directory; there is Night.THEME, and letter case counts\n");
    QCOMPARE(run.exitCode, 2);
}

void tst_Commands::exitCodes_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<int>("expected");

    QTest::newRow("values") << "values themes night" << 0;
    QTest::newRow("render") << "render themes night --no-builtin --templates templates" << 0;
    QTest::newRow("explain-defined") << "explain themes night Veil" << 0;
    QTest::newRow("explain-undefined") << "explain themes night Half" << 1;
    QTest::newRow("explain-rules") << "explain themes night QPushButton" << 0;
    QTest::newRow("explain-no-rules")
        << "explain themes night QPushButton --no-builtin --templates templates" << 1;
    QTest::newRow("explain-color") << "explain themes night #101820" << 0;
    QTest::newRow("explain-no-color") << "explain themes night #123456" << 1;
    QTest::newRow("diff-same") << "diff themes night night" << 0;
    QTest::newRow("diff-different") << "diff themes default night" << 1;
    QTest::newRow("no-such-theme") << "values themes day" << 2;
}

void tst_Commands::exitCodes()
{
    QFETCH(QString, arguments);
    QFETCH(int, expected);
    QCOMPARE(CommandRun(arguments.split(' ')).exitCode, expected);
}

// Style sheets see the last of colour, flag, integer and image file.
void tst_Commands::laterKindHides()
{
    const TemporaryTheme theme("[Colors]\na=#FFF\nb=#FFF\n[Flags]\na=1\nc=1\n[Integers]\nb=1\nc=1\n"
                               "d=1\n[ImageFiles]\nd=:/x\n");
    const QString text = CommandRun({"values", theme.path(), "default", "--format", "csv"}).output;
    QStringList seen;
    for (const QString &line : text.split("\r\n", Qt::SkipEmptyParts).mid(1))
        seen << line.section('"', 1, 1) + ' ' + line.section('"', 3, 3) + ' '
                + line.section('"', -2, -2);
    QCOMPARE(seen,
             QStringList({"Color a no", "Color b no", "ImageFile d yes", "Flag a yes", "Flag c no",
                          "Integer b yes", "Integer c yes", "Integer d no"}));
}

void tst_Commands::jsonIsWhole()
{
    const CommandRun run({"values", "themes", "night", "--format", "json"});
    const QJsonObject root = QJsonDocument::fromJson(run.output).object();
    QCOMPARE(root.value("theme").toString(), QString("night"));
    QCOMPARE(root.value("values").toObject().value("Shared").toString(),
             QString(":/images/shared.png"));
    QCOMPARE(root.value("colors").toObject().size(), 8);
    QCOMPARE(root.value("palettes").toObject().size(), 8);
    QCOMPARE(root.value("gradients").toObject().size(), 1);
    QCOMPARE(root.value("flags").toObject().value("Rounded").toObject().value("value").toBool(true),
             false);
}

void tst_Commands::terminalGetsNoControlCharacters()
{
    if (QProcess::execute("script", {"-qec", "true", "/dev/null"}) != 0)
        QSKIP("script, which stands in for a terminal, is not installed or gets none");
    const TemporaryTheme theme("[ImageFiles]\nevil=\"\\x1b[31m\\x9b\\x7\"\n");
    const QStringList commands{"values FOLDER default", "values FOLDER default --format csv",
                               "values FOLDER default --format json",
                               "render FOLDER default --no-builtin --templates FOLDER/evil.qss",
                               "explain FOLDER default evil"};
    theme.write("evil.qss", "/* \x1b]0;evil\x07 \xc2\x9b */ a { b: url(global.theme.image.evil) }");
    for (const QString &command : commands) {
        const QString line = commandPath() % ' ' % QString(command).replace("FOLDER", theme.path());
        QProcess terminal;
        terminal.start("script", {"-qec", line, "/dev/null"});
        QVERIFY(terminal.waitForFinished());
        const QString shown = QString::fromUtf8(terminal.readAll());
        QVERIFY2(shown.contains("evil"), qPrintable(shown));
        for (const QChar character : shown)
            QVERIFY2(character.category() != QChar::Other_Control
                         || QString("\r\n\t").contains(character),
                     qPrintable(command));
    }
}

void tst_Commands::fullDevice_data()
{
    QTest::addColumn<QString>("arguments");
    for (const char *arguments :
         {"--help", "--version", "check --help", "check --rules", "check themes",
          "check themes --format json", "check themes --format sarif", "render themes night",
          "values themes night", "explain themes night Veil", "diff themes default night",
          "export themes night", "import --help", "new --help", "run --help", "inspect --help"})
        QTest::newRow(arguments) << arguments;
}

void tst_Commands::fullDevice()
{
    QFETCH(QString, arguments);
    if (!QFile::exists("/dev/full"))
        QSKIP("this system has no /dev/full");
    const CommandRun run(arguments.split(' '), "/dev/full");
    QVERIFY2(run.errors.endsWith("hvtheme: standard output: No space left on device\n"),
             run.errors.constData());
    QCOMPARE(run.exitCode, 2);
}

QTEST_GUILESS_MAIN(tst_Commands)
#include "tst_commands.moc"
