#include "commandcases.h"
#include "logcapture.h"
#include "mcsschedulerclient.h"
#include "scripteddaemon.h"
#include "testmain.h"

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

namespace {

QVariant failureValue(const Outcome &outcome)
{
    switch (outcome.kind) {
    case Outcome::Success:
        return false;
    case Outcome::Text:
    case Outcome::Record:
        return QString();
    case Outcome::Count:
        return 0;
    case Outcome::List:
        return QStringList();
    }
    return {};
}

QString cmdOf(const CommandCase &tested)
{
    return QString::fromLatin1(tested.cmd);
}

/// The data of a response whose key has the given value.
QJsonObject dataWith(const CommandCase &tested, const QJsonValue &value)
{
    QJsonObject data{{u"extra"_s, 1}};
    if (tested.outcome.key != nullptr)
        data.insert(QLatin1StringView(tested.outcome.key), value);
    return data;
}

QJsonObject record(const CommandCase &tested, const QString &id)
{
    return {{QLatin1StringView(tested.outcome.recordId), id}};
}

struct Reading {
    QJsonValue value;
    QVariant result;
};

Reading goodReading(const CommandCase &tested)
{
    switch (tested.outcome.kind) {
    case Outcome::Success:
        return {QJsonValue(), true};
    case Outcome::Text:
        return {u"new 1"_s, u"new 1"_s};
    case Outcome::Count:
        return {12, 12};
    case Outcome::Record:
        return {record(tested, u"r"_s), u"r"_s};
    case Outcome::List:
        return {QJsonArray{record(tested, u"b"_s), record(tested, u"a"_s), record(tested, u"b"_s)},
                QStringList{u"b"_s, u"a"_s, u"b"_s}};
    }
    return {};
}

QList<QJsonValue> wrongValues(const Outcome &outcome)
{
    const QJsonValue null(QJsonValue::Null);
    switch (outcome.kind) {
    case Outcome::Success:
        return {};
    case Outcome::Text:
        return {null, true, 5, QJsonArray{u"x"_s}, QJsonObject{{u"x"_s, u"y"_s}}};
    case Outcome::Count:
        return {null, true, u"5"_s, 5.5, 3e9, QJsonArray{5}, QJsonObject{{u"x"_s, 5}}};
    case Outcome::Record:
        return {null, true, 5, u"x"_s, QJsonArray{QJsonObject{{u"id"_s, u"x"_s}}}, QJsonObject{{u"id"_s, 5}}};
    case Outcome::List:
        return {null, true, 5, u"x"_s, QJsonObject{{u"x"_s, QJsonObject{{u"id"_s, u"x"_s}}}}};
    }
    return {};
}

} // namespace

class TestCommands : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void catalogueHasTwentyFiveCommands();
    void commandAndPayloadOnTheWire_data();
    void commandAndPayloadOnTheWire();
    void goodResultIsRead_data();
    void goodResultIsRead();
    void missingOrWrongDataGivesTheEmptyResultWithoutAnError_data();
    void missingOrWrongDataGivesTheEmptyResultWithoutAnError();
    void successNeedsNoData_data();
    void successNeedsNoData();
    void responseWithoutTrueOkIsAFailure_data();
    void responseWithoutTrueOkIsAFailure();
    void refusalIsAFailureWithItsCode_data();
    void refusalIsAFailureWithItsCode();
    void disconnectedClientSendsNothing_data();
    void disconnectedClientSendsNothing();
    void silenceEndsAfterTwoSeconds();
    void listElementsThatAreNoObjectsBecomeDefaultRecords();
    void recordsAreReadWhole();
    void taskTypeResponseIsLoggedForEveryOutcome();

private:
    void addCaseRows(const std::function<bool(const CommandCase &)> &wanted = {});
    const CommandCase &fetchCase();

    std::unique_ptr<ScriptedDaemon> m_daemon;
    std::unique_ptr<MCsSchedulerClient> m_client;
};

void TestCommands::init()
{
    m_daemon = std::make_unique<ScriptedDaemon>();
    QVERIFY(m_daemon->listen());
    m_client = std::make_unique<MCsSchedulerClient>();
    m_client->setClientType(QString::fromUtf16(testClientType));
    QVERIFY(m_client->connectToDaemon());
    QCOMPARE(m_daemon->commands(), QStringList{u"client.register"_s});
    m_daemon->clearRequests();
}

void TestCommands::cleanup()
{
    m_client.reset();
    m_daemon.reset();
}

void TestCommands::addCaseRows(const std::function<bool(const CommandCase &)> &wanted)
{
    QTest::addColumn<qsizetype>("index");
    const QList<CommandCase> &cases = commandCases();
    for (qsizetype index = 0; index < cases.size(); ++index) {
        if (!wanted || wanted(cases.at(index)))
            QTest::newRow(cases.at(index).name) << index;
    }
}

const CommandCase &TestCommands::fetchCase()
{
    QFETCH(const qsizetype, index);
    return commandCases().at(index);
}

