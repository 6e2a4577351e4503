#include "mcsipcconnection.h"
#include "platform.h"
#include "scripteddaemon.h"
#include "testmain.h"
#include "wireprotocol.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

namespace {

constexpr int timeoutMs = 2000;

} // namespace

class TestWireProtocol : public QObject {
    Q_OBJECT

private slots:
    void frameIsOneCompactLine_data();
    void frameIsOneCompactLine();
    void errorResponseHasCodeAndMessage();
    void endpointIsInTheRuntimeDirectory();
    void withoutARuntimeDirectoryThereIsNoEndpoint();
    void requestIsOneFrameWithSortedKeys();
    void requestWithoutArgumentsHasAnEmptyPayload();
    void requestIdHoldsTheTimeAndACounter();
    void freshConnectionCountsFromOne();
    void lineFeedInAStringTravelsBothWays();
};

void TestWireProtocol::frameIsOneCompactLine_data()
{
    QTest::addColumn<QJsonObject>("object");
    QTest::addColumn<QByteArray>("frame");

    QTest::newRow("empty") << QJsonObject() << "{}\n"_ba;
    QTest::newRow("sorted keys") << QJsonObject{{u"payload"_s, QJsonObject()}, {u"id"_s, u"i"_s}, {u"cmd"_s, u"c"_s}}
                                 << "{\"cmd\":\"c\",\"id\":\"i\",\"payload\":{}}\n"_ba;
    QTest::newRow("line feed") << QJsonObject{{u"a"_s, u"one\ntwo\r\n"_s}} << R"({"a":"one\ntwo\r\n"})"_ba + '\n';
    QTest::newRow("UTF-8") << QJsonObject{{u"a"_s, u"é\U0001F4C5"_s}} << "{\"a\":\"\xC3\xA9\xF0\x9F\x93\x85\"}\n"_ba;
    QTest::newRow("nested") << QJsonObject{{u"a"_s, QJsonArray{1, QJsonObject{{u"b"_s, true}}}}}
                            << "{\"a\":[1,{\"b\":true}]}\n"_ba;
}

void TestWireProtocol::frameIsOneCompactLine()
{
    QFETCH(const QJsonObject, object);
    QFETCH(const QByteArray, frame);
    QCOMPARE(encodeFrame(object), frame);
    QCOMPARE(frame.count('\n'), 1);
}

void TestWireProtocol::errorResponseHasCodeAndMessage()
{
    QCOMPARE(encodeFrame(errorResponse(u"SOME_CODE"_s, u"Some text"_s)),
             "{\"error\":{\"code\":\"SOME_CODE\",\"message\":\"Some text\"},\"ok\":false}\n"_ba);
}

void TestWireProtocol::endpointIsInTheRuntimeDirectory()
{
    const QString directory = endpointsAreFiles ? qEnvironmentVariable("XDG_RUNTIME_DIR") + u'/' : u"\\\\.\\pipe\\"_s;
    QCOMPARE(defaultPipeName(), directory + u"SchedulerDaemonPipe"_s);
}

void TestWireProtocol::withoutARuntimeDirectoryThereIsNoEndpoint()
{
    if (!endpointsAreFiles)
        QSKIP(endpointsAreNoFiles);
    // Without the variable Qt makes a directory of the user's below the one for temporary files; a file is in its way.
    const QTemporaryDir directory;
    QFile file(directory.filePath(u"runtime-"_s + QFileInfo(directory.path()).owner()));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const QByteArray runtimeDirectory = qgetenv("XDG_RUNTIME_DIR");
    const QByteArray temporaryDirectory = qgetenv("TMPDIR");
    qunsetenv("XDG_RUNTIME_DIR");
    qputenv("TMPDIR", QFile::encodeName(directory.path()));
    const QString name = defaultPipeName();
    qputenv("XDG_RUNTIME_DIR", runtimeDirectory);
    if (temporaryDirectory.isNull())
        qunsetenv("TMPDIR");
    else
        qputenv("TMPDIR", temporaryDirectory);
    QCOMPARE(name, QString());
}

