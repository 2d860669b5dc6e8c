// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "quietplatform.h"

#include <colormath/contrast.h>
#include <hvtheme/theme.h>
#include <hvthemeapp/applicationtheme.h>

#include <QtTest>
#include <QtWidgets>

/*! What is no control and has to be seen all the same: frames, lines, signs, and icons that recede. */
class tst_FineLines : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void frame_data();
    void frame();
    void ownColors();
    void menuSeparator_data();
    void menuSeparator();
    void menuSection_data();
    void menuSection();
    void disabledIcon_data();
    void disabledIcon();
    void disabledArrow_data();
    void disabledArrow();
    void disabledBrand_data();
    void disabledBrand();
    void tabScroller_data();
    void tabScroller();
    void moreInToolBar_data();
    void moreInToolBar();

private:
    std::unique_ptr<QuietPlatform> m_quiet;
};

namespace
{

using Make = QWidget *(*)();

const char *const looks[] = {"dark", "light", "contrast"};

double leastContrast(const QString &look)
{
    return look == "contrast" ? 3 : 1.3;
}

QImage pictureOf(QWidget &window)
{
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.show();
    for (int round = 0; round < 3; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    }
    window.grab();
    return window.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

/*! The contrast to \a ground of what stands out most in \a area. */
double mostIn(const QImage &image, const QRect &area, const QColor &ground)
{
    double most = 1;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            most = qMax(most, ColorMath::contrastRatio(QColor(image.pixel(x, y)), ground));
    }
    return most;
}

/*! A style of a program's, with pictures for a light window. */
class DarkPixmaps : public QProxyStyle
{
public:
    using QProxyStyle::QProxyStyle;

    QPixmap standardPixmap(StandardPixmap pixmap, const QStyleOption *option,
                           const QWidget *widget) const override
    {
        if (pixmap != SP_ToolBarHorizontalExtensionButton && pixmap != SP_DialogOkButton)
            return QProxyStyle::standardPixmap(pixmap, option, widget);
        QPixmap dark(16, 16);
        dark.fill(QColor(1, 2, 3));
        return dark;
    }
};

QString number(double value)
{
    return QString::number(value, 'f', 2);
}

QColor pixelOf(const QPixmap &pixmap)
{
    return pixmap.toImage().pixelColor(pixmap.rect().center());
}

void addLooks()
{
    QTest::addColumn<QString>("look");
    for (const char *look : looks)
        QTest::newRow(look) << look;
}

} // namespace

Q_DECLARE_METATYPE(Make)

void tst_FineLines::initTestCase()
{
    m_quiet = std::make_unique<QuietPlatform>();
}

void tst_FineLines::frame_data()
{
    QTest::addColumn<QString>("look");
    QTest::addColumn<int>("style");

    const QPair<const char *, int> shapes[] = {
        {"HLine", QFrame::HLine},       {"VLine", QFrame::VLine},
        {"Box", QFrame::Box},           {"Panel", QFrame::Panel},
        {"WinPanel", QFrame::WinPanel}, {"StyledPanel", QFrame::StyledPanel}};
    const QPair<const char *, int> shadows[] = {
        {"plain", QFrame::Plain}, {"raised", QFrame::Raised}, {"sunken", QFrame::Sunken}};
    for (const char *look : looks) {
        for (const auto &[shape, shapeValue] : shapes) {
            for (const auto &[shadow, shadowValue] : shadows)
                QTest::addRow("%s-%s-%s", look, shape, shadow)
                    << look << (shapeValue | shadowValue);
        }
    }
}

void tst_FineLines::frame()
{
    QFETCH(QString, look);
    QFETCH(int, style);

    HV::ApplicationTheme theme;
    QVERIFY(theme.setName(look));
    QWidget window;
    window.resize(80, 60);
    QFrame frame(&window);
    frame.setFrameStyle(style);
    frame.setGeometry(20, 20, 40, 20);
    const QImage picture = pictureOf(window);
    const QColor ground(picture.pixel(3, 3));
    const bool isLine = frame.frameShape() == QFrame::HLine || frame.frameShape() == QFrame::VLine;
    const double seen = mostIn(picture, frame.geometry(), ground);
    QVERIFY2(seen >= leastContrast(look), qUtf8Printable(number(seen)));
    if (isLine || frame.frameShadow() == QFrame::Plain)
        return;
    // All four sides alike: no bevel whose lit side is white on a dark window.
    const QRect rect = frame.geometry();
    const QPoint middle = rect.center();
    const QRgb left = picture.pixel(rect.left(), middle.y());
    QCOMPARE(picture.pixel(rect.right(), middle.y()), left);
    QCOMPARE(picture.pixel(middle.x(), rect.top()), left);
    QCOMPARE(picture.pixel(middle.x(), rect.bottom()), left);
    QCOMPARE(QColor(picture.pixel(middle)), ground);
}

