#include "enginefixture.h"
#include "testmain.h"

using namespace Qt::StringLiterals;
using namespace TestSupport;

class TestDaemonGroups : public QObject {
    Q_OBJECT

private slots:
    void aCreatedGroupIsReadBackAsSent();
    void groupsAreSortedByDisplayOrderAndThenByName();
    void anEmptyTypeListsTheGroupsOfAllTypes();
    void ungroupedIsListedWhileTasksOfTheTypeHaveNoGroup();
    void ungroupedSortsBehindEveryGroup();
    void countsTellEnabledTasksApart();
    void groupsNestInTwoLevelsOnly();
    void circlesAreRefused();
    void impossibleParentsAreRefused();
    void aGroupNeedsANameAndAType();
    void anUpdateWithoutATypeKeepsTheStoredOne();
    void anUpdateMovesAGroupBelowAnotherAndBack();
    void deletingAGroupUngroupsItsTasksAndRaisesItsChildren();
    void deletingWithChildrenUngroupsTheTasksOfAll();
    void ungroupedCanBeNeitherChangedNorDeleted();
    void unknownGroupsAreRefused_data();
    void unknownGroupsAreRefused();
};

namespace {

QJsonObject groupDocument(const QString &parentId, const QString &name = u"name"_s,
                          const QString &type = u"task_type.screen_record"_s)
{
    return {{u"name"_s, name}, {u"parentId"_s, parentId}, {u"taskType"_s, type}};
}

QJsonObject creationOf(const QJsonObject &document)
{
    return {{u"group"_s, document}};
}

QJsonObject updateOf(const QString &groupId, const QJsonObject &document)
{
    return {{u"groupId"_s, groupId}, {u"group"_s, document}};
}

QJsonObject deletionOf(const QString &groupId, bool deleteChildGroups)
{
    return {{u"groupId"_s, groupId}, {u"deleteChildGroups"_s, deleteChildGroups}};
}

} // namespace

void TestDaemonGroups::aCreatedGroupIsReadBackAsSent()
{
    EngineFixture daemon;
    const QString parentId = daemon.addGroup(u"Parent"_s);
    const QString groupId = daemon.addGroup(u" 研修 (old) "_s, parentId, 7);
    const QJsonObject group = daemon.group(groupId);
    QCOMPARE(group.value("id"_L1).toString(), groupId);
    QCOMPARE(group.value("name"_L1).toString(), u"研修 (old)"_s);
    QCOMPARE(group.value("description"_L1).toString(), u"about  研修 (old) "_s);
    QCOMPARE(group.value("color"_L1).toString(), u"#3498db"_s);
    QCOMPARE(group.value("parentId"_L1).toString(), parentId);
    QCOMPARE(group.value("taskType"_L1).toString(), u"task_type.screen_record"_s);
    QCOMPARE(group.value("displayOrder"_L1).toInt(), 7);
    QCOMPARE(group.value("createdAt"_L1).toString(), u"2026-11-13T12:00:00Z"_s);
}

void TestDaemonGroups::groupsAreSortedByDisplayOrderAndThenByName()
{
    EngineFixture daemon;
    daemon.addGroup(u"beta"_s, {}, 5);
    daemon.addGroup(u"last"_s, {}, 9999);
    daemon.addGroup(u"Alpha"_s, {}, 5);
    daemon.addGroup(u"zero"_s);
    const QStringList sorted{u"zero"_s, u"Alpha"_s, u"beta"_s, u"last"_s};
    QCOMPARE(daemon.groupTexts(u"task_type.screen_record"_s), sorted);
}

void TestDaemonGroups::anEmptyTypeListsTheGroupsOfAllTypes()
{
    EngineFixture daemon;
    daemon.addGroup(u"screen"_s);
    daemon.addGroup(u"audio"_s, {}, 1, u"task_type.audio_record"_s);
    const QStringList both{u"screen"_s, u"audio"_s};
    QCOMPARE(daemon.groupTexts(QString()), both);
    QCOMPARE(daemon.groupTexts(u"task_type.all"_s), both);
    QCOMPARE(daemon.groupTexts(u"task_type.audio_record"_s), QStringList{u"audio"_s});
}