void TestWireProtocol::requestIsOneFrameWithSortedKeys()
{
    ScriptedDaemon daemon;
    QVERIFY(daemon.listen());
    MCsIPCConnection connection(defaultPipeName());
    QVERIFY(connection.connectToServer(1, 0));
    const QJsonObject response =
        connection.sendRequest(u"client.register"_s, {{u"clientType"_s, u"task_type.screen_record"_s}}, timeoutMs);
    QVERIFY(response.value("ok"_L1).toBool());

    const QByteArray id = daemon.requests().constFirst().value("id"_L1).toString().toUtf8();
    QCOMPARE(daemon.receivedBytes(), "{\"cmd\":\"client.register\",\"id\":\"" + id +
                                         "\",\"payload\":{\"clientType\":\"task_type.screen_record\"}}\n");
}

void TestWireProtocol::requestWithoutArgumentsHasAnEmptyPayload()
{
    ScriptedDaemon daemon;
    QVERIFY(daemon.listen());
    MCsIPCConnection connection(defaultPipeName());
    QVERIFY(connection.connectToServer(1, 0));
    QVERIFY(connection.sendRequest(u"group.list"_s, {}, timeoutMs).value("ok"_L1).toBool());
    QVERIFY(daemon.receivedBytes().endsWith(",\"payload\":{}}\n"));
}

void TestWireProtocol::requestIdHoldsTheTimeAndACounter()
{
    ScriptedDaemon daemon;
    QVERIFY(daemon.listen());
    MCsIPCConnection connection(defaultPipeName());
    QVERIFY(connection.connectToServer(1, 0));
    const QRegularExpression form(u"^req_(\\d+)_(\\d+)$"_s);
    for (int number = 1; number <= 3; ++number) {
        const qint64 before = QDateTime::currentMSecsSinceEpoch();
        QVERIFY(connection.sendRequest(u"x"_s, {}, timeoutMs).value("ok"_L1).toBool());
        const qint64 after = QDateTime::currentMSecsSinceEpoch();
        const QRegularExpressionMatch match = form.match(daemon.requests().constLast().value("id"_L1).toString());
        QVERIFY(match.hasMatch());
        const qint64 stamp = match.captured(1).toLongLong();
        QVERIFY(stamp >= before && stamp <= after);
        QCOMPARE(match.captured(2), QString::number(number));
    }
}

void TestWireProtocol::freshConnectionCountsFromOne()
{
    ScriptedDaemon daemon;
    QVERIFY(daemon.listen());
    for (int round = 0; round < 2; ++round) {
        MCsIPCConnection connection(defaultPipeName());
        QVERIFY(connection.connectToServer(1, 0));
        for (const QString &ending : {u"_1"_s, u"_2"_s}) {
            QVERIFY(connection.sendRequest(u"x"_s, {}, timeoutMs).value("ok"_L1).toBool());
            QVERIFY(daemon.requests().constLast().value("id"_L1).toString().endsWith(ending));
        }
    }
    QCOMPARE(daemon.acceptedCount(), 2);
}

void TestWireProtocol::lineFeedInAStringTravelsBothWays()
{
    const QString text = u"first\nsecond\r\nthird"_s;
    ScriptedDaemon daemon;
    QVERIFY(daemon.listen());
    daemon.answer(u"echo"_s, {{u"text"_s, text}});
    MCsIPCConnection connection(defaultPipeName());
    QVERIFY(connection.connectToServer(1, 0));
    const QJsonObject response = connection.sendRequest(u"echo"_s, {{u"text"_s, text}}, timeoutMs);
    QCOMPARE(response.value("data"_L1).toObject().value("text"_L1).toString(), text);
    QCOMPARE(daemon.requests().constFirst().value("payload"_L1).toObject().value("text"_L1).toString(), text);
    QCOMPARE(daemon.receivedBytes().count('\n'), 1);
}

ORVEL_TEST_MAIN(QCoreApplication, TestWireProtocol)
#include "tst_wireprotocol.moc"
