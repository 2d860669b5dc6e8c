// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "textrecorder.h"

#include <colormath/contrast.h>
#include <hvthemeapp/applicationtheme.h>

#include <QtTest>
#include <QtWidgets>

// Text in colours of the application's own: what is seen of it with HV::ApplicationTheme::liftsText.
class tst_LiftedText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void offAtFirst();
    void lifted_data();
    void lifted();
    void unlifted_data();
    void unlifted();
    void strengthOfGreys();
    void strongerThemeLiftsMore();
    void underline();
    void notForPrinters();
    void everyPaintOnce();
    void inEffectsAndScenes_data();
    void inEffectsAndScenes();
    void recorded();
    void changesAreSeen();
    void endsWithTheTheme();

private:
    std::unique_ptr<HV::ApplicationTheme> m_theme;
};

namespace
{

const QString block(3, QChar(0x2588)); // letters without an edge that is smoothed

QFont blockFont()
{
    QFont font;
    font.setPixelSize(24);
    font.setStyleStrategy(QFont::NoAntialias);
    return font;
}

struct Seen {
    QColor text;
    QColor ground;
    double contrast() const { return ColorMath::contrastRatio(text, ground); }
};

// Text is at the middle of the left quarter, and the ground alone at the right edge.
Seen seenOf(QWidget *widget, const QPoint &at = QPoint(-1, -1))
{
    const QImage image = widget->grab().toImage();
    const QPoint place = at.x() < 0 ? QPoint(20, widget->height() / 2) : at;
    return {image.pixelColor(place), image.pixelColor(widget->width() - 6, place.y())};
}

// Paints a text in one colour on a brush, as programs do in paint events.
class Painting : public QWidget
{
public:
    Painting(const QColor &text, const QBrush &ground, double opacity = 1)
        : m_text(text)
        , m_ground(ground)
        , m_opacity(opacity)
    {
        resize(200, 40);
        setFont(blockFont());
    }

    int paints = 0;

protected:
    void paintEvent(QPaintEvent *) override
    {
        ++paints;
        QPainter painter(this);
        painter.fillRect(rect(), m_ground);
        painter.setOpacity(m_opacity);
        painter.setPen(m_text);
        painter.drawText(QRect(4, 0, 100, height()), Qt::AlignVCenter, block);
    }

private:
    QColor m_text;
    QBrush m_ground;
    double m_opacity;
};

std::unique_ptr<QWidget> labelWithPalette(const QColor &color)
{
    auto label = std::make_unique<QLabel>(block);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, color);
    label->setPalette(palette);
    label->setFont(blockFont());
    label->resize(200, 40);
    return label;
}

std::unique_ptr<QWidget> richLabel(const QColor &color)
{
    auto label = std::make_unique<QLabel>("<font color=" + color.name() + '>' + block + "</font>");
    label->setFont(blockFont());
    label->resize(200, 40);
    return label;
}

std::unique_ptr<QWidget> itemOfList(const QColor &color)
{
    auto list = std::make_unique<QListWidget>();
    list->setFont(blockFont());
    list->setFocusPolicy(Qt::NoFocus);
    list->resize(200, 60);
    list->addItem(block);
    list->item(0)->setForeground(color);
    list->setCurrentItem(nullptr);
    return list;
}

std::unique_ptr<QWidget> documentOf(const QColor &color)
{
    auto edit = std::make_unique<QTextEdit>();
    edit->setFont(blockFont());
    edit->setReadOnly(true);
    edit->resize(200, 50);
    edit->setTextColor(color);
    edit->setPlainText(block);
    return edit;
}

using Make = std::function<std::unique_ptr<QWidget>(const QColor &)>;

QPixmap noise()
{
    QImage image(200, 40, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y,
                           qRgb((x * 37 + y * 11) % 256, (x * 71 + y * 5) % 256, (x * y) % 256));
    }
    return QPixmap::fromImage(image);
}

} // namespace

Q_DECLARE_METATYPE(Make)

void tst_LiftedText::init()
{
    m_theme = std::make_unique<HV::ApplicationTheme>();
    m_theme->setKeepsFonts(true);
    QVERIFY(m_theme->setName("dark"));
    m_theme->setLiftsText(true);
}

void tst_LiftedText::offAtFirst()
{
    const HV::ApplicationTheme theme;
    QVERIFY(!theme.liftsText());
    m_theme->setLiftsText(false);
    Painting painting(Qt::darkBlue, Qt::black);
    QCOMPARE(seenOf(&painting).text, QColor(Qt::darkBlue));
}

