// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "messages.h"
#include "temporaryfolder.h"

#include <hvthemeapp/applicationtheme.h>
#include <hvthemeapp/themedicon.h>

#include <hvtheme/theme.h>

#include <QApplication>
#include <QBuffer>
#include <QElapsedTimer>
#include <QImageReader>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QTcpServer>
#include <QtTest>

using HV::ApplicationTheme;
using HV::themedIcon;

namespace
{

QByteArray svg(const QByteArray &content, const QByteArray &attributes = "")
{
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:xlink=\"http://www.w3.org/1999/xlink\" "
           "width=\"20\" height=\"20\" viewBox=\"0 0 20 20\" "
        + attributes + ">" + content + "</svg>";
}

const QByteArray square = "<rect width=\"20\" height=\"20\" fill=\"%1\"/>";

QByteArray filled(const QByteArray &color)
{
    return svg(QByteArray(square).replace("%1", color));
}

QColor middle(const QPixmap &pixmap)
{
    return pixmap.isNull() ? QColor()
                           : pixmap.toImage().pixelColor(pixmap.width() / 2, pixmap.height() / 2);
}

QColor middle(const QIcon &icon, QIcon::Mode mode = QIcon::Normal, QIcon::State state = QIcon::Off)
{
    return middle(icon.pixmap(20, 20, mode, state));
}

/*! The strongest colour: what a stroke is drawn with. */
QColor ink(const QPixmap &pixmap)
{
    QColor best(0, 0, 0, 0);
    const QImage image = pixmap.toImage();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y).alpha() > best.alpha())
                best = image.pixelColor(x, y);
        }
    }
    return best;
}

bool isEmpty(const QPixmap &pixmap)
{
    return ink(pixmap).alpha() == 0;
}

bool isNear(const QColor &one, const QColor &other)
{
    return qAbs(one.red() - other.red()) <= 2 && qAbs(one.green() - other.green()) <= 2
        && qAbs(one.blue() - other.blue()) <= 2 && qAbs(one.alpha() - other.alpha()) <= 2;
}

} // namespace

#define COMPARE_COLOR(actual, expected)                                                            \
    QVERIFY2(isNear(actual, expected),                                                             \
             qPrintable(QString((actual).name(QColor::HexArgb) + " is not "                        \
                                + (expected).name(QColor::HexArgb))))

class tst_ThemedIcon : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void builtIn_data();
    void builtIn();
    void oneSet();
    void everyImageOfTheTemplates();
    void ownImagesWin();
    void followsASwitch();
    void isCrisp_data();
    void isCrisp();
    void paintedCrisp();
    void keepsItsProportions();
    void disabled();
    void selected();
    void states();
    void addedFilesAndPixmaps();
    void copiesAndStreams();
    void unknownName();
    void ownDrawing_data();
    void ownDrawing();
    void nothingFromOutside_data();
    void nothingFromOutside();
    void unusableDrawing_data();
    void unusableDrawing();
    void repeatedUseTakesNoTime();
    void brokenPicture_data();
    void brokenPicture();
    void mendedPicture();
    void tooMuchWork_data();
    void tooMuchWork();
    void pipe();
    void hugeDeclaredSize();
    void changedFile();
    void byPath();
    void styleSheet_data();
    void styleSheet();

private:
    ApplicationTheme m_theme;
    TemporaryFolder m_folder;
};

void tst_ThemedIcon::init()
{
    QVERIFY(m_theme.setName("dark"));
}

void tst_ThemedIcon::builtIn_data()
{
    QTest::addColumn<QString>("name");
    for (const char *folder : {"/icons", "/hvthemeapp/icons"}) {
        const QStringList files = QDir(QString(HVTHEME_SOURCE_DIR) + folder).entryList({"*.svg"});
        QVERIFY(!files.isEmpty());
        for (const QString &file : files)
            QTest::newRow(qUtf8Printable(file)) << QFileInfo(file).baseName();
    }
}

