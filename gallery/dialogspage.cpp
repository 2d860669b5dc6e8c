// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "plainpage.h"

#include <QColorDialog>
#include <QErrorMessage>
#include <QFormLayout>
#include <QGridLayout>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressDialog>
#include <QTextEdit>
#include <QWizard>

namespace Gallery
{

namespace
{

QDialog *createMessage(QMessageBox::Icon icon, const char *text,
                       QMessageBox::StandardButtons buttons)
{
    auto *box = new QMessageBox(icon, QString(), QString::fromLatin1(text), buttons);
    box->setInformativeText(QStringLiteral("Two fixtures have changed since."));
    return box;
}

QDialog *createInput()
{
    auto *dialog = new QInputDialog;
    dialog->setLabelText(QStringLiteral("Name of the cue:"));
    dialog->setTextValue(QStringLiteral("Sunrise"));
    return dialog;
}

QDialog *createProgress()
{
    auto *dialog =
        new QProgressDialog(QStringLiteral("Copying the show…"), QStringLiteral("Cancel"), 0, 100);
    dialog->setMinimumDuration(1000 * 1000); // the page shows it
    dialog->setAutoReset(false);
    dialog->setValue(40);
    return dialog;
}

QDialog *createError()
{
    auto *dialog = new QErrorMessage;
    dialog->findChild<QTextEdit *>()->setPlainText(
        QStringLiteral("An error that comes again and again."));
    return dialog;
}

QDialog *createColorChooser()
{
    auto *dialog = new QColorDialog(QColor(0x3060f0));
    dialog->setOption(QColorDialog::DontUseNativeDialog);
    dialog->layout()->setSizeConstraint(QLayout::SetDefaultConstraint); // the look has other sizes
    dialog->setMinimumSize(0, 0);
    dialog->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    return dialog;
}

QDialog *createWizard(QWizard::WizardStyle style)
{
    auto *wizard = new QWizard;
    wizard->setWizardStyle(style);
    wizard->setOption(QWizard::HaveHelpButton);
    for (const char *title : {"Where the show is", "Done"}) {
        auto *page = new QWizardPage;
        page->setTitle(QString::fromLatin1(title));
        page->setSubTitle(QStringLiteral("A sentence that says what to do."));
        auto *form = new QFormLayout(page);
        form->addRow(QStringLiteral("Folder"), new QLineEdit(QStringLiteral("shows/spring")));
        wizard->addPage(page);
    }
    wizard->restart();
    wizard->setMinimumSize(500, 300);
    return wizard;
}

// A dialog that is answered would leave a hole in the page.
void addDialog(QGridLayout *grid, int row, int column, const char *title, QDialog *dialog)
{
    dialog->setWindowFlags(Qt::Widget);
    QObject::connect(dialog, &QDialog::finished, dialog, &QWidget::show, Qt::QueuedConnection);
    auto *frame = new QFrame;
    frame->setFrameShape(QFrame::StyledPanel);
    auto *layout = new QVBoxLayout(frame);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->addWidget(dialog);
    auto *cell = new QVBoxLayout;
    auto *label = new QLabel(QString::fromLatin1(title));
    label->setObjectName(QStringLiteral("caption"));
    cell->addWidget(label);
    cell->addWidget(frame, 0, Qt::AlignLeft);
    cell->addStretch();
    grid->addLayout(cell, row, column);
    dialog->setVisible(true);
}

} // namespace

QWidget *createDialogsPage()
{
    auto *page = new QWidget;
    auto *grid = new QGridLayout(page);
    grid->setContentsMargins(24, 24, 24, 24);
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(18);
    addDialog(grid, 0, 0, "QMessageBox, question",
              createMessage(QMessageBox::Question, "Save the cue before you leave it?",
                            QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel));
    addDialog(grid, 0, 1, "QMessageBox, critical",
              createMessage(QMessageBox::Critical, "The output is lost.",
                            QMessageBox::Retry | QMessageBox::Close));
    addDialog(grid, 0, 2, "QInputDialog", createInput());
    addDialog(grid, 1, 0, "QColorDialog", createColorChooser());
    addDialog(grid, 1, 1, "QWizard", createWizard(QWizard::ModernStyle));
    grid->setRowMinimumHeight(1, 450); // texts that wrap make the grid guess too little
    auto *column = new QGridLayout;
    addDialog(column, 0, 0, "QProgressDialog", createProgress());
    addDialog(column, 1, 0, "QErrorMessage", createError());
    grid->addLayout(column, 1, 2);
    return page;
}

} // namespace Gallery
