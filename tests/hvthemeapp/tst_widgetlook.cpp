// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "quietplatform.h"
#include "textrecorder.h"
#include "widgetzoo.h"

#include <colormath/contrast.h>
#include <gallery/heldstate.h>
#include <hvtheme/theme.h>
#include <hvtheme/theming.h>
#include <hvthemeapp/applicationtheme.h>

#include <QtTest>
#include <QtWidgets>

namespace
{

const QStringList looks{"dark", "light", "contrast"};

using Make = QWidget *(*)();

template<typename Widget>
QWidget *textual()
{
    return new Widget("Settings");
}

template<typename Edit>
QWidget *filled()
{
    auto *edit = new Edit;
    edit->setMinimumWidth(120);
    return edit;
}

template<>
QWidget *filled<QComboBox>()
{
    auto *combo = new QComboBox;
    combo->addItems({"First", "Second"});
    return combo;
}

template<typename View>
QWidget *viewOfRows()
{
    auto *view = new View;
    auto *model = new QStandardItemModel(4, 1, view);
    for (int row = 0; row < 4; ++row)
        model->setItem(row, 0, new QStandardItem("iii"));
    view->setModel(model);
    view->setCurrentIndex(model->index(1, 0));
    return view;
}

template<Qt::Orientation orientation, typename Range>
QWidget *range()
{
    auto *widget = new Range(orientation);
    widget->setRange(0, 100);
    widget->setValue(50);
    return widget;
}

template<Qt::Orientation orientation, QSlider::TickPosition position>
QWidget *ticked()
{
    auto *slider = static_cast<QSlider *>(range<orientation, QSlider>());
    slider->setTickPosition(position);
    slider->setTickInterval(10);
    return slider;
}

template<bool notches>
QWidget *dial()
{
    auto *widget = new QDial;
    widget->setNotchesVisible(notches);
    widget->setNotchTarget(10);
    return widget;
}

template<bool section>
QWidget *menuWith()
{
    auto *menu = new QMenu;
    menu->addAction("One");
    if (section)
        menu->addSection("Section");
    menu->addAction("Two");
    return menu;
}

template<bool movable>
QWidget *windowWithBar()
{
    auto *window = new QMainWindow;
    window->addToolBar("bar")->setMovable(movable);
    return window;
}

template<bool grip>
QWidget *windowWithGrip()
{
    auto *window = new QWidget;
    if (grip)
        (new QSizeGrip(window))->move(100, 80);
    return window;
}

QWidget *toolButton()
{
    auto *button = new QToolButton;
    button->setText("Settings");
    return button;
}

QWidget *groupBox()
{
    auto *box = new QGroupBox("Settings");
    box->setCheckable(true);
    (new QVBoxLayout(box))->addWidget(new QLabel("contents"));
    return box;
}

QWidget *tabBar()
{
    auto *bar = new QTabBar;
    bar->addTab("One");
    bar->addTab("Two");
    return bar;
}

struct Control {
    const char *name;
    Make make;
};

const Control bordered[] = {{"QPushButton", textual<QPushButton>},
                            {"QToolButton", toolButton},
                            {"QLineEdit", filled<QLineEdit>},
                            {"QTextEdit", filled<QTextEdit>},
                            {"QPlainTextEdit", filled<QPlainTextEdit>},
                            {"QComboBox", filled<QComboBox>},
                            {"QFontComboBox", filled<QFontComboBox>},
                            {"QSpinBox", filled<QSpinBox>},
                            {"QDoubleSpinBox", filled<QDoubleSpinBox>},
                            {"QDateEdit", filled<QDateEdit>},
                            {"QTimeEdit", filled<QTimeEdit>},
                            {"QDateTimeEdit", filled<QDateTimeEdit>},
                            {"QCommandLinkButton", textual<QCommandLinkButton>},
                            {"QKeySequenceEdit", filled<QKeySequenceEdit>}};
const Control boxes[] = {{"QCheckBox", textual<QCheckBox>},
                         {"QRadioButton", textual<QRadioButton>}};
const Control others[] = {{"QGroupBox", groupBox},
                          {"QTabBar", tabBar},
                          {"QSlider", range<Qt::Horizontal, QSlider>},
                          {"QListView", viewOfRows<QListView>}};

/*! A control in the middle of a window. */
class Stage
{
public:
    explicit Stage(const Make &make, const std::function<void(QWidget *)> &change = {})
        : m_control(make())
    {
        auto *layout = new QVBoxLayout(&m_window);
        layout->setContentsMargins(20, 20, 20, 20);
        layout->addWidget(m_control, 0, Qt::AlignCenter);
        if (change)
            change(m_control);
        Zoo::settle(&m_window);
        m_window.grab();
    }

