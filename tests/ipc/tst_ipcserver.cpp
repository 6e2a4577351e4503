#include "logcapture.h"
#include "mcsipcserverconnection.h"
#include "mcsnamedpipeserver.h"
#include "rawclient.h"
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

const QString source = u"IPC Server"_s;

/// Lets a connection in that came from nowhere.
class OpenServer : public MCsIPCServer {
public:
    using MCsIPCServer::handleNewConnection;
};

} // namespace

/// The server's list of clients and its signals.
class TestIpcServer : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void clientsAreKeptInOrderOfArrivalAndLogged();
    void clientIsInTheListWhenItIsTold();
    void commandComesWithItsConnection();
    void handlerAnswersOnTheConnection();
    void oneOfTwoClientsLeavesAndTheOtherGoesOn();
    void connectionIsValidWhenItsEndIsToldAndDeletedThen();
    void connectionThatIsDeletedLeavesTheList();
    void nothingIsNoConnection();
    void deletingTheServerClosesItsConnections();

private:
    std::unique_ptr<RawClient> newClient();

    std::unique_ptr<MCsNamedPipeServer> m_server;
};

void TestIpcServer::init()
{
    m_server = std::make_unique<MCsNamedPipeServer>();
    QVERIFY(m_server->listen());
}

void TestIpcServer::cleanup()
{
    m_server.reset();
}

/// A client that the server knows.
std::unique_ptr<RawClient> TestIpcServer::newClient()
{
    auto client = std::make_unique<RawClient>();
    const qsizetype before = m_server->connections().size();
    if (!client->connectTo(defaultPipeName()) ||
        !QTest::qWaitFor([&] { return m_server->connections().size() > before; }))
        qFatal("no connection");
    return client;
}

void TestIpcServer::clientsAreKeptInOrderOfArrivalAndLogged()
{
    const LogCapture log;
    QList<MCsIPCServerConnection *> told;
    connect(m_server.get(), &MCsIPCServer::clientConnected, this,
            [&](MCsIPCServerConnection *connection) { told.append(connection); });
    const auto first = newClient();
    const auto second = newClient();
    const auto third = newClient();
    QCOMPARE(told.size(), 3);
    QCOMPARE(m_server->connections(), told);
    QCOMPARE(log.lines(source), (QStringList{u"DEBUG New client connected. Total connections: 1"_s,
                                             u"DEBUG New client connected. Total connections: 2"_s,
                                             u"DEBUG New client connected. Total connections: 3"_s}));
}

void TestIpcServer::clientIsInTheListWhenItIsTold()
{
    bool listed = false;
    connect(m_server.get(), &MCsIPCServer::clientConnected, this, [&](MCsIPCServerConnection *connection) {
        listed = m_server->connections().contains(connection) && connection->parent() == m_server.get();
    });
    const auto client = newClient();
    QVERIFY(listed);
}

void TestIpcServer::commandComesWithItsConnection()
{
    QList<QPair<MCsIPCServerConnection *, QString>> told;
    connect(m_server.get(), &MCsIPCServer::commandReceived, this,
            [&](MCsIPCServerConnection *connection, const QJsonObject &request) {
                told.append({connection, request.value("id"_L1).toString()});
            });
    const auto first = newClient();
    const auto second = newClient();
    second->send("{\"id\":\"2\",\"cmd\":\"x\"}\n");
    QTRY_COMPARE(told.size(), 1);
    first->send("[]\n{\"id\":\"1\",\"cmd\":\"x\"}\n");
    QTRY_COMPARE(told.size(), 2);
    QCOMPARE(told.at(0), qMakePair(m_server->connections().at(1), u"2"_s));
    QCOMPARE(told.at(1), qMakePair(m_server->connections().at(0), u"1"_s));
}

void TestIpcServer::handlerAnswersOnTheConnection()
{
    connect(m_server.get(), &MCsIPCServer::commandReceived, this,
            [](MCsIPCServerConnection *connection, const QJsonObject &request) {
                QVERIFY(connection->sendResponse({{u"id"_s, request.value("id"_L1)}, {u"ok"_s, true}}));
            });
    const auto first = newClient();
    const auto second = newClient();
    first->send("{\"id\":\"1\",\"cmd\":\"x\"}\n{\"id\":\"2\",\"cmd\":\"x\"}\n");
    QTRY_COMPARE(first->lines(), (QByteArrayList{"{\"id\":\"1\",\"ok\":true}", "{\"id\":\"2\",\"ok\":true}"}));
    QCOMPARE(second->lines(), QByteArrayList());
}

void TestIpcServer::oneOfTwoClientsLeavesAndTheOtherGoesOn()
{
    const auto leaving = newClient();
    const auto staying = newClient();
    MCsIPCServerConnection *const other = m_server->connections().at(1);
    const QSignalSpy disconnected(m_server.get(), &MCsIPCServer::clientDisconnected);
    const QSignalSpy commands(m_server.get(), &MCsIPCServer::commandReceived);
    const LogCapture log;
    leaving->leave();
    QTRY_COMPARE(disconnected.count(), 1);
    QCOMPARE(log.lines(source), QStringList{u"DEBUG Client disconnected, remaining connections: 1"_s});
    QCOMPARE(m_server->connections(), QList{other});

    staying->send("{\"id\":\"a\",\"cmd\":\"x\"}\n");
    QTRY_COMPARE(commands.count(), 1);
    QVERIFY(other->sendResponse({{u"id"_s, u"a"_s}}));
    QTRY_COMPARE(staying->lines().size(), 1);
}

void TestIpcServer::connectionIsValidWhenItsEndIsToldAndDeletedThen()
{
    const auto client = newClient();
    const QPointer<MCsIPCServerConnection> connection = m_server->connections().constFirst();
    bool valid = false;
    bool listed = true;
    connect(m_server.get(), &MCsIPCServer::clientDisconnected, this, [&](MCsIPCServerConnection *gone) {
        valid = gone == connection && connection->parent() == m_server.get();
        listed = m_server->connections().contains(gone);
    });
    client->leave();
    QTRY_VERIFY(valid);
    QVERIFY(!listed);
    QTRY_VERIFY(connection.isNull());
}

void TestIpcServer::connectionThatIsDeletedLeavesTheList()
{
    const auto client = newClient();
    const QSignalSpy disconnected(m_server.get(), &MCsIPCServer::clientDisconnected);
    const LogCapture log;
    delete m_server->connections().constFirst();
    QCOMPARE(disconnected.count(), 1);
    QCOMPARE(m_server->connections().size(), 0);
    QCOMPARE(log.lines(),
             (QStringList{u"DEBUG Client disconnected"_s, u"DEBUG Client disconnected, remaining connections: 0"_s}));
    QTRY_VERIFY(!client->isConnected());
}

void TestIpcServer::nothingIsNoConnection()
{
    OpenServer server;
    const QSignalSpy connected(&server, &MCsIPCServer::clientConnected);
    const LogCapture log;
    server.handleNewConnection(nullptr);
    QCOMPARE(server.connections().size(), 0);
    QCOMPARE(connected.count(), 0);
    QCOMPARE(log.lines(), QStringList());
}

void TestIpcServer::deletingTheServerClosesItsConnections()
{
    const auto first = newClient();
    const auto second = newClient();
    m_server.reset();
    QTRY_VERIFY(!first->isConnected());
    QTRY_VERIFY(!second->isConnected());
}

ORVEL_TEST_MAIN(QCoreApplication, TestIpcServer)
#include "tst_ipcserver.moc"
