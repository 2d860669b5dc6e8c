// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "commandrun.h"

#include <QRegularExpression>
#include <QtTest>

// The completion and the manual page know every command and option that the help tells of.
class tst_Completion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void commands();
    void options_data();
    void options();
    void words_data();
    void words();
    void manualPages_data();
    void manualPages();
    void galleryOptions();
    void galleryWords_data();
    void galleryWords();
    void rules();
    void namesAreNeverRun();

private:
    QStringList m_commands;
};

namespace
{

// What the shell offers for the last of the words.
QStringList completed(const QStringList &words, const QString &program = "hvtheme")
{
    const QString folder = program == "hvtheme" ? "tools" : "gallery";
    QProcess shell;
    shell.setWorkingDirectory(dataFolder());
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("PATH", QFileInfo(commandPath()).path() + ':' + environment.value("PATH"));
    environment.insert("function", "_" + QString(program).replace('-', '_'));
    shell.setProcessEnvironment(environment);
    const QString script = "source \"$1\"; shift; COMP_WORDS=(\"$@\"); COMP_CWORD=$(($# - 1)); "
                           "$function; printf '%s\\n' \"${COMPREPLY[@]}\"";
    shell.start("bash",
                QStringList{"-c", script, "bash",
                            HVTHEME_TEST_DIR "/../" + folder + "/completion/" + program, program}
                    + words);
    shell.waitForFinished();
    QStringList offered =
        QString::fromUtf8(shell.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
    offered << QString::fromUtf8(shell.readAllStandardError()).split('\n', Qt::SkipEmptyParts);
    offered.sort();
    return offered;
}

QStringList longOptions(const QString &help)
{
    static const QRegularExpression option("^  (?:-\\w, )?(--[a-z-]+)",
                                           QRegularExpression::MultilineOption);
    QStringList options;
    auto matches = option.globalMatch(help);
    while (matches.hasNext())
        options << matches.next().captured(1);
    options.sort();
    return options;
}

// The lines of the manual page without its mark-up.
QString manual(const QString &program = "hvtheme")
{
    QFile file(HVTHEME_TEST_DIR "/../docs/" + program + ".1");
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no manual page");
    return QString::fromUtf8(file.readAll()).replace("\\-", "-");
}

} // namespace

void tst_Completion::initTestCase()
{
    if (QStandardPaths::findExecutable("bash").isEmpty())
        QSKIP("bash is not installed");
    const QString help = CommandRun({"--help"}).output;
    const QStringList lines =
        help.section("Commands:\n", 1).section("\n\n", 0, 0).split('\n', Qt::SkipEmptyParts);
    for (const QString &line : lines)
        m_commands << line.simplified().section(' ', 0, 0);
    m_commands.sort();
    QVERIFY(m_commands.size() >= 6);
}

void tst_Completion::commands()
{
    QStringList expected = m_commands + longOptions(CommandRun({"--help"}).output);
    expected.sort();
    QCOMPARE(completed({""}), expected);
    const QString page = manual();
    for (const QString &command : qAsConst(m_commands))
        QVERIFY2(page.contains(".B hvtheme " + command + '\n')
                     && page.contains(".TP\n.B " + command + '\n'),
                 qPrintable(command));
}

void tst_Completion::options_data()
{
    QTest::addColumn<QString>("command");
    for (const QString &command : qAsConst(m_commands))
        QTest::newRow(qPrintable(command)) << command;
}

void tst_Completion::options()
{
    QFETCH(QString, command);
    const QStringList expected = longOptions(CommandRun({command, "--help"}).output);
    QVERIFY(expected.contains("--help"));
    QCOMPARE(completed({command, "--"}), expected);

    const QString page = manual();
    for (const QString &option : expected) {
        const QRegularExpression entry("^\\.BI? .*" + option + "(\"| \"| ?$)",
                                       QRegularExpression::MultilineOption);
        const QRegularExpression paired("^\\.BR .*, \" " + option + '$',
                                        QRegularExpression::MultilineOption);
        QVERIFY2(page.contains(entry) || page.contains(paired), qPrintable(option));
    }
}

void tst_Completion::words_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QString>("expected");

