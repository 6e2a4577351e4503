#include "logcapture.h"
#include "mcsipcserverconnection.h"
#include "mcsnamedpipeserver.h"
#include "platform.h"
#include "rawclient.h"
#include "readonlysocket.h"
#include "testmain.h"
#include "wireprotocol.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

namespace {

const QString source = u"IPCServerConnection"_s;
const QByteArray goodFrame = "{\"cmd\":\"x\",\"id\":\"a\"}";

QStringList goodFrameLines()
{
    return {u"DEBUG "_s + QString(48, u'='), u"DEBUG Processing message: {\"cmd\":\"x\",\"id\":\"a\"}"_s,
            u"DEBUG Emitting messageReceived for cmd: x"_s};
}

} // namespace

/// One accepted client: what it may send, and what it is sent.
class TestServerConnection : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void goodRequestIsDeliveredAndLogged();
    void badFrameIsAnsweredWithoutIdAndTheConnectionStays_data();
    void badFrameIsAnsweredWithoutIdAndTheConnectionStays();
    void idAndCmdNeedOnlyBeThere();
    void emptyLinesGiveNoReply();
    void twoFramesInOneReadAreDeliveredInOrder();
    void frameByteByByteIsDeliveredWithItsLastByte();
    void longFrameIsProcessedWholeAndLoggedCut();
    void requestOfSeveralMegabytesIsAccepted();
    void responseIsOneFrameAndLogged();
    void loggedResponseIsCutAtTwoHundredBytes();
    void failingWriteIsLoggedAndReported();
    void noResponseToAClientThatLeft();
    void leavingClientIsToldAsErrorThenDisconnected();
    void lastRequestOfALeavingClientIsHeard();

private:
    std::unique_ptr<MCsNamedPipeServer> m_server;
    std::unique_ptr<RawClient> m_client;
    QPointer<MCsIPCServerConnection> m_connection;
    QList<QJsonObject> m_messages;
};

void TestServerConnection::init()
{
    m_messages.clear();
    m_server = std::make_unique<MCsNamedPipeServer>();
    m_client = std::make_unique<RawClient>();
    QVERIFY(m_server->listen());
    QVERIFY(m_client->connectTo(defaultPipeName()));
    QTRY_COMPARE(m_server->connections().size(), 1);
    m_connection = m_server->connections().constFirst();
    connect(m_connection, &MCsIPCServerConnection::messageReceived, this,
            [this](const QJsonObject &message) { m_messages.append(message); });
}

void TestServerConnection::cleanup()
{
    m_client.reset();
    m_server.reset();
}

void TestServerConnection::goodRequestIsDeliveredAndLogged()
{
    const LogCapture log;
    m_client->send(goodFrame + '\n');
    QTRY_COMPARE(m_messages.size(), 1);
    QCOMPARE(m_messages.constFirst(), (QJsonObject{{u"id"_s, u"a"_s}, {u"cmd"_s, u"x"_s}}));
    QCOMPARE(log.lines(source), goodFrameLines());
}

void TestServerConnection::badFrameIsAnsweredWithoutIdAndTheConnectionStays_data()
{
    const QString notAnObject = u"Request must be a JSON object"_s;
    const QString fieldsMissing = u"Request must contain 'id' and 'cmd' fields"_s;
    QTest::addColumn<QByteArray>("frame");
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("message");
    for (const char *frame : {"garbage", "{\"id\":\"a\",\"cmd\":\"x\"", "\r", "{\"id\":\"a\",\"cmd\":\"\xFF\"}", "5"}) {
        QJsonParseError error{};
        (void)QJsonDocument::fromJson(frame, &error);
        QTest::newRow(frame) << QByteArray(frame) << u"Failed to parse JSON message: "_s + error.errorString()
                             << u"INVALID_JSON"_s << error.errorString();
    }
    for (const char *frame : {"[1,2]", "[]"})
        QTest::newRow(frame) << QByteArray(frame) << u"Received non-object JSON message"_s << u"INVALID_REQUEST"_s
                             << notAnObject;
    for (const char *frame : {"{\"id\":\"a\"}", "{\"cmd\":\"x\"}", "{}", "{\"ID\":\"a\",\"cmd\":\"x\"}"})
        QTest::newRow(frame) << QByteArray(frame) << u"Request missing required fields (id, cmd)"_s
                             << u"INVALID_REQUEST"_s << fieldsMissing;
}

