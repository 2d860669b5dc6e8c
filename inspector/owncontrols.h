// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef INSPECTOR_OWNCONTROLS_H
#define INSPECTOR_OWNCONTROLS_H

#include <QCheckBox>
#include <QComboBox>
#include <QSpinBox>

// Ticks and arrows are pictures of the theme, so the inspector's controls draw their own.

class OwnCheckBox : public QCheckBox
{
public:
    using QCheckBox::QCheckBox;

protected:
    void paintEvent(QPaintEvent *event) override;
};

class OwnComboBox : public QComboBox
{
public:
    using QComboBox::QComboBox;

protected:
    void paintEvent(QPaintEvent *event) override;
};

class OwnSpinBox : public QSpinBox
{
public:
    using QSpinBox::QSpinBox;

protected:
    void paintEvent(QPaintEvent *event) override;
};

#endif
