// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_DESKTOPPORTAL_H
#define HVTHEMEAPP_DESKTOPPORTAL_H

#include "desktoppreferences.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QVariant>

class QDBusPendingCallWatcher;

namespace HV
{

/*! \brief The desktop portal's settings, without ever waiting for it. */
class DesktopPortal : public QObject
{
    Q_OBJECT

public:
    enum class Presence {
        Unknown, //!< it has not answered yet, or not in time
        Absent,
        Present
    };

    explicit DesktopPortal(QObject *parent = nullptr);

    Presence presence() const { return m_presence; }
    /*! \brief Returns what it said; nothing unless it is present. */
    const DesktopPreferences &preferences() const { return m_preferences; }

Q_SIGNALS:
    /*! \brief Emitted when all that was asked is answered, and at each change after it. An answer
     *         that lets others wait holds none of them back. */
    void changed();

private Q_SLOTS:
    void takeSetting(const QDBusMessage &message);
    void takeOwner(const QString &name, const QString &before, const QString &now);

private:
    void begin();
    void ask();
    void ask(const QString &key, bool asOldVersion);
    void take(QDBusPendingCallWatcher *call, const QString &key, bool asOldVersion);
    void store(const QString &key, const QVariant &value);

    void finish();

    QDBusConnection m_bus; // not connected until it was asked for
    Presence m_presence = Presence::Unknown;
    DesktopPreferences m_preferences;
    QString m_owner; // of the portal's name, once it has answered
    int m_pending = 0;
    bool m_isWaitOver = false; // for those that have not answered
    bool m_isOwnerNew = false; // since they were asked
};

} // namespace HV

#endif // HVTHEMEAPP_DESKTOPPORTAL_H
