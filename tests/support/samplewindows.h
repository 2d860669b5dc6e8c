// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEME_TESTS_SAMPLEWINDOWS_H
#define HVTHEME_TESTS_SAMPLEWINDOWS_H

#include <QtWidgets>

/*! One widget of each kind that the built-in templates style, in a column; the caller owns it. */
inline QWidget *controls(QWidget *parent = nullptr)
{
    auto *page = new QWidget(parent);
    auto *form = new QFormLayout(page);
    const auto add = [form](QWidget *widget, const char *property = nullptr,
                            const char *value = nullptr) {
        if (property)
            widget->setProperty(property, value);
        form->addRow(widget);
    };
    add(new QPushButton("push"));
    add(new QPushButton("general"), "style", "general");
    add(new QPushButton, "imageBtn", "close");
    add(new QLabel("large"), "fontSize", "XL");
    add(new QLabel("orange"), "style", "originHint");
    add(new QLineEdit("edit"));
    add(new QLineEdit("wrong"), "style", "editError");
    auto *combo = new QComboBox;
    combo->addItems({"one", "two"});
    add(combo);
    add(new QSpinBox);
    add(new QDateTimeEdit(QDateTime(QDate(2026, 1, 2), QTime(3, 4))));
    add(new QCheckBox("check"));
    add(new QRadioButton("radio"));
    add(new QSlider(Qt::Horizontal), "sliderStyle", "hGeneral");
    add(new QTextEdit("text"), "style", "qrCodeEdit");
    auto *off = new QPushButton("disabled");
    off->setEnabled(false);
    add(off);
    return page;
}

/*! An application's own style: draws a mark, and watches what is done to it. */
class MarkingStyle : public QProxyStyle
{
public:
    explicit MarkingStyle(const QString &base = "fusion")
        : QProxyStyle(base)
    {
    }

    using QProxyStyle::polish;
    using QProxyStyle::unpolish;
    void polish(QApplication *application) override
    {
        QProxyStyle::polish(application);
        ++polished;
        if (!styleSheet.isEmpty())
            application->setStyleSheet(styleSheet);
    }
    void unpolish(QApplication *application) override
    {
        QProxyStyle::unpolish(application);
        --polished;
    }
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override
    {
        QProxyStyle::drawControl(element, option, painter, widget);
        painter->fillRect(QRect(option->rect.topLeft(), QSize(3, 3)), Qt::magenta);
    }

    int polished = 0;
    QString styleSheet;
};

inline QWidget *column(const QList<QWidget *> &widgets)
{
    auto *window = new QWidget;
    window->setLayout(new QVBoxLayout);
    for (QWidget *widget : widgets)
        window->layout()->addWidget(widget);
    return window;
}

inline QWidget *windowOfViews()
{
    auto *table = new QTableWidget(2, 2);
    table->setProperty("style", "audioMappingTableWidget");
    table->setItem(0, 0, new QTableWidgetItem("cell"));
    auto *tree = new QTreeWidget;
    tree->setHeaderLabels({"a", "b"});
    for (int i = 0; i < 20; ++i)
        new QTreeWidgetItem(tree, {"x", "y"});
    auto *list = new QListWidget;
    list->setProperty("style", "simpleList");
    list->addItems({"one", "two"});
    auto *tabs = new QTabWidget;
    tabs->tabBar()->setProperty("style", "floatTabBar");
    tabs->addTab(list, "list");
    tabs->addTab(new QLabel("label"), "label");
    auto *area = new QScrollArea;
    area->setWidget(controls());
    return column({table, tree, tabs, area});
}

inline QWidget *windowOfBars()
{
    auto *window = new QMainWindow;
    window->setCentralWidget(new QCalendarWidget);
    window->menuBar()->addMenu("File")->addAction("Open");
    QToolBar *bar = window->addToolBar("bar");
    bar->addAction("cut");
    bar->addWidget(new QComboBox);
    auto *dock = new QDockWidget("dock");
    dock->setWidget(controls());
    window->addDockWidget(Qt::LeftDockWidgetArea, dock);
    window->statusBar()->showMessage("ready");
    return window;
}

inline QWidget *windowWithOwnStyleSheets()
{
    QWidget *page = controls();
    page->setStyleSheet("QLabel { color: purple } QPushButton { background: lime }");
    auto *label = new QLabel("label");
    label->setStyleSheet("border: 2px solid red");
    return column({page, label});
}

inline QWidget *windowWithOwnPalettes()
{
    QWidget *page = controls();
    QPalette palette = page->palette();
    palette.setColor(QPalette::Window, Qt::darkCyan);
    palette.setColor(QPalette::WindowText, Qt::yellow);
    page->setPalette(palette);
    page->setAutoFillBackground(true);
    auto *edit = new QLineEdit("edit");
    palette.setColor(QPalette::Base, Qt::gray);
    edit->setPalette(palette);
    return column({page, edit});
}

inline QWidget *windowWithOwnFonts()
{
    QWidget *page = controls();
    page->setFont(QFont("DejaVu Serif", 9, QFont::Normal, true));
    auto *label = new QLabel("label");
    label->setFont(QFont("DejaVu Sans", 22, QFont::Bold));
    return column({page, label});
}

inline QWidget *windowWithOwnStyle()
{
    QWidget *page = controls();
    auto *style = new MarkingStyle("windows");
    style->setParent(page);
    page->setStyle(style);
    auto *button = new QPushButton("button", page);
    button->setStyle(style);
    return column({page, button});
}

inline QWidget *windowWithHiddenWidgets()
{
    QWidget *hidden = controls();
    hidden->setObjectName("hidden");
    QWidget *disabled = controls();
    QWidget *window = column({hidden, disabled});
    disabled->setEnabled(false);
    hidden->hide();
    return window;
}

/*! A window of \a count small widgets below \a depth nested ones; the caller owns it. */
inline QWidget *nestedWindow(int count, int depth)
{
    auto *window = new QWidget;
    window->resize(640, 480);
    QWidget *inner = window;
    for (int level = 0; level < depth; ++level) {
        inner = new QWidget(inner);
        inner->resize(640, 480);
    }
    auto *grid = new QGridLayout(inner);
    for (int i = 0; i < count; ++i) {
        QWidget *widget = nullptr;
        switch (i % 8) {
        case 0:
            widget = new QPushButton("push");
            break;
        case 1:
            widget = new QLabel("label");
            break;
        case 2:
            widget = new QLineEdit("edit");
            break;
        case 3:
            widget = new QCheckBox("check");
            break;
        case 4:
            widget = new QSlider(Qt::Horizontal);
            break;
        case 5:
            widget = new QComboBox;
            break;
        case 6:
            widget = new QSpinBox;
            break;
        default:
            widget = new QWidget;
            break;
        }
        grid->addWidget(widget, i / 10, i % 10);
    }
    return window;
}

/*! Does what showing the window would do to it and its visible widgets, without a platform window. */
inline void polish(QWidget *window)
{
    window->ensurePolished();
    const QList<QWidget *> all = window->findChildren<QWidget *>();
    for (QWidget *widget : all) {
        if (!widget->isHidden())
            widget->ensurePolished();
    }
}

/*! The window as it is painted once its layouts have settled. */
inline QImage grabbed(QWidget *window)
{
    window->grab();
    QCoreApplication::sendPostedEvents();
    return window->grab().toImage();
}

#endif // HVTHEME_TESTS_SAMPLEWINDOWS_H