void TestServerConnection::badFrameIsAnsweredWithoutIdAndTheConnectionStays()
{
    QFETCH(const QByteArray, frame);
    QFETCH(const QString, line);
    QFETCH(const QString, code);
    QFETCH(const QString, message);
    const LogCapture log;
    m_client->send(frame + '\n');
    QTRY_COMPARE(m_client->lines().size(), 1);
    const QJsonObject expected{{u"ok"_s, false}, {u"error"_s, QJsonObject{{u"code"_s, code}, {u"message"_s, message}}}};
    QCOMPARE(m_client->lines().constFirst() + '\n', encodeFrame(expected));
    QCOMPARE(m_messages.size(), 0);
    QCOMPARE(log.lines(source).first(3),
             (QStringList{u"DEBUG "_s + QString(48, u'='), u"DEBUG Processing message: "_s + QString::fromUtf8(frame),
                          u"WARN "_s + line}));
    QVERIFY(m_client->isConnected());
    m_client->send(goodFrame + '\n');
    QTRY_COMPARE(m_messages.size(), 1);
}

void TestServerConnection::idAndCmdNeedOnlyBeThere()
{
    const LogCapture log;
    m_client->send("{\"id\":1,\"cmd\":2}\n{\"id\":null,\"cmd\":null,\"payload\":7}\n");
    QTRY_COMPARE(m_messages.size(), 2);
    QCOMPARE(m_messages.constFirst(), (QJsonObject{{u"id"_s, 1}, {u"cmd"_s, 2}}));
    QCOMPARE(log.lines(source).count(u"DEBUG Emitting messageReceived for cmd: "_s), 2);
    QVERIFY(m_connection->sendResponse({{u"id"_s, u"end"_s}}));
    QTRY_COMPARE(m_client->lines(), QByteArrayList{"{\"id\":\"end\"}"});
}

void TestServerConnection::emptyLinesGiveNoReply()
{
    const LogCapture log;
    m_client->send("\n\n" + goodFrame + "\n\n\n" + goodFrame + "\n\n");
    QTRY_COMPARE(m_messages.size(), 2);
    QCOMPARE(log.lines(source), goodFrameLines() + goodFrameLines());
    QVERIFY(m_connection->sendResponse({{u"id"_s, u"end"_s}}));
    QTRY_COMPARE(m_client->lines(), QByteArrayList{"{\"id\":\"end\"}"});
}

void TestServerConnection::twoFramesInOneReadAreDeliveredInOrder()
{
    m_client->send("{\"id\":\"1\",\"cmd\":\"x\"}\n{\"id\":\"2\",\"cmd\":\"x\"}\n");
    QTRY_COMPARE(m_messages.size(), 2);
    QCOMPARE(m_messages.at(0).value("id"_L1).toString(), u"1"_s);
    QCOMPARE(m_messages.at(1).value("id"_L1).toString(), u"2"_s);
}

void TestServerConnection::frameByteByByteIsDeliveredWithItsLastByte()
{
    auto *socket = m_connection->findChild<QLocalSocket *>();
    const QSignalSpy reads(socket, &QLocalSocket::readyRead);
    for (qsizetype position = 0; position < goodFrame.size(); ++position) {
        m_client->send(goodFrame.sliced(position, 1));
        QTRY_COMPARE(reads.count(), position + 1);
        QCOMPARE(m_messages.size(), 0);
    }
    m_client->send("\n");
    QTRY_COMPARE(m_messages.size(), 1);
}

void TestServerConnection::longFrameIsProcessedWholeAndLoggedCut()
{
    QByteArray frame = "{\"cmd\":\"x\",\"id\":\"a\",\"text\":\"";
    frame += QByteArray(7000 - frame.size() - 2, 'y') + "\"}";
    QCOMPARE(frame.size(), 7000);
    const LogCapture log;
    m_client->send(frame + '\n');
    QTRY_COMPARE(m_messages.size(), 1);
    QCOMPARE(m_messages.constFirst().value("text"_L1).toString().size(), 7000 - 30);
    QCOMPARE(log.lines(source).at(1), u"DEBUG Processing message: "_s + QString::fromUtf8(frame.first(6000)));
}

