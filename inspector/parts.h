// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef INSPECTOR_PARTS_H
#define INSPECTOR_PARTS_H

#include <inspector/widgetparts.h>

#include <QAbstractSpinBox>
#include <QStyle>
#include <QStyleOption>

class QAbstractButton;
class QAbstractItemView;
class QHeaderView;
class QModelIndex;
class QTabBar;
class QToolBox;

/*! \brief Collects the parts that a widget shows; the widget itself is the first. */
class Parts
{
public:
    static constexpr int most = 400;

    explicit Parts(const QWidget *widget);

    QVector<WidgetPart> all() const { return m_parts; }
    const QSet<QString> &states() const { return m_states; }

    // What Qt leaves of the widget's states for a sub-control that the mouse is not at.
    QSet<QString> quiet() const
    {
        QSet<QString> states = m_states;
        return states.intersect(
            {QStringLiteral("enabled"), QStringLiteral("disabled"), QStringLiteral("horizontal"),
             QStringLiteral("vertical"), QStringLiteral("focus"), QStringLiteral("read-only"),
             QStringLiteral("editable"), QStringLiteral("closed"), QStringLiteral("no-frame")});
    }

    void add(const QString &subControl, const QRect &rect, const QSet<QString> &states,
             const QString &label = {})
    {
        if (m_parts.size() < most)
            m_parts.append({subControl, label, rect, states});
    }
    void add(const char *subControl, const QRect &rect, const QSet<QString> &states,
             const QString &label = {})
    {
        add(QLatin1String(subControl), rect, states, label);
    }

    void addQuiet(std::initializer_list<const char *> subControls)
    {
        for (const char *subControl : subControls)
            add(subControl, {}, quiet());
    }

    // The rectangle of a sub-control of a complex widget, with its states.
    template<typename Option>
    void addComplex(const char *subControl, QStyle::ComplexControl control, QStyle::SubControl part,
                    const Option &option)
    {
        const QRect rect = m_widget->style()->subControlRect(control, &option, part, m_widget);
        const bool isActive = option.activeSubControls.testFlag(part);
        if (rect.isValid())
            add(subControl, rect, isActive ? m_states : quiet());
    }

    void addItems(const QAbstractItemView *view);
    void addTabs(const QTabBar *bar);
    void addTabs(const QToolBox *box);
    void addActions(const QWidget *menu);
    void addSections(const QHeaderView *header);
    void addButton(const QAbstractButton *button);
    void addRange();
    void addEdit();
    void addContainer();
    void addSteps(const char *direction, QStyle::SubControl part, const QStyleOptionSpinBox &option,
                  QAbstractSpinBox::StepEnabledFlag step);

private:
    void addItem(const QAbstractItemView *view, const QModelIndex &cell, bool isAlternate);

    const QWidget *m_widget;
    const QSet<QString> m_states;
    bool m_isActive = false;
    QVector<WidgetPart> m_parts;
};

/*! \brief Lets a state hold, or not. */
void set(QSet<QString> *states, const char *name, bool holds);

/*! \brief Tells whether \a widget is what closes a tab; Qt paints it by the rules of the tab bar. May be null. */
bool isCloseButton(const QWidget *widget);

#endif
