// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "distincttheme.h"

#include <gallery/copylabel.h>
#include <gallery/gallerywindow.h>
#include <gallery/pages.h>
#include <gallery/qtoptions.h>
#include <gallery/selector.h>

#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QStatusBar>
#include <QtTest>

#include <memory>

using namespace Gallery;

namespace
{

/*! Puts back what messages went to. */
class FormerMessages
{
    Q_DISABLE_COPY(FormerMessages)

public:
    FormerMessages()
        : m_former(qInstallMessageHandler(nullptr))
    {
        qInstallMessageHandler(m_former);
    }
    ~FormerMessages() { qInstallMessageHandler(m_former); }

private:
    const QtMessageHandler m_former;
};

} // namespace

class tst_Gallery : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void selectorParts_data();
    void selectorParts();
    void themeNamesOfAFolder();
    void chooserSwitches();
    void everyPageOpens();
    void badThemeLeavesTheLastGoodOne_data();
    void badThemeLeavesTheLastGoodOne();
    void opensWithoutAnyTheme();
    void messagesNamePlaces_data();
    void messagesNamePlaces();
    void clickCopies();
    void eyes_data();
    void eyes();
    void eyesSeeWhatOpens_data();
    void eyesSeeWhatOpens();
    void colorsPageFollowsTheTheme();
    void options_data();
    void options();
    void optionsOfQt_data();
    void optionsOfQt();

private:
    Options optionsFor(const QString &page) const;
    QColor buttonColor(const GalleryWindow &window) const;

    std::unique_ptr<DistinctTheme> m_files;
};

void tst_Gallery::initTestCase()
{
    QApplication::setStyle(QStringLiteral("fusion"));
    m_files = std::make_unique<DistinctTheme>();
}

Options tst_Gallery::optionsFor(const QString &page) const
{
    Options options;
    options.source = {m_files->folder(), QStringLiteral("default"), {}};
    options.pages = QStringList{page};
    return options;
}

QColor tst_Gallery::buttonColor(const GalleryWindow &window) const
{
    const auto buttons = window.page()->findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (button->property("style") == QLatin1String("general"))
            return button->grab().toImage().pixelColor(4, button->height() / 2);
    }
    return {};
}

void tst_Gallery::selectorParts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("widgetClass");
    QTest::addColumn<QString>("property"); // name=value
    QTest::addColumn<QString>("subControl");
    QTest::addColumn<QStringList>("states");

    // clang-format off
    QTest::newRow("class") << "QLineEdit" << "QLineEdit" << "" << "" << QStringList();
    QTest::newRow("any-class") << "*[fontSize=XS]" << "" << "fontSize=XS" << "" << QStringList();
    QTest::newRow("no-class") << "[checkStyle=halfChecked]:disabled" << "" << "checkStyle=halfChecked" << "" << QStringList{"disabled"};
    QTest::newRow("states") << "QPushButton[switchStyle=general]:checked:hover" << "QPushButton" << "switchStyle=general" << "" << QStringList{"checked", "hover"};
    QTest::newRow("sub-control") << "QSpinBox::up-button:pressed" << "QSpinBox" << "" << "up-button" << QStringList{"pressed"};
    QTest::newRow("single-colon") << "QSlider[sliderStyle=red]:groove:horizontal" << "QSlider" << "sliderStyle=red" << "groove" << QStringList{"horizontal"};
    QTest::newRow("property-last") << "QSlider::groove:horizontal[sliderStyle=hue]" << "QSlider" << "sliderStyle=hue" << "groove" << QStringList{"horizontal"};
    QTest::newRow("descendant") << "QCalendarWidget QTableView::item:selected" << "QCalendarWidget" << "" << "item" << QStringList{"selected"};
    // clang-format on
}

void tst_Gallery::selectorParts()
{
    QFETCH(QString, text);
    const Selector selector = Selector::fromText(text);
    QTEST(selector.widgetClass, "widgetClass");
    QString property;
    for (const auto &[name, value] : selector.properties)
        property += name + QLatin1Char('=') + value;
    QTEST(property, "property");
    QTEST(selector.subControl, "subControl");
    QTEST(selector.states, "states");
}

