#include "connectedpair.h"
#include "logcapture.h"
#include "testmain.h"

#include <QJsonDocument>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

namespace {

const QString source = u"IPCConnector"_s;

} // namespace

/// What the daemon may send, and what becomes of it.
class TestFrames : public QObject, private ConnectedPair {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void droppedFramesAreLoggedAndTheStreamGoesOn_data();
    void droppedFramesAreLoggedAndTheStreamGoesOn();
    void carriageReturnBeforeTheLineFeedIsLeftToTheParser();
    void twoFramesInOneReadAreDeliveredInOrder();
    void frameByteByByteIsDeliveredWithItsLastByte();
    void emptyLinesGiveNothing();
    void loggedResponseIsCutAtTwoHundredBytes();
};

void TestFrames::init()
{
    connectPair();
}

void TestFrames::cleanup()
{
    disconnectPair();
}

void TestFrames::droppedFramesAreLoggedAndTheStreamGoesOn_data()
{
    const auto parseError = [](const QByteArray &frame) {
        QJsonParseError error{};
        (void)QJsonDocument::fromJson(frame, &error);
        return u"WARN Failed to parse JSON message: "_s + error.errorString();
    };
    QTest::addColumn<QByteArray>("frame");
    QTest::addColumn<QString>("line");
    const QByteArray notUtf8 = "{\"id\":\"\xFF\"}";
    QTest::newRow("no JSON") << "garbage"_ba << parseError("garbage");
    QTest::newRow("half an object") << "{\"id\":"_ba << parseError("{\"id\":");
    QTest::newRow("not UTF-8") << notUtf8 << parseError(notUtf8);
    QTest::newRow("lone carriage return") << "\r"_ba << parseError("\r");
    QTest::newRow("array") << "[1,2]"_ba << u"WARN Received non-object JSON message"_s;
    QTest::newRow("no id") << "{\"ok\":true}"_ba << u"WARN Response missing 'id' field"_s;
}

void TestFrames::droppedFramesAreLoggedAndTheStreamGoesOn()
{
    QFETCH(const QByteArray, frame);
    QFETCH(const QString, line);
    const LogCapture log;
    const QSignalSpy responses(m_connection, &MCsIPCConnection::responseReceived);
    m_daemon->sendRaw(frame + "\n{\"id\":\"next\"}\n");
    QTRY_COMPARE(idsOf(responses), QStringList{u"next"_s});
    QCOMPARE(log.lines(source), (QStringList{u"DEBUG Received %1 bytes from server"_s.arg(frame.size() + 15),
                                             u"DEBUG Processing response: "_s + QString::fromUtf8(frame), line,
                                             u"DEBUG Processing response: {\"id\":\"next\"}"_s}));
    QVERIFY(isOk(send(u"x"_s)));
}

void TestFrames::carriageReturnBeforeTheLineFeedIsLeftToTheParser()
{
    const LogCapture log;
    const QSignalSpy responses(m_connection, &MCsIPCConnection::responseReceived);
    m_daemon->sendRaw("{\"id\":\"a\"}\r\n");
    QTRY_COMPARE(idsOf(responses), QStringList{u"a"_s});
    QCOMPARE(log.lines(source).constLast(), u"DEBUG Processing response: {\"id\":\"a\"}\r"_s);
}

void TestFrames::twoFramesInOneReadAreDeliveredInOrder()
{
    const LogCapture log;
    const QSignalSpy responses(m_connection, &MCsIPCConnection::responseReceived);
    m_daemon->sendRaw("{\"id\":\"a\"}\n{\"id\":\"b\"}\n");
    QTRY_COMPARE(idsOf(responses), (QStringList{u"a"_s, u"b"_s}));
    QCOMPARE(log.lines(source),
             (QStringList{u"DEBUG Received 22 bytes from server"_s, u"DEBUG Processing response: {\"id\":\"a\"}"_s,
                          u"DEBUG Processing response: {\"id\":\"b\"}"_s}));
}

void TestFrames::frameByteByByteIsDeliveredWithItsLastByte()
{
    const QByteArray frame = "{\"id\":\"a\"}\n";
    const LogCapture log;
    const QSignalSpy responses(m_connection, &MCsIPCConnection::responseReceived);
    for (qsizetype position = 0; position < frame.size(); ++position) {
        QCOMPARE(responses.count(), 0);
        m_daemon->sendRaw(frame.sliced(position, 1));
        QTRY_COMPARE(log.lines(source).count(u"DEBUG Received 1 bytes from server"_s), position + 1);
    }
    QCOMPARE(idsOf(responses), QStringList{u"a"_s});
}

void TestFrames::emptyLinesGiveNothing()
{
    const LogCapture log;
    const QSignalSpy responses(m_connection, &MCsIPCConnection::responseReceived);
    m_daemon->sendRaw("\n\n{\"id\":\"a\"}\n\n{\"id\":\"b\"}\n\n");
    QTRY_COMPARE(idsOf(responses), (QStringList{u"a"_s, u"b"_s}));
    QCOMPARE(log.lines(source).size(), 3);
    QVERIFY(log.lines(source).filter(u"WARN"_s).isEmpty());
}

void TestFrames::loggedResponseIsCutAtTwoHundredBytes()
{
    const QByteArray frame = "{\"id\":\"a\",\"text\":\"" + QByteArray(400, 'y') + "\"}";
    const LogCapture log;
    const QSignalSpy responses(m_connection, &MCsIPCConnection::responseReceived);
    m_daemon->sendRaw(frame + '\n');
    QTRY_COMPARE(responses.count(), 1);
    QCOMPARE(log.lines(source).constLast(), u"DEBUG Processing response: "_s + QString::fromUtf8(frame.first(200)));
    QCOMPARE(responses.constFirst().at(1).toJsonObject().value("text"_L1).toString().size(), 400);
}

ORVEL_TEST_MAIN(QCoreApplication, TestFrames)
#include "tst_ipcconnection_frames.moc"
