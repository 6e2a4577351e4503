#include "enginefixture.h"
#include "testmain.h"

using namespace Qt::StringLiterals;
using namespace TestSupport;
using Scheduler::DevDaemon::EngineSettings;

class TestDaemonAudit : public QObject {
    Q_OBJECT

private slots:
    void everyChangeOfATaskIsRecorded();
    void everyChangeOfAGroupIsRecorded();
    void commandsThatChangeNothingAreNotRecorded();
    void aCreatedTaskNamesItsScheduleMode();
    void anEntryNamesEntityActorAndTime();
    void theNewestComeFirstUnlessAscending();
    void theLimitKeepsTheNewest();
    void aTypeFilterLeavesOtherTypesOut();
    void fromAndToAreInclusive();
    void malformedBoundsAreRefused();
    void theOldestEntriesGoWhenThereAreTooMany();
    void timesAreWallTimesWithoutAZone();
};

void TestDaemonAudit::everyChangeOfATaskIsRecorded()
{
    EngineFixture daemon;
    const QString groupId = daemon.addGroup(u"Work"_s);
    const QString taskId = daemon.addTask(u"task"_s);
    const QJsonObject target{{u"taskId"_s, taskId}};
    daemon.data(u"task.update"_s, QJsonObject{{u"taskId"_s, taskId}, {u"task"_s, QJsonObject()}});
    daemon.data(u"task.disable"_s, target);
    daemon.data(u"task.enable"_s, target);
    daemon.data(u"task.moveToGroup"_s, QJsonObject{{u"taskId"_s, taskId}, {u"groupId"_s, groupId}});
    daemon.data(u"task.delete"_s, target);
    const QStringList actions{u"task.deleted"_s, u"task.moved"_s,   u"task.enabled"_s, u"task.disabled"_s,
                              u"task.updated"_s, u"task.created"_s, u"group.created"_s};
    QCOMPARE(daemon.auditActions(), actions);
    QCOMPARE(daemon.audit().at(1).value("detailsJson"_L1).toObject().value("groupName"_L1).toString(), u"Work"_s);
}

void TestDaemonAudit::everyChangeOfAGroupIsRecorded()
{
    EngineFixture daemon;
    const QString top = daemon.addGroup(u"top"_s);
    daemon.addGroup(u"child"_s, top);
    daemon.data(u"group.update"_s, QJsonObject{{u"groupId"_s, top}, {u"group"_s, QJsonObject{{u"name"_s, u"new"_s}}}});
    daemon.data(u"group.delete"_s, QJsonObject{{u"groupId"_s, top}, {u"deleteChildGroups"_s, true}});
    QStringList entries;
    const QList<QJsonObject> audit = daemon.audit();
    for (const QJsonObject &entry : audit)
        entries.append(entry.value("action"_L1).toString() + u' ' + entry.value("entityName"_L1).toString());
    const QStringList expected{u"group.deleted new"_s, u"group.deleted child"_s, u"group.updated new"_s,
                               u"group.created child"_s, u"group.created top"_s};
    QCOMPARE(entries, expected);
}

void TestDaemonAudit::commandsThatChangeNothingAreNotRecorded()
{
    EngineFixture daemon;
    const QString taskId = daemon.addTask(u"task"_s);
    const QJsonObject target{{u"taskId"_s, taskId}};
    daemon.data(u"task.enable"_s, target);
    daemon.data(u"task.moveToGroup"_s, QJsonObject{{u"taskId"_s, taskId}, {u"groupId"_s, u"ungrouped"_s}});
    daemon.data(u"task.get"_s, target);
    QCOMPARE(daemon.auditActions(), QStringList{u"task.created"_s});
}

void TestDaemonAudit::aCreatedTaskNamesItsScheduleMode()
{
    EngineFixture daemon;
    daemon.addTask(u"daily"_s, {}, daily(u"09:00:00"_s));
    daemon.addTask(u"without"_s);
    const QList<QJsonObject> audit = daemon.audit();
    QCOMPARE(audit.at(1).value("detailsJson"_L1).toObject().value("scheduleMode"_L1), QJsonValue(u"EveryDay"_s));
    QCOMPARE(audit.at(0).value("detailsJson"_L1).toObject().value("scheduleMode"_L1), QJsonValue(QString()));
}

void TestDaemonAudit::anEntryNamesEntityActorAndTime()
{
    EngineFixture daemon;
    daemon.actor = u"task_type.screen_record"_s;
    const QString taskId = daemon.addTask(u"<b>"_s);
    const QJsonObject entry = daemon.audit().first();
    QCOMPARE(entry.value("entityId"_L1).toString(), taskId);
    QCOMPARE(entry.value("entityName"_L1).toString(), u"<b>"_s);
    QCOMPARE(entry.value("taskType"_L1).toString(), u"task_type.screen_record"_s);
    QCOMPARE(entry.value("operator"_L1).toString(), u"task_type.screen_record"_s);
    QCOMPARE(entry.value("result"_L1), QJsonValue(true));
    QVERIFY(entry.value("id"_L1).toInteger() > 0);
    QVERIFY(!entry.value("message"_L1).toString().isEmpty());
}

