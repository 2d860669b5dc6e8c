// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include <analysis/messagelog.h>

#include <QSemaphore>
#include <QThread>
#include <QtTest>

#include <atomic>
#include <memory>
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
    void anyOrder_data();
    void anyOrder();
    void twoThreads();

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

void tst_MessageLog::anyOrder_data()
{
    QTest::addColumn<QVector<int>>("order");
    QTest::addColumn<QStringList>("heard"); // by the logs that are left, after each end

    // clang-format off
    QTest::newRow("innermost-first") << QVector<int>{2, 1, 0} << QStringList{"10", "0", ""};
    QTest::newRow("outermost-first") << QVector<int>{0, 1, 2} << QStringList{"21", "2", ""};
    QTest::newRow("middle-first")    << QVector<int>{1, 0, 2} << QStringList{"20", "2", ""};
    QTest::newRow("middle-last")     << QVector<int>{2, 0, 1} << QStringList{"10", "1", ""};
    // clang-format on
}

void tst_MessageLog::anyOrder()
{
    QFETCH(QVector<int>, order);
    QFETCH(QStringList, heard);
    QString hearers;
    std::unique_ptr<MessageLog> logs[3];
    for (int i = 0; i < 3; ++i)
        logs[i] = std::make_unique<MessageLog>([&hearers, i](const LoggedMessage &) {
            hearers += QString::number(i);
            return true;
        });
    for (int i = 0; i < order.size(); ++i) {
        logs[order.at(i)].reset();
        hearers.clear();
        qWarning("message");
        QCOMPARE(hearers, heard.at(i));
        QCOMPARE(int(passedOn.size()), i + 1);
    }
}

// A thread's log outlives that of another, which began before it.
void tst_MessageLog::twoThreads()
{
    QSemaphore isMade;
    QSemaphore isOtherEnded;
    QStringList kept;
    auto first = std::make_unique<MessageLog>();
    std::thread other([&] {
        MessageLog second;
        isMade.release();
        isOtherEnded.acquire();
        qWarning("of the other");
        kept = textsOf(second.take());
    });
    isMade.acquire();
    qWarning("of this one");
    const QStringList keptHere = textsOf(first->messages());
    first.reset();
    qWarning("behind");
    isOtherEnded.release();
    other.join();
    qWarning("behind all");
    QCOMPARE(keptHere, QStringList("of this one"));
    QCOMPARE(kept, QStringList("of the other"));
    QCOMPARE(passedOn, QStringList({"behind", "behind all"}));
}

QTEST_APPLESS_MAIN(tst_MessageLog)
#include "tst_messagelog.moc"
