// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/messagelog.h>

MessageLog *MessageLog::s_innermost = nullptr;

MessageLog::MessageLog()
    : m_outer(std::exchange(s_innermost, this))
    , m_previous(qInstallMessageHandler(keep))
{
}

MessageLog::~MessageLog()
{
    qInstallMessageHandler(m_previous);
    s_innermost = m_outer;
}

void MessageLog::keep(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (s_innermost)
        s_innermost->m_messages.append({type, QString::fromLatin1(context.function), text});
}
