// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_MAKERFIELDS_H
#define GALLERY_MAKERFIELDS_H

#include <QColor>
#include <QWidget>

class QDoubleSpinBox;
class QLineEdit;
class QPushButton;
class QSlider;

namespace Gallery
{

/*! \brief A colour as a button that opens the colour dialog, and as hexadecimal digits. */
class ColorField final : public QWidget
{
    Q_OBJECT

public:
    /*! \brief \a name is what people who cannot see the field hear of it. */
    ColorField(const QString &name, const QColor &color);

    QColor color() const { return m_color; }

Q_SIGNALS:
    void colorChanged(const QColor &color);

private:
    void setColor(const QColor &color);
    void showColor();
    void openDialog();

    QColor m_color;
    QPushButton *m_button;
    QLineEdit *m_edit;
};

/*! \brief A number in steps of a tenth, as a slider and as digits. */
class NumberField final : public QWidget
{
    Q_OBJECT

public:
    NumberField(const QString &name, double least, double most, double value);

    double value() const;

Q_SIGNALS:
    void valueChanged(double value);

private:
    QSlider *m_slider;
    QDoubleSpinBox *m_spinBox;
};

} // namespace Gallery

#endif
