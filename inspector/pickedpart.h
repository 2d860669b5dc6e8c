// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef INSPECTOR_PICKEDPART_H
#define INSPECTOR_PICKEDPART_H

#include <inspector/forcedstates.h>
#include <inspector/inspection.h>

#include <QWidget>

class QCheckBox;
class QComboBox;
class QLabel;

/*! \brief The name of the picked widget, which part of it is looked at, and the states that it is held in. */
class PickedPart : public QWidget
{
    Q_OBJECT

public:
    explicit PickedPart(QWidget *parent = nullptr);

    void showNothing();
    /*! \brief Shows \a part, one of \a parts. */
    void show(const Inspection &inspection, const QVector<WidgetPart> &parts,
              const WidgetPart &part, const ForcedStates &forced);

Q_SIGNALS:
    void partChosen(int index);
    void stateForced(const QString &state, bool on);

private:
    QLabel *m_name;
    QComboBox *m_parts;
    QHash<QString, QCheckBox *> m_states;
};

#endif
