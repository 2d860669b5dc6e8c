// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "commandrun.h"

#include <QImage>
#include <QSet>
#include <QXmlStreamReader>
#include <QtTest>

// The page and the picture that show themes side by side.
class tst_Sheet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pageIsWellFormed_data();
    void pageIsWellFormed();
    void pageNeedsNothingElse();
    void vision_data();
    void vision();
    void pageNamesAllValues();
    void pageEscapesNames();
    void contrastIsGraded_data();
    void contrastIsGraded();
    void pictureShowsColors();
    void pictureGrowsWithThemes();
    void pictureHasAnEnd();
    void pictureHasAnArea();
    void pictureWithoutMemory();
    void largeFilesStayOut();
    void largeImagesStayOut_data();
    void largeImagesStayOut();
};

namespace
{

QByteArray sheet(const QString &suffix, const QStringList &arguments)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("sheet" + suffix);
    const CommandRun run(QStringList("sheet") + arguments + QStringList{"-o", path});
    QFile file(path);
    if (run.exitCode != 0 || !run.errors.isEmpty() || !file.open(QIODevice::ReadOnly))
        qFatal("no sheet: %s", run.errors.constData());
    return file.readAll();
}

QImage picture(const QStringList &arguments)
{
    return QImage::fromData(sheet(".png", arguments), "PNG");
}

QSet<QRgb> colorsOf(const QImage &image)
{
    QSet<QRgb> colors;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            colors.insert(image.pixel(x, y));
    }
    return colors;
}

const QStringList twoThemes{"themes", "default", "night", "--app-dir", "images"};

} // namespace

void tst_Sheet::pageIsWellFormed_data()
{
    QTest::addColumn<QStringList>("arguments");

    QTest::newRow("two") << twoThemes;
    QTest::newRow("one") << QStringList{"themes", "night"};
    QTest::newRow("samples") << QStringList{HVTHEME_TEST_DIR "/../themes", "dark", "light"};
}

void tst_Sheet::pageIsWellFormed()
{
    QFETCH(QStringList, arguments);
    QXmlStreamReader reader(sheet(".html", arguments));
    QSet<QString> anchors;
    QStringList links;
    QStringList labels;
    int lastHeading = 0;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QString name = reader.name().toString();
        const QXmlStreamAttributes attributes = reader.attributes();
        if (attributes.hasAttribute("id")) {
            QVERIFY(!anchors.contains(attributes.value("id").toString()));
            anchors.insert(attributes.value("id").toString());
        }
        if (name == "html")
            QCOMPARE(attributes.value("lang").toString(), QString("en"));
        if (name == "a")
            links << attributes.value("href").mid(1).toString();
        if (attributes.hasAttribute("aria-labelledby"))
            labels << attributes.value("aria-labelledby").toString();
        if (name == "th")
            QVERIFY(attributes.hasAttribute("scope"));
        if (name == "img")
            QVERIFY(!attributes.value("alt").isEmpty());
        if (name.size() == 2 && name.startsWith('h') && name.at(1).isDigit()) {
            QVERIFY(name.at(1).digitValue() <= lastHeading + 1);
            lastHeading = name.at(1).digitValue();
        }
    }
    QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));
    QVERIFY(links.size() > 3);
    for (const QString &target : links + labels)
        QVERIFY2(anchors.contains(target), qPrintable(target));
}

void tst_Sheet::vision_data()
{
    QTest::addColumn<QString>("vision");
    QTest::addColumn<QString>("firstFactors"); // of the matrix; empty: no filter

    QTest::newRow("normal") << "normal" << QString();
    QTest::newRow("protan") << "protan"
                            << "0.152286 1.052583 -0.204868";
    QTest::newRow("deutan") << "deutan"
                            << "0.367322 0.860646 -0.227968";
    QTest::newRow("tritan") << "tritan"
                            << "1.255528 -0.076749 -0.178779";
}

void tst_Sheet::vision()
{
    QFETCH(QString, vision);
    QFETCH(QString, firstFactors);
    const QString page = sheet(".html", QStringList{"themes", "night", "--vision", vision});
    QCOMPARE(page.contains("feColorMatrix values=\"" + firstFactors), !firstFactors.isEmpty());
    QCOMPARE(page.contains("main { filter: url(#vision); }"), !firstFactors.isEmpty());
    QCOMPARE(page.contains("shown as " + vision + " eyes see it"), !firstFactors.isEmpty());

    const QTemporaryDir folder;
    const auto picture = [&](const QString &eyes) {
        const QString file = folder.filePath(eyes + ".png");
        const CommandRun run({"sheet", "themes", "night", "--vision", eyes, "-o", file});
        return run.exitCode == 0 ? QImage(file) : QImage();
    };
    static const QImage normal = picture("normal");
    const QImage seen = picture(vision);
    QVERIFY(!seen.isNull());
    QCOMPARE(seen == normal, firstFactors.isEmpty());
}

