// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include <analysis/messagelog.h>

#include <QSemaphore>
#include <QThread>
#include <QtTest>

#include <atomic>
#include <thread>

// A handler of the program's own stands behind the logs and hears what they do not keep.
class tst_MessageLog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void keepsItsThreads();
    void otherThreadsGoOn();
    void innermostKeeps();
    void listenerDecides();
    void endWaitsForListeners();

private:
    QtMessageHandler m_before = nullptr;
};

namespace
{

QStringList passedOn;

void hear(QtMsgType, const QMessageLogContext &, const QString &text)
{
    passedOn << text;
}

QStringList textsOf(const QVector<LoggedMessage> &messages)
{
    QStringList texts;
    for (const LoggedMessage &message : messages)
        texts << message.text;
    return texts;
}

} // namespace

void tst_MessageLog::init()
{
    passedOn.clear();
    m_before = qInstallMessageHandler(hear);
}

void tst_MessageLog::cleanup()
{
    qInstallMessageHandler(m_before);
}

void tst_MessageLog::keepsItsThreads()
{
    {
        MessageLog log;
        qWarning("kept");
        QCOMPARE(textsOf(log.take()), QStringList("kept"));
        QVERIFY(log.messages().isEmpty());
    }
    qWarning("behind");
    QCOMPARE(passedOn, QStringList("behind"));
}

void tst_MessageLog::otherThreadsGoOn()
{
    const MessageLog log;
    std::thread([] { qWarning("elsewhere"); }).join();
    QCOMPARE(passedOn, QStringList("elsewhere"));
    QVERIFY(log.messages().isEmpty());
}

void tst_MessageLog::innermostKeeps()
{
    const MessageLog outer;
    {
        const MessageLog inner;
        qWarning("inner");
        QCOMPARE(textsOf(inner.messages()), QStringList("inner"));
    }
    qWarning("outer");
    QCOMPARE(textsOf(outer.messages()), QStringList("outer"));
    QVERIFY(passedOn.isEmpty());
}

void tst_MessageLog::listenerDecides()
{
    QStringList heard;
    const MessageLog log([&heard](const LoggedMessage &message) {
        heard << message.text;
        return message.type != QtDebugMsg;
    });
    qWarning("goes on");
    qDebug("stays");
    std::thread([] { qWarning("elsewhere"); }).join();
    {
        const MessageLog inner;
        qWarning("kept");
    }
    QCOMPARE(heard, QStringList({"goes on", "stays", "elsewhere"}));
    QCOMPARE(passedOn, QStringList({"goes on", "elsewhere"}));
}

// What a listener refers to mostly goes with the log.
void tst_MessageLog::endWaitsForListeners()
{
    QSemaphore heard;
    std::atomic_bool isDone{false};
    std::thread other;
    {
        const MessageLog log([&](const LoggedMessage &) {
            heard.release();
            QThread::msleep(100);
            isDone = true;
            return false;
        });
        other = std::thread([] { qWarning("elsewhere"); });
        heard.acquire();
    }
    const bool wasDone = isDone;
    other.join();
    QVERIFY(wasDone);
}

QTEST_APPLESS_MAIN(tst_MessageLog)
#include "tst_messagelog.moc"
