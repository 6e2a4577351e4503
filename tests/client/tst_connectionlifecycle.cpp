#include "lifecyclefixture.h"
#include "logcapture.h"
#include "mcsschedulerqueryimpl.h"
#include "testmain.h"

#include <QMetaMethod>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

namespace {

const QString source = u"MCsSchedulerClient"_s;
const QString clientType = u"task_type.screen_record"_s;

} // namespace

/// Connecting, registering and disconnecting.
class TestConnectionLifecycle : public QObject, private LifecycleFixture {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void newClientIsDisconnectedAndUnwatched();
    void typeOfAllTypes_data();
    void typeOfAllTypes();
    void connectingRegistersAndIsTold();
    void clientRegistersAsManagerUnlessToldOtherwise();
    void connectingWhileConnectedDoesNothing();
    void deadConnectionIsReplaced();
    void disconnectingClosesAndIsTold();
    void disconnectingWithoutAConnectionIsStillTold();
    void disconnectingLeavesAutoReconnectAsItIs();
    void destructionIsSilentAndClosesTheConnection();
    void queryImplementationHasItsSixSignals();
};

void TestConnectionLifecycle::init()
{
    setUp();
}

void TestConnectionLifecycle::cleanup()
{
    tearDown();
}

void TestConnectionLifecycle::newClientIsDisconnectedAndUnwatched()
{
    const MCsSchedulerClient client;
    QVERIFY(!client.isConnected());
    QCOMPARE(client.clientType(), u"manager"_s);
    QCOMPARE(client.lastError(), QString());
    QCOMPARE(client.lastErrorCode(), QString());
    QVERIFY(client.children().isEmpty());
}

void TestConnectionLifecycle::typeOfAllTypes_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<bool>("all");
    QTest::newRow("empty") << QString() << true;
    QTest::newRow("all") << u"task_type.all"_s << true;
    QTest::newRow("other case") << u"task_type.ALL"_s << false;
    QTest::newRow("one type") << clientType << false;
    QTest::newRow("manager") << u"manager"_s << false;
}

void TestConnectionLifecycle::typeOfAllTypes()
{
    QFETCH(const QString, type);
    m_client->setClientType(type);
    QCOMPARE(m_client->clientType(), type);
    QTEST(m_client->isAllTypesClient(), "all");
}

void TestConnectionLifecycle::connectingRegistersAndIsTold()
{
    const LogCapture log;
    QVERIFY(m_client->connectToDaemon());
    QVERIFY(m_client->isConnected());
    QCOMPARE(m_signals, QStringList{u"connected"_s});
    QCOMPARE(m_daemon->commands(), QStringList{u"client.register"_s});
    QCOMPARE(m_daemon->requests().constFirst().value("payload"_L1).toObject(),
             (QJsonObject{{u"clientType"_s, clientType}}));
    QCOMPARE(log.lines(source), QStringList{u"INFO Connected and registered as "_s + clientType});
    QCOMPARE(m_client->lastErrorCode(), QString());
    QCOMPARE(checkTimer(), nullptr);
    QCOMPARE(reconnectTimer(), nullptr);
}

void TestConnectionLifecycle::clientRegistersAsManagerUnlessToldOtherwise()
{
    MCsSchedulerClient client;
    QVERIFY(client.connectToDaemon());
    QCOMPARE(m_daemon->requests().constFirst().value("payload"_L1).toObject(),
             (QJsonObject{{u"clientType"_s, u"manager"_s}}));
}

void TestConnectionLifecycle::connectingWhileConnectedDoesNothing()
{
    QVERIFY(m_client->connectToDaemon());
    const MCsIPCConnection *const before = connection();
    m_signals.clear();
    QVERIFY(m_client->connectToDaemon());
    QVERIFY(m_client->connectToDaemon(3, 100));
    QCOMPARE(connection(), before);
    QCOMPARE(m_signals, QStringList());
    QVERIFY(m_client->enableTask(u"t"_s));
    QCOMPARE(m_daemon->requests(u"client.register"_s).size(), 1);
    QCOMPARE(m_daemon->acceptedCount(), 1);
}

void TestConnectionLifecycle::deadConnectionIsReplaced()
{
    QVERIFY(m_client->connectToDaemon());
    const QPointer<MCsIPCConnection> dead = connection();
    dead->blockSignals(true);
    m_daemon->dropConnections();
    QTRY_VERIFY(!m_client->isConnected());
    m_signals.clear();
    QVERIFY(m_client->connectToDaemon());
    QCOMPARE(m_signals, QStringList{u"connected"_s});
    QTRY_VERIFY(dead.isNull());
    QVERIFY(m_client->isConnected());
}

void TestConnectionLifecycle::disconnectingClosesAndIsTold()
{
    QVERIFY(m_client->connectToDaemon());
    m_client->enableAutoReconnect(true);
    QCOMPARE(running(checkTimer()), 2000);
    const QPointer<MCsIPCConnection> closed = connection();
    m_signals.clear();
    m_client->disconnectFromDaemon();
    QVERIFY(!m_client->isConnected());
    QCOMPARE(m_signals, QStringList{u"disconnected"_s});
    QCOMPARE(running(checkTimer()), -1);
    QCOMPARE(reconnectTimer(), nullptr);
    QTRY_VERIFY(closed.isNull());
    QTRY_COMPARE(m_daemon->connectionCount(), 0);
    QCOMPARE(m_signals, QStringList{u"disconnected"_s});
}

void TestConnectionLifecycle::disconnectingWithoutAConnectionIsStillTold()
{
    m_client->disconnectFromDaemon();
    m_client->disconnectFromDaemon();
    QCOMPARE(m_signals, (QStringList{u"disconnected"_s, u"disconnected"_s}));
}

void TestConnectionLifecycle::disconnectingLeavesAutoReconnectAsItIs()
{
    m_client->enableAutoReconnect(true);
    QVERIFY(m_client->connectToDaemon());
    m_client->disconnectFromDaemon();
    QVERIFY(m_client->connectToDaemon());
    QCOMPARE(running(checkTimer()), 2000);
}

void TestConnectionLifecycle::destructionIsSilentAndClosesTheConnection()
{
    QVERIFY(m_client->connectToDaemon());
    m_client->enableAutoReconnect(true);
    m_signals.clear();
    m_client.reset();
    QCOMPARE(m_signals, QStringList());
    QTRY_COMPARE(m_daemon->connectionCount(), 0);
}

void TestConnectionLifecycle::queryImplementationHasItsSixSignals()
{
    const QMetaObject &meta = MCsSchedulerQueryImpl::staticMetaObject;
    QStringList signatures;
    for (int index = meta.methodOffset(); index < meta.methodCount(); ++index) {
        QCOMPARE(meta.method(index).methodType(), QMetaMethod::Signal);
        signatures.append(QString::fromLatin1(meta.method(index).methodSignature()));
    }
    QCOMPARE(signatures,
             (QStringList{u"sig_connected()"_s, u"sig_disconnected()"_s, u"sig_error(QString)"_s,
                          u"sig_reconnecting(int,int)"_s, u"sig_reconnected()"_s, u"sig_reconnectFailed()"_s}));
    QCOMPARE(meta.className(), "MCsSchedulerQueryImpl");
}

ORVEL_TEST_MAIN(QCoreApplication, TestConnectionLifecycle)
#include "tst_connectionlifecycle.moc"
