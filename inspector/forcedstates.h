// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef INSPECTOR_FORCEDSTATES_H
#define INSPECTOR_FORCEDSTATES_H

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QVariant>

class QAbstractButton;
class QWidget;

/*!
 * \brief Holds a widget in states that else only the user's hand gives it.
 *
 * The widget really is in the state, so Qt paints it as ever; no signal tells the program of it. What
 * was changed is put back when the state is released, or this object or the widget dies. The pointer may
 * come and go, and press. Of exclusive buttons another one is not checked meanwhile; a choice that the
 * user makes then stays, and so does the focus where the user moves it.
 */
class ForcedStates : public QObject
{
    Q_OBJECT

public:
    explicit ForcedStates(QObject *parent = nullptr);
    ~ForcedStates() override;

    /*! \brief Returns the states that can be forced: "hover" and so on. */
    static QStringList names();

    /*! \brief Tells whether \a state means something for \a widget. */
    static bool isPossible(const QWidget *widget, const QString &state);

    /*! \brief Releases the widget before and takes \a widget, which may be null. */
    void setWidget(QWidget *widget);
    QWidget *widget() const { return m_widget; }

    bool isForced(const QString &state) const { return m_before.contains(state); }
    void setForced(const QString &state, bool forced);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void followPointer(bool isInside);
    void holdDown();
    void forgetWidget();
    void apply(const QString &state, bool on, const QVariant &before);
    void applyDown(QAbstractButton *button, bool on, bool before);
    void applyDisabled(bool on, bool before);
    void applyChecked(QAbstractButton *button, bool on, Qt::CheckState before);
    void followFocus();

    QPointer<QWidget> m_widget;
    QHash<QString, QVariant> m_before; // by forced state
    QPointer<QAbstractButton> m_checkedBefore; // of the exclusive buttons that the widget is one of
    QPointer<QWidget> m_focused; // in its window, before it was disabled
    QPointer<QWidget> m_focusedInstead;
    bool m_repeated = false; // what the held button did while it was down
};

#endif