void tst_ThemedIcon::builtIn()
{
    QFETCH(QString, name);
    const QIcon icon = themedIcon(name);
    QVERIFY(!icon.isNull());
    QVERIFY(!isEmpty(icon.pixmap(20, 20)));
    QVERIFY(icon.pixmap(48, 48).width() == 48 || icon.pixmap(48, 48).height() == 48);
    QVERIFY(!isEmpty(icon.pixmap(20, 20, QIcon::Disabled)));
    // Style sheets find it as an image of the theme.
    const QString path = m_theme.theme()->imageFile(name);
    QVERIFY2(QFile::exists(path), qPrintable(path));
    QVERIFY(!isEmpty(QPixmap(path)));
}

// The library's own drawings: one grid, one width of stroke, no colour of their own.
void tst_ThemedIcon::oneSet()
{
    const QDir folder(QString(HVTHEME_SOURCE_DIR) + "/hvthemeapp/icons");
    const QRegularExpression paint("(?:fill|stroke)=\"(?!none\"|global\\.theme\\.color\\.\\w+\")");
    for (const QString &name : folder.entryList({"*.svg"})) {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(file.readAll());
        QVERIFY2(text.contains("viewBox=\"0 0 20 20\""), qPrintable(name));
        QVERIFY2(text.count("stroke-width=") == 1 && text.contains("stroke-width=\"1.5\""),
                 qPrintable(name));
        QVERIFY2(!paint.match(text).hasMatch(), qPrintable(name));
    }
}

// The embedded themes have colours alone.
void tst_ThemedIcon::everyImageOfTheTemplates()
{
    for (const char *look : {"dark", "light", "contrast"}) {
        QVERIFY(m_theme.setName(look));
        QCOMPARE(ink(themedIcon("add").pixmap(20, 20)), m_theme.theme()->color("Color_W100"));
    }
}

