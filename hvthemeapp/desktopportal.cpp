// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "desktopportal.h"

#include <QDBusArgument>
#include <QDBusError>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QFileInfo>
#include <QTimer>

#include <cmath>

namespace HV
{

namespace
{

const QLatin1String portalService("org.freedesktop.portal.Desktop");
const QLatin1String portalPath("/org/freedesktop/portal/desktop");
const QLatin1String portalInterface("org.freedesktop.portal.Settings");
const QLatin1String appearance("org.freedesktop.appearance");
const QLatin1String portalScheme("color-scheme");
const QLatin1String portalContrast("contrast");
const QLatin1String portalAccent("accent-color");
const QLatin1String notFound("org.freedesktop.portal.Error.NotFound");
const QLatin1String busName("org.freedesktop.DBus");
const QLatin1String busPath("/org/freedesktop/DBus");

// In milliseconds, for what answers with the others and for a look that changes only once.
constexpr int longestWait = 50;

// Without an address a bus would be looked for by starting programs.
bool hasSessionBus()
{
    return !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS")
        || (!qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")
            && QFileInfo::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QLatin1String("/bus")));
}

// Read wraps its answer twice, ReadOne once; what is wrapped deeper is nobody's answer.
QVariant unwrapped(QVariant value)
{
    for (int i = 0; i < 3 && value.userType() == qMetaTypeId<QDBusVariant>(); ++i)
        value = value.value<QDBusVariant>().variant();
    return value;
}

std::optional<uint> numberOf(const QVariant &value)
{
    return value.userType() == QMetaType::UInt ? std::optional<uint>(value.toUInt()) : std::nullopt;
}

// Three numbers from 0 to 1; anything else is no colour.
QColor colorOfAnswer(const QVariant &value)
{
    if (value.userType() != qMetaTypeId<QDBusArgument>())
        return {};
    const auto argument = value.value<QDBusArgument>();
    if (argument.currentSignature() != QLatin1String("(ddd)"))
        return {};
    double channels[3] = {};
    argument.beginStructure();
    for (double &channel : channels)
        argument >> channel;
    argument.endStructure();
    for (const double channel : channels) {
        if (!std::isfinite(channel) || channel < 0 || channel > 1)
            return {};
    }
    // Eight bits each, which is what is remembered.
    const auto wide = [](double channel) { return ushort(qRound(channel * 0xffff)); };
    return QColor(
        QColor(QRgba64::fromRgba64(wide(channels[0]), wide(channels[1]), wide(channels[2]), 0xffff))
            .rgb());
}

bool saysAbsent(const QDBusError &error)
{
    switch (error.type()) {
    case QDBusError::ServiceUnknown:
    case QDBusError::Disconnected:
    case QDBusError::UnknownObject:
    case QDBusError::UnknownInterface:
    case QDBusError::AccessDenied:
        return true;
    default:
        return error.name().startsWith(QLatin1String("org.freedesktop.DBus.Error.Spawn"))
            || error.name() == QLatin1String("org.freedesktop.DBus.Error.NameHasNoOwner");
    }
}

bool saysNothing(const QDBusError &error)
{
    return error.type() == QDBusError::NoReply || error.type() == QDBusError::Timeout
        || error.type() == QDBusError::TimedOut;
}

} // namespace

DesktopPortal::DesktopPortal(QObject *parent)
    : QObject(parent)
    , m_bus(QStringLiteral("hvtheme has not asked for the session bus yet"))
{
    QTimer::singleShot(0, this, &DesktopPortal::begin);
}

void DesktopPortal::begin()
{
    if (hasSessionBus())
        m_bus = QDBusConnection::sessionBus();
    if (!m_bus.isConnected()) {
        m_presence = Presence::Absent;
        Q_EMIT changed();
        return;
    }
    // First the signals, then the questions, so that no change is lost between them. No sender is
    // named, for Qt would wait for the bus to tell who that is.
    m_bus.connect(QString(), portalPath, portalInterface, QStringLiteral("SettingChanged"), this,
                  SLOT(takeSetting(QDBusMessage)));
    m_bus.connect(busName, busPath, busName, QStringLiteral("NameOwnerChanged"), {portalService},
                  QStringLiteral("sss"), this, SLOT(takeOwner(QString, QString, QString)));
    ask();
}

