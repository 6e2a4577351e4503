#include "connectedpair.h"
#include "logcapture.h"
#include "testmain.h"

#include <QMap>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

using TimerTable = QMap<QString, QTimer *>;

namespace {

/// The table of an asynchronous send, which does not exist yet, so that nothing public fills it. An explicit
/// instantiation may name a private member; that spares the class a hook for tests.
template <auto Member> struct TableAccess {
    friend TimerTable &timersOf(MCsIPCConnection &connection)
    {
        return connection.*Member;
    }
};
template struct TableAccess<&MCsIPCConnection::m_requestTimers>;
TimerTable &timersOf(MCsIPCConnection &connection);

const QString source = u"IPCConnector"_s;

} // namespace

/// The timers of requests that are answered through responseReceived alone.
class TestRequestTimers : public QObject, private ConnectedPair {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void waitingRequestIsNotInTheTable();
    void responseTakesItsEntryOut();
    void responseOfAnotherRequestLeavesTheEntry();
    void entryThatTimesOutIsAnsweredLocally();
    void disconnectingClearsTheTable();
    void disconnectingWithoutASocketClearsTheTable();
    void timerThatIsNotInTheTableDoesNothing();
    void callWithoutATimerDoesNothing();

private:
    QTimer *insert(const QString &id, int ms);
    TimerTable &timers()
    {
        return timersOf(*m_connection);
    }
};

void TestRequestTimers::init()
{
    connectPair();
}

void TestRequestTimers::cleanup()
{
    disconnectPair();
}

/// Inserts what an asynchronous send would.
QTimer *TestRequestTimers::insert(const QString &id, int ms)
{
    auto *timer = new QTimer(m_connection);
    timer->setSingleShot(true);
    connect(timer, SIGNAL(timeout()), m_connection, SLOT(onRequestTimeout()));
    timer->start(ms);
    timers().insert(id, timer);
    return timer;
}

void TestRequestTimers::waitingRequestIsNotInTheTable()
{
    qsizetype during = -1;
    m_daemon->onRequest(u"x"_s, [&](const QJsonObject &) { during = timers().size(); });
    QVERIFY(isOk(send(u"x"_s)));
    QCOMPARE(during, 0);
    QCOMPARE(timers().size(), 0);
}

void TestRequestTimers::responseTakesItsEntryOut()
{
    const QPointer<QTimer> timer = insert(u"a"_s, 60000);
    const QPointer<QTimer> other = insert(u"b"_s, 60000);
    const QSignalSpy responses(m_connection, &MCsIPCConnection::responseReceived);
    bool runningAtDelivery = true;
    connect(m_connection, &MCsIPCConnection::responseReceived, this,
            [&] { runningAtDelivery = timer->isActive() || timers().contains(u"a"_s); });
    m_daemon->sendRaw("{\"id\":\"a\",\"ok\":true}\n");
    QTRY_COMPARE(idsOf(responses), QStringList{u"a"_s});
    QVERIFY(!runningAtDelivery);
    QTRY_VERIFY(timer.isNull());
    QCOMPARE(timers().keys(), QStringList{u"b"_s});
    QVERIFY(other->isActive());
}

void TestRequestTimers::responseOfAnotherRequestLeavesTheEntry()
{
    const QPointer<QTimer> timer = insert(u"a"_s, 60000);
    QVERIFY(isOk(send(u"x"_s)));
    QCOMPARE(timers().keys(), QStringList{u"a"_s});
    QVERIFY(timer->isActive());
}

void TestRequestTimers::entryThatTimesOutIsAnsweredLocally()
{
    const LogCapture log;
    const QSignalSpy responses(m_connection, &MCsIPCConnection::responseReceived);
    const QPointer<QTimer> other = insert(u"a"_s, 60000);
    const QPointer<QTimer> timer = insert(u"b"_s, 1);
    QTRY_COMPARE(idsOf(responses), QStringList{u"b"_s});
    QJsonObject expected = errorResponse(u"TIMEOUT"_s, u"Request timed out"_s);
    expected.insert("id"_L1, u"b"_s);
    QCOMPARE(responses.constFirst().at(1).toJsonObject(), expected);
    QCOMPARE(log.lines(source), QStringList{u"WARN Request timed out: b"_s});
    QCOMPARE(timers().keys(), QStringList{u"a"_s});
    QVERIFY(other->isActive());
    QTRY_VERIFY(timer.isNull());
}

void TestRequestTimers::disconnectingClearsTheTable()
{
    const QPointer<QTimer> timer = insert(u"a"_s, 60000);
    const QSignalSpy responses(m_connection, &MCsIPCConnection::responseReceived);
    m_connection->disconnectFromServer();
    QCOMPARE(timers().size(), 0);
    QVERIFY(!timer->isActive());
    QTRY_VERIFY(timer.isNull());
    QCOMPARE(responses.count(), 0);
}

void TestRequestTimers::disconnectingWithoutASocketClearsTheTable()
{
    m_connection->disconnectFromServer();
    const LogCapture log;
    const QPointer<QTimer> timer = insert(u"a"_s, 60000);
    m_connection->disconnectFromServer();
    QCOMPARE(timers().size(), 0);
    QTRY_VERIFY(timer.isNull());
    QCOMPARE(log.lines(), QStringList());
}

void TestRequestTimers::timerThatIsNotInTheTableDoesNothing()
{
    const LogCapture log;
    const QSignalSpy responses(m_connection, &MCsIPCConnection::responseReceived);
    const QPointer<QTimer> known = insert(u"a"_s, 60000);
    QTimer stray;
    stray.setSingleShot(true);
    const QSignalSpy fired(&stray, &QTimer::timeout);
    QVERIFY(connect(&stray, SIGNAL(timeout()), m_connection, SLOT(onRequestTimeout())));
    stray.start(0);
    QTRY_COMPARE(fired.count(), 1);
    QCOMPARE(responses.count(), 0);
    QCOMPARE(log.lines(), QStringList());
    QCOMPARE(timers().keys(), QStringList{u"a"_s});
    QVERIFY(known->isActive());
}

void TestRequestTimers::callWithoutATimerDoesNothing()
{
    const LogCapture log;
    const QSignalSpy responses(m_connection, &MCsIPCConnection::responseReceived);
    const QPointer<QTimer> known = insert(u"a"_s, 60000);
    QVERIFY(QMetaObject::invokeMethod(m_connection, "onRequestTimeout"));
    QObject sender;
    QVERIFY(connect(&sender, SIGNAL(objectNameChanged(QString)), m_connection, SLOT(onRequestTimeout())));
    sender.setObjectName(u"no timer"_s);
    QCOMPARE(responses.count(), 0);
    QCOMPARE(log.lines(), QStringList());
    QVERIFY(known->isActive());
}

ORVEL_TEST_MAIN(QCoreApplication, TestRequestTimers)
#include "tst_requesttimers.moc"
