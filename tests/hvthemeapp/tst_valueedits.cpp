// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

// An edited value reaches what it concerns and nothing else, and the result is that of a switch.

#include "quietplatform.h"
#include "samplewindows.h"
#include "widgetzoo.h"

#include <analysis/theme/themeeditor.h>
#include <hvtheme/theme.h>
#include <hvthemeapp/applicationtheme.h>

#include <QApplication>
#include <QScreen>
#include <QSettings>
#include <QtTest>

#include <memory>

using HV::ApplicationTheme;

namespace
{

using MakeWindow = QWidget *(*)();

auto resolveMaskOf(const QPalette &palette)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return palette.resolveMask();
#else
    return palette.resolve();
#endif
}

// What a user sees of a widget, and what a program can ask of it.
struct WidgetLook {
    QString name;
    QPalette palette;
    QFont font;
    QRect geometry;
    QSize sizeHint;

    bool operator==(const WidgetLook &other) const
    {
        return name == other.name && palette == other.palette
            && resolveMaskOf(palette) == resolveMaskOf(other.palette) && font == other.font
            && geometry == other.geometry && sizeHint == other.sizeHint;
    }
};

struct WindowLook {
    QVector<WidgetLook> widgets;
    QImage onScreen; // as it has been painted
    QImage painted; // anew
};

WindowLook lookOf(QWidget *window)
{
    for (int round = 0; round < 3; ++round)
        QCoreApplication::processEvents();
    WindowLook look;
    const auto all = QList<QWidget *>{window} + window->findChildren<QWidget *>();
    for (const QWidget *widget : all)
        look.widgets.append({QLatin1String(widget->metaObject()->className()) % QLatin1Char('#')
                                 % widget->objectName(),
                             widget->palette(), widget->font(), widget->geometry(),
                             widget->sizeHint()});
    look.onScreen = window->screen()->grabWindow(window->winId()).toImage();
    look.painted = window->grab().toImage();
    return look;
}

// The first difference, or an empty text.
QString difference(const WindowLook &one, const WindowLook &other)
{
    if (one.widgets.size() != other.widgets.size())
        return "widgets";
    for (int i = 0; i < one.widgets.size(); ++i) {
        if (!(one.widgets.at(i) == other.widgets.at(i)))
            return one.widgets.at(i).name;
    }
    if (one.painted != other.painted)
        return "picture";
    return one.onScreen == other.onScreen ? QString() : QString("picture on the screen");
}

QStringList keysOf(const QString &file, const QStringList &groups)
{
    QStringList keys;
    QSettings settings(file, QSettings::IniFormat);
    for (const QString &group : groups) {
        settings.beginGroup(group);
        for (const QString &key : settings.childKeys())
            keys.append(group + '/' + key);
        settings.endGroup();
    }
    return keys;
}

// Counts what reaches a widget.
class Counter : public QObject
{
public:
    explicit Counter(QWidget *widget) { widget->installEventFilter(this); }

    int styleChanges = 0;
    int paints = 0;

    bool eventFilter(QObject *, QEvent *event) override
    {
        styleChanges += event->type() == QEvent::StyleChange;
        paints += event->type() == QEvent::Paint;
        return false;
    }
};

} // namespace

Q_DECLARE_METATYPE(MakeWindow)

class tst_ValueEdits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void asASwitch_data();
    void asASwitch();
    void reaches_data();
    void reaches();
    void hovered();
    void sheetOfTheProgram();

private:
    bool edit(const QString &key, const QString &value);
    QString fileOf(const QString &key) const;

    std::unique_ptr<QuietPlatform> m_quiet;
    std::unique_ptr<ApplicationTheme> m_theme;
    QStringList m_ownKeys;
    QStringList m_keys; // of both files
};

void tst_ValueEdits::initTestCase()
{
    m_quiet = std::make_unique<QuietPlatform>();
    QApplication::setCursorFlashTime(0);
    QApplication::setEffectEnabled(Qt::UI_General, false);
}

