#include "logcapture.h"
#include "mcsdevdaemon.h"
#include "testmain.h"
#include "wireclient.h"
#include "wireprotocol.h"

#include <QJsonArray>
#include <QLocalSocket>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace Scheduler::DevDaemon;
using namespace TestSupport;

class TestDaemonSessions : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void aClientRegistersAndIsAnswered();
    void aSecondClientOfATypeIsRefusedAndStaysConnected();
    void clientsOfDifferentTypesLiveTogether();
    void theTypeIsFreeOnceItsClientHasLeft();
    void aClientThatHasGoneHoldsNoType();
    void registeringAgainIsHarmless();
    void aClientMayChangeItsType();
    void aTypeMustBeAText_data();
    void aTypeMustBeAText();
    void commandsBeforeRegistrationAreRefused();
    void commandsOfARefusedClientAreRefused();
    void theIdComesBackAsItWasSent_data();
    void theIdComesBackAsItWasSent();
    void aCommandThatIsNoTextIsUnknown();
    void changesOfOneClientAreSeenByAnother();
    void comingAndGoingIsReported();

private:
    [[nodiscard]] QStringList messages() const;

    std::unique_ptr<QTemporaryDir> m_directory;
    std::unique_ptr<LogCapture> m_log; ///< keeps the server's log out of the test's output
    std::unique_ptr<MCsDevDaemon> m_daemon;
    std::unique_ptr<QSignalSpy> m_messages;
};

void TestDaemonSessions::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    m_log = std::make_unique<LogCapture>();
    DaemonOptions options;
    options.statePath = m_directory->filePath(u"state.json"_s);
    options.empty = true;
    m_daemon = std::make_unique<MCsDevDaemon>(options);
    m_messages = std::make_unique<QSignalSpy>(m_daemon.get(), &MCsDevDaemon::message);
    QVERIFY(m_daemon->start());
}

void TestDaemonSessions::cleanup()
{
    m_messages.reset();
    m_daemon.reset();
    m_log.reset();
}

QStringList TestDaemonSessions::messages() const
{
    QStringList texts;
    for (const QList<QVariant> &arguments : *m_messages)
        texts.append(arguments.first().toString());
    return texts;
}

void TestDaemonSessions::aClientRegistersAndIsAnswered()
{
    WireClient client;
    QVERIFY(client.connectToDaemon());
    const QJsonObject request{{u"id"_s, u"req_1_1"_s},
                              {u"cmd"_s, u"client.register"_s},
                              {u"payload"_s, QJsonObject{{u"clientType"_s, u"task_type.test"_s}}}};
    const QJsonObject expected{{u"id"_s, u"req_1_1"_s}, {u"ok"_s, true}, {u"data"_s, QJsonObject()}};
    QCOMPARE(client.send(request), expected);
    QCOMPARE(errorCode(client.call(u"tasktype.list"_s)), QString());
}

void TestDaemonSessions::aSecondClientOfATypeIsRefusedAndStaysConnected()
{
    WireClient first;
    WireClient second;
    QVERIFY(first.connectToDaemon() && second.connectToDaemon());
    QCOMPARE(first.registerAs(u"task_type.test"_s), QString());
    const QJsonObject payload{{u"clientType"_s, u"task_type.test"_s}};
    const QJsonObject error = second.call(u"client.register"_s, payload).value("error"_L1).toObject();
    QCOMPARE(error.value("code"_L1).toString(), u"CLIENT_TYPE_ALREADY_CONNECTED"_s);
    QVERIFY(error.value("message"_L1).toString().contains(u"task_type.test"_s));
    QVERIFY(second.isConnected());
    QCOMPARE(errorCode(first.call(u"tasktype.list"_s)), QString());
}

void TestDaemonSessions::clientsOfDifferentTypesLiveTogether()
{
    WireClient first;
    WireClient second;
    QVERIFY(first.connectToDaemon() && second.connectToDaemon());
    QCOMPARE(first.registerAs(u"task_type.test"_s), QString());
    QCOMPARE(second.registerAs(u"task_type.all"_s), QString());
}

void TestDaemonSessions::theTypeIsFreeOnceItsClientHasLeft()
{
    WireClient first;
    WireClient second;
    QVERIFY(first.connectToDaemon() && second.connectToDaemon());
    QCOMPARE(first.registerAs(u"task_type.test"_s), QString());
    QCOMPARE(second.registerAs(u"task_type.test"_s), u"CLIENT_TYPE_ALREADY_CONNECTED"_s);
    first.disconnect();
    QTRY_VERIFY(messages().contains(u"client left: task_type.test"_s));
    QCOMPARE(second.registerAs(u"task_type.test"_s), QString());
}

void TestDaemonSessions::aClientThatHasGoneHoldsNoType()
{
    {
        QLocalSocket hasty;
        hasty.connectToServer(Scheduler::defaultPipeName());
        QVERIFY(hasty.waitForConnected());
        hasty.write("garbage\n{\"id\":\"a\",\"cmd\":\"client.register\","
                    "\"payload\":{\"clientType\":\"task_type.test\"}}\n");
        hasty.flush();
        hasty.abort(); // before anything could be read
    }
    WireClient client;
    QVERIFY(client.connectToDaemon());
    QTRY_COMPARE(client.registerAs(u"task_type.test"_s), QString());
}