void TestDaemonGroups::ungroupedIsListedWhileTasksOfTheTypeHaveNoGroup()
{
    EngineFixture daemon;
    const QString groupId = daemon.addGroup(u"Work"_s);
    QVERIFY(!daemon.groupTexts(u"task_type.screen_record"_s, u"id"_s).contains(u"ungrouped"_s));
    const QString taskId = daemon.addTask(u"task"_s);
    QCOMPARE(daemon.groupTexts(u"task_type.screen_record"_s, u"id"_s).last(), u"ungrouped"_s);
    QCOMPARE(daemon.groupTexts(u"task_type.screen_record"_s).last(), u"Ungrouped"_s);
    QCOMPARE(daemon.groups(u"task_type.screen_record"_s).last().value("taskCount"_L1).toInt(), 1);
    QVERIFY(!daemon.groupTexts(u"task_type.audio_record"_s, u"id"_s).contains(u"ungrouped"_s));

    daemon.data(u"task.moveToGroup"_s, QJsonObject{{u"taskId"_s, taskId}, {u"groupId"_s, groupId}});
    QVERIFY(!daemon.groupTexts(u"task_type.screen_record"_s, u"id"_s).contains(u"ungrouped"_s));
}

void TestDaemonGroups::ungroupedSortsBehindEveryGroup()
{
    EngineFixture daemon;
    daemon.addTask(u"task"_s);
    daemon.addGroup(u"Work"_s, {}, 20000);
    const QStringList names{u"Work"_s, u"Ungrouped"_s};
    QCOMPARE(daemon.groupTexts(u"task_type.all"_s), names);
}

void TestDaemonGroups::countsTellEnabledTasksApart()
{
    EngineFixture daemon;
    const QString groupId = daemon.addGroup(u"Work"_s);
    const QString taskId = daemon.addTask(u"a"_s, groupId);
    daemon.addTask(u"b"_s, groupId);
    daemon.data(u"task.disable"_s, QJsonObject{{u"taskId"_s, taskId}});
    QCOMPARE(daemon.group(groupId).value("taskCount"_L1).toInt(), 2);
    QCOMPARE(daemon.group(groupId).value("enabledTaskCount"_L1).toInt(), 1);
}

void TestDaemonGroups::groupsNestInTwoLevelsOnly()
{
    EngineFixture daemon;
    const QString top = daemon.addGroup(u"top"_s);
    const QString child = daemon.addGroup(u"child"_s, top);
    const QString otherTop = daemon.addGroup(u"other top"_s);
    const QString tooDeep = u"GROUP_NESTING_TOO_DEEP"_s;
    QCOMPARE(daemon.errorOf(u"group.create"_s, creationOf(groupDocument(child))), tooDeep);
    // A group with children would take them to the third level.
    QCOMPARE(daemon.errorOf(u"group.update"_s, updateOf(top, groupDocument(otherTop))), tooDeep);
    QCOMPARE(daemon.group(top).value("parentId"_L1).toString(), QString());
}

void TestDaemonGroups::circlesAreRefused()
{
    EngineFixture daemon;
    const QString top = daemon.addGroup(u"top"_s);
    const QString child = daemon.addGroup(u"child"_s, top);
    QCOMPARE(daemon.errorOf(u"group.update"_s, updateOf(top, groupDocument(top))), u"CIRCULAR_GROUP"_s);
    QCOMPARE(daemon.errorOf(u"group.update"_s, updateOf(top, groupDocument(child))), u"CIRCULAR_GROUP"_s);
}

void TestDaemonGroups::impossibleParentsAreRefused()
{
    EngineFixture daemon;
    QCOMPARE(daemon.errorOf(u"group.create"_s, creationOf(groupDocument(u"nowhere"_s))), u"GROUP_NOT_FOUND"_s);
    QCOMPARE(daemon.errorOf(u"group.create"_s, creationOf(groupDocument(u"ungrouped"_s))), u"GROUP_RESERVED"_s);
    QCOMPARE(daemon.groupTexts(QString()), QStringList());
}

void TestDaemonGroups::aGroupNeedsANameAndAType()
{
    EngineFixture daemon;
    QCOMPARE(daemon.errorOf(u"group.create"_s, creationOf(groupDocument({}, u" "_s))), u"INVALID_PAYLOAD"_s);
    for (const QString &type : {QString(), u"task_type.all"_s, u"nonsense"_s}) {
        const QJsonObject payload = creationOf(groupDocument({}, u"name"_s, type));
        QCOMPARE(daemon.errorOf(u"group.create"_s, payload), u"TASK_TYPE_NOT_FOUND"_s);
    }
}