void tst_ValueEdits::cleanupTestCase()
{
    m_quiet.reset();
}

void tst_ValueEdits::init()
{
    m_theme = std::make_unique<ApplicationTheme>();
    QVERIFY(m_theme->setName("dark"));
    const QStringList groups{"Palettes", "Colors", "Integers"};
    m_ownKeys = keysOf(m_theme->folder() + "/dark.theme", groups);
    m_keys = m_ownKeys + keysOf(m_theme->folder() + "/default.theme", groups);
    m_keys.removeDuplicates();
    m_keys.sort();
    QVERIFY(m_keys.size() > 100);
}

QString tst_ValueEdits::fileOf(const QString &key) const
{
    return m_theme->folder() + (m_ownKeys.contains(key) ? "/dark.theme" : "/default.theme");
}

// Each edit is made to the files as they are on disk.
bool tst_ValueEdits::edit(const QString &key, const QString &value)
{
    ThemeEditor editor;
    QString error;
    return editor.setValue(fileOf(key), key, value, ThemeEditor::Step::New, &error)
        && m_theme->setUnsavedTexts(editor.contents());
}

void tst_ValueEdits::asASwitch_data()
{
    QTest::addColumn<MakeWindow>("make");
    QTest::addColumn<int>("number");

    int number = 0;
    for (const Zoo::Page &page : Zoo::pages())
        QTest::newRow(page.name) << page.make << number++;
    for (const Zoo::Page &page : Zoo::dialogs()) {
        // Two switches of a wizard to the same values differ: it makes parts of itself anew.
        if (!QByteArray(page.name).startsWith("wizard"))
            QTest::newRow(page.name) << page.make << number++;
    }
    QTest::newRow("views in tabs") << &windowOfViews << number++;
    QTest::newRow("bars and docks") << &windowOfBars << number++;
    QTest::newRow("own style sheets") << &windowWithOwnStyleSheets << number++;
    QTest::newRow("own palettes") << &windowWithOwnPalettes << number++;
    QTest::newRow("own fonts") << &windowWithOwnFonts << number++;
    QTest::newRow("own style") << &windowWithOwnStyle << number++;
    QTest::newRow("hidden widgets") << &windowWithHiddenWidgets << number++;
}

// Each row has other keys, and each key several rows; the variable tries every key in every row.
void tst_ValueEdits::asASwitch()
{
    QFETCH(MakeWindow, make);
    QFETCH(int, number);
    constexpr int step = 17;
    const bool isWhole = qEnvironmentVariableIsSet("HVTHEME_EVERY_EDIT");
    const std::unique_ptr<QWidget> window(make());
    const auto bars = window->findChildren<QProgressBar *>();
    for (QProgressBar *bar : bars)
        bar->setMaximum(qMax(bar->maximum(), bar->minimum() + 1)); // one that is busy moves
    window->show();
    lookOf(window.get());
    m_theme->restyleAgain(); // the first look of a window need not be that of a switch
    lookOf(window.get());
    int edits = 0;
    for (int i = isWhole ? 0 : number % step; i < m_keys.size(); i += isWhole ? 1 : step) {
        const QString &key = m_keys.at(i);
        const QString value = key.startsWith("Integers") ? "21" : "#aa00ff";
        QVERIFY2(edit(key, value), qPrintable(key));
        const WindowLook edited = lookOf(window.get());
        m_theme->restyleAgain();
        const QString differs = difference(edited, lookOf(window.get()));
        QVERIFY2(differs.isEmpty(), qPrintable(key + ": " + differs));
        ++edits;
    }
    QVERIFY(edits > 3);
    QVERIFY(m_theme->setUnsavedTexts({}));
    const WindowLook back = lookOf(window.get());
    m_theme->restyleAgain();
    QCOMPARE(difference(back, lookOf(window.get())), QString());
}