void TestDaemonSessions::registeringAgainIsHarmless()
{
    WireClient client;
    QVERIFY(client.connectToDaemon());
    QCOMPARE(client.registerAs(u"task_type.test"_s), QString());
    QCOMPARE(client.registerAs(u"task_type.test"_s), QString());
}

void TestDaemonSessions::aClientMayChangeItsType()
{
    WireClient first;
    WireClient second;
    QVERIFY(first.connectToDaemon() && second.connectToDaemon());
    QCOMPARE(first.registerAs(u"task_type.test"_s), QString());
    QCOMPARE(first.registerAs(u"task_type.all"_s), QString());
    QCOMPARE(second.registerAs(u"task_type.test"_s), QString());
    QCOMPARE(second.registerAs(u"task_type.all"_s), u"CLIENT_TYPE_ALREADY_CONNECTED"_s);
    QCOMPARE(errorCode(second.call(u"tasktype.list"_s)), QString());
}

void TestDaemonSessions::aTypeMustBeAText_data()
{
    QTest::addColumn<QJsonObject>("payload");
    QTest::newRow("missing") << QJsonObject();
    QTest::newRow("empty") << QJsonObject{{u"clientType"_s, QString()}};
    QTest::newRow("a number") << QJsonObject{{u"clientType"_s, 5}};
    QTest::newRow("an array") << QJsonObject{{u"clientType"_s, QJsonArray{u"task_type.test"_s}}};
}

void TestDaemonSessions::aTypeMustBeAText()
{
    QFETCH(const QJsonObject, payload);
    WireClient client;
    QVERIFY(client.connectToDaemon());
    QCOMPARE(errorCode(client.call(u"client.register"_s, payload)), u"INVALID_PAYLOAD"_s);
}

void TestDaemonSessions::commandsBeforeRegistrationAreRefused()
{
    WireClient client;
    QVERIFY(client.connectToDaemon());
    QCOMPARE(errorCode(client.call(u"tasktype.list"_s)), u"CLIENT_NOT_REGISTERED"_s);
    QCOMPARE(errorCode(client.call(u"no.such.command"_s)), u"CLIENT_NOT_REGISTERED"_s);
    QCOMPARE(client.registerAs(u"task_type.test"_s), QString());
    QCOMPARE(errorCode(client.call(u"no.such.command"_s)), u"UNKNOWN_COMMAND"_s);
}

void TestDaemonSessions::commandsOfARefusedClientAreRefused()
{
    WireClient first;
    WireClient second;
    QVERIFY(first.connectToDaemon() && second.connectToDaemon());
    QCOMPARE(first.registerAs(u"task_type.test"_s), QString());
    QCOMPARE(second.registerAs(u"task_type.test"_s), u"CLIENT_TYPE_ALREADY_CONNECTED"_s);
    QCOMPARE(errorCode(second.call(u"tasktype.list"_s)), u"CLIENT_NOT_REGISTERED"_s);
}

void TestDaemonSessions::theIdComesBackAsItWasSent_data()
{
    QTest::addColumn<QJsonValue>("id");
    QTest::newRow("text") << QJsonValue(u"req_1_%1"_s);
    QTest::newRow("number") << QJsonValue(7);
    QTest::newRow("null") << QJsonValue();
}

void TestDaemonSessions::theIdComesBackAsItWasSent()
{
    QFETCH(const QJsonValue, id);
    WireClient client;
    QVERIFY(client.connectToDaemon());
    const QJsonObject response = client.send({{u"id"_s, id}, {u"cmd"_s, u"tasktype.list"_s}});
    QVERIFY(response.contains("id"_L1));
    QCOMPARE(response.value("id"_L1), id);
}

void TestDaemonSessions::aCommandThatIsNoTextIsUnknown()
{
    WireClient client;
    QVERIFY(client.connectToDaemon());
    QCOMPARE(client.registerAs(u"task_type.test"_s), QString());
    QCOMPARE(errorCode(client.send({{u"id"_s, 1}, {u"cmd"_s, 2}})), u"UNKNOWN_COMMAND"_s);
}

void TestDaemonSessions::changesOfOneClientAreSeenByAnother()
{
    WireClient first;
    WireClient second;
    QVERIFY(first.connectToDaemon() && second.connectToDaemon());
    QCOMPARE(first.registerAs(u"task_type.test"_s), QString());
    QCOMPARE(second.registerAs(u"task_type.all"_s), QString());
    const QJsonObject task{{u"name"_s, u"task"_s}, {u"type"_s, u"task_type.test"_s}, {u"enabled"_s, true}};
    QCOMPARE(errorCode(first.call(u"task.create"_s, QJsonObject{{u"task"_s, task}})), QString());
    const QJsonObject payload{{u"type"_s, u"task_type.all"_s}};
    const QJsonObject data = second.call(u"task.countByType"_s, payload).value("data"_L1).toObject();
    QCOMPARE(data.value("count"_L1).toInt(), 1);
}

void TestDaemonSessions::comingAndGoingIsReported()
{
    {
        WireClient client;
        QVERIFY(client.connectToDaemon());
        QCOMPARE(client.registerAs(u"task_type.test"_s), QString());
    }
    QTRY_COMPARE(messages().last(), u"client left: task_type.test"_s);
    QVERIFY(messages().contains(u"client registered: task_type.test"_s));
    QVERIFY(messages().first().startsWith(u"listening on "_s));
}

ORVEL_TEST_MAIN(QCoreApplication, TestDaemonSessions)
#include "tst_daemonsessions.moc"
