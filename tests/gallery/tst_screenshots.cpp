// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "distincttheme.h"

#include <colormath/vision.h>
#include <gallery/pages.h>

#include <QBuffer>
#include <QImage>
#include <QProcess>
#include <QtTest>

#include <sys/stat.h>

namespace
{

struct Outcome {
    int exitCode;
    QString output;
    QString errors;
};

// Without a display, a platform or a home folder, as on a build machine.
Outcome runGallery(const QStringList &arguments)
{
    const QTemporaryDir runtime; // Qt wants one that is ours alone
    QProcessEnvironment environment;
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    for (const char *name : {"PATH", "LSAN_OPTIONS"})
        environment.insert(QString::fromLatin1(name), qEnvironmentVariable(name));
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtime.path());
    QProcess gallery;
    gallery.setProcessEnvironment(environment);
    gallery.start(QStringLiteral(HVTHEME_GALLERY), arguments);
    if (!gallery.waitForFinished(240000))
        qFatal("the gallery does not finish");
    return {gallery.exitStatus() == QProcess::NormalExit ? gallery.exitCode() : -1,
            QString::fromUtf8(gallery.readAllStandardOutput()),
            QString::fromUtf8(gallery.readAllStandardError())};
}

// 400 million pixels in a file of some kilobytes.
QByteArray largeImage()
{
    QImage image(20000, 20000, QImage::Format_Mono);
    image.fill(1);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!buffer.open(QIODevice::WriteOnly) || !image.save(&buffer, "PNG"))
        qFatal("cannot make a large image");
    return bytes;
}

} // namespace

class tst_Screenshots : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void onePictureForEachPageAndTheme();
    void everyPageOfTheSampleThemes();
    void doubleScale();
    void optionsOfQt();
    void joinedThemes();
    void vision();
    void form();
    void problems_data();
    void problems();
    void toldOnce_data();
    void toldOnce();
    void refusedInput_data();
    void refusedInput();
    void noControlCharacters();
    void imagesOfAnotherApplication_data();
    void imagesOfAnotherApplication();
    void fullDisk();
    void goodThemesAreDrawnAllTheSame();
    void fullDevice();
    void help();
    void noDisplay();

private:
    QStringList pictures() const;
    QStringList withFolders(const QStringList &arguments) const;

    std::unique_ptr<DistinctTheme> m_files;
    std::unique_ptr<QTemporaryDir> m_output;
};

void tst_Screenshots::init()
{
    m_files = std::make_unique<DistinctTheme>();
    m_output = std::make_unique<QTemporaryDir>();
}

QStringList tst_Screenshots::pictures() const
{
    return QDir(m_output->path()).entryList({"*.png"}, QDir::Files, QDir::Name);
}

QStringList tst_Screenshots::withFolders(const QStringList &arguments) const
{
    return QStringList{"--themes", m_files->folder(), "--screenshot", m_output->path()} + arguments;
}

void tst_Screenshots::onePictureForEachPageAndTheme()
{
    const Outcome outcome = runGallery({"--screenshot", m_output->path(), "--theme", "dark,light",
                                        "--page", "tabs", "--page", "menus"});
    QCOMPARE(outcome.errors, QString());
    QCOMPARE(outcome.exitCode, 0);
    QCOMPARE(pictures(),
             QStringList({"menus-dark.png", "menus-light.png", "tabs-dark.png", "tabs-light.png"}));
    const QImage dark(m_output->filePath(QStringLiteral("tabs-dark.png")));
    const QImage light(m_output->filePath(QStringLiteral("tabs-light.png")));
    QCOMPARE(dark.size(), light.size());
    QVERIFY(dark.pixelColor(2, 2).lightness() < 64);
    QVERIFY(light.pixelColor(2, 2).lightness() > 192);
}

void tst_Screenshots::everyPageOfTheSampleThemes()
{
    const Outcome outcome = runGallery({"--screenshot", m_output->path()});
    QCOMPARE(outcome.errors, QString()); // no message of the library's, no unknown property
    QCOMPARE(outcome.exitCode, 0);
    QCOMPARE(pictures().size(), Gallery::pages().size() * 3);
}

