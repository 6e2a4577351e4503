#include "lifecyclefixture.h"
#include "logcapture.h"
#include "testmain.h"
#include "wireprotocol.h"

#include <QElapsedTimer>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

namespace {

const QString source = u"MCsSchedulerClient"_s;
const QString clientType = u"task_type.screen_record"_s;

} // namespace

/// Everything that fails, and the last error that it leaves.
class TestLifecycleErrors : public QObject, private LifecycleFixture {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void unreachableDaemonIsConnectionFailed();
    void attemptsAndDelayReachTheConnection();
    void registrationAnswer_data();
    void registrationAnswer();
    void refusalLeavesTwoErrorLinesAndNoConnection();
    void refusedClientMayTryAgain();
    void silentDaemonEndsTheRegistrationAfterTwoSeconds();
    void lossIsToldAsErrorDisconnectedAndConnectionLost();
    void commandWithoutAConnectionIsNotConnected();
    void failedCommandLeavesCodeAndMessage();
    void commandsWaitAsLongAsTheyAreTold();
    void successDoesNotClearTheLastError();
};

void TestLifecycleErrors::init()
{
    setUp();
}

void TestLifecycleErrors::cleanup()
{
    tearDown();
}

void TestLifecycleErrors::unreachableDaemonIsConnectionFailed()
{
    m_daemon->stop();
    const LogCapture log;
    QVERIFY(!m_client->connectToDaemon());
    QVERIFY(!m_client->isConnected());
    QCOMPARE(m_client->lastErrorCode(), u"CONNECTION_FAILED"_s);
    QCOMPARE(m_client->lastError(), u"Failed to connect to daemon"_s);
    QCOMPARE(m_signals, QStringList());
    QCOMPARE(log.lines(source), QStringList{u"ERROR Failed to connect to daemon"_s});
    QTRY_COMPARE(connection(), nullptr);
}

void TestLifecycleErrors::attemptsAndDelayReachTheConnection()
{
    m_daemon->stop();
    const LogCapture log;
    QVERIFY(!m_client->connectToDaemon(2, 3));
    QVERIFY(log.lines(u"IPCConnector"_s).contains(u"DEBUG Retry attempt 2 of 2 after 3 ms"_s));
    QVERIFY(!m_client->connectToDaemon(0, 0));
    QCOMPARE(m_client->lastErrorCode(), u"CONNECTION_FAILED"_s);
}

void TestLifecycleErrors::registrationAnswer_data()
{
    QTest::addColumn<QJsonObject>("response");
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("message");
    QTest::newRow("type taken") << errorResponse(u"CLIENT_TYPE_ALREADY_CONNECTED"_s, u"the daemon's text"_s)
                                << u"CLIENT_TYPE_ALREADY_CONNECTED"_s
                                << u"Another client of type '%1' is already connected"_s.arg(clientType);
    QTest::newRow("code in another case") << errorResponse(u"client_type_already_connected"_s, u"text"_s)
                                          << u"client_type_already_connected"_s << u"Failed to register client: text"_s;
    QTest::newRow("other refusal") << errorResponse(u"NOT_WELCOME"_s, u"100 %1 no"_s) << u"NOT_WELCOME"_s
                                   << u"Failed to register client: 100 %1 no"_s;
    QTest::newRow("neither ok nor error") << QJsonObject() << QString() << u"Failed to register client: "_s;
    QTest::newRow("ok is no boolean") << QJsonObject{{u"ok"_s, u"true"_s}} << QString()
                                      << u"Failed to register client: "_s;
    QTest::newRow("error is no object") << QJsonObject{{u"ok"_s, false}, {u"error"_s, u"text"_s}} << QString()
                                        << u"Failed to register client: "_s;
    QTest::newRow("ok without data") << QJsonObject{{u"ok"_s, true}} << QString() << QString();
}

void TestLifecycleErrors::registrationAnswer()
{
    QFETCH(const QJsonObject, response);
    m_daemon->respond(u"client.register"_s, response);
    const bool registered = response.value("ok"_L1).toBool();
    QCOMPARE(m_client->connectToDaemon(), registered);
    QCOMPARE(m_client->isConnected(), registered);
    QTEST(m_client->lastErrorCode(), "code");
    QTEST(m_client->lastError(), "message");
    QCOMPARE(m_signals, registered ? QStringList{u"connected"_s} : QStringList());
}

void TestLifecycleErrors::refusalLeavesTwoErrorLinesAndNoConnection()
{
    m_daemon->refuse(u"client.register"_s, u"CLIENT_TYPE_ALREADY_CONNECTED"_s, u"the daemon's text"_s);
    m_client->enableAutoReconnect(true);
    const LogCapture log;
    QVERIFY(!m_client->connectToDaemon());
    QCOMPARE(log.lines(source),
             (QStringList{u"ERROR CLIENT_TYPE_ALREADY_CONNECTED: the daemon's text"_s,
                          u"ERROR Another client of type '%1' is already connected"_s.arg(clientType),
                          u"WARN Registration failed after connect"_s}));
    QTRY_COMPARE(m_daemon->connectionCount(), 0);
    QTRY_COMPARE(connection(), nullptr);
    QCOMPARE(m_signals, QStringList());
    QCOMPARE(checkTimer(), nullptr);
    QCOMPARE(reconnectTimer(), nullptr);
}