    QWidget *control() { return m_control; }
    QImage picture() { return m_window.grab().toImage().convertToFormat(QImage::Format_RGB32); }
    QRect place() const { return m_control->geometry(); }

private:
    QWidget m_window;
    QWidget *m_control;
};

double mostIn(const QImage &image, const QRect &rect, const QColor &against)
{
    double most = 1;
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x)
            most = qMax(most, ColorMath::contrastRatio(QColor(image.pixel(x, y)), against));
    }
    return most;
}

/*! What the least visible of the four sides of \a rect stands out from \a surroundings with. */
double edgeOf(const QImage &image, const QRect &rect, const QColor &surroundings)
{
    constexpr int depth = 4;
    const QPoint middle = rect.center();
    const QRect sides[] = {QRect(rect.left(), middle.y(), depth, 1),
                           QRect(rect.right() - depth + 1, middle.y(), depth, 1),
                           QRect(middle.x(), rect.top(), 1, depth),
                           QRect(middle.x(), rect.bottom() - depth + 1, 1, depth)};
    double least = 21;
    for (const QRect &side : sides)
        least = qMin(least, mostIn(image, side, surroundings));
    return least;
}

QColor mainColor(const QImage &image, const QRect &rect)
{
    QHash<QRgb, int> counts;
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x)
            ++counts[image.pixel(x, y)];
    }
    const auto most = std::max_element(counts.cbegin(), counts.cend());
    return QColor(most.key());
}

/*! Links, selected text and what a program or a scene has coloured itself are the same when disabled. */
bool keepsColor(const QColor &pen, const QPalette &palette)
{
    return pen == QColor(200, 40, 40) || pen == palette.color(QPalette::Link)
        || pen == palette.color(QPalette::HighlightedText);
}

QTestData &addRow(const QString &look, const char *control, const char *state = "")
{
    return QTest::addRow("%s-%s%s%s", qUtf8Printable(look), control, *state ? "-" : "", state);
}

} // namespace

Q_DECLARE_METATYPE(Make)

namespace qdesigner_internal
{

/*! Draws categories as Designer's delegate of that name does. */
class SheetDelegate : public QItemDelegate
{
    Q_OBJECT

public:
    explicit SheetDelegate(QTreeView *view)
        : QItemDelegate(view)
        , m_view(view)
    {
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override
    {
        if (index.parent().isValid()) {
            QItemDelegate::paint(painter, option, index);
            return;
        }
        QStyleOption branch;
        branch.rect = QRect(option.rect.left() + 4, option.rect.center().y() - 4, 9, 9);
        branch.palette = option.palette;
        branch.state = QStyle::State_Children;
        m_view->style()->drawPrimitive(QStyle::PE_IndicatorBranch, &branch, painter, m_view);
    }

private:
    QTreeView *m_view;
};

} // namespace qdesigner_internal

/*! What each control looks like, in each look: what the pixels must show, not which they are. */
class tst_WidgetLook : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_quiet = std::make_unique<QuietPlatform>(); }
    void cleanupTestCase() { m_quiet.reset(); }
    void cleanup() { qApp->setStyleSheet(QString()); }

    void edge_data();
    void edge();
    void indicator_data();
    void indicator();
    void focus_data();
    void focus();
    void selection_data();
    void selection();
    void handle_data();
    void handle();
    void disabled_data();
    void disabled();
    void weekends_data();
    void weekends();
    void sizeHint_data();
    void sizeHint();
    void narrowButton();
    void drawnByStyle_data();
    void drawnByStyle();
    void selectedRow_data();
    void selectedRow();
    void selectedIcon_data();
    void selectedIcon();
    void category_data();
    void category();
    void changedValue_data();
    void changedValue();
    void ownSeparator();
    void templateProperty_data();
    void templateProperty();

private:
    std::unique_ptr<QuietPlatform> m_quiet;
};

void tst_WidgetLook::edge_data()
{
    QTest::addColumn<QString>("look");
    QTest::addColumn<Make>("make");
    QTest::addColumn<bool>("enabled");

    for (const QString &look : looks) {
        for (const Control &control : bordered) {
            addRow(look, control.name) << look << control.make << true;
            addRow(look, control.name, "disabled") << look << control.make << false;
        }
    }
}

