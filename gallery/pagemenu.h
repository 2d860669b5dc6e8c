// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_PAGEMENU_H
#define GALLERY_PAGEMENU_H

#include <QMenu>

class InspectedSheet;
class ThemeProject;

namespace Gallery
{

class AppliedTheme;

/*!
 * \brief The menu of a widget on a page: what can be copied and shown of it.
 *
 * It deletes itself when it is closed.
 */
class PageMenu final : public QMenu
{
    Q_OBJECT

public:
    /*! \brief Makes a menu for \a at; \a theme tells where keys and rules stand. */
    PageMenu(QWidget *at, const AppliedTheme &theme, QWidget *parent);

Q_SIGNALS:
    /*! \brief \a widget is to be shown in the inspector. */
    void inspected(QWidget *widget);
    /*! \brief All that has \a key is to be found. */
    void searched(const QString &key);

private:
    void addKey(const QString &key, const ThemeProject *project);
    void addWidget(QWidget *widget, const InspectedSheet &sheet);
    void addRulesAndKeys(QWidget *widget, const InspectedSheet &sheet);
    void addCopy(QMenu *menu, const QString &title, const QString &text);
};

} // namespace Gallery

#endif
