// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "restyling.h"

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QStyle>
#include <QVector>
#include <QWidget>

namespace HV
{
namespace
{

using Widgets = QVector<QPointer<QWidget>>; // a widget may delete another while it restyles

// Parents come before their children. Below a styled widget all are, as in a replacement by Qt.
void appendStyled(QWidget *widget, bool isBelowStyled, Widgets &styled)
{
    const bool isStyled = isBelowStyled || widget->testAttribute(Qt::WA_StyleSheet);
    if (isStyled)
        styled.append(widget);
    for (QObject *child : widget->children()) {
        if (child->isWidgetType())
            appendStyled(static_cast<QWidget *>(child), isStyled, styled);
    }
}

Widgets styledWidgets()
{
    Widgets styled;
    const QWidgetList all = QApplication::allWidgets();
    for (QWidget *widget : all) {
        if (!widget->parentWidget())
            appendStyled(widget, false, styled);
    }
    return styled;
}

// A widget that paints as soon as its palette or font changes would show neither style sheet.
class UpdatesOff
{
    Q_DISABLE_COPY(UpdatesOff)

public:
    UpdatesOff()
    {
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (QWidget *window : windows) {
            if (!window->isVisible() || !window->updatesEnabled())
                continue;
            window->setUpdatesEnabled(false);
            m_windows.append(window);
        }
    }

    ~UpdatesOff()
    {
        for (const QPointer<QWidget> &window : qAsConst(m_windows)) {
            if (window)
                window->setUpdatesEnabled(true);
        }
    }

private:
    Widgets m_windows;
};

void polishOnce(const Widgets &widgets)
{
    const UpdatesOff updatesOff;
    for (const QPointer<QWidget> &widget : widgets) {
        if (widget && widget->testAttribute(Qt::WA_WState_Polished))
            widget->style()->polish(widget);
    }
}

// QApplication::setStyleSheet() replaces a style sheet by polishing every widget that has rules and
// all its descendants, so each widget once per ancestor. Unpolishing the application drops all rules
// first: setStyleSheet() then finds no widget to polish, and each gets its turn here, once. Clearing
// the style sheet instead would polish everything twice, and lose widgets with a style of their own.
void replaceStyleSheet(QApplication &application, const QString &styleSheet,
                       const std::function<void()> &changeWithoutRules)
{
    application.style()->unpolish(&application);
    if (changeWithoutRules)
        changeWithoutRules();
    application.setStyleSheet(styleSheet);
    application.style()->polish(&application);
    if (application.styleSheet() != styleSheet) // the application's style has one of its own
        application.setStyleSheet(styleSheet);

    const Widgets widgets = styledWidgets();
    polishOnce(widgets);
    for (const QPointer<QWidget> &widget : widgets) {
        QEvent change(QEvent::StyleChange);
        if (widget)
            QCoreApplication::sendEvent(widget, &change);
        if (widget)
            widget->update();
    }
}

} // namespace

void restyle(QApplication &application, const QString &styleSheet,
             const std::function<void()> &changeWithoutRules)
{
    if (!application.styleSheet().isEmpty()) {
        replaceStyleSheet(application, styleSheet, changeWithoutRules);
        return;
    }
    if (changeWithoutRules)
        changeWithoutRules();
    application.setStyleSheet(styleSheet);
}

} // namespace HV
