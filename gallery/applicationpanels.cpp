// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "applicationpanels.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QTabBar>
#include <QTableWidget>
#include <QVBoxLayout>
#include <QVariant>

namespace Gallery
{

namespace
{

QWidget *createSurface(const char *style)
{
    auto *surface = new QWidget;
    surface->setProperty("style", QLatin1String(style));
    return surface;
}

QHBoxLayout *createRowLayout(QWidget *row)
{
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(12, 5, 10, 5);
    layout->setSpacing(8);
    return layout;
}

QLabel *createImageLabel(const char *image, int size)
{
    auto *label = new QLabel;
    label->setProperty("labelImage", QLatin1String(image));
    label->setFixedSize(size, size);
    return label;
}

QLabel *createHint(const QString &text, const char *style)
{
    auto *label = new QLabel(text);
    label->setProperty("style", QLatin1String(style));
    label->setProperty("fontSize", QStringLiteral("S"));
    return label;
}

QPushButton *createTextButton(const QString &text, const char *style)
{
    auto *button = new QPushButton(text);
    button->setProperty("style", QLatin1String(style));
    button->setFixedHeight(28);
    return button;
}

QPushButton *createSwitch(bool on)
{
    auto *button = new QPushButton;
    button->setProperty("switchStyle", QStringLiteral("general"));
    button->setCheckable(true);
    button->setChecked(on);
    button->setFixedSize(40, 20);
    return button;
}

// A slider and a number that follow each other.
QWidget *createFader(const char *sliderStyle, int value)
{
    auto *fader = new QWidget;
    auto *layout = new QHBoxLayout(fader);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    auto *slider = new QSlider(Qt::Horizontal, fader);
    slider->setProperty("sliderStyle", QLatin1String(sliderStyle));
    auto *number = new QSpinBox(fader);
    number->setFixedWidth(64);
    slider->setRange(0, 100);
    number->setRange(0, 100);
    slider->setValue(value);
    number->setValue(value);
    QObject::connect(slider, &QSlider::valueChanged, number, &QSpinBox::setValue);
    QObject::connect(number, qOverload<int>(&QSpinBox::valueChanged), slider, &QSlider::setValue);
    layout->addWidget(slider, 1);
    layout->addWidget(number);
    return fader;
}

QTableWidget *createPatchTable()
{
    constexpr int outputs = 8;
    const QStringList fixtures{"Spot 1", "Spot 2", "Wash 1", "Wash 2", "Strobe", "Haze"};
    auto *table = new QTableWidget(int(fixtures.size()), outputs);
    table->setProperty("style", QStringLiteral("audioMappingTableWidget"));
    table->setVerticalHeaderLabels(fixtures);
    QStringList titles;
    for (int i = 1; i <= outputs; ++i)
        titles.append(QStringLiteral("Out %1").arg(i));
    table->setHorizontalHeaderLabels(titles);
    for (QHeaderView *header : {table->horizontalHeader(), table->verticalHeader()}) {
        header->setProperty("style", QStringLiteral("audioMappingHeaderView"));
        header->setSectionResizeMode(QHeaderView::Stretch);
        header->setDefaultAlignment(Qt::AlignCenter);
    }
    for (int cell = 0; cell < fixtures.size() * outputs; ++cell) {
        const bool patched = cell / outputs == cell % outputs;
        auto *item = new QTableWidgetItem(patched ? QStringLiteral("100") : QStringLiteral("–"));
        item->setTextAlignment(Qt::AlignCenter);
        table->setItem(cell / outputs, cell % outputs, item);
    }
    table->setCornerButtonEnabled(false);
    table->setSelectionMode(QAbstractItemView::NoSelection);
    return table;
}

QWidget *createTransport()
{
    QWidget *transport = createSurface("BG3");
    QHBoxLayout *layout = createRowLayout(transport);
    layout->addWidget(createImageButton("turnPrev"));
    layout->addWidget(createImageButton("turnNext"));
    layout->addWidget(new QLabel(QStringLiteral("Cue 12")));
    auto *position = new QSlider(Qt::Horizontal);
    position->setProperty("sliderStyle", QStringLiteral("hGeneral"));
    position->setValue(35);
    layout->addWidget(position, 1);
    layout->addWidget(new QLabel(QStringLiteral("00:42 / 02:00")));
    layout->addWidget(createImageButton("mute"));
    return transport;
}

} // namespace

QPushButton *createImageButton(const char *image, bool checked)
{
    auto *button = new QPushButton;
    button->setProperty("imageBtn", QLatin1String(image));
    button->setFixedSize(24, 24);
    button->setCheckable(checked);
    button->setChecked(checked);
    return button;
}

QWidget *createLine(Qt::Orientation orientation)
{
    QWidget *line = createSurface("cutLine");
    if (orientation == Qt::Horizontal)
        line->setFixedHeight(1);
    else
        line->setFixedSize(1, 20);
    return line;
}

QWidget *createTitleBar()
{
    QWidget *bar = createSurface("BG1");
    QHBoxLayout *layout = createRowLayout(bar);
    layout->addWidget(createImageLabel("titleIcon", 20));
    auto *title = new QLabel(QStringLiteral("Spring tour"));
    title->setProperty("fontWeight", QStringLiteral("bold"));
    layout->addSpacing(4);
    layout->addWidget(title);
    layout->addStretch();
    for (const char *image : {"msgCenter", "minimize", "showChange", "close"})
        layout->addWidget(createImageButton(image));
    return bar;
}

QWidget *createMenuRow()
{
    QWidget *row = createSurface("BG1");
    QHBoxLayout *layout = createRowLayout(row);
    layout->setContentsMargins(4, 0, 4, 4);
    for (const char *title : {"File", "Edit", "View", "Patch", "Output", "Help"}) {
        QPushButton *button = createTextButton(QString::fromLatin1(title), "menuButton");
        auto *menu = new QMenu(button);
        menu->addAction(QStringLiteral("New show"));
        menu->addAction(QStringLiteral("Open…"));
        menu->addSeparator();
        menu->addAction(QStringLiteral("Preferences…"));
        button->setMenu(menu);
        layout->addWidget(button);
    }
    layout->addStretch();
    return row;
}

QWidget *createToolRow()
{
    QWidget *row = createSurface("toolWidget");
    QHBoxLayout *layout = createRowLayout(row);
    for (const char *image : {"projectNew", "projectSave", "projectSaveAs", "", "undo", "redo", "",
                              "add", "delete", "lock", "linkBtn", "", "locate", "origin"}) {
        if (*image != '\0') {
            layout->addWidget(createImageButton(image));
            continue;
        }
        layout->addSpacing(4);
        layout->addWidget(createLine(Qt::Vertical));
        layout->addSpacing(4);
    }
    layout->addStretch();
    layout->addWidget(new QLabel(QStringLiteral("Blackout")));
    layout->addWidget(createSwitch(false));
    layout->addSpacing(12);
    layout->addWidget(new QLabel(QStringLiteral("Live")));
    layout->addWidget(createSwitch(true));
    layout->addSpacing(8);
    return row;
}

QWidget *createFixturePanel()
{
    QWidget *panel = createSurface("BG3");
    panel->setFixedWidth(220);
    auto *layout = new QVBoxLayout(panel);
    layout->setContentsMargins(10, 10, 10, 10);
    auto *search = new QLineEdit;
    search->setPlaceholderText(QStringLiteral("Find a fixture"));
    search->setFixedHeight(28);
    layout->addWidget(search);
    auto *list = new QListWidget;
    list->setProperty("style", QStringLiteral("simpleList"));
    list->addItems({"Spot 1", "Spot 2", "Wash 1", "Wash 2", "Strobe", "Haze", "Follow spot left",
                    "Follow spot right", "House lights", "Blinder", "Pixel bar 1", "Pixel bar 2"});
    list->setCurrentRow(2);
    layout->addWidget(list, 1);
    auto *buttons = new QHBoxLayout;
    for (const char *image : {"add", "delete", "resetBtn"})
        buttons->addWidget(createImageButton(image));
    buttons->addStretch();
    layout->addLayout(buttons);
    return panel;
}

QWidget *createPatchPanel()
{
    QWidget *panel = createSurface("BG3");
    auto *layout = new QVBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    auto *tabs = new QTabBar;
    tabs->setProperty("style", QStringLiteral("floatTabBar"));
    for (const char *title : {"Patch", "Stage", "Timeline", "Effects"})
        tabs->addTab(QString::fromLatin1(title));
    tabs->setDrawBase(false);
    tabs->setExpanding(false);
    layout->addWidget(tabs);
    layout->addWidget(createLine(Qt::Horizontal));
    layout->addWidget(createPatchTable(), 1);
    layout->addWidget(createLine(Qt::Horizontal));
    layout->addWidget(createTransport());
    return panel;
}

QWidget *createPropertyPanel()
{
    QWidget *panel = createSurface("BG3");
    panel->setFixedWidth(320);
    auto *form = new QFormLayout(panel);
    form->setContentsMargins(12, 12, 12, 12);
    form->setVerticalSpacing(9);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(QStringLiteral("Name"), new QLineEdit(QStringLiteral("Wash 1")));
    auto *mode = new QComboBox;
    mode->addItems({"16 bit", "8 bit"});
    form->addRow(QStringLiteral("Mode"), mode);
    const QPair<const char *, const char *> faders[] = {
        {"Dimmer", "hGeneral"},
        {"Pan", "hGeneralTwoWay"},
        {"Luminance", "luminance"},
        {"Contrast", "contrast"},
        {"Hue", "hue"},
        {"Saturation", "saturability"},
        {"Kelvin", "kelvin"},
        {"Opacity", "opacity"},
        {"Red", "red"},
        {"Green", "green"},
        {"Blue", "blue"},
    };
    int value = 80;
    for (const auto &[name, style] : faders) {
        form->addRow(QString::fromLatin1(name), createFader(style, value));
        value = (value + 37) % 100;
    }
    auto *follow = new QCheckBox(QStringLiteral("Follow the master"));
    follow->setChecked(true);
    form->addRow(QString(), follow);
    auto *snap = new QRadioButton(QStringLiteral("Snap to cue"));
    snap->setChecked(true);
    form->addRow(QString(), snap);
    return panel;
}

QWidget *createStatusRow()
{
    QWidget *row = createSurface("BG1");
    QHBoxLayout *layout = createRowLayout(row);
    layout->setSpacing(16);
    layout->addWidget(createHint(QStringLiteral("Output 1 online"), "greenHint"));
    layout->addWidget(createHint(QStringLiteral("Output 2 waits"), "yellowHint"));
    layout->addWidget(createHint(QStringLiteral("Output 3 lost"), "errorHint"));
    layout->addStretch();
    layout->addWidget(createHint(QStringLiteral("44 frames per second"), "grayHint"));
    return row;
}

QWidget *createDialog()
{
    QWidget *dialog = createSurface("BG4");
    dialog->setProperty("radius", QStringLiteral("L"));
    dialog->setProperty("borderColor", QStringLiteral("highlight"));
    auto *layout = new QVBoxLayout(dialog);
    layout->setContentsMargins(20, 18, 20, 16);
    layout->setSpacing(16);
    auto *message = new QHBoxLayout;
    message->setSpacing(14);
    message->addWidget(createImageLabel("tip_question", 32), 0, Qt::AlignTop);
    message->addWidget(new QLabel(QStringLiteral("Save cue 12 before you leave it?\n"
                                                 "Two fixtures have changed.")));
    layout->addLayout(message);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(createTextButton(QStringLiteral("Discard"), "assist"));
    buttons->addWidget(createTextButton(QStringLiteral("Save"), "general"));
    layout->addLayout(buttons);
    return dialog;
}

} // namespace Gallery
