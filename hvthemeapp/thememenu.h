// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_THEMEMENU_H
#define HVTHEMEAPP_THEMEMENU_H

#include <hvthemeapp/applicationtheme.h>

#include <QMenu>
#include <QPointer>

class QActionGroup;

namespace HV
{

/*! \brief The menu that ApplicationTheme::menu() makes. May outlive the theme. Internal. */
class ThemeMenu final : public QMenu
{
    Q_OBJECT

public:
    explicit ThemeMenu(ApplicationTheme *theme, QWidget *parent);

private:
    void rebuild();
    void check();

    QPointer<ApplicationTheme> m_theme;
    QActionGroup *m_choices;
};

} // namespace HV

#endif // HVTHEMEAPP_THEMEMENU_H
