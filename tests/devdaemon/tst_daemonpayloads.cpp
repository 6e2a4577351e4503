#include "enginefixture.h"
#include "testmain.h"

using namespace Qt::StringLiterals;
using namespace TestSupport;

class TestDaemonPayloads : public QObject {
    Q_OBJECT

private slots:
    void unknownCommandsAreRefused_data();
    void unknownCommandsAreRefused();
    void everyCommandAcceptsItsPayload_data();
    void everyCommandAcceptsItsPayload();
    void aMissingOrMistypedKeyIsRefused_data();
    void aMissingOrMistypedKeyIsRefused();
    void noJsonTypeInAnyPlaceDoesHarm_data();
    void noJsonTypeInAnyPlaceDoesHarm();
    void aPayloadThatIsNoObjectIsRefused();
    void unknownKeysAreIgnored();
};

namespace {

struct Sample {
    const char *command;
    QJsonObject payload;
    QStringList requiredKeys;
};

/// A valid payload of every command but "client.register", for a daemon with one group and one task.
QList<Sample> samples(const QString &taskId, const QString &groupId)
{
    const QJsonObject task{{u"taskId"_s, taskId}};
    const QJsonObject group{{u"groupId"_s, groupId}};
    const QJsonObject type{{u"type"_s, u"task_type.all"_s}};
    const QJsonObject taskType{{u"taskType"_s, u"task_type.all"_s}};
    const QJsonObject groupAndType{{u"groupId"_s, groupId}, {u"taskType"_s, u"task_type.all"_s}};
    const QJsonObject taskDocument{{u"name"_s, u"name"_s},
                                   {u"type"_s, u"task_type.test"_s},
                                   {u"enabled"_s, true},
                                   {u"groupId"_s, groupId},
                                   {u"programName"_s, u"program"_s},
                                   {u"targetProgram"_s, u"/opt/program"_s},
                                   {u"paramsJson"_s, paramsWith(weekly({u"Mon"_s}, u"09:00:00"_s))}};
    const QJsonObject groupDocument{{u"name"_s, u"name"_s},     {u"description"_s, u"text"_s},
                                    {u"color"_s, u"#123456"_s}, {u"parentId"_s, QString()},
                                    {u"displayOrder"_s, 3},     {u"taskType"_s, u"task_type.test"_s}};
    return {
        {"task.create", {{u"task"_s, taskDocument}}, {u"task"_s}},
        {"task.update", {{u"taskId"_s, taskId}, {u"task"_s, taskDocument}}, {u"taskId"_s, u"task"_s}},
        {"task.get", task, {u"taskId"_s}},
        {"task.enable", task, {u"taskId"_s}},
        {"task.disable", task, {u"taskId"_s}},
        {"task.trigger", task, {u"taskId"_s}},
        {"task.moveToGroup", {{u"taskId"_s, taskId}, {u"groupId"_s, groupId}}, {u"taskId"_s, u"groupId"_s}},
        {"task.batchMoveToGroup",
         {{u"taskIds"_s, QJsonArray{taskId}}, {u"groupId"_s, groupId}},
         {u"taskIds"_s, u"groupId"_s}},
        {"task.listByType", type, {u"type"_s}},
        {"task.countByType", type, {u"type"_s}},
        {"task.listByGroupAndType", groupAndType, {u"groupId"_s, u"taskType"_s}},
        {"task.countByGroupAndType", groupAndType, {u"groupId"_s, u"taskType"_s}},
        {"task.delete", task, {u"taskId"_s}},
        {"group.create", {{u"group"_s, groupDocument}}, {u"group"_s}},
        {"group.update", {{u"groupId"_s, groupId}, {u"group"_s, groupDocument}}, {u"groupId"_s, u"group"_s}},
        {"group.get", group, {u"groupId"_s}},
        {"group.listByTaskType", taskType, {u"taskType"_s}},
        {"group.enableAllTasks", group, {u"groupId"_s}},
        {"group.disableAllTasks", group, {u"groupId"_s}},
        {"group.triggerAllTasks", group, {u"groupId"_s}},
        {"group.deleteAllTasks", group, {u"groupId"_s}},
        {"group.delete", {{u"groupId"_s, groupId}, {u"deleteChildGroups"_s, false}}, {u"groupId"_s}},
        {"audit.list",
         {{u"taskType"_s, u"task_type.all"_s},
          {u"limit"_s, 10},
          {u"ascending"_s, true},
          {u"from"_s, u"2026-01-01T00:00:00"_s},
          {u"to"_s, u"2027-01-01T00:00:00"_s}},
         {u"taskType"_s}},
        {"tasktype.list", {}, {}},
    };
}

QList<QJsonValue> oneOfEveryKind()
{
    const QJsonObject nested{{u"startRecordingOn"_s, QJsonArray{1, QJsonValue(), true}}, {u"mode"_s, 1}};
    return {QJsonValue(),  true,         -1,
            2.5,           1e300,        QString(),
            u"text"_s,     QJsonArray(), QJsonArray{1, u"text"_s, QJsonValue(), QJsonArray(), QJsonObject()},
            QJsonObject(), nested};
}

/// Every object that comes from replacing one member of the payload, on the first or second level, with the value.
QList<QJsonObject> replacements(const QJsonObject &payload, const QJsonValue &value)
{
    QList<QJsonObject> all;
    for (auto member = payload.begin(); member != payload.end(); ++member) {
        QJsonObject changed = payload;
        changed.insert(member.key(), value);
        all.append(changed);
        const QJsonObject nested = member.value().toObject();
        for (auto inner = nested.begin(); inner != nested.end(); ++inner) {
            QJsonObject changedNested = nested;
            changedNested.insert(inner.key(), value);
            changed.insert(member.key(), changedNested);
            all.append(changed);
        }
    }
    return all;
}

void addSampleRows()
{
    QTest::addColumn<int>("index");
    const QList<Sample> all = samples({}, {});
    for (int index = 0; index < all.size(); ++index)
        QTest::newRow(all.at(index).command) << index;
}

/// A daemon with one task in one group, and the sample payload for them.
struct Prepared {
    explicit Prepared(int index)
    {
        const QString groupId = daemon.addGroup(u"group"_s);
        const QString taskId = daemon.addTask(u"task"_s, groupId);
        sample = samples(taskId, groupId).at(index);
        command = QString::fromLatin1(sample.command);
    }

