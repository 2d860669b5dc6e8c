// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef INSPECTOR_INSPECTORWINDOW_H
#define INSPECTOR_INSPECTORWINDOW_H

#include <inspector/inspectorpane.h>

/*!
 * \brief A window with an InspectorPane. It deletes itself when it is closed, and does not keep the
 *        program running, unless there are changes to save, which it asks about.
 *
 * A modal dialog would block it like any other window, so it counts as a child of the innermost one.
 */
class InspectorWindow : public QWidget
{
    Q_OBJECT

public:
    InspectorWindow();
    ~InspectorWindow() override;

    InspectorPane *pane() const { return m_pane; }

    /*! \brief Tells whether it is about to delete itself; one that the program hides is not. */
    bool isClosed() const;

protected:
    bool eventFilter(QObject *object, QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void followChanges();
    void followModality();

    InspectorPane *m_pane;
};

#endif
