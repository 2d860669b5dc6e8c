// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef INSPECTOR_SAVEBAR_H
#define INSPECTOR_SAVEBAR_H

#include <inspector/programchanges.h>

#include <QWidget>

class ConflictDialog;
class QLabel;
class QToolButton;

/*! \brief Undo, redo and saving, and what came of it. */
class SaveBar : public QWidget
{
    Q_OBJECT

public:
    /*! \brief \a shortcutOwner is where the keys work. */
    SaveBar(ProgramChanges *changes, QWidget *shortcutOwner);

    /*!
     * \brief Saves all files that are changed.
     *
     * What cannot be written is said in the window; for a file that others changed meanwhile both
     * texts are shown, and the user chooses.
     *
     * \return whether nothing is left unsaved.
     */
    bool save();

    /*! \brief Asks for a name and a folder, and writes a whole new theme. */
    void saveAs();

    /*! \brief What the user is about to close: changes outlive the inspector, but not the program. */
    enum class Closing {
        Inspector,
        Program
    };

    /*! \brief Asks what is to become of what is not saved; returns false if all is to stay as it is. */
    bool mayClose(Closing closing);

private:
    QToolButton *makeButton(const QString &text, const QString &name, const QKeySequence &keys,
                            QWidget *shortcutOwner);
    void showState();
    bool saveFiles(const QStringList &files);
    void showConflict(const QString &file, const ThemeSaving &saving);
    void tell(const QString &text, bool isProblem);

    ProgramChanges *const m_changes;
    QMap<QString, QString> m_problems; // by file, of those that could not be saved
    QHash<QString, QPointer<ConflictDialog>> m_conflicts; // by file
    QLabel *m_state;
    QLabel *m_message;
    QToolButton *m_undo;
    QToolButton *m_redo;
    QToolButton *m_save;
    QToolButton *m_saveAs;
};

#endif
