// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <inspector/newthemedialog.h>

#include <format/themepath.h>
#include <hvthemeapp/applicationtheme.h>
#include <inspector/inspectedtheme.h>
#include <inspector/owncontrols.h>
#include <inspector/ownlook.h>

#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace
{

// A folder that can be written: that of the theme, or else a new one at home.
QString suggestedFolder()
{
    QString folder = InspectedTheme::inForce().folder;
    if (!isResourcePath(folder) && QFileInfo(folder).isWritable())
        return folder;
    return QDir::homePath() % QLatin1String("/themes");
}

// A path that nobody has: dark-2 for dark.
QString suggestedName(const QString &folder, const HV::ApplicationTheme &look)
{
    int number = 2;
    QString suggested;
    do
        suggested = look.name() % QLatin1Char('-') % QString::number(number++);
    while (QFileInfo::exists(themeFilePath(folder, suggested, look.suffix())));
    return suggested;
}

} // namespace

NewThemeDialog::NewThemeDialog(ProgramChanges *changes, QWidget *parent)
    : QDialog(parent)
    , m_changes(changes)
    , m_folder(new QLineEdit)
    , m_name(new QLineEdit)
    , m_displayName(new QLineEdit)
    , m_goesOn(new OwnCheckBox(tr("&Go on with the new theme")))
    , m_problem(new QLabel)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("Save as a new theme"));
    setPalette(inspectorPalette());
    const HV::ApplicationTheme *look = HV::ApplicationTheme::inForce();
    if (look) {
        m_folder->setText(QDir::toNativeSeparators(suggestedFolder()));
        m_name->setText(suggestedName(m_folder->text(), *look));
    }
    m_goesOn->setChecked(true);
    m_goesOn->setToolTip(tr("The program gets the new theme, and further changes go there"));
    m_folder->setAccessibleName(tr("Folder"));
    m_name->setAccessibleName(tr("Name"));
    m_displayName->setAccessibleName(tr("Name for people"));
    m_problem->setWordWrap(true);
    m_problem->setAccessibleName(tr("Problem"));
    m_problem->setStyleSheet(warningStyleSheet());
    m_problem->hide();

    auto *column = new QVBoxLayout(this);
    column->addLayout(makeForm());
    column->addWidget(m_goesOn);
    column->addWidget(m_problem);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel);
    column->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &NewThemeDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    m_name->setFocus();
    m_name->selectAll();
    // The look of the inspector resets least widths; a path has room all the same.
    resize(sizeHint().expandedTo(QSize(520, 0)));
}

QFormLayout *NewThemeDialog::makeForm()
{
    auto *form = new QFormLayout;
    auto *folderRow = new QHBoxLayout;
    auto *choose = new QToolButton;
    choose->setText(tr("C&hoose…"));
    choose->setAccessibleName(tr("Choose a folder"));
    connect(choose, &QToolButton::clicked, this, &NewThemeDialog::chooseFolder);
    folderRow->addWidget(m_folder, 1);
    folderRow->addWidget(choose);
    auto *nameLabel = new QLabel(tr("&Name:"));
    nameLabel->setBuddy(m_name);
    auto *displayLabel = new QLabel(tr("Name for &people:"));
    displayLabel->setBuddy(m_displayName);
    auto *folderLabel = new QLabel(tr("&Folder:"));
    folderLabel->setBuddy(m_folder);
    form->addRow(nameLabel, m_name);
    form->addRow(displayLabel, m_displayName);
    form->addRow(folderLabel, folderRow);
    return form;
}

void NewThemeDialog::chooseFolder()
{
    auto *dialog = new QFileDialog(this, tr("Choose a folder"), m_folder->text());
    dialog->setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::ShowDirsOnly);
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setPalette(inspectorPalette());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QFileDialog::fileSelected, m_folder, &QLineEdit::setText);
    dialog->open();
}

void NewThemeDialog::accept()
{
    const HV::ApplicationTheme *look = HV::ApplicationTheme::inForce();
    if (!look)
        return;
    NewTheme theme;
    theme.folder = QFileInfo(m_folder->text().trimmed()).absoluteFilePath();
    theme.name = m_name->text();
    theme.displayName = m_displayName->text();
    theme.suffix = look->suffix();
    const InspectedTheme from = InspectedTheme::inForce();
    QStringList files{themeFilePath(from.folder, defaultThemeName(), from.suffix)};
    if (from.name != defaultThemeName())
        files << themeFilePath(from.folder, from.name, from.suffix);
    bool isSaved = false;
    if (m_folder->text().trimmed().isEmpty())
        m_problem->setText(tr("A folder is needed."));
    else
        isSaved = m_changes->saveAs(theme, files);
    if (!m_changes->problem().isEmpty())
        m_problem->setText(m_changes->problem());
    m_problem->setVisible(!isSaved);
    if (!isSaved)
        return;
    const QString problem = m_goesOn->isChecked() ? goOn(theme, files) : QString();
    Q_EMIT saved(themeFilePath(theme.folder, theme.name, theme.suffix), problem);
    QDialog::accept();
}

// The changes of these files are in the new theme, so they need them no more; those of others are
// nowhere else. Returns why the program stays with the theme that it has, if it does.
QString NewThemeDialog::goOn(const NewTheme &theme, const QStringList &files)
{
    HV::ApplicationTheme *look = HV::ApplicationTheme::inForce();
    const QString before = look->folder();
    const bool isElsewhere = before != theme.folder;
    if (isElsewhere && !look->setFolder(theme.folder))
        return look->problem();
    if (!look->setName(theme.name)) {
        QString problem = look->problem();
        if (isElsewhere)
            look->setFolder(before);
        return problem;
    }
    m_changes->discardFiles(files);
    return {};
}
