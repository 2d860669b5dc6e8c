// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <inspector/savebar.h>

#include <hvthemeapp/applicationtheme.h>
#include <inspector/conflictdialog.h>
#include <inspector/newthemedialog.h>
#include <inspector/ownlook.h>

#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QShortcut>
#include <QToolButton>
#include <QVBoxLayout>

SaveBar::SaveBar(ProgramChanges *changes, QWidget *shortcutOwner)
    : m_changes(changes)
    , m_state(new QLabel)
    , m_message(new QLabel)
    , m_undo(
          makeButton(tr("Undo"), tr("Undo"), QKeySequence(QStringLiteral("Ctrl+Z")), shortcutOwner))
    , m_redo(makeButton(tr("Redo"), tr("Redo"), QKeySequence(QStringLiteral("Ctrl+Shift+Z")),
                        shortcutOwner))
    , m_save(makeButton(tr("Save"), tr("Save the changes"), QKeySequence(QStringLiteral("Ctrl+S")),
                        shortcutOwner))
    , m_saveAs(makeButton(tr("Save as a new theme…"), tr("Save as a new theme"),
                          QKeySequence(QStringLiteral("Ctrl+Shift+S")), shortcutOwner))
{
    m_state->setAccessibleName(tr("Unsaved changes"));
    m_message->setAccessibleName(tr("What came of saving"));
    m_message->setWordWrap(true);
    m_message->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_message);
    auto *row = new QHBoxLayout;
    row->addWidget(m_state, 1);
    for (QToolButton *button : {m_undo, m_redo, m_save, m_saveAs})
        row->addWidget(button);
    column->addLayout(row);
    connect(m_undo, &QToolButton::clicked, m_changes, &ProgramChanges::undo);
    connect(m_redo, &QToolButton::clicked, m_changes, &ProgramChanges::redo);
    connect(m_save, &QToolButton::clicked, this, &SaveBar::save);
    connect(m_saveAs, &QToolButton::clicked, this, &SaveBar::saveAs);
    connect(m_changes, &ProgramChanges::changed, this, &SaveBar::showState);
    tell(QString(), false);
    showState();
}

QToolButton *SaveBar::makeButton(const QString &text, const QString &name, const QKeySequence &keys,
                                 QWidget *shortcutOwner)
{
    auto *button = new QToolButton;
    button->setText(text);
    button->setAccessibleName(name);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setToolTip(
        QStringLiteral("%1 (%2)").arg(name, keys.toString(QKeySequence::NativeText)));
    // A shortcut of the button itself would work in the whole window that it is embedded in.
    auto *shortcut = new QShortcut(keys, shortcutOwner);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, button, &QToolButton::click);
    return button;
}

void SaveBar::showState()
{
    const int count = int(m_changes->values().size());
    QStringList files = m_changes->unsavedFiles();
    for (QString &file : files)
        file = QFileInfo(file).fileName();
    m_state->setText(count == 0 ? tr("No unsaved changes")
                         : count == 1
                         ? tr("1 unsaved change in %1").arg(files.join(QLatin1String(", ")))
                         : tr("%1 unsaved changes in %2")
                               .arg(QString::number(count), files.join(QLatin1String(", "))));
    m_undo->setEnabled(m_changes->canUndo());
    m_redo->setEnabled(m_changes->canRedo());
    m_save->setEnabled(count > 0);
    m_saveAs->setEnabled(HV::ApplicationTheme::inForce());
    if (!m_changes->problem().isEmpty())
        tell(m_changes->problem(), true);
    else if (count > 0)
        tell(QString(), false);
}

void SaveBar::tell(const QString &text, bool isProblem)
{
    m_message->setText(text);
    m_message->setVisible(!text.isEmpty());
    m_message->setStyleSheet(isProblem ? warningStyleSheet() : QString());
}

bool SaveBar::save()
{
    return saveFiles(m_changes->unsavedFiles());
}

bool SaveBar::saveFiles(const QStringList &files)
{
    QStringList saved;
    for (const QString &file : files) {
        const ThemeSaving saving = m_changes->save(file);
        if (saving.isSaved())
            saved << QFileInfo(file).fileName();
        else
            m_problems.insert(file, saving.message);
        if (saving.outcome == ThemeSaving::Outcome::ChangedMeanwhile)
            showConflict(file, saving);
    }
    // What another file could not be saved for is still so.
    const QStringList unsaved = m_changes->unsavedFiles();
    QStringList problems;
    for (auto it = m_problems.begin(); it != m_problems.end();) {
        const bool isStill = unsaved.contains(it.key());
        if (isStill)
            problems << *it;
        it = isStill ? it + 1 : m_problems.erase(it);
    }
    if (!problems.isEmpty())
        tell(problems.join(QLatin1Char('\n')), true);
    else if (!saved.isEmpty())
        tell(tr("Saved %1.").arg(saved.join(QLatin1String(", "))), false);
    if (!problems.isEmpty())
        m_saveAs->setFocus();
    return !m_changes->isUnsaved();
}

// A file has one dialog at most, which has its latest text. The choice holds for what was shown: if
// the file has changed once more, saving shows that.
void SaveBar::showConflict(const QString &file, const ThemeSaving &saving)
{
    if (m_conflicts.value(file))
        m_conflicts.value(file)->close();
    auto *dialog = new ConflictDialog(file, saving, this);
    m_conflicts.insert(file, dialog);
    connect(dialog, &ConflictDialog::chosen, this,
            [this, file, theirs = saving.theirs](ThemeEditor::Text text) {
                m_conflicts.remove(file); // this one closes by itself
                if (m_changes->adopt(file, theirs, text))
                    saveFiles({file});
                else
                    tell(m_changes->problem(), true);
            });
    dialog->open();
}

void SaveBar::saveAs()
{
    auto *dialog = new NewThemeDialog(m_changes, this);
    connect(dialog, &NewThemeDialog::saved, this,
            [this](const QString &path, const QString &problem) {
                const QString text = tr("Saved as the new theme %1.").arg(path);
                if (problem.isEmpty())
                    tell(text, false);
                else
                    tell(tr("%1 The program cannot go on with it: %2").arg(text, problem), true);
            });
    dialog->open();
}

// The program may close the inspector while it asks: then all of this is gone.
bool SaveBar::mayClose(Closing closing)
{
    if (!m_changes->isUnsaved())
        return true;
    const QPointer<QMessageBox> box =
        new QMessageBox(QMessageBox::Question, tr("Unsaved changes"),
                        tr("%1. Save them?").arg(m_state->text()), QMessageBox::NoButton, this);
    box->setPalette(inspectorPalette());
    const QAbstractButton *saving = box->addButton(tr("&Save"), QMessageBox::AcceptRole);
    const QAbstractButton *keeping = nullptr;
    if (closing == Closing::Inspector) {
        box->setInformativeText(
            tr("Kept changes stay in force, and stand in the list when the inspector is opened "
               "again, until the program ends."));
        keeping = box->addButton(tr("&Keep for now"), QMessageBox::AcceptRole);
    }
    const QAbstractButton *discarding =
        box->addButton(tr("&Discard"), QMessageBox::DestructiveRole);
    box->addButton(QMessageBox::Cancel);
    box->exec();
    if (!box)
        return false;
    const QAbstractButton *clicked = box->clickedButton();
    box->deleteLater();
    if (clicked == saving)
        return save();
    if (clicked == discarding)
        m_changes->discard();
    return clicked && (clicked == keeping || clicked == discarding);
}
