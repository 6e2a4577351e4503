#include "enginefixture.h"
#include "testmain.h"

using namespace Qt::StringLiterals;
using namespace TestSupport;

class TestDaemonTasks : public QObject {
    Q_OBJECT

private slots:
    void aCreatedTaskIsReadBackAsSent();
    void tasksAreListedInOrderOfCreation();
    void theAllTypesIdAndAnEmptyTypeCoverEveryType();
    void aClientOfOneTypeGetsItsOwnTasksForAllTypes();
    void countsFollowCreatingAndDeleting();
    void updatingReplacesTheDocumentAndTheNextRun();
    void updatingKeepsWhatTheDocumentLeavesOut();
    void aDisabledTaskHasNoNextRun();
    void aTaskThatNeverRanSaysWhy();
    void onlyADisabledTaskMayLackAName();
    void unknownTypesAndGroupsAreRefused();
    void unknownTasksAreRefused_data();
    void unknownTasksAreRefused();
    void aRefusedUpdateChangesNothing();
    void everyTaskTypeIsListedWithFieldsOfEveryKind();
};

namespace {

int countByType(EngineFixture &daemon, const QString &type)
{
    return daemon.data(u"task.countByType"_s, QJsonObject{{u"type"_s, type}}).value("count"_L1).toInt(-1);
}

QStringList namesByType(EngineFixture &daemon, const QString &type)
{
    QStringList names;
    const QJsonArray tasks =
        daemon.data(u"task.listByType"_s, QJsonObject{{u"type"_s, type}}).value("tasks"_L1).toArray();
    for (const QJsonValue &task : tasks)
        names.append(task.toObject().value("name"_L1).toString());
    return names;
}

QJsonObject updateOf(const QString &taskId, const QJsonObject &document)
{
    return {{u"taskId"_s, taskId}, {u"task"_s, document}};
}

} // namespace

void TestDaemonTasks::aCreatedTaskIsReadBackAsSent()
{
    EngineFixture daemon;
    const QString groupId = daemon.addGroup(u"Work"_s);
    const QString taskId = daemon.addTask(u"  Demo %1 <b>  "_s, groupId, daily(u"18:00:00"_s));
    QVERIFY(!taskId.isEmpty());

    const QJsonObject task = daemon.task(taskId);
    QCOMPARE(task.value("id"_L1).toString(), taskId);
    QCOMPARE(task.value("name"_L1).toString(), u"Demo %1 <b>"_s);
    QCOMPARE(task.value("type"_L1).toString(), u"task_type.screen_record"_s);
    QCOMPARE(task.value("enabled"_L1), QJsonValue(true));
    QCOMPARE(task.value("groupId"_L1).toString(), groupId);
    QCOMPARE(task.value("programName"_L1).toString(), u"Recorder"_s);
    QCOMPARE(task.value("targetProgram"_L1).toString(), u"/opt/recorder"_s);
    QCOMPARE(task.value("scheduleMode"_L1).toString(), u"EveryDay"_s);
    QCOMPARE(task.value("nextRunAt"_L1).toString(), u"2026-11-13T18:00:00Z"_s);
    QCOMPARE(task.value("createdAt"_L1).toString(), u"2026-11-13T12:00:00Z"_s);
    QCOMPARE(task.value("paramsJson"_L1).toObject(), paramsWith(daily(u"18:00:00"_s)));
}

void TestDaemonTasks::tasksAreListedInOrderOfCreation()
{
    EngineFixture daemon;
    const QStringList names{u"b"_s, u"a"_s, u"c"_s};
    for (const QString &name : names)
        daemon.addTask(name);
    QCOMPARE(namesByType(daemon, u"task_type.screen_record"_s), names);
}

void TestDaemonTasks::theAllTypesIdAndAnEmptyTypeCoverEveryType()
{
    EngineFixture daemon;
    daemon.addTask(u"screen"_s);
    daemon.addTask(u"audio"_s, {}, {}, u"task_type.audio_record"_s);
    const QStringList both{u"screen"_s, u"audio"_s};
    QCOMPARE(namesByType(daemon, u"task_type.all"_s), both);
    QCOMPARE(namesByType(daemon, QString()), both);
    QCOMPARE(namesByType(daemon, u"task_type.audio_record"_s), QStringList{u"audio"_s});
    QCOMPARE(namesByType(daemon, u"task_type.nobody_knows"_s), QStringList());
}

void TestDaemonTasks::aClientOfOneTypeGetsItsOwnTasksForAllTypes()
{
    EngineFixture daemon;
    daemon.addTask(u"screen"_s);
    daemon.addTask(u"audio"_s, {}, {}, u"task_type.audio_record"_s);
    daemon.actor = u"task_type.audio_record"_s;
    QCOMPARE(namesByType(daemon, u"task_type.all"_s), QStringList{u"audio"_s});
    QCOMPARE(countByType(daemon, u"task_type.all"_s), 1);
    QCOMPARE(namesByType(daemon, u"task_type.screen_record"_s), QStringList{u"screen"_s});
    daemon.actor = u"task_type.all"_s;
    const QStringList both{u"screen"_s, u"audio"_s};
    QCOMPARE(namesByType(daemon, u"task_type.all"_s), both);
}

