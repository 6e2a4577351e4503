#include "enginefixture.h"
#include "testmain.h"

using namespace Qt::StringLiterals;
using namespace TestSupport;

class TestDaemonGroupTasks : public QObject {
    Q_OBJECT

private slots:
    void init();
    void enablingAndDisablingReachTheGroupsOwnTasksOnly();
    void triggeringStartsTheGroupsOwnTasksOnly();
    void triggeringLeavesRunningTasksAlone();
    void deletingRemovesTheGroupsOwnTasksOnly();
    void ungroupedWorksLikeAGroup();
    void aClientOfOneTypeReachesOnlyItsOwnTasks();
    void anEmptyGroupIdIsRefused();
    void aGroupWithoutTasksSucceeds();

private:
    void call(const QString &command, const QString &groupId)
    {
        m_daemon->data(command, QJsonObject{{u"groupId"_s, groupId}});
    }
    QString statusOf(const QString &taskId)
    {
        return m_daemon->task(taskId).value("lastRunStatus"_L1).toString();
    }

    std::unique_ptr<EngineFixture> m_daemon;
    QString m_top;
    QString m_child;
    QString m_inTop;
    QString m_inChild;
    QString m_loose;
};

void TestDaemonGroupTasks::init()
{
    m_daemon = std::make_unique<EngineFixture>();
    m_top = m_daemon->addGroup(u"top"_s);
    m_child = m_daemon->addGroup(u"child"_s, m_top);
    m_inTop = m_daemon->addTask(u"in top"_s, m_top);
    m_inChild = m_daemon->addTask(u"in child"_s, m_child);
    m_loose = m_daemon->addTask(u"loose"_s);
}

void TestDaemonGroupTasks::enablingAndDisablingReachTheGroupsOwnTasksOnly()
{
    call(u"group.disableAllTasks"_s, m_top);
    QCOMPARE(m_daemon->group(m_top).value("enabledTaskCount"_L1).toInt(-1), 0);
    QCOMPARE(m_daemon->group(m_child).value("enabledTaskCount"_L1).toInt(-1), 1);
    QCOMPARE(m_daemon->group(u"ungrouped"_s).value("enabledTaskCount"_L1).toInt(-1), 1);
    call(u"group.enableAllTasks"_s, m_top);
    QCOMPARE(m_daemon->group(m_top).value("enabledTaskCount"_L1).toInt(-1), 1);
}

void TestDaemonGroupTasks::triggeringStartsTheGroupsOwnTasksOnly()
{
    call(u"group.triggerAllTasks"_s, m_top);
    QCOMPARE(statusOf(m_inTop), u"running"_s);
    QCOMPARE(statusOf(m_inChild), u"pending"_s);
    QCOMPARE(statusOf(m_loose), u"pending"_s);
}

void TestDaemonGroupTasks::triggeringLeavesRunningTasksAlone()
{
    m_daemon->data(u"task.trigger"_s, QJsonObject{{u"taskId"_s, m_inTop}});
    call(u"group.triggerAllTasks"_s, m_top);
    QCOMPARE(m_daemon->auditActions().count(u"task_run.started"_s), 1);
}

void TestDaemonGroupTasks::deletingRemovesTheGroupsOwnTasksOnly()
{
    call(u"group.deleteAllTasks"_s, m_top);
    QCOMPARE(m_daemon->countIn(m_top), 0);
    QCOMPARE(m_daemon->countIn(m_child), 1);
    QCOMPARE(m_daemon->countIn(u"ungrouped"_s), 1);
    QCOMPARE(m_daemon->group(m_top).value("name"_L1).toString(), u"top"_s);
}

void TestDaemonGroupTasks::ungroupedWorksLikeAGroup()
{
    call(u"group.disableAllTasks"_s, u"ungrouped"_s);
    QCOMPARE(m_daemon->task(m_loose).value("enabled"_L1), QJsonValue(false));
    QCOMPARE(m_daemon->task(m_inTop).value("enabled"_L1), QJsonValue(true));
    call(u"group.triggerAllTasks"_s, u"ungrouped"_s);
    QCOMPARE(statusOf(m_loose), u"running"_s);
    call(u"group.deleteAllTasks"_s, u"ungrouped"_s);
    QCOMPARE(m_daemon->countIn(u"ungrouped"_s), 0);
    QCOMPARE(m_daemon->countIn(m_top), 1);
}

void TestDaemonGroupTasks::aClientOfOneTypeReachesOnlyItsOwnTasks()
{
    m_daemon->addTask(u"loose audio"_s, {}, {}, u"task_type.audio_record"_s);
    m_daemon->actor = u"task_type.screen_record"_s;
    call(u"group.deleteAllTasks"_s, u"ungrouped"_s);
    QCOMPARE(m_daemon->taskNamesIn(u"ungrouped"_s), QStringList{u"loose audio"_s});
    m_daemon->actor = u"task_type.all"_s;
    call(u"group.deleteAllTasks"_s, u"ungrouped"_s);
    QCOMPARE(m_daemon->taskNamesIn(u"ungrouped"_s), QStringList());
}

void TestDaemonGroupTasks::anEmptyGroupIdIsRefused()
{
    const QJsonObject payload{{u"groupId"_s, QString()}};
    QCOMPARE(m_daemon->errorOf(u"group.deleteAllTasks"_s, payload), u"GROUP_NOT_FOUND"_s);
    QCOMPARE(m_daemon->countIn(u"ungrouped"_s), 1);
}

void TestDaemonGroupTasks::aGroupWithoutTasksSucceeds()
{
    const QString emptyGroup = m_daemon->addGroup(u"empty"_s);
    for (const QString &command :
         {u"group.enableAllTasks"_s, u"group.disableAllTasks"_s, u"group.triggerAllTasks"_s, u"group.deleteAllTasks"_s})
        QCOMPARE(m_daemon->errorOf(command, QJsonObject{{u"groupId"_s, emptyGroup}}), QString());
}

ORVEL_TEST_MAIN(QCoreApplication, TestDaemonGroupTasks)
#include "tst_daemongrouptasks.moc"