void tst_Gallery::themeNamesOfAFolder()
{
    QTemporaryDir folder;
    const auto write = [&](const char *name, const QByteArray &bytes) {
        QFile file(folder.filePath(QString::fromLatin1(name)));
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    };
    QCOMPARE(themeNames(folder.path()), QStringList());
    QVERIFY(write("default.theme", "[Palettes]\nW100=fff\n"));
    QCOMPARE(themeNames(folder.path()), QStringList({"default"}));
    QVERIFY(write("night.theme", "[Colors]\nA=000\n"));
    QVERIFY(write("notes.txt", "no theme"));
    QVERIFY(write("Dusk.THEME", "[Colors]\nA=000\n")); // which the library would not find
    QCOMPARE(themeNames(folder.path()), QStringList({"night"})); // what they share is no look
    QVERIFY(write("default.theme", "[Colors]\nA=fff\n"));
    QCOMPARE(themeNames(folder.path()), QStringList({"default", "night"}));
    QCOMPARE(themeNames(folder.filePath(QStringLiteral("missing"))), QStringList());
}

void tst_Gallery::chooserSwitches()
{
    // A default that has no colours leaves all of them to the named files.
    QFile::rename(m_files->folder() + QLatin1String("/default.theme"),
                  m_files->folder() + QLatin1String("/all.theme"));
    m_files->writeFile(QStringLiteral("second"), {{"GeneralButtonBackgroundNormal", "#123456"}});
    QFile empty(m_files->folder() + QLatin1String("/default.theme"));
    QVERIFY(empty.open(QIODevice::WriteOnly));
    empty.write("[General]\nThemeName=base\n");
    empty.close();

    Options options = optionsFor(QStringLiteral("buttons"));
    options.source.themeName = QStringLiteral("all");
    GalleryWindow window(options);
    window.show();
    QCOMPARE(buttonColor(window), m_files->color(QStringLiteral("GeneralButtonBackgroundNormal")));
    auto *themes = window.findChild<QComboBox *>(QStringLiteral("themes"));
    QCOMPARE(themes->count(), 2);
    QTest::keyClick(themes, Qt::Key_Down);
    QCOMPARE(themes->currentText(), QStringLiteral("second"));
    QCOMPARE(buttonColor(window), QColor(0x123456));

    m_files = std::make_unique<DistinctTheme>();
}

void tst_Gallery::everyPageOpens()
{
    GalleryWindow window(optionsFor(QStringLiteral("application")));
    window.show();
    auto *list = window.findChild<QListWidget *>(QStringLiteral("pages"));
    QCOMPARE(list->count(), pages().size());
    for (int row = 0; row < list->count(); ++row) {
        list->setCurrentRow(row);
        QVERIFY(window.page() != nullptr);
        QVERIFY(!window.page()->grab().isNull());
    }
    QCoreApplication::processEvents();
    QCOMPARE(window.messages().rowCount(), 0);
}

void tst_Gallery::badThemeLeavesTheLastGoodOne_data()
{
    QTest::addColumn<QString>("bad");
    QTest::addColumn<int>("problem");
    QTest::addColumn<QString>("message");

    // clang-format off
    QTest::newRow("no-default-file") << "default" << int(Problem::ThemesFolder) << "default.theme\" is missing or cannot be read. .*--themes";
    QTest::newRow("no-such-theme") << "theme" << int(Problem::ThemeName) << "No theme named \"night\": .*Choose one of: default";
    QTest::newRow("broken-image") << "image" << int(Problem::Image) << "add.png\" does not decode: .*Save it again";
    // clang-format on
}