void tst_WidgetLook::edge()
{
    QFETCH(QString, look);
    QFETCH(Make, make);
    QFETCH(bool, enabled);

    HV::ApplicationTheme theme;
    QVERIFY(theme.setName(look));
    Stage stage(make, [=](QWidget *control) { control->setEnabled(enabled); });
    const QImage picture = stage.picture();
    const double edge = edgeOf(picture, stage.place(), QColor(picture.pixel(3, 3)));
    QVERIFY2(edge >= (look == "contrast" ? 3 : 1.3), qUtf8Printable(QString::number(edge)));
}

void tst_WidgetLook::indicator_data()
{
    QTest::addColumn<QString>("look");
    QTest::addColumn<Make>("make");

    for (const QString &look : looks) {
        for (const Control &control : boxes)
            addRow(look, control.name) << look << control.make;
        addRow(look, "QGroupBox") << look << Make(groupBox);
    }
}

void tst_WidgetLook::indicator()
{
    QFETCH(QString, look);
    QFETCH(Make, make);

    HV::ApplicationTheme theme;
    QVERIFY(theme.setName(look));
    const auto pictureOf = [&](bool checked) {
        Stage stage(make, [=](QWidget *control) { control->setProperty("checked", checked); });
        return stage.picture().copy(QRect(stage.place().topLeft(), QSize(24, 20)));
    };
    const QImage off = pictureOf(false);
    const QImage on = pictureOf(true);
    const QColor ground(off.pixel(0, 0));
    QVERIFY(mostIn(off, off.rect(), ground) >= 3);
    QVERIFY(mostIn(on, on.rect(), ground) >= 3);
    // The mark is what one has and the other has not, on what it lies on.
    double mark = 1;
    for (int y = 0; y < on.height(); ++y) {
        for (int x = 0; x < on.width(); ++x)
            mark = qMax(mark,
                        ColorMath::contrastRatio(QColor(on.pixel(x, y)), QColor(off.pixel(x, y))));
    }
    QVERIFY2(mark >= 3, qUtf8Printable(QString::number(mark)));
}

void tst_WidgetLook::focus_data()
{
    QTest::addColumn<QString>("look");
    QTest::addColumn<Make>("make");

    for (const QString &look : looks) {
        for (const Control &control : bordered)
            addRow(look, control.name) << look << control.make;
        for (const Control &control : boxes)
            addRow(look, control.name) << look << control.make;
        for (const Control &control : others)
            addRow(look, control.name) << look << control.make;
    }
}

void tst_WidgetLook::focus()
{
    QFETCH(QString, look);
    QFETCH(Make, make);

    HV::ApplicationTheme theme;
    QVERIFY(theme.setName(look));
    Stage without(make);
    Stage with(make, Gallery::holdFocus);
    const QImage before = without.picture();
    const QImage after = with.picture();
    QCOMPARE(before.size(), after.size()); // the focus moves nothing
    const QColor surroundings(before.pixel(3, 3));
    double sign = 1;
    for (int y = 0; y < after.height(); ++y) {
        for (int x = 0; x < after.width(); ++x) {
            if (before.pixel(x, y) != after.pixel(x, y))
                sign =
                    qMax(sign, ColorMath::contrastRatio(QColor(after.pixel(x, y)), surroundings));
        }
    }
    QVERIFY2(sign >= 3, qUtf8Printable(QString::number(sign)));
}

void tst_WidgetLook::selection_data()
{
    QTest::addColumn<QString>("look");
    QTest::addColumn<Make>("make");

    for (const QString &look : looks) {
        addRow(look, "QListView") << look << Make(viewOfRows<QListView>);
        addRow(look, "QTreeView") << look << Make(viewOfRows<QTreeView>);
        addRow(look, "QTableView") << look << Make(viewOfRows<QTableView>);
    }
}

void tst_WidgetLook::selection()
{
    QFETCH(QString, look);
    QFETCH(Make, make);

    HV::ApplicationTheme theme;
    QVERIFY(theme.setName(look));
    Stage stage(make);
    auto *view = static_cast<QAbstractItemView *>(stage.control());
    const QImage picture = view->viewport()->grab().toImage();
    const auto groundOf = [&](int row) {
        const QRect item = view->visualRect(view->model()->index(row, 0));
        return mainColor(picture, item.adjusted(2, 2, -2, -2) & picture.rect());
    };
    const double contrast = ColorMath::contrastRatio(groundOf(1), groundOf(2));
    QVERIFY2(contrast >= 3, qUtf8Printable(QString::number(contrast)));
}

