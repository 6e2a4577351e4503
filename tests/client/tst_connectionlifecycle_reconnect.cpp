#include "lifecyclefixture.h"
#include "logcapture.h"
#include "testmain.h"

#include <QElapsedTimer>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

namespace {

const QList<int> delays{500, 1000, 2000, 4000, 8000, 16000, 30000, 30000};

QString reconnecting(int attempt)
{
    return u"reconnecting %1 of 8"_s.arg(attempt);
}

} // namespace

/// The reconnect sequence.
class TestReconnect : public QObject, private LifecycleFixture {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void lossWithoutAutoReconnectStartsNothing();
    void firstAttemptComesAfterHalfASecond();
    void delayAfterSoManyFailures_data();
    void delayAfterSoManyFailures();
    void sequenceOfEightAttemptsThenFailureAtOnce();
    void sequenceIsLogged();
    void daemonBackOnTheThirdAttempt();
    void successIsLogged();
    void refusedRegistrationIsAFailedAttempt();
    void afterTheFailureOnlyConnectingBringsTheClientBack();
    void commandsDuringTheSequenceFailAtOnce();
    void disconnectingEndsTheSequence();
};

void TestReconnect::init()
{
    setUpConnected(true);
}

void TestReconnect::cleanup()
{
    tearDown();
}

void TestReconnect::lossWithoutAutoReconnectStartsNothing()
{
    m_client->disableAutoReconnect();
    loseDaemon();
    QCOMPARE(m_signals, lossSignals());
    QCOMPARE(running(checkTimer()), -1);
    QCOMPARE(reconnectTimer(), nullptr);
}

void TestReconnect::firstAttemptComesAfterHalfASecond()
{
    QElapsedTimer clock;
    clock.start();
    m_daemon->dropConnections();
    QTRY_VERIFY(m_signals.contains(u"reconnected"_s));
    QVERIFY(clock.elapsed() >= 450);
    QCOMPARE(m_signals, lossSignals() + QStringList({reconnecting(1), u"connected"_s, u"reconnected"_s}));
    QCOMPARE(running(checkTimer()), 2000);
    QCOMPARE(running(reconnectTimer()), -1);
}

void TestReconnect::delayAfterSoManyFailures_data()
{
    QTest::addColumn<int>("failed");
    QTest::addColumn<int>("delay");
    for (int failed = 0; failed < int(delays.size()); ++failed)
        QTest::addRow("%d", failed) << failed << delays.at(failed);
    QTest::newRow("many") << 1000 << 30000;
}

void TestReconnect::delayAfterSoManyFailures()
{
    QFETCH(const int, failed);
    QTEST(MCsSchedulerClient::reconnectDelayMs(failed), "delay");
}

void TestReconnect::sequenceOfEightAttemptsThenFailureAtOnce()
{
    loseDaemon();
    QVERIFY(reconnectTimer()->isSingleShot());
    QStringList expected = lossSignals();
    QCOMPARE(m_signals, expected);
    for (int attempt = 1; attempt <= 8; ++attempt) {
        QCOMPARE(running(reconnectTimer()), delays.at(attempt - 1));
        QCOMPARE(running(checkTimer()), -1);
        failAttempt();
        expected.append(reconnecting(attempt));
        if (attempt == 8)
            expected.append(u"reconnectFailed"_s);
        QCOMPARE(m_signals, expected);
    }
    QCOMPARE(running(reconnectTimer()), -1);
    QCOMPARE(m_client->lastErrorCode(), u"RECONNECT_FAILED"_s);
    QCOMPARE(m_client->lastError(), u"Connection lost and reconnection failed"_s);
}

void TestReconnect::sequenceIsLogged()
{
    const LogCapture log;
    loseDaemon();
    QStringList expected = toldOfLoss(u"ERROR "_s);
    QStringList expectedDelays;
    for (int attempt = 1; attempt <= 8; ++attempt) {
        failAttempt();
        expected += {u"INFO Reconnect attempt %1 of 8"_s.arg(attempt), u"ERROR Failed to connect to daemon"_s};
        expectedDelays.append(u"DEBUG Reconnect delay is %1"_s.arg(delays.at(attempt - 1)));
    }
    expected += {u"WARN Max reconnect attempts reached (8)"_s, u"ERROR Connection lost and reconnection failed"_s};
    QCOMPARE(log.lines(u"MCsSchedulerClient"_s), expected);
    QCOMPARE(log.lines(u"client"_s), expectedDelays);
}