void tst_Gallery::badThemeLeavesTheLastGoodOne()
{
    QFETCH(QString, bad);
    QFETCH(int, problem);
    QFETCH(QString, message);
    Options options = optionsFor(QStringLiteral("buttons"));
    const QString night = m_files->folder() + QLatin1String("/night.theme");
    if (bad == QLatin1String("theme")) {
        QFile file(night);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("ThemeName=night\n") > 0);
        file.close();
        options.source.themeName = QStringLiteral("night");
    }
    const FormerMessages former; // of QtTest
    GalleryWindow window(options);
    window.show();
    const QColor good = m_files->color(QStringLiteral("GeneralButtonBackgroundNormal"));
    QCOMPARE(buttonColor(window), good);

    const QString defaultFile = m_files->folder() + QLatin1String("/default.theme");
    if (bad == QLatin1String("default")) {
        QVERIFY(QFile::remove(defaultFile));
    } else if (bad == QLatin1String("theme")) {
        QVERIFY(QFile::remove(night));
    } else {
        QFile image(m_files->imagePath(QStringLiteral("add")));
        QVERIFY(image.open(QIODevice::WriteOnly));
        image.write("no image");
    }
    QTest::ignoreMessage(QtCriticalMsg, QRegularExpression(message));
    QCOMPARE(int(window.reload()), problem);
    // What the test has changed the window sees by itself, too, if events come before it goes.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    QCOMPARE(buttonColor(window), good);
    QCOMPARE(window.statusBar()->currentMessage(),
             QStringLiteral("This is the last good theme; see the messages"));
    QTRY_COMPARE(window.messages().rowCount(), 1);
    const QString shown = window.messages().index(0).data().toString();
    QVERIFY(shown.startsWith(QLatin1String("critical: ")));
    QVERIFY(shown.contains(QRegularExpression(message)));

    m_files = std::make_unique<DistinctTheme>();
}

void tst_Gallery::opensWithoutAnyTheme()
{
    Options options = optionsFor(QStringLiteral("colours"));
    options.source.themesFolder = QStringLiteral("/nowhere/themes");
    QTest::ignoreMessage(
        QtCriticalMsg, QRegularExpression("The themes folder \"/nowhere/themes\" does not exist"));
    GalleryWindow window(options);
    window.show();
    QVERIFY(window.page() != nullptr);
    QTRY_COMPARE(window.messages().rowCount(), 1);
    QCOMPARE(window.statusBar()->currentMessage(),
             QStringLiteral("No theme could be loaded; see the messages"));
}

void tst_Gallery::messagesNamePlaces_data()
{
    QTest::addColumn<QByteArray>("addition");
    QTest::addColumn<QString>("expected"); // with %1, %2 for the first lines of the two files

    // clang-format off
    QTest::newRow("exists") << QByteArray("[Colors]\nTextColor=#fff\n") << "critical: The Color Key [ \"TextColor\" ] is exists. (default.theme:3, night.theme:2)";
    QTest::newRow("bad-color") << QByteArray("[Colors]\nOther=redd\n") << "warning: Color \"redd\" is neither a named color or a valid color \"#redd\" (night.theme:2)";
    QTest::newRow("gradient") << QByteArray("[Gradients]\nGlow=1\nGlow\\size=2\nGlow\\1\\pos=0\n") << "critical: The Gradient Key [ \"Glow\" ]'s value is invalid. (night.theme:2)";
    QTest::newRow("image") << QByteArray("[ImageFiles]\nclose=nowhere.png\n") << "warning: \"close\" \t \"PATH/nowhere.png\"  is not exist! (night.theme:2)";
    // clang-format on
}

void tst_Gallery::messagesNamePlaces()
{
    QFETCH(QByteArray, addition);
    QFETCH(QString, expected);
    QTemporaryDir folder;
    QFile base(folder.filePath(QStringLiteral("default.theme")));
    QVERIFY(base.open(QIODevice::WriteOnly));
    base.write("ThemeName=base\n[Colors]\nTextColor=#111\n[Palettes]\n");
    base.close();
    QFile night(folder.filePath(QStringLiteral("night.theme")));
    QVERIFY(night.open(QIODevice::WriteOnly));
    night.write(addition);
    night.close();
    const QtMessageHandler previous = // the library says much more of so poor a theme
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    QStringList shown;
    {
        Options options;
        options.source = {folder.path(), QStringLiteral("night"), {}};
        options.pages = QStringList{"labels"};
        GalleryWindow window(options);
        QCoreApplication::processEvents();
        for (int row = 0; row < window.messages().rowCount(); ++row)
            shown << window.messages().index(row).data().toString();
    }
    qInstallMessageHandler(previous);
    expected.replace(QLatin1String("PATH"), QCoreApplication::applicationDirPath());
    expected.replace(QLatin1Char('\t'), QLatin1String("\\x09"));
    QVERIFY2(shown.contains(expected), qPrintable(shown.join(QLatin1Char('\n'))));
}