// A frame whose colours are the program's is drawn with its bevel.
void tst_FineLines::ownColors()
{
    HV::ApplicationTheme theme;
    QVERIFY(theme.setName("dark"));
    QWidget window;
    window.resize(80, 60);
    QFrame frame(&window);
    frame.setFrameStyle(QFrame::Panel | QFrame::Raised);
    frame.setGeometry(20, 20, 40, 20);
    QPalette palette = frame.palette();
    palette.setColor(QPalette::Light, Qt::green);
    palette.setColor(QPalette::Dark, Qt::blue);
    frame.setPalette(palette);
    const QImage picture = pictureOf(window);
    QCOMPARE(QColor(picture.pixel(20, 30)), QColor(Qt::green));
    QCOMPARE(QColor(picture.pixel(59, 30)), QColor(Qt::blue));
}

void tst_FineLines::menuSeparator_data()
{
    addLooks();
}

void tst_FineLines::menuSeparator()
{
    QFETCH(QString, look);

    HV::ApplicationTheme theme;
    QVERIFY(theme.setName(look));
    QMenu menu;
    menu.addAction("One");
    QAction *separator = menu.addSeparator();
    menu.addAction("Two");
    menu.resize(menu.sizeHint());
    const QImage picture = pictureOf(menu);
    const QRect area = menu.actionGeometry(separator);
    const QColor ground(picture.pixel(area.center().x(), area.top()));
    const double seen = mostIn(picture, area, ground);
    QVERIFY2(seen >= leastContrast(look), qUtf8Printable(number(seen)));
}

void tst_FineLines::menuSection_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("left-to-right") << Qt::LeftToRight;
    QTest::newRow("right-to-left") << Qt::RightToLeft;
}

// The title stands where reading begins, and the line does not run through it.
void tst_FineLines::menuSection()
{
    QFETCH(Qt::LayoutDirection, direction);

    QGuiApplication::setLayoutDirection(direction); // which painters follow
    const auto back = qScopeGuard([] { QGuiApplication::setLayoutDirection(Qt::LeftToRight); });
    HV::ApplicationTheme theme;
    QVERIFY(theme.setName("dark"));
    QMenu menu;
    menu.addAction("One of the longer texts");
    QAction *section = menu.addSection("MMMM");
    menu.addAction("Another");
    menu.resize(menu.sizeHint());
    const QImage picture = pictureOf(menu);
    const QRect area = menu.actionGeometry(section).adjusted(8, 2, -8, -2);
    const QColor ground(picture.pixel(area.topLeft()));
    QRect left(area.topLeft(), QSize(area.width() / 4, area.height()));
    QRect right = left;
    right.moveRight(area.right());
    const QRect title = direction == Qt::LeftToRight ? left : right;
    QRect aboveLine = direction == Qt::LeftToRight ? right : left;
    aboveLine.setBottom(area.center().y() - 1);
    QVERIFY(mostIn(picture, title, ground) >= 4.5);
    QCOMPARE(mostIn(picture, aboveLine, ground), 1.0);
    const int middle = area.center().y();
    const QRect line(direction == Qt::LeftToRight ? right.left() : left.left(), middle, 10, 1);
    QVERIFY(mostIn(picture, line, ground) >= 1.3);
}

void tst_FineLines::disabledIcon_data()
{
    QTest::addColumn<QString>("look");
    QTest::addColumn<QColor>("color");

    for (const char *look : looks) {
        QTest::addRow("%s-white", look) << look << QColor(Qt::white);
        QTest::addRow("%s-green", look) << look << QColor(60, 160, 60);
        QTest::addRow("%s-black", look) << look << QColor(Qt::black);
    }
}

// A program's own picture stands out less once its button cannot be used, on any ground.
void tst_FineLines::disabledIcon()
{
    QFETCH(QString, look);
    QFETCH(QColor, color);

    HV::ApplicationTheme theme;
    QVERIFY(theme.setName(look));
    QPixmap drawing(16, 16);
    drawing.fill(color);
    const auto contrastOf = [&](bool enabled) {
        QWidget window;
        QToolButton button(&window);
        button.setAutoRaise(true);
        button.setIcon(QIcon(drawing));
        button.setIconSize({16, 16});
        button.setEnabled(enabled);
        button.setGeometry(10, 10, 30, 30);
        window.resize(50, 50);
        const QImage picture = pictureOf(window);
        return ColorMath::contrastRatio(QColor(picture.pixel(25, 25)), QColor(picture.pixel(3, 3)));
    };
    const double enabled = contrastOf(true);
    const double disabled = contrastOf(false);
    QVERIFY2(disabled <= enabled, qUtf8Printable(number(enabled) + " " + number(disabled)));
    if (enabled > 4.5)
        QVERIFY2(disabled >= 1.3, qUtf8Printable(number(disabled)));
}

