// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <inspector/imageeditor.h>

#include <format/themepath.h>
#include <inspector/ownlook.h>

#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QIcon>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

namespace
{

constexpr int side = 48;

} // namespace

ImageEditor::ImageEditor(QWidget *parent)
    : QWidget(parent)
    , m_text(new QLineEdit)
    , m_picture(new QLabel)
{
    m_text->setAccessibleName(tr("Image file"));
    m_text->setToolTip(
        tr("Relative to the folder of the executable, or a resource; Enter takes it"));
    m_picture->setFixedSize(side, side);
    m_picture->setAlignment(Qt::AlignCenter);
    m_picture->setAccessibleName(tr("The image"));
    auto *choose = new QToolButton;
    choose->setText(tr("C&hoose…"));
    choose->setAccessibleName(tr("Choose an image file"));
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_picture, 0, Qt::AlignTop);
    row->addWidget(m_text, 1, Qt::AlignTop);
    row->addWidget(choose, 0, Qt::AlignTop);
    connect(m_text, &QLineEdit::editingFinished, this, &ImageEditor::edit);
    connect(choose, &QToolButton::clicked, this, &ImageEditor::openDialog);
    setFocusProxy(m_text);
}

void ImageEditor::setValue(const QString &text, const QString &folder)
{
    const bool isSame = text == m_value && folder == m_folder;
    m_folder = folder;
    m_value = text;
    if (!isSame)
        m_text->setText(text);
    showImage();
}

void ImageEditor::edit()
{
    const QString text = m_text->text().trimmed();
    if (text == m_value)
        return;
    const QString path = imageFilePath(m_folder, text);
    const bool isImage = QFileInfo(path).isFile() && QImageReader(path).canRead();
    Q_EMIT refused(isImage ? QString()
                           : tr("%1 is no image that can be read; nothing was changed.").arg(path));
    if (!isImage)
        return;
    m_value = text;
    showImage();
    Q_EMIT edited(text);
}

void ImageEditor::openDialog()
{
    const QFileInfo now(imageFilePath(m_folder, m_value));
    const QString from = isResourcePath(m_value) ? m_folder : now.path();
    auto *dialog = new QFileDialog(this, tr("Choose an image"), from);
    m_dialog = dialog;
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    dialog->setPalette(inspectorPalette());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setNameFilter(tr("Images (*.svg *.png *.jpg *.jpeg *.gif *.bmp *.webp)"));
    connect(dialog, &QFileDialog::fileSelected, this, [this](const QString &file) {
        m_text->setText(QDir(m_folder).relativeFilePath(file));
        edit();
    });
    dialog->open();
}

void ImageEditor::closeDialog()
{
    if (!m_dialog)
        return;
    m_dialog->disconnect(this); // it is still there for a while
    m_dialog->close();
    m_dialog.clear();
}

void ImageEditor::showImage()
{
    m_picture->setPixmap(QIcon(imageFilePath(m_folder, m_value)).pixmap(side - 4, side - 4));
}
