#include "lifecyclefixture.h"
#include "logcapture.h"
#include "testmain.h"

#include <QElapsedTimer>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

namespace {

const QString registration = u"client.register"_s;
const QString timedOutCommand = u"TIMEOUT: Request timed out after 2000ms"_s;

} // namespace

/// What may happen to the connection while a command or the registration waits in its nested event loop.
class TestLifecycleReentrancy : public QObject, private LifecycleFixture {
    Q_OBJECT

private slots:
    void cleanup();
    void lossDuringRegistrationEndsInTimeout();
    void lossDuringRegistrationStartsASequenceThatMayWin();
    void lossDuringTheRegistrationOfAnAttemptIsAFailedAttempt();
    void connectingUnderARegistrationRegistersOnce();
    void disconnectingUnderARegistrationEndsIt();
    void lossUnderACommandEndsInTimeoutAfterTheFullTime();
    void reconnectUnderAWaitingCommandKeepsTheNewConnection();
    void disconnectingUnderACommandEndsInTimeout();
    void disconnectingUnderTwoNestedCommandsSparesTheConnectionUntilBothReturned();
    void connectingAnewUnderACommandKeepsTheNewConnection();
};

void TestLifecycleReentrancy::cleanup()
{
    tearDown();
}

void TestLifecycleReentrancy::lossDuringRegistrationEndsInTimeout()
{
    setUp();
    m_daemon->ignore(registration);
    once(registration, [this] { m_daemon->dropConnections(); });
    const LogCapture log;
    QElapsedTimer clock;
    clock.start();
    QVERIFY(!m_client->connectToDaemon());
    QVERIFY(clock.elapsed() >= 1900);
    QCOMPARE(m_signals, lossSignals());
    QCOMPARE(m_client->lastErrorCode(), u"TIMEOUT"_s);
    QCOMPARE(m_client->lastError(), u"Failed to register client: Request timed out after 2000ms"_s);
    QCOMPARE(log.lines(u"MCsSchedulerClient"_s),
             toldOfLoss(u"ERROR "_s) +
                 (QStringList{u"ERROR "_s + timedOutCommand,
                              u"ERROR Failed to register client: Request timed out after 2000ms"_s,
                              u"WARN Registration failed after connect"_s}));
    QTRY_COMPARE(connection(), nullptr);
}

void TestLifecycleReentrancy::lossDuringRegistrationStartsASequenceThatMayWin()
{
    setUp();
    m_client->enableAutoReconnect(true);
    m_daemon->ignore(registration);
    once(registration, [this] {
        m_daemon->answer(registration, {});
        m_daemon->dropConnections();
    });
    QVERIFY(m_client->connectToDaemon());
    QVERIFY(m_client->isConnected());
    QCOMPARE(m_signals, lossSignals() + QStringList({u"reconnecting 1 of 8"_s, u"connected"_s, u"reconnected"_s}));
    QCOMPARE(running(checkTimer()), 2000);
    QVERIFY(m_client->enableTask(u"t"_s));
    QCOMPARE(m_daemon->connectionCount(), 1);
}

void TestLifecycleReentrancy::lossDuringTheRegistrationOfAnAttemptIsAFailedAttempt()
{
    setUpConnected(true);
    m_daemon->ignore(registration);
    once(registration, [this] { m_daemon->dropConnections(); });
    startReconnect();
    QTRY_COMPARE(running(reconnectTimer()), 1000);
    QCOMPARE(m_signals, QStringList{u"reconnecting 1 of 8"_s} + lossSignals());

    m_daemon->answer(registration, {});
    m_signals.clear();
    hurryReconnect();
    QTRY_COMPARE(m_signals, (QStringList{u"reconnecting 2 of 8"_s, u"connected"_s, u"reconnected"_s}));
}

void TestLifecycleReentrancy::connectingUnderARegistrationRegistersOnce()
{
    setUp();
    m_daemon->hold(registration);
    bool nested = false;
    once(registration, [&] {
        nested = m_client->connectToDaemon();
        m_daemon->release(registration);
    });
    QVERIFY(m_client->connectToDaemon());
    QVERIFY(nested);
    QCOMPARE(m_signals, QStringList{u"connected"_s});
    QCOMPARE(m_daemon->commands(), QStringList{registration});
}

void TestLifecycleReentrancy::disconnectingUnderARegistrationEndsIt()
{
    setUp();
    m_daemon->ignore(registration);
    once(registration, [this] { m_client->disconnectFromDaemon(); });
    QVERIFY(!m_client->connectToDaemon());
    QCOMPARE(m_signals, QStringList{u"disconnected"_s});
    QVERIFY(!m_client->isConnected());
    QTRY_COMPARE(connection(), nullptr);
}