void TestServerConnection::requestOfSeveralMegabytesIsAccepted()
{
    const QString text(8 * 1024 * 1024, u'x');
    m_client->send(encodeFrame({{u"id"_s, u"a"_s}, {u"cmd"_s, u"x"_s}, {u"text"_s, text}}));
    QTRY_COMPARE_WITH_TIMEOUT(m_messages.size(), 1, 60000);
    QCOMPARE(m_messages.constFirst().value("text"_L1).toString().size(), text.size());
}

void TestServerConnection::responseIsOneFrameAndLogged()
{
    const LogCapture log;
    QVERIFY(m_connection->sendResponse({{u"ok"_s, true}, {u"id"_s, u"a"_s}, {u"text"_s, u"é\n"_s}}));
    QTRY_COMPARE(m_client->lines(), QByteArrayList{"{\"id\":\"a\",\"ok\":true,\"text\":\"\xC3\xA9\\n\"}"});
    QCOMPARE(log.lines(source), (QStringList{u"WARN Sending response: {\"id\":\"a\",\"ok\":true,\"text\":\"é\\n\"}\n"_s,
                                             u"DEBUG Response sent. Bytes written: 35 Flushed: 1"_s}));
}

void TestServerConnection::loggedResponseIsCutAtTwoHundredBytes()
{
    const LogCapture log;
    const QJsonObject response{{u"id"_s, u"a"_s}, {u"text"_s, QString(400, u'y')}};
    QVERIFY(m_connection->sendResponse(response));
    QCOMPARE(log.lines(source).constFirst(),
             u"WARN Sending response: "_s + QString::fromUtf8(encodeFrame(response).first(200)));
    QTRY_COMPARE(m_client->lines().size(), 1);
    QCOMPARE(m_client->lines().constFirst() + '\n', encodeFrame(response));
}

void TestServerConnection::failingWriteIsLoggedAndReported()
{
    makeReadOnly(*m_connection->findChild<QLocalSocket *>());
    const LogCapture log;
    QTest::ignoreMessage(QtWarningMsg, "QIODevice::write (QLocalSocket): ReadOnly device");
    QVERIFY(!m_connection->sendResponse({{u"id"_s, u"a"_s}}));
    QCOMPARE(log.lines(source), (QStringList{u"WARN Sending response: {\"id\":\"a\"}\n"_s,
                                             u"WARN Failed to write complete response. Written: -1 Expected: 11"_s}));
}

void TestServerConnection::noResponseToAClientThatLeft()
{
    bool sent = true;
    const LogCapture log;
    connect(m_server.get(), &MCsIPCServer::clientDisconnected, this, [&](MCsIPCServerConnection *connection) {
        sent = connection->sendResponse({{u"id"_s, u"a"_s}});
    });
    m_client->leave();
    QTRY_VERIFY(!sent);
    QCOMPARE(log.lines(source).constLast(), u"WARN Cannot send response: not connected"_s);
}

void TestServerConnection::leavingClientIsToldAsErrorThenDisconnected()
{
    QStringList order;
    connect(m_connection, &MCsIPCServerConnection::error, this, [&](const QString &text) { order.append(text); });
    connect(m_connection, &MCsIPCServerConnection::disconnected, this, [&] { order.append(u"disconnected"_s); });
    const LogCapture log;
    m_client->leave();
    QTRY_VERIFY(m_connection.isNull());
    QCOMPARE(order, toldOfLoss() + QStringList{u"disconnected"_s});
    QCOMPARE(log.lines(source), toldOfLoss(u"WARN "_s) + QStringList{u"DEBUG Client disconnected"_s});
}

void TestServerConnection::lastRequestOfALeavingClientIsHeard()
{
    m_client->send(goodFrame + '\n');
    m_client->leave();
    QTRY_VERIFY(m_connection.isNull());
    QCOMPARE(m_messages.size(), 1);
}

ORVEL_TEST_MAIN(QCoreApplication, TestServerConnection)
#include "tst_serverconnection.moc"
