// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_HELDSTATE_H
#define GALLERY_HELDSTATE_H

#include <QComboBox>
#include <QStyleOptionSpinBox>
#include <QStylePainter>

class QAbstractItemView;

namespace Gallery
{

// Specimens are real widgets in real states wherever Qt lets a state be held; the classes here are
// for the states that only a mouse button or an open pop-up would give.

/*! \brief Makes \a widget deaf to mouse and keyboard, so that nothing changes its state. */
void makeInert(QWidget *widget);

/*! \brief Makes \a widget report the mouse over it (`:hover`). It has to be inert. */
void holdHover(QWidget *widget);

/*! \brief Makes \a widget report the focus (`:focus`) while any widget of the program has it. */
void holdFocus(QWidget *widget);

/*! \brief Keeps the mouse over the item of \a view in \a row and \a column. */
void holdItemHover(QAbstractItemView *view, int row, int column);

/*! \brief A spin box or date-time edit with the mouse over or on one of its buttons. */
template<typename SpinBox>
class HeldSpinBox final : public SpinBox
{
public:
    HeldSpinBox(QStyle::SubControl button, QStyle::State state)
        : m_button(button)
        , m_state(state)
    {
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QStyleOptionSpinBox option;
        this->initStyleOption(&option);
        option.activeSubControls = m_button;
        option.state |= m_state;
        QStylePainter(this).drawComplexControl(QStyle::CC_SpinBox, option);
    }

private:
    QStyle::SubControl m_button;
    QStyle::State m_state;
};

/*! \brief A combo box that looks as if its list were open (`:on`). */
class OpenComboBox final : public QComboBox
{
protected:
    void paintEvent(QPaintEvent *event) override;
};

/*! \brief The list of a combo box, drawn in place instead of popping up. */
class ComboBoxList final : public QWidget
{
public:
    /*! \brief Who draws the items: Qt's default leaves the rules for them aside. */
    enum class Delegate {
        Default,
        Styled
    };

    ComboBoxList(int selectedRow, Delegate delegate);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QComboBox *m_comboBox;
};

} // namespace Gallery

#endif
