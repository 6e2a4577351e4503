#include "connectedpair.h"
#include "testmain.h"

#include <QElapsedTimer>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

/// Calls under the wait of another, and connections that end under a wait.
class TestNesting : public QObject, private ConnectedPair {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void nestedCallsGetTheirOwnAnswers_data();
    void nestedCallsGetTheirOwnAnswers();
    void threeNestedCallsUnwindInReverse();
    void outerCallMayTakeLongerThanItsTimeout();
    void outerAnswerAfterItsTimeoutStillCountsUnderAnInnerWait();
    void lateAnswerOfAnInnerCallWakesNobody();
    void lossUnderAWaitEndsInTimeoutAfterTheFullTime();
    void disconnectingUnderAWaitEndsInTimeout();
    void connectingAnewUnderAWaitLeavesItInTimeout();
};

void TestNesting::init()
{
    connectPair();
}

void TestNesting::cleanup()
{
    disconnectPair();
}

void TestNesting::nestedCallsGetTheirOwnAnswers_data()
{
    QTest::addColumn<bool>("outerAnsweredFirst");
    QTest::newRow("outer answered first") << true;
    QTest::newRow("inner answered first") << false;
}

void TestNesting::nestedCallsGetTheirOwnAnswers()
{
    QFETCH(const bool, outerAnsweredFirst);
    for (const QString &cmd : {u"outer"_s, u"inner"_s}) {
        m_daemon->answer(cmd, {{u"of"_s, cmd}});
        m_daemon->hold(cmd);
    }
    const QString first = outerAnsweredFirst ? u"outer"_s : u"inner"_s;
    const QString second = outerAnsweredFirst ? u"inner"_s : u"outer"_s;
    const QSignalSpy responses(m_connection, &MCsIPCConnection::responseReceived);
    QStringList returned;
    once(u"outer"_s, [&] { returned.append(send(u"inner"_s).value("data"_L1).toObject().value("of"_L1).toString()); });
    once(u"inner"_s, [&] {
        m_daemon->release(first);
        QTRY_COMPARE(responses.count(), 1);
        QCOMPARE(returned.size(), 0); // This slot itself runs on top of both waits.
        m_daemon->release(second);
    });
    returned.append(send(u"outer"_s).value("data"_L1).toObject().value("of"_L1).toString());
    QCOMPARE(returned, (QStringList{u"inner"_s, u"outer"_s}));
    QCOMPARE(responses.count(), 2);
    const QString firstId = m_daemon->requests(first).constFirst().value("id"_L1).toString();
    QCOMPARE(responses.constFirst().constFirst().toString(), firstId);
}

void TestNesting::threeNestedCallsUnwindInReverse()
{
    const QStringList cmds{u"a"_s, u"b"_s, u"c"_s};
    for (const QString &cmd : cmds) {
        m_daemon->answer(cmd, {{u"of"_s, cmd}});
        m_daemon->hold(cmd);
    }
    QStringList returned;
    const auto call = [&](const QString &cmd) {
        returned.append(send(cmd).value("data"_L1).toObject().value("of"_L1).toString());
    };
    once(u"a"_s, [&] { call(u"b"_s); });
    once(u"b"_s, [&] { call(u"c"_s); });
    once(u"c"_s, [&] {
        for (const QString &cmd : {u"b"_s, u"a"_s, u"c"_s})
            m_daemon->release(cmd);
    });
    call(u"a"_s);
    QCOMPARE(returned, (QStringList{u"c"_s, u"b"_s, u"a"_s}));
}

void TestNesting::outerCallMayTakeLongerThanItsTimeout()
{
    m_daemon->ignore(u"outer"_s);
    m_daemon->ignore(u"inner"_s);
    QElapsedTimer clock;
    clock.start();
    QJsonObject inner;
    once(u"outer"_s, [&] { inner = send(u"inner"_s, 400); });
    QCOMPARE(send(u"outer"_s, 50), timedOut(50));
    QVERIFY(clock.elapsed() >= 360);
    QCOMPARE(inner, timedOut(400));
}

void TestNesting::outerAnswerAfterItsTimeoutStillCountsUnderAnInnerWait()
{
    m_daemon->hold(u"outer"_s);
    m_daemon->hold(u"inner"_s);
    const QSignalSpy responses(m_connection, &MCsIPCConnection::responseReceived);
    once(u"outer"_s, [&] { QVERIFY(isOk(send(u"inner"_s))); });
    once(u"inner"_s, [&] {
        // Started after that of the outer wait, and longer.
        QTimer::singleShot(200, m_daemon.get(), [&] {
            m_daemon->release(u"outer"_s);
            QTRY_COMPARE(responses.count(), 1);
            m_daemon->release(u"inner"_s);
        });
    });
    QVERIFY(isOk(send(u"outer"_s, 50)));
}

void TestNesting::lateAnswerOfAnInnerCallWakesNobody()
{
    m_daemon->hold(u"outer"_s);
    m_daemon->hold(u"inner"_s);
    const QSignalSpy responses(m_connection, &MCsIPCConnection::responseReceived);
    QJsonObject inner;
    once(u"outer"_s, [&] {
        inner = send(u"inner"_s, 50);
        m_daemon->release(u"inner"_s);
        QTRY_COMPARE(responses.count(), 1);
        m_daemon->release(u"outer"_s);
    });
    const QJsonObject outer = send(u"outer"_s);
    QCOMPARE(inner, timedOut(50));
    QCOMPARE(outer.value("id"_L1), m_daemon->requests(u"outer"_s).constFirst().value("id"_L1));
}

void TestNesting::lossUnderAWaitEndsInTimeoutAfterTheFullTime()
{
    m_daemon->ignore(u"x"_s);
    const QSignalSpy disconnected(m_connection, &MCsIPCConnection::disconnected);
    once(u"x"_s, [&] { m_daemon->dropConnections(); });
    QElapsedTimer clock;
    clock.start();
    QCOMPARE(send(u"x"_s, 300), timedOut(300));
    QVERIFY(clock.elapsed() >= 270);
    QCOMPARE(disconnected.count(), 1);
    QVERIFY(!m_connection->isConnected());
    QCOMPARE(send(u"x"_s), errorResponse(u"CONNECTION_ERROR"_s, u"Not connected to server"_s));
}

void TestNesting::disconnectingUnderAWaitEndsInTimeout()
{
    m_daemon->ignore(u"x"_s);
    once(u"x"_s, [&] { m_connection->disconnectFromServer(); });
    QElapsedTimer clock;
    clock.start();
    QCOMPARE(send(u"x"_s, 300), timedOut(300));
    QVERIFY(clock.elapsed() >= 270);
    QVERIFY(!m_connection->isConnected());
}

void TestNesting::connectingAnewUnderAWaitLeavesItInTimeout()
{
    m_daemon->ignore(u"x"_s);
    bool answered = false;
    once(u"x"_s, [&] {
        m_connection->disconnectFromServer();
        QVERIFY(m_connection->connectToServer(1, 0));
        answered = isOk(send(u"y"_s));
    });
    QCOMPARE(send(u"x"_s, 300), timedOut(300));
    QVERIFY(answered);
    QVERIFY(m_connection->isConnected());
}

ORVEL_TEST_MAIN(QCoreApplication, TestNesting)
#include "tst_ipcconnection_nesting.moc"
