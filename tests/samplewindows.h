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
        switch (i % 6) {
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