void tst_FineLines::disabledArrow_data()
{
    QTest::addColumn<QString>("look");
    QTest::addColumn<Make>("make");

    const QPair<const char *, Make> controls[] = {
        {"QSpinBox", [] { return static_cast<QWidget *>(new QSpinBox); }},
        {"QTimeEdit", [] { return static_cast<QWidget *>(new QTimeEdit); }},
        {"QComboBox", [] { return static_cast<QWidget *>(new QComboBox); }},
        {"QDateEdit-with-calendar",
         [] {
             auto *edit = new QDateEdit;
             edit->setCalendarPopup(true);
             return static_cast<QWidget *>(edit);
         }},
        {"QToolButton", [] {
             auto *button = new QToolButton;
             button->setArrowType(Qt::DownArrow);
             return static_cast<QWidget *>(button);
         }}};
    for (const char *look : looks) {
        for (const auto &[name, make] : controls)
            QTest::addRow("%s-%s", look, name) << look << make;
    }
}

// The arrows of a field are as faint as its text once it cannot be used.
void tst_FineLines::disabledArrow()
{
    QFETCH(QString, look);
    QFETCH(Make, make);

    HV::ApplicationTheme theme;
    QVERIFY(theme.setName(look));
    const auto contrastOf = [&](bool enabled) {
        QWidget window;
        window.resize(160, 60);
        QWidget *control = make();
        control->setParent(&window);
        control->setEnabled(enabled);
        control->setGeometry(20, 10, 100, 30);
        if (qobject_cast<QToolButton *>(control))
            control->setGeometry(90, 10, 30, 30);
        const QImage picture = pictureOf(window);
        const QRect arrow(98, 14, 18, 22);
        return mostIn(picture, arrow, QColor(picture.pixel(96, 25)));
    };
    const double enabled = contrastOf(true);
    const double disabled = contrastOf(false);
    QVERIFY2(enabled > 6 && disabled > 1.3 && disabled < 0.7 * enabled,
             qUtf8Printable(number(enabled) + " " + number(disabled)));
}

void tst_FineLines::disabledBrand_data()
{
    QTest::addColumn<QString>("look");
    QTest::addColumn<Make>("make");
    QTest::addColumn<bool>("hasBrand"); // while it is enabled

    const Make toolButton = [] {
        auto *button = new QToolButton;
        button->setText("Checked");
        button->setAutoRaise(true);
        button->setCheckable(true);
        button->setChecked(true);
        return static_cast<QWidget *>(button);
    };
    const Make tabs = [] {
        auto *bar = new QTabBar;
        bar->addTab("One");
        bar->addTab("Two");
        return static_cast<QWidget *>(bar);
    };
    const Make toolBox = [] {
        auto *box = new QToolBox;
        box->addItem(new QLabel("Page"), "One");
        return static_cast<QWidget *>(box);
    };
    const Make innerWindow = [] {
        auto *area = new QMdiArea;
        area->addSubWindow(new QLabel("Inner"))->resize(120, 60);
        return static_cast<QWidget *>(area);
    };
    const Make flat = [] {
        auto *button = new QPushButton("Flat");
        button->setFlat(true);
        button->setAutoDefault(false);
        return static_cast<QWidget *>(button);
    };
    for (const char *look : looks) {
        QTest::addRow("%s-checked-tool-button", look) << look << toolButton << true;
        QTest::addRow("%s-tab", look) << look << tabs << true;
        QTest::addRow("%s-tool-box", look) << look << toolBox << true;
        QTest::addRow("%s-inner-window", look) << look << innerWindow << true;
        QTest::addRow("%s-flat-button", look) << look << flat << false;
    }
}

