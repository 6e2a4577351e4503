#include "logcapture.h"
#include "mcsipcconnection.h"
#include "platform.h"
#include "scripteddaemon.h"
#include "testmain.h"
#include "wireprotocol.h"

#include <QPointer>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

namespace {

constexpr int timeoutMs = 2000;
const QString source = u"IPCConnector"_s;

} // namespace

/// A connection that is made and ends, and what is told about it.
class TestIpcConnection : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void newObjectHasNoSocket();
    void connectingIsToldAndLogged();
    void connectingWhileConnectedKeepsTheSocket();
    void disconnectingClosesTheSocket();
    void disconnectingWithoutASocketDoesNothing();
    void disconnectingForgetsAnUnfinishedFrame();
    void deletingClosesTheSocket();
    void peerGoingGivesErrorThenDisconnected();
    void slotOfDisconnectedMayDisconnect();

private:
    QLocalSocket *socket() const;

    std::unique_ptr<ScriptedDaemon> m_daemon;
    std::unique_ptr<MCsIPCConnection> m_connection;
};

void TestIpcConnection::init()
{
    m_daemon = std::make_unique<ScriptedDaemon>();
    m_connection = std::make_unique<MCsIPCConnection>(defaultPipeName());
}

void TestIpcConnection::cleanup()
{
    m_connection.reset();
    m_daemon.reset();
}

QLocalSocket *TestIpcConnection::socket() const
{
    return m_connection->findChild<QLocalSocket *>(QString(), Qt::FindDirectChildrenOnly);
}

void TestIpcConnection::newObjectHasNoSocket()
{
    QVERIFY(m_daemon->listen());
    QVERIFY(!m_connection->isConnected());
    QVERIFY(m_connection->children().isEmpty());
}

void TestIpcConnection::connectingIsToldAndLogged()
{
    QVERIFY(m_daemon->listen());
    const LogCapture log;
    const QSignalSpy connected(m_connection.get(), &MCsIPCConnection::connected);
    const QSignalSpy errors(m_connection.get(), &MCsIPCConnection::error);
    QVERIFY(m_connection->connectToServer(1, 0));
    QVERIFY(m_connection->isConnected());
    QCOMPARE(connected.count(), 1);
    QCOMPARE(errors.count(), 0);
    QCOMPARE(log.lines(source), QStringList{u"DEBUG Connected to IPC server: "_s + defaultPipeName()});
    QCOMPARE(socket()->openMode(), QIODevice::ReadWrite);
}

void TestIpcConnection::connectingWhileConnectedKeepsTheSocket()
{
    QVERIFY(m_daemon->listen());
    QVERIFY(m_connection->connectToServer(1, 0));
    const QLocalSocket *const before = socket();
    const LogCapture log;
    const QSignalSpy connected(m_connection.get(), &MCsIPCConnection::connected);
    QVERIFY(m_connection->connectToServer(3, 100));
    QCOMPARE(socket(), before);
    QCOMPARE(m_connection->findChildren<QLocalSocket *>().size(), 1);
    QCOMPARE(connected.count(), 0);
    QCOMPARE(log.lines(source), QStringList());
    QTRY_COMPARE(m_daemon->acceptedCount(), 1);
}

void TestIpcConnection::disconnectingClosesTheSocket()
{
    QVERIFY(m_daemon->listen());
    QVERIFY(m_connection->connectToServer(1, 0));
    QTRY_COMPARE(m_daemon->connectionCount(), 1);
    const QPointer<QLocalSocket> closed = socket();
    const LogCapture log;
    const QSignalSpy disconnected(m_connection.get(), &MCsIPCConnection::disconnected);
    m_connection->disconnectFromServer();
    QVERIFY(!m_connection->isConnected());
    QCOMPARE(disconnected.count(), 1);
    QCOMPARE(log.lines(source), QStringList{u"DEBUG Disconnected from IPC server: "_s + defaultPipeName()});
    QTRY_VERIFY(closed.isNull());
    QTRY_COMPARE(m_daemon->connectionCount(), 0);
}

void TestIpcConnection::disconnectingWithoutASocketDoesNothing()
{
    const LogCapture log;
    const QSignalSpy disconnected(m_connection.get(), &MCsIPCConnection::disconnected);
    const QSignalSpy errors(m_connection.get(), &MCsIPCConnection::error);
    m_connection->disconnectFromServer();
    m_connection->disconnectFromServer();
    QCOMPARE(disconnected.count(), 0);
    QCOMPARE(errors.count(), 0);
    QCOMPARE(log.lines(), QStringList());
}

void TestIpcConnection::disconnectingForgetsAnUnfinishedFrame()
{
    QVERIFY(m_daemon->listen());
    QVERIFY(m_connection->connectToServer(1, 0));
    QTRY_COMPARE(m_daemon->connectionCount(), 1);
    const LogCapture log;
    m_daemon->sendRaw("{\"id\":\"old\",\"text\":\"");
    QTRY_VERIFY(log.lines(source).contains(u"DEBUG Received 20 bytes from server"_s));
    m_connection->disconnectFromServer();

    const QSignalSpy responses(m_connection.get(), &MCsIPCConnection::responseReceived);
    QVERIFY(m_connection->connectToServer(1, 0));
    QVERIFY(m_connection->sendRequest(u"x"_s, {}, timeoutMs).value("ok"_L1).toBool());
    QCOMPARE(responses.count(), 1);
}

void TestIpcConnection::deletingClosesTheSocket()
{
    QVERIFY(m_daemon->listen());
    QVERIFY(m_connection->connectToServer(1, 0));
    QTRY_COMPARE(m_daemon->connectionCount(), 1);
    const LogCapture log;
    m_connection.reset();
    QCOMPARE(log.lines(source), QStringList{u"DEBUG Disconnected from IPC server: "_s + defaultPipeName()});
    QTRY_COMPARE(m_daemon->connectionCount(), 0);
}

void TestIpcConnection::peerGoingGivesErrorThenDisconnected()
{
    QVERIFY(m_daemon->listen());
    QVERIFY(m_connection->connectToServer(1, 0));
    QTRY_COMPARE(m_daemon->connectionCount(), 1);
    QStringList order;
    connect(m_connection.get(), &MCsIPCConnection::error, this, [&](const QString &text) { order.append(text); });
    connect(m_connection.get(), &MCsIPCConnection::disconnected, this, [&] { order.append(u"disconnected"_s); });
    const LogCapture log;
    m_daemon->dropConnections();
    QTRY_VERIFY(!m_connection->isConnected());

    QCOMPARE(order, toldOfLoss() + QStringList{u"disconnected"_s});
    QCOMPARE(log.lines(source),
             toldOfLoss(u"ERROR "_s) + QStringList{u"DEBUG Disconnected from IPC server: "_s + defaultPipeName()});
}

void TestIpcConnection::slotOfDisconnectedMayDisconnect()
{
    QVERIFY(m_daemon->listen());
    QVERIFY(m_connection->connectToServer(1, 0));
    const QSignalSpy disconnected(m_connection.get(), &MCsIPCConnection::disconnected);
    connect(m_connection.get(), &MCsIPCConnection::disconnected, m_connection.get(),
            &MCsIPCConnection::disconnectFromServer);
    m_connection->disconnectFromServer();
    QCOMPARE(disconnected.count(), 1);
    QVERIFY(!m_connection->isConnected());
}

ORVEL_TEST_MAIN(QCoreApplication, TestIpcConnection)
#include "tst_ipcconnection.moc"