// A theme file of colours and one image: that one is taken, and all others are drawn.
void tst_ThemedIcon::ownImagesWin()
{
    const TemporaryFolder themes;
    const QString drawing = themes.write("mine.hvicon", filled("global.theme.color.Color_Red_6"));
    QImage green(20, 20, QImage::Format_RGB32);
    green.fill(Qt::green);
    QVERIFY(green.save(themes.filePath("green.png")));
    const auto fromProgram = [](const QString &path) {
        return QDir(QCoreApplication::applicationDirPath()).relativeFilePath(path).toUtf8();
    };
    for (const char *name : {"default", "dark"}) {
        QFile file(QString(":/hvthemeapp/themes/%1.theme").arg(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray text = file.readAll();
        QVERIFY(!text.contains("\n[ImageFiles]"));
        const QByteArray images = "\n[ImageFiles]\nadd=" + fromProgram(themes.filePath("green.png"))
            + "\nclose=" + fromProgram(drawing) + "\nrocket=" + fromProgram(drawing) + "\n";
        themes.write(QString("%1.theme").arg(name), name == QString("dark") ? text + images : text);
    }
    ApplicationTheme theme;
    QVERIFY(theme.setFolder(themes.path()));
    QVERIFY2(theme.setName("dark"), qPrintable(theme.problem()));
    const QColor red = theme.theme()->color("Color_Red_6");
    COMPARE_COLOR(middle(themedIcon("add")), QColor(Qt::green));
    COMPARE_COLOR(middle(themedIcon("add"), QIcon::Disabled), QColor(0, 255, 0, 115));
    COMPARE_COLOR(middle(themedIcon("close")), red);
    COMPARE_COLOR(middle(themedIcon("rocket")), red); // a key that has no built-in drawing
    COMPARE_COLOR(ink(themedIcon("search").pixmap(20, 20)), theme.theme()->color("Color_W100"));
    QCOMPARE(theme.theme()->imageFile("search"), QString(":/hvthemeapp/icons/search.hvicon"));
}

void tst_ThemedIcon::followsASwitch()
{
    QPushButton button;
    button.setIcon(themedIcon("nail_on"));
    const QColor dark = m_theme.theme()->color("HighlightedForegroundColor");
    COMPARE_COLOR(ink(button.icon().pixmap(32, 32)), dark);
    QVERIFY(m_theme.setName("light"));
    const QColor light = m_theme.theme()->color("HighlightedForegroundColor");
    QVERIFY(light != dark);
    COMPARE_COLOR(ink(button.icon().pixmap(32, 32)), light);
}

void tst_ThemedIcon::isCrisp_data()
{
    QTest::addColumn<int>("size");
    for (const int size : {16, 20, 24, 32, 64, 256})
        QTest::addRow("%d", size) << size;
}

// A picture that was enlarged has soft edges; a drawing of a square in halves has none at any size.
void tst_ThemedIcon::isCrisp()
{
    QFETCH(int, size);
    const QString path = m_folder.write(
        "half.svg",
        svg("<rect width=\"10\" height=\"20\" fill=\"global.theme.color.Color_W100\"/>"));
    const QImage image = themedIcon(path).pixmap(size, size).toImage();
    QCOMPARE(image.size(), QSize(size, size));
    QCOMPARE(image.pixelColor(size / 2 - 1, size / 2).alpha(), 255);
    QCOMPARE(image.pixelColor(size / 2, size / 2).alpha(), 0);
}

// On a device with two pixels per unit, and in a view that is scaled.
void tst_ThemedIcon::paintedCrisp()
{
    const QString path = m_folder.write(
        "half.svg",
        svg("<rect width=\"10\" height=\"20\" fill=\"global.theme.color.Color_W100\"/>"));
    QImage image(80, 80, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    image.setDevicePixelRatio(2);
    QPainter painter(&image);
    painter.scale(2, 2);
    themedIcon(path).paint(&painter, QRect(0, 0, 20, 20));
    painter.end();
    QCOMPARE(image.pixelColor(39, 40).alpha(), 255);
    QCOMPARE(image.pixelColor(40, 40).alpha(), 0);
}

void tst_ThemedIcon::keepsItsProportions()
{
    QCOMPARE(themedIcon("switch_on").actualSize({72, 72}), QSize(72, 40));
    QCOMPARE(themedIcon("switch_on").pixmap(72, 72).size(), QSize(72, 40));
    QCOMPARE(themedIcon("add").actualSize({16, 30}), QSize(16, 16));
}

void tst_ThemedIcon::disabled()
{
    const QString path = m_folder.write("full.svg", filled("global.theme.color.Color_Red_6"));
    QColor expected = m_theme.theme()->color("Color_Red_6");
    COMPARE_COLOR(middle(themedIcon(path)), expected);
    expected.setAlphaF(0.45F);
    COMPARE_COLOR(middle(themedIcon(path), QIcon::Disabled), expected);
    // A drawing for it goes before.
    QVERIFY(themedIcon("checkbox_on").pixmap(20, 20, QIcon::Disabled).toImage()
            == themedIcon("checkbox_on_disabled").pixmap(20, 20).toImage());
}

void tst_ThemedIcon::selected()
{
    for (const char *look : {"dark", "light", "contrast"}) {
        QVERIFY(m_theme.setName(look));
        const QColor text = QApplication::palette().color(QPalette::HighlightedText);
        COMPARE_COLOR(ink(themedIcon("add").pixmap(20, 20, QIcon::Selected)), text);
    }
}

void tst_ThemedIcon::states()
{
    const QIcon lock = themedIcon("lock");
    const auto image = [](const QIcon &icon, QIcon::State state) {
        return icon.pixmap(32, 32, QIcon::Normal, state).toImage();
    };
    QVERIFY(image(lock, QIcon::Off) == image(themedIcon("lock_off"), QIcon::Off));
    QVERIFY(image(lock, QIcon::On) == image(themedIcon("lock_on"), QIcon::Off));
    QVERIFY(image(lock, QIcon::On) != image(lock, QIcon::Off));
    QVERIFY(themedIcon("switch_on").pixmap(32, 32, QIcon::Active).toImage()
            == image(themedIcon("switch_on_hover"), QIcon::Off));
}

void tst_ThemedIcon::addedFilesAndPixmaps()
{
    QIcon icon = themedIcon("add");
    icon.addFile(m_folder.write("on.hvicon", filled("global.theme.color.Color_Red_6")), {},
                 QIcon::Normal, QIcon::On);
    QPixmap blue(20, 20);
    blue.fill(Qt::blue);
    icon.addPixmap(blue, QIcon::Disabled);
    COMPARE_COLOR(middle(icon, QIcon::Normal, QIcon::On), m_theme.theme()->color("Color_Red_6"));
    COMPARE_COLOR(middle(icon, QIcon::Disabled), QColor(Qt::blue));
    COMPARE_COLOR(middle(icon), m_theme.theme()->color("Color_W100"));
}

void tst_ThemedIcon::copiesAndStreams()
{
    const QIcon icon = themedIcon("lock");
    QByteArray data;
    QDataStream out(&data, QIODevice::WriteOnly);
    out << icon;
    QIcon read;
    QDataStream in(data);
    in >> read;
    QVERIFY(m_theme.setName("light"));
    QIcon copy = icon;
    copy.addPixmap(QPixmap(4, 4), QIcon::Disabled);
    for (const QIcon &one : {icon, copy, read})
        QVERIFY(one.pixmap(20, 20).toImage() == themedIcon("lock_off").pixmap(20, 20).toImage());
}

void tst_ThemedIcon::unknownName()
{
    QVERIFY(themedIcon("no_such_drawing").isNull());
    QVERIFY(themedIcon("").isNull());
    QVERIFY(themedIcon("no_such_drawing").pixmap(20, 20).isNull());
}

void tst_ThemedIcon::ownDrawing_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("color"); // a key of the theme or a name
    QTest::addColumn<double>("opacity");
    QTest::addColumn<QString>("warning");

    const auto row = [](const char *tag, const QByteArray &text, const char *color,
                        double opacity = 1, const char *warning = "") {
        QTest::newRow(tag) << text << QString(color) << opacity << QString(warning);
    };
    row("token", filled("global.theme.color.Color_Red_6"), "Color_Red_6");
    row("other-prefix", filled("my_app.theme.color.Color_Red_6"), "Color_Red_6");
    row("fixed-colour", filled("#123456"), "#123456");
    row("current-colour", filled("currentColor"), "Color_W100");
    row("style-attribute",
        svg("<rect width=\"20\" height=\"20\" style=\"fill:global.theme.color.Color_Red_6\"/>"),
        "Color_Red_6");
    row("style-element",
        svg("<style>.a{fill:global.theme.color.Color_Red_6}</style>"
            "<rect class=\"a\" width=\"20\" height=\"20\"/>"),
        "Color_Red_6");
    row("gradient",
        svg("<linearGradient id=\"g\"><stop offset=\"0\" "
            "stop-color=\"global.theme.color.Color_Red_6\"/>"
            "</linearGradient><rect width=\"20\" height=\"20\" fill=\"url(#g)\"/>"),
        "Color_Red_6");
    row("use",
        svg("<defs><rect id=\"r\" width=\"20\" height=\"20\"/></defs>"
            "<use xlink:href=\"#r\" fill=\"global.theme.color.Color_Red_6\"/>"),
        "Color_Red_6");
    row("translucent", filled("global.theme.color.Color_W40"), "Color_W40");
    row("translucent-twice",
        svg("<rect width=\"20\" height=\"20\" fill-opacity=\"0.5\" "
            "fill=\"global.theme.color.Color_W40\"/>"),
        "Color_W40", 0.5);
    row("translucent-style",
        svg("<rect width=\"20\" height=\"20\" style=\"fill:global.theme.color.Color_W40\"/>"),
        "Color_W40");
    QByteArray png;
    QBuffer buffer(&png);
    QImage red(20, 20, QImage::Format_RGB32);
    red.fill(Qt::red);
    QVERIFY(red.save(&buffer, "PNG"));
    row("picture-inside",
        svg("<image width=\"20\" height=\"20\" xlink:href=\"data:image/png;base64," + png.toBase64()
            + "\"/>"),
        "#ff0000");
    row("document-type",
        "<?xml version=\"1.0\"?><!DOCTYPE svg PUBLIC \"-//W3C//DTD SVG 1.1//EN\" "
        "\"http://www.w3.org/Graphics/SVG/1.1/DTD/svg11.dtd\">"
            + filled("global.theme.color.Color_Red_6"),
        "Color_Red_6");
    row("editor's-elements",
        svg("<e:view xmlns:e=\"urn:editor\"><e:deep/></e:view><metadata>x</metadata>"
            + QByteArray(square).replace("%1", "red")),
        "#ff0000");
    row("unknown-key", filled("global.theme.color.Nothing"), "WindowText", 1,
        "line 1: the theme has no colour \"Nothing\"; the palette's is taken");
}

void tst_ThemedIcon::ownDrawing()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, color);
    QFETCH(double, opacity);
    QFETCH(QString, warning);
    const QString path = m_folder.write(QString("own-%1.svg").arg(QTest::currentDataTag()), text);
    if (!warning.isEmpty())
        QTest::ignoreMessage(QtWarningMsg, qUtf8Printable(QString('"' + path + "\": " + warning)));
    QColor expected = color.startsWith('#') ? QColor(color)
        : color == "WindowText"             ? QApplication::palette().color(QPalette::WindowText)
                                            : m_theme.theme()->color(color);
    expected.setAlphaF(decltype(expected.alphaF())(expected.alphaF() * opacity));
    COMPARE_COLOR(middle(themedIcon(path)), expected);
    middle(themedIcon(path)); // told once
}

