// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef INSPECTOR_COLOREDITOR_H
#define INSPECTOR_COLOREDITOR_H

#include <inspector/changesubject.h>

#include <QWidget>

class QColorDialog;
class QLabel;
class QLineEdit;
class QToolButton;
class QTreeWidget;

/*!
 * \brief Chooses a colour: the theme's palette entries first, each with its contrast, or any other.
 *
 * A colour is chosen by its entry, by a text (#RRGGBB, #AARRGGBB or the name of an entry) or in a dialog.
 */
class ColorEditor : public QWidget
{
    Q_OBJECT

public:
    /*! \brief Whether a chosen entry is given by its name or by its colour. */
    enum class Entries {
        Named,
        AsColors
    };

    explicit ColorEditor(QWidget *parent = nullptr);

    void setEntries(const QVector<QPair<QString, QColor>> &entries);
    void setPartner(const std::optional<ColorPartner> &partner);
    /*! \brief Shows \a text, unless it is what was edited last: that is what the user is about to go on with. */
    void setValue(const QString &text, Entries entries);
    /*! \brief What is edited is another: closes the dialog, which was about the one before. */
    void closeDialog();

Q_SIGNALS:
    /*! \brief \a text is a value as theme files have it. */
    void edited(const QString &text);

private:
    QColor colorOf(const QString &text) const;
    void edit(const QString &text);
    void readText(const QString &text);
    void openDialog();
    QString textOf(int row) const;
    void showColor();
    void showChosen();
    void showEntries();
    void setUpList();
    void setUpText();

    QVector<QPair<QString, QColor>> m_entries;
    std::optional<ColorPartner> m_partner;
    Entries m_choice = Entries::Named;
    QString m_value;

    QLineEdit *m_text;
    QLabel *m_swatch;
    QLabel *m_contrast;
    QToolButton *m_more;
    QTreeWidget *m_list;
    QPointer<QColorDialog> m_dialog;
};

#endif