    EngineFixture daemon;
    Sample sample;
    QString command;
};

} // namespace

void TestDaemonPayloads::unknownCommandsAreRefused_data()
{
    QTest::addColumn<QString>("command");
    QTest::newRow("unknown") << u"task.fly"_s;
    QTest::newRow("other case") << u"Task.List"_s;
    QTest::newRow("empty") << QString();
}

void TestDaemonPayloads::unknownCommandsAreRefused()
{
    QFETCH(const QString, command);
    EngineFixture daemon;
    QCOMPARE(daemon.errorOf(command), u"UNKNOWN_COMMAND"_s);
}

void TestDaemonPayloads::everyCommandAcceptsItsPayload_data()
{
    addSampleRows();
}

void TestDaemonPayloads::everyCommandAcceptsItsPayload()
{
    QFETCH(const int, index);
    Prepared prepared(index);
    const QJsonObject response = prepared.daemon.call(prepared.command, prepared.sample.payload);
    QCOMPARE(response.value("ok"_L1), QJsonValue(true));
    QVERIFY(response.value("data"_L1).isObject());
}

void TestDaemonPayloads::aMissingOrMistypedKeyIsRefused_data()
{
    addSampleRows();
}

void TestDaemonPayloads::aMissingOrMistypedKeyIsRefused()
{
    QFETCH(const int, index);
    Prepared prepared(index);
    for (const QString &key : prepared.sample.requiredKeys) {
        QJsonObject payload = prepared.sample.payload;
        payload.remove(key);
        QCOMPARE(prepared.daemon.errorOf(prepared.command, payload), u"INVALID_PAYLOAD"_s);
        payload.insert(key, 5);
        const QJsonObject error = prepared.daemon.call(prepared.command, payload).value("error"_L1).toObject();
        QCOMPARE(error.value("code"_L1).toString(), u"INVALID_PAYLOAD"_s);
        QVERIFY2(error.value("message"_L1).toString().contains(key), qUtf8Printable(key));
    }
}

void TestDaemonPayloads::noJsonTypeInAnyPlaceDoesHarm_data()
{
    addSampleRows();
}

void TestDaemonPayloads::noJsonTypeInAnyPlaceDoesHarm()
{
    QFETCH(const int, index);
    const QList<QJsonValue> values = oneOfEveryKind();
    for (const QJsonValue &value : values) {
        const qsizetype count = replacements(samples({}, {}).at(index).payload, value).size();
        for (qsizetype place = 0; place < count; ++place) {
            Prepared prepared(index);
            const QJsonObject payload = replacements(prepared.sample.payload, value).at(place);
            const QJsonObject response = prepared.daemon.call(prepared.command, payload);
            QVERIFY(response.value("ok"_L1).isBool());
            const QJsonObject error = response.value("error"_L1).toObject();
            QCOMPARE(error.value("code"_L1).toString().isEmpty(), response.value("ok"_L1).toBool());
            prepared.daemon.pass(60);
            QCOMPARE(prepared.daemon.errorOf(u"tasktype.list"_s), QString());
        }
    }
}

void TestDaemonPayloads::aPayloadThatIsNoObjectIsRefused()
{
    EngineFixture daemon;
    const QList<QJsonValue> payloads{QJsonValue(), 5, u"text"_s, QJsonArray()};
    for (const QJsonValue &payload : payloads)
        QCOMPARE(daemon.errorOf(u"tasktype.list"_s, payload), u"INVALID_PAYLOAD"_s);
    QCOMPARE(daemon.errorOf(u"tasktype.list"_s, QJsonValue(QJsonValue::Undefined)), QString());
}

void TestDaemonPayloads::unknownKeysAreIgnored()
{
    EngineFixture daemon;
    const QJsonObject payload{{u"type"_s, QString()}, {u"future"_s, QJsonArray{1}}};
    QCOMPARE(daemon.errorOf(u"task.countByType"_s, payload), QString());
}

ORVEL_TEST_MAIN(QCoreApplication, TestDaemonPayloads)
#include "tst_daemonpayloads.moc"