void TestReconnect::daemonBackOnTheThirdAttempt()
{
    loseDaemon();
    failAttempt();
    failAttempt();
    QVERIFY(m_daemon->listen());
    m_signals.clear();
    hurryReconnect();
    QTRY_COMPARE(m_signals, (QStringList{reconnecting(3), u"connected"_s, u"reconnected"_s}));
    QVERIFY(m_client->isConnected());
    QCOMPARE(running(reconnectTimer()), -1);
    QCOMPARE(running(checkTimer()), 2000);
    QVERIFY(m_client->enableTask(u"t"_s));

    m_signals.clear();
    loseDaemon();
    QCOMPARE(running(reconnectTimer()), 500);
    failAttempt();
    QCOMPARE(m_signals, lossSignals() + QStringList{reconnecting(1)});
}

void TestReconnect::successIsLogged()
{
    const LogCapture log;
    m_daemon->dropConnections();
    QTRY_VERIFY(!m_client->isConnected());
    hurryReconnect();
    QTRY_VERIFY(m_signals.contains(u"reconnected"_s));
    QCOMPARE(log.lines(u"MCsSchedulerClient"_s),
             toldOfLoss(u"ERROR "_s) + (QStringList{u"INFO Reconnect attempt 1 of 8"_s,
                                                    u"INFO Connected and registered as task_type.screen_record"_s,
                                                    u"INFO Reconnected successfully"_s}));
}

void TestReconnect::refusedRegistrationIsAFailedAttempt()
{
    m_daemon->refuse(u"client.register"_s, u"CLIENT_TYPE_ALREADY_CONNECTED"_s, u"x"_s);
    m_daemon->dropConnections();
    QTRY_VERIFY(!m_client->isConnected());
    for (int attempt = 1; attempt <= 8; ++attempt) {
        hurryReconnect();
        QTRY_COMPARE(m_daemon->requests(u"client.register"_s).size(), attempt);
        const int next = attempt < 8 ? delays.at(attempt) : -1;
        QTRY_COMPARE(running(reconnectTimer()), next);
    }
    QCOMPARE(m_signals.constLast(), u"reconnectFailed"_s);
    QCOMPARE(m_signals.count(u"disconnected"_s), 1);
    QCOMPARE(m_client->lastErrorCode(), u"RECONNECT_FAILED"_s);
}

void TestReconnect::afterTheFailureOnlyConnectingBringsTheClientBack()
{
    loseDaemon();
    for (int attempt = 1; attempt <= 8; ++attempt)
        failAttempt();
    QVERIFY(m_daemon->listen());
    m_signals.clear();
    m_client->enableAutoReconnect(true);
    QCOMPARE(running(reconnectTimer()), -1);
    QCOMPARE(running(checkTimer()), -1);
    QVERIFY(m_client->connectToDaemon());
    QCOMPARE(m_signals, QStringList{u"connected"_s});
    QCOMPARE(running(checkTimer()), 2000);
}

void TestReconnect::commandsDuringTheSequenceFailAtOnce()
{
    m_daemon->dropConnections();
    QTRY_VERIFY(!m_client->isConnected());
    QElapsedTimer clock;
    clock.start();
    QVERIFY(!m_client->enableTask(u"t"_s));
    QVERIFY(clock.elapsed() < 400);
    QCOMPARE(m_client->lastErrorCode(), u"NOT_CONNECTED"_s);
    QCOMPARE(running(reconnectTimer()), 500);
    hurryReconnect();
    QTRY_VERIFY(m_signals.contains(u"reconnected"_s));
    QCOMPARE(m_daemon->commands(), QStringList{u"client.register"_s});
}

void TestReconnect::disconnectingEndsTheSequence()
{
    loseDaemon();
    m_signals.clear();
    m_client->disconnectFromDaemon();
    QCOMPARE(m_signals, QStringList{u"disconnected"_s});
    QCOMPARE(running(reconnectTimer()), -1);
    QVERIFY(m_daemon->listen());
    QVERIFY(m_client->connectToDaemon());
    QCOMPARE(running(checkTimer()), 2000);
}

ORVEL_TEST_MAIN(QCoreApplication, TestReconnect)
#include "tst_connectionlifecycle_reconnect.moc"
