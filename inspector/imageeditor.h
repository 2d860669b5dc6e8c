// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef INSPECTOR_IMAGEEDITOR_H
#define INSPECTOR_IMAGEEDITOR_H

#include <QPointer>
#include <QWidget>

class QFileDialog;
class QLabel;
class QLineEdit;

/*! \brief Chooses an image file, as theme files name it: relative to the folder of the executable, or a resource. */
class ImageEditor : public QWidget
{
    Q_OBJECT

public:
    explicit ImageEditor(QWidget *parent = nullptr);

    /*! \brief Shows the file called \a text below \a folder, unless it is what was edited last. */
    void setValue(const QString &text, const QString &folder);
    /*! \brief What is edited is another: closes the dialog, which was about the one before. */
    void closeDialog();

Q_SIGNALS:
    void edited(const QString &text);
    /*! \brief A file cannot be used; a null text says that all is well. */
    void refused(const QString &reason);

private:
    void edit();
    void openDialog();
    void showImage();

    QString m_folder;
    QString m_value;
    QLineEdit *m_text;
    QLabel *m_picture;
    QPointer<QFileDialog> m_dialog;
};

#endif
