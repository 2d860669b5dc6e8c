// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_MAKERPAGE_H
#define GALLERY_MAKERPAGE_H

#include "themeworkshop.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace Gallery
{

class ColorField;
class NumberField;
class ReportModel;

/*!
 * \brief The page "Make a theme": what themes are made of, and how they turn out.
 *
 * Its parts are found by object name: `look`, `brand`, `neutral`, `neutralColor`, `textContrast`,
 * `depth`, `name`, `save`, `back`, `status`, `notes`, `pairs` and `meanings`.
 */
class MakerPage final : public QWidget
{
    Q_OBJECT

public:
    /*! \brief Shows and changes what \a workshop makes, which must live as long. */
    explicit MakerPage(ThemeWorkshop *workshop);

    /*! \brief Writes the themes to \a folder; if it has themes already, asks before. */
    void saveTo(const QString &folder);

Q_SIGNALS:
    /*! \brief The themes of before are to be shown again. */
    void left();

private:
    QWidget *createControls();
    QWidget *createReport();
    void connectControls();
    void takeParameters();
    void showReport();
    void say(const QString &text);
    void checkName();
    void chooseFolder();

    ThemeWorkshop *m_workshop;
    QComboBox *m_look;
    ColorField *m_brand;
    QComboBox *m_neutral;
    ColorField *m_neutralColor;
    NumberField *m_textContrast;
    NumberField *m_depth;
    QLineEdit *m_name;
    QPushButton *m_save;
    QPushButton *m_back;
    QLabel *m_status;
    QLabel *m_notes;
    QLabel *m_summary;
    ReportModel *m_pairs;
    ReportModel *m_meanings;
};

} // namespace Gallery

#endif
