// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "widgetzoo.h"

#include <gallery/heldstate.h>

#include <QtWidgets>

namespace Zoo
{

using Gallery::holdFocus;
using Gallery::holdHover;

namespace
{

const char *const openProperty = "zooOpen";

template<typename Widget>
Widget *disabled(Widget *widget)
{
    widget->setEnabled(false);
    return widget;
}

template<typename Widget>
Widget *hovered(Widget *widget)
{
    holdHover(widget);
    return widget;
}

template<typename Widget>
Widget *focused(Widget *widget)
{
    holdFocus(widget);
    return widget;
}

QBoxLayout *row(QFormLayout *form, const QString &title, const QList<QWidget *> &widgets)
{
    auto *layout = new QHBoxLayout;
    for (QWidget *widget : widgets)
        layout->addWidget(widget);
    layout->addStretch();
    form->addRow(title, layout);
    return layout;
}

QIcon icon(QStyle::StandardPixmap pixmap)
{
    return QApplication::style()->standardIcon(pixmap);
}

QPushButton *pushed(const QString &text, const std::function<void(QPushButton *)> &change)
{
    auto *button = new QPushButton(text);
    button->setAutoDefault(false);
    change(button);
    return button;
}

QWidget *pushButtons()
{
    auto *window = new QDialog; // where buttons can be the default one
    auto *form = new QFormLayout(window);
    row(form, "Button",
        {pushed("Rest", [](auto *) {}), pushed("Hovered", [](auto *b) { holdHover(b); }),
         pushed("Pressed", [](auto *b) { b->setDown(true); }),
         pushed("Focused", [](auto *b) { holdFocus(b); }),
         pushed("Disabled", [](auto *b) { b->setEnabled(false); })});
    row(form, "Default", {pushed("Default", [](auto *b) { b->setDefault(true); })});
    const auto checkable = [](const QString &text, bool checked, bool enabled) {
        return pushed(text, [=](auto *b) {
            b->setCheckable(true), b->setChecked(checked), b->setEnabled(enabled);
        });
    };
    row(form, "Checkable",
        {checkable("Up", false, true), checkable("Checked", true, true),
         checkable("Up, off", false, false), checkable("Checked, off", true, false)});
    row(form, "Flat",
        {pushed("Flat", [](auto *b) { b->setFlat(true); }),
         pushed("Hovered", [](auto *b) { b->setFlat(true), holdHover(b); }),
         pushed("Pressed", [](auto *b) { b->setFlat(true), b->setDown(true); })});
    row(form, "Contents",
        {pushed("Menu", [](auto *b) { b->setMenu(new QMenu(b)); }),
         pushed("Icon", [](auto *b) { b->setIcon(icon(QStyle::SP_DialogSaveButton)); }),
         pushed(QString(), [](auto *b) { b->setIcon(icon(QStyle::SP_DialogOpenButton)); })});
    auto *link = new QCommandLinkButton("Command link", "What it does, in a sentence.");
    form->addRow("Link", link);
    form->addRow("Link, off", disabled(new QCommandLinkButton("Off", "Not at this time.")));
    row(form, "No wider",
        {new QCommandLinkButton("A title longer than others"),
         new QCommandLinkButton("Title", "What it does, in a sentence longer than its title.")});
    form->addRow(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel
                                      | QDialogButtonBox::Apply | QDialogButtonBox::Help));
    return window;
}

QWidget *defaultLink()
{
    auto *window = new QDialog;
    auto *column = new QVBoxLayout(window);
    auto *link = new QCommandLinkButton("Command link", "The default one of its dialog.");
    link->setDefault(true);
    column->addWidget(link);
    column->addWidget(new QCommandLinkButton("Another", "That is not."));
    return window;
}

/*! Buttons with each property of the built-in templates that changes how one looks. */
QWidget *templateButtons()
{
    const QPair<const char *, const char *> properties[] = {
        {"style", "general"},           {"style", "assist"},
        {"style", "transparent"},       {"style", "helper"},
        {"style", "menuButton"},        {"style", "editButton"},
        {"style", "floatingTabButton"}, {"style", "floatingTabButtonAssist"},
        {"imageBtn", "close"},          {"checkStyle", "checked"},
        {"switchStyle", "general"}};
    auto *window = new QWidget;
    auto *form = new QFormLayout(window);
    for (const auto &property : properties) {
        const auto make = [&property](const QString &text,
                                      const std::function<void(QPushButton *)> &change) {
            // The others are pictures.
            const bool isText = qstrcmp(property.first, "style") == 0;
            return pushed(isText ? text : QString(), [&](QPushButton *button) {
                button->setProperty(property.first, property.second);
                button->setCheckable(true);
                change(button);
            });
        };
        row(form, property.second,
            {make("Rest", [](auto *) {}), make("Hovered", [](auto *b) { holdHover(b); }),
             make("Pressed", [](auto *b) { b->setDown(true); }),
             make("Checked", [](auto *b) { b->setChecked(true); }),
             make("Focused", [](auto *b) { holdFocus(b); }),
             make("Disabled", [](auto *b) { b->setEnabled(false); })});
    }
    return window;
}

QToolButton *tool(const QString &text, const std::function<void(QToolButton *)> &change)
{
    auto *button = new QToolButton;
    button->setText(text);
    change(button);
    return button;
}

QWidget *toolButtons()
{
    auto *window = new QWidget;
    auto *form = new QFormLayout(window);
    for (const bool raised : {false, true}) {
        const auto raise = [raised](QToolButton *b) { b->setAutoRaise(raised); };
        row(form, raised ? "Auto-raised" : "Tool button",
            {tool("Rest", raise), tool("Hovered", [=](auto *b) { raise(b), holdHover(b); }),
             tool("Pressed", [=](auto *b) { raise(b), b->setDown(true); }),
             tool("Checked",
                  [=](auto *b) { raise(b), b->setCheckable(true), b->setChecked(true); }),
             tool("Focused", [=](auto *b) { raise(b), holdFocus(b); }),
             tool("Disabled", [=](auto *b) { raise(b), b->setEnabled(false); })});
    }
    const auto popup = [](QToolButton::ToolButtonPopupMode mode) {
        return [mode](QToolButton *b) {
            b->setMenu(new QMenu(b));
            b->setPopupMode(mode);
            b->setIcon(icon(QStyle::SP_DirIcon));
            b->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        };
    };
    row(form, "Menus",
        {tool("Delayed", popup(QToolButton::DelayedPopup)),
         tool("Split", popup(QToolButton::MenuButtonPopup)),
         tool("Instant", popup(QToolButton::InstantPopup))});
    const auto arrow = [](Qt::ArrowType type) {
        return tool(QString(), [type](auto *b) { b->setArrowType(type); });
    };
    row(form, "Arrows",
        {arrow(Qt::UpArrow), arrow(Qt::DownArrow), arrow(Qt::LeftArrow), arrow(Qt::RightArrow),
         disabled(arrow(Qt::DownArrow))});
    return window;
}

template<typename Box>
QList<QWidget *> boxes()
{
    QList<QWidget *> all;
    for (const bool on : {false, true}) {
        const QString name = on ? QStringLiteral("on") : QStringLiteral("off");
        for (const char *state : {"rest", "hovered", "pressed", "focused", "disabled"}) {
            auto *box = new Box(name % QLatin1String(", ") % QLatin1String(state));
            box->setAutoExclusive(false);
            box->setChecked(on);
            box->setDown(state == QLatin1String("pressed"));
            box->setEnabled(state != QLatin1String("disabled"));
            if (state == QLatin1String("hovered"))
                holdHover(box);
            if (state == QLatin1String("focused"))
                holdFocus(box);
            all.append(box);
        }
    }
    return all;
}

QWidget *checks()
{
    auto *window = new QWidget;
    auto *form = new QFormLayout(window);
    const auto two = [form](const QString &title, const QList<QWidget *> &all) {
        row(form, title, all.mid(0, 5));
        row(form, QString(), all.mid(5));
    };
    two("Check boxes", boxes<QCheckBox>());
    auto *half = new QCheckBox("half");
    auto *halfOff = disabled(new QCheckBox("half, disabled"));
    for (QCheckBox *box : {half, halfOff})
        box->setCheckState(Qt::PartiallyChecked);
    row(form, QString(), {half, halfOff});
    two("Radio buttons", boxes<QRadioButton>());
    auto *group = new QGroupBox("Group");
    auto *inside = new QVBoxLayout(group);
    inside->addWidget(new QCheckBox("in a group"));
    auto *on = new QGroupBox("Checkable, on");
    auto *off = new QGroupBox("Checkable, off");
    for (QGroupBox *box : {on, off}) {
        box->setCheckable(true);
        (new QVBoxLayout(box))->addWidget(new QLabel("contents"));
    }
    off->setChecked(false);
    auto *flat = new QGroupBox("Flat");
    flat->setFlat(true);
    (new QVBoxLayout(flat))->addWidget(new QPushButton("Button"));
    auto *gone = disabled(new QGroupBox("Disabled"));
    (new QVBoxLayout(gone))->addWidget(new QLabel("contents"));
    auto *held = new QGroupBox("Focused");
    held->setCheckable(true);
    (new QVBoxLayout(held))->addWidget(new QLabel("contents"));
    row(form, "Groups", {group, on, off, flat, gone, focused(held)});
    return window;
}

QLineEdit *line(const QString &text, const std::function<void(QLineEdit *)> &change)
{
    auto *edit = new QLineEdit(text);
    change(edit);
    return edit;
}

QWidget *lineEdits()
{
    auto *window = new QWidget;
    auto *form = new QFormLayout(window);
    row(form, "Line edit",
        {line("Rest", [](auto *) {}), line("Hovered", [](auto *e) { holdHover(e); }),
         line("Focused", [](auto *e) { holdFocus(e); }),
         line("Disabled", [](auto *e) { e->setEnabled(false); })});
    row(form, QString(),
        {line("Read only", [](auto *e) { e->setReadOnly(true); }),
         line("Selected", [](auto *e) { e->selectAll(), holdFocus(e); }),
         line("secret", [](auto *e) { e->setEchoMode(QLineEdit::Password); }),
         line("Clear", [](auto *e) { e->setClearButtonEnabled(true); })});
    row(form, "Placeholder",
        {line(QString(), [](auto *e) { e->setPlaceholderText("Name"); }),
         line(QString(), [](auto *e) { e->setPlaceholderText("Focused"), holdFocus(e); }),
         line(QString(),
              [](auto *e) { e->setPlaceholderText("Disabled"), e->setEnabled(false); })});
    auto *leading = line("With actions", [](auto *e) {
        e->addAction(icon(QStyle::SP_FileDialogContentsView), QLineEdit::LeadingPosition);
    });
    auto *bare = line("No frame", [](auto *e) { e->setFrame(false); });
    row(form, "Parts", {leading, bare, new QKeySequenceEdit(QKeySequence("Ctrl+K"))});
    return window;
}

template<typename Edit>
QList<QWidget *> states(const std::function<void(Edit *)> &fill)
{
    QList<QWidget *> all;
    for (const char *state : {"rest", "hovered", "focused", "disabled"}) {
        auto *edit = new Edit;
        fill(edit);
        edit->setEnabled(state != QLatin1String("disabled"));
        if (state == QLatin1String("hovered"))
            holdHover(edit);
        if (state == QLatin1String("focused"))
            holdFocus(edit);
        all.append(edit);
    }
    return all;
}

QWidget *spinsAndCombos()
{
    auto *window = new QWidget;
    auto *form = new QFormLayout(window);
    row(form, "Spin box", states<QSpinBox>([](auto *e) { e->setValue(7); }));
    row(form, "Double", states<QDoubleSpinBox>([](auto *e) { e->setSuffix(" mm"); }));
    auto *plusMinus = new QSpinBox;
    plusMinus->setButtonSymbols(QSpinBox::PlusMinus);
    auto *none = new QSpinBox;
    none->setButtonSymbols(QSpinBox::NoButtons);
    auto *least = new QSpinBox;
    least->setReadOnly(true);
    row(form, "Buttons", {plusMinus, none, least});
    row(form, "Date", states<QDateEdit>([](auto *e) { e->setDate(QDate(2026, 1, 2)); }));
    row(form, "Time", states<QTimeEdit>([](auto *e) { e->setTime(QTime(3, 4)); }));
    row(form, "Date and time", states<QDateTimeEdit>([](auto *e) {
            e->setDateTime(QDateTime(QDate(2026, 1, 2), QTime(3, 4)));
            e->setCalendarPopup(true);
        }));
    const auto fill = [](QComboBox *e) { e->addItems({"First", "Second", "Third"}); };
    row(form, "Combo box", states<QComboBox>(fill));
    row(form, "Editable", states<QComboBox>([=](auto *e) { fill(e), e->setEditable(true); }));
    auto *empty = new QComboBox;
    empty->setEditable(true);
    empty->lineEdit()->setPlaceholderText("Placeholder");
    auto *bare = new QComboBox;
    fill(bare);
    bare->setFrame(false);
    row(form, "Others", {empty, bare, new QFontComboBox});
    return window;
}

const char *const richText =
    "<h3>Heading</h3><p>Text with <a href='x'>a link</a>, <b>bold</b> and <code>code</code>.</p>"
    "<table border='1' cellpadding='3'><tr><th>a</th><th>b</th></tr><tr><td>1</td><td>2</td></tr>"
    "</table><hr>";

QWidget *texts()
{
    auto *window = new QWidget;
    auto *grid = new QGridLayout(window);
    const auto add = [&](QWidget *widget, int at) {
        widget->setMinimumSize(220, 130);
        grid->addWidget(widget, at / 3, at % 3);
    };
    auto *plain = new QPlainTextEdit("Plain text\n(two lines)");
    add(plain, 0);
    auto *held = new QPlainTextEdit("Focused and selected");
    held->selectAll();
    add(focused(held), 1);
    auto *hint = new QPlainTextEdit;
    hint->setPlaceholderText("Placeholder");
    add(hint, 2);
    auto *rich = new QTextEdit;
    rich->setHtml(richText);
    add(rich, 3);
    auto *browser = new QTextBrowser;
    browser->setHtml(richText);
    add(browser, 4);
    add(disabled(new QTextEdit("Disabled")), 5);
    auto *reading = new QTextEdit("Read only");
    reading->setReadOnly(true);
    add(reading, 6);
    auto *hintRich = new QTextEdit;
    hintRich->setPlaceholderText("Placeholder");
    add(hintRich, 7);
    auto *label = new QLabel(richText);
    label->setTextInteractionFlags(Qt::TextBrowserInteraction);
    add(label, 8);
    return window;
}

QLayout *dialsAndDigits()
{
    auto *column = new QVBoxLayout;
    for (const char *state : {"rest", "focused", "disabled"}) {
        auto *dial = new QDial;
        dial->setValue(30);
        dial->setNotchesVisible(true);
        dial->setEnabled(state != QLatin1String("disabled"));
        if (state == QLatin1String("focused"))
            holdFocus(dial);
        column->addWidget(dial);
    }
    auto *digits = new QLCDNumber(5);
    digits->display(31.4);
    column->addWidget(digits);
    auto *flat = new QLCDNumber(5);
    flat->setSegmentStyle(QLCDNumber::Flat);
    flat->display(27.1);
    column->addWidget(flat);
    return column;
}

QWidget *ranges()
{
    auto *window = new QWidget;
    auto *outer = new QHBoxLayout(window);
    auto *form = new QFormLayout;
    outer->addLayout(form, 1);
    const auto slider = [](Qt::Orientation orientation, const char *style) {
        auto *widget = new QSlider(orientation);
        widget->setValue(40);
        if (style)
            widget->setProperty("sliderStyle", style);
        return widget;
    };
    form->addRow("Slider", slider(Qt::Horizontal, nullptr));
    form->addRow("Hovered", hovered(slider(Qt::Horizontal, nullptr)));
    form->addRow("Focused", focused(slider(Qt::Horizontal, nullptr)));
    form->addRow("Disabled", disabled(slider(Qt::Horizontal, nullptr)));
    QSlider *ticks = slider(Qt::Horizontal, nullptr);
    ticks->setTickPosition(QSlider::TicksBothSides);
    form->addRow("Ticks", ticks);
    form->addRow("hGeneral", slider(Qt::Horizontal, "hGeneral"));
    form->addRow("luminance", slider(Qt::Horizontal, "luminance"));
    auto *bar = new QScrollBar(Qt::Horizontal);
    bar->setValue(30);
    form->addRow("Scroll bar", bar);
    form->addRow("Disabled", disabled(new QScrollBar(Qt::Horizontal)));
    for (const int value : {0, 40, 100}) {
        auto *progress = new QProgressBar;
        progress->setValue(value);
        form->addRow("Progress", progress);
    }
    auto *busy = new QProgressBar;
    busy->setRange(0, 0);
    form->addRow("Busy", busy);
    auto *off = disabled(new QProgressBar);
    off->setValue(40);
    form->addRow("Disabled", off);
    auto *mute = new QProgressBar;
    mute->setValue(40);
    mute->setTextVisible(false);
    form->addRow("No text", mute);
    for (const bool enabled : {true, false}) {
        QSlider *upright = slider(Qt::Vertical, nullptr);
        upright->setEnabled(enabled);
        outer->addWidget(upright);
    }
    outer->addWidget(new QScrollBar(Qt::Vertical));
    auto *upright = new QProgressBar;
    upright->setOrientation(Qt::Vertical);
    upright->setValue(40);
    outer->addWidget(upright);
    outer->addLayout(dialsAndDigits());
    return window;
}

QStandardItemModel *model(QObject *parent)
{
    auto *items = new QStandardItemModel(parent);
    items->setHorizontalHeaderLabels({"Name", "Size", "State"});
    for (int i = 0; i < 12; ++i) {
        auto *name = new QStandardItem(QString("Row %1").arg(i));
        auto *size = new QStandardItem(QString::number(i * 17));
        auto *state = new QStandardItem(i % 2 ? "on" : "off");
        name->setCheckable(i < 4);
        name->setCheckState(Qt::CheckState(i % 3));
        name->setEnabled(i != 5);
        name->setIcon(icon(i % 2 ? QStyle::SP_FileIcon : QStyle::SP_DirIcon));
        if (i == 6)
            size->setForeground(QColor(200, 40, 40)); // a program's own colour
        items->appendRow({name, size, state});
        for (int child = 0; child < i % 3; ++child)
            name->appendRow({new QStandardItem("child"), new QStandardItem, new QStandardItem});
    }
    return items;
}

QWidget *views()
{
    auto *window = new QWidget;
    auto *grid = new QGridLayout(window);
    auto *tree = new QTreeView;
    tree->setModel(model(tree));
    tree->expandAll();
    tree->setAlternatingRowColors(true);
    tree->setSortingEnabled(true);
    tree->setCurrentIndex(tree->model()->index(1, 0));
    grid->addWidget(focused(tree), 0, 0);
    auto *table = new QTableView;
    table->setModel(model(table));
    table->setSelectionMode(QTableView::MultiSelection);
    table->selectRow(2);
    table->selectionModel()->setCurrentIndex(table->model()->index(4, 1),
                                             QItemSelectionModel::NoUpdate);
    grid->addWidget(focused(table), 0, 1);
    auto *list = new QListView;
    list->setModel(model(list));
    list->setCurrentIndex(list->model()->index(2, 0));
    grid->addWidget(list, 1, 0);
    auto *off = new QTreeView;
    off->setModel(model(off));
    off->setCurrentIndex(off->model()->index(1, 0));
    grid->addWidget(disabled(off), 1, 1);
    auto *icons = new QListView;
    icons->setViewMode(QListView::IconMode);
    icons->setModel(model(icons));
    icons->setCurrentIndex(icons->model()->index(1, 0));
    grid->addWidget(icons, 2, 0);
    auto *columns = new QColumnView;
    columns->setModel(model(columns));
    columns->setCurrentIndex(columns->model()->index(2, 0));
    grid->addWidget(columns, 2, 1);
    window->resize(860, 760);
    return window;
}

QWidget *itemWidgets()
{
    auto *window = new QWidget;
    auto *grid = new QGridLayout(window);
    auto *tree = new QTreeWidget;
    tree->setHeaderLabels({"Key", "Value"});
    for (int i = 0; i < 6; ++i) {
        auto *item = new QTreeWidgetItem(tree, {QString("key %1").arg(i), "value"});
        new QTreeWidgetItem(item, {"inner", "value"});
    }
    tree->topLevelItem(0)->setExpanded(true);
    tree->setCurrentItem(tree->topLevelItem(1));
    grid->addWidget(tree, 0, 0);
    auto *table = new QTableWidget(5, 3);
    for (int i = 0; i < 15; ++i)
        table->setItem(i / 3, i % 3, new QTableWidgetItem(QString::number(i)));
    table->setAlternatingRowColors(true);
    table->setCellWidget(1, 1, new QPushButton("Cell"));
    table->setCellWidget(2, 1, new QComboBox);
    table->setCellWidget(3, 1, new QLineEdit("edit"));
    grid->addWidget(table, 0, 1);
    auto *list = new QListWidget;
    list->addItems({"One", "Two", "Three"});
    list->setCurrentRow(1);
    grid->addWidget(list, 1, 0);
    auto *undo = new QUndoView;
    auto *stack = new QUndoStack(undo);
    for (const char *name : {"type", "move", "delete"})
        stack->push(new QUndoCommand(name));
    undo->setStack(stack);
    grid->addWidget(undo, 1, 1);
    auto *calendar = new QCalendarWidget;
    calendar->setSelectedDate(QDate(2026, 1, 15));
    grid->addWidget(calendar, 2, 0);
    auto *weeks = new QCalendarWidget;
    weeks->setGridVisible(true);
    weeks->setSelectedDate(QDate(2026, 1, 15));
    weeks->setHorizontalHeaderFormat(QCalendarWidget::ShortDayNames);
    weeks->setEnabled(false);
    grid->addWidget(weeks, 2, 1);
    window->resize(860, 820);
    return window;
}

QTabWidget *tabs(QTabWidget::TabPosition position)
{
    auto *widget = new QTabWidget;
    widget->setTabPosition(position);
    widget->addTab(new QLabel("Page with a label"), "First");
    widget->addTab(new QLabel("Second"), icon(QStyle::SP_FileIcon), "Second");
    widget->addTab(new QLabel("Third"), "Disabled");
    widget->setTabEnabled(2, false);
    return widget;
}

QWidget *frames()
{
    auto *all = new QWidget;
    auto *column = new QGridLayout(all);
    int cell = 0;
    for (const auto shape : {QFrame::Box, QFrame::Panel, QFrame::StyledPanel, QFrame::HLine}) {
        for (const auto shadow : {QFrame::Plain, QFrame::Raised, QFrame::Sunken}) {
            auto *frame = new QFrame;
            frame->setFrameStyle(int(shape) | int(shadow));
            frame->setMinimumSize(50, 20);
            column->addWidget(frame, cell / 3, cell % 3);
            ++cell;
        }
    }
    return all;
}

QWidget *framesAndGrips()
{
    auto *small = new QWidget;
    auto *button = new QPushButton("Focus frame", small);
    button->move(12, 12);
    auto *frame = new QFocusFrame(small);
    frame->setWidget(button);
    auto *band = new QRubberBand(QRubberBand::Rectangle, small);
    band->setGeometry(20, 60, 90, 40);
    band->show();
    auto *grip = new QSizeGrip(small);
    grip->move(130, 90);
    small->setMinimumSize(150, 110);
    return small;
}

QWidget *containers()
{
    auto *window = new QWidget;
    auto *grid = new QGridLayout(window);
    int at = 0;
    const auto add = [&](QWidget *widget) { grid->addWidget(widget, at / 3, at % 3), ++at; };
    auto *page = new QWidget;
    auto *form = new QFormLayout(page);
    form->addRow("Edit", new QLineEdit("in a tab"));
    form->addRow("Combo", new QComboBox);
    form->addRow("Check", new QCheckBox("check"));
    form->addRow(new QPushButton("Button"));
    QTabWidget *north = tabs(QTabWidget::North);
    north->insertTab(0, page, "Form");
    north->setCurrentIndex(0);
    north->setTabsClosable(true);
    add(focused(north));
    add(tabs(QTabWidget::South));
    add(tabs(QTabWidget::West));
    add(tabs(QTabWidget::East));
    QTabWidget *document = tabs(QTabWidget::North);
    document->setDocumentMode(true);
    document->setMovable(true);
    add(document);
    QTabWidget *many = tabs(QTabWidget::North);
    for (int i = 0; i < 9; ++i)
        many->addTab(new QWidget, QString("Tab %1").arg(i));
    many->setMaximumWidth(260);
    add(many);
    auto *box = new QToolBox;
    box->addItem(new QLabel("Page one"), "One");
    box->addItem(new QLabel("Page two"), icon(QStyle::SP_DirIcon), "Two");
    box->addItem(new QLabel("Page three"), "Three");
    box->setItemEnabled(2, false);
    add(box);
    auto *splitter = new QSplitter;
    splitter->addWidget(new QTextEdit("left"));
    splitter->addWidget(new QTextEdit("right"));
    add(splitter);
    auto *area = new QScrollArea;
    auto *large = new QLabel("large\ncontents");
    large->setMinimumSize(600, 400);
    area->setWidget(large);
    add(area);
    add(frames());
    auto *scene = new QGraphicsScene(window);
    scene->addRect(0, 0, 60, 40);
    scene->addText("scene");
    add(new QGraphicsView(scene));
    add(framesAndGrips());
    window->resize(960, 760);
    return window;
}

void fillMenu(QMenu *menu)
{
    menu->addAction(icon(QStyle::SP_DialogOpenButton), "Open…")->setShortcut(QKeySequence::Open);
    menu->addAction("Disabled")->setEnabled(false);
    menu->addSeparator();
    QAction *check = menu->addAction("Checked");
    check->setCheckable(true);
    check->setChecked(true);
    menu->addAction("Unchecked")->setCheckable(true);
    auto *group = new QActionGroup(menu);
    for (const char *name : {"One of two", "Other of two"}) {
        QAction *action = menu->addAction(name);
        action->setCheckable(true);
        action->setChecked(group->actions().isEmpty());
        group->addAction(action);
    }
    menu->addSection("Section");
    QMenu *inner = menu->addMenu("More");
    inner->addAction("Inner");
    menu->addMenu("Disabled menu")->setEnabled(false);
}

QWidget *menu()
{
    auto *window = new QMenu;
    fillMenu(window);
    window->setActiveAction(window->actions().constFirst());
    return window;
}

QWidget *plainMenu()
{
    auto *window = new QMenu;
    window->addAction("Cut")->setShortcut(QKeySequence::Cut);
    window->addAction("Copy")->setShortcut(QKeySequence::Copy);
    window->addSeparator();
    window->addAction("Paste")->setEnabled(false);
    window->setTearOffEnabled(true);
    window->setActiveAction(window->actions().at(1));
    return window;
}

QDockWidget *dock(const QString &title, QWidget *contents)
{
    auto *widget = new QDockWidget(title);
    widget->setWidget(contents);
    return widget;
}

QWidget *mainWindow()
{
    auto *window = new QMainWindow;
    window->setWindowTitle("Main window");
    for (const char *name : {"&File", "&Edit", "&View"})
        fillMenu(window->menuBar()->addMenu(name));
    window->menuBar()->addMenu("Disabled")->setEnabled(false);
    QToolBar *bar = window->addToolBar("Tools");
    bar->addAction(icon(QStyle::SP_DialogOpenButton), "Open");
    bar->addAction(icon(QStyle::SP_DialogSaveButton), "Save")->setEnabled(false);
    bar->addSeparator();
    QAction *checked = bar->addAction("Checked");
    checked->setCheckable(true);
    checked->setChecked(true);
    bar->addAction("Plain");
    bar->addAction("Disabled")->setEnabled(false);
    bar->addWidget(new QComboBox);
    bar->addWidget(new QLineEdit("find"));
    QToolBar *crowded = window->addToolBar("Crowded");
    for (int i = 0; i < 20; ++i)
        crowded->addAction(QString("Action %1").arg(i));
    auto *side = new QToolBar("Side");
    side->addAction("A");
    side->addAction("B");
    window->addToolBar(Qt::LeftToolBarArea, side);
    auto *tree = new QTreeWidget;
    tree->setHeaderLabel("Objects");
    new QTreeWidgetItem(tree, {"object"});
    QDockWidget *left = dock("Objects", tree);
    window->addDockWidget(Qt::LeftDockWidgetArea, left);
    auto *page = new QWidget;
    auto *form = new QFormLayout(page);
    form->addRow("Name", new QLineEdit("value"));
    form->addRow("Kind", new QComboBox);
    QDockWidget *right = dock("Properties", page);
    window->addDockWidget(Qt::RightDockWidgetArea, right);
    window->tabifyDockWidget(right, dock("Tabbed", new QListWidget));
    QDockWidget *upright = dock("Upright", new QLabel("dock"));
    upright->setFeatures(QDockWidget::DockWidgetClosable | QDockWidget::DockWidgetMovable
                         | QDockWidget::DockWidgetFloatable
                         | QDockWidget::DockWidgetVerticalTitleBar);
    window->addDockWidget(Qt::BottomDockWidgetArea, upright);
    auto *area = new QMdiArea;
    for (const char *name : {"Inactive", "Active"}) {
        QMdiSubWindow *inner = area->addSubWindow(new QTextEdit("text"));
        inner->setWindowTitle(name);
        inner->resize(240, 130);
        inner->move(name[0] == 'A' ? QPoint(60, 70) : QPoint(6, 6));
    }
    window->setCentralWidget(area);
    window->statusBar()->showMessage("Ready");
    window->statusBar()->addPermanentWidget(new QLabel("100 %"));
    window->statusBar()->addPermanentWidget(new QProgressBar);
    window->resize(980, 600);
    return window;
}

QWidget *tabbedMdi()
{
    auto *window = new QMainWindow;
    auto *area = new QMdiArea;
    area->setViewMode(QMdiArea::TabbedView);
    area->setTabsClosable(true);
    for (const char *name : {"one", "two"})
        area->addSubWindow(new QTextEdit(name))->setWindowTitle(name);
    window->setCentralWidget(area);
    window->menuBar()->addMenu("File");
    window->resize(420, 240);
    return window;
}

QWidget *popups()
{
    auto *window = new QWidget;
    auto *layout = new QHBoxLayout(window);
    for (const bool editable : {false, true}) {
        auto *combo = new QComboBox;
        combo->addItems({"First", "Second", "Third"});
        combo->setCurrentIndex(1);
        combo->setEditable(editable);
        combo->setProperty(openProperty, true);
        layout->addWidget(combo);
    }
    auto *edit = new QLineEdit("Se");
    edit->setCompleter(new QCompleter(QStringList{"See", "Send", "Set"}, edit));
    edit->setProperty(openProperty, true);
    layout->addWidget(edit);
    return window;
}

QWidget *message(QMessageBox::Icon kind, const QString &text)
{
    auto *box = new QMessageBox(kind, "Title", text, QMessageBox::Yes | QMessageBox::No);
    box->setInformativeText("What it means, with <a href='x'>a link</a>.");
    return box;
}

QWidget *information()
{
    return message(QMessageBox::Information, "Something is done.");
}

QWidget *question()
{
    return message(QMessageBox::Question, "Do something?");
}

QWidget *warning()
{
    return message(QMessageBox::Warning, "Something is odd.");
}

QWidget *critical()
{
    auto *box = new QMessageBox(QMessageBox::Critical, "Title", "Something is wrong.",
                                QMessageBox::Ok | QMessageBox::Cancel | QMessageBox::Apply
                                    | QMessageBox::Help);
    box->setDetailedText("Details of it");
    box->setCheckBox(new QCheckBox("Do not show again"));
    return box;
}

QWidget *fileDialog(QFileDialog::ViewMode mode)
{
    auto *dialog = new QFileDialog;
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    static const QTemporaryDir folder;
    for (const char *name : {"notes.txt", "picture.png"})
        QFile(folder.filePath(name)).open(QIODevice::WriteOnly);
    QDir(folder.path()).mkdir("inner");
    dialog->setDirectory(folder.path());
    dialog->setViewMode(mode);
    return dialog;
}

QWidget *fileList()
{
    return fileDialog(QFileDialog::List);
}

QWidget *fileDetail()
{
    return fileDialog(QFileDialog::Detail);
}

QWidget *colorDialog()
{
    auto *dialog = new QColorDialog(QColor(40, 120, 200));
    dialog->setOption(QColorDialog::DontUseNativeDialog);
    dialog->setOption(QColorDialog::ShowAlphaChannel);
    return dialog;
}

QWidget *fontDialog()
{
    auto *dialog = new QFontDialog;
    dialog->setOption(QFontDialog::DontUseNativeDialog);
    return dialog;
}

QInputDialog *input(QInputDialog::InputMode mode)
{
    auto *dialog = new QInputDialog;
    dialog->setInputMode(mode);
    dialog->setLabelText("A value:");
    return dialog;
}

QWidget *inputText()
{
    return input(QInputDialog::TextInput);
}

QWidget *inputInt()
{
    return input(QInputDialog::IntInput);
}

QWidget *inputItem()
{
    QInputDialog *dialog = input(QInputDialog::TextInput);
    dialog->setOption(QInputDialog::UseListViewForComboBoxItems);
    dialog->setComboBoxItems({"One", "Two", "Three"});
    return dialog;
}

QWidget *inputLines()
{
    QInputDialog *dialog = input(QInputDialog::TextInput);
    dialog->setOption(QInputDialog::UsePlainTextEditForTextInput);
    return dialog;
}

QWidget *progressDialog()
{
    auto *dialog = new QProgressDialog("Copying…", "Cancel", 0, 100);
    dialog->setMinimumDuration(1000 * 1000);
    dialog->setValue(30);
    return dialog;
}

QWidget *errorMessage()
{
    auto *dialog = new QErrorMessage;
    dialog->findChild<QTextEdit *>()->setPlainText("An error that comes again and again.");
    return dialog;
}

QWidget *wizard(QWizard::WizardStyle style)
{
    auto *dialog = new QWizard;
    dialog->setWizardStyle(style);
    dialog->setOptions(QWizard::HaveHelpButton | QWizard::HaveFinishButtonOnEarlyPages);
    for (const char *title : {"First page", "Second page"}) {
        auto *page = new QWizardPage;
        page->setTitle(title);
        page->setSubTitle("A subtitle that says what to do.");
        auto *form = new QFormLayout(page);
        form->addRow("Name", new QLineEdit);
        form->addRow(new QCheckBox("Choice"));
        dialog->addPage(page);
    }
    dialog->restart();
    return dialog;
}

QWidget *classicWizard()
{
    return wizard(QWizard::ClassicStyle);
}

QWidget *modernWizard()
{
    return wizard(QWizard::ModernStyle);
}

QWidget *macWizard()
{
    return wizard(QWizard::MacStyle);
}

void open(QWidget *widget)
{
    if (auto *combo = qobject_cast<QComboBox *>(widget)) {
        combo->view()->parentWidget()->setAttribute(Qt::WA_DontShowOnScreen);
        combo->showPopup();
    } else if (auto *edit = qobject_cast<QLineEdit *>(widget)) {
        QCompleter *completer = edit->completer();
        completer->setWidget(edit);
        completer->setCompletionPrefix(edit->text());
        completer->popup()->setAttribute(Qt::WA_DontShowOnScreen);
        completer->complete();
        completer->popup()->setCurrentIndex(completer->popup()->model()->index(1, 0));
    }
}

void showDetails(QMessageBox *box)
{
    const auto buttons = box->buttons();
    for (QAbstractButton *button : buttons) {
        if (box->buttonRole(button) == QMessageBox::ActionRole)
            button->click();
    }
}

} // namespace

