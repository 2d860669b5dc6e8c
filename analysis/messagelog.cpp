// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/messagelog.h>

#include <QReadWriteLock>
#include <QThread>

namespace
{

// Never deleted, for messages may come to the very end.
QReadWriteLock *chainLock()
{
    static auto *lock = new QReadWriteLock(QReadWriteLock::Recursive);
    return lock;
}

} // namespace

MessageLog *MessageLog::s_innermost = nullptr;

MessageLog::MessageLog()
    : MessageLog(Listener())
{
}

MessageLog::MessageLog(Listener listener)
    : m_listener(std::move(listener))
    , m_thread(QThread::currentThreadId())
{
    const QWriteLocker locker(chainLock());
    m_outer = std::exchange(s_innermost, this);
    m_previous = qInstallMessageHandler(handle);
}

MessageLog::~MessageLog()
{
    const QWriteLocker locker(chainLock());
    if (s_innermost == this) {
        qInstallMessageHandler(m_previous);
        s_innermost = m_outer;
        return;
    }
    // Another thread's log was made later and still hears.
    MessageLog *inner = s_innermost;
    while (inner->m_outer != this)
        inner = inner->m_outer;
    inner->m_outer = m_outer;
    if (inner->m_previous == handle)
        inner->m_previous = m_previous;
}

void MessageLog::handle(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    const LoggedMessage message{type, QString::fromLatin1(context.function), text};
    // A log that hears a message stays until it has heard it. Listeners may log in turn.
    QReadLocker locker(chainLock());
    MessageLog *log = s_innermost;
    while (log) {
        if (log->m_listener) {
            if (!log->m_listener(message))
                return;
        } else if (log->m_thread == QThread::currentThreadId()) {
            log->m_messages.append(message);
            return;
        }
        // Somebody else's handler may stand between two logs.
        if (log->m_previous != handle) {
            const QtMessageHandler previous = log->m_previous;
            locker.unlock();
            previous(type, context, text);
            return;
        }
        log = log->m_outer;
    }
}