void TestDaemonTasks::countsFollowCreatingAndDeleting()
{
    EngineFixture daemon;
    const QString groupId = daemon.addGroup(u"Work"_s);
    const QString first = daemon.addTask(u"first"_s, groupId);
    daemon.addTask(u"second"_s, groupId);
    daemon.addTask(u"audio"_s, {}, {}, u"task_type.audio_record"_s);
    const QStringList screenTasks{u"first"_s, u"second"_s};
    QCOMPARE(namesByType(daemon, u"task_type.screen_record"_s), screenTasks);
    QCOMPARE(countByType(daemon, u"task_type.all"_s), 3);
    QCOMPARE(countByType(daemon, u"task_type.screen_record"_s), 2);
    QCOMPARE(daemon.countIn(groupId), 2);
    QCOMPARE(daemon.countIn(u"ungrouped"_s), 1);
    QCOMPARE(daemon.countIn(u"ungrouped"_s, u"task_type.screen_record"_s), 0);

    daemon.data(u"task.delete"_s, QJsonObject{{u"taskId"_s, first}});
    QCOMPARE(countByType(daemon, u"task_type.screen_record"_s), 1);
    QCOMPARE(daemon.countIn(groupId), 1);
    QCOMPARE(namesByType(daemon, u"task_type.screen_record"_s), QStringList{u"second"_s});
}

void TestDaemonTasks::updatingReplacesTheDocumentAndTheNextRun()
{
    EngineFixture daemon;
    const QString taskId = daemon.addTask(u"old"_s, {}, daily(u"18:00:00"_s));
    daemon.pass(60);
    daemon.data(u"task.update"_s, updateOf(taskId, {{u"name"_s, u"new"_s},
                                                    {u"type"_s, u"task_type.test"_s},
                                                    {u"enabled"_s, true},
                                                    {u"paramsJson"_s, paramsWith(daily(u"20:00:00"_s))}}));
    const QJsonObject task = daemon.task(taskId);
    QCOMPARE(task.value("name"_L1).toString(), u"new"_s);
    QCOMPARE(task.value("type"_L1).toString(), u"task_type.test"_s);
    QCOMPARE(task.value("nextRunAt"_L1).toString(), u"2026-11-13T20:00:00Z"_s);
    QCOMPARE(task.value("createdAt"_L1).toString(), u"2026-11-13T12:00:00Z"_s);
    QCOMPARE(task.value("updatedAt"_L1).toString(), u"2026-11-13T12:01:00Z"_s);
    QCOMPARE(countByType(daemon, u"task_type.screen_record"_s), 0);
}

void TestDaemonTasks::updatingKeepsWhatTheDocumentLeavesOut()
{
    EngineFixture daemon;
    const QString groupId = daemon.addGroup(u"Work"_s);
    const QString taskId = daemon.addTask(u"name"_s, groupId, daily(u"18:00:00"_s));
    const QJsonObject before = daemon.task(taskId);
    daemon.data(u"task.update"_s, updateOf(taskId, QJsonObject()));
    QCOMPARE(daemon.task(taskId), before);
}

void TestDaemonTasks::aDisabledTaskHasNoNextRun()
{
    EngineFixture daemon;
    const QString taskId = daemon.addTask(u"name"_s, {}, daily(u"18:00:00"_s));
    const QJsonObject payload{{u"taskId"_s, taskId}};
    daemon.data(u"task.disable"_s, payload);
    QCOMPARE(daemon.task(taskId).value("enabled"_L1), QJsonValue(false));
    QCOMPARE(daemon.task(taskId).value("nextRunAt"_L1).toString(), QString());
    daemon.data(u"task.enable"_s, payload);
    QCOMPARE(daemon.task(taskId).value("enabled"_L1), QJsonValue(true));
    QCOMPARE(daemon.task(taskId).value("nextRunAt"_L1).toString(), u"2026-11-13T18:00:00Z"_s);
}

void TestDaemonTasks::aTaskThatNeverRanSaysWhy()
{
    EngineFixture daemon;
    const QString taskId = daemon.addTask(u"name"_s);
    QCOMPARE(daemon.task(taskId).value("lastRunStatus"_L1).toString(), u"pending"_s);
    daemon.data(u"task.disable"_s, QJsonObject{{u"taskId"_s, taskId}});
    QCOMPARE(daemon.task(taskId).value("lastRunStatus"_L1).toString(), u"disabled"_s);
    daemon.data(u"task.update"_s, updateOf(taskId, {{u"enabled"_s, true}}));
    QCOMPARE(daemon.task(taskId).value("lastRunStatus"_L1).toString(), u"pending"_s);
}

