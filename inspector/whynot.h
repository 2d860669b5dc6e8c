// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef INSPECTOR_WHYNOT_H
#define INSPECTOR_WHYNOT_H

#include <inspector/inspection.h>

#include <QWidget>

class QLineEdit;
class QTreeWidget;

/*! \brief Takes a selector and tells, piece by piece, what of it fits the picked part. */
class WhyNot : public QWidget
{
    Q_OBJECT

public:
    explicit WhyNot(QWidget *parent = nullptr);

    void setInspection(const Inspection &inspection, const QStringList &attributes);

private:
    void showVerdict();

    Inspection m_inspection;
    QStringList m_attributes; // that the style sheet asks for
    QLineEdit *m_selector;
    QTreeWidget *m_verdict;
};

#endif