void TestCommands::catalogueHasTwentyFiveCommands()
{
    QSet<QString> commands{u"client.register"_s};
    for (const CommandCase &each : commandCases())
        commands.insert(cmdOf(each));
    QCOMPARE(commands.size(), 25);
}

void TestCommands::commandAndPayloadOnTheWire_data()
{
    addCaseRows();
}

void TestCommands::commandAndPayloadOnTheWire()
{
    const CommandCase &tested = fetchCase();
    tested.call(*m_client);
    QCOMPARE(m_daemon->requests().size(), 1);
    const QByteArray id = m_daemon->requests().first().value("id"_L1).toString().toUtf8();
    QVERIFY(!id.isEmpty());
    QCOMPARE(m_daemon->receivedBytes(),
             "{\"cmd\":\"" + QByteArray(tested.cmd) + "\",\"id\":\"" + id + "\",\"payload\":" + tested.payload + "}\n");
}

void TestCommands::goodResultIsRead_data()
{
    addCaseRows();
}

void TestCommands::goodResultIsRead()
{
    const CommandCase &tested = fetchCase();
    const Reading good = goodReading(tested);
    m_daemon->answer(cmdOf(tested), dataWith(tested, good.value));
    QCOMPARE(tested.call(*m_client), good.result);
    QCOMPARE(m_client->lastErrorCode(), QString());
    QCOMPARE(m_client->lastError(), QString());
}

void TestCommands::missingOrWrongDataGivesTheEmptyResultWithoutAnError_data()
{
    addCaseRows([](const CommandCase &each) { return each.outcome.kind != Outcome::Success; });
}

void TestCommands::missingOrWrongDataGivesTheEmptyResultWithoutAnError()
{
    const CommandCase &tested = fetchCase();
    const QJsonObject goodData = dataWith(tested, goodReading(tested).value);
    QList<QJsonObject> responses{{{u"ok"_s, true}}, {{u"ok"_s, true}, {u"data"_s, QJsonObject()}}};
    for (const QJsonValue &data : {QJsonValue(), QJsonValue(u"x"_s), QJsonValue(1), QJsonValue(QJsonArray{goodData})})
        responses.append({{u"ok"_s, true}, {u"data"_s, data}});
    for (const QJsonValue &value : wrongValues(tested.outcome))
        responses.append({{u"ok"_s, true}, {u"data"_s, dataWith(tested, value)}});

    for (const QJsonObject &response : std::as_const(responses)) {
        m_daemon->respond(cmdOf(tested), response);
        QVERIFY2(tested.call(*m_client) == failureValue(tested.outcome), QJsonDocument(response).toJson().constData());
        QCOMPARE(m_client->lastErrorCode(), QString());
    }
}

void TestCommands::successNeedsNoData_data()
{
    addCaseRows([](const CommandCase &each) { return each.outcome.kind == Outcome::Success; });
}

void TestCommands::successNeedsNoData()
{
    const CommandCase &tested = fetchCase();
    for (const QJsonValue &data : {QJsonValue(QJsonValue::Undefined), QJsonValue(), QJsonValue(false)}) {
        m_daemon->respond(cmdOf(tested), {{u"ok"_s, true}, {u"data"_s, data}});
        QCOMPARE(tested.call(*m_client), true);
    }
}

void TestCommands::responseWithoutTrueOkIsAFailure_data()
{
    addCaseRows();
}

void TestCommands::responseWithoutTrueOkIsAFailure()
{
    const CommandCase &tested = fetchCase();
    const QJsonObject goodData = dataWith(tested, goodReading(tested).value);
    for (const QJsonValue &ok : {QJsonValue(QJsonValue::Undefined), QJsonValue(), QJsonValue(false), QJsonValue(1),
                                 QJsonValue(u"true"_s), QJsonValue(QJsonObject{{u"ok"_s, true}})}) {
        m_daemon->respond(cmdOf(tested), {{u"ok"_s, ok}, {u"data"_s, goodData}});
        QCOMPARE(tested.call(*m_client), failureValue(tested.outcome));
    }
    QCOMPARE(m_daemon->requests().size(), 6);
}

void TestCommands::refusalIsAFailureWithItsCode_data()
{
    addCaseRows();
}

void TestCommands::refusalIsAFailureWithItsCode()
{
    const CommandCase &tested = fetchCase();
    m_daemon->refuse(cmdOf(tested), u"SOME_CODE"_s, u"50% of it is %1"_s);
    QCOMPARE(tested.call(*m_client), failureValue(tested.outcome));
    QCOMPARE(m_client->lastErrorCode(), u"SOME_CODE"_s);
    QCOMPARE(m_client->lastError(), u"SOME_CODE: 50% of it is %1"_s);
    QCOMPARE(m_daemon->requests().size(), 1);
    QVERIFY(m_client->isConnected());
}

void TestCommands::disconnectedClientSendsNothing_data()
{
    addCaseRows();
}

