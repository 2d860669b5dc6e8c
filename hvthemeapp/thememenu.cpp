// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "thememenu.h"

#include <QActionGroup>

namespace HV
{

ThemeMenu::ThemeMenu(ApplicationTheme *theme, QWidget *parent)
    : QMenu(tr("Theme"), parent)
    , m_theme(theme)
    , m_choices(new QActionGroup(this))
{
    connect(theme, &ApplicationTheme::folderChanged, this, &ThemeMenu::rebuild);
    connect(theme, &ApplicationTheme::nameChanged, this, &ThemeMenu::check);
    connect(theme, &ApplicationTheme::followsDesktopChanged, this, &ThemeMenu::check);
    connect(this, &QMenu::aboutToShow, this, &ThemeMenu::rebuild);
    connect(m_choices, &QActionGroup::triggered, this, [this](const QAction *action) {
        const QString name = action->data().toString();
        const QPointer<ThemeMenu> guard(this); // programs that hear of it may make their menus anew
        if (m_theme && name.isEmpty())
            m_theme->followDesktop();
        else if (m_theme)
            m_theme->setName(name);
        if (guard)
            check(); // back to what it was if there was a problem
    });
    rebuild();
}

// Actions stay where the folder has the same themes: one of them may be what led here.
void ThemeMenu::rebuild()
{
    const QStringList names = m_theme ? m_theme->names() : QStringList();
    QStringList shown;
    const QList<QAction *> actions = m_choices->actions();
    for (const QAction *action : actions)
        shown.append(action->data().toString());
    if (shown == QStringList(QString()) + names) {
        check();
        return;
    }

    const QList<QAction *> old = this->actions();
    for (QAction *action : old) {
        m_choices->removeAction(action);
        removeAction(action);
        action->deleteLater();
    }
    const auto add = [this](const QString &text, const QString &name) {
        QAction *action = addAction(text);
        action->setData(name);
        action->setCheckable(true);
        m_choices->addAction(action);
    };
    add(tr("As the desktop"), QString());
    addSeparator();
    for (const QString &name : names)
        add(m_theme->displayName(name).replace(QLatin1Char('&'), QLatin1String("&&")), name);
    check();
}

void ThemeMenu::check()
{
    if (!m_theme)
        return;
    const QString checked = m_theme->followsDesktop() ? QString() : m_theme->name();
    const bool isChosen = m_theme->followsDesktop() || !m_theme->name().isNull();
    const QList<QAction *> actions = m_choices->actions();
    for (QAction *action : actions)
        action->setChecked(isChosen && action->data().toString() == checked);
}

} // namespace HV