void tst_Sheet::pageNeedsNothingElse()
{
    const QString page = sheet(".html", twoThemes);
    QVERIFY(page.contains("src=\"data:image/svg+xml;base64,"));
    QVERIFY(!page.contains("<script"));
    QVERIFY(!page.contains("<link"));
    QVERIFY(!page.contains("http:") && !page.contains("https:"));
    QVERIFY(!page.contains("url("));
    QVERIFY(page.contains("prefers-color-scheme: dark"));
    const QString svg = QString(page).section("base64,", 1, 1).section('"', 0, 0);
    QFile source(dataFolder() + "/images/add.svg");
    QVERIFY(source.open(QIODevice::ReadOnly));
    QCOMPARE(QByteArray::fromBase64(svg.toLatin1()), source.readAll());
}

void tst_Sheet::pageNamesAllValues()
{
    const QString page = sheet(".html", twoThemes);
    for (const char *text : {"Brand_10", "Veil", "Moon", "TitleBackground", "#3a3f47", "#80000000",
                             "Rounded", "Kept", "13 px", "Glow", "0 #80b0ff, 1 #001e6fff",
                             "add in night", "Night, starless", "not set", "missing"})
        QVERIFY2(page.contains(text), text);
    QVERIFY(page.indexOf("Brand_2<") < page.indexOf("Brand_10<")); // as in the file
    QVERIFY(page.contains("linear-gradient(to right, #80b0ff 0%, #1e6fff00 100%)")); // opacity last
}

void tst_Sheet::pageEscapesNames()
{
    const TemporaryTheme theme("[General]\nThemeName=<b>\\x1b\n[Colors]\n%3Ci%3E=#FFF\n"
                               "[Flags]\n%22%26=1\n");
    const QString page = sheet(".html", {theme.path(), "default"});
    QVERIFY(page.contains("&lt;b&gt;\\x1b"));
    QVERIFY(page.contains("&lt;i&gt;"));
    QVERIFY(page.contains("&quot;&amp;"));
    QVERIFY(!page.contains("<b>") && !page.contains("<i>"));
}

void tst_Sheet::contrastIsGraded_data()
{
    QTest::addColumn<QString>("color");
    QTest::addColumn<QString>("property");
    QTest::addColumn<QString>("expected");

    QTest::newRow("black") << "#000000"
                           << "color"
                           << ">21.00:1 AAA<";
    QTest::newRow("AA") << "#767676"
                        << "color"
                        << ">4.54:1 AA<";
    QTest::newRow("just-not-AA") << "#777777"
                                 << "color"
                                 << ">4.47:1 AA large<"; // 4.478
    QTest::newRow("low") << "#999999"
                         << "color"
                         << ">2.84:1 low<";
    QTest::newRow("no-text") << "#999999"
                             << "background-color"
                             << ">2.84:1<";
    QTest::newRow("selection") << "#999999"
                               << "selection-color"
                               << ">2.84:1 low<";
}

void tst_Sheet::contrastIsGraded()
{
    QFETCH(QString, color);
    QFETCH(QString, property);
    QFETCH(QString, expected);
    const TemporaryTheme theme("[Colors]\nText=" + color.toLatin1() + "\nGround=#FFFFFF\n");
    theme.write("a.qss", "a { " + property.toLatin1() + ": global.theme.color.Text }");
    const QString page = sheet(".html",
                               {theme.path(), "default", "--background", "Ground", "--no-builtin",
                                "--templates", theme.path("a.qss")});
    QVERIFY2(page.contains(expected), qPrintable(page.section("Text</th>", 1, 1).left(400)));
    QVERIFY(page.contains("Each theme is shown on its own Ground."));
}

void tst_Sheet::pictureShowsColors()
{
    const QString base = "[Palettes]\nOdd_1=#12AB34\n[Colors]\nGround=#C0FFEE\nFill=#FE0123\n";
    const TemporaryTheme theme(base.toLatin1());
    const QStringList arguments{theme.path(), "default", "--background", "Ground"};
    const QSet<QRgb> colors = colorsOf(picture(arguments));
    for (const QRgb color : {0xff12ab34, 0xffc0ffee, 0xfffe0123})
        QVERIFY2(colors.contains(color), qPrintable(QString::number(color, 16)));

    theme.write("default.theme", "[Colors]\nGround=#C0FFEE\n");
    const QSet<QRgb> fewer = colorsOf(picture(arguments));
    QVERIFY(!fewer.contains(0xff12ab34) && !fewer.contains(0xfffe0123));
}

void tst_Sheet::pictureGrowsWithThemes()
{
    const QImage one = picture({"themes", "night"});
    const QImage two = picture(twoThemes);
    QVERIFY(!one.isNull() && !two.isNull());
    QVERIFY(two.width() > 600 && two.width() >= one.width());
    QCOMPARE(one.pixel(0, 0), two.pixel(0, 0));
}

