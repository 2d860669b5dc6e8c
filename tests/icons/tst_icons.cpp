// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "temporaryfolder.h"

#include <QDateTime>
#include <QProcess>
#include <QRegularExpression>
#include <QtTest>

#include <sys/stat.h>

namespace
{

const char defaultTheme[] = "[General]\nThemeName=Common\n";
const char redTheme[] = "[Colors]\nInk=#FF0000\nVeil=#80FF0000\n[Integers]\nWidth=2\n";
const char blueTheme[] = "[Colors]\nInk=#0000FF\n";
const char picture[] = "<svg>\n  <path stroke=\"global.theme.color.Ink\"/>\n</svg>\n";

struct Outcome {
    int exitCode = -1;
    QString output;
    QString error;
};

Outcome run(const QStringList &arguments)
{
    QProcess process;
    process.start(QCoreApplication::applicationDirPath() % QLatin1String("/hvtheme-icons"),
                  arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit)
        return {};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

QByteArray content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/*! A folder with two themes and one picture. */
class Workshop : public TemporaryFolder
{
public:
    Workshop()
    {
        write("themes/default.theme", defaultTheme);
        write("themes/red.theme", redTheme);
        write("themes/blue.theme", blueTheme);
        write("pen.svg", picture);
    }

    Outcome tint(const QString &theme, const QStringList &sources) const
    {
        return run(QStringList{filePath("themes"), theme, filePath("out")} + sources);
    }
};

} // namespace

class tst_Icons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void copies();
    void unchangedCopyIsLeftAlone();
    void unusableInput_data();
    void unusableInput();
    void pipe_data();
    void pipe();
    void hugeGradient();
    void otherPicturesAreStillMade();
    void sourceIsNeverReplaced();
    void readError();
    void copiesOfOneName();
    void wrongUsage_data();
    void wrongUsage();
    void help();
    void version();
    void fullDisk();
    void fullDevice();
    void drawings_data();
    void drawings();
};

void tst_Icons::copies()
{
    const Workshop shop;
    for (const char *theme : {"red", "blue"}) {
        const Outcome outcome = shop.tint(theme, {shop.filePath("pen.svg")});
        // Both themes lack the palette and font sizes, which the library reports and which are no
        // business of an icon.
        QVERIFY(outcome.error.contains("Theme Palette Key"));
        QCOMPARE(outcome.exitCode, 0);
        const QByteArray color = theme == QLatin1String("red") ? "#ff0000" : "#0000ff";
        QCOMPARE(content(shop.filePath("out/pen.svg")),
                 QByteArray(picture).replace("global.theme.color.Ink", color));
    }
    QCOMPARE(content(shop.filePath("pen.svg")), QByteArray(picture));
}

void tst_Icons::unchangedCopyIsLeftAlone()
{
    const Workshop shop;
    QCOMPARE(shop.tint("red", {shop.filePath("pen.svg")}).exitCode, 0);
    const QDateTime early = QDateTime::fromSecsSinceEpoch(1000000000);
    QFile copy(shop.filePath("out/pen.svg"));
    QVERIFY(copy.open(QIODevice::ReadWrite)
            && copy.setFileTime(early, QFile::FileModificationTime));
    copy.close();

    QCOMPARE(shop.tint("red", {shop.filePath("pen.svg")}).exitCode, 0);
    QCOMPARE(QFileInfo(copy.fileName()).lastModified(), early);
    QCOMPARE(shop.tint("blue", {shop.filePath("pen.svg")}).exitCode, 0);
    QVERIFY(QFileInfo(copy.fileName()).lastModified() > early);
}

void tst_Icons::unusableInput_data()
{
    QTest::addColumn<QString>("theme");
    QTest::addColumn<QString>("source");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("complaint");

    const QByteArray good = picture;
    QTest::newRow("no-such-theme")
        << "green"
        << "pen.svg" << good << "themes/green.theme: no such theme file, or it cannot be read";
    QTest::newRow("hidden-theme")
        << "common"
        << "pen.svg" << good
        << "themes/common.theme: never read, for %1/themes/default.theme has this ThemeName";
    QTest::newRow("no-such-picture")
        << "red"
        << "gone.svg" << QByteArray() << "gone.svg: No such file or directory";
    QTest::newRow("control-characters")
        << "red"
        << "a\x1b[1m.svg" << QByteArray() << "a\\x1b[1m.svg: No such file or directory";
    QTest::newRow("no-such-colour")
        << "red"
        << "pen.svg" << QByteArray("<svg>\n\n global.theme.color.Pen </svg>")
        << "pen.svg:3: global.theme.color.Pen: the theme has no such colour";
    QTest::newRow("not-a-colour")
        << "red"
        << "pen.svg" << QByteArray("global.theme.color.Width")
        << "pen.svg:1: global.theme.color.Width: the theme has no such colour";
    QTest::newRow("translucent")
        << "red"
        << "pen.svg" << QByteArray("global.theme.color.Veil")
        << "pen.svg:1: global.theme.color.Veil: the colour is translucent, "
           "which SVG writes as an opacity of its own";
    QTest::newRow("latin-1") << "red"
                             << "pen.svg" << QByteArray("<svg><text>\xfc</text></svg>")
                             << "pen.svg: not in UTF-8; save it so";
    QTest::newRow("utf-16") << "red"
                            << "pen.svg" << QByteArray("\xff\xfe<\0s\0v\0g\0/\0>\0", 14)
                            << "pen.svg: not in UTF-8; save it so";
    QTest::newRow("integer")
        << "red"
        << "pen.svg" << QByteArray("global.theme.integer.Width")
        << "pen.svg:1: global.theme.integer.Width: only colour tokens can stand in a picture";
}