void tst_ThemedIcon::nothingFromOutside_data()
{
    QTest::addColumn<QByteArray>("text"); // %1 a picture's address, %2 one of the network
    QTest::addColumn<bool>("isTold");
    QTest::addColumn<bool>("isDrawn");

    const auto row = [](const char *tag, const QByteArray &content, bool isTold = true) {
        QTest::newRow(tag) << svg(content) << isTold << true;
    };
    row("image-file", "<image width=\"20\" height=\"20\" xlink:href=\"%1\"/>");
    row("image-path", "<image width=\"20\" height=\"20\" xlink:href=\"%3\"/>");
    row("image-file-like-an-element",
        "<image width=\"20\" height=\"20\" xlink:href=\"#red.png\"/>");
    row("image-plain-href", "<image width=\"20\" height=\"20\" href=\"%1\"/>");
    row("image-network", "<image width=\"20\" height=\"20\" xlink:href=\"%2\"/>");
    row("image-resource",
        "<image width=\"20\" height=\"20\" xlink:href=\":/hvthemeapp/icons/correct.hvicon\"/>");
    row("image-svg-inside",
        "<image width=\"20\" height=\"20\" xlink:href=\"data:image/svg+xml;base64,"
            + svg("<image xlink:href=\"x\"/>").toBase64() + "\"/>");
    row("use-file", "<use xlink:href=\"%1#a\"/>");
    row("import", "<style>@import url(%2);</style>");
    row("script", "<script xlink:href=\"%2\"/>", false);
    row("foreign", "<foreignObject><image xlink:href=\"%1\"/></foreignObject>", false);
    row("animation", "<animateColor attributeName=\"fill\" from=\"red\" to=\"red\" dur=\"1s\"/>",
        false);
    QTest::newRow("style-instruction")
        << "<?xml-stylesheet href=\"%2\"?>" + svg("") << false << true;
    QTest::newRow("external-entity")
        << "<!DOCTYPE svg [<!ENTITY e SYSTEM \"%1\">]>" + svg("<text>&e;</text>") << false << true;
}

