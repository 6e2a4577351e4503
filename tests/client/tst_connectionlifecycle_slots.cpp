#include "lifecyclefixture.h"
#include "testmain.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

namespace {

const QString registration = u"client.register"_s;

} // namespace

/// What slots of the client's own signals may do to the connection.
class TestLifecycleSlots : public QObject, private LifecycleFixture {
    Q_OBJECT

private slots:
    void cleanup();
    void lossInASlotOfConnectedGoesOnWithTheSequence();
    void disconnectingInASlotOfConnectedEndsTheSequence();
    void disablingUnderAnAttemptEndsTheSequence();
    void disablingInASlotOfReconnectingEndsTheSequence();
    void commandInASlotOfConnectedIsAnswered();
    void connectingInASlotOfConnectionLostIsNotUndone();
};

void TestLifecycleSlots::cleanup()
{
    tearDown();
}

void TestLifecycleSlots::lossInASlotOfConnectedGoesOnWithTheSequence()
{
    setUpConnected(true);
    const auto lost = connect(m_client.get(), &MCsSchedulerClient::connected, m_client.get(), [this] {
        m_daemon->dropConnections();
        QTRY_VERIFY(!m_client->isConnected());
    });
    startReconnect();
    QTRY_COMPARE(m_signals, QStringList({u"reconnecting 1 of 8"_s, u"connected"_s}) + lossSignals());
    QTRY_COMPARE(running(reconnectTimer()), 500);
    QCOMPARE(running(checkTimer()), -1);

    disconnect(lost);
    m_signals.clear();
    hurryReconnect();
    QTRY_COMPARE(m_signals, (QStringList{u"reconnecting 1 of 8"_s, u"connected"_s, u"reconnected"_s}));
    QCOMPARE(running(checkTimer()), 2000);
}

void TestLifecycleSlots::disconnectingInASlotOfConnectedEndsTheSequence()
{
    setUpConnected(true);
    connect(m_client.get(), &MCsSchedulerClient::connected, m_client.get(), &MCsSchedulerClient::disconnectFromDaemon);
    startReconnect();
    QTRY_COMPARE(m_signals, (QStringList{u"reconnecting 1 of 8"_s, u"connected"_s, u"disconnected"_s}));
    QCOMPARE(running(reconnectTimer()), -1);
    QCOMPARE(running(checkTimer()), -1);
    QVERIFY(!m_client->isConnected());
}

void TestLifecycleSlots::disablingUnderAnAttemptEndsTheSequence()
{
    setUpConnected(true);
    m_daemon->refuse(registration, u"NO"_s, u"no"_s);
    m_daemon->hold(registration);
    once(registration, [this] {
        m_client->disableAutoReconnect();
        m_daemon->release(registration);
    });
    startReconnect();
    QTRY_COMPARE(m_client->lastErrorCode(), u"NO"_s);
    QTRY_COMPARE(m_daemon->connectionCount(), 0);
    QCOMPARE(running(reconnectTimer()), -1);
    QCOMPARE(m_signals, QStringList{u"reconnecting 1 of 8"_s});
}

void TestLifecycleSlots::disablingInASlotOfReconnectingEndsTheSequence()
{
    setUpConnected(true);
    connect(m_client.get(), &MCsSchedulerClient::reconnecting, m_client.get(),
            &MCsSchedulerClient::disableAutoReconnect);
    m_daemon->dropConnections(); // and would take the client in again
    QTRY_VERIFY(!m_client->isConnected());
    m_signals.clear();
    m_daemon->clearRequests();
    hurryReconnect();
    QTRY_COMPARE(m_signals, QStringList{u"reconnecting 1 of 8"_s});
    QCoreApplication::processEvents();
    QVERIFY(!m_client->isConnected());
    QCOMPARE(m_daemon->commands(), QStringList());
    QCOMPARE(running(reconnectTimer()), -1);
}

void TestLifecycleSlots::commandInASlotOfConnectedIsAnswered()
{
    setUp();
    bool answered = false;
    connect(m_client.get(), &MCsSchedulerClient::connected, m_client.get(),
            [&] { answered = m_client->enableTask(u"t"_s); });
    QVERIFY(m_client->connectToDaemon());
    QVERIFY(answered);
}

void TestLifecycleSlots::connectingInASlotOfConnectionLostIsNotUndone()
{
    setUpConnected(false);
    bool connected = false;
    connect(m_client.get(), &MCsSchedulerClient::connectionLost, m_client.get(),
            [&] { connected = m_client->connectToDaemon(); });
    m_daemon->dropConnections();
    QTRY_VERIFY(connected);
    QVERIFY(m_client->isConnected());
    QVERIFY(m_client->enableTask(u"t"_s));
    QCOMPARE(m_signals, lossSignals() + QStringList{u"connected"_s});
}

ORVEL_TEST_MAIN(QCoreApplication, TestLifecycleSlots)
#include "tst_connectionlifecycle_slots.moc"
