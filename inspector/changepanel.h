// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef INSPECTOR_CHANGEPANEL_H
#define INSPECTOR_CHANGEPANEL_H

#include <inspector/changesubject.h>
#include <inspector/programchanges.h>

#include <QElapsedTimer>
#include <QWidget>

class ColorEditor;
class ImageEditor;
class QButtonGroup;
class QCheckBox;
class QLabel;
class QSpinBox;
class QStackedWidget;
class QVBoxLayout;

/*!
 * \brief Changes one value, in the line of the theme's files that the user chooses: that of the key, or of a
 *        palette entry behind it.
 */
class ChangePanel : public QWidget
{
    Q_OBJECT

public:
    explicit ChangePanel(ProgramChanges *changes, QWidget *parent = nullptr);

    /*!
     * \brief Shows the value of \a subject.
     *
     * \param folder  of the executable, which images are looked for below. The line chosen before stays
     *                chosen for the same key.
     */
    void setSubject(const ChangeSubject &subject, const QString &folder);
    const ChangeSubject &subject() const { return m_subject; }

    /*! \brief Shows the same value as it is now. */
    void refresh(const ChangeSubject &subject);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    const ChangeTarget *target() const;
    void makeChoices(int count);
    void showTargets();
    void showTarget();
    void change(const QString &value);
    void tell(const QString &problem);

    ProgramChanges *const m_changes;
    ChangeSubject m_subject;
    QString m_folder;
    int m_target = 0;
    QString m_shown; // which target the editors have
    QElapsedTimer m_sinceChange;

    QLabel *m_title;
    QVBoxLayout *m_choices;
    QButtonGroup *m_group;
    QLabel *m_warning;
    QStackedWidget *m_editors;
    ColorEditor *m_color;
    QSpinBox *m_integer;
    ImageEditor *m_image;
    QCheckBox *m_flag;
    QLabel *m_problem;
};

#endif