// A red picture lies ready beside the drawing, and a server listens; neither is asked for.
void tst_ThemedIcon::nothingFromOutside()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, isTold);
    QImage red(20, 20, QImage::Format_RGB32);
    red.fill(Qt::red);
    QVERIFY(red.save(m_folder.filePath("red.png")) && red.save(m_folder.filePath("#red.png")));
    QVERIFY(QDir::setCurrent(m_folder.path()));
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    text.replace("%1", QUrl::fromLocalFile(m_folder.filePath("red.png")).toEncoded());
    text.replace(
        "%2",
        QByteArray("http://127.0.0.1:" + QByteArray::number(server.serverPort()) + "/red.png"));
    text.replace("%3", m_folder.filePath("red.png").toUtf8());
    const QString path = m_folder.write(QString("out-%1.svg").arg(QTest::currentDataTag()), text);
    if (isTold)
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("is left out"));
    const QPixmap pixmap = themedIcon(path).pixmap(20, 20);
    QVERIFY(isEmpty(pixmap));
    QVERIFY(!server.waitForNewConnection(20));
}

void tst_ThemedIcon::unusableDrawing_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("reason"); // a regular expression

    QTest::newRow("empty") << QByteArray() << "line 1: Premature end of document\\.";
    QTest::newRow("no-xml") << QByteArray("\x89PNG\r\n\0\0", 8) << "line 1: .+";
    QTest::newRow("unclosed") << QByteArray("<svg>\n<g>") << "line 2: .+";
    QTest::newRow("other-xml") << QByteArray("<html/>") << "line 1: <html> is no SVG";
    QTest::newRow("deep") << svg(QByteArray("<g>").repeated(200) + QByteArray("</g>").repeated(200))
                          << "line 1: more than 100 elements inside one another";
    QTest::newRow("huge") << svg(QByteArray(2 << 20, ' ')) << "it is larger than 1048576 bytes";
    QByteArray laughs = "<!DOCTYPE svg [<!ENTITY a \"ha\">";
    for (char c = 'b'; c < 'k'; ++c) {
        QByteArray reference = "&?;";
        reference[1] = char(c - 1);
        laughs += "<!ENTITY " + QByteArray(1, c) + " \"" + reference.repeated(10) + "\">";
    }
    QTest::newRow("billion-laughs") << laughs + "]>" + svg("<text>&j;</text>") << "line 1: .+";
}

