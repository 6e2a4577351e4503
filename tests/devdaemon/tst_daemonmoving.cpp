#include "enginefixture.h"
#include "testmain.h"

using namespace Qt::StringLiterals;
using namespace TestSupport;

class TestDaemonMoving : public QObject {
    Q_OBJECT

private slots:
    void aMovedTaskIsCountedInItsNewGroup();
    void movingToUngroupedEmptiesTheGroupId_data();
    void movingToUngroupedEmptiesTheGroupId();
    void aBatchMovesTogether();
    void aBatchWithAnUnknownTaskMovesNothing();
    void anEmptyBatchSucceeds();
    void movingToAnUnknownGroupIsRefused();
    void aTaskCreatedInUngroupedHasNoGroupId();
    void aGroupThatHoldsTasksOfAnotherTypeIsListedForItToo();
};

namespace {

QJsonObject moveOf(const QString &taskId, const QString &groupId)
{
    return {{u"taskId"_s, taskId}, {u"groupId"_s, groupId}};
}

QJsonObject batchOf(const QStringList &taskIds, const QString &groupId)
{
    return {{u"taskIds"_s, QJsonArray::fromStringList(taskIds)}, {u"groupId"_s, groupId}};
}

} // namespace

void TestDaemonMoving::aMovedTaskIsCountedInItsNewGroup()
{
    EngineFixture daemon;
    const QString from = daemon.addGroup(u"From"_s);
    const QString to = daemon.addGroup(u"To"_s);
    const QString taskId = daemon.addTask(u"task"_s, from);
    daemon.data(u"task.moveToGroup"_s, moveOf(taskId, to));
    QCOMPARE(daemon.countIn(from), 0);
    QCOMPARE(daemon.countIn(to), 1);
    QCOMPARE(daemon.taskNamesIn(to), QStringList{u"task"_s});
    QCOMPARE(daemon.group(from).value("taskCount"_L1).toInt(), 0);
    QCOMPARE(daemon.group(to).value("taskCount"_L1).toInt(), 1);
}

void TestDaemonMoving::movingToUngroupedEmptiesTheGroupId_data()
{
    QTest::addColumn<QString>("target");
    QTest::newRow("reserved id") << u"ungrouped"_s;
    QTest::newRow("empty id") << QString();
}

void TestDaemonMoving::movingToUngroupedEmptiesTheGroupId()
{
    QFETCH(const QString, target);
    EngineFixture daemon;
    const QString from = daemon.addGroup(u"From"_s);
    const QString taskId = daemon.addTask(u"task"_s, from);
    daemon.data(u"task.moveToGroup"_s, moveOf(taskId, target));
    QCOMPARE(daemon.task(taskId).value("groupId"_L1), QJsonValue(QString()));
    QCOMPARE(daemon.taskNamesIn(u"ungrouped"_s), QStringList{u"task"_s});
    QCOMPARE(daemon.countIn(from), 0);
}

void TestDaemonMoving::aBatchMovesTogether()
{
    EngineFixture daemon;
    const QString to = daemon.addGroup(u"To"_s);
    const QStringList taskIds{daemon.addTask(u"a"_s), daemon.addTask(u"b"_s), daemon.addTask(u"c"_s)};
    daemon.data(u"task.batchMoveToGroup"_s, batchOf({taskIds.at(0), taskIds.at(2)}, to));
    const QStringList moved{u"a"_s, u"c"_s};
    QCOMPARE(daemon.taskNamesIn(to), moved);
    QCOMPARE(daemon.taskNamesIn(u"ungrouped"_s), QStringList{u"b"_s});
}

void TestDaemonMoving::aBatchWithAnUnknownTaskMovesNothing()
{
    EngineFixture daemon;
    const QString to = daemon.addGroup(u"To"_s);
    const QString taskId = daemon.addTask(u"a"_s);
    QCOMPARE(daemon.errorOf(u"task.batchMoveToGroup"_s, batchOf({taskId, u"nobody"_s}, to)), u"TASK_NOT_FOUND"_s);
    QCOMPARE(daemon.countIn(to), 0);
}

void TestDaemonMoving::anEmptyBatchSucceeds()
{
    EngineFixture daemon;
    QCOMPARE(daemon.errorOf(u"task.batchMoveToGroup"_s, batchOf({}, u"ungrouped"_s)), QString());
}

void TestDaemonMoving::movingToAnUnknownGroupIsRefused()
{
    EngineFixture daemon;
    const QString home = daemon.addGroup(u"Home"_s);
    const QString taskId = daemon.addTask(u"a"_s, home);
    QCOMPARE(daemon.errorOf(u"task.moveToGroup"_s, moveOf(taskId, u"nowhere"_s)), u"GROUP_NOT_FOUND"_s);
    QCOMPARE(daemon.errorOf(u"task.batchMoveToGroup"_s, batchOf({taskId}, u"nowhere"_s)), u"GROUP_NOT_FOUND"_s);
    QCOMPARE(daemon.countIn(home), 1);
}

void TestDaemonMoving::aTaskCreatedInUngroupedHasNoGroupId()
{
    EngineFixture daemon;
    const QString taskId = daemon.addTask(u"a"_s, u"ungrouped"_s);
    QCOMPARE(daemon.task(taskId).value("groupId"_L1), QJsonValue(QString()));
}

void TestDaemonMoving::aGroupThatHoldsTasksOfAnotherTypeIsListedForItToo()
{
    EngineFixture daemon;
    const QString screenGroup = daemon.addGroup(u"Work"_s);
    const QString audioTask = daemon.addTask(u"audio"_s, {}, {}, u"task_type.audio_record"_s);
    daemon.addTask(u"screen"_s, screenGroup);
    QCOMPARE(daemon.groupTexts(u"task_type.audio_record"_s), QStringList{u"Ungrouped"_s});

    daemon.data(u"task.moveToGroup"_s, moveOf(audioTask, screenGroup));
    QCOMPARE(daemon.groupTexts(u"task_type.audio_record"_s), QStringList{u"Work"_s});
    QCOMPARE(daemon.groups(u"task_type.audio_record"_s).first().value("taskCount"_L1).toInt(), 1);
    QCOMPARE(daemon.groups(u"task_type.all"_s).first().value("taskCount"_L1).toInt(), 2);
}

ORVEL_TEST_MAIN(QCoreApplication, TestDaemonMoving)
#include "tst_daemonmoving.moc"