void TestLifecycleReentrancy::lossUnderACommandEndsInTimeoutAfterTheFullTime()
{
    setUpConnected(false);
    m_daemon->ignore(u"task.enable"_s);
    const QPointer<MCsIPCConnection> lost = connection();
    bool lostAtOnce = false;
    once(u"task.enable"_s, [&] {
        m_daemon->dropConnections();
        QTRY_COMPARE(m_signals, lossSignals());
        lostAtOnce = true;
    });
    QElapsedTimer clock;
    clock.start();
    QVERIFY(!m_client->enableTask(u"t"_s));
    QVERIFY(clock.elapsed() >= 1900);
    QVERIFY(lostAtOnce);
    QCOMPARE(m_client->lastErrorCode(), u"TIMEOUT"_s);
    QCOMPARE(m_client->lastError(), timedOutCommand);
    QCOMPARE(m_signals, lossSignals());
    QTRY_VERIFY(lost.isNull());
}

void TestLifecycleReentrancy::reconnectUnderAWaitingCommandKeepsTheNewConnection()
{
    setUpConnected(true);
    m_daemon->ignore(u"task.enable"_s);
    const QPointer<MCsIPCConnection> old = connection();
    bool nested = false;
    once(u"task.enable"_s, [&] {
        startReconnect();
        QTRY_VERIFY(m_signals.contains(u"reconnected"_s));
        QVERIFY(!old.isNull());
        nested = m_client->disableTask(u"t"_s);
    });
    QVERIFY(!m_client->enableTask(u"t"_s));
    QVERIFY(nested);
    QCOMPARE(m_client->lastError(), timedOutCommand);
    QVERIFY(m_client->isConnected());
    QVERIFY(connection() != nullptr);
    QTRY_VERIFY(old.isNull());
    QVERIFY(m_client->disableTask(u"t"_s));
    QCOMPARE(m_signals, (QStringList{u"reconnecting 1 of 8"_s, u"connected"_s, u"reconnected"_s}));
}

void TestLifecycleReentrancy::disconnectingUnderACommandEndsInTimeout()
{
    setUpConnected(true);
    m_daemon->hold(u"task.enable"_s);
    const QPointer<MCsIPCConnection> closed = connection();
    once(u"task.enable"_s, [this] {
        m_client->disconnectFromDaemon();
        QVERIFY(!m_client->isConnected());
    });
    QElapsedTimer clock;
    clock.start();
    QVERIFY(!m_client->enableTask(u"t"_s));
    QVERIFY(clock.elapsed() >= 1900);
    QCOMPARE(m_client->lastError(), timedOutCommand);
    QCOMPARE(m_signals, QStringList{u"disconnected"_s});
    QTRY_VERIFY(closed.isNull());
    QTRY_COMPARE(m_daemon->connectionCount(), 0);
}

void TestLifecycleReentrancy::disconnectingUnderTwoNestedCommandsSparesTheConnectionUntilBothReturned()
{
    setUpConnected(true);
    m_daemon->ignore(u"task.enable"_s);
    m_daemon->ignore(u"task.disable"_s);
    const QPointer<MCsIPCConnection> closed = connection();
    QStringList errors;
    once(u"task.enable"_s, [&] {
        QVERIFY(!m_client->disableTask(u"t"_s));
        errors.append(m_client->lastError());
        QVERIFY(!closed.isNull());
    });
    once(u"task.disable"_s, [this] { m_client->disconnectFromDaemon(); });
    QVERIFY(!m_client->enableTask(u"t"_s));
    errors.append(m_client->lastError());
    QCOMPARE(errors, (QStringList{timedOutCommand, timedOutCommand}));
    QTRY_VERIFY(closed.isNull());
}

void TestLifecycleReentrancy::connectingAnewUnderACommandKeepsTheNewConnection()
{
    setUpConnected(true);
    m_daemon->ignore(u"task.enable"_s);
    const QPointer<MCsIPCConnection> old = connection();
    once(u"task.enable"_s, [this] {
        m_client->disconnectFromDaemon();
        QVERIFY(m_client->connectToDaemon());
    });
    QVERIFY(!m_client->enableTask(u"t"_s));
    QVERIFY(m_client->isConnected());
    QCOMPARE(m_signals, (QStringList{u"disconnected"_s, u"connected"_s}));
    QTRY_VERIFY(old.isNull());
    QVERIFY(m_client->disableTask(u"t"_s));
}

ORVEL_TEST_MAIN(QCoreApplication, TestLifecycleReentrancy)
#include "tst_connectionlifecycle_reentrancy.moc"