void tst_LiftedText::lifted_data()
{
    QTest::addColumn<Make>("make");
    QTest::addColumn<QColor>("color");

    const QColor red(128, 0, 0);
    const QColor blue(0, 0, 160);
    QTest::newRow("palette-of-a-label") << Make(labelWithPalette) << red;
    QTest::newRow("rich-text") << Make(richLabel) << blue;
    QTest::newRow("item") << Make(itemOfList) << red;
    QTest::newRow("document") << Make(documentOf) << blue;
    const auto painted = [](const QBrush &ground) {
        return Make([=](const QColor &color) { return std::make_unique<Painting>(color, ground); });
    };
    QLinearGradient slight(0, 0, 0, 40);
    slight.setColorAt(0, QColor(30, 30, 34));
    slight.setColorAt(1, QColor(34, 34, 38));
    QTest::newRow("paint-event") << painted(QColor(20, 20, 20)) << red;
    QTest::newRow("slight-gradient") << painted(slight) << red;
    QTest::newRow("bright-on-bright") << painted(QColor(230, 230, 180)) << QColor(255, 200, 0);
    QTest::newRow("translucent") << painted(QColor(20, 20, 20)) << QColor(0, 0, 255, 200);
}

void tst_LiftedText::lifted()
{
    QFETCH(Make, make);
    QFETCH(QColor, color);
    const std::unique_ptr<QWidget> widget = make(color);
    const auto *list = qobject_cast<QListWidget *>(widget.get());
    const QPoint place = list ? list->visualItemRect(list->item(0)).center() : QPoint();
    const Seen seen = seenOf(widget.get(), list ? QPoint(20, place.y()) : QPoint(-1, -1));
    const QByteArray told = (seen.text.name() + " on " + seen.ground.name()).toLatin1();
    // A gradient is darker or lighter where the ground is read.
    QVERIFY2(seen.contrast() >= 4.4, told.constData());
    QVERIFY2(seen.contrast() < 6, told.constData());
    const int turned = qAbs(seen.text.hslHue() - color.hslHue());
    QVERIFY2(qMin(turned, 360 - turned) < 25, told.constData());

    m_theme->setLiftsText(false);
    QVERIFY(seenOf(widget.get(), list ? QPoint(20, place.y()) : QPoint(-1, -1)).contrast() < 4.4);
}

void tst_LiftedText::unlifted_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QBrush>("ground");
    QTest::addColumn<double>("opacity");

    const QColor blue(0, 0, 160);
    QTest::newRow("ground-that-suffices") << blue << QBrush(Qt::yellow) << 1.0;
    QTest::newRow("picture") << blue << QBrush(noise()) << 1.0;
    QLinearGradient steep(0, 0, 0, 40);
    steep.setColorAt(0, Qt::black);
    steep.setColorAt(1, Qt::white);
    QTest::newRow("steep-gradient") << blue << QBrush(steep) << 1.0;
    QTest::newRow("a-trace") << QColor(0, 0, 255, 20) << QBrush(QColor(20, 20, 20)) << 1.0;
    QTest::newRow("fading") << blue << QBrush(QColor(20, 20, 20)) << 0.5;
}

void tst_LiftedText::unlifted()
{
    QFETCH(QColor, color);
    QFETCH(QBrush, ground);
    QFETCH(double, opacity);
    Painting painting(color, ground, opacity);
    const QImage seen = painting.grab().toImage();
    m_theme->setLiftsText(false);
    QCOMPARE(seen, painting.grab().toImage());
}

// Greys were chosen for paper: black is for what matters, and a light one for what does not.
void tst_LiftedText::strengthOfGreys()
{
    const QColor ground(20, 20, 20);
    double last = 100;
    for (const int grey : {0, 60, 90, 110}) {
        Painting painting(QColor(grey, grey, grey), ground);
        const double contrast = seenOf(&painting).contrast();
        QVERIFY2(contrast >= 4.5 && contrast < last, qPrintable(QString::number(contrast)));
        last = contrast;
    }
    Painting black(Qt::black, ground);
    QVERIFY(seenOf(&black).contrast() > 12);
}

void tst_LiftedText::strongerThemeLiftsMore()
{
    QVERIFY(m_theme->setName("contrast"));
    Painting painting(QColor(128, 0, 0), QColor(20, 20, 20));
    QVERIFY(seenOf(&painting).contrast() >= 7);
    painting.setEnabled(false);
    const double disabled = seenOf(&painting).contrast();
    QVERIFY(disabled >= 3 && disabled < 4.5);
}