    // clang-format off
    QTest::newRow("command") << "re" << "render";
    QTest::newRow("option") << "render --o" << "--output";
    QTest::newRow("folder") << "values the" << "themes";
    QTest::newRow("themes") << "values themes " << "default night plain";
    QTest::newRow("theme") << "values themes n" << "night";
    QTest::newRow("second-theme") << "diff themes night p" << "plain";
    QTest::newRow("theme-behind-options") << "render --prefix x themes --app-dir y n" << "night";
    QTest::newRow("other-suffix") << "values --suffix none themes " << "";
    QTest::newRow("key") << "explain themes night Title" << "TitleBackground TitleColor";
    QTest::newRow("formats-of-values") << "values themes night --format " << "csv json table";
    QTest::newRow("formats-of-check") << "check themes --format " << "json sarif text";
    QTest::newRow("severities") << "check --fail-on " << "error info warning";
    QTest::newRow("output") << "render themes night -o templates/b" << "templates/b.qss";
    QTest::newRow("templates") << "render themes night --templates templates/A" << "templates/A.css";
    QTest::newRow("application") << "render themes night --app-dir im" << "images";
    QTest::newRow("new-folder") << "new the" << "themes";
    QTest::newRow("new-from") << "new x --from themes/n" << "themes/night";
    QTest::newRow("new-from-folder") << "new x --from them" << "themes";
    QTest::newRow("import-file") << "import templates/b" << "templates/b.qss";
    QTest::newRow("import-folder") << "import templates/b.qss the" << "themes";
    QTest::newRow("import-has-two-arguments") << "import templates/b.qss themes n" << "";
    QTest::newRow("new-neutral") << "new x --neutral " << "cool warm";
    QTest::newRow("new-has-one-argument") << "new x " << "";
    QTest::newRow("themes-to-run-in") << "run --theme " << "contrast dark default light";
    QTest::newRow("folder-of-themes") << "run --themes the" << "themes";
    QTest::newRow("folder-of-templates") << "run --themes themes --suffix x --templates temp" << "templates";
    QTest::newRow("program-behind-options") << "run --suffix x --templates t --prefix y mkfif" << "mkfifo";
    QTest::newRow("program") << "run --theme dark -- mkfif" << "mkfifo";
    QTest::newRow("program-by-path") << "run templates/b" << "templates/b.qss";
    QTest::newRow("arguments") << "run -- cat --theme templates/b" << "templates/b.qss";
    QTest::newRow("unknown-command") << "paint " << "";
    // clang-format on
}

void tst_Completion::words()
{
    QFETCH(QString, words);
    QFETCH(QString, expected);
    QCOMPARE(completed(words.split(' ')).join(' '), expected);
}

QString pathOf(const QString &program)
{
    return QFileInfo(commandPath()).path() + '/' + program;
}

QString helpOf(const QString &program)
{
    QProcess process;
    process.start(pathOf(program), {"--help"});
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput());
}

void tst_Completion::manualPages_data()
{
    QTest::addColumn<QString>("program");
    for (const char *program : {"hvtheme", "hvtheme-gallery", "hvtheme-icons"})
        QTest::newRow(program) << program;
}

// A page has the options that the help has, and no other.
void tst_Completion::manualPages()
{
    QFETCH(QString, program);
    if (!QFile::exists(pathOf(program)))
        QSKIP("this program is not built");
    QStringList expected = longOptions(helpOf(program));
    if (program == "hvtheme") {
        for (const QString &command : qAsConst(m_commands))
            expected += longOptions(CommandRun({command, "--help"}).output);
    }
    expected.removeDuplicates();
    expected.sort();
    QVERIFY(expected.contains("--help") && expected.contains("--version"));

    const QString page = manual(program);
    static const QRegularExpression heading("^\\.TP\n\\.BI?R? (.*)$",
                                            QRegularExpression::MultilineOption);
    static const QRegularExpression option("--[a-z-]+");
    QStringList told;
    for (auto headings = heading.globalMatch(page); headings.hasNext();)
        told << option.match(headings.next().captured(1)).captured();
    told.removeAll(QString());
    told.removeDuplicates();
    told.sort();
    QCOMPARE(told, expected);
    QVERIFY(page.contains(".SH EXIT STATUS"));
    for (const QString &other : QStringList{"hvtheme", "hvtheme-gallery", "hvtheme-icons"})
        QVERIFY(page.section(".SH SEE ALSO", 1).contains(other + " (1)") == (other != program));
}

void tst_Completion::galleryOptions()
{
    if (!QFile::exists(pathOf("hvtheme-gallery")))
        QSKIP("the gallery is not built");
    QCOMPARE(completed({"--"}, "hvtheme-gallery"), longOptions(helpOf("hvtheme-gallery")));
}

void tst_Completion::galleryWords_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QString>("expected");

    QTest::newRow("option") << "--sca"
                            << "--scale";
    QTest::newRow("page") << "--page bu"
                          << "buttons";
    QTest::newRow("folder") << "--themes the"
                            << "themes";
    QTest::newRow("form") << "--ui templates/b"
                          << "templates/b.qss";
    QTest::newRow("scale") << "--scale "
                           << "1 2 3 4";
    QTest::newRow("theme") << "--theme "
                           << "";
}

void tst_Completion::galleryWords()
{
    QFETCH(QString, words);
    QFETCH(QString, expected);
    if (!QFile::exists(pathOf("hvtheme-gallery")))
        QSKIP("the gallery is not built");
    QCOMPARE(completed(words.split(' '), "hvtheme-gallery").join(' '), expected);
}

void tst_Completion::rules()
{
    const QStringList offered = completed({"check", "--disable", ""});
    QVERIFY(offered.size() > 20);
    QVERIFY(offered.contains("required-key"));
}

// Names of files and keys come from whoever made the theme.
void tst_Completion::namesAreNeverRun()
{
    const TemporaryTheme theme("[Colors]\n%24%28touch%20key%29=#FFF\n");
    theme.write("$(touch theme).theme", "");
    const QStringList themes = completed({"values", theme.path(), "$"});
    QCOMPARE(themes, QStringList("\\$\\(touch\\ theme\\)"));
    const QStringList keys = completed({"explain", theme.path(), "default", "$"});
    QCOMPARE(keys, QStringList("\\$\\(touch\\ key\\)"));
    QVERIFY(!QFile::exists(dataFolder() + "/theme") && !QFile::exists(dataFolder() + "/key"));
}

QTEST_GUILESS_MAIN(tst_Completion)
#include "tst_completion.moc"
