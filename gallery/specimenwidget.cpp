// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "specimenwidget.h"

#include "compositespecimens.h"
#include "heldstate.h"
#include "tooltipspecimen.h"

#include <QCheckBox>
#include <QDateTimeEdit>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QTextEdit>

#include <QVariant>
#include <algorithm>

namespace Gallery
{

namespace
{

bool hasState(const Specimen &specimen, const char *state)
{
    return specimen.parts.states.contains(QLatin1String(state));
}

QString propertyValue(const Specimen &specimen, const char *name)
{
    for (const auto &[property, value] : specimen.parts.properties) {
        if (property == QLatin1String(name))
            return value;
    }
    return {};
}

QWidget *createPushButton(const Specimen &specimen)
{
    auto *button = new QPushButton;
    const QString image = propertyValue(specimen, "imageBtn");
    if (image.endsWith(QLatin1String("WithText")) || image.startsWith(QLatin1String("patch"))) {
        button->setText(image.endsWith(QLatin1String("WithText")) ? QStringLiteral("Move")
                                                                  : QString());
        button->setFixedHeight(28);
    } else if (!image.isEmpty()) {
        button->setFixedSize(28, 28);
        button->setCheckable(hasState(specimen, "checked"));
    } else if (!propertyValue(specimen, "switchStyle").isEmpty()) {
        button->setFixedSize(40, 20);
    } else if (!propertyValue(specimen, "checkStyle").isEmpty()) {
        button->setFixedSize(20, 20);
    } else {
        button->setText(QStringLiteral("Apply"));
        button->setFixedHeight(28);
        button->setMinimumWidth(72);
    }
    if (specimen.parts.subControl == QLatin1String("menu-indicator")) {
        auto *menu = new QMenu(button);
        menu->addAction(QStringLiteral("Apply to all"));
        button->setMenu(menu);
    }
    return button;
}

template<typename Button>
QWidget *createToggle(const Specimen &specimen)
{
    auto *button = new Button;
    button->setText(QStringLiteral("Follow"));
    if (hasState(specimen, "unchecked") || specimen.parts.subControl.isEmpty())
        button->setChecked(false);
    return button;
}

template<typename SpinBox>
SpinBox *newSpinBox(const Specimen &specimen)
{
    const bool pressed = hasState(specimen, "pressed");
    if (specimen.parts.subControl.isEmpty() || (!pressed && !hasState(specimen, "hover")))
        return new SpinBox;
    const bool up = specimen.parts.subControl == QLatin1String("up-button");
    return new HeldSpinBox<SpinBox>(up ? QStyle::SC_SpinBoxUp : QStyle::SC_SpinBoxDown,
                                    QStyle::State_MouseOver
                                        | (pressed ? QStyle::State_Sunken : QStyle::State_None));
}

QWidget *createNumberEdit(const Specimen &specimen)
{
    if (specimen.parts.widgetClass == QLatin1String("QDoubleSpinBox")) {
        auto *spinBox = newSpinBox<QDoubleSpinBox>(specimen);
        spinBox->setMinimumWidth(90);
        spinBox->setValue(12.5);
        return spinBox;
    }
    auto *spinBox = newSpinBox<QSpinBox>(specimen);
    spinBox->setMinimumWidth(80);
    spinBox->setValue(50);
    return spinBox;
}

QWidget *createDateTimeEdit(const Specimen &specimen)
{
    auto *edit = newSpinBox<QDateTimeEdit>(specimen);
    edit->setDisplayFormat(QStringLiteral("yyyy-MM-dd"));
    edit->setDate(QDate(2026, 3, 14));
    return edit;
}

QWidget *createLineEdit(const Specimen &specimen)
{
    auto *edit = new QLineEdit;
    if (specimen.parts.subControl == QLatin1String("placeholderText"))
        edit->setPlaceholderText(QStringLiteral("Placeholder"));
    else
        edit->setText(QStringLiteral("Fixture 12"));
    edit->setFixedWidth(116);
    return edit;
}

QWidget *createComboBox(const Specimen &specimen)
{
    auto *comboBox = hasState(specimen, "on") ? new OpenComboBox : new QComboBox;
    comboBox->addItems({"Front truss", "Back truss", "Floor"});
    return comboBox;
}

QWidget *createComboBoxList(const Specimen &specimen)
{
    const auto delegate = specimen.parts.subControl.isEmpty() ? ComboBoxList::Delegate::Default
                                                              : ComboBoxList::Delegate::Styled;
    return new ComboBoxList(hasState(specimen, "selected") ? 1 : 0, delegate);
}

QWidget *createLabel(const Specimen &specimen)
{
    auto *label = new QLabel;
    if (propertyValue(specimen, "labelImage").isEmpty())
        label->setText(QStringLiteral("Master 80 %"));
    else
        label->setFixedSize(32, 32);
    return label;
}

QWidget *createSlider(const Specimen &specimen)
{
    auto *slider = new QSlider(Qt::Horizontal);
    slider->setFixedWidth(200);
    slider->setValue(60);
    slider->setSliderDown(hasState(specimen, "pressed"));
    return slider;
}

QWidget *createScrollBar(const Specimen &specimen)
{
    const bool vertical = hasState(specimen, "vertical");
    auto *scrollBar = new QScrollBar(vertical ? Qt::Vertical : Qt::Horizontal);
    scrollBar->setRange(0, 100);
    scrollBar->setPageStep(40);
    scrollBar->setValue(30);
    if (vertical)
        scrollBar->setFixedHeight(90);
    else
        scrollBar->setFixedWidth(200);
    return scrollBar;
}

template<typename TextEdit>
QWidget *createTextEdit(const Specimen &)
{
    auto *edit = new TextEdit;
    edit->setPlainText(QStringLiteral("Universe 1\nUniverse 2"));
    edit->setFixedSize(140, 56);
    return edit;
}

QWidget *createToolTip(const Specimen &)
{
    auto *tip = new QTipLabel;
    tip->setText(QStringLiteral("Locks the layout of the panels"));
    return tip;
}

QWidget *createSurface(const Specimen &specimen)
{
    auto *surface = new QWidget;
    const QString style = propertyValue(specimen, "style");
    if (style == QLatin1String("cutLine") || style == QLatin1String("tagLine"))
        surface->setFixedSize(150, 2);
    else
        surface->setFixedSize(150, 48);
    return surface;
}

struct Creator {
    const char *widgetClass;
    QWidget *(*create)(const Specimen &);
};

constexpr Creator creators[] = {
    {"QPushButton", createPushButton},
    {"QCheckBox", createToggle<QCheckBox>},
    {"QRadioButton", createToggle<QRadioButton>},
    {"QSpinBox", createNumberEdit},
    {"QDoubleSpinBox", createNumberEdit},
    {"QDateTimeEdit", createDateTimeEdit},
    {"QLineEdit", createLineEdit},
    {"QComboBox", createComboBox},
    {"QLabel", createLabel},
    {"QSlider", createSlider},
    {"QScrollBar", createScrollBar},
    {"QScrollArea", createScrollArea},
    {"QTextEdit", createTextEdit<QTextEdit>},
    {"QPlainTextEdit", createTextEdit<QPlainTextEdit>},
    {"QToolTip", createToolTip},
    {"QListWidget", createListWidget},
    {"QTableWidget", createTableWidget},
    {"QHeaderView", createHeaderView},
    {"QTabBar", createTabBar},
    {"QCalendarWidget", createCalendar},
    {"QMenu", createMenu},
    {"QWidget", createSurface},
};

QWidget *create(const Specimen &specimen)
{
    if (specimen.selector.startsWith(QLatin1String("QComboBox QAbstractItemView")))
        return createComboBoxList(specimen);
    for (const Creator &creator : creators) {
        if (specimen.parts.widgetClass == QLatin1String(creator.widgetClass))
            return creator.create(specimen);
    }
    return nullptr;
}

// The states of a sub-control or of an inner widget are the creators' business.
void holdState(QWidget *widget, const Specimen &specimen)
{
    if (auto *button = qobject_cast<QAbstractButton *>(widget)) {
        if (hasState(specimen, "checked")) {
            button->setCheckable(true);
            button->setChecked(true);
        }
        button->setDown(hasState(specimen, "pressed"));
    }
    if (hasState(specimen, "hover") && specimen.parts.subControl.isEmpty())
        holdHover(widget);
    if (hasState(specimen, "focus"))
        holdFocus(widget);
}

// An orientation, or being enabled, is nothing that has to be held.
bool isHeld(const Specimen &specimen)
{
    const QStringList states{"hover", "pressed", "checked", "disabled", "focus", "on"};
    return std::any_of(states.cbegin(), states.cend(),
                       [&](const QString &state) { return specimen.parts.states.contains(state); });
}

bool isComposite(const Specimen &specimen)
{
    static const QStringList composites{"QListWidget", "QTableWidget", "QHeaderView",
                                        "QTabBar",     "QMenu",        "QCalendarWidget"};
    return composites.contains(specimen.parts.widgetClass);
}

} // namespace

QWidget *createSpecimenWidget(const Specimen &specimen)
{
    QWidget *widget = create(specimen);
    if (widget == nullptr)
        return nullptr;
    if (!specimen.selector.contains(QLatin1Char(' '))) {
        for (const auto &[name, value] : specimen.parts.properties + specimen.extraProperties)
            widget->setProperty(name.toLatin1().constData(), value);
    }
    if (isComposite(specimen))
        return widget;
    if (hasState(specimen, "disabled"))
        widget->setEnabled(false);
    if (isHeld(specimen)) {
        makeInert(widget);
        holdState(widget, specimen);
    }
    return widget;
}

} // namespace Gallery
