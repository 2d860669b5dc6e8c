// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "plainpage.h"

#include "heldstate.h"
#include "plainviews.h"

#include <QCheckBox>
#include <QDateEdit>
#include <QDial>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QTextBrowser>
#include <QToolButton>
#include <QVBoxLayout>
#include <QVariant>

namespace Gallery
{

namespace
{

enum class State {
    Normal,
    Hover,
    Focus,
    Disabled,
};

template<typename Widget>
Widget *held(Widget *widget, State state)
{
    if (state == State::Normal)
        return widget;
    if (state == State::Disabled) {
        widget->setEnabled(false);
        return widget;
    }
    makeInert(widget);
    state == State::Hover ? holdHover(widget) : holdFocus(widget);
    return widget;
}

QLayout *row(const QList<QWidget *> &widgets)
{
    auto *layout = new QHBoxLayout;
    layout->setSpacing(12);
    for (QWidget *widget : widgets)
        layout->addWidget(widget);
    layout->addStretch();
    return layout;
}

template<typename Button>
Button *button(const char *text)
{
    auto *made = new Button;
    made->setText(QString::fromLatin1(text));
    return made;
}

QLayout *createPushButtons()
{
    auto *pressed = button<QPushButton>("Pressed");
    makeInert(pressed);
    pressed->setDown(true);
    auto *main = button<QPushButton>("Default");
    main->setDefault(true);
    auto *checked = button<QPushButton>("Checked");
    checked->setCheckable(true);
    checked->setChecked(true);
    auto *menu = button<QPushButton>("Menu");
    menu->setMenu(new QMenu(menu));
    menu->menu()->addAction(QStringLiteral("Entry"));
    auto *flat = button<QPushButton>("Flat");
    flat->setFlat(true);
    return row({button<QPushButton>("Normal"), held(button<QPushButton>("Hover"), State::Hover),
                pressed, held(button<QPushButton>("Focus"), State::Focus), main, checked, menu,
                flat, held(button<QPushButton>("Disabled"), State::Disabled)});
}

QLayout *createToolButtons()
{
    QList<QWidget *> buttons;
    for (const bool isRaised : {false, true}) {
        auto *checked = button<QToolButton>("Checked");
        checked->setCheckable(true);
        checked->setChecked(true);
        for (QToolButton *each :
             {button<QToolButton>("Normal"), held(button<QToolButton>("Hover"), State::Hover),
              checked, held(button<QToolButton>("Disabled"), State::Disabled)}) {
            each->setAutoRaise(isRaised);
            buttons.append(each);
        }
    }
    return row(buttons);
}

template<typename Box>
QLayout *createBoxes()
{
    QList<QWidget *> boxes;
    for (const bool isChecked : {false, true}) {
        const char *text = isChecked ? "Checked" : "Unchecked";
        for (const State state : {State::Normal, State::Focus, State::Disabled}) {
            auto *box = held(button<Box>(text), state);
            box->setAutoExclusive(false);
            box->setChecked(isChecked);
            boxes.append(box);
        }
    }
    return row(boxes);
}

QLayout *createFields()
{
    QList<QWidget *> fields;
    for (const State state : {State::Normal, State::Focus, State::Disabled}) {
        auto *edit = new QLineEdit(QStringLiteral("Text"));
        auto *number = new QSpinBox;
        number->setValue(12);
        auto *chooser = new QComboBox;
        chooser->addItems({QStringLiteral("First"), QStringLiteral("Second")});
        for (QWidget *field : QList<QWidget *>{edit, number, chooser}) {
            field->setFixedWidth(96);
            fields.append(held(field, state));
        }
    }
    auto *empty = new QLineEdit;
    empty->setPlaceholderText(QStringLiteral("Placeholder"));
    empty->setFixedWidth(120);
    fields.append(empty);
    return row(fields);
}

QLayout *createRanges()
{
    QList<QWidget *> ranges;
    for (const State state : {State::Normal, State::Disabled}) {
        auto *slider = new QSlider(Qt::Horizontal);
        auto *progress = new QProgressBar;
        auto *dial = new QDial;
        slider->setValue(40);
        progress->setValue(40);
        dial->setValue(40);
        dial->setFixedSize(48, 48);
        slider->setFixedWidth(150);
        progress->setFixedWidth(150);
        for (QWidget *range : QList<QWidget *>{slider, progress, dial})
            ranges.append(held(range, state));
    }
    return row(ranges);
}

QGroupBox *createGroup(const char *title, bool isCheckable)
{
    auto *group = new QGroupBox(QString::fromLatin1(title));
    group->setCheckable(isCheckable);
    auto *layout = new QVBoxLayout(group);
    layout->addWidget(button<QRadioButton>("One"));
    layout->addWidget(button<QRadioButton>("Other"));
    return group;
}

QLayout *createTexts()
{
    auto *plain = new QPlainTextEdit(QStringLiteral("Plain text\nin two lines"));
    auto *browser = new QTextBrowser;
    browser->setHtml(
        QStringLiteral("<p>Text with a <a href='page'>link</a> and <b>bold</b> words.</p>"));
    browser->setOpenLinks(false);
    auto *off = createGroup("Group, off", true);
    off->setChecked(false);
    for (QWidget *text : QList<QWidget *>{plain, browser})
        text->setFixedSize(240, 90);
    return row({plain, browser, createGroup("Group", false), createGroup("Group, on", true), off});
}

} // namespace

QWidget *createPlainPage()
{
    auto *page = new QWidget;
    auto *form = new QFormLayout(page);
    form->setContentsMargins(24, 24, 24, 24);
    form->setHorizontalSpacing(20);
    form->setVerticalSpacing(16);
    form->addRow(QStringLiteral("Push buttons"), createPushButtons());
    form->addRow(QStringLiteral("Tool buttons"), createToolButtons());
    form->addRow(QStringLiteral("Check boxes"), createBoxes<QCheckBox>());
    form->addRow(QStringLiteral("Radio buttons"), createBoxes<QRadioButton>());
    form->addRow(QStringLiteral("Fields"), createFields());
    form->addRow(QStringLiteral("Ranges"), createRanges());
    form->addRow(QStringLiteral("Texts, groups"), createTexts());
    form->addRow(QStringLiteral("Views"),
                 row({createTree(), createTable(), createTabs(), createToolBox()}));
    form->addRow(QStringLiteral("Windows"), row({createMainWindow(), createMdiArea()}));
    return page;
}

} // namespace Gallery
