// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "qtversion.h"
#include "widgetzoo.h"

#include <hvthemeapp/applicationtheme.h>
#include <hvthemeapp/forwardingpaintdevice.h>
#include <hvthemeapp/paintforwarding.h>

#include <QtTest>
#include <QtWidgets>

Q_DECLARE_METATYPE(std::function<void(QPainter &)>)

// What goes through the device comes out as if it had been painted at once, pixel by pixel.
class tst_ForwardingPaintDevice : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void pages_data();
    void pages();
    void painting_data();
    void painting();
    void textColors();
    void linesBelowTexts();
    void closed();
    void cleanupTestCase();

private:
    HV::ApplicationTheme m_theme;
};

namespace
{

class KeptColors : public TextColors
{
public:
    QColor textColor(const QPainter &, const QRectF &rect, const QColor &color) override
    {
        extents << rect;
        return color;
    }

    QVector<QRectF> extents;
};

class RedColors : public TextColors
{
public:
    QColor textColor(const QPainter &, const QRectF &, const QColor &) override { return Qt::red; }
};

QImage image(const QSize &size, qreal scale = 1)
{
    QImage made(size * scale, QImage::Format_ARGB32_Premultiplied);
    made.setDevicePixelRatio(scale);
    made.fill(Qt::white);
    return made;
}

// What paint() paints, at once and through a device.
template<typename Paint>
QImage painted(Paint paint, const QSize &size, qreal scale, TextColors *colors)
{
    QImage made = image(size, scale);
    QPainter target(&made);
    if (!colors) {
        paint(target);
        return made;
    }
    ForwardingPaintDevice device(&target, colors);
    QPainter painter(&device);
    paint(painter);
    painter.end();
    target.end();
    return made;
}

// Number of pixels of which a channel differs by more than two of 255 steps, which is what rounding
// gradients twice can do.
int differences(const QImage &left, const QImage &right)
{
    int count = left.size() == right.size() ? 0 : 1000000;
    for (int y = 0; count < 1000000 && y < left.height(); ++y) {
        for (int x = 0; x < left.width(); ++x) {
            const QRgb a = left.pixel(x, y);
            const QRgb b = right.pixel(x, y);
            const int most = std::max(
                {qAbs(qRed(a) - qRed(b)), qAbs(qGreen(a) - qGreen(b)), qAbs(qBlue(a) - qBlue(b))});
            count += most > 2 ? 1 : 0;
        }
    }
    return count;
}

int countOf(const QImage &picture, const QColor &color)
{
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            count += picture.pixelColor(x, y) == color ? 1 : 0;
    }
    return count;
}

QtMessageHandler ofQtTest = nullptr;

// What the platform without a screen cannot do says nothing of the paint.
void withoutThePlatform(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (!message.startsWith("This plugin does not support"))
        ofQtTest(type, context, message);
}

QFont blockFont()
{
    QFont font;
    font.setPixelSize(20);
    font.setStyleStrategy(QFont::NoAntialias);
    return font;
}

} // namespace

void tst_ForwardingPaintDevice::initTestCase()
{
    QVERIFY(m_theme.setName("dark"));
    ofQtTest = qInstallMessageHandler(withoutThePlatform);
}

void tst_ForwardingPaintDevice::pages_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<double>("scale");

    const auto &pages = Zoo::pages();
    for (int i = 0; i < pages.size(); ++i) {
        for (const double scale : {1.0, 1.5, 2.0})
            QTest::addRow("%s-%g", pages.at(i).name, scale) << i << scale;
    }
}

