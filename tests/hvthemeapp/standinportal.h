// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEME_TESTS_STANDINPORTAL_H
#define HVTHEME_TESTS_STANDINPORTAL_H

#include "temporaryfolder.h"

#include <QtDBus>
#include <QtTest>

/*! A session bus of its own, on which no service is started; for the process and its children. */
class PrivateBus
{
public:
    PrivateBus()
    {
        m_folder.write(
            "bus.conf",
            QByteArray("<busconfig><type>session</type><listen>unix:tmpdir="
                       + m_folder.path().toUtf8()
                       + "</listen><policy context=\"default\"><allow send_destination=\"*\" "
                         "eavesdrop=\"true\"/><allow eavesdrop=\"true\"/><allow own=\"*\"/>"
                         "</policy></busconfig>"));
        m_daemon.start(
            DBUS_DAEMON,
            {"--config-file=" + m_folder.filePath("bus.conf"), "--nofork", "--print-address"});
        if (m_daemon.waitForReadyRead())
            qputenv("DBUS_SESSION_BUS_ADDRESS", m_daemon.readLine().trimmed());
    }

    ~PrivateBus()
    {
        m_daemon.kill();
        m_daemon.waitForFinished();
    }

private:
    TemporaryFolder m_folder;
    QProcess m_daemon;
};

/*! The desktop portal's settings as a test wants them; on the bus while it lives. */
class StandInPortal : public QDBusVirtualObject
{
public:
    enum class Version {
        Old, //!< Read alone
        New //!< ReadOne as well
    };
    enum class Manner {
        Answers,
        Silent
    };
    using Values = QMap<QString, QVariant>;

    explicit StandInPortal(const Values &values, Version version = Version::New,
                           Manner manner = Manner::Answers)
        : m_values(values)
        , m_version(version)
        , m_manner(manner)
        , m_connectionName(QString("portal %1").arg(quintptr(this)))
        , m_bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, m_connectionName))
    {
        m_bus.registerVirtualObject("/org/freedesktop/portal/desktop", this);
        isOnBus = m_bus.registerService("org.freedesktop.portal.Desktop");
    }

    ~StandInPortal() override
    {
        m_bus.unregisterService("org.freedesktop.portal.Desktop");
        QDBusConnection::disconnectFromBus(m_connectionName);
    }

    /*! Sets a value and tells of it. */
    void change(const QString &key, const QVariant &value)
    {
        m_values.insert(key, value);
        QDBusMessage signal = QDBusMessage::createSignal(
            "/org/freedesktop/portal/desktop", "org.freedesktop.portal.Settings", "SettingChanged");
        signal << "org.freedesktop.appearance" << key << QVariant::fromValue(QDBusVariant(value));
        m_bus.send(signal);
    }

    /*! Answers what was asked while it was silent. */
    void answer()
    {
        m_manner = Manner::Answers;
        for (const QDBusMessage &message : std::exchange(m_waiting, {}))
            handleMessage(message, m_bus);
    }

    QString introspect(const QString &) const override { return {}; }

    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override
    {
        calls << message.member();
        const QString key = message.arguments().value(1).toString();
        if (m_manner == Manner::Silent || key == silentKey) {
            m_waiting << message;
            return true;
        }
        const bool isNew = message.member() == "ReadOne";
        if (isNew && m_version == Version::Old)
            connection.send(message.createErrorReply(QDBusError::UnknownMethod, "No such method"));
        else if (!m_values.contains(key))
            connection.send(message.createErrorReply("org.freedesktop.portal.Error.NotFound",
                                                     "Requested setting not found"));
        else
            connection.send(message.createReply(wrapped(m_values.value(key), isNew ? 1 : 2)));
        return true;
    }

    static QVariant wrapped(QVariant value, int times)
    {
        for (int i = 0; i < times; ++i)
            value = QVariant::fromValue(QDBusVariant(value));
        return value;
    }

    bool isOnBus = false;
    QString silentKey; // that is never answered
    QStringList calls;

private:
    Values m_values;
    Version m_version;
    Manner m_manner;
    QString m_connectionName;
    QDBusConnection m_bus;
    QList<QDBusMessage> m_waiting;
};

/*! \brief The colour of `accent-color`, as the portal sends it. */
struct Accent {
    double red = 0;
    double green = 0;
    double blue = 0;
};

inline QDBusArgument &operator<<(QDBusArgument &argument, const Accent &accent)
{
    argument.beginStructure();
    argument << accent.red << accent.green << accent.blue;
    argument.endStructure();
    return argument;
}

inline const QDBusArgument &operator>>(const QDBusArgument &argument, Accent &accent)
{
    argument.beginStructure();
    argument >> accent.red >> accent.green >> accent.blue;
    argument.endStructure();
    return argument;
}

Q_DECLARE_METATYPE(Accent)

inline QVariant accent(double red, double green, double blue)
{
    qDBusRegisterMetaType<Accent>();
    return QVariant::fromValue(Accent{red, green, blue});
}

#endif // HVTHEME_TESTS_STANDINPORTAL_H