void tst_ThemedIcon::unusableDrawing()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, reason);
    const QString path = m_folder.write(QString("bad-%1.svg").arg(QTest::currentDataTag()), text);
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression('^' + QRegularExpression::escape('"' + path + '"')
                                            + " is not drawn as an icon: " + reason + '$'));
    QElapsedTimer timer;
    timer.start();
    const QPixmap pixmap = themedIcon(path).pixmap(20, 20);
    QVERIFY(timer.elapsed() < 1000);
    QCOMPARE(pixmap.size(), QSize(20, 20));
    QVERIFY(!isEmpty(pixmap)); // the dashed square
    QVERIFY(!isEmpty(themedIcon(path).pixmap(40, 40)));
}

void tst_ThemedIcon::brokenPicture_data()
{
    QTest::addColumn<QByteArray>("content");

    QByteArray picture;
    QBuffer buffer(&picture);
    QImage noise(100, 100, QImage::Format_RGB32);
    for (int i = 0; i < 100 * 100; ++i)
        noise.setPixel(i % 100, i / 100, QRgb(i) * 7919U);
    QVERIFY(noise.save(&buffer, "PNG"));
    QTest::newRow("cut in its head") << picture.left(30);
    QTest::newRow("cut behind its head") << picture.left(60);
    QTest::newRow("cut at its end") << picture.left(picture.size() * 3 / 4);
    QTest::newRow("no picture") << QByteArray("text");
    QTest::newRow("empty") << QByteArray();
}