void tst_Icons::unusableInput()
{
    QFETCH(QString, theme);
    QFETCH(QString, source);
    QFETCH(QByteArray, text);
    QFETCH(QString, complaint);

    const Workshop shop;
    shop.write("themes/common.theme", redTheme);
    if (!text.isEmpty())
        shop.write(source, text);
    const Outcome outcome = shop.tint(theme, {shop.filePath(source)});
    QCOMPARE(outcome.exitCode, 2);
    complaint.replace("%1", shop.path());
    QVERIFY2(outcome.error.contains("hvtheme-icons: " % shop.filePath(complaint) % "\n"),
             qUtf8Printable(outcome.error));
    QVERIFY(!QFile::exists(shop.filePath("out") % "/" % source));
}

// Nobody writes to it, so reading it would never end.
void tst_Icons::pipe_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("reason");
    const QString special = "not a regular file";
    QTest::newRow("default") << "themes/default.theme" << special;
    QTest::newRow("theme") << "themes/red.theme" << special;
    QTest::newRow("picture") << "pen.svg" << special;
    QTest::newRow("copy") << "out/pen.svg" << special + ", so it is not replaced";
}

void tst_Icons::pipe()
{
    QFETCH(QString, file);
    QFETCH(QString, reason);
    const Workshop shop;
    const QString path = shop.filePath(file);
    QVERIFY(QDir(shop.path()).mkpath("out"));
    QFile::remove(path);
    QCOMPARE(::mkfifo(qPrintable(path), 0600), 0);
    const Outcome outcome = shop.tint("red", {shop.filePath("pen.svg")});
    QCOMPARE(outcome.exitCode, 2);
    QVERIFY2(outcome.error.endsWith("hvtheme-icons: " % path % ": " % reason % "\n"),
             qUtf8Printable(outcome.error));
}

// The library would count to that.
void tst_Icons::hugeGradient()
{
    const Workshop shop;
    shop.write("themes/red.theme",
               QByteArray(redTheme) + "[Gradients]\nGlow=1\nGlow\\size=2000000000\n");
    const Outcome outcome = shop.tint("red", {shop.filePath("pen.svg")});
    QCOMPARE(outcome.exitCode, 2);
    QCOMPARE(outcome.error,
             "hvtheme-icons: " % shop.filePath("themes/red.theme")
                 % ": gradient Glow claims 2000000000 stops, which takes the library minutes to "
                   "read\n");
}

void tst_Icons::otherPicturesAreStillMade()
{
    const Workshop shop;
    shop.write("bad.svg", "global.theme.color.Pen");
    QCOMPARE(shop.tint("red", {shop.filePath("bad.svg"), shop.filePath("pen.svg")}).exitCode, 2);
    QVERIFY(!QFile::exists(shop.filePath("out/bad.svg")));
    QVERIFY(QFile::exists(shop.filePath("out/pen.svg")));
}

void tst_Icons::sourceIsNeverReplaced()
{
    const Workshop shop;
    const Outcome outcome =
        run({shop.filePath("themes"), "red", shop.path(), shop.filePath("pen.svg")});
    QCOMPARE(outcome.exitCode, 2);
    QVERIFY(outcome.error.contains("pen.svg: its copy would replace it\n"));
    QCOMPARE(content(shop.filePath("pen.svg")), QByteArray(picture));
}

// Files of the system can be opened and yet not be read.
void tst_Icons::readError()
{
    const Workshop shop;
    const Outcome outcome = shop.tint("red", {"/proc/self/mem"});
    QVERIFY2(outcome.error.contains("hvtheme-icons: /proc/self/mem: Input/output error\n"),
             qUtf8Printable(outcome.error));
    QCOMPARE(outcome.exitCode, 2);
    QVERIFY(!QFile::exists(shop.filePath("out/mem")));
}

