// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEME_TESTS_MNEMONICS_H
#define HVTHEME_TESTS_MNEMONICS_H

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QHash>
#include <QKeySequence>
#include <QLabel>
#include <QMenuBar>
#include <QTabBar>

/*! Finds Alt letters that lead to more than one visible part of a window, and so to each by turns. */
class Mnemonics
{
public:
    /*! \param left  what is below this is not looked at; may be null. */
    explicit Mnemonics(const QWidget *window, const QWidget *left = nullptr)
    {
        const auto all = window->findChildren<QWidget *>();
        for (const QWidget *widget : all) {
            if (widget->window() == window && widget->isVisible()
                && !(left && left->isAncestorOf(widget)))
                noteTextsOf(widget);
        }
    }

    int count() const { return int(m_users.size()); }
    /*! "Alt+X: one text and another" for each that is there twice. */
    QStringList collisions() const { return m_collisions; }

private:
    void noteTextsOf(const QWidget *widget)
    {
        if (const auto *button = qobject_cast<const QAbstractButton *>(widget)) {
            note(button->text());
        } else if (const auto *label = qobject_cast<const QLabel *>(widget)) {
            if (label->buddy())
                note(label->text());
        } else if (const auto *box = qobject_cast<const QGroupBox *>(widget)) {
            note(box->title());
        } else if (const auto *tabs = qobject_cast<const QTabBar *>(widget)) {
            for (int i = 0; i < tabs->count(); ++i)
                note(tabs->tabText(i));
        } else if (const auto *bar = qobject_cast<const QMenuBar *>(widget)) {
            const auto menus = bar->actions();
            for (const QAction *menu : menus)
                note(menu->text());
        }
    }

    void note(const QString &text)
    {
        const QString key = QKeySequence::mnemonic(text).toString();
        if (key.isEmpty())
            return;
        if (m_users.contains(key))
            m_collisions.append(key + QLatin1String(": ") + m_users.value(key)
                                + QLatin1String(" and ") + text);
        m_users.insert(key, text);
    }

    QHash<QString, QString> m_users;
    QStringList m_collisions;
};

#endif