void tst_WidgetLook::handle_data()
{
    QTest::addColumn<QString>("look");
    QTest::addColumn<Make>("make");

    for (const QString &look : looks) {
        addRow(look, "QSlider", "across") << look << Make(range<Qt::Horizontal, QSlider>);
        addRow(look, "QSlider", "upright") << look << Make(range<Qt::Vertical, QSlider>);
        addRow(look, "QScrollBar", "across") << look << Make(range<Qt::Horizontal, QScrollBar>);
        addRow(look, "QScrollBar", "upright") << look << Make(range<Qt::Vertical, QScrollBar>);
    }
}

void tst_WidgetLook::handle()
{
    QFETCH(QString, look);
    QFETCH(Make, make);

    HV::ApplicationTheme theme;
    QVERIFY(theme.setName(look));
    Stage stage(make, [](QWidget *control) { control->setMinimumSize(control->sizeHint() * 2); });
    const QImage picture = stage.picture();
    const QRect place = stage.place();
    const QRect middle(place.center() - QPoint(3, 3), QSize(6, 6));
    const double contrast = mostIn(picture, middle, QColor(picture.pixel(3, 3)));
    QVERIFY2(contrast >= 3, qUtf8Printable(QString::number(contrast)));
}

void tst_WidgetLook::disabled_data()
{
    QTest::addColumn<QString>("look");
    QTest::addColumn<QString>("page");

    for (const QString &look : looks) {
        for (const Zoo::Page &page : Zoo::pages().mid(0, 10))
            addRow(look, page.name) << look << QString(page.name);
    }
}

// Every text of a window is drawn in another colour once the window is disabled.
void tst_WidgetLook::disabled()
{
    QFETCH(QString, look);
    QFETCH(QString, page);

    HV::ApplicationTheme theme;
    QVERIFY(theme.setName(look));
    const auto found = std::find_if(Zoo::pages().cbegin(), Zoo::pages().cend(),
                                    [&](const auto &candidate) { return page == candidate.name; });
    const auto pensOf = [&](bool enabled) {
        const std::unique_ptr<QWidget> window(found->make());
        window->setEnabled(enabled);
        Zoo::settle(window.get());
        window->grab();
        TextRecorder recorder(window->size());
        recorder.record(window.get());
        QMultiMap<QString, QColor> pens;
        for (const RecordedText &text : recorder.texts()) {
            if (text.enabled == enabled)
                pens.insert(QString("%1 at %2").arg(text.text).arg(text.rect.top()), text.pen);
        }
        return pens;
    };
    const auto enabledPens = pensOf(true);
    const auto disabledPens = pensOf(false);
    QVERIFY(!enabledPens.isEmpty());
    QStringList same;
    int compared = 0;
    for (auto it = enabledPens.cbegin(); it != enabledPens.cend(); ++it) {
        if (!disabledPens.contains(it.key()))
            continue;
        ++compared;
        if (!it.key().startsWith("scene") && !keepsColor(it.value(), theme.palette())
            && disabledPens.contains(it.key(), it.value()))
            same.append(it.key());
    }
    QVERIFY(compared > 0);
    QVERIFY2(same.isEmpty(), qUtf8Printable(same.join(", ")));
}

void tst_WidgetLook::weekends_data()
{
    QTest::addColumn<QString>("look");
    for (const QString &look : looks)
        QTest::newRow(qUtf8Printable(look)) << look;
}

// A calendar that is disabled for a while, and one whose Sundays are the program's.
void tst_WidgetLook::weekends()
{
    QFETCH(QString, look);

    HV::ApplicationTheme theme;
    QVERIFY(theme.setName(look));
    const auto colorOf = [](const QCalendarWidget &calendar, Qt::DayOfWeek day) {
        return calendar.weekdayTextFormat(day).foreground().color();
    };
    QWidget window;
    QCalendarWidget calendar(&window);
    QCalendarWidget own(&window);
    QTextCharFormat green;
    green.setForeground(QColor(0, 128, 0));
    own.setWeekdayTextFormat(Qt::Sunday, green);
    Zoo::settle(&window);
    const QColor enabled = colorOf(calendar, Qt::Sunday);
    QVERIFY(enabled != QColor(Qt::red));

    window.setEnabled(false);
    const auto *days = calendar.findChild<QAbstractItemView *>();
    const QColor day = days->palette().color(QPalette::Disabled, QPalette::Text);
    QVERIFY(day != enabled);
    QCOMPARE(colorOf(calendar, Qt::Sunday), day);
    QCOMPARE(colorOf(calendar, Qt::Saturday), day);
    QCOMPARE(colorOf(own, Qt::Sunday), QColor(0, 128, 0));

    // A switch in between leads to the other look's colours.
    QVERIFY(theme.setName(look == "light" ? "dark" : "light"));
    QCOMPARE(colorOf(calendar, Qt::Sunday),
             days->palette().color(QPalette::Disabled, QPalette::Text));
    QVERIFY(theme.setName(look));
    window.setEnabled(true);
    QCOMPARE(colorOf(calendar, Qt::Sunday), enabled);
    QCOMPARE(colorOf(calendar, Qt::Saturday), enabled);
}