void TestDaemonGroups::anUpdateWithoutATypeKeepsTheStoredOne()
{
    EngineFixture daemon;
    const QString groupId = daemon.addGroup(u"Work"_s);
    daemon.data(u"group.update"_s, updateOf(groupId, groupDocument({}, u"Office"_s, {})));
    QCOMPARE(daemon.group(groupId).value("name"_L1).toString(), u"Office"_s);
    QCOMPARE(daemon.group(groupId).value("taskType"_L1).toString(), u"task_type.screen_record"_s);
}

void TestDaemonGroups::anUpdateMovesAGroupBelowAnotherAndBack()
{
    EngineFixture daemon;
    const QString top = daemon.addGroup(u"top"_s);
    const QString groupId = daemon.addGroup(u"group"_s);
    daemon.data(u"group.update"_s, updateOf(groupId, groupDocument(top)));
    QCOMPARE(daemon.group(groupId).value("parentId"_L1).toString(), top);
    daemon.data(u"group.update"_s, updateOf(groupId, groupDocument({})));
    QCOMPARE(daemon.group(groupId).value("parentId"_L1).toString(), QString());
}

void TestDaemonGroups::deletingAGroupUngroupsItsTasksAndRaisesItsChildren()
{
    EngineFixture daemon;
    const QString top = daemon.addGroup(u"top"_s);
    const QString child = daemon.addGroup(u"child"_s, top);
    const QString taskId = daemon.addTask(u"in top"_s, top);
    daemon.addTask(u"in child"_s, child);

    daemon.data(u"group.delete"_s, deletionOf(top, false));
    const QStringList left{u"child"_s, u"Ungrouped"_s};
    QCOMPARE(daemon.groupTexts(u"task_type.screen_record"_s), left);
    QCOMPARE(daemon.group(child).value("parentId"_L1).toString(), QString());
    QCOMPARE(daemon.taskNamesIn(child), QStringList{u"in child"_s});
    QCOMPARE(daemon.taskNamesIn(u"ungrouped"_s), QStringList{u"in top"_s});
    QCOMPARE(daemon.task(taskId).value("groupId"_L1).toString(), QString());
}

void TestDaemonGroups::deletingWithChildrenUngroupsTheTasksOfAll()
{
    EngineFixture daemon;
    const QString top = daemon.addGroup(u"top"_s);
    const QString child = daemon.addGroup(u"child"_s, top);
    daemon.addTask(u"in top"_s, top);
    daemon.addTask(u"in child"_s, child);
    daemon.data(u"group.delete"_s, deletionOf(top, true));
    QCOMPARE(daemon.groupTexts(u"task_type.screen_record"_s), QStringList{u"Ungrouped"_s});
    const QStringList both{u"in top"_s, u"in child"_s};
    QCOMPARE(daemon.taskNamesIn(u"ungrouped"_s), both);
}

void TestDaemonGroups::ungroupedCanBeNeitherChangedNorDeleted()
{
    EngineFixture daemon;
    daemon.addTask(u"task"_s);
    QCOMPARE(daemon.errorOf(u"group.update"_s, updateOf(u"ungrouped"_s, groupDocument({}))), u"GROUP_RESERVED"_s);
    QCOMPARE(daemon.errorOf(u"group.delete"_s, deletionOf(u"ungrouped"_s, false)), u"GROUP_RESERVED"_s);
    QCOMPARE(daemon.group(u"ungrouped"_s).value("taskCount"_L1).toInt(), 1);
}

void TestDaemonGroups::unknownGroupsAreRefused_data()
{
    QTest::addColumn<QString>("command");
    for (const char *command :
         {"group.get", "group.update", "group.delete", "group.enableAllTasks", "group.disableAllTasks",
          "group.triggerAllTasks", "group.deleteAllTasks", "task.listByGroupAndType", "task.countByGroupAndType"})
        QTest::newRow(command) << QString::fromLatin1(command);
}

void TestDaemonGroups::unknownGroupsAreRefused()
{
    QFETCH(const QString, command);
    EngineFixture daemon;
    const QJsonObject payload{{u"groupId"_s, u"nobody"_s}, {u"group"_s, QJsonObject()}, {u"taskType"_s, QString()}};
    QCOMPARE(daemon.errorOf(command, payload), u"GROUP_NOT_FOUND"_s);
    QCOMPARE(daemon.auditActions(), QStringList());
}

ORVEL_TEST_MAIN(QCoreApplication, TestDaemonGroups)
#include "tst_daemongroups.moc"
