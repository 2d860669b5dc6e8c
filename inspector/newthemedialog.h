// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef INSPECTOR_NEWTHEMEDIALOG_H
#define INSPECTOR_NEWTHEMEDIALOG_H

#include <inspector/programchanges.h>

#include <QDialog>

class QCheckBox;
class QFormLayout;
class QLabel;
class QLineEdit;

/*! \brief Writes a whole new theme from the running one with its changes, and lets the program have it. */
class NewThemeDialog : public QDialog
{
    Q_OBJECT

public:
    NewThemeDialog(ProgramChanges *changes, QWidget *parent);

    void accept() override;

Q_SIGNALS:
    /*! \brief The theme's own file is at \a path; \a problem, if not empty, says why the program cannot go on
     *         with it. */
    void saved(const QString &path, const QString &problem);

private:
    void chooseFolder();
    QFormLayout *makeForm();
    QString goOn(const NewTheme &theme, const QStringList &files);

    ProgramChanges *const m_changes;
    QLineEdit *m_folder;
    QLineEdit *m_name;
    QLineEdit *m_displayName;
    QCheckBox *m_goesOn;
    QLabel *m_problem;
};

#endif
