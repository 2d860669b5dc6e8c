// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "stylabletable.h"

#include "widgetzoo.h"

#include <gallery/heldstate.h>

#include <QtWidgets>

namespace Stylable
{
namespace
{

// Windows with one widget, or what a widget stands in.

QWidget *in(QWidget *widget)
{
    auto *window = new QDialog; // where a button can be the default one
    auto *layout = new QVBoxLayout(window);
    layout->setContentsMargins(12, 12, 12, 12);
    layout->addWidget(widget);
    return window;
}

template<typename Widget>
QWidget *plain()
{
    return in(new Widget);
}

template<typename Widget>
QWidget *sized()
{
    auto *widget = new Widget;
    widget->setMinimumSize(120, 80);
    return in(widget);
}

template<typename Widget>
QWidget *named()
{
    return in(new Widget("Settings"));
}

template<typename Widget>
QWidget *bare()
{
    auto *window = new Widget;
    window->resize(120, 80);
    return window;
}

QIcon icon(QStyle::StandardPixmap pixmap = QStyle::SP_FileIcon)
{
    return QApplication::style()->standardIcon(pixmap);
}

QWidget *pushButton()
{
    auto *button = new QPushButton("Settings");
    button->setAutoDefault(false);
    button->setCheckable(true);
    return in(button);
}

QWidget *menuButton()
{
    auto *button = new QPushButton("Settings");
    button->setMenu(new QMenu(button));
    return in(button);
}

QWidget *toolButton()
{
    auto *button = new QToolButton;
    button->setText("Settings");
    button->setCheckable(true);
    return in(button);
}

template<QToolButton::ToolButtonPopupMode mode>
QWidget *popupButton()
{
    auto *button = new QToolButton;
    button->setText("Settings");
    button->setMenu(new QMenu(button));
    button->setPopupMode(mode);
    return in(button);
}

template<Qt::ArrowType type>
QWidget *arrowButton()
{
    auto *button = new QToolButton;
    button->setArrowType(type);
    return in(button);
}

QWidget *comboBox()
{
    auto *combo = new QComboBox;
    combo->addItems({"First", "Second"});
    return in(combo);
}

template<typename Edit>
QWidget *spinBox()
{
    auto *edit = new Edit;
    edit->setMinimumWidth(120);
    return in(edit);
}

QWidget *middleSpinBox()
{
    auto *edit = new QSpinBox;
    edit->setValue(50);
    edit->setMinimumWidth(120);
    return in(edit);
}

QWidget *dateEdit()
{
    auto *edit = new QDateEdit;
    edit->setCalendarPopup(true);
    return in(edit);
}

QWidget *groupBox()
{
    auto *box = new QGroupBox("Settings");
    box->setCheckable(true);
    box->setChecked(false);
    (new QVBoxLayout(box))->addWidget(new QLabel("contents"));
    return in(box);
}

QWidget *progressBar()
{
    auto *bar = new QProgressBar;
    bar->setValue(40);
    return in(bar);
}

template<typename Range, Qt::Orientation orientation>
QWidget *range()
{
    auto *widget = new Range(orientation);
    widget->setRange(0, 100);
    widget->setValue(50);
    if (orientation == Qt::Horizontal)
        widget->setMinimumWidth(160);
    else
        widget->setMinimumHeight(160);
    return in(widget);
}

QStandardItemModel *model(QObject *parent)
{
    auto *items = new QStandardItemModel(parent);
    items->setHorizontalHeaderLabels({"Name", "Size", "State"});
    for (int i = 0; i < 5; ++i) {
        auto *name = new QStandardItem(icon(), QString("Row %1").arg(i));
        name->setCheckable(true);
        name->appendRow(new QStandardItem("inner"));
        items->appendRow({name, new QStandardItem("1"), new QStandardItem("on")});
    }
    return items;
}

template<typename View>
QWidget *view()
{
    auto *widget = new View;
    widget->setModel(model(widget));
    widget->setMinimumSize(300, 180);
    return in(widget);
}

QWidget *undoView()
{
    auto *widget = new QUndoView;
    auto *stack = new QUndoStack(widget);
    stack->push(new QUndoCommand("type"));
    widget->setStack(stack);
    return in(widget);
}

template<Qt::Orientation orientation>
QWidget *header()
{
    auto *widget = new QHeaderView(orientation);
    widget->setModel(model(widget));
    widget->setSectionsClickable(true);
    widget->setHighlightSections(true);
    widget->setMinimumSize(330, 150);
    return in(widget);
}

QWidget *scrolling()
{
    auto *area = new QScrollArea;
    auto *contents = new QWidget;
    contents->setMinimumSize(400, 400);
    area->setWidget(contents);
    return in(area);
}

QWidget *scrollingText()
{
    auto *edit = new QPlainTextEdit;
    edit->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    edit->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    return in(edit);
}

QTabWidget *tabs(int count)
{
    auto *widget = new QTabWidget;
    for (int i = 0; i < count; ++i)
        widget->addTab(new QLabel("Page"), QString("Tab %1").arg(i));
    return widget;
}

template<QTabWidget::TabPosition position>
QWidget *tabWidget()
{
    QTabWidget *widget = tabs(3);
    widget->setTabPosition(position);
    return in(widget);
}

QWidget *oneTab()
{
    return in(tabs(1));
}

QWidget *closableTabs()
{
    QTabWidget *widget = tabs(3);
    widget->setTabsClosable(true);
    return in(widget);
}

QWidget *crowdedTabs()
{
    QTabWidget *widget = tabs(12);
    widget->setMaximumWidth(200);
    return in(widget);
}

QWidget *tabsWithCorners()
{
    QTabWidget *widget = tabs(2);
    for (const Qt::Corner corner : {Qt::TopLeftCorner, Qt::TopRightCorner}) {
        auto *button = new QToolButton;
        button->setText("New");
        widget->setCornerWidget(button, corner);
    }
    return in(widget);
}

QWidget *toolBox()
{
    auto *box = new QToolBox;
    for (const char *name : {"One", "Two", "Three"})
        box->addItem(new QLabel("Page"), name);
    return in(box);
}

QWidget *splitter()
{
    auto *widget = new QSplitter;
    widget->addWidget(new QTextEdit);
    widget->addWidget(new QTextEdit);
    return in(widget);
}

QMenu *menu()
{
    auto *widget = new QMenu;
    widget->addAction(icon(), "Open");
    widget->addAction("Other");
    widget->addSeparator();
    QAction *check = widget->addAction("Check");
    check->setCheckable(true);
    auto *group = new QActionGroup(widget);
    for (const char *name : {"One", "Two"}) {
        QAction *choice = group->addAction(name);
        choice->setCheckable(true);
        widget->addAction(choice);
    }
    widget->addMenu("More")->addAction("Inner");
    return widget;
}

QWidget *popupMenu()
{
    return menu();
}

QWidget *mirroredMenu()
{
    QMenu *widget = menu();
    widget->setLayoutDirection(Qt::RightToLeft);
    return widget;
}

QWidget *tornMenu()
{
    QMenu *widget = menu();
    widget->setTearOffEnabled(true);
    return widget;
}

QWidget *longMenu()
{
    auto *widget = new QMenu;
    widget->setStyleSheet("QMenu {menu-scrollable: 1}"); // else it has columns
    for (int i = 0; i < 200; ++i)
        widget->addAction(QString("Action %1").arg(i));
    return widget;
}

QWidget *menuBar()
{
    auto *window = new QMainWindow;
    for (const char *name : {"File", "Edit"})
        window->menuBar()->addAction(name);
    window->resize(300, 100);
    return window;
}

template<Qt::ToolBarArea area>
QWidget *toolBar()
{
    auto *window = new QMainWindow;
    auto *bar = new QToolBar("Tools");
    bar->addAction("A");
    bar->addSeparator();
    bar->addAction("B");
    window->addToolBar(area, bar);
    window->resize(300, 200);
    return window;
}

QWidget *threeToolBars()
{
    auto *window = new QMainWindow;
    for (const char *name : {"one", "two", "three"})
        window->addToolBar(name)->addAction("A");
    window->resize(400, 120);
    return window;
}

QWidget *statusBar()
{
    auto *window = new QMainWindow;
    window->statusBar()->showMessage("Ready");
    window->statusBar()->addPermanentWidget(new QLabel("100 %"));
    window->resize(300, 100);
    return window;
}

template<int more>
QWidget *dock()
{
    auto *window = new QMainWindow;
    auto *widget = new QDockWidget("Objects");
    widget->setWidget(new QTextEdit);
    widget->setFeatures(widget->features() | QDockWidget::DockWidgetFeatures(more));
    window->addDockWidget(Qt::LeftDockWidgetArea, widget);
    window->setCentralWidget(new QTextEdit);
    window->resize(400, 200);
    return window;
}

QWidget *mdi()
{
    auto *area = new QMdiArea;
    area->addSubWindow(new QTextEdit("text"))->setWindowTitle("Inner");
    area->setMinimumSize(360, 240);
    return in(area);
}

QWidget *sizeGrip()
{
    auto *window = bare<QWidget>();
    (new QSizeGrip(window))->move(40, 40);
    return window;
}

QWidget *frame()
{
    auto *widget = new QFrame;
    widget->setFrameStyle(int(QFrame::Panel) | int(QFrame::Raised));
    widget->setMinimumSize(80, 40);
    return in(widget);
}

QWidget *buttonBox()
{
    return in(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel));
}

QWidget *rubberBand()
{
    auto *window = bare<QWidget>();
    auto *band = new QRubberBand(QRubberBand::Rectangle, window);
    band->setGeometry(20, 20, 60, 40);
    band->show();
    return window;
}

QWidget *focusFrame()
{
    auto *window = bare<QWidget>();
    auto *button = new QPushButton("Button", window);
    button->move(20, 20);
    (new QFocusFrame(window))->setWidget(button);
    return window;
}

QWidget *completer()
{
    auto *edit = new QLineEdit("Se");
    edit->setCompleter(new QCompleter(QStringList{"See", "Send", "Set"}, edit));
    edit->setProperty("zooOpen", true);
    return in(edit);
}

QWidget *wizardPage()
{
    auto *wizard = new QWizard;
    auto *page = new QWizardPage;
    page->setTitle("Title");
    (new QVBoxLayout(page))->addWidget(new QLineEdit);
    wizard->addPage(page);
    wizard->restart();
    return wizard;
}

QWidget *digits()
{
    auto *widget = new QLCDNumber(5);
    widget->display(31.4);
    widget->setMinimumHeight(40);
    return in(widget);
}

QWidget *scene()
{
    auto *view = new QGraphicsView;
    view->setScene(new QGraphicsScene(0, 0, 60, 40, view));
    return in(view);
}

QWidget *dialog(const char *name)
{
    for (const Zoo::Page &page : Zoo::dialogs()) {
        if (qstrcmp(page.name, name) == 0)
            return page.make();
    }
    return nullptr;
}

Make dialogNamed(const char *name)
{
    return [name] { return dialog(name); };
}

/*! \a make with the change at once, which is not the state of the row. */
Make with(const Make &make, const char *className, const Hold &change)
{
    return [=] {
        QWidget *window = make();
        const auto all = window->findChildren<QWidget *>();
        for (QWidget *widget : all) {
            if (widget->inherits(className)) {
                change(widget);
                break;
            }
        }
        return window;
    };
}

// States.

void disable(QWidget *widget)
{
    widget->setEnabled(false);
}

void check(QWidget *button)
{
    button->setProperty("checked", true);
}

Hold set(const char *property, const QVariant &value)
{
    return [=](QWidget *widget) { widget->setProperty(property, value); };
}

void press(QWidget *button)
{
    static_cast<QAbstractButton *>(button)->setDown(true);
}

void hover(QWidget *widget)
{
    const QSize size = widget->size();
    Gallery::holdHover(widget);
    widget->resize(size);
}

void focus(QWidget *widget)
{
    Gallery::holdFocus(widget);
}

void hoverPoint(QWidget *widget, const QPoint &point)
{
    widget->setAttribute(Qt::WA_UnderMouse);
    QHoverEvent enter(QEvent::HoverEnter, point, QPoint(-1, -1));
    QCoreApplication::sendEvent(widget, &enter);
    QHoverEvent move(QEvent::HoverMove, point, point);
    QCoreApplication::sendEvent(widget, &move);
}

void pressPoint(QWidget *widget, const QPoint &point)
{
    QMouseEvent event(QEvent::MouseButtonPress, point, widget->mapToGlobal(point), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

Hold hoverAt(const Area &area)
{
    return [area](QWidget *widget) { hoverPoint(widget, area(widget).center()); };
}

Hold pressAt(const Area &area)
{
    return [area](QWidget *widget) { pressPoint(widget, area(widget).center()); };
}

template<typename Bar>
Hold activate(int action)
{
    return [action](QWidget *widget) {
        auto *bar = static_cast<Bar *>(widget);
        bar->setActiveAction(bar->actions().at(action));
    };
}

void popUp(QWidget *menu)
{
    static_cast<QMenu *>(menu)->popup(QPoint());
}

void scrollTabs(QWidget *widget)
{
    auto *bar = static_cast<QTabBar *>(widget);
    bar->setCurrentIndex(bar->count() - 1);
}

void open(QWidget *combo)
{
    auto *box = static_cast<QComboBox *>(combo);
    box->view()->parentWidget()->setAttribute(Qt::WA_DontShowOnScreen);
    box->showPopup();
}

void expand(QWidget *tree)
{
    static_cast<QTreeView *>(tree)->expandAll();
}

Hold choose(int row)
{
    return [row](QWidget *widget) {
        auto *view = static_cast<QAbstractItemView *>(widget);
        view->setCurrentIndex(view->model()->index(row, 0));
    };
}

void alternate(QWidget *view)
{
    static_cast<QAbstractItemView *>(view)->setAlternatingRowColors(true);
}

void leaveWindow(QWidget *inner)
{
    auto *area = static_cast<QMdiSubWindow *>(inner)->mdiArea();
    area->addSubWindow(new QTextEdit)->setWindowTitle("Other");
    area->subWindowList().constLast()->setGeometry(200, 150, 120, 80);
    area->subWindowList().constLast()->show();
    area->setActiveSubWindow(area->subWindowList().constLast());
}

void letGo(QWidget *dock)
{
    static_cast<QDockWidget *>(dock)->setFeatures(QDockWidget::DockWidgetClosable
                                                  | QDockWidget::DockWidgetMovable
                                                  | QDockWidget::DockWidgetFloatable);
}

void keepHere(QWidget *dock)
{
    static_cast<QDockWidget *>(dock)->setFeatures(QDockWidget::NoDockWidgetFeatures);
}

// Places.

Area barPart(QStyle::SubControl part)
{
    return [part](QWidget *widget) {
        auto *bar = static_cast<QAbstractSlider *>(widget);
        QStyleOptionSlider option;
        option.initFrom(bar);
        option.orientation = bar->orientation();
        option.maximum = bar->maximum();
        option.sliderPosition = option.sliderValue = bar->value();
        option.pageStep = bar->pageStep();
        if (bar->orientation() == Qt::Horizontal)
            option.state |= QStyle::State_Horizontal;
        const auto control =
            qobject_cast<QScrollBar *>(bar) ? QStyle::CC_ScrollBar : QStyle::CC_Slider;
        return bar->style()->subControlRect(control, &option, part, bar);
    };
}

Area spinPart(QStyle::SubControl part)
{
    return [part](QWidget *widget) {
        QStyleOptionSpinBox option;
        option.initFrom(widget);
        option.subControls = QStyle::SC_All;
        option.frame = true;
        return widget->style()->subControlRect(QStyle::CC_SpinBox, &option, part, widget);
    };
}

Area tab(int index)
{
    return [index](QWidget *widget) {
        return static_cast<QTabBar *>(widget)->tabRect(index).adjusted(1, 1, -1, -1);
    };
}

Area section(int index)
{
    return [index](QWidget *widget) {
        auto *header = static_cast<QHeaderView *>(widget);
        const int begin = header->sectionViewportPosition(index);
        return header->orientation() == Qt::Horizontal
            ? QRect(begin, 0, header->sectionSize(index), header->height())
            : QRect(0, begin, header->width(), header->sectionSize(index));
    };
}

QTreeView *treeOf(QWidget *widget)
{
    return static_cast<QTreeView *>(widget);
}

Area branch(int row)
{
    return [row](QWidget *widget) {
        QTreeView *tree = treeOf(widget);
        const QRect item = tree->visualRect(tree->model()->index(row, 0));
        const QRect place(0, item.top(), item.left(), item.height());
        return place.translated(tree->viewport()->pos());
    };
}

Area item(int row)
{
    return [row](QWidget *widget) {
        auto *view = static_cast<QAbstractItemView *>(widget);
        return view->visualRect(view->model()->index(row, 0)).translated(view->viewport()->pos());
    };
}

Area itemPart(int left, int width)
{
    return [=](QWidget *widget) {
        const QRect whole = item(0)(widget);
        return QRect(whole.left() + left, whole.top(), width, whole.height());
    };
}

Area action(int index)
{
    return [index](QWidget *widget) {
        auto *menu = static_cast<QMenu *>(widget);
        return menu->actionGeometry(menu->actions().at(index));
    };
}

// Subjects.

QWidget *tipOf(QWidget *window)
{
    QToolTip::showText(QPoint(10, 10), "A tool tip", window);
    const QWidgetList all = QApplication::topLevelWidgets();
    for (QWidget *widget : all) {
        if (widget->inherits("QTipLabel") && widget->isVisible())
            return widget;
    }
    return nullptr;
}

QWidget *popupOf(QWidget *window)
{
    return window->findChild<QLineEdit *>()->completer()->popup();
}

template<typename Widget>
QWidget *first(QWidget *window)
{
    const auto all = window->findChildren<Widget *>();
    for (Widget *widget : all) {
        if (widget->isVisible())
            return widget;
    }
    return nullptr;
}

template<int index>
QWidget *boxTab(QWidget *window)
{
    return window->findChildren<QAbstractButton *>("qt_toolbox_toolboxbutton").at(index);
}

void hoverCloseButton(QWidget *bar)
{
    const auto buttons = bar->findChildren<QAbstractButton *>();
    for (QAbstractButton *button : buttons)
        button->setAttribute(Qt::WA_UnderMouse, button->inherits("CloseButton"));
}

void hoverSection(QWidget *header)
{
    QMouseEvent move(QEvent::MouseMove, section(1)(header).center(), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(static_cast<QHeaderView *>(header)->viewport(), &move);
}

void pressSection(QWidget *header)
{
    pressPoint(static_cast<QHeaderView *>(header)->viewport(), section(1)(header).center());
}

void hoverItem(QWidget *widget)
{
    Gallery::holdItemHover(static_cast<QAbstractItemView *>(widget), 1, 0);
}

void selectRow(QWidget *header)
{
    static_cast<QTableView *>(header->parentWidget())->selectRow(1);
}

} // namespace

// clang-format off
QStringList referenceWidgets()
{
    return {"QAbstractScrollArea", "QCheckBox", "QColumnView", "QComboBox", "QDateEdit", "QDateTimeEdit",
            "QDialog", "QDialogButtonBox", "QDockWidget", "QDoubleSpinBox", "QFrame", "QGroupBox",
            "QHeaderView", "QLabel", "QLineEdit", "QListView", "QListWidget", "QMainWindow", "QMenu",
            "QMenuBar", "QMessageBox", "QProgressBar", "QPushButton", "QRadioButton", "QScrollBar",
            "QSizeGrip", "QSlider", "QSpinBox", "QSplitter", "QStatusBar", "QTabBar", "QTabWidget",
            "QTableView", "QTableWidget", "QTextEdit", "QTimeEdit", "QToolBar", "QToolButton", "QToolBox",
            "QToolTip", "QTreeView", "QTreeWidget", "QWidget"};
}

QStringList referenceSubControls()
{
    return {"add-line", "add-page", "branch", "chunk", "close-button", "corner", "down-arrow", "down-button",
            "drop-down", "float-button", "groove", "indicator", "handle", "icon", "item", "left-arrow",
            "left-corner", "menu-arrow", "menu-button", "menu-indicator", "right-arrow", "pane",
            "right-corner", "scroller", "section", "separator", "sub-line", "sub-page", "tab", "tab-bar",
            "tear", "tearoff", "text", "title", "up-arrow", "up-button"};
}

QStringList referenceStates()
{
    return {"active", "adjoins-item", "alternate", "bottom", "checked", "closable", "closed", "default",
            "disabled", "editable", "edit-focus", "enabled", "exclusive", "first", "flat", "floatable",
            "focus", "has-children", "has-siblings", "horizontal", "hover", "indeterminate", "last", "left",
            "maximized", "middle", "minimized", "movable", "no-frame", "non-exclusive", "off", "on",
            "only-one", "open", "next-selected", "pressed", "previous-selected", "read-only", "right",
            "selected", "top", "unchecked", "vertical", "window"};
}

QStringList otherClasses()
{
    return {"QPlainTextEdit", "QTextBrowser", "QMdiArea", "QMdiSubWindow", "QTableCornerButton", "QDial",
            "QLCDNumber", "QCommandLinkButton", "QFileDialog", "QColorDialog", "QFontDialog", "QInputDialog",
            "QProgressDialog", "QErrorMessage", "QWizard", "QWizardPage", "QFontComboBox",
            "QKeySequenceEdit", "QUndoView", "QGraphicsView", "QCompleter", "QRubberBand", "QFocusFrame",
            "QCalendarWidget", "QScrollArea", "QStackedWidget", "QAbstractSpinBox", "QSplitterHandle"};
}
// clang-format on

namespace
{

// NOLINTNEXTLINE(readability-function-size): a table, one row a class
QVector<Row> classRows()
{
    // clang-format off
    return {
        Row("QAbstractScrollArea").on(sized<QAbstractScrollArea>).probedBy("border: 5px solid #00ff00; background: #ff00ff"),
        Row("QCheckBox").on(named<QCheckBox>),
        Row("QColumnView").on(view<QColumnView>),
        Row("QComboBox").on(comboBox),
        Row("QDateEdit").on(spinBox<QDateEdit>),
        Row("QDateTimeEdit").on(spinBox<QDateTimeEdit>),
        Row("QDialog").on(bare<QDialog>).coloredBy(QPalette::Window),
        Row("QDialogButtonBox").on(buttonBox).byRules("QPushButton").probedBy("button-layout: 1; background: #ff00ff"),
        Row("QDockWidget").on(dock<0>).byRules("QDockWidget::title").probedBy("border: 5px solid #00ff00; titlebar-close-icon: none"),
        Row("QDoubleSpinBox").on(spinBox<QDoubleSpinBox>),
        Row("QFrame").on(frame).drawnBy("drawFlatFrame(), controldrawing.cpp"),
        Row("QGroupBox").on(groupBox),
        Row("QHeaderView").on(header<Qt::Horizontal>),
        Row("QLabel").on(named<QLabel>).byRules("*"),
        Row("QLineEdit").on(plain<QLineEdit>),
        Row("QListView").on(view<QListView>),
        Row("QListWidget").on(sized<QListWidget>),
        Row("QMainWindow").on(dock<0>).byRules("QMainWindow::separator"),
        Row("QMenu").on(popupMenu),
        Row("QMenuBar").on(menuBar),
        Row("QMessageBox").on(dialogNamed("question")).drawnBy("standardIcon(), themedstyle.cpp"),
        Row("QProgressBar").on(progressBar),
        Row("QPushButton").on(pushButton),
        Row("QRadioButton").on(named<QRadioButton>),
        Row("QScrollBar").on(range<QScrollBar, Qt::Vertical>),
        Row("QSizeGrip").on(sizeGrip).drawnBy("drawSizeGrip(), controldrawing.cpp"),
        Row("QSlider").on(range<QSlider, Qt::Horizontal>),
        Row("QSpinBox").on(middleSpinBox),
        Row("QSplitter").on(splitter).byRules("QSplitter::handle").found(first<QSplitterHandle>),
        Row("QStatusBar").on(statusBar),
        Row("QTabBar").on(tabWidget<QTabWidget::North>),
        Row("QTabWidget").on(tabWidget<QTabWidget::North>).byRules("QTabWidget::pane").unprobed(),
        Row("QTableView").on(view<QTableView>),
        Row("QTableWidget").on(sized<QTableWidget>),
        Row("QTextEdit").on(plain<QTextEdit>),
        Row("QTimeEdit").on(spinBox<QTimeEdit>),
        Row("QToolBar").on(toolBar<Qt::TopToolBarArea>),
        Row("QToolButton").on(toolButton),
        Row("QToolBox").on(toolBox).byRules("QToolBox::tab"),
        Row("QToolTip").on(bare<QWidget>).found(tipOf),
        Row("QTreeView").on(view<QTreeView>),
        Row("QTreeWidget").on(sized<QTreeWidget>),
        Row("QWidget").on(bare<QWidget>).coloredBy(QPalette::Window),

        Row("QPlainTextEdit").on(plain<QPlainTextEdit>),
        Row("QTextBrowser").on(plain<QTextBrowser>),
        Row("QMdiArea").on(mdi).drawnBy("followPalette(), themedstyle.cpp").unprobed(),
        Row("QMdiSubWindow").on(mdi).drawnBy("drawTitleBar(), titlebar.cpp"),
        Row("QTableCornerButton").on(view<QTableView>).byRules("QTableCornerButton::section").unprobed(),
        Row("QDial").on(sized<QDial>).drawnBy("drawDial(), controldrawing.cpp").unprobed(),
        Row("QLCDNumber").on(digits).coloredBy(QPalette::WindowText),
        Row("QCommandLinkButton").on(named<QCommandLinkButton>),
        Row("QFileDialog").on(dialogNamed("file-list")).drawnBy("standardIcon(), themedstyle.cpp"),
        Row("QColorDialog").on(dialogNamed("color")).byRules("QPushButton, QLineEdit, QAbstractSpinBox"),
        Row("QFontDialog").on(dialogNamed("font")).byRules("QPushButton, QListView, QAbstractItemView, QComboBox"),
        Row("QInputDialog").on(dialogNamed("input-text")).byRules("QLineEdit, QPushButton"),
        Row("QProgressDialog").on(dialogNamed("progress")).byRules("QProgressBar, QPushButton"),
        Row("QErrorMessage").on(dialogNamed("error")).byRules("QTextEdit, QPushButton"),
        Row("QWizard").on(dialogNamed("wizard-modern")).byRules("QPushButton"),
        Row("QWizardPage").on(wizardPage).byRules("QLineEdit").unprobed(),
        Row("QFontComboBox").on(plain<QFontComboBox>),
        Row("QKeySequenceEdit").on(plain<QKeySequenceEdit>).byRules("QLineEdit").unprobed(),
        Row("QUndoView").on(undoView),
        Row("QGraphicsView").on(scene),
        Row("QCompleter").on(completer).found(popupOf).byRules("QListView, QAbstractItemView, QAbstractScrollArea").unprobed(),
        Row("QRubberBand").on(rubberBand).coloredBy(QPalette::Highlight).unprobed(),
        Row("QFocusFrame").on(focusFrame).coloredBy(QPalette::WindowText).unprobed(),
        Row("QCalendarWidget").on(plain<QCalendarWidget>).byRules("QCalendarWidget, QToolButton, QTableView, QWidget").unprobed(),
        Row("QScrollArea").on(scrolling),
        Row("QStackedWidget").on(plain<QStackedWidget>).coloredBy(QPalette::Window),
        Row("QAbstractSpinBox").on(plain<QAbstractSpinBox>),
        Row("QSplitterHandle").on(splitter).byRules("QSplitter::handle").unprobed(),
    };
    // clang-format on
}

// NOLINTNEXTLINE(readability-function-size): a table, one row a class
QVector<Row> subControlRows()
{
    const auto scrollBar = range<QScrollBar, Qt::Vertical>;
    const auto scrollBarAcross = range<QScrollBar, Qt::Horizontal>;
    const auto slider = range<QSlider, Qt::Horizontal>;
    const auto uprightSlider = range<QSlider, Qt::Vertical>;
    const Hold sort = [](QWidget *header) {
        static_cast<QHeaderView *>(header)->setSortIndicator(0, Qt::AscendingOrder);
        static_cast<QHeaderView *>(header)->setSortIndicatorShown(true);
    };
    const Hold sortDown = [](QWidget *header) {
        static_cast<QHeaderView *>(header)->setSortIndicator(0, Qt::DescendingOrder);
        static_cast<QHeaderView *>(header)->setSortIndicatorShown(true);
    };
    // clang-format off
    return {
        Row("QScrollBar::add-line").on(scrollBar),
        Row("QScrollBar::sub-line").on(scrollBar),
        Row("QScrollBar::add-page").on(scrollingText),
        Row("QScrollBar::sub-page").on(scrollingText),
        Row("QScrollBar::handle").on(scrollBar),
        Row("QScrollBar::handle:horizontal").on(scrollBarAcross),
        Row("QScrollBar::up-arrow").on(scrollBar).byRules("QScrollBar::sub-line").unprobed(),
        Row("QScrollBar::down-arrow").on(scrollBar).byRules("QScrollBar::add-line").unprobed(),
        Row("QScrollBar::left-arrow").on(scrollBarAcross).byRules("QScrollBar::sub-line").unprobed(),
        Row("QScrollBar::right-arrow").on(scrollBarAcross).byRules("QScrollBar::add-line").unprobed(),
        Row("QScrollBar::down-button").on(scrollBar).byRules("QScrollBar::add-line").unprobed(),
        Row("QSlider::groove").on(slider),
        Row("QSlider::groove:vertical").on(uprightSlider),
        Row("QSlider::handle").on(slider).unprobed(),
        Row("QSlider::handle:vertical").on(uprightSlider),
        Row("QSlider::sub-page").on(slider),
        Row("QSlider::add-page:vertical").on(uprightSlider),
        Row("QProgressBar::chunk").on(progressBar),
        Row("QAbstractScrollArea::corner").on(scrollingText),
        Row("QComboBox::drop-down").on(comboBox),
        Row("QComboBox::down-arrow").on(comboBox).byRules("QComboBox::drop-down"),
        Row("QHeaderView::section").on(header<Qt::Horizontal>),
        Row("QHeaderView::section:vertical").on(header<Qt::Vertical>),
        Row("QHeaderView::up-arrow").on(header<Qt::Horizontal>).when(sort),
        Row("QHeaderView::down-arrow").on(header<Qt::Horizontal>).when(sortDown),
        Row("QTableCornerButton::section").on(view<QTableView>),
        Row("QSpinBox::up-button").on(middleSpinBox),
        Row("QSpinBox::down-button").on(middleSpinBox),
        Row("QSpinBox::up-arrow").on(middleSpinBox).byRules("QSpinBox::up-button"),
        Row("QSpinBox::down-arrow").on(middleSpinBox).byRules("QSpinBox::down-button"),
        Row("QDoubleSpinBox::up-button").on(spinBox<QDoubleSpinBox>),
        Row("QTimeEdit::up-button").on(spinBox<QTimeEdit>),
        Row("QDateEdit::drop-down").on(dateEdit),
        Row("QCheckBox::indicator").on(named<QCheckBox>),
        Row("QRadioButton::indicator").on(named<QRadioButton>),
        Row("QGroupBox::indicator").on(groupBox),
        Row("QGroupBox::title").on(groupBox),
        Row("QMenu::indicator").on(popupMenu),
        Row("QMenu::item").on(popupMenu),
        Row("QMenu::icon").on(popupMenu),
        Row("QMenu::separator").on(popupMenu).drawnBy("drawMenuSeparators(), controldrawing.cpp").probedBy("background: #ff00ff; height: 5px"),
        Row("QMenu::right-arrow").on(popupMenu),
        Row("QMenu::left-arrow").on(mirroredMenu),
        Row("QMenu::scroller").on(longMenu).alike(popUp),
        Row("QMenu::tearoff").on(tornMenu),
        Row("QMenuBar::item").on(menuBar),
        Row("QListView::indicator").on(view<QListView>).at(itemPart(0, 20)).drawnBy("drawPrimitive(), themedstyle.cpp"),
        Row("QListView::icon").on(view<QListView>).at(itemPart(20, 24)).drawnBy("standardIcon(), themedstyle.cpp").unprobed(),
        Row("QListView::item").on(view<QListView>).coloredBy(QPalette::Text),
        Row("QListView::text").on(view<QListView>).coloredBy(QPalette::Text).unprobed(),
        Row("QTreeView::item").on(view<QTreeView>).coloredBy(QPalette::Text),
        Row("QTableView::item").on(view<QTableView>).coloredBy(QPalette::Text),
        Row("QTreeView::branch").on(view<QTreeView>).at(branch(0)).drawnBy("drawPrimitive(), themedstyle.cpp"),
        Row("QColumnView::left-arrow").on(view<QColumnView>).drawnBy("drawPrimitive(), themedstyle.cpp").unprobed(),
        Row("QColumnView::right-arrow").on(view<QColumnView>).drawnBy("drawPrimitive(), themedstyle.cpp").unprobed(),
        Row("QStatusBar::item").on(statusBar).onStyle("windows"),
        Row("QPushButton::menu-indicator").on(menuButton),
        Row("QToolButton::menu-indicator").on(popupButton<QToolButton::InstantPopup>),
        Row("QToolButton::menu-button").on(popupButton<QToolButton::MenuButtonPopup>),
        Row("QToolButton::menu-arrow").on(popupButton<QToolButton::MenuButtonPopup>),
        Row("QToolButton::up-arrow").on(arrowButton<Qt::UpArrow>),
        Row("QToolButton::down-arrow").on(arrowButton<Qt::DownArrow>),
        Row("QToolButton::left-arrow").on(arrowButton<Qt::LeftArrow>),
        Row("QToolButton::right-arrow").on(arrowButton<Qt::RightArrow>),
        Row("QTabWidget::pane").on(tabWidget<QTabWidget::North>),
        Row("QTabWidget::tab-bar").on(tabWidget<QTabWidget::North>).byRules("QTabBar::tab").probedBy("left: 40px"),
        Row("QTabWidget::left-corner").on(tabsWithCorners).byRules("QToolButton").probedBy("top: 9px; left: 9px"),
        Row("QTabWidget::right-corner").on(tabsWithCorners).byRules("QToolButton").probedBy("top: 9px; right: 9px"),
        Row("QTabBar::tab").on(tabWidget<QTabWidget::North>),
        Row("QTabBar::close-button").on(closableTabs),
        Row("QTabBar::scroller").on(crowdedTabs).probedBy("width: 90px"),
        Row("QTabBar::tear").on(crowdedTabs).alike(scrollTabs),
        Row("QToolBox::tab").on(toolBox),
        Row("QSplitter::handle").on(splitter),
        Row("QToolBar::separator").on(toolBar<Qt::TopToolBarArea>),
        Row("QToolBar::handle").on(toolBar<Qt::TopToolBarArea>).drawnBy("drawPrimitive(), themedstyle.cpp"),
        Row("QMainWindow::separator").on(dock<0>),
        Row("QDockWidget::title").on(dock<0>),
        Row("QDockWidget::close-button").on(dock<0>).byRules("QDockWidget").probedBy("top: 6px; left: -20px"),
        Row("QDockWidget::float-button").on(dock<0>).byRules("QDockWidget").probedBy("top: 6px; left: -50px"),
    };
    // clang-format on
}

QVector<Row> buttonStateRows()
{
    QVector<Row> rows;
    const QPair<QString, Make> buttons[] = {{"QPushButton", pushButton},
                                            {"QToolButton", toolButton},
                                            {"QCommandLinkButton", named<QCommandLinkButton>},
                                            {"QCheckBox", named<QCheckBox>},
                                            {"QRadioButton", named<QRadioButton>}};
    for (const auto &[name, make] : buttons) {
        rows << Row(name + ":hover").on(make).when(hover);
        rows << Row(name + ":pressed").on(make).when(press);
        rows << Row(name + ":focus").on(make).when(focus);
    }
    for (const auto &[name, make] : {buttons[0], buttons[1]}) {
        rows << Row(name + ":disabled").on(make).when(disable);
        rows << Row(name + ":checked").on(make).when(check);
    }
    for (const char *name : {"QCheckBox", "QRadioButton"}) {
        const Make make =
            name == QLatin1String("QCheckBox") ? Make(named<QCheckBox>) : Make(named<QRadioButton>);
        const QString box = name % QLatin1String("::indicator");
        rows << Row(box + ":unchecked")
                    .on(with(make, name, check))
                    .when(set("checked", false))
                    .byRules(name == QLatin1String("QCheckBox") ? box % QLatin1String(":unchecked")
                                                                : box);
        rows << Row(box + ":checked").on(make).when(check);
        rows << Row(box + ":checked:disabled").on(with(make, name, check)).when(disable);
        rows << Row(box + ":unchecked:disabled")
                    .on(make)
                    .when(disable)
                    .byRules(name == QLatin1String("QCheckBox")
                                 ? box % QLatin1String(":unchecked:disabled")
                                 : box % QLatin1String(":disabled"));
    }
    return rows;
}

QVector<Row> editStateRows()
{
    const QPair<QString, Make> edits[] = {{"QLineEdit", plain<QLineEdit>},
                                          {"QTextEdit", plain<QTextEdit>},
                                          {"QPlainTextEdit", plain<QPlainTextEdit>},
                                          {"QSpinBox", middleSpinBox},
                                          {"QDoubleSpinBox", spinBox<QDoubleSpinBox>},
                                          {"QDateEdit", dateEdit},
                                          {"QTimeEdit", spinBox<QTimeEdit>},
                                          {"QDateTimeEdit", spinBox<QDateTimeEdit>},
                                          {"QComboBox", comboBox},
                                          {"QFontComboBox", plain<QFontComboBox>}};
    QVector<Row> rows;
    for (const auto &[name, make] : edits) {
        const bool isArea = name.endsWith("TextEdit");
        rows << Row(name + ":focus").on(make).when(focus);
        if (isArea) // its ground is the palette's
            rows << Row(name + ":disabled").on(make).when(disable).coloredBy(QPalette::Base);
        else
            rows << Row(name + ":hover").on(make).when(hover)
                 << Row(name + ":disabled").on(make).when(disable);
    }
    return rows;
}

QVector<Row> partStateRows()
{
    const Make scrollBar = range<QScrollBar, Qt::Vertical>;
    const Make slider = range<QSlider, Qt::Horizontal>;
    const Area barHandle = barPart(QStyle::SC_ScrollBarSlider);
    const Area knob = barPart(QStyle::SC_SliderHandle);
    const Area up = spinPart(QStyle::SC_SpinBoxUp);
    const Area down = spinPart(QStyle::SC_SpinBoxDown);
    const auto greatest = [](QWidget *box) { static_cast<QSpinBox *>(box)->setValue(99); };
    const auto least = [](QWidget *box) { static_cast<QSpinBox *>(box)->setValue(0); };
    // clang-format off
    return {
        Row("QScrollBar::handle:hover").on(scrollBar).when(hoverAt(barHandle)),
        Row("QScrollBar::handle:pressed").on(scrollBar).when(pressAt(barHandle)),
        Row("QScrollBar::handle:disabled").on(scrollBar).when(disable),
        Row("QSlider::handle:hover").on(slider).when(hoverAt(knob)),
        Row("QSlider::handle:pressed").on(slider).when(pressAt(knob)),
        Row("QSlider::handle:focus").on(slider).when(focus),
        Row("QSlider::handle:disabled").on(slider).when(disable),
        Row("QSlider::sub-page:disabled").on(slider).when(disable),
        Row("QSpinBox::up-button:hover").on(middleSpinBox).when(hoverAt(up)),
        Row("QSpinBox::up-button:pressed").on(middleSpinBox).when(pressAt(up)).at(up),
        Row("QSpinBox::up-button:off").on(middleSpinBox).when(greatest).at(up),
        Row("QSpinBox::up-button:disabled").on(middleSpinBox).when(disable).at(up),
        Row("QSpinBox::down-button:hover").on(middleSpinBox).when(hoverAt(down)),
        Row("QSpinBox::down-button:pressed").on(middleSpinBox).when(pressAt(down)).at(down),
        Row("QSpinBox::down-button:off").on(middleSpinBox).when(least).at(down),
        Row("QDoubleSpinBox::up-button:hover").on(spinBox<QDoubleSpinBox>).when(hoverAt(up)),
        Row("QTimeEdit::down-button:hover").on(spinBox<QTimeEdit>).when(hoverAt(down)),
        Row("QComboBox::drop-down:disabled").on(comboBox).when(disable),
        Row("QComboBox:on").on(comboBox).when(open),
        Row("QComboBox:editable").on(comboBox).when(set("editable", true)).byRules("QComboBox"),
        Row("QComboBox:read-only").on(comboBox).byRules("QComboBox"),
        Row("QLineEdit:read-only").on(plain<QLineEdit>).when(set("readOnly", true)),
        Row("QLineEdit:no-frame").on(with(plain<QLineEdit>, "QLineEdit", set("frame", false))).byRules("QLineEdit[frame=\"false\"]"),
        Row("QSpinBox:no-frame").on(with(middleSpinBox, "QSpinBox", set("frame", false))).byRules("QSpinBox[frame=\"false\"]"),
        Row("QPushButton:flat").on(pushButton).when(set("flat", true)),
        Row("QGroupBox:flat").on(groupBox).when(set("flat", true)),
        Row("QPushButton:default").on(pushButton).when(set("default", true)),
        Row("QPushButton:default:hover").on(with(pushButton, "QPushButton", set("default", true))).when(hover),
        Row("QPushButton:default:pressed").on(with(pushButton, "QPushButton", set("default", true))).when(press),
        Row("QPushButton:default:focus").on(with(pushButton, "QPushButton", set("default", true))).when(focus),
        Row("QPushButton::menu-indicator:disabled").on(menuButton).when(disable),
        Row("QToolButton::menu-button:hover").on(popupButton<QToolButton::MenuButtonPopup>).when(hover),
        Row("QCommandLinkButton:default:focus").on(with(named<QCommandLinkButton>, "QCommandLinkButton", set("default", true))).when(focus),
        Row("QCommandLinkButton:disabled").on(named<QCommandLinkButton>).when(disable).byRules("QPushButton:disabled, QCommandLinkButton:disabled"),
        Row("QToolButton::down-arrow:disabled").on(arrowButton<Qt::DownArrow>).when(disable),
        Row("QToolButton:on").on(toolButton).when(check).byRules("QToolButton:checked"),
        Row("QCheckBox::indicator:enabled").on(named<QCheckBox>),
        Row("QCheckBox::indicator:indeterminate").on(named<QCheckBox>).when([](QWidget *box) {
            static_cast<QCheckBox *>(box)->setCheckState(Qt::PartiallyChecked); }),
        Row("QProgressBar::chunk:indeterminate").on(progressBar).when(set("maximum", 0)).byRules("QProgressBar::chunk").unprobed(),
        Row("QProgressBar::chunk:disabled").on(progressBar).when(disable),
        Row("QGroupBox:focus").on(groupBox).when(focus),
        Row("QGroupBox:disabled").on(groupBox).when(disable).byRules("QGroupBox::indicator:disabled"),
        Row("QGroupBox::indicator:checked").on(groupBox).when(check),
        Row("QGroupBox::indicator:unchecked").on(with(groupBox, "QGroupBox", check)).when(set("checked", false)),
        Row("QDial:focus").on(sized<QDial>).when(focus).drawnBy("drawDial(), controldrawing.cpp").unprobed(),
        Row("QDial:disabled").on(sized<QDial>).when(disable).drawnBy("drawDial(), controldrawing.cpp").unprobed(),
    };
    // clang-format on
}

QVector<Row> barStateRows()
{
    const auto checkAction = [](int index) {
        return [index](QWidget *menu) { menu->actions().at(index)->setChecked(true); };
    };
    const auto defaultAction = [](QWidget *menu) {
        static_cast<QMenu *>(menu)->setDefaultAction(menu->actions().at(1));
    };
    const auto disableAction = [](QWidget *bar) { bar->actions().at(1)->setEnabled(false); };
    // clang-format off
    return {
        Row("QMenu::item:selected").on(popupMenu).when(activate<QMenu>(0)),
        Row("QMenu::item:disabled").on(popupMenu).when(disableAction).coloredBy(QPalette::Text).byRules("QMenu"),
        Row("QMenu::item:default").on(popupMenu).when(defaultAction),
        Row("QMenu::indicator:non-exclusive").on(popupMenu).at(action(3)),
        Row("QMenu::indicator:non-exclusive:checked").on(popupMenu).when(checkAction(3)),
        Row("QMenu::indicator:exclusive").on(popupMenu).at(action(4)),
        Row("QMenu::indicator:exclusive:checked").on(popupMenu).when(checkAction(4)),
        Row("QMenuBar::item:selected").on(menuBar).when(activate<QMenuBar>(0)),
        Row("QMenuBar::item:disabled").on(menuBar).when(disableAction).coloredBy(QPalette::ButtonText),
        Row("QToolBar:top").on(toolBar<Qt::TopToolBarArea>),
        Row("QToolBar:bottom").on(toolBar<Qt::BottomToolBarArea>),
        Row("QToolBar:left").on(toolBar<Qt::LeftToolBarArea>),
        Row("QToolBar:right").on(toolBar<Qt::RightToolBarArea>),
        Row("QToolBar::separator:horizontal").on(toolBar<Qt::TopToolBarArea>),
        Row("QToolBar::separator:vertical").on(toolBar<Qt::LeftToolBarArea>),
        Row("QToolBar::handle:vertical").on(toolBar<Qt::LeftToolBarArea>).drawnBy("drawPrimitive(), themedstyle.cpp"),
        Row("QToolBar:first").on(threeToolBars).byRules("QToolBar"),
        Row("QToolBar:only-one").on(toolBar<Qt::TopToolBarArea>).byRules("QToolBar"),
        Row("QMainWindow::separator:hover").on(dock<0>).when([](QWidget *window) {
            hoverPoint(window, window->findChild<QDockWidget *>()->geometry().topRight() + QPoint(3, 40)); }),
        Row("QSplitter::handle:hover").on(splitter).found(first<QSplitterHandle>).when([](QWidget *handle) {
            hoverPoint(handle, QPoint(1, 1)); }),
        Row("QDockWidget::title:closable").on(with(dock<0>, "QDockWidget", keepHere)).when(letGo).byRules("QDockWidget::title"),
        Row("QDockWidget::title:floatable").on(dock<0>).byRules("QDockWidget::title"),
        Row("QDockWidget::title:movable").on(dock<0>).byRules("QDockWidget::title"),
        Row("QDockWidget::title:vertical").on(dock<QDockWidget::DockWidgetVerticalTitleBar>).byRules("QDockWidget::title"),
        Row("QMdiSubWindow:active").on(mdi).when(leaveWindow).drawnBy("drawTitleBar(), titlebar.cpp").unprobed(),
        Row("QMdiSubWindow:minimized").on(mdi).when([](QWidget *window) { window->showMinimized(); }).drawnBy("drawTitleBar(), titlebar.cpp").unprobed(),
        Row("QMdiSubWindow:maximized").on(mdi).when([](QWidget *window) { window->showMaximized(); }).drawnBy("drawTitleBar(), titlebar.cpp").unprobed(),
        Row("QMdiSubWindow:disabled").on(mdi).when(disable).drawnBy("drawTitleBar(), titlebar.cpp").unprobed(),
        Row("QWidget:window").on(bare<QWidget>).coloredBy(QPalette::Window),
        Row("QLineEdit:edit-focus").on(plain<QLineEdit>).alike(focus).reachedByNothing().probedBy("color: #00ff00; background-color: #ff00ff"),
    };
    // clang-format on
}

QVector<Row> tabStateRows()
{
    const Make three = tabWidget<QTabWidget::North>;
    const auto third = [](QWidget *bar) { static_cast<QTabBar *>(bar)->setCurrentIndex(2); };
    const auto disableTab = [](QWidget *bar) {
        static_cast<QTabBar *>(bar)->setTabEnabled(1, false);
    };
    // clang-format off
    return {
        Row("QTabBar::tab:top").on(three),
        Row("QTabBar::tab:bottom").on(tabWidget<QTabWidget::South>),
        Row("QTabBar::tab:left").on(tabWidget<QTabWidget::West>),
        Row("QTabBar::tab:right").on(tabWidget<QTabWidget::East>),
        Row("QTabBar::tab:selected").on(three).at(tab(2)).when(third),
        Row("QTabBar::tab:selected:focus").on(three).when(focus),
        Row("QTabBar::tab:hover").on(three).when(hoverAt(tab(1))),
        Row("QTabBar::tab:disabled").on(three).when(disableTab).coloredBy(QPalette::WindowText),
        Row("QTabBar::tab:first").on(three).at(tab(0)).byRules("QTabBar::tab"),
        Row("QTabBar::tab:middle").on(three).at(tab(1)).byRules("QTabBar::tab"),
        Row("QTabBar::tab:last").on(three).at(tab(2)).byRules("QTabBar::tab"),
        Row("QTabBar::tab:only-one").on(oneTab).at(tab(0)).byRules("QTabBar::tab"),
        Row("QTabBar::tab:previous-selected").on(three).at(tab(1)).byRules("QTabBar::tab"),
        Row("QTabBar::tab:next-selected").on(three).at(tab(1)).alike(third).byRules("QTabBar::tab"),
        Row("QTabBar::close-button:hover").on(closableTabs).when(hoverCloseButton),
        Row("QTabBar::close-button:disabled").on(closableTabs).when(disable),
        Row("QTabWidget::pane:top").on(three),
        Row("QTabWidget::pane:bottom").on(tabWidget<QTabWidget::South>),
        Row("QTabWidget::pane:left").on(tabWidget<QTabWidget::West>),
        Row("QTabWidget::pane:right").on(tabWidget<QTabWidget::East>),
        Row("QToolBox::tab:selected").on(toolBox),
        Row("QToolBox::tab:hover").on(toolBox).found(boxTab<1>).when(hover),
        Row("QToolBox::tab:disabled").on(toolBox).when(disable),
        Row("QToolBox::tab:first").on(toolBox).found(boxTab<0>).byRules("QToolBox::tab"),
        Row("QToolBox::tab:middle").on(toolBox).found(boxTab<1>).byRules("QToolBox::tab"),
        Row("QToolBox::tab:last").on(toolBox).found(boxTab<2>).byRules("QToolBox::tab"),
        Row("QHeaderView::section:horizontal").on(header<Qt::Horizontal>),
        Row("QHeaderView::section:hover").on(header<Qt::Horizontal>).when(hoverSection),
        Row("QHeaderView::section:pressed").on(header<Qt::Horizontal>).when(pressSection),
        Row("QHeaderView::section:disabled").on(header<Qt::Horizontal>).when(disable).coloredBy(QPalette::ButtonText),
        Row("QHeaderView::section:checked").on(view<QTableView>).found(first<QHeaderView>).alike(selectRow).byRules("QHeaderView::section"),
        Row("QHeaderView::section:first").on(header<Qt::Horizontal>).at(section(0)).byRules("QHeaderView::section"),
        Row("QHeaderView::section:middle").on(header<Qt::Horizontal>).at(section(1)).byRules("QHeaderView::section"),
        Row("QHeaderView::section:last").on(header<Qt::Horizontal>).at(section(2)).byRules("QHeaderView::section"),
    };
    // clang-format on
}

QVector<Row> itemStateRows()
{
    QVector<Row> rows;
    const QPair<QString, Make> views[] = {{"QListView", view<QListView>},
                                          {"QTreeView", view<QTreeView>},
                                          {"QTableView", view<QTableView>}};
    const auto checkItem = [](QWidget *view) {
        auto *model = static_cast<QAbstractItemView *>(view)->model();
        model->setData(model->index(0, 0), Qt::Checked, Qt::CheckStateRole);
    };
    for (const auto &[name, make] : views) {
        rows << Row(name + "::item:selected")
                    .on(make)
                    .when(choose(1))
                    .coloredBy(QPalette::Highlight);
        rows << Row(name + "::item:hover")
                    .on(make)
                    .when(hoverItem)
                    .drawnBy("drawVeil(), themedstyle.cpp");
        rows << Row(name + ":focus").on(make).when(focus);
        rows << Row(name + "::item:disabled").on(make).when(disable).byRules("*:disabled");
        rows << Row(name + "::item:alternate")
                    .on(make)
                    .when(alternate)
                    .coloredBy(QPalette::AlternateBase);
        rows << Row(name + "::indicator:checked")
                    .on(make)
                    .at(itemPart(0, 20))
                    .when(checkItem)
                    .drawnBy("drawPrimitive(), themedstyle.cpp");
    }
    const Make tree = view<QTreeView>;
    const QString branchDrawing = QStringLiteral("drawPrimitive(), themedstyle.cpp");
    rows << Row("QTreeView::branch:closed").on(tree).at(branch(0)).drawnBy(branchDrawing);
    rows
        << Row("QTreeView::branch:open").on(tree).at(branch(0)).when(expand).drawnBy(branchDrawing);
    rows << Row("QTreeView::branch:has-children").on(tree).at(branch(0)).drawnBy(branchDrawing);
    rows << Row("QTreeView::branch:has-siblings").on(tree).at(branch(0)).drawnBy(branchDrawing);
    rows << Row("QTreeView::branch:adjoins-item").on(tree).at(branch(0)).drawnBy(branchDrawing);
    rows << Row("QTableCornerButton::section:pressed").on(view<QTableView>).when(press);
    return rows;
}

} // namespace

const QVector<Row> &rows()
{
    static const QVector<Row> all = classRows() + subControlRows() + buttonStateRows()
        + editStateRows() + partStateRows() + barStateRows() + tabStateRows() + itemStateRows();
    return all;
}

} // namespace Stylable