void tst_Screenshots::doubleScale()
{
    const QStringList page{"--page", "tabs"};
    QCOMPARE(runGallery(withFolders(page)).exitCode, 0);
    QCOMPARE(runGallery(withFolders(page + QStringList{"--scale", "2"})).exitCode, 0);
    const QImage single(m_output->filePath(QStringLiteral("tabs-default.png")));
    const QImage twice(m_output->filePath(QStringLiteral("tabs-default@2x.png")));
    QVERIFY(!single.isNull());
    QVERIFY(qAbs(twice.width() - 2 * single.width()) <= 40); // text is not exactly twice as wide
    QVERIFY(twice.height() > 1.9 * single.height());
}

// They are Qt's, and the gallery's own beside them hold.
void tst_Screenshots::optionsOfQt()
{
    const QStringList page{"--page", "tabs", "--scale", "2"};
    QCOMPARE(runGallery(withFolders(page)).exitCode, 0);
    const QString file = m_output->filePath(QStringLiteral("tabs-default@2x.png"));
    const QImage plain(file);
    QVERIFY(!plain.isNull());
    const Outcome outcome = runGallery(withFolders(QStringList{"-style", "windows"} + page));
    QCOMPARE(outcome.errors, QString());
    QCOMPARE(outcome.exitCode, 0);
    QCOMPARE(QImage(file), plain);
    QVERIFY(runGallery({"-reverse"}).errors.contains(QLatin1String("no display to open a window")));
}

void tst_Screenshots::joinedThemes()
{
    const Outcome outcome = runGallery({"--screenshot", m_output->path(), "--page", "application",
                                        "--theme", "dark,light", "--join"});
    QCOMPARE(outcome.exitCode, 0);
    const QImage dark(m_output->filePath(QStringLiteral("application-dark.png")));
    const QImage both(m_output->filePath(QStringLiteral("application-dark-light.png")));
    QCOMPARE(both.height(), dark.height());
    QCOMPARE(both.width(), 2 * dark.width() + 16);
    QCOMPARE(both.copy(dark.rect()), dark);
}

void tst_Screenshots::vision()
{
    const QStringList page{"--page", "surfaces"};
    QCOMPARE(runGallery(withFolders(page)).exitCode, 0);
    QCOMPARE(runGallery(withFolders(page + QStringList{"--vision", "deutan"})).exitCode, 0);
    const QImage normal(m_output->filePath(QStringLiteral("surfaces-default.png")));
    const QImage deutan(m_output->filePath(QStringLiteral("surfaces-default-deutan.png")));
    QVERIFY(!normal.isNull());
    const QImage seen = ColorMath::seenBy(ColorMath::Vision::Deutan, normal);
    QCOMPARE(deutan.convertToFormat(seen.format()), seen);
    QVERIFY(seen != normal.convertToFormat(seen.format()));
}