void tst_WidgetLook::sizeHint_data()
{
    QTest::addColumn<Make>("make");
    QTest::addColumn<int>("fontSize");
    QTest::addColumn<Qt::LayoutDirection>("direction");

    const auto add = [](const char *name, Make make) {
        QTest::addRow("%s", name) << make << 0 << Qt::LeftToRight;
        QTest::addRow("%s-right-to-left", name) << make << 0 << Qt::RightToLeft;
        QTest::addRow("%s-24-px", name) << make << 24 << Qt::LeftToRight;
    };
    for (const Control &control : bordered)
        add(control.name, control.make);
    for (const Control &control : boxes)
        add(control.name, control.make);
    for (const Control &control : others)
        add(control.name, control.make);
    add("QPushButton-short", []() -> QWidget * { return new QPushButton("OK"); });
    add("QPushButton-longer", []() -> QWidget * { return new QPushButton("Settings..."); });
    add("QPushButton-icon", []() -> QWidget * {
        return new QPushButton(QApplication::style()->standardIcon(QStyle::SP_FileIcon), QString());
    });
    add("QProgressBar", Make([]() -> QWidget * { return new QProgressBar; }));
    add("QScrollBar", range<Qt::Vertical, QScrollBar>);
    add("QSlider-upright", range<Qt::Vertical, QSlider>);
    add("QLabel", textual<QLabel>);
    add("QDial", filled<QDial>);
    add("QLCDNumber", Make([]() -> QWidget * { return new QLCDNumber; }));
    add("QTreeView", viewOfRows<QTreeView>);
    add("QTableView", viewOfRows<QTableView>);
    add("QCalendarWidget", filled<QCalendarWidget>);
    add("QDialogButtonBox", []() -> QWidget * {
        return new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    });
    add("QMenuBar", []() -> QWidget * {
        auto *bar = new QMenuBar;
        bar->addMenu("File");
        bar->addMenu("Edit");
        return bar;
    });
    add("QToolBar", []() -> QWidget * {
        auto *bar = new QToolBar;
        bar->addAction(QApplication::style()->standardIcon(QStyle::SP_FileIcon), "Open");
        bar->addAction("Text");
        return bar;
    });
    add("QTabWidget", []() -> QWidget * {
        auto *tabs = new QTabWidget;
        tabs->addTab(new QLabel("Some contents of a page"), "First");
        tabs->addTab(new QLabel("Second"), "Second");
        return tabs;
    });
    add("QHeaderView", []() -> QWidget * {
        auto *header = new QHeaderView(Qt::Horizontal);
        auto *model = new QStandardItemModel(1, 2, header);
        model->setHorizontalHeaderLabels({"Name", "Size"});
        header->setModel(model);
        return header;
    });
}

void tst_WidgetLook::sizeHint()
{
    QFETCH(Make, make);
    QFETCH(int, fontSize);
    QFETCH(Qt::LayoutDirection, direction);

    const QFont font = QApplication::font();
    const auto setFont = [&font](int size) {
        QFont same = font;
        same.setPixelSize(size);
        QApplication::setFont(same);
    };
    if (fontSize)
        setFont(fontSize);
    QGuiApplication::setLayoutDirection(direction);
    const auto hint = [&] {
        Stage stage(make);
        return QSizeF(stage.control()->sizeHint());
    };
    HV::ApplicationTheme theme;
    theme.setKeepsFonts(fontSize != 0);
    QVERIFY(theme.setName("dark"));
    const QSizeF themed = hint();
    // The same font, and nothing else.
    qApp->setStyleSheet(QString());
    if (!fontSize)
        setFont(int(theme.theme()->integer("FontSize_L")));
    const QSizeF plain = hint();
    QApplication::setFont(font);
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    const QString sizes = QString("%1 x %2 for %3 x %4")
                              .arg(themed.width())
                              .arg(themed.height())
                              .arg(plain.width())
                              .arg(plain.height());
    QVERIFY2(qAbs(themed.width() - plain.width()) <= 0.2 * plain.width(), qUtf8Printable(sizes));
    QVERIFY2(qAbs(themed.height() - plain.height()) <= 0.2 * plain.height(), qUtf8Printable(sizes));
}

