// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "workabletheming.h"

#include "theming.h"

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QStyle>
#include <QVector>
#include <QWidget>

// A shared library registers its templates when it is loaded; a static one needs the call.
// Q_INIT_RESOURCE declares a function, so it may not stand inside a namespace.
static void initTemplates()
{
#ifdef HVTHEME_STATIC_DEFINE
    Q_INIT_RESOURCE(hvtheme);
#endif
}

namespace HV
{

static const QString pathPrefix = QStringLiteral(":/stylesheet");
static const QString themePrefix = QStringLiteral("global");
[[maybe_unused]] static const QString defaultTheme = QStringLiteral("default");
static const QString themeFileSuffix = QStringLiteral("theme");

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
void replaceStyleSheet(QApplication &application, const QString &styleSheet)
{
    application.style()->unpolish(&application);
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

WorkableTheme::WorkableTheme(QObject *parent)
    : Theme(QStringLiteral("zorka.global.theme"), parent)
{
}

void changeTheme(Theme *theme, const QString &name, const QString &folder)
{
    changeTheme(theme, name, folder, themeFileSuffix);
}

void changeAppStyleSheet(Theme *theme, const QString &name, const QString &folder)
{
    initTemplates();
    changeTheme(theme, name, folder, themeFileSuffix);
    const QString styleSheet = findStyleSheet(theme, pathPrefix, themePrefix);
    if (qApp->styleSheet().isEmpty())
        qApp->setStyleSheet(styleSheet);
    else
        replaceStyleSheet(*qApp, styleSheet);
}

} // namespace HV