void tst_Screenshots::form()
{
    const QString path = m_output->filePath(QStringLiteral("form.ui"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<ui version=\"4.0\"><class>Form</class><widget class=\"QWidget\" name=\"Form\">"
               "<property name=\"minimumSize\"><size><width>200</width><height>100</height></size>"
               "</property><property name=\"style\" stdset=\"0\"><string>BG5</string></property>"
               "</widget></ui>");
    file.close();
    const Outcome outcome = runGallery(withFolders({"--ui", path, "--page", "form"}));
    QCOMPARE(outcome.exitCode, 0);
    const QImage shown(m_output->filePath(QStringLiteral("form-default.png")));
    QCOMPARE(shown.size(), QSize(200, 100));
    QCOMPARE(shown.pixelColor(100, 50), m_files->color(QStringLiteral("BackgroundColor_5")));
}

void tst_Screenshots::problems_data()
{
    QTest::addColumn<QStringList>("arguments"); // %1: the folder of themes
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("message");

    // clang-format off
    QTest::newRow("unknown-option") << QStringList{"--colour"} << 2 << "Unknown option 'colour'. See --help.";
    QTest::newRow("unknown-page") << QStringList{"--page", "knobs"} << 2 << "No page named \"knobs\".";
    QTest::newRow("no-themes-folder") << QStringList{"--themes", "%1/missing"} << 2 << "The themes folder \".*/missing\" does not exist. Name one that does with --themes.";
    QTest::newRow("no-default-file") << QStringList{"--themes", "%1/images"} << 2 << "images/default.theme\" is missing or cannot be read";
    QTest::newRow("unknown-theme") << QStringList{"--theme", "dusk"} << 3 << "No theme named \"dusk\": .*Choose one of: default.";
    QTest::newRow("no-templates") << QStringList{"--templates", "%1/missing"} << 4 << "The templates folder \".*/missing\" does not exist.";
    QTest::newRow("no-form") << QStringList{"--ui", "%1/missing.ui", "--page", "form"} << 5 << "The form \".*/missing.ui\" cannot be read: .*--ui";
    QTest::newRow("form-that-is-none") << QStringList{"--ui", "%1/default.theme", "--page", "form"} << 5 << "The form \".*/default.theme\" is none: ";
    QTest::newRow("broken-image") << QStringList{"--theme", "default", "--page", "broken"} << 6 << "close.png\" does not decode: ";
    QTest::newRow("no-output") << QStringList{"--screenshot", "%1/default.theme/pictures"} << 7 << "pictures\" cannot be made. Name another one with --screenshot.";
    // clang-format on
}

void tst_Screenshots::problems()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, exitCode);
    QFETCH(QString, message);
    arguments.replaceInStrings(QStringLiteral("%1"), m_files->folder());
    const int broken = int(arguments.indexOf(QStringLiteral("broken")));
    if (broken >= 0) {
        QFile image(m_files->imagePath(QStringLiteral("close")));
        QVERIFY(image.open(QIODevice::WriteOnly));
        arguments[broken] = QStringLiteral("tabs");
    }
    if (!arguments.contains(QStringLiteral("--page")))
        arguments += QStringList{"--page", "tabs"};
    const Outcome outcome = runGallery(withFolders(arguments));
    QVERIFY2(outcome.errors.contains(QRegularExpression(message)), qPrintable(outcome.errors));
    QCOMPARE(outcome.exitCode, exitCode);
    QCOMPARE(pictures(), QStringList());
}

void tst_Screenshots::toldOnce_data()
{
    QTest::addColumn<QStringList>("arguments"); // %1: the folder of themes
    QTest::addColumn<QString>("message");

    const QString file = "default.theme\" is missing or cannot be read";
    QTest::newRow("default-file") << QStringList{"--themes", "%1/images"} << file;
    QTest::newRow("default-file-in-window")
        << QStringList{"--themes", "%1/images", "--pane", "messages"} << file;
    QTest::newRow("templates") << QStringList{"--templates", "%1/missing"}
                               << "missing\" does not exist";
}

// What is wrong with all themes is not told for each.
void tst_Screenshots::toldOnce()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, message);
    arguments.replaceInStrings(QStringLiteral("%1"), m_files->folder());
    const Outcome outcome = runGallery(
        withFolders(arguments + QStringList{"--page", "tabs", "--theme", "default,default"}));
    QCOMPARE(outcome.errors.count(message), 1);
    QVERIFY(outcome.exitCode != 0);
    QCOMPARE(pictures(), QStringList());
}

void tst_Screenshots::refusedInput_data()
{
    QTest::addColumn<QString>("file"); // below the themes folder
    QTest::addColumn<QByteArray>("content"); // null: a pipe that nobody writes to
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("message");

    const QByteArray pipe;
    const QByteArray endless = "[ImageFiles]\nadd=../global.theme.image.add\n";
    // clang-format off
    QTest::newRow("pipe-for-default") << "default.theme" << pipe << QStringList() << 2 << "default.theme\" is missing or cannot be read";
    QTest::newRow("pipe-for-theme") << "night.theme" << pipe << QStringList{"--theme", "night"} << 3 << "night.theme\" is missing or cannot be read";
    QTest::newRow("pipe-for-image") << "images/add.png" << pipe << QStringList() << 6 << "add.png\" does not decode: not a regular file \\(default.theme:\\d+\\)";
    QTest::newRow("pipe-for-form") << "form.ui" << pipe << QStringList{"--ui", "%1/form.ui", "--page", "form"} << 5 << "form.ui\" cannot be read: not a regular file";
    QTest::newRow("pipe-in-template") << "images/pipe.png" << pipe << QStringList{"--templates", "%1/styles"} << 6 << "pipe.png\" does not decode: not a regular file";
    QTest::newRow("device-for-image") << "images/add.png" << QByteArray("/dev/zero") << QStringList() << 6 << "add.png\" does not decode: not a regular file \\(default.theme:\\d+\\)";
    QTest::newRow("large-image") << "images/add.png" << largeImage() << QStringList() << 6 << "add.png\" does not decode: 20000 x 20000 pixels are too many \\(default.theme:\\d+\\)";
    QTest::newRow("binary") << "night.theme" << QByteArray("\0\1\2", 3) << QStringList{"--theme", "night"} << 3 << "night.theme: a binary file";
    QTest::newRow("endless") << "default.theme" << endless << QStringList() << 8 << "default.theme:2: the value of add leads back to its own token";
    // clang-format on
}