void tst_ForwardingPaintDevice::pages()
{
    QFETCH(int, page);
    QFETCH(double, scale);
    const std::unique_ptr<QWidget> window(Zoo::pages().at(page).make());
    Zoo::settle(window.get());
    const auto paint = [&](QPainter &painter) { window->render(&painter); };
    painted(paint, window->size(), scale, nullptr); // for what is made at the first paint
    const QImage expected = painted(paint, window->size(), scale, nullptr);
    KeptColors colors;
    PaintForwarding forwarding(&colors);
    forwarding.install();
    const QImage seen = painted(paint, window->size(), scale, nullptr);
    QVERIFY(!forwarding.widget());
    QVERIFY(!colors.extents.isEmpty());
    // Between whole pixels the line below a text may come to lie on either side.
    const bool isBetween = scale == 1.5 || (scale != 1 && QtDifference::smoothsLinesOfTexts);
    const int most = isBetween ? seen.width() * seen.height() / 1000 : 0;
    const int count = differences(seen, expected);
    QVERIFY2(count <= most, qPrintable(QString::number(count)));
}

// NOLINTNEXTLINE(readability-function-size): a table, one row a case
void tst_ForwardingPaintDevice::painting_data()
{
    using Paint = std::function<void(QPainter &)>;
    QTest::addColumn<Paint>("paint");
    QTest::addColumn<int>("smoothed"); // pixels at the edges of grounds of texts

    const auto row = [](const char *name, const Paint &paint, int smoothed = 0) {
        QTest::newRow(name) << paint << smoothed;
    };
    row("clips", [](QPainter &painter) {
        painter.setClipRect(10, 10, 60, 60);
        painter.fillRect(0, 0, 100, 100, Qt::blue);
        painter.save();
        painter.translate(5, 5);
        painter.setClipRegion(QRegion(20, 20, 30, 30, QRegion::Ellipse), Qt::IntersectClip);
        painter.fillRect(0, 0, 100, 100, Qt::green);
        painter.restore();
        painter.fillRect(0, 0, 100, 20, Qt::red);
        painter.setClipping(false);
        painter.fillRect(90, 90, 5, 5, Qt::black);
    });
    row("shapes", [](QPainter &painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.rotate(10);
        painter.setPen(QPen(Qt::darkGreen, 3, Qt::DashLine));
        painter.setBrush(QBrush(Qt::blue, Qt::Dense4Pattern));
        painter.drawEllipse(10, 10, 50, 30);
        painter.drawPolygon(QPolygon({{5, 60}, {40, 70}, {20, 95}}));
        painter.drawPolyline(QPolygonF({{50.5, 60}, {80, 70}, {60, 95}}));
        painter.drawPoint(3, 3);
        painter.drawLine(QLineF(0, 0, 99.5, 50));
        painter.setPen(Qt::NoPen); // dashes of it begin elsewhere
        painter.drawRoundedRect(60, 5, 30, 30, 8, 8);
    });
    row("pictures", [](QPainter &painter) {
        QPixmap pixmap(16, 16);
        pixmap.fill(QColor(200, 0, 0, 120));
        painter.drawPixmap(QRect(0, 0, 40, 40), pixmap, QRect(2, 2, 10, 10));
        painter.drawTiledPixmap(QRect(45, 0, 50, 50), pixmap, QPoint(3, 3));
        painter.setOpacity(0.5);
        painter.drawImage(QRectF(0, 50, 33, 33), pixmap.toImage());
    });
    row(
        "modes",
        [](QPainter &painter) {
            painter.fillRect(0, 0, 100, 100, QGradient(QGradient::WarmFlame));
            painter.setCompositionMode(QPainter::CompositionMode_Multiply);
            painter.fillRect(10, 10, 50, 50, Qt::cyan);
            painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
            painter.setBackgroundMode(Qt::OpaqueMode);
            painter.setBackground(Qt::yellow);
            painter.drawText(10, 80, "opaque");
            painter.setBrushOrigin(3, 4);
            painter.fillRect(60, 60, 30, 30, QBrush(Qt::red, Qt::DiagCrossPattern));
        },
        QtDifference::smoothsLinesOfTexts ? 240 : 0);
    row("texts", [](QPainter &painter) {
        painter.setFont(QFont("DejaVu Sans", 11));
        painter.drawText(QRect(0, 0, 100, 40), Qt::TextWordWrap, "two words below one");
        QStaticText text("<b>static</b>");
        painter.drawStaticText(0, 45, text);
        painter.scale(1.3, 1.3);
        QFont font = painter.font();
        font.setUnderline(true);
        painter.setFont(font);
        painter.drawText(3, 60, "underlined");
    });
}

