#include "connectedpair.h"
#include "logcapture.h"
#include "readonlysocket.h"
#include "testmain.h"

#include <QElapsedTimer>
#include <QJsonArray>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

namespace {

const QString source = u"IPCConnector"_s;

} // namespace

/// Requests one after the other.
class TestRequests : public QObject, private ConnectedPair {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void responseIsReturnedAsItCame();
    void withoutAConnectionThereIsConnectionError();
    void failingWriteIsSendError();
    void silenceIsTimeoutAfterTheFullTime();
    void responseWithoutIdLeavesTheRequestInTimeout();
    void idThatIsNoStringIsDeliveredEmptyAndWakesNobody_data();
    void idThatIsNoStringIsDeliveredEmptyAndWakesNobody();
    void idsAreComparedExactly_data();
    void idsAreComparedExactly();
    void lateResponseIsDeliveredAndIgnored();
    void bodyOfSeveralMegabytesIsAccepted();
};

void TestRequests::init()
{
    connectPair();
}

void TestRequests::cleanup()
{
    disconnectPair();
}

void TestRequests::responseIsReturnedAsItCame()
{
    QJsonObject response{{u"ok"_s, true}, {u"data"_s, QJsonObject{{u"n"_s, 3}}}, {u"more"_s, QJsonArray{1}}};
    m_daemon->respond(u"x"_s, response);
    const QSignalSpy responses(m_connection, &MCsIPCConnection::responseReceived);
    const QJsonObject returned = send(u"x"_s);
    response.insert("id"_L1, m_daemon->requests().constFirst().value("id"_L1));
    QCOMPARE(returned, response);
    QCOMPARE(responses.count(), 1);
    QCOMPARE(responses.constFirst().at(1).toJsonObject(), response);
}

void TestRequests::withoutAConnectionThereIsConnectionError()
{
    m_connection->disconnectFromServer();
    MCsIPCConnection never(defaultPipeName());
    const LogCapture log;
    for (MCsIPCConnection *connection : {m_connection.data(), &never})
        QCOMPARE(connection->sendRequest(u"x"_s, {}, 100),
                 errorResponse(u"CONNECTION_ERROR"_s, u"Not connected to server"_s));
    QCOMPARE(log.lines(), QStringList());
}

void TestRequests::failingWriteIsSendError()
{
    makeReadOnly(*m_connection->findChild<QLocalSocket *>());
    QVERIFY(m_connection->isConnected());
    const LogCapture log;
    QTest::ignoreMessage(QtWarningMsg, "QIODevice::write (QLocalSocket): ReadOnly device");
    QCOMPARE(send(u"x"_s), errorResponse(u"SEND_ERROR"_s, u"Failed to send request"_s));
    QCOMPARE(log.lines(source), QStringList{u"WARN Failed to write complete message"_s});
}

void TestRequests::silenceIsTimeoutAfterTheFullTime()
{
    m_daemon->ignore(u"x"_s);
    const LogCapture log;
    QElapsedTimer clock;
    clock.start();
    QCOMPARE(send(u"x"_s, 100), timedOut(100));
    QVERIFY(clock.elapsed() >= 90);
    QCOMPARE(log.lines(source), QStringList());
    QVERIFY(m_connection->isConnected());
}

void TestRequests::responseWithoutIdLeavesTheRequestInTimeout()
{
    m_daemon->ignore(u"x"_s);
    m_daemon->onRequest(u"x"_s, [this](const QJsonObject &) { m_daemon->sendRaw("{\"ok\":true}\n"); });
    const LogCapture log;
    QCOMPARE(send(u"x"_s, 100), timedOut(100));
    QVERIFY(log.lines(source).contains(u"WARN Response missing 'id' field"_s));
}

void TestRequests::idThatIsNoStringIsDeliveredEmptyAndWakesNobody_data()
{
    QTest::addColumn<QByteArray>("id");
    for (const char *id : {"1", "null", "true", "[\"a\"]", "{}", "\"\""})
        QTest::newRow(id) << QByteArray(id);
}

void TestRequests::idThatIsNoStringIsDeliveredEmptyAndWakesNobody()
{
    QFETCH(const QByteArray, id);
    m_daemon->ignore(u"x"_s);
    m_daemon->onRequest(u"x"_s, [&](const QJsonObject &) { m_daemon->sendRaw("{\"id\":" + id + ",\"ok\":true}\n"); });
    const QSignalSpy responses(m_connection, &MCsIPCConnection::responseReceived);
    const QJsonObject returned = send(u"x"_s, 100);
    QCOMPARE(returned, timedOut(100));
    QCOMPARE(idsOf(responses), QStringList{QString()});
}

void TestRequests::idsAreComparedExactly_data()
{
    QTest::addColumn<QString>("form");
    QTest::newRow("blank behind") << u"%1 "_s;
    QTest::newRow("blank in front") << u" %1"_s;
    QTest::newRow("longer") << u"%10"_s;
    QTest::newRow("other case") << u"REQ%1"_s;
}

void TestRequests::idsAreComparedExactly()
{
    QFETCH(const QString, form);
    m_daemon->ignore(u"x"_s);
    QString sent;
    m_daemon->onRequest(u"x"_s, [&](const QJsonObject &request) {
        const QString id = request.value("id"_L1).toString();
        sent = form.startsWith("REQ"_L1) ? id.toUpper() : QString(form).replace(u"%1"_s, id);
        QVERIFY(sent != id);
        m_daemon->sendResponse({{u"id"_s, sent}, {u"ok"_s, true}});
    });
    const QSignalSpy responses(m_connection, &MCsIPCConnection::responseReceived);
    QVERIFY(!isOk(send(u"x"_s, 100)));
    QCOMPARE(idsOf(responses), QStringList{sent});
}

void TestRequests::lateResponseIsDeliveredAndIgnored()
{
    m_daemon->hold(u"late"_s);
    QCOMPARE(send(u"late"_s, 100), timedOut(100));
    const QString lateId = m_daemon->requests().constFirst().value("id"_L1).toString();

    const LogCapture log;
    const QSignalSpy responses(m_connection, &MCsIPCConnection::responseReceived);
    m_daemon->onRequest(u"next"_s, [this](const QJsonObject &) { m_daemon->release(u"late"_s); });
    m_daemon->answer(u"next"_s, {{u"n"_s, 2}});
    const QJsonObject next = send(u"next"_s);
    QCOMPARE(next.value("data"_L1).toObject().value("n"_L1).toInt(), 2);
    QCOMPARE(idsOf(responses), (QStringList{lateId, next.value("id"_L1).toString()}));
    QVERIFY(log.lines(source).filter(u"WARN"_s).isEmpty());
}

void TestRequests::bodyOfSeveralMegabytesIsAccepted()
{
    const QString text(8 * 1024 * 1024, u'x');
    m_daemon->answer(u"x"_s, {{u"text"_s, text}});
    const QJsonObject response = m_connection->sendRequest(u"x"_s, {{u"text"_s, text}}, 60000);
    QCOMPARE(response.value("data"_L1).toObject().value("text"_L1).toString().size(), text.size());
    QCOMPARE(m_daemon->requests().constFirst().value("payload"_L1).toObject().value("text"_L1).toString().size(),
             text.size());
}

ORVEL_TEST_MAIN(QCoreApplication, TestRequests)
#include "tst_ipcconnection_requests.moc"
