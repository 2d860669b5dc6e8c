// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef INSPECTOR_FORCEDSTATES_H
#define INSPECTOR_FORCEDSTATES_H

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QVariant>

class QWidget;

/*!
 * \brief Holds a widget in states that else only the user's hand gives it.
 *
 * The widget really is in the state, so Qt paints it as ever; its signals are blocked meanwhile. What
 * was changed is put back when the state is released, or this object dies.
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

private:
    void apply(const QString &state, bool on, const QVariant &before);
    void followFocus();

    QPointer<QWidget> m_widget;
    QHash<QString, QVariant> m_before; // by forced state
};

#endif