void tst_Icons::copiesOfOneName()
{
    const Workshop shop;
    shop.write("a/pen.svg", picture);
    const QStringList sources{shop.filePath("pen.svg"), shop.filePath("a/pen.svg")};
    const Outcome outcome = shop.tint("red", sources);
    QCOMPARE(outcome.error,
             QString("hvtheme-icons: %1: its copy would replace that of %2\n")
                 .arg(sources.at(1), sources.at(0)));
    QCOMPARE(outcome.exitCode, 2);
    QVERIFY(!QFile::exists(shop.filePath("out")));
    QCOMPARE(shop.tint("red", {sources.at(0), sources.at(0)}).exitCode, 0);
}

void tst_Icons::wrongUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("mistake");
    QTest::newRow("none") << QStringList() << "FOLDER is missing";
    QTest::newRow("folder") << QStringList{"themes"} << "THEME is missing";
    QTest::newRow("theme") << QStringList{"themes", "red"} << "OUTPUT_FOLDER is missing";
    QTest::newRow("no-picture") << QStringList{"themes", "red", "out"} << "FILE.svg is missing";
    QTest::newRow("option") << QStringList{"--size"} << "no option is called \"--size\"";
}

void tst_Icons::wrongUsage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, mistake);
    const Outcome outcome = run(arguments);
    QCOMPARE(outcome.exitCode, 2);
    QCOMPARE(outcome.error, "hvtheme-icons: " % mistake % " (see hvtheme-icons --help)\n");
    QCOMPARE(outcome.output, QString());
}

void tst_Icons::help()
{
    const Outcome outcome = run({"--help"});
    QCOMPARE(outcome.exitCode, 0);
    QVERIFY(outcome.output.startsWith("Usage: hvtheme-icons "));
    QCOMPARE(outcome.error, QString());
}

void tst_Icons::version()
{
    const Outcome outcome = run({"--version"});
    QCOMPARE(outcome.exitCode, 0);
    QCOMPARE(outcome.output, QStringLiteral("hvtheme-icons " HVTHEME_VERSION "\n"));
    QCOMPARE(outcome.error, QString());
}

void tst_Icons::drawings_data()
{
    QTest::addColumn<QString>("file");

    const QDir folder(QStringLiteral(HVTHEME_ICON_SOURCES_DIR));
    const QStringList files = folder.entryList({"*.svg"}, QDir::Files, QDir::Name);
    QCOMPARE(files.size(), 85);
    for (const QString &file : files)
        QTest::newRow(qUtf8Printable(QFileInfo(file).baseName())) << folder.filePath(file);
}

// One grid, one width of stroke, and no colour of its own: what makes the drawings one set.
void tst_Icons::drawings()
{
    QFETCH(QString, file);

    const QString text = QString::fromUtf8(content(file));
    const bool isGroove = QFileInfo(file).baseName().startsWith("slider_");
    const QRegularExpression grid(isGroove ? "viewBox=\"0 0 240 6\""
                                           : "viewBox=\"0 0 (20|36) 20\"");
    QVERIFY(grid.match(text).hasMatch());
    if (isGroove)
        return;
    QCOMPARE(text.count("stroke-width="), 1);
    QVERIFY(
        text.contains("stroke-width=\"1.5\" stroke-linecap=\"round\" stroke-linejoin=\"round\""));
    const QRegularExpression paint("(?:fill|stroke)=\"(?!none\"|global\\.theme\\.color\\.\\w+\")");
    QVERIFY2(!paint.match(text).hasMatch(), qUtf8Printable(paint.match(text).captured()));
}

// A limit on the size of files stands for a full disk.
void tst_Icons::fullDisk()
{
    const Workshop workshop;
    const QString large =
        workshop.write("large.svg", "<svg>" + QByteArray(9999, ' ') + picture + "</svg>");
    QProcess shell;
    shell.start("bash",
                {"-c", "trap '' XFSZ; ulimit -f 4; exec \"$@\"", "bash",
                 QCoreApplication::applicationDirPath() % QLatin1String("/hvtheme-icons"),
                 workshop.filePath("themes"), "red", workshop.filePath("out"), large});
    QVERIFY(shell.waitForFinished());
    const QString errors = QString::fromUtf8(shell.readAllStandardError());
    QVERIFY2(errors.endsWith("hvtheme-icons: " % workshop.filePath("out/large.svg")
                             % ": File too large\n"),
             qUtf8Printable(errors));
    QCOMPARE(shell.exitCode(), 2);
    QCOMPARE(QDir(workshop.filePath("out")).entryList(QDir::Files), QStringList());
}

void tst_Icons::fullDevice()
{
    if (!QFile::exists("/dev/full"))
        QSKIP("this system has no /dev/full");
    for (const char *option : {"--help", "--version"}) {
        QProcess process;
        process.setStandardOutputFile("/dev/full");
        process.start(QCoreApplication::applicationDirPath() % QLatin1String("/hvtheme-icons"),
                      {option});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 2);
        QVERIFY(process.readAllStandardError().contains("No space left on device"));
    }
}

QTEST_GUILESS_MAIN(tst_Icons)
#include "tst_icons.moc"
