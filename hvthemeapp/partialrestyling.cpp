// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "partialrestyling.h"

#include "styledifference.h"

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QSet>
#include <QStyle>
#include <QVector>
#include <QWidget>

namespace HV
{
namespace
{

using Widgets = QVector<QPointer<QWidget>>; // a widget may delete another while it restyles

// In the order of a whole restyling: parents come before their children.
class Concerned
{
public:
    explicit Concerned(const StyleDifference &difference)
        : m_difference(difference)
    {
        const QWidgetList all = QApplication::allWidgets();
        for (QWidget *widget : all) {
            if (!widget->parentWidget())
                append(widget, false, false);
        }
    }

    const Widgets &widgets() const { return m_widgets; }

private:
    // Returns whether the widget or one in it is concerned.
    bool append(QWidget *widget, bool isBelowStyled, bool isBelowConcerned)
    {
        const bool isStyled = isBelowStyled || widget->testAttribute(Qt::WA_StyleSheet);
        const bool isConcerned = isStyled && (isBelowConcerned || m_difference.concerns(*widget));
        const auto place = m_widgets.size();
        bool hasConcerned = isConcerned;
        for (QObject *child : widget->children()) {
            if (!child->isWidgetType())
                continue;
            const bool isChildConcerned = append(static_cast<QWidget *>(child), isStyled,
                                                 isConcerned && m_difference.changesLayout());
            hasConcerned = hasConcerned || isChildConcerned;
        }
        if (isConcerned || (hasConcerned && isStyled && m_difference.changesLayout()))
            m_widgets.insert(place, widget);
        return hasConcerned;
    }

    const StyleDifference &m_difference;
    Widgets m_widgets;
};

// As in a whole restyling, but what is not concerned is not painted for it.
class UpdatesOff
{
public:
    explicit UpdatesOff(const Widgets &widgets)
    {
        for (const QPointer<QWidget> &widget : widgets) {
            if (!widget->isVisible() || !widget->updatesEnabled())
                continue;
            widget->setUpdatesEnabled(false);
            m_widgets.append(widget);
        }
    }
    Q_DISABLE_COPY_MOVE(UpdatesOff)

    ~UpdatesOff()
    {
        for (const QPointer<QWidget> &widget : qAsConst(m_widgets)) {
            if (widget)
                widget->setUpdatesEnabled(true);
        }
    }

private:
    Widgets m_widgets;
};

void polish(const Widgets &widgets)
{
    const UpdatesOff updatesOff(widgets);
    for (const QPointer<QWidget> &widget : widgets) {
        if (widget && widget->testAttribute(Qt::WA_WState_Polished))
            widget->style()->polish(widget);
    }
}

} // namespace

void restyleConcerned(const QString &styleSheet, const StyleDifference &difference,
                      const std::function<void()> &changeWithoutRules)
{
    // Without rules Qt finds no widget to polish when it gets the style sheet.
    QApplication::style()->unpolish(qApp);
    changeWithoutRules();
    qApp->setStyleSheet(styleSheet);
    QApplication::style()->polish(qApp);
    if (qApp->styleSheet() != styleSheet) // the application's style has one of its own
        qApp->setStyleSheet(styleSheet);

    const Widgets widgets = Concerned(difference).widgets();
    polish(widgets);
    if (!difference.changesLayout())
        return; // of the event come new layouts, which ask for the size of each widget around
    for (const QPointer<QWidget> &widget : widgets) {
        QEvent change(QEvent::StyleChange);
        if (widget)
            QCoreApplication::sendEvent(widget, &change);
        if (widget)
            widget->update();
    }
}

} // namespace HV