void tst_Gallery::clickCopies()
{
    GalleryWindow window(optionsFor(QStringLiteral("buttons")));
    window.show();
    CopyLabel *caption = nullptr;
    const auto captions = window.page()->findChildren<CopyLabel *>();
    for (CopyLabel *each : captions) {
        if (each->text() == QLatin1String("QPushButton[style=general]"))
            caption = each;
    }
    QVERIFY(caption != nullptr);
    QTest::mouseClick(caption, Qt::LeftButton);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("QPushButton[style=general]"));
    QTest::mouseClick(caption, Qt::LeftButton, Qt::ShiftModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(),
             QStringLiteral("widget->setProperty(\"style\", \"general\");"));
    QTest::keyClick(caption, Qt::Key_Return);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("QPushButton[style=general]"));
}

void tst_Gallery::eyes_data()
{
    QTest::addColumn<int>("row");

    QTest::newRow("normal") << 0;
    QTest::newRow("protan") << 1;
    QTest::newRow("deutan") << 2;
    QTest::newRow("tritan") << 3;
}

// What the window shows is what it showed before, pixel by pixel as the eye sees it.
void tst_Gallery::eyes()
{
    QFETCH(int, row);
    Options options = optionsFor(QStringLiteral("surfaces"));
    GalleryWindow window(options);
    window.show();
    const auto shown = [&] {
        return window.centralWidget()->grab().toImage().convertToFormat(QImage::Format_RGB32);
    };
    const auto *page = window.page();
    const QRect specimens(page->mapTo(window.centralWidget(), QPoint(0, 0)),
                          page->visibleRegion().boundingRect().size().boundedTo({600, 400}));
    QVERIFY(!specimens.isEmpty());
    const QImage before = shown().copy(specimens);
    auto *eyes = window.findChild<QComboBox *>(QStringLiteral("eyes"));
    QCOMPARE(eyes->currentIndex(), 0);
    eyes->setCurrentIndex(row);
    const QImage seen = ColorMath::seenBy(ColorMath::Vision(row), before);
    QCOMPARE(shown().copy(specimens), seen.convertToFormat(QImage::Format_RGB32));
    QCOMPARE(seen.convertToFormat(QImage::Format_RGB32) == before, row == 0);
    eyes->setCurrentIndex(0);
    QCOMPARE(shown().copy(specimens), before);
}

void tst_Gallery::eyesSeeWhatOpens_data()
{
    eyes_data();
}

// Windows that open while one sees with other eyes, such as menus, and those that are open already.
void tst_Gallery::eyesSeeWhatOpens()
{
    QFETCH(int, row);
    GalleryWindow window(optionsFor(QStringLiteral("surfaces")));
    window.show();
    QWidget opened;
    opened.setStyleSheet(QStringLiteral("background: #d02020"));
    const auto picture = [&] {
        return opened.grab().toImage().convertToFormat(QImage::Format_RGB32);
    };
    const QImage before = picture();
    const QImage seen =
        ColorMath::seenBy(ColorMath::Vision(row), before).convertToFormat(QImage::Format_RGB32);
    QCOMPARE(seen == before, row == 0);
    auto *eyes = window.findChild<QComboBox *>(QStringLiteral("eyes"));
    opened.show();
    eyes->setCurrentIndex(row);
    QCOMPARE(picture(), seen);
    opened.hide();
    eyes->setCurrentIndex(0);
    QCOMPARE(picture(), before);
    eyes->setCurrentIndex(row);
    opened.setGraphicsEffect(nullptr); // as one that did not exist yet
    opened.show();
    QCOMPARE(picture(), seen);
}

void tst_Gallery::colorsPageFollowsTheTheme()
{
    GalleryWindow window(optionsFor(QStringLiteral("colours")));
    window.show();
    const auto shows = [&](const QString &value) {
        const auto labels = window.page()->findChildren<QLabel *>();
        return std::any_of(labels.cbegin(), labels.cend(),
                           [&](const QLabel *label) { return label->text().startsWith(value); });
    };
    QVERIFY(shows(m_files->color(QStringLiteral("EditBorderColor")).name()));
    QVERIFY(!shows(QStringLiteral("#123456")));
    m_files->writeFile(QStringLiteral("default"), {{"EditBorderColor", "#123456"}});
    QTRY_VERIFY(shows(QStringLiteral("#123456")));
}