void TestDaemonTasks::onlyADisabledTaskMayLackAName()
{
    EngineFixture daemon;
    QJsonObject document{{u"name"_s, u"  "_s}, {u"type"_s, u"task_type.test"_s}, {u"enabled"_s, true}};
    QCOMPARE(daemon.errorOf(u"task.create"_s, QJsonObject{{u"task"_s, document}}), u"INVALID_PAYLOAD"_s);
    document.insert("enabled"_L1, false);
    const QString draft =
        daemon.data(u"task.create"_s, QJsonObject{{u"task"_s, document}}).value("taskId"_L1).toString();
    QVERIFY(!draft.isEmpty());
    QCOMPARE(daemon.errorOf(u"task.enable"_s, QJsonObject{{u"taskId"_s, draft}}), u"INVALID_PAYLOAD"_s);
    QCOMPARE(daemon.errorOf(u"group.enableAllTasks"_s, QJsonObject{{u"groupId"_s, u"ungrouped"_s}}), QString());
    const QJsonObject task = daemon.data(u"task.get"_s, QJsonObject{{u"taskId"_s, draft}}).value("task"_L1).toObject();
    QVERIFY(!task.value("enabled"_L1).toBool(true));
}

void TestDaemonTasks::unknownTypesAndGroupsAreRefused()
{
    EngineFixture daemon;
    QJsonObject document{{u"name"_s, u"name"_s}, {u"type"_s, u"task_type.all"_s}, {u"enabled"_s, true}};
    QCOMPARE(daemon.errorOf(u"task.create"_s, QJsonObject{{u"task"_s, document}}), u"TASK_TYPE_NOT_FOUND"_s);
    document.insert("type"_L1, u"task_type.test"_s);
    document.insert("groupId"_L1, u"no such group"_s);
    QCOMPARE(daemon.errorOf(u"task.create"_s, QJsonObject{{u"task"_s, document}}), u"GROUP_NOT_FOUND"_s);
    QCOMPARE(countByType(daemon, u"task_type.all"_s), 0);
}

void TestDaemonTasks::unknownTasksAreRefused_data()
{
    QTest::addColumn<QString>("command");
    for (const char *command :
         {"task.get", "task.update", "task.delete", "task.enable", "task.disable", "task.trigger", "task.moveToGroup"})
        QTest::newRow(command) << QString::fromLatin1(command);
}

void TestDaemonTasks::unknownTasksAreRefused()
{
    QFETCH(const QString, command);
    EngineFixture daemon;
    const QJsonObject payload{{u"taskId"_s, u"nobody"_s}, {u"task"_s, QJsonObject()}, {u"groupId"_s, u"ungrouped"_s}};
    QCOMPARE(daemon.errorOf(command, payload), u"TASK_NOT_FOUND"_s);
    QCOMPARE(daemon.auditActions(), QStringList());
}

void TestDaemonTasks::aRefusedUpdateChangesNothing()
{
    EngineFixture daemon;
    const QString taskId = daemon.addTask(u"name"_s);
    const QJsonObject before = daemon.task(taskId);
    const QJsonObject document{{u"name"_s, u"other"_s}, {u"groupId"_s, u"nowhere"_s}};
    QCOMPARE(daemon.errorOf(u"task.update"_s, updateOf(taskId, document)), u"GROUP_NOT_FOUND"_s);
    QCOMPARE(daemon.task(taskId), before);
}

void TestDaemonTasks::everyTaskTypeIsListedWithFieldsOfEveryKind()
{
    EngineFixture daemon;
    const QJsonArray types = daemon.data(u"tasktype.list"_s).value("taskTypes"_L1).toArray();
    QStringList ids;
    QSet<QString> kindsOfTest;
    for (const QJsonValue &value : types) {
        const QJsonObject type = value.toObject();
        ids.append(type.value("type"_L1).toString());
        QVERIFY(!type.value("name"_L1).toString().isEmpty());
        const QJsonArray fields = type.value("fields"_L1).toArray();
        for (const QJsonValue &field : fields) {
            QVERIFY2(field.toObject().value("defaultValue"_L1).isString(), qUtf8Printable(ids.last()));
            if (ids.last() == "task_type.test"_L1)
                kindsOfTest.insert(field.toObject().value("type"_L1).toString());
        }
    }
    QVERIFY(ids.contains(u"task_type.screen_record"_s));
    QVERIFY(ids.contains(u"task_type.audio_record"_s));
    QVERIFY(!ids.contains(u"task_type.all"_s));
    const QSet<QString> allKinds{u"int"_s, u"double"_s, u"bool"_s, u"select"_s, u"text"_s};
    QCOMPARE(kindsOfTest, allKinds);
}

ORVEL_TEST_MAIN(QCoreApplication, TestDaemonTasks)
#include "tst_daemontasks.moc"