void tst_ValueEdits::reaches_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QStringList>("restyled");
    QTest::addColumn<QStringList>("painted");

    const QStringList all{"box", "button", "edit", "general", "large", "window"};
    QTest::newRow("nobody's") << "Palettes/Green_1"
                              << "#aa00ff" << QStringList() << QStringList();
    QTest::newRow("colour") << "Colors/AssistButtonBackgroundNormal"
                            << "#aa00ff" << QStringList()
                            << QStringList{"button", "general", "window"};
    QTest::newRow("of a property")
        << "Colors/GeneralButtonBackgroundNormal"
        << "#aa00ff" << QStringList() << QStringList{"general", "window"};
    QTest::newRow("of a state") << "Colors/AccentHoverColor"
                                << "#aa00ff" << QStringList() << QStringList();
    QTest::newRow("same value") << "Integers/FontSize_XXL"
                                << "21" << QStringList() << QStringList();
    QTest::newRow("size") << "Integers/FontSize_XL"
                          << "21" << QStringList{"large", "window"} << all;
    QTest::newRow("palette") << "Colors/DefaultForegroundColor"
                             << "#aa00ff" << all << all;
    QTest::newRow("entry") << "Palettes/Bg_2"
                           << "#aa00ff" << all << all;
}

void tst_ValueEdits::reaches()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    QWidget window;
    window.setObjectName("window");
    auto *layout = new QVBoxLayout(&window);
    const auto add = [&](QWidget *widget, const char *name) {
        widget->setObjectName(name);
        layout->addWidget(widget);
        return widget;
    };
    add(new QPushButton("button"), "button");
    add(new QPushButton("general"), "general")->setProperty("style", "general");
    add(new QLabel("large"), "large")->setProperty("fontSize", "XL");
    add(new QLineEdit("edit"), "edit");
    add(new QCheckBox("box"), "box");
    window.show();
    lookOf(&window);

    std::vector<std::pair<QString, std::unique_ptr<Counter>>> counters;
    const auto all = QList<QWidget *>{&window} + window.findChildren<QWidget *>();
    for (QWidget *widget : all) {
        if (!widget->objectName().isEmpty() && !widget->objectName().startsWith("qt_"))
            counters.emplace_back(widget->objectName(), std::make_unique<Counter>(widget));
    }
    QVERIFY(edit(key, value));
    QCoreApplication::processEvents();
    QStringList restyled;
    QStringList painted;
    for (const auto &[name, counter] : counters) {
        if (counter->styleChanges)
            restyled.append(name);
        if (counter->paints)
            painted.append(name);
    }
    restyled.sort();
    painted.sort();
    QTEST(restyled, "restyled");
    QTEST(painted, "painted");
}

// What the pointer is on looks hovered at once.
void tst_ValueEdits::hovered()
{
    QPushButton button("button");
    button.setProperty("style", "general");
    button.show();
    lookOf(&button);
    button.setAttribute(Qt::WA_UnderMouse);
    button.setMouseTracking(true); // a button believes in the mouse only once it has moved there
    QMouseEvent move(QEvent::MouseMove, button.rect().center(), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(&button, &move);
    QVERIFY(edit("Colors/AccentHoverColor", "#aa00ff"));
    const WindowLook edited = lookOf(&button);
    QCOMPARE(edited.onScreen.pixelColor(button.width() / 2, 4), QColor("#aa00ff"));
    m_theme->restyleAgain();
    QCOMPARE(difference(edited, lookOf(&button)), QString());
}

// A style sheet that the program has set beside the look stays, and what it changes is no edit.
void tst_ValueEdits::sheetOfTheProgram()
{
    QLabel label("label");
    label.show();
    lookOf(&label);
    qApp->setStyleSheet(qApp->styleSheet() + "QLabel { background-color: #00ff00 }");
    QVERIFY(edit("Colors/AssistButtonBackgroundNormal", "#aa00ff"));
    const WindowLook edited = lookOf(&label);
    QCOMPARE(edited.onScreen.pixelColor(1, 1), QColor("#00ff00"));
    m_theme->restyleAgain();
    QCOMPARE(difference(edited, lookOf(&label)), QString());
}

QTEST_MAIN(tst_ValueEdits)
#include "tst_valueedits.moc"
