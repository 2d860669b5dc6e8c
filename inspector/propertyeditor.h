// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef INSPECTOR_PROPERTYEDITOR_H
#define INSPECTOR_PROPERTYEDITOR_H

#include <inspector/programchanges.h>

#include <QWidget>

class QComboBox;
class QLabel;
class QPushButton;
class QTreeWidget;

/*! \brief The dynamic properties of a widget, with those that the style sheet asks for to choose from. */
class PropertyEditor : public QWidget
{
    Q_OBJECT

public:
    explicit PropertyEditor(ProgramChanges *changes, QWidget *parent = nullptr);

    /*! \brief Shows the properties of \a widget, which may be null. */
    void setWidget(QWidget *widget, const InspectedSheet &sheet);

private:
    void showProperties(const InspectedSheet &sheet);
    void showValues();
    void setValue(bool isRemoved);
    QString name() const;
    QString firstName() const;

    ProgramChanges *const m_changes;
    QPointer<QWidget> m_widget;
    QMap<QString, QStringList> m_values; // that rules ask for, by property

    QTreeWidget *m_list;
    QComboBox *m_name;
    QComboBox *m_value;
    QPushButton *m_set;
    QPushButton *m_remove;
    QLabel *m_note;
};

#endif