void tst_Screenshots::refusedInput()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, content);
    QFETCH(QStringList, arguments);
    QFETCH(int, exitCode);
    QFETCH(QString, message);
    const QString path = m_files->folder() + QLatin1Char('/') + file;
    QVERIFY(QDir(m_files->folder()).mkdir(QStringLiteral("styles")));
    QFile style(m_files->folder() + QLatin1String("/styles/a.qss"));
    QVERIFY(style.open(QIODevice::WriteOnly));
    style.write("QLabel { image: url(\"" + m_files->folder().toUtf8() + "/images/pipe.png\") }");
    style.close();
    QFile::remove(path);
    if (content.isNull()) {
        QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    } else if (content.startsWith('/')) {
        QVERIFY(QFile::link(QString::fromUtf8(content), path));
    } else {
        QFile written(path);
        QVERIFY(written.open(QIODevice::WriteOnly) && written.write(content) == content.size());
    }
    arguments.replaceInStrings(QStringLiteral("%1"), m_files->folder());
    if (!arguments.contains(QStringLiteral("--page")))
        arguments += QStringList{"--page", "labels"};
    const Outcome outcome = runGallery(withFolders(arguments));
    QVERIFY2(outcome.errors.contains(QRegularExpression(message)), qPrintable(outcome.errors));
    QCOMPARE(outcome.errors.count(QLatin1Char('\n')), 1);
    QCOMPARE(outcome.exitCode, exitCode);
    QCOMPARE(pictures(), QStringList());
}

// Whatever a name holds, a terminal gets to see it and not to obey it.
void tst_Screenshots::noControlCharacters()
{
    const QString evil = QStringLiteral("\x1b[31m\u202e");
    const QString folder = m_output->filePath(evil);
    QVERIFY(QDir().mkdir(folder));
    QFile file(folder + QLatin1String("/default.theme"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[ImageFiles]\nadd=\\x1b]0;evil\\x07.png\n");
    file.close();
    QString told;
    for (const QStringList &arguments :
         {QStringList{"--page", evil},
          {evil},
          {"--theme", evil, "--page", "labels"},
          {"--themes", folder, "--page", "labels"},
          {"--themes", m_output->filePath("none" + evil), "--page", "labels"},
          {"--ui", evil, "--page", "form"}}) {
        const Outcome outcome = runGallery(withFolders({}) + arguments);
        QVERIFY(!outcome.errors.isEmpty());
        told += outcome.errors;
    }
    QVERIFY(told.contains(QLatin1String("\\x1b[31m\\u202e")));
    for (const QChar character : qAsConst(told))
        QVERIFY(character == QLatin1Char('\n') || character == QLatin1Char('\t')
                || character.category() < QChar::Other_Control
                || character.category() > QChar::Other_Format);
}

void tst_Screenshots::imagesOfAnotherApplication_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("plain") << "images";
    QTest::newRow("latin-1") << QStringLiteral(
        "B\u00fchne"); // as a byte, which Qt 6 would not take for ü
}

