// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef INSPECTOR_CHANGELIST_H
#define INSPECTOR_CHANGELIST_H

#include <inspector/programchanges.h>

#include <QWidget>

class QPushButton;
class QTreeWidget;

/*! \brief All that is changed, each with what it was before, and a way back for each. */
class ChangeList : public QWidget
{
    Q_OBJECT

public:
    explicit ChangeList(ProgramChanges *changes, QWidget *parent = nullptr);

private:
    void showChanges();
    void resetCurrent();

    ProgramChanges *const m_changes;
    QTreeWidget *m_list;
    QPushButton *m_reset;
    QPushButton *m_resetAll;
};

#endif