// The built-in drawing takes the place of what a theme has, and that is told once.
void tst_ThemedIcon::brokenPicture()
{
    QFETCH(QByteArray, content);
    const TemporaryFolder themes;
    const QString path = themes.write("broken.png", content);
    const QByteArray relative =
        QDir(QCoreApplication::applicationDirPath()).relativeFilePath(path).toUtf8();
    for (const QString name : {"default", "dark", "light"}) {
        QFile file(":/hvthemeapp/themes/" + name + ".theme");
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray images =
            "\n[ImageFiles]\nclose=" + relative + "\nrocket=" + relative + '\n';
        themes.write(name + ".theme", file.readAll() + (name == "default" ? QByteArray() : images));
    }
    const QImage drawn = themedIcon("close").pixmap(20, 20).toImage();
    CapturedMessages log;
    log.start();
    ApplicationTheme theme;
    theme.setFolder(themes.path());
    for (const char *name : {"light", "dark"})
        theme.setName(name);
    const QImage close = themedIcon("close").pixmap(20, 20).toImage();
    const QImage squares[] = {themedIcon("rocket").pixmap(20, 20).toImage(),
                              themedIcon(path).pixmap(20, 20).toImage()};
    log.stop();
    QCOMPARE(theme.name(), QString("dark"));
    const Messages messages = log.take();
    QStringList told;
    for (const Message &message : messages) {
        if (message.category == QLatin1String("hvtheme.app"))
            told.append(message.text);
    }
    QVERIFY2(told.size() == 1
                 && told.first().contains("broken.png\" is no image that can be shown: "),
             qPrintable(told.join('\n')));
    QVERIFY(messages.size() <= 2); // what the decoder says
    QVERIFY(close == drawn);
    for (const QImage &square : squares)
        QVERIFY(!isEmpty(QPixmap::fromImage(square)));
    QVERIFY(
        qApp->styleSheet().contains("titlebar-close-icon: url(:/hvthemeapp/icons/close.hvicon)"));
}

// It is shown as soon as it is there.
void tst_ThemedIcon::mendedPicture()
{
    const TemporaryFolder folder;
    const QString path = folder.write("later.png", "");
    const QIcon icon = themedIcon(path);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("later.png\" is no image"));
    QVERIFY(!isEmpty(icon.pixmap(20, 20)));
    QImage green(20, 20, QImage::Format_RGB32);
    green.fill(Qt::green);
    QVERIFY(green.save(path));
    COMPARE_COLOR(middle(icon), QColor(Qt::green));
}

void tst_ThemedIcon::tooMuchWork_data()
{
    QTest::addColumn<QByteArray>("text");

    const QByteArray shape = "<rect class=\"a\" width=\"20\" height=\"20\"/>";
    QTest::newRow("uses") << "<g id=\"a\">" + shape.repeated(1000) + "</g>"
            + QByteArray("<use xlink:href=\"#a\"/>").repeated(10000);
    QTest::newRow("rules") << "<style>" + QByteArray(".a{fill:red}").repeated(30000) + "</style>"
            + shape.repeated(5000);
}

// Each within a megabyte, and each for Qt a matter of half a minute.
void tst_ThemedIcon::tooMuchWork()
{
    QFETCH(QByteArray, text);
    const QString path =
        m_folder.write(QString("work-%1.svg").arg(QTest::currentDataTag()), svg(text));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("it has too many elements"));
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!isEmpty(themedIcon(path).pixmap(20, 20)));
    QVERIFY(timer.elapsed() < 2000);
}