void TestCommands::disconnectedClientSendsNothing()
{
    const CommandCase &tested = fetchCase();
    m_daemon->answer(cmdOf(tested), dataWith(tested, goodReading(tested).value));
    m_client->disconnectFromDaemon();
    QCOMPARE(tested.call(*m_client), failureValue(tested.outcome));
    QCOMPARE(m_client->lastErrorCode(), u"NOT_CONNECTED"_s);
    QCOMPARE(m_client->lastError(), u"Not connected to daemon"_s);

    // A later request shows that nothing was under way before it.
    QVERIFY(m_client->connectToDaemon());
    QCOMPARE(m_daemon->commands(), QStringList{u"client.register"_s});
}

void TestCommands::silenceEndsAfterTwoSeconds()
{
    m_daemon->ignore(u"task.countByType"_s);
    QElapsedTimer elapsed;
    elapsed.start();
    QCOMPARE(m_client->getTaskCount(), 0);
    QVERIFY(elapsed.elapsed() >= 1900);
    QCOMPARE(m_client->lastErrorCode(), u"TIMEOUT"_s);
    QCOMPARE(m_client->lastError(), u"TIMEOUT: Request timed out after 2000ms"_s);
}

void TestCommands::listElementsThatAreNoObjectsBecomeDefaultRecords()
{
    const QJsonArray tasks{1, QJsonObject{{u"id"_s, u"t1"_s}}, QJsonValue(), u"x"_s, QJsonArray(), QJsonObject()};
    m_daemon->answer(u"task.listByType"_s, {{u"tasks"_s, tasks}});
    QStringList ids;
    for (const TaskInfo &task : m_client->listTasks())
        ids.append(task.id);
    QCOMPARE(ids, (QStringList{{}, u"t1"_s, {}, {}, {}, {}}));

    m_daemon->answer(u"tasktype.list"_s, {{u"taskTypes"_s, QJsonArray{1, 2}}});
    QCOMPARE(m_client->listTaskTypes().size(), 2);
}

void TestCommands::recordsAreReadWhole()
{
    const QJsonObject document{{u"start"_s, QJsonObject{{u"mode"_s, u"daily"_s}}}};
    const QJsonObject task{{u"id"_s, u"t1"_s},
                           {u"name"_s, u"Überwachung"_s},
                           {u"enabled"_s, true},
                           {u"nextRunAt"_s, u"2026-11-13T10:00:00Z"_s},
                           {u"paramsJson"_s, document}};
    m_daemon->answer(u"task.get"_s, {{u"task"_s, task}});
    const TaskInfo read = m_client->getTask(u"t1"_s);
    QCOMPARE(read.name, u"Überwachung"_s);
    QVERIFY(read.enabled);
    QCOMPARE(read.nextRunAt.toSecsSinceEpoch(), 1794564000);
    QCOMPARE(read.paramsJson, document);

    const QJsonObject entry{{u"id"_s, u"42"_s}, {u"operator"_s, u"me"_s}, {u"result"_s, true}};
    m_daemon->answer(u"audit.list"_s, {{u"logs"_s, QJsonArray{entry}}});
    const QList<AuditLogEntry> entries = m_client->getAuditLogs(1, true, {}, {});
    QCOMPARE(entries.size(), 1);
    QCOMPARE(entries.first().id, 42);
    QCOMPARE(entries.first().operatorName, u"me"_s);
    QVERIFY(entries.first().result);
}

void TestCommands::taskTypeResponseIsLoggedForEveryOutcome()
{
    const QJsonObject data{{u"taskTypes"_s, QJsonArray{QJsonObject{{u"type"_s, u"t"_s}}}}};
    m_daemon->answer(u"tasktype.list"_s, data);
    const LogCapture log;
    const auto logged = [&log] {
        const QStringList lines = log.lines(u"client"_s);
        return lines.isEmpty() ? QString() : lines.last();
    };
    const auto id = [this] { return m_daemon->requests(u"tasktype.list"_s).last().value("id"_L1).toString(); };

    QCOMPARE(m_client->listTaskTypes().size(), 1);
    QCOMPARE(logged(), u"DEBUG listTaskTypes response:{\"data\":{\"taskTypes\":[{\"type\":\"t\"}]},\"id\":\"%1\","
                       "\"ok\":true}"_s.arg(id()));

    m_daemon->refuse(u"tasktype.list"_s, u"BUSY"_s, u"later"_s);
    QVERIFY(m_client->listTaskTypes().isEmpty());
    QCOMPARE(logged(), u"DEBUG listTaskTypes response:{\"error\":{\"code\":\"BUSY\",\"message\":\"later\"},\"id\":"
                       "\"%1\",\"ok\":false}"_s.arg(id()));

    m_client->disconnectFromDaemon();
    QVERIFY(m_client->listTaskTypes().isEmpty());
    QCOMPARE(logged(), u"DEBUG listTaskTypes response:{\"error\":{\"code\":\"NOT_CONNECTED\",\"message\":"
                       "\"Not connected to daemon\"},\"ok\":false}"_s);
    QCOMPARE(log.lines(u"client"_s).size(), 3);
}

ORVEL_TEST_MAIN(QCoreApplication, TestCommands)
#include "tst_commands.moc"
