// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/messagelog.h>

#include <QThread>

std::atomic<MessageLog *> MessageLog::s_innermost{nullptr};

MessageLog::MessageLog()
    : MessageLog(Listener())
{
}

MessageLog::MessageLog(Listener listener)
    : m_listener(std::move(listener))
    , m_thread(QThread::currentThreadId())
    , m_outer(s_innermost.exchange(this))
    , m_previous(qInstallMessageHandler(handle))
{
}

MessageLog::~MessageLog()
{
    qInstallMessageHandler(m_previous);
    s_innermost = m_outer;
}

void MessageLog::handle(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    const LoggedMessage message{type, QString::fromLatin1(context.function), text};
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
            log->m_previous(type, context, text);
            return;
        }
        log = log->m_outer;
    }
}
