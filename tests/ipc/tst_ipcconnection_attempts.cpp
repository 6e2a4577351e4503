#include "logcapture.h"
#include "mcsipcconnection.h"
#include "rawsocket.h"
#include "scripteddaemon.h"
#include "testmain.h"
#include "wireprotocol.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

#include <memory>
#include <vector>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

namespace {

constexpr int timeoutMs = 2000;
const QString source = u"IPCConnector"_s;

QStringList messagesOf(const QSignalSpy &errors)
{
    QStringList result;
    for (const QList<QVariant> &arguments : errors)
        result.append(arguments.constFirst().toString());
    return result;
}

} // namespace

/// Attempts that fail, and attempts after those.
class TestConnectionAttempts : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void fewerThanOneAttemptLeavesNoTrace_data();
    void fewerThanOneAttemptLeavesNoTrace();
    void connectedObjectNeedsNoAttempt();
    void failedAttemptIsLoggedAndTold();
    void retriesSleepAndDoubleTheDelay();
    void retryFindsADaemonThatCameUp();
    void newAttemptReplacesTheSocket();
    void slotOfErrorMayDisconnectDuringAnAttempt();
    void busyDaemonCostsFiftyMilliseconds();

private:
    QLocalSocket *socket() const;

    std::unique_ptr<ScriptedDaemon> m_daemon;
    std::unique_ptr<MCsIPCConnection> m_connection;
};

void TestConnectionAttempts::init()
{
    m_daemon = std::make_unique<ScriptedDaemon>();
    m_connection = std::make_unique<MCsIPCConnection>(defaultPipeName());
}

void TestConnectionAttempts::cleanup()
{
    m_connection.reset();
    m_daemon.reset();
}

QLocalSocket *TestConnectionAttempts::socket() const
{
    return m_connection->findChild<QLocalSocket *>(QString(), Qt::FindDirectChildrenOnly);
}

void TestConnectionAttempts::fewerThanOneAttemptLeavesNoTrace_data()
{
    QTest::addColumn<int>("maxRetries");
    QTest::newRow("zero") << 0;
    QTest::newRow("minus one") << -1;
}

void TestConnectionAttempts::fewerThanOneAttemptLeavesNoTrace()
{
    QFETCH(const int, maxRetries);
    QVERIFY(m_daemon->listen());
    const LogCapture log;
    const QSignalSpy connected(m_connection.get(), &MCsIPCConnection::connected);
    const QSignalSpy errors(m_connection.get(), &MCsIPCConnection::error);
    QVERIFY(!m_connection->connectToServer(maxRetries, 100));
    QVERIFY(m_connection->children().isEmpty());
    QCOMPARE(connected.count(), 0);
    QCOMPARE(errors.count(), 0);
    QCOMPARE(log.lines(), QStringList());
}

void TestConnectionAttempts::connectedObjectNeedsNoAttempt()
{
    QVERIFY(m_daemon->listen());
    QVERIFY(m_connection->connectToServer(1, 0));
    QVERIFY(m_connection->connectToServer(0, 0));
}

void TestConnectionAttempts::failedAttemptIsLoggedAndTold()
{
    const LogCapture log;
    const QSignalSpy connected(m_connection.get(), &MCsIPCConnection::connected);
    const QSignalSpy errors(m_connection.get(), &MCsIPCConnection::error);
    QVERIFY(!m_connection->connectToServer(1, 0));
    QVERIFY(!m_connection->isConnected());
    QVERIFY(socket() != nullptr);
    const QString reason = socket()->errorString();
    QVERIFY(!reason.isEmpty());
    QCOMPARE(connected.count(), 0);
    QCOMPARE(messagesOf(errors).constLast(),
             u"Failed to connect to %1 after 1 attempts: %2"_s.arg(defaultPipeName(), reason));
    QCOMPARE(log.lines(source),
             (QStringList{u"ERROR Socket error: "_s + reason, u"ERROR Connection attempt 1 of 1 failed: "_s + reason}));
}