// Qt itself follows it: ten shapes in ten levels.
void tst_ThemedIcon::repeatedUseTakesNoTime()
{
    QByteArray text = "<defs><rect id=\"u0\" width=\"1\" height=\"1\"/>";
    for (int i = 1; i < 10; ++i)
        text += "<g id=\"u" + QByteArray::number(i) + "\">"
            + QByteArray("<use xlink:href=\"#u" + QByteArray::number(i - 1) + "\"/>").repeated(10)
            + "</g>";
    const QString path = m_folder.write("uses.svg", svg(text + "</defs><use xlink:href=\"#u9\"/>"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("a \"use\" repeats \"u[1-9]\""));
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!isEmpty(themedIcon(path).pixmap(20, 20)));
    QVERIFY(timer.elapsed() < 1000);
}

// Nobody waits for what is written to it.
void tst_ThemedIcon::pipe()
{
    const QString path = m_folder.filePath("pipe.svg");
    QCOMPARE(mkfifo(qPrintable(path), 0600), 0);
    QTest::ignoreMessage(QtWarningMsg,
                         qPrintable('"' + path + "\" is not drawn as an icon: it is no file"));
    QVERIFY(!isEmpty(themedIcon(path).pixmap(20, 20))); // the dashed square
}

void tst_ThemedIcon::hugeDeclaredSize()
{
    const QString path =
        m_folder.write("large.hvicon",
                       "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"1000000\" "
                       "height=\"500000\" viewBox=\"0 0 20 10\">"
                       "<rect width=\"20\" height=\"10\" fill=\"red\"/></svg>");
    QCOMPARE(QPixmap(path).size(), QSize(1024, 512));
    QCOMPARE(themedIcon(path).actualSize({20, 20}), QSize(20, 10));
}

// A designer saves the drawing again; the next restyling shows it.
void tst_ThemedIcon::changedFile()
{
    const QString path = m_folder.write("changing.svg", filled("red"));
    const QIcon icon = themedIcon(path);
    COMPARE_COLOR(middle(icon), QColor(Qt::red));
    m_folder.write(
        "changing.svg",
        filled("blue").replace("width=\"20\"", "width=\"40\"").replace("0 0 20 20", "0 0 40 20"));
    QVERIFY(m_theme.setName("light"));
    COMPARE_COLOR(middle(icon), QColor(Qt::blue));
    QCOMPARE(icon.actualSize({40, 40}), QSize(40, 20));
}

void tst_ThemedIcon::byPath()
{
    const QString path = m_folder.write("own.hvicon", filled("global.theme.color.Color_Red_6"));
    const QColor red = m_theme.theme()->color("Color_Red_6");
    COMPARE_COLOR(middle(QIcon(path)), red);
    COMPARE_COLOR(middle(QPixmap(path)), red);
    QImageReader reader(path);
    QCOMPARE(reader.size(), QSize(20, 20));
    reader.setScaledSize({50, 60});
    QCOMPARE(reader.read().size(), QSize(50, 60));
    QCOMPARE(QPixmap(":/hvthemeapp/icons/add@2x.hvicon").size(), QSize(40, 40));
    QVERIFY(m_theme.setName("contrast"));
    COMPARE_COLOR(middle(QPixmap(path)), m_theme.theme()->color("Color_Red_6")); // not a stale one
}

void tst_ThemedIcon::styleSheet_data()
{
    QTest::addColumn<QString>("property");
    QTest::newRow("image") << "image: url(%1)";
    QTest::newRow("border-image") << "border-image: url(%1)";
    QTest::newRow("background-image") << "background-image: url(%1)";
}

void tst_ThemedIcon::styleSheet()
{
    QFETCH(QString, property);
    const QString path = m_folder.write("sheet.hvicon", filled("global.theme.color.Color_Red_6"));
    QLabel label;
    label.setFixedSize(20, 20);
    for (const char *look : {"dark", "contrast", "light"}) {
        QVERIFY(m_theme.setName(look));
        label.setStyleSheet(property.arg(path));
        COMPARE_COLOR(middle(label.grab()), m_theme.theme()->color("Color_Red_6"));
    }
}

QTEST_MAIN(tst_ThemedIcon)
#include "tst_themedicon.moc"
