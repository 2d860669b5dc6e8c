// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEME_TESTS_MESSAGES_H
#define HVTHEME_TESTS_MESSAGES_H

#include <QtTest>

#include <utility>

/*! A log message with its whole context; line 0 in an expected message stands for any line. */
struct Message {
    QtMsgType severity = QtDebugMsg;
    QString file;
    int line = 0;
    QString function;
    QString category;
    QString text;
};

using Messages = QVector<Message>;

Q_DECLARE_METATYPE(Message)

inline bool matches(const Message &actual, const Message &expected)
{
    return actual.severity == expected.severity && actual.file == expected.file
        && (expected.line == 0 || actual.line == expected.line)
        && actual.function == expected.function && actual.category == expected.category
        && actual.text == expected.text;
}

inline QString described(const Message &message)
{
    static const QHash<int, QString> severities = {{QtDebugMsg, "debug"},
                                                   {QtInfoMsg, "info"},
                                                   {QtWarningMsg, "warning"},
                                                   {QtCriticalMsg, "critical"},
                                                   {QtFatalMsg, "fatal"}};
    return QStringLiteral("%1 %2:%3 [%4] [%5] %6")
        .arg(severities.value(message.severity), message.file, QString::number(message.line),
             message.category, message.function, message.text);
}

/*! The first difference of the two lists in words, or an empty text if they agree in order. */
inline QByteArray difference(const Messages &actual, const Messages &expected)
{
    for (int i = 0; i < qMax(actual.size(), expected.size()); ++i) {
        if (i < actual.size() && i < expected.size() && matches(actual.at(i), expected.at(i)))
            continue;
        const QString nothing = QStringLiteral("nothing");
        const QString got = i < actual.size() ? described(actual.at(i)) : nothing;
        const QString wanted = i < expected.size() ? described(expected.at(i)) : nothing;
        return QStringLiteral("message %1 of %2 (%3 expected)\n   Actual   : %4\n   Expected : %5")
            .arg(QString::number(i + 1), QString::number(actual.size()),
                 QString::number(expected.size()), got, wanted)
            .toUtf8();
    }
    return {};
}

/*!
 * Records every message between start() and stop(), so that a test compares them whole and in
 * order. A test class starts it in init() and ends cleanup() with REPORT_STRAY_MESSAGES: what no
 * test took by then fails the run.
 */
class CapturedMessages
{
    Q_DISABLE_COPY(CapturedMessages)

public:
    CapturedMessages() = default;
    ~CapturedMessages() { stop(); }

    void start()
    {
        current() = this;
        m_previousHandler = qInstallMessageHandler(record);
    }

    void stop()
    {
        if (current() != this)
            return;
        qInstallMessageHandler(m_previousHandler);
        current() = nullptr;
    }

    Messages take() { return std::exchange(m_messages, Messages()); }

private:
    static CapturedMessages *&current()
    {
        static CapturedMessages *log = nullptr;
        return log;
    }

    static void record(QtMsgType severity, const QMessageLogContext &context, const QString &text)
    {
        current()->m_messages.append({severity, QString::fromUtf8(context.file), context.line,
                                      QString::fromUtf8(context.function),
                                      QString::fromUtf8(context.category), text});
    }

    QtMessageHandler m_previousHandler = nullptr;
    Messages m_messages;
};

// A macro, so that the test function returns and the report names the caller's line.
#define COMPARE_MESSAGES(log, expected)                                                            \
    do {                                                                                           \
        const QByteArray difference_ = difference((log).take(), (expected));                       \
        QVERIFY2(difference_.isEmpty(), difference_.constData());                                  \
    } while (false)

#define REPORT_STRAY_MESSAGES(log)                                                                 \
    do {                                                                                           \
        (log).stop();                                                                              \
        COMPARE_MESSAGES(log, Messages());                                                         \
    } while (false)

#endif // HVTHEME_TESTS_MESSAGES_H
