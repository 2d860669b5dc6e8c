// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef INSPECTOR_CONFLICTDIALOG_H
#define INSPECTOR_CONFLICTDIALOG_H

#include <analysis/theme/themeeditor.h>

#include <QDialog>

/*! \brief Shows what a file says that changed meanwhile, beside what was to be written, and lets the user choose. */
class ConflictDialog : public QDialog
{
    Q_OBJECT

public:
    ConflictDialog(const QString &file, const ThemeSaving &saving, QWidget *parent);

Q_SIGNALS:
    /*! \brief The text to go on with. */
    void chosen(ThemeEditor::Text text);
};

#endif
