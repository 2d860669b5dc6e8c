// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "makerfields.h"

#include <maker/tones.h>

#include <QColorDialog>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QSlider>
#include <QVariant>

namespace Gallery
{

namespace
{

constexpr QSize swatchSize(40, 16);
constexpr int spinBoxWidth = 76; // the same for all, so that they stand in a column
constexpr int stepsPerUnit = 10;

} // namespace

ColorField::ColorField(const QString &name, const QColor &color)
    : m_color(color)
    , m_button(new QPushButton)
    , m_edit(new QLineEdit)
{
    m_button->setAccessibleName(name + QLatin1String(", choose"));
    m_button->setToolTip(QStringLiteral("Choose the colour"));
    m_button->setIconSize(swatchSize);
    m_edit->setAccessibleName(name + QLatin1String(", hexadecimal"));
    static const QRegularExpression digits(QStringLiteral("#?[0-9A-Fa-f]{6}"));
    m_edit->setValidator(new QRegularExpressionValidator(digits, m_edit));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_button);
    layout->addWidget(m_edit, 1);
    setFocusProxy(m_button); // the first: Tab would leave out what is before it
    showColor();
    connect(m_button, &QPushButton::clicked, this, &ColorField::openDialog);
    connect(m_edit, &QLineEdit::textEdited, this, [this](const QString &text) {
        if (m_edit->hasAcceptableInput())
            setColor(QColor(text.startsWith(QLatin1Char('#')) ? text
                                                              : QString(QLatin1Char('#') + text)));
    });
    connect(m_edit, &QLineEdit::editingFinished, this, &ColorField::showColor);
}

void ColorField::setColor(const QColor &color)
{
    if (!color.isValid() || color == m_color)
        return;
    m_color = color;
    showColor();
    Q_EMIT colorChanged(color);
}

void ColorField::showColor()
{
    QPixmap swatch(swatchSize * devicePixelRatioF());
    swatch.setDevicePixelRatio(devicePixelRatioF());
    swatch.fill(m_color);
    m_button->setIcon(swatch);
    const QString digits = Maker::hexadecimal(m_color);
    if (m_edit->text().compare(digits, Qt::CaseInsensitive) != 0 && !m_edit->hasFocus())
        m_edit->setText(digits);
}

void ColorField::openDialog()
{
    auto *dialog = new QColorDialog(m_color, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    const QColor before = m_color;
    connect(dialog, &QColorDialog::currentColorChanged, this, &ColorField::setColor);
    connect(dialog, &QDialog::rejected, this, [this, before] { setColor(before); });
    dialog->open();
}

NumberField::NumberField(const QString &name, double least, double most, double value)
    : m_slider(new QSlider(Qt::Horizontal))
    , m_spinBox(new QDoubleSpinBox)
{
    m_slider->setAccessibleName(name);
    m_slider->setRange(qRound(least * stepsPerUnit), qRound(most * stepsPerUnit));
    m_slider->setPageStep(stepsPerUnit / 2);
    m_slider->setValue(qRound(value * stepsPerUnit));
    m_slider->setProperty("sliderStyle", QStringLiteral("hGeneral"));
    m_spinBox->setAccessibleName(name);
    m_spinBox->setDecimals(1);
    m_spinBox->setMinimumWidth(spinBoxWidth);
    m_spinBox->setSingleStep(1.0 / stepsPerUnit);
    m_spinBox->setRange(least, most);
    m_spinBox->setValue(value);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_slider, 1);
    layout->addWidget(m_spinBox);
    setFocusProxy(m_slider);
    connect(m_slider, &QSlider::valueChanged, m_spinBox,
            [this](int steps) { m_spinBox->setValue(double(steps) / stepsPerUnit); });
    connect(m_spinBox, qOverload<double>(&QDoubleSpinBox::valueChanged), this,
            [this](double number) {
                m_slider->setValue(qRound(number * stepsPerUnit));
                Q_EMIT valueChanged(number);
            });
}

double NumberField::value() const
{
    return m_spinBox->value();
}

} // namespace Gallery
