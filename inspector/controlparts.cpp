// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

// Parts of controls and of what holds others.

#include <inspector/parts.h>

#include <analysis/style/styleelement.h>

#include <QtWidgets>

namespace
{

// The options of widgets are filled by protected functions; a class that is never made reaches them.
template<typename Widget, typename Option>
struct OptionOf : Widget {
    using Filler = void (Widget::*)(Option *) const;
    static Option of(const Widget *widget)
    {
        Option option;
        (widget->*static_cast<Filler>(&OptionOf::initStyleOption))(&option);
        return option;
    }
};

} // namespace

void Parts::addButton(const QAbstractButton *button)
{
    QStyleOptionButton option;
    option.initFrom(button);
    if (qobject_cast<const QCheckBox *>(button))
        add("indicator",
            button->style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, button),
            m_states);
    if (qobject_cast<const QRadioButton *>(button))
        add("indicator",
            button->style()->subElementRect(QStyle::SE_RadioButtonIndicator, &option, button),
            m_states);
    const auto *push = qobject_cast<const QPushButton *>(button);
    if (push && push->menu())
        add("menu-indicator", {}, m_states);
    const auto *tool = qobject_cast<const QToolButton *>(button);
    static const QHash<int, const char *> arrows{{Qt::UpArrow, "up-arrow"},
                                                 {Qt::DownArrow, "down-arrow"},
                                                 {Qt::LeftArrow, "left-arrow"},
                                                 {Qt::RightArrow, "right-arrow"}};
    if (tool && arrows.contains(tool->arrowType()))
        add(arrows.value(tool->arrowType()), {}, m_states);
    if (!tool || !tool->menu())
        return;
    if (tool->popupMode() == QToolButton::MenuButtonPopup)
        addQuiet({"menu-button", "menu-arrow"});
    else
        add("menu-indicator", {}, m_states);
}

void Parts::addRange()
{
    if (const auto *bar = qobject_cast<const QScrollBar *>(m_widget)) {
        const auto option = OptionOf<QScrollBar, QStyleOptionSlider>::of(bar);
        const auto add = [&](const char *name, QStyle::SubControl part) {
            addComplex(name, QStyle::CC_ScrollBar, part, option);
        };
        add("handle", QStyle::SC_ScrollBarSlider);
        add("add-line", QStyle::SC_ScrollBarAddLine);
        add("sub-line", QStyle::SC_ScrollBarSubLine);
        add("add-page", QStyle::SC_ScrollBarAddPage);
        add("sub-page", QStyle::SC_ScrollBarSubPage);
        addQuiet({"up-arrow", "down-arrow", "left-arrow", "right-arrow"});
    } else if (const auto *slider = qobject_cast<const QSlider *>(m_widget)) {
        const auto option = OptionOf<QSlider, QStyleOptionSlider>::of(slider);
        addComplex("groove", QStyle::CC_Slider, QStyle::SC_SliderGroove, option);
        addComplex("handle", QStyle::CC_Slider, QStyle::SC_SliderHandle, option);
        addQuiet({"add-page", "sub-page"});
    } else if (const auto *progress = qobject_cast<const QProgressBar *>(m_widget)) {
        QStyleOptionProgressBar option;
        option.initFrom(progress);
        add("chunk",
            progress->style()->subElementRect(QStyle::SE_ProgressBarContents, &option, progress),
            m_states);
    }
}

void Parts::addEdit()
{
    if (const auto *combo = qobject_cast<const QComboBox *>(m_widget)) {
        const auto option = OptionOf<QComboBox, QStyleOptionComboBox>::of(combo);
        addComplex("drop-down", QStyle::CC_ComboBox, QStyle::SC_ComboBoxArrow, option);
        addQuiet({"down-arrow"});
    } else if (const auto *date = qobject_cast<const QDateTimeEdit *>(m_widget);
               date && date->calendarPopup()) { // which is painted as a combo box
        QStyleOptionComboBox option;
        option.initFrom(date);
        option.editable = true;
        addComplex("drop-down", QStyle::CC_ComboBox, QStyle::SC_ComboBoxArrow, option);
        addQuiet({"down-arrow"});
    } else if (const auto *spin = qobject_cast<const QAbstractSpinBox *>(m_widget)) {
        const auto option = OptionOf<QAbstractSpinBox, QStyleOptionSpinBox>::of(spin);
        addSteps("up", QStyle::SC_SpinBoxUp, option, QAbstractSpinBox::StepUpEnabled);
        addSteps("down", QStyle::SC_SpinBoxDown, option, QAbstractSpinBox::StepDownEnabled);
    }
}

// A button is off where there is no further step.
void Parts::addSteps(const char *direction, QStyle::SubControl part,
                     const QStyleOptionSpinBox &option, QAbstractSpinBox::StepEnabledFlag step)
{
    const QRect rect =
        m_widget->style()->subControlRect(QStyle::CC_SpinBox, &option, part, m_widget);
    const bool isActive = option.activeSubControls.testFlag(part);
    QSet<QString> states = isActive ? m_states : quiet();
    set(&states, "on", option.stepEnabled.testFlag(step));
    set(&states, "off", !option.stepEnabled.testFlag(step));
    const QString name = QLatin1String(direction);
    if (rect.isValid())
        add(name + QLatin1String("-button"), rect, states);
    add(name + QLatin1String("-arrow"), {}, states);
}

void Parts::addContainer()
{
    if (const auto *box = qobject_cast<const QGroupBox *>(m_widget)) {
        const auto option = OptionOf<QGroupBox, QStyleOptionGroupBox>::of(box);
        addComplex("title", QStyle::CC_GroupBox, QStyle::SC_GroupBoxLabel, option);
        if (box->isCheckable()) {
            const QRect rect = box->style()->subControlRect(QStyle::CC_GroupBox, &option,
                                                            QStyle::SC_GroupBoxCheckBox, box);
            QSet<QString> states = m_states;
            set(&states, box->isChecked() ? "checked" : "unchecked", true);
            set(&states, box->isChecked() ? "on" : "off", true);
            add("indicator", rect, states);
        }
    } else if (const auto *tabs = qobject_cast<const QTabWidget *>(m_widget)) {
        const QRect rect =
            tabs->currentWidget() ? tabs->currentWidget()->parentWidget()->geometry() : QRect();
        add("pane", rect, m_states);
    } else if (const auto *splitter = qobject_cast<const QSplitter *>(m_widget)) {
        for (int i = 1; i < splitter->count(); ++i)
            add("handle", splitter->handle(i)->geometry(), quiet());
    } else if (const auto *toolBox = qobject_cast<const QToolBox *>(m_widget)) {
        addTabs(toolBox);
    } else if (m_widget->inherits("QTableCornerButton")) {
        addQuiet({"section"});
    } else if (qobject_cast<const QDockWidget *>(m_widget)) {
        addQuiet({"title", "close-button", "float-button"});
    } else if (qobject_cast<const QMainWindow *>(m_widget)) {
        addQuiet({"separator"});
    } else if (qobject_cast<const QStatusBar *>(m_widget)) {
        addQuiet({"item"});
    } else if (qobject_cast<const QToolBar *>(m_widget)) {
        addQuiet({"handle", "separator"});
    } else if (qobject_cast<const QAbstractScrollArea *>(m_widget)) {
        addQuiet({"corner"});
    }
}