// What cannot be used has neither the brand, nor an edge that it had not before.
void tst_FineLines::disabledBrand()
{
    QFETCH(QString, look);
    QFETCH(Make, make);
    QFETCH(bool, hasBrand);

    HV::ApplicationTheme theme;
    QVERIFY(theme.setName(look));
    const QColor highlight = theme.palette().color(QPalette::Highlight);
    const auto edge = theme.theme()->values().value("Color_Brand_6").value<QColor>();
    QRgb corner[2] = {0, 0};
    for (const bool enabled : {true, false}) {
        QWidget window;
        window.resize(200, 120);
        QWidget *control = make();
        control->setParent(&window);
        control->setEnabled(enabled);
        control->setGeometry(10, 10, 180, 100);
        const QImage picture = pictureOf(window);
        int count = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const QColor pixel(picture.pixel(x, y));
                count += pixel == edge || pixel == highlight ? 1 : 0;
            }
        }
        QCOMPARE(count > 0, enabled && hasBrand);
        corner[enabled ? 1 : 0] = picture.pixel(12, 60); // on its left edge
    }
    if (!hasBrand)
        QCOMPARE(corner[0], corner[1]);
}

void tst_FineLines::tabScroller_data()
{
    addLooks();
}

// What lies below the buttons that scroll does not shine through them.
void tst_FineLines::tabScroller()
{
    QFETCH(QString, look);

    HV::ApplicationTheme theme;
    QVERIFY(theme.setName(look));
    const auto pictureWith = [&](const QString &text) {
        QWidget window;
        window.resize(200, 60);
        QTabBar bar(&window);
        bar.setUsesScrollButtons(true);
        bar.setElideMode(Qt::ElideNone);
        for (int i = 0; i < 8; ++i)
            bar.addTab(text);
        bar.setGeometry(0, 10, 200, 30);
        const QImage picture = pictureOf(window);
        QList<QImage> pictures;
        const auto buttons = bar.findChildren<QToolButton *>();
        for (const QToolButton *button : buttons) {
            const QRect area(button->mapTo(&window, QPoint()), button->size());
            if (button->isVisible())
                pictures << picture.copy(area.adjusted(2, 2, -2, -2));
        }
        return pictures;
    };
    const QList<QImage> letters = pictureWith("MMMMMMMM");
    QCOMPARE(letters.size(), 2);
    QCOMPARE(letters, pictureWith("........"));
}

void tst_FineLines::moreInToolBar_data()
{
    QTest::addColumn<QString>("look");
    QTest::addColumn<bool>("inMainWindow");
    QTest::addColumn<bool>("ownStyle");

    for (const char *look : looks) {
        QTest::addRow("%s-main-window", look) << look << true << false;
        QTest::addRow("%s-elsewhere", look) << look << false << false;
        QTest::addRow("%s-style-of-the-program", look) << look << true << true;
    }
}

// The button for what a tool bar has no room for says so.
void tst_FineLines::moreInToolBar()
{
    QFETCH(QString, look);
    QFETCH(bool, inMainWindow);
    QFETCH(bool, ownStyle);

    const QString former = QApplication::style()->objectName();
    if (ownStyle)
        QApplication::setStyle(new DarkPixmaps(QStyleFactory::create("fusion")));
    const auto back = qScopeGuard([&] {
        if (ownStyle)
            QApplication::setStyle(former);
    });
    QMainWindow window;
    auto *bar = new QToolBar;
    for (int i = 0; i < 12; ++i)
        bar->addAction("Action");
    if (inMainWindow) {
        window.addToolBar(bar);
    } else {
        auto *page = new QWidget;
        (new QVBoxLayout(page))->addWidget(bar);
        window.setCentralWidget(page);
    }
    HV::ApplicationTheme theme;
    QVERIFY(theme.setName(look));
    window.resize(200, 100);
    const QImage picture = pictureOf(window);
    const auto *more = bar->findChild<QToolButton *>("qt_toolbar_ext_button");
    QVERIFY(more && more->isVisible());
    const QRect area = QRect(more->mapTo(&window, QPoint()), more->size()).adjusted(2, 3, -2, -3);
    const QColor ground(picture.pixel(area.topLeft()));
    QRect sign;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            if (ColorMath::contrastRatio(QColor(picture.pixel(x, y)), ground) >= 3)
                sign |= QRect(x, y, 1, 1);
        }
    }
    QVERIFY2(sign.width() >= 4 && sign.height() >= 4,
             qUtf8Printable(QString("%1 by %2").arg(sign.width()).arg(sign.height())));
    if (ownStyle) // and the others, asked for either way
        QCOMPARE(pixelOf(QApplication::style()->standardPixmap(QStyle::SP_DialogOkButton)),
                 QColor(1, 2, 3));
    QVERIFY(pixelOf(QApplication::style()->standardPixmap(QStyle::SP_TrashIcon))
            != QColor(1, 2, 3));
}

QTEST_MAIN(tst_FineLines)
#include "tst_finelines.moc"
