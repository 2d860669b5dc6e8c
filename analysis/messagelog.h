// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef ANALYSIS_MESSAGELOG_H
#define ANALYSIS_MESSAGELOG_H

#include <QString>
#include <QVector>
#include <QtGlobal>

#include <utility>

/*! \brief A message that went through Qt's message logger. */
struct LoggedMessage {
    QtMsgType type = QtDebugMsg;
    QString function; //!< of the logging context
    QString text;
};

/*!
 * \brief Catches all messages of Qt's message logger for as long as it lives.
 *
 * Logs may be nested, the innermost catches; one thread only.
 */
class MessageLog
{
public:
    MessageLog();
    ~MessageLog();
    Q_DISABLE_COPY_MOVE(MessageLog)

    QVector<LoggedMessage> messages() const { return m_messages; }
    /*! \brief Returns the caught messages and forgets them. */
    QVector<LoggedMessage> take() { return std::exchange(m_messages, {}); }

private:
    static void keep(QtMsgType type, const QMessageLogContext &context, const QString &text);

    static MessageLog *s_innermost;
    MessageLog *m_outer;
    QtMessageHandler m_previous;
    QVector<LoggedMessage> m_messages;
};

#endif