void tst_WidgetLook::drawnByStyle_data()
{
    QTest::addColumn<QString>("look");
    QTest::addColumn<Make>("without");
    QTest::addColumn<Make>("with");

    for (const QString &look : looks) {
        addRow(look, "ticks") << look << Make(range<Qt::Horizontal, QSlider>)
                              << Make(ticked<Qt::Horizontal, QSlider::TicksBothSides>);
        addRow(look, "ticks", "upright") << look << Make(range<Qt::Vertical, QSlider>)
                                         << Make(ticked<Qt::Vertical, QSlider::TicksLeft>);
        addRow(look, "notches") << look << Make(dial<false>) << Make(dial<true>);
        addRow(look, "size-grip") << look << Make(windowWithGrip<false>)
                                  << Make(windowWithGrip<true>);
        addRow(look, "handle") << look << Make(windowWithBar<false>) << Make(windowWithBar<true>);
        addRow(look, "section") << look << Make(menuWith<false>) << Make(menuWith<true>);
    }
}

// What style sheets leave out is there, and stands out from the ground of the control.
void tst_WidgetLook::drawnByStyle()
{
    QFETCH(QString, look);
    QFETCH(Make, without);
    QFETCH(Make, with);

    HV::ApplicationTheme theme;
    QVERIFY(theme.setName(look));
    const auto pictureOf = [](const Make &make) {
        const std::unique_ptr<QWidget> control(make());
        control->resize(160, 120);
        control->ensurePolished();
        QImage picture(control->size(), QImage::Format_RGB32);
        picture.fill(QApplication::palette().color(QPalette::Window)); // a slider has no ground
        QPainter(&picture).drawPixmap(0, 0, control->grab());
        return picture;
    };
    const QImage before = pictureOf(without);
    const QImage after = pictureOf(with);
    QCOMPARE(before.size(), after.size());
    const QColor ground = mainColor(before, before.rect());
    double sign = 1;
    for (int y = 0; y < after.height(); ++y) {
        for (int x = 0; x < after.width(); ++x) {
            if (before.pixel(x, y) != after.pixel(x, y))
                sign = qMax(sign, ColorMath::contrastRatio(QColor(after.pixel(x, y)), ground));
        }
    }
    QVERIFY2(sign >= 3, qUtf8Printable(QString::number(sign)));
}

void tst_WidgetLook::selectedRow_data()
{
    QTest::addColumn<QString>("look");
    QTest::addColumn<bool>("mirrored");

    for (const QString &look : looks) {
        addRow(look, "left-to-right") << look << false;
        addRow(look, "right-to-left") << look << true;
    }
}

// The arrow and the empty box of a selected row stand out from its ground, not from that of others.
void tst_WidgetLook::selectedRow()
{
    QFETCH(QString, look);
    QFETCH(bool, mirrored);

    HV::ApplicationTheme theme;
    QVERIFY(theme.setName(look));
    Stage stage([]() -> QWidget * {
        auto *tree = new QTreeWidget;
        auto *item = new QTreeWidgetItem(tree, {"iii"});
        item->setCheckState(0, Qt::Unchecked);
        new QTreeWidgetItem(item, {"inner"});
        tree->setHeaderHidden(true);
        tree->setMinimumWidth(240);
        tree->setCurrentItem(item);
        return tree;
    });
    auto *tree = static_cast<QTreeWidget *>(stage.control());
    tree->setLayoutDirection(mirrored ? Qt::RightToLeft : Qt::LeftToRight);
    Zoo::settle(tree->window());
    const QImage picture = tree->viewport()->grab().toImage();
    const QRect row = tree->visualItemRect(tree->topLevelItem(0));
    const int indentation = tree->indentation();
    const QRect arrow(mirrored ? tree->viewport()->width() - indentation : 0, row.y(), indentation,
                      row.height());
    const QRect box(mirrored ? row.right() - 18 : row.left() + 3, row.y() + 2, 15,
                    row.height() - 4);
    const QColor ground = mainColor(picture, row);
    for (const QRect &part : {arrow, box}) {
        const double sign =
            mostIn(picture, part & picture.rect(), mainColor(picture, part & picture.rect()));
        QVERIFY2(sign >= 3, qUtf8Printable(QString("%1 on %2").arg(sign).arg(ground.name())));
    }
}

void tst_WidgetLook::selectedIcon_data()
{
    QTest::addColumn<QString>("look");

    for (const QString &look : looks)
        QTest::newRow(qUtf8Printable(look)) << look;
}

