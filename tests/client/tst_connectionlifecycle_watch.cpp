#include "lifecyclefixture.h"
#include "testmain.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

/// Turning automatic reconnection on and off, and the timer that looks at the connection.
class TestWatch : public QObject, private LifecycleFixture {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void disablingEndsTheSequence_data();
    void disablingEndsTheSequence();
    void sequenceAfterADisabledOneStartsAnew();
    void enablingWhileConnectedStartsTheWatch();
    void enablingWhileDisconnectedStartsNothing();
    void disablingEndsTheWatch_data();
    void disablingEndsTheWatch();
    void watchDoesNothingWhileConnected();
    void watchNoticesALossThatWasNotTold();
    void anotherLookAtTheSameLossStartsNoSecondSequence();

private:
    void disable(bool byEnable);
};

void TestWatch::init()
{
    setUpConnected(true);
}

void TestWatch::cleanup()
{
    tearDown();
}

void TestWatch::disable(bool byEnable)
{
    if (byEnable)
        m_client->enableAutoReconnect(false);
    else
        m_client->disableAutoReconnect();
}

void TestWatch::disablingEndsTheSequence_data()
{
    QTest::addColumn<bool>("byEnable");
    QTest::newRow("disableAutoReconnect") << false;
    QTest::newRow("enableAutoReconnect(false)") << true;
}

void TestWatch::disablingEndsTheSequence()
{
    QFETCH(const bool, byEnable);
    loseDaemon();
    m_signals.clear();
    disable(byEnable);
    QCOMPARE(running(reconnectTimer()), -1);
    // Even one that fires all the same does nothing.
    const QSignalSpy fired(reconnectTimer(), &QTimer::timeout);
    reconnectTimer()->start(0);
    QTRY_COMPARE(fired.count(), 1);
    QCOMPARE(m_signals, QStringList());
    QVERIFY(!m_client->isConnected());
}

void TestWatch::sequenceAfterADisabledOneStartsAnew()
{
    loseDaemon();
    failAttempt();
    failAttempt();
    m_client->disableAutoReconnect();
    QVERIFY(m_daemon->listen());
    QVERIFY(m_client->connectToDaemon());
    QCOMPARE(running(checkTimer()), -1);
    m_client->enableAutoReconnect(true);
    m_signals.clear();
    loseDaemon();
    QCOMPARE(running(reconnectTimer()), 500);
    failAttempt();
    QCOMPARE(m_signals.constLast(), u"reconnecting 1 of 8"_s);
}

void TestWatch::enablingWhileConnectedStartsTheWatch()
{
    m_client->disableAutoReconnect();
    m_client->enableAutoReconnect(true);
    QCOMPARE(running(checkTimer()), 2000);
    QVERIFY(!checkTimer()->isSingleShot());
    QCOMPARE(reconnectTimer(), nullptr);
    QCOMPARE(m_signals, QStringList());
}

void TestWatch::enablingWhileDisconnectedStartsNothing()
{
    MCsSchedulerClient client;
    client.enableAutoReconnect(true);
    QVERIFY(client.findChildren<QTimer *>().isEmpty());

    m_client->disableAutoReconnect();
    loseDaemon();
    m_client->enableAutoReconnect(true);
    QCOMPARE(running(checkTimer()), -1);
    QCOMPARE(reconnectTimer(), nullptr);
}

void TestWatch::disablingEndsTheWatch_data()
{
    disablingEndsTheSequence_data();
}

void TestWatch::disablingEndsTheWatch()
{
    QFETCH(const bool, byEnable);
    disable(byEnable);
    QCOMPARE(running(checkTimer()), -1);
    QVERIFY(m_client->isConnected());
    QCOMPARE(m_signals, QStringList());
}

void TestWatch::watchDoesNothingWhileConnected()
{
    const QSignalSpy fired(checkTimer(), &QTimer::timeout);
    checkTimer()->start(0);
    QTRY_VERIFY(fired.count() >= 3);
    QCOMPARE(m_signals, QStringList());
    QVERIFY(m_client->isConnected());
    QCOMPARE(m_daemon->commands(), QStringList());
}

void TestWatch::watchNoticesALossThatWasNotTold()
{
    const QPointer<MCsIPCConnection> mute = connection();
    mute->blockSignals(true);
    loseDaemon();
    QCOMPARE(m_signals, QStringList());
    QCOMPARE(running(checkTimer()), 2000);
    checkTimer()->start(0);
    QTRY_COMPARE(m_signals, (QStringList{u"disconnected"_s, u"connectionLost"_s}));
    QCOMPARE(running(checkTimer()), -1);
    QCOMPARE(running(reconnectTimer()), 500);
    QTRY_VERIFY(mute.isNull());
}

void TestWatch::anotherLookAtTheSameLossStartsNoSecondSequence()
{
    loseDaemon();
    QVERIFY(QMetaObject::invokeMethod(m_client.get(), "checkConnection"));
    failAttempt();
    QVERIFY(QMetaObject::invokeMethod(m_client.get(), "onConnectionLost"));
    QCOMPARE(running(reconnectTimer()), 1000);
}

ORVEL_TEST_MAIN(QCoreApplication, TestWatch)
#include "tst_connectionlifecycle_watch.moc"