void tst_Screenshots::imagesOfAnotherApplication()
{
    QFETCH(QString, folder);
    m_files = std::make_unique<DistinctTheme>();
    if (folder != QLatin1String("images"))
        QVERIFY(QFile::rename(m_files->folder() + QLatin1String("/images"),
                              m_files->folder() + QLatin1Char('/') + folder));
    // The same theme, whose images are given as another program sees them, through a link.
    QVERIFY(QDir(m_files->folder()).mkpath(QStringLiteral("other/bin")));
    QVERIFY(QFile::link(QStringLiteral("other/bin"), m_files->folder() + QLatin1String("/link")));
    QFile theme(m_files->folder() + QLatin1String("/default.theme"));
    QVERIFY(theme.open(QIODevice::ReadOnly));
    QByteArray text = theme.readAll();
    theme.close();
    text.replace(
        QDir(QCoreApplication::applicationDirPath()).relativeFilePath(m_files->folder()).toUtf8(),
        "../..");
    QVERIFY(text.contains("=../../images/add.png"));
    text.replace("/images/", QByteArray('/' + folder.toLatin1() + '/'));
    QVERIFY(theme.open(QIODevice::WriteOnly) && theme.write(text) == text.size());
    theme.close();
    const QStringList arguments = withFolders({"--page", "image-buttons"});
    QVERIFY(runGallery(arguments).errors.contains(QLatin1String("is not exist!")));
    const Outcome outcome = runGallery(
        arguments + QStringList{"--app-dir", m_files->folder() + QLatin1String("/link")});
    QCOMPARE(outcome.errors, QString());
    QCOMPARE(outcome.exitCode, 0);
    const QImage shown(m_output->filePath(QStringLiteral("image-buttons-default.png")));
    bool hasImage = false;
    for (int y = 0; y < shown.height(); ++y) {
        for (int x = 0; x < shown.width(); ++x)
            hasImage = hasImage || shown.pixelColor(x, y) == m_files->imageColor("add");
    }
    QVERIFY(hasImage);
}

void tst_Screenshots::fullDevice()
{
    if (!QFile::exists(QStringLiteral("/dev/full")))
        QSKIP("this system has no /dev/full");
    QProcess gallery;
    gallery.setStandardOutputFile(QStringLiteral("/dev/full"));
    gallery.start(QStringLiteral(HVTHEME_GALLERY), {"--help"});
    QVERIFY(gallery.waitForFinished());
    QCOMPARE(gallery.exitCode(), 2);
    QVERIFY(gallery.readAllStandardError().contains("standard output: No space left on device"));
}

// The real reason is told, and no part of a picture is left.
void tst_Screenshots::fullDisk()
{
    QProcess gallery;
    gallery.start(
        QStringLiteral("bash"),
        QStringList{"-c", "trap '' XFSZ; ulimit -f 1; exec \"$@\"", "bash", HVTHEME_GALLERY}
            + withFolders({"--page", "tabs"}));
    QVERIFY(gallery.waitForFinished());
    const QString errors = QString::fromUtf8(gallery.readAllStandardError());
    QVERIFY2(errors.contains(QRegularExpression(
                 QStringLiteral("tabs-\\w+\\.png: File too large\\. Name a folder that"))),
             qPrintable(errors));
    QCOMPARE(gallery.exitCode(), 7);
    QCOMPARE(pictures(), QStringList());
}

void tst_Screenshots::goodThemesAreDrawnAllTheSame()
{
    const Outcome outcome =
        runGallery(withFolders({"--page", "tabs", "--theme", "dusk", "--theme", "default"}));
    QCOMPARE(outcome.exitCode, 3);
    QCOMPARE(pictures(), QStringList({"tabs-default.png"}));
}

void tst_Screenshots::help()
{
    const Outcome outcome = runGallery({"--help"});
    QCOMPARE(outcome.exitCode, 0);
    for (const Gallery::Page &page : Gallery::pages())
        QVERIFY(outcome.output.contains(page.name));
    QFile document(QStringLiteral(HVTHEME_SOURCE_DIR "/docs/gallery.md"));
    QVERIFY(document.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(document.readAll()).remove(QLatin1Char('`'));
    // The exit codes are told in both places in the same words.
    const QRegularExpression line(QStringLiteral("^  (\\d)  (.+)$"),
                                  QRegularExpression::MultilineOption);
    int codes = 0;
    for (auto hits = line.globalMatch(outcome.output); hits.hasNext(); ++codes) {
        const auto hit = hits.next();
        QVERIFY2(text.contains(QStringLiteral("| %1 | %2 |").arg(hit.captured(1), hit.captured(2))),
                 qPrintable(hit.captured()));
    }
    QCOMPARE(codes, 8);
}

void tst_Screenshots::noDisplay()
{
    const Outcome outcome = runGallery({});
    QCOMPARE(outcome.exitCode, 2);
    QVERIFY(outcome.errors.contains(QLatin1String("no display to open a window on")));
    QCOMPARE(runGallery({"--version"}).exitCode, 0);
}

QTEST_MAIN(tst_Screenshots)

#include "tst_screenshots.moc"