void tst_Sheet::pictureHasAnEnd()
{
    QByteArray text = "[Colors]\n";
    for (int i = 0; i < 2000; ++i)
        text += "Key" + QByteArray::number(i) + "=#FFF\n";
    const TemporaryTheme theme(text);
    const CommandRun run({"sheet", theme.path(), "default", "-o", theme.path("out.png")});
    QCOMPARE(run.exitCode, 2);
    QVERIFY(run.errors.contains("too many values for a picture"));
    QVERIFY(!QFile::exists(theme.path("out.png")));
    QVERIFY(sheet(".html", {theme.path(), "default"}).contains("Key1999"));
}

// As large as a picture may be on either side, but not on both.
void tst_Sheet::pictureHasAnArea()
{
    QByteArray text = "[Integers]\n";
    for (int i = 0; i < 400; ++i)
        text += "Key" + QByteArray::number(i) + "=1\n";
    const TemporaryTheme theme(text);
    QStringList arguments{"sheet", theme.path()};
    for (int i = 0; i < 70; ++i) {
        const QString name = "t" + QString::number(i);
        theme.write(name + ".theme", "[Integers]\nOwn=1\n");
        arguments << name;
    }
    const CommandRun run(arguments + QStringList{"-o", theme.path("out.png")});
    QCOMPARE(run.exitCode, 2);
    QCOMPARE(run.errors,
             QByteArray("hvtheme: these themes have too many values for a picture; name a .html "
                        "file instead\n"));
    QVERIFY(!QFile::exists(theme.path("out.png")));
}

// A limit on memory stands for a machine that has no more.
void tst_Sheet::pictureWithoutMemory()
{
#ifdef __SANITIZE_ADDRESS__
    QSKIP("the sanitizer reserves more address space than the limit leaves");
#endif
    QByteArray text = "[Integers]\n";
    for (int i = 0; i < 760; ++i)
        text += "Key" + QByteArray::number(i) + "=1\n";
    const TemporaryTheme theme(text);
    QStringList arguments{
        "-c", "ulimit -v 400000; exec \"$@\"", "bash", commandPath(), "sheet", theme.path()};
    for (int i = 0; i < 4; ++i) {
        const QString name = "t" + QString::number(i);
        theme.write(name + ".theme", "[Integers]\nOwn=1\n");
        arguments << name;
    }
    QProcess shell;
    shell.start("bash", arguments + QStringList{"-o", theme.path("out.png")});
    QVERIFY(shell.waitForFinished());
    const QString errors = shell.readAllStandardError();
    QVERIFY2(errors.contains("hvtheme: there is no memory for a picture of "), qPrintable(errors));
    QCOMPARE(errors.count('\n'), 1);
    QCOMPARE(shell.exitCode(), 2);
}

// What the check takes and a sheet does not is told.
void tst_Sheet::largeFilesStayOut()
{
    const TemporaryTheme theme("[ImageFiles]\nlarge=large.png\n");
    QImage image(8, 8, QImage::Format_ARGB32);
    image.fill(Qt::red);
    QVERIFY(image.save(theme.path("large.png"), "PNG"));
    QFile file(theme.path("large.png"));
    QVERIFY(file.resize(qint64(5) * 1024 * 1024));
    const CommandRun run({"sheet", theme.path(), "default", "--app-dir", theme.path(), "-o",
                          theme.path("out.html")});
    QCOMPARE(QString(run.errors),
             "hvtheme: image file large: " + QFileInfo(theme.path()).canonicalFilePath()
                 + "/large.png is larger than 4 MB, too much for a sheet, which shows it as "
                   "missing\n");
    QCOMPARE(run.exitCode, 0);
}

// A picture of 900 million pixels, in a file of some hundred bytes.
void tst_Sheet::largeImagesStayOut_data()
{
    QTest::addColumn<QString>("output");

    QTest::newRow("page") << "out.html";
    QTest::newRow("picture") << "out.png";
}

void tst_Sheet::largeImagesStayOut()
{
#ifdef __SANITIZE_ADDRESS__
    QSKIP("the sanitizer reserves more address space than the limit leaves");
#endif
    QFETCH(QString, output);
    const TemporaryTheme theme("[ImageFiles]\nlarge=large.png\n");
    QImage image(30000, 30000, QImage::Format_Mono);
    image.fill(1);
    QVERIFY(image.save(theme.path("large.png"), "PNG"));
    QProcess shell;
    shell.start("bash",
                {"-c", "ulimit -v 3000000; exec \"$@\"", "bash", commandPath(), "sheet",
                 theme.path(), "default", "--app-dir", theme.path(), "-o", theme.path(output)});
    QVERIFY(shell.waitForFinished());
    QCOMPARE(QString(shell.readAllStandardError()),
             "hvtheme: image file large: " + QFileInfo(theme.path()).canonicalFilePath()
                 + "/large.png has 30000 x 30000 pixels, too much for a sheet, which shows it as "
                   "missing\n");
    QCOMPARE(shell.exitCode(), 0);
    QFile file(theme.path(output));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.size() > 500);
    QVERIFY(!file.readAll().contains("src=\"data:"));
}

QTEST_GUILESS_MAIN(tst_Sheet)
#include "tst_sheet.moc"