void DesktopPortal::ask()
{
    m_isWaitOver = false;
    m_isOwnerNew = false;
    for (const QLatin1String &key : {portalScheme, portalContrast, portalAccent})
        ask(key, false);
}

void DesktopPortal::ask(const QString &key, bool asOldVersion)
{
    QDBusMessage call = QDBusMessage::createMethodCall(portalService, portalPath, portalInterface,
                                                       asOldVersion ? QStringLiteral("Read")
                                                                    : QStringLiteral("ReadOne"));
    call << appearance << key;
    ++m_pending;
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this, key, asOldVersion](QDBusPendingCallWatcher *done) {
                done->deleteLater();
                take(done, key, asOldVersion);
            });
}

void DesktopPortal::take(QDBusPendingCallWatcher *call, const QString &key, bool asOldVersion)
{
    --m_pending;
    if (!call->isError()) {
        m_presence = Presence::Present;
        m_owner = call->reply().service();
        store(key, call->reply().arguments().value(0));
    } else if (saysAbsent(call->error())) {
        m_presence = Presence::Absent;
        m_preferences = {};
    } else if (!saysNothing(call->error())) {
        // Portals before 1.17 do not know ReadOne, and none knows a key that its back end lacks.
        m_owner = call->reply().service();
        if (!asOldVersion && call->error().name() != notFound)
            return ask(key, true);
        m_presence = Presence::Present;
        store(key, {});
    }
    if (m_pending == 0)
        finish();
    else if (m_isWaitOver)
        Q_EMIT changed();
    else if (m_pending == 2) // the first answer of three
        QTimer::singleShot(longestWait, this, [this] {
            m_isWaitOver = m_pending > 0;
            if (m_isWaitOver && m_presence == Presence::Present)
                Q_EMIT changed();
        });
}

void DesktopPortal::finish()
{
    Q_EMIT changed();
    if (m_isOwnerNew)
        ask();
}

void DesktopPortal::store(const QString &key, const QVariant &value)
{
    const QVariant answer = unwrapped(value);
    if (key == portalScheme) {
        const std::optional<uint> number = numberOf(answer);
        m_preferences.colorScheme.reset();
        if (number == 1U)
            m_preferences.colorScheme = DesktopSettings::ColorScheme::Dark;
        else if (number == 2U)
            m_preferences.colorScheme = DesktopSettings::ColorScheme::Light;
    } else if (key == portalContrast) {
        const std::optional<uint> number = numberOf(answer);
        m_preferences.contrast.reset();
        if (number == 0U)
            m_preferences.contrast = DesktopSettings::Contrast::Normal;
        else if (number == 1U)
            m_preferences.contrast = DesktopSettings::Contrast::High;
    } else if (key == portalAccent) {
        m_preferences.accentColor = colorOfAnswer(answer);
    }
}

void DesktopPortal::takeSetting(const QDBusMessage &message)
{
    const QList<QVariant> arguments = message.arguments();
    const bool isStranger = !m_owner.isEmpty() && message.service() != m_owner;
    if (isStranger || arguments.size() != 3 || arguments.at(0).toString() != appearance)
        return;
    const bool wasPresent = m_presence == Presence::Present;
    const DesktopPreferences before = m_preferences;
    m_presence = Presence::Present;
    store(arguments.at(1).toString(), arguments.at(2));
    // Changes during the first questions are told with their answers.
    if ((m_pending == 0 || m_isWaitOver) && (!wasPresent || before != m_preferences))
        Q_EMIT changed();
}

void DesktopPortal::takeOwner(const QString &, const QString &, const QString &now)
{
    // One that vanishes may come again; until then what it said holds.
    if (now.isEmpty() || now == m_owner)
        return;
    m_owner = now;
    if (m_pending == 0)
        ask();
    else
        m_isOwnerNew = true;
}

} // namespace HV