void TestDaemonAudit::theNewestComeFirstUnlessAscending()
{
    EngineFixture daemon;
    daemon.addGroup(u"first"_s);
    daemon.addTask(u"second"_s);
    const QStringList ascending{u"group.created"_s, u"task.created"_s};
    const QStringList descending{u"task.created"_s, u"group.created"_s};
    QCOMPARE(daemon.auditActions({{u"ascending"_s, true}}), ascending);
    QCOMPARE(daemon.auditActions({{u"ascending"_s, false}}), descending);
}

void TestDaemonAudit::theLimitKeepsTheNewest()
{
    EngineFixture daemon;
    for (int count = 0; count < 101; ++count)
        daemon.addTask(QString::number(count));
    const QList<QJsonObject> audit = daemon.audit({{u"limit"_s, 100}});
    QCOMPARE(audit.size(), 100);
    QCOMPARE(audit.first().value("entityName"_L1).toString(), u"100"_s);
    QCOMPARE(audit.last().value("entityName"_L1).toString(), u"1"_s);
    QCOMPARE(daemon.audit({{u"limit"_s, 3}}).size(), 3);
    const QList<QJsonObject> ascending = daemon.audit({{u"limit"_s, 2}, {u"ascending"_s, true}});
    QCOMPARE(ascending.size(), 2);
    QCOMPARE(ascending.first().value("entityName"_L1).toString(), u"99"_s);
    QCOMPARE(ascending.last().value("entityName"_L1).toString(), u"100"_s);
    QCOMPARE(daemon.audit({{u"limit"_s, 0}}).size(), 100);
}

void TestDaemonAudit::aTypeFilterLeavesOtherTypesOut()
{
    EngineFixture daemon;
    daemon.addTask(u"screen"_s);
    daemon.addTask(u"audio"_s, {}, {}, u"task_type.audio_record"_s);
    const QList<QJsonObject> audit = daemon.audit({{u"taskType"_s, u"task_type.audio_record"_s}});
    QCOMPARE(audit.size(), 1);
    QCOMPARE(audit.first().value("entityName"_L1).toString(), u"audio"_s);
}

void TestDaemonAudit::fromAndToAreInclusive()
{
    EngineFixture daemon;
    for (int minute = 0; minute < 4; ++minute) {
        daemon.addTask(QString::number(minute));
        daemon.pass(60);
    }
    const auto names = [&daemon](const QJsonObject &extra) {
        QString joined;
        const QList<QJsonObject> audit = daemon.audit(extra);
        for (const QJsonObject &entry : audit)
            joined += entry.value("entityName"_L1).toString();
        return joined;
    };
    QCOMPARE(names({{u"from"_s, u"2026-11-13T12:02:00"_s}}), u"32"_s);
    QCOMPARE(names({{u"to"_s, u"2026-11-13T12:01:00Z"_s}}), u"10"_s);
    QCOMPARE(names({{u"from"_s, u"2026-11-13T12:01:00Z"_s}, {u"to"_s, u"2026-11-13T12:02:00Z"_s}}), u"21"_s);
    QCOMPARE(names({{u"from"_s, u"2027-01-01T00:00:00Z"_s}}), QString());
}

void TestDaemonAudit::malformedBoundsAreRefused()
{
    EngineFixture daemon;
    for (const QString &key : {u"from"_s, u"to"_s}) {
        const QJsonObject payload{{u"taskType"_s, QString()}, {key, u"yesterday"_s}};
        QCOMPARE(daemon.errorOf(u"audit.list"_s, payload), u"INVALID_PAYLOAD"_s);
    }
}

void TestDaemonAudit::theOldestEntriesGoWhenThereAreTooMany()
{
    EngineSettings settings = EngineFixture::inUtc();
    settings.maxAuditEntries = 3;
    EngineFixture daemon({}, settings);
    for (int count = 1; count <= 5; ++count)
        daemon.addTask(QString::number(count));
    const QList<QJsonObject> audit = daemon.audit();
    QCOMPARE(audit.size(), 3);
    QCOMPARE(audit.first().value("id"_L1).toInteger(), 5);
    QCOMPARE(audit.last().value("id"_L1).toInteger(), 3);
}

void TestDaemonAudit::timesAreWallTimesWithoutAZone()
{
    EngineSettings settings;
    settings.zone = QTimeZone(2 * 3600);
    EngineFixture daemon({}, settings);
    daemon.addTask(u"task"_s);
    QCOMPARE(daemon.audit().first().value("createdAt"_L1).toString(), u"2026-11-13T14:00:00"_s);
}

ORVEL_TEST_MAIN(QCoreApplication, TestDaemonAudit)
#include "tst_daemonaudit.moc"