const QVector<Page> &pages()
{
    static const QVector<Page> all{{"push-buttons", pushButtons},
                                   {"template-buttons", templateButtons},
                                   {"tool-buttons", toolButtons},
                                   {"checks", checks},
                                   {"line-edits", lineEdits},
                                   {"spins-and-combos", spinsAndCombos},
                                   {"texts", texts},
                                   {"ranges", ranges},
                                   {"views", views},
                                   {"item-widgets", itemWidgets},
                                   {"containers", containers},
                                   {"menu", menu},
                                   {"plain-menu", plainMenu},
                                   {"main-window", mainWindow},
                                   {"tabbed-mdi", tabbedMdi},
                                   {"popups", popups},
                                   {"default-link", defaultLink}};
    return all;
}

const QVector<Page> &dialogs()
{
    static const QVector<Page> all{{"information", information},
                                   {"question", question},
                                   {"warning", warning},
                                   {"critical", critical},
                                   {"file-list", fileList},
                                   {"file-detail", fileDetail},
                                   {"color", colorDialog},
                                   {"font", fontDialog},
                                   {"input-text", inputText},
                                   {"input-int", inputInt},
                                   {"input-item", inputItem},
                                   {"input-lines", inputLines},
                                   {"progress", progressDialog},
                                   {"error", errorMessage},
                                   {"wizard-classic", classicWizard},
                                   {"wizard-modern", modernWizard},
                                   {"wizard-mac", macWizard}};
    return all;
}

void settle(QWidget *window)
{
    window->setAttribute(Qt::WA_DontShowOnScreen);
    window->show();
    QApplication::setActiveWindow(window);
    // What is to look focused follows it.
    auto *anchor = new QWidget(window);
    anchor->setFocusPolicy(Qt::StrongFocus);
    anchor->resize(0, 0);
    anchor->show();
    anchor->setFocus();
    const auto all = window->findChildren<QWidget *>();
    for (QWidget *widget : all) {
        if (widget->property(openProperty).toBool())
            open(widget);
    }
    if (auto *box = qobject_cast<QMessageBox *>(window))
        showDetails(box);
    for (int round = 0; round < 3; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    }
}

QList<QWidget *> windows(QWidget *window)
{
    QList<QWidget *> all{window};
    const auto children = window->findChildren<QWidget *>();
    for (QWidget *child : children) {
        const auto *edit = qobject_cast<QLineEdit *>(child);
        QWidget *popup =
            edit && edit->property(openProperty).toBool() ? edit->completer()->popup() : child;
        if (popup->isWindow() && popup->isVisible())
            all.append(popup);
    }
    return all;
}

} // namespace Zoo