void TestLifecycleErrors::refusedClientMayTryAgain()
{
    m_daemon->refuse(u"client.register"_s, u"CLIENT_TYPE_ALREADY_CONNECTED"_s, u"x"_s);
    QVERIFY(!m_client->connectToDaemon());
    m_daemon->answer(u"client.register"_s, {});
    QVERIFY(m_client->connectToDaemon());
    QCOMPARE(m_signals, QStringList{u"connected"_s});
}

void TestLifecycleErrors::silentDaemonEndsTheRegistrationAfterTwoSeconds()
{
    m_daemon->ignore(u"client.register"_s);
    int ticks = 0;
    QTimer ticker;
    connect(&ticker, &QTimer::timeout, this, [&] { ++ticks; });
    ticker.start(100);
    QElapsedTimer clock;
    clock.start();
    QVERIFY(!m_client->connectToDaemon());
    QVERIFY(clock.elapsed() >= 1900);
    QVERIFY(ticks > 1);
    QCOMPARE(m_client->lastErrorCode(), u"TIMEOUT"_s);
    QCOMPARE(m_client->lastError(), u"Failed to register client: Request timed out after 2000ms"_s);
    QCOMPARE(m_signals, QStringList());
    QTRY_COMPARE(m_daemon->connectionCount(), 0);
}

void TestLifecycleErrors::lossIsToldAsErrorDisconnectedAndConnectionLost()
{
    QVERIFY(m_client->connectToDaemon());
    m_signals.clear();
    const LogCapture log;
    m_daemon->dropConnections();
    QTRY_VERIFY(!m_client->isConnected());
    QCOMPARE(m_signals, lossSignals());
    QCOMPARE(log.lines(source), toldOfLoss(u"ERROR "_s));
    if (peerGoingIsAnError) {
        QCOMPARE(m_client->lastErrorCode(), u"IPC_ERROR"_s);
        QCOMPARE(m_client->lastError(), toldOfLoss().constFirst());
    }
}

void TestLifecycleErrors::commandWithoutAConnectionIsNotConnected()
{
    const LogCapture log;
    QVERIFY(!m_client->enableTask(u"t"_s));
    QCOMPARE(m_client->lastErrorCode(), u"NOT_CONNECTED"_s);
    QCOMPARE(m_client->lastError(), u"Not connected to daemon"_s);
    QCOMPARE(log.lines(), QStringList{u"ERROR Not connected to daemon"_s});
    QCOMPARE(m_signals, QStringList());
}

void TestLifecycleErrors::failedCommandLeavesCodeAndMessage()
{
    QVERIFY(m_client->connectToDaemon());
    m_daemon->refuse(u"task.enable"_s, u"NO_%2_CODE"_s, u"100 % no"_s);
    const LogCapture log;
    QVERIFY(!m_client->enableTask(u"t"_s));
    QCOMPARE(m_client->lastErrorCode(), u"NO_%2_CODE"_s);
    QCOMPARE(m_client->lastError(), u"NO_%2_CODE: 100 % no"_s);
    QCOMPARE(log.lines(source), QStringList{u"ERROR NO_%2_CODE: 100 % no"_s});
}

void TestLifecycleErrors::commandsWaitAsLongAsTheyAreTold()
{
    QCOMPARE(m_client->commandTimeout(), 2000);
    m_client->setCommandTimeout(20);
    m_daemon->ignore(u"client.register"_s);
    QVERIFY(!m_client->connectToDaemon());
    QCOMPARE(m_client->lastError(), u"Failed to register client: Request timed out after 20ms"_s);

    m_daemon->answer(u"client.register"_s, {});
    m_client->setCommandTimeout(20000);
    QVERIFY(m_client->connectToDaemon());
    m_client->setCommandTimeout(30);
    m_daemon->ignore(u"task.trigger"_s);
    QVERIFY(!m_client->triggerTask(u"t1"_s));
    QCOMPARE(m_client->lastError(), u"TIMEOUT: Request timed out after 30ms"_s);
    m_daemon->ignore(u"tasktype.list"_s);
    QCOMPARE(m_client->listTaskTypes().size(), 0);
    QCOMPARE(m_client->lastError(), u"TIMEOUT: Request timed out after 30ms"_s);
    // A command that waits already keeps its time.
    m_daemon->onRequest(u"task.delete"_s, [this](const QJsonObject &) { m_client->setCommandTimeout(20000); });
    m_daemon->ignore(u"task.delete"_s);
    QVERIFY(!m_client->deleteTask(u"t1"_s));
    QCOMPARE(m_client->lastError(), u"TIMEOUT: Request timed out after 30ms"_s);
}

void TestLifecycleErrors::successDoesNotClearTheLastError()
{
    QVERIFY(!m_client->enableTask(u"t"_s));
    QVERIFY(m_client->connectToDaemon());
    QVERIFY(m_client->enableTask(u"t"_s));
    QCOMPARE(m_client->lastErrorCode(), u"NOT_CONNECTED"_s);
    QCOMPARE(m_client->lastError(), u"Not connected to daemon"_s);
}

ORVEL_TEST_MAIN(QCoreApplication, TestLifecycleErrors)
#include "tst_connectionlifecycle_errors.moc"