void tst_LiftedText::underline()
{
    QTextEdit edit;
    edit.setReadOnly(true);
    edit.setHtml("<a href=x style=\"color:#000080\">link</a> <u style=\"color:#800000\">word</u>");
    edit.resize(200, 50);
    const QImage image = edit.grab().toImage();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            QVERIFY(color != QColor(0, 0, 128) && color != QColor(128, 0, 0));
        }
    }
}

// Only what is a picture in the end is looked at.
void tst_LiftedText::notForPrinters()
{
    Painting painting(QColor(0, 0, 160), QColor(20, 20, 20));
    QPicture lifted;
    painting.render(&lifted);
    m_theme->setLiftsText(false);
    QPicture plain;
    painting.render(&plain);
    QCOMPARE(QByteArray(lifted.data(), int(lifted.size())),
             QByteArray(plain.data(), int(plain.size())));
}

void tst_LiftedText::everyPaintOnce()
{
    Painting painting(QColor(0, 0, 160), QColor(20, 20, 20));
    painting.grab();
    QCOMPARE(painting.paints, 1);
    painting.grab(QRect(50, 10, 20, 20));
    QCOMPARE(painting.paints, 2);
}

void tst_LiftedText::inEffectsAndScenes_data()
{
    QTest::addColumn<bool>("isInScene");
    QTest::addColumn<bool>("hasEffect");

    QTest::newRow("effect") << false << true;
    QTest::newRow("scene") << true << false;
}

void tst_LiftedText::inEffectsAndScenes()
{
    QFETCH(bool, isInScene);
    QFETCH(bool, hasEffect);
    auto page = std::make_unique<QWidget>();
    page->resize(220, 60);
    page->setAutoFillBackground(true);
    if (hasEffect) {
        auto *effect = new QGraphicsOpacityEffect;
        effect->setOpacity(0.999); // none that can be seen, but one that is applied
        page->setGraphicsEffect(effect);
    }
    auto *painting = new Painting(QColor(128, 0, 0), QColor(20, 20, 20));
    painting->setParent(page.get());
    painting->move(0, 0);
    QGraphicsScene scene;
    QGraphicsView view(&scene);
    QWidget *shown = page.get();
    if (isInScene) {
        scene.addWidget(page.release());
        view.setFrameStyle(QFrame::NoFrame);
        view.setAlignment(Qt::AlignTop | Qt::AlignLeft);
        view.resize(220, 60);
        shown = &view;
    }
    const QImage image = shown->grab().toImage();
    const double contrast =
        ColorMath::contrastRatio(image.pixelColor(20, 20), image.pixelColor(180, 20));
    QVERIFY2(contrast >= 4.4, qPrintable(QString::number(contrast)));
}

// The measure of legibility sees what a reader sees.
void tst_LiftedText::recorded()
{
    const std::unique_ptr<QWidget> label = labelWithPalette(QColor(128, 0, 0));
    const auto contrast = [&] {
        TextRecorder recorder(label->size());
        recorder.record(label.get());
        return recorder.texts().isEmpty() ? 0 : recorder.texts().constFirst().contrast;
    };
    const double lifted = contrast();
    QVERIFY2(lifted >= 4.5 && lifted < 5, qPrintable(QString::number(lifted)));
    m_theme->setLiftsText(false);
    const double plain = contrast();
    QVERIFY2(plain > 1 && plain < 3, qPrintable(QString::number(plain)));
}

void tst_LiftedText::changesAreSeen()
{
    QSignalSpy spy(m_theme.get(), &HV::ApplicationTheme::liftsTextChanged);
    m_theme->setLiftsText(true);
    QCOMPARE(spy.count(), 0);
    m_theme->setLiftsText(false);
    QCOMPARE(spy.count(), 1);
    QVERIFY(!m_theme->liftsText());
}

void tst_LiftedText::endsWithTheTheme()
{
    Painting painting(QColor(0, 0, 160), QColor(20, 20, 20));
    QVERIFY(seenOf(&painting).text != QColor(0, 0, 160));
    m_theme.reset();
    QCOMPARE(seenOf(&painting).text, QColor(0, 0, 160));
}

QTEST_MAIN(tst_LiftedText)
#include "tst_liftedtext.moc"