void TestConnectionAttempts::retriesSleepAndDoubleTheDelay()
{
    const LogCapture log;
    const QSignalSpy errors(m_connection.get(), &MCsIPCConnection::error);
    QElapsedTimer clock;
    clock.start();
    QVERIFY(!m_connection->connectToServer(3, 100));
    QVERIFY(clock.elapsed() >= 300);

    const QString reason = socket()->errorString();
    QStringList told = log.lines(source);
    QCOMPARE(told.removeAll(u"ERROR Socket error: "_s + reason), 3);
    QCOMPARE(told, (QStringList{u"ERROR Connection attempt 1 of 3 failed: "_s + reason,
                                u"DEBUG Retry attempt 2 of 3 after 100 ms"_s,
                                u"ERROR Connection attempt 2 of 3 failed: "_s + reason,
                                u"DEBUG Retry attempt 3 of 3 after 200 ms"_s,
                                u"ERROR Connection attempt 3 of 3 failed: "_s + reason}));
    // Each socket tells of its own failure; that of the whole comes once, at the end.
    const QString whole = u"Failed to connect to %1 after 3 attempts: %2"_s.arg(defaultPipeName(), reason);
    QCOMPARE(messagesOf(errors).count(whole), 1);
    QCOMPARE(messagesOf(errors).constLast(), whole);
}

void TestConnectionAttempts::retryFindsADaemonThatCameUp()
{
    connect(m_connection.get(), &MCsIPCConnection::error, m_daemon.get(), [this] { QVERIFY(m_daemon->listen()); });
    const LogCapture log;
    QVERIFY(m_connection->connectToServer(3, 1));
    QVERIFY(log.lines(source).contains(u"DEBUG Retry attempt 2 of 3 after 1 ms"_s));
    QVERIFY(!log.lines(source).contains(u"DEBUG Retry attempt 3 of 3 after 2 ms"_s));
    QVERIFY(m_connection->sendRequest(u"x"_s, {}, timeoutMs).value("ok"_L1).toBool());
}

void TestConnectionAttempts::newAttemptReplacesTheSocket()
{
    QVERIFY(!m_connection->connectToServer(1, 0));
    const QPointer<QLocalSocket> failed = socket();
    QVERIFY(m_daemon->listen());
    QVERIFY(m_connection->connectToServer(1, 0));
    QTRY_VERIFY(failed.isNull());
    QCOMPARE(m_connection->findChildren<QLocalSocket *>().size(), 1);
    QVERIFY(m_connection->isConnected());
}

void TestConnectionAttempts::slotOfErrorMayDisconnectDuringAnAttempt()
{
    connect(m_connection.get(), &MCsIPCConnection::error, m_connection.get(), &MCsIPCConnection::disconnectFromServer);
    QVERIFY(!m_connection->connectToServer(3, 1));
    QVERIFY(!m_connection->isConnected());
}

void TestConnectionAttempts::busyDaemonCostsFiftyMilliseconds()
{
    RawSocket listener(defaultPipeName());
    QVERIFY(listener.bind());
    QVERIFY(listener.listen(0));
    std::vector<RawSocket> waiting;
    do {
        waiting.emplace_back(defaultPipeName());
    } while (waiting.back().connect());

    const LogCapture log;
    QElapsedTimer clock;
    clock.start();
    QVERIFY(!m_connection->connectToServer(1, 0));
    // Qt's own limit would be thirty seconds.
    QVERIFY(clock.elapsed() >= 45);
    QVERIFY(clock.elapsed() < 5000);
    QCOMPARE(log.lines(source).constLast(), u"ERROR Connection attempt 1 of 1 failed: "_s + socket()->errorString());
    QVERIFY(!socket()->errorString().isEmpty());
    listener.close();
    QVERIFY(QFile::remove(defaultPipeName()));
}

ORVEL_TEST_MAIN(QCoreApplication, TestConnectionAttempts)
#include "tst_ipcconnection_attempts.moc"
