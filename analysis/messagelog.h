// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef ANALYSIS_MESSAGELOG_H
#define ANALYSIS_MESSAGELOG_H

#include <QString>
#include <QVector>
#include <QtGlobal>

#include <functional>
#include <utility>

/*! \brief A message that went through Qt's message logger. */
struct LoggedMessage {
    QtMsgType type = QtDebugMsg;
    QString function; //!< of the logging context
    QString text;
};

/*!
 * \brief Qt's messages for as long as it lives: those of a piece of work, or all there are.
 *
 * Logs may be nested; what one does not keep goes on to the one that was made before it, and at last
 * to the handler that was there before. Several threads may make logs, each ends its own, in any order.
 */
class MessageLog
{
public:
    /*! \brief Called with a message; returns whether it is passed on. */
    using Listener = std::function<bool(const LoggedMessage &)>;

    /*! \brief Keeps what this thread says. Other threads are none of its business. */
    MessageLog();

    /*!
     * \brief Hears all messages of all threads, and passes on what \a listener says.
     *
     * \param listener  called on the thread that the message comes from, on several at a time perhaps;
     *        the log's end waits for it. It may log, but neither make nor end a log.
     */
    explicit MessageLog(Listener listener);

    ~MessageLog();
    Q_DISABLE_COPY_MOVE(MessageLog)

    QVector<LoggedMessage> messages() const { return m_messages; }
    /*! \brief Returns the kept messages and forgets them. */
    QVector<LoggedMessage> take() { return std::exchange(m_messages, {}); }

private:
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &text);

    static MessageLog *s_innermost;
    const Listener m_listener;
    const Qt::HANDLE m_thread;
    MessageLog *m_outer = nullptr;
    QtMessageHandler m_previous = nullptr;
    QVector<LoggedMessage> m_messages;
};

#endif