// Above the text an icon lies on the ground of the view, not on that of the selection.
void tst_WidgetLook::selectedIcon()
{
    QFETCH(QString, look);

    HV::ApplicationTheme theme;
    QVERIFY(theme.setName(look));
    QListWidget list;
    list.setViewMode(QListView::IconMode);
    auto *item =
        new QListWidgetItem(QApplication::style()->standardIcon(QStyle::SP_FileIcon), "iii", &list);
    list.resize(160, 120);
    list.setCurrentItem(item);
    list.grab();
    QRect area = list.visualItemRect(item);
    area.setHeight(list.iconSize().isValid() ? list.iconSize().height() : 24);
    const QImage picture = list.viewport()->grab(area).toImage();
    const double contrast = mostIn(picture, picture.rect(), mainColor(picture, picture.rect()));
    QVERIFY2(contrast >= 3, qUtf8Printable(QString::number(contrast)));
}

void tst_WidgetLook::category_data()
{
    selectedRow_data();
}

// Qt drops the sign that Designer's delegate asks the style for, as soon as there is a style sheet.
void tst_WidgetLook::category()
{
    QFETCH(QString, look);
    QFETCH(bool, mirrored);

    HV::ApplicationTheme theme;
    QVERIFY(theme.setName(look));
    const auto pictureOf = [mirrored](bool expanded) {
        QTreeWidget tree;
        tree.setLayoutDirection(mirrored ? Qt::RightToLeft : Qt::LeftToRight);
        tree.setRootIsDecorated(false);
        tree.setHeaderHidden(true);
        tree.setItemDelegate(new qdesigner_internal::SheetDelegate(&tree));
        auto *item = new QTreeWidgetItem(&tree, {"category"});
        new QTreeWidgetItem(item, {"inner"});
        item->setExpanded(expanded);
        tree.resize(160, 80);
        tree.grab();
        const QRect row = tree.visualItemRect(item);
        const QRect sign(mirrored ? row.right() - 16 : row.left() + 1, row.top(), 16, row.height());
        return tree.viewport()->grab(sign).toImage();
    };
    const QImage closed = pictureOf(false);
    const QImage open = pictureOf(true);
    for (const QImage &sign : {closed, open}) {
        const double contrast = mostIn(sign, sign.rect(), mainColor(sign, sign.rect()));
        QVERIFY2(contrast >= 3, qUtf8Printable(QString::number(contrast)));
    }
    QVERIFY(closed != open);
}

void tst_WidgetLook::changedValue_data()
{
    QTest::addColumn<Make>("make");
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("before");
    QTest::addColumn<QVariant>("after");

    const auto add = [](Make make, const char *property, const QVariant &before,
                        const QVariant &after) {
        const std::unique_ptr<QWidget> widget(make());
        QTest::addRow("%s-%s", widget->metaObject()->className(), property)
            << make << QByteArray(property) << before << after;
    };
    const Make button = [] { return static_cast<QWidget *>(new QPushButton); };
    add(button, "text", QString(), QString("OK"));
    add(button, "maximumWidth", 20, QWIDGETSIZE_MAX);
    add(toolButton, "autoRaise", true, false);
    add(filled<QSpinBox>, "readOnly", false, true);
    add(filled<QSpinBox>, "frame", true, false);
    add(filled<QDateEdit>, "calendarPopup", false, true);
    add(filled<QLineEdit>, "frame", true, false);
    add(filled<QComboBox>, "frame", false, true);
    add(range<Qt::Horizontal, QSlider>, "tickPosition", QSlider::NoTicks, QSlider::TicksBelow);
    add(filled<QTextEdit>, "frameShape", QFrame::NoFrame, QFrame::StyledPanel);
}

// Qt looks for the rules of a widget when it is polished; what changes later looks as if made so.
void tst_WidgetLook::changedValue()
{
    QFETCH(Make, make);
    QFETCH(QByteArray, property);
    QFETCH(QVariant, before);
    QFETCH(QVariant, after);

    HV::ApplicationTheme theme;
    QVERIFY(theme.setName("dark"));
    const auto set = [&](QWidget *widget, const QVariant &value) {
        QVERIFY(widget->setProperty(property.constData(), value));
    };
    Stage made(make, [&](QWidget *widget) { set(widget, after); });
    Stage changed(make, [&](QWidget *widget) { set(widget, before); });
    set(changed.control(), after);
    changed.picture(); // in which it is seen that other rules fit
    Zoo::settle(changed.control()->window());
    QCOMPARE(changed.control()->size(), made.control()->size());
    QCOMPARE(changed.picture().copy(changed.place()), made.picture().copy(made.place()));
}