void tst_Gallery::options_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("error");

    // clang-format off
    QTest::newRow("none") << QStringList() << "";
    QTest::newRow("unknown-option") << QStringList{"--colour"} << "Unknown option 'colour'.";
    QTest::newRow("unknown-page") << QStringList{"--page", "knobs"} << "No page named \"knobs\".*application, plain";
    QTest::newRow("form-page-without-form") << QStringList{"--page", "form"} << "No page named \"form\"";
    QTest::newRow("form-page") << QStringList{"--page", "form", "--ui", "a.ui"} << "";
    QTest::newRow("scale-too-large") << QStringList{"--scale", "9"} << "--scale takes a number from 1 to 4";
    QTest::newRow("scale-no-number") << QStringList{"--scale", "big"} << "--scale takes a number from 1 to 4";
    QTest::newRow("stray-argument") << QStringList{"dark"} << "Unexpected argument \"dark\"";
    QTest::newRow("several-in-the-window") << QStringList{"--theme", "dark,light"} << "with --screenshot only";
    QTest::newRow("scale-in-the-window") << QStringList{"--scale", "2"} << "--scale makes sense with --screenshot only";
    QTest::newRow("join-in-the-window") << QStringList{"--join"} << "--join makes sense with --screenshot only";
    QTest::newRow("join-screenshots") << QStringList{"--screenshot", "d", "--join", "--scale", "2"} << "";
    QTest::newRow("empty-screenshot") << QStringList{"--screenshot", ""} << "--screenshot needs the name of a folder";
    QTest::newRow("vision") << QStringList{"--vision", "tritan"} << "";
    QTest::newRow("unknown-vision") << QStringList{"--vision", "cat"} << "No vision named \"cat\". Choose one of: normal, protan, deutan, tritan.";
    QTest::newRow("no-application") << QStringList{"--app-dir", "/nowhere"} << "The application's folder \"/nowhere\" does not exist";
    QTest::newRow("application") << QStringList{"--app-dir", "/"} << "";
    QTest::newRow("several-screenshots") << QStringList{"--screenshot", "d", "--theme", "dark,light", "--theme", "contrast"} << "";
    // clang-format on
}

void tst_Gallery::options()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, error);
    const Options options =
        readOptions(QStringList{"hvtheme-gallery"} + arguments, QStringLiteral("/themes"));
    if (error.isEmpty())
        QCOMPARE(options.error, QString());
    else
        QVERIFY2(options.error.contains(QRegularExpression(error)), qPrintable(options.error));
}

void tst_Gallery::optionsOfQt_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("left");

    // clang-format off
    QTest::newRow("none") << QStringList{"--theme", "dark"} << QStringList{"--theme", "dark"};
    QTest::newRow("with-value") << QStringList{"-style", "windows", "--theme", "dark"} << QStringList{"--theme", "dark"};
    QTest::newRow("with-equal-sign") << QStringList{"-style=windows", "-stylesheet=a.qss"} << QStringList();
    QTest::newRow("without-value") << QStringList{"-reverse", "--theme", "dark"} << QStringList{"--theme", "dark"};
    QTest::newRow("two-dashes") << QStringList{"--reverse", "--qwindowgeometry", "800x600"} << QStringList();
    QTest::newRow("value-missing") << QStringList{"--join", "-style"} << QStringList{"--join"};
    QTest::newRow("ours") << QStringList{"-v", "--ui", "style"} << QStringList{"-v", "--ui", "style"};
    QTest::newRow("nobodys") << QStringList{"--styles", "reverse"} << QStringList{"--styles", "reverse"};
    // clang-format on
}

void tst_Gallery::optionsOfQt()
{
    QFETCH(QStringList, arguments);
    QFETCH(QStringList, left);
    const QStringList name{"-reverse"}; // of a program, and no option
    QCOMPARE(withoutOptionsOfQt(name + arguments), name + left);
}

QTEST_MAIN(tst_Gallery)

#include "tst_gallery.moc"
