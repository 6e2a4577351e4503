#include "endurance.h"
#include "mcsschedulerclient.h"
#include "testmain.h"
#include "windowfixture.h"

#include <QApplication>
#include <QSignalSpy>

using namespace Scheduler;
using namespace TestSupport;
using namespace Qt::StringLiterals;

namespace {

/// A client whose daemon comes and goes.
class ClientFixture {
public:
    ClientFixture()
    {
        client.setClientType(u"task_type.test"_s);
    }
    void endCycle()
    {
        daemon.clearRequests();
        QTRY_COMPARE(daemon.connectionCount(), 1);
    }
    void lose()
    {
        daemon.dropConnections();
        QTRY_VERIFY(!client.isConnected());
    }
    /// Lets the attempt that the client has planned run at once.
    void hurry() const
    {
        auto *timer = client.findChild<QTimer *>(u"reconnectTimer"_s);
        QVERIFY(timer != nullptr && timer->isActive());
        timer->start(0);
    }

    ScriptedDaemon daemon;
    MCsSchedulerClient client;
};

} // namespace

/// Connections made and lost over and over.
class TestConnectionCycles : public QObject {
    Q_OBJECT

private slots:
    void connectingAndDisconnectingLeavesNothingBehind();
    void losingAndReconnectingLeavesNothingBehind();
    void losingUnderARequestLeavesNothingBehind();
    void failedAttemptsLeaveNothingBehind();
    void refusedRegistrationsLeaveNothingBehind();
    void aWindowThatLosesItsConnectionLeavesNothingBehind();
};

void TestConnectionCycles::connectingAndDisconnectingLeavesNothingBehind()
{
    ClientFixture fixture;
    QVERIFY(fixture.daemon.listen());
    Endurance endurance(u"connect and disconnect"_s, 1000, 150, {&fixture.client, &fixture.daemon});
    endurance.run([&](int) {
        QVERIFY(fixture.client.connectToDaemon());
        fixture.client.disconnectFromDaemon();
        QTRY_COMPARE(fixture.daemon.connectionCount(), 0);
        fixture.daemon.clearRequests();
    });
    endurance.verify();
}

void TestConnectionCycles::losingAndReconnectingLeavesNothingBehind()
{
    ClientFixture fixture;
    QVERIFY(fixture.daemon.listen());
    QVERIFY(fixture.client.connectToDaemon());
    fixture.client.enableAutoReconnect(true);
    Endurance endurance(u"connect, lose, reconnect"_s, 1000, 150, {&fixture.client, &fixture.daemon});
    int reconnections = 0;
    connect(&fixture.client, &MCsSchedulerClient::reconnected, this, [&reconnections] { ++reconnections; });
    endurance.run([&](int cycle) {
        fixture.lose();
        fixture.hurry();
        QTRY_COMPARE(reconnections, cycle + 1);
        QVERIFY(fixture.client.isConnected());
        fixture.endCycle();
    });
    endurance.verify();
}

void TestConnectionCycles::losingUnderARequestLeavesNothingBehind()
{
    ClientFixture fixture;
    QVERIFY(fixture.daemon.listen());
    fixture.client.setCommandTimeout(20); // a lost request ends with its time
    fixture.daemon.ignore(u"task.get"_s);
    fixture.daemon.onRequest(u"task.get"_s, [&fixture](const QJsonObject &) {
        QMetaObject::invokeMethod(&fixture.daemon, &ScriptedDaemon::dropConnections, Qt::QueuedConnection);
    });
    Endurance endurance(u"lose under a request"_s, 1000, 100, {&fixture.client, &fixture.daemon});
    endurance.run([&](int) {
        QTRY_VERIFY(fixture.client.connectToDaemon());
        QVERIFY(fixture.client.getTask(u"t1"_s).id.isEmpty());
        QTRY_VERIFY(!fixture.client.isConnected());
        fixture.daemon.clearRequests();
    });
    endurance.verify();
}

void TestConnectionCycles::failedAttemptsLeaveNothingBehind()
{
    ClientFixture fixture;
    Endurance endurance(u"attempt without a daemon"_s, 1000, 150, {&fixture.client, &fixture.daemon});
    endurance.run([&](int) { QVERIFY(!fixture.client.connectToDaemon()); });
    endurance.verify();
    QCOMPARE(fixture.client.lastErrorCode(), u"CONNECTION_FAILED"_s);
}

void TestConnectionCycles::refusedRegistrationsLeaveNothingBehind()
{
    ClientFixture fixture;
    QVERIFY(fixture.daemon.listen());
    fixture.daemon.refuse(u"client.register"_s, u"CLIENT_TYPE_ALREADY_CONNECTED"_s, u"taken"_s);
    Endurance endurance(u"refused registration"_s, 1000, 150, {&fixture.client, &fixture.daemon});
    endurance.run([&](int) {
        QVERIFY(!fixture.client.connectToDaemon());
        QTRY_COMPARE(fixture.daemon.connectionCount(), 0);
        fixture.daemon.clearRequests();
    });
    endurance.verify();
    QCOMPARE(fixture.client.lastErrorCode(), u"CLIENT_TYPE_ALREADY_CONNECTED"_s);
}

void TestConnectionCycles::aWindowThatLosesItsConnectionLeavesNothingBehind()
{
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    const auto *client = fixture.window->findChild<MCsSchedulerClient *>();
    QSignalSpy reconnected(client, &MCsSchedulerClient::reconnected);
    fixture.timer("statusUpdateTimer")->stop(); // its answers would come in between
    Endurance endurance(u"window: lose and reconnect"_s, 100, 15, {fixture.window.get(), &fixture.daemon});
    endurance.run([&](int) {
        fixture.daemon.dropConnections();
        QTRY_COMPARE(fixture.window->connectionState(), ConnectionState::Reconnecting);
        fixture.daemon.clearRequests();
        WindowFixture::fire(fixture.timer("reconnectTimer"));
        QTRY_COMPARE(reconnected.size(), 1);
        QCOMPARE(fixture.window->connectionState(), ConnectionState::Connected);
        // Everything is read twice, the log last.
        QTRY_COMPARE(fixture.daemon.requests(u"audit.list"_s).size(), 4);
        reconnected.clear();
    });
    endurance.verify();
}

ORVEL_TEST_MAIN(QApplication, TestConnectionCycles)
#include "tst_connectioncycles.moc"