void tst_ForwardingPaintDevice::painting()
{
    using Paint = std::function<void(QPainter &)>;
    QFETCH(Paint, paint);
    QFETCH(int, smoothed);
    for (const double scale : {1.0, 2.0}) {
        KeptColors colors;
        const QImage expected = painted(paint, {100, 100}, scale, nullptr);
        const QImage seen = painted(paint, {100, 100}, scale, &colors);
        QVERIFY(countOf(expected, Qt::white) < expected.width() * expected.height());
        const int count = differences(seen, expected);
        QVERIFY2(count <= (scale == 1 ? 0 : smoothed), qPrintable(QString::number(count)));
    }
}

// The extents are those of what is seen, also of glyphs that come without measures.
void tst_ForwardingPaintDevice::textColors()
{
    QRawFont rawFont = QRawFont::fromFont(blockFont());
    QGlyphRun glyphs;
    glyphs.setRawFont(rawFont);
    glyphs.setGlyphIndexes(rawFont.glyphIndexesForString("HH"));
    glyphs.setPositions({{20, 50}, {40, 50}});
    KeptColors colors;
    painted(
        [&](QPainter &painter) {
            painter.setFont(blockFont());
            painter.drawText(20, 30, "HH");
            painter.drawGlyphRun({0, 0}, glyphs);
        },
        {100, 100}, 1, &colors);
    QCOMPARE(colors.extents.size(), 2);
    QVERIFY(colors.extents.at(0).contains(QRectF(22, 18, 10, 10)));
    QVERIFY(QRectF(18, 8, 50, 30).contains(colors.extents.at(0)));
    QVERIFY(colors.extents.at(1).contains(QRectF(24, 40, 26, 8)));
    QVERIFY(QRectF(12, 28, 60, 30).contains(colors.extents.at(1)));
}

void tst_ForwardingPaintDevice::linesBelowTexts()
{
    RedColors colors;
    const QColor other(0, 0, 200);
    const auto paint = [&](QPainter &painter) {
        QFont font = blockFont();
        font.setUnderline(true);
        painter.setFont(font);
        painter.setPen(Qt::black);
        painter.drawText(10, 30, "HH");
        painter.setPen(other);
        painter.drawLine(0, 60, 99, 60);
        painter.fillRect(0, 80, 100, 5, Qt::white);
        painter.setPen(Qt::black);
        painter.drawLine(0, 90, 99, 90); // the text's colour, but no line of it
    };
    const QImage seen = painted(paint, {100, 100}, 1, &colors);
    QVERIFY(countOf(seen.copy(0, 0, 100, 50), Qt::red) > 50);
    QCOMPARE(countOf(seen.copy(0, 0, 100, 50), Qt::black), 0);
    QCOMPARE(countOf(seen, other), 100);
    QCOMPARE(countOf(seen, Qt::black), 100);
}

void tst_ForwardingPaintDevice::closed()
{
    QImage made = image({50, 50});
    const QImage before = made.copy();
    QPainter target(&made);
    KeptColors colors;
    ForwardingPaintDevice device(&target, &colors);
    QPainter painter(&device);
    device.engine()->setOpen(false);
    painter.fillRect(0, 0, 50, 50, Qt::red);
    painter.drawLine(0, 0, 50, 50);
    painter.drawText(10, 10, "text");
    painter.setClipRect(10, 10, 5, 5);
    device.engine()->setOpen(true);
    painter.fillRect(0, 0, 50, 50, Qt::blue);
    painter.end();
    target.end();
    QCOMPARE(countOf(made, Qt::red), 0);
    QCOMPARE(countOf(made, Qt::blue), 25); // its state is known all the same
    QCOMPARE(countOf(made, Qt::white), 2500 - 25);
}

void tst_ForwardingPaintDevice::cleanupTestCase()
{
    qInstallMessageHandler(ofQtTest);
}

QTEST_MAIN(tst_ForwardingPaintDevice)
#include "tst_forwardingpaintdevice.moc"