// Who gives the lines of menus a rule gets what the rule says.
void tst_WidgetLook::ownSeparator()
{
    HV::ApplicationTheme theme;
    QVERIFY(theme.setName("dark"));
    qApp->setStyleSheet(qApp->styleSheet()
                        + "QMenu::separator {height: 3px; background: #ff0000;}");
    QMenu menu;
    menu.addAction("One");
    QAction *line = menu.addSeparator();
    menu.addAction("Two");
    menu.ensurePolished();
    const QRect rect = menu.actionGeometry(line);
    QCOMPARE(rect.height(), 3);
    QCOMPARE(menu.grab().toImage().pixelColor(rect.center()), QColor(255, 0, 0));
}

// Programs keep buttons as narrow as their text, which then must not be cut.
void tst_WidgetLook::narrowButton()
{
    HV::ApplicationTheme theme;
    QVERIFY(theme.setName("dark"));
    Stage stage([]() -> QWidget * {
        auto *button = new QPushButton("…");
        button->setMaximumWidth(24);
        return button;
    });
    TextRecorder recorder(stage.control()->size());
    recorder.record(stage.control());
    QCOMPARE(recorder.texts().size(), 1);
    QVERIFY(recorder.texts().constFirst().rect.width()
            >= stage.control()->fontMetrics().horizontalAdvance("…"));
}

void tst_WidgetLook::templateProperty_data()
{
    QTest::addColumn<QString>("look");
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("state");

    const QPair<const char *, const char *> properties[] = {{"style", "transparent"},
                                                            {"style", "general"},
                                                            {"style", "assist"},
                                                            {"style", "editButton"},
                                                            {"style", "menuButton"},
                                                            {"style", "floatingTabButton"},
                                                            {"style", "floatingTabButtonAssist"},
                                                            {"style", "helper"},
                                                            {"imageBtn", "close"},
                                                            {"imageBtn", "lock"},
                                                            {"checkStyle", "checked"},
                                                            {"switchStyle", "general"}};
    for (const QString &look : looks) {
        for (const auto &[property, value] : properties) {
            for (const char *state : {"rest", "hovered", "pressed", "checked"})
                QTest::addRow("%s-%s-%s-%s", qUtf8Printable(look), property, value, state)
                    << look << QByteArray(property) << value << state;
        }
    }
}

// Buttons that carry a property of the built-in templates look as these say, to the pixel; the button
// of the main action is the brand, with the text that stands on it, and an edit button under the pointer
// has an edge that stands out in every look.
void tst_WidgetLook::templateProperty()
{
    QFETCH(QString, look);
    QFETCH(QByteArray, property);
    QFETCH(QString, value);
    QFETCH(QString, state);

    HV::ApplicationTheme theme;
    QVERIFY(theme.setName(look));
    QRect place;
    const auto picture = [&] {
        Stage stage(textual<QPushButton>, [&](QWidget *widget) {
            auto *button = static_cast<QPushButton *>(widget);
            button->setProperty(property.constData(), value);
            button->setCheckable(true);
            button->setChecked(state == "checked");
            button->setDown(state == "pressed");
            if (state == "hovered")
                Gallery::holdHover(button);
        });
        place = stage.place();
        // A window that settles lets its buttons go.
        static_cast<QPushButton *>(stage.control())->setDown(state == "pressed");
        return stage.picture();
    };
    const QImage whole = picture();
    if (value == "general" && property == "style") {
        const char *key = state == "hovered" ? "AccentHoverColor"
            : state == "pressed"             ? "AccentPressedColor"
                                             : "AccentBackgroundColor";
        QCOMPARE(mainColor(whole, place), theme.theme()->color(key));
        return;
    }
    QRect same = whole.rect();
    if (value == "editButton" && state == "hovered") {
        const QColor edge = whole.pixelColor(place.left(), place.center().y());
        QCOMPARE(edge, theme.theme()->color("Color_Brand_6"));
        QVERIFY(ColorMath::contrastRatio(edge, theme.theme()->color("BackgroundColor_2")) >= 3.0);
        same = place.adjusted(2, 2, -2, -2); // the corners are round
    }
    qApp->setStyleSheet(
        HV::findStyleSheet(theme.theme(), QStringLiteral(":/stylesheet"), "global"));
    QCOMPARE(whole.copy(same), picture().copy(same));
}

QTEST_MAIN(tst_WidgetLook)
#include "tst_widgetlook.moc"
