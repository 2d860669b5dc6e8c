// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_PAGEMENU_H
#define GALLERY_PAGEMENU_H

#include <QMenu>

class ThemeProject;

namespace Gallery
{

/*!
 * \brief The menu of a widget on a page: what can be copied and shown of it.
 *
 * It deletes itself when it is closed.
 */
class PageMenu final : public QMenu
{
    Q_OBJECT

public:
    /*! \brief Makes a menu for \a at; \a project, which may be null, tells where keys stand. */
    PageMenu(QWidget *at, const ThemeProject *project, QWidget *parent);

Q_SIGNALS:
    /*! \brief \a widget is to be shown in the inspector. */
    void inspected(QWidget *widget);
    /*! \brief All that has \a key is to be found. */
    void searched(const QString &key);

private:
    void addKey(const QString &key, const ThemeProject *project);
    void addWidget(QWidget *widget);
    void addRulesAndKeys(QWidget *widget);
    void addCopy(QMenu *menu, const QString &title, const QString &text);
};

} // namespace Gallery

#endif
