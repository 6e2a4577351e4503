#include "enginefixture.h"
#include "testmain.h"

#include <limits>

using namespace Qt::StringLiterals;
using namespace Scheduler::DevDaemon;
using namespace TestSupport;

class TestDaemonRuns : public QObject {
    Q_OBJECT

private slots:
    void aTriggeredTaskPassesThroughRunningToItsOutcome();
    void aDueTaskStartsByItself();
    void aRecurringTaskIsScheduledAgainWhenItStarts();
    void aOneOffTaskThatHasRunHasNoNextRun();
    void aMissedRecurringStartIsLeftOut();
    void aMissedOneOffStartStaysOverdueUntilTriggered();
    void aDisabledTaskIsNotStartedButCanBeTriggered();
    void aRunningTaskCannotBeTriggeredAgain();
    void tenRunsShowEveryOutcome();
    void countersAtTheirEndKeepTheDaemonGoing();
    void theTestTypeChoosesOutcomeAndDuration_data();
    void theTestTypeChoosesOutcomeAndDuration();
    void deletingARunningTaskCancelsItsRun();
    void disablingLetsTheRunEnd();

private:
    static QString status(EngineFixture &daemon, const QString &taskId)
    {
        return daemon.task(taskId).value("lastRunStatus"_L1).toString();
    }
    static QString nextRunAt(EngineFixture &daemon, const QString &taskId)
    {
        return daemon.task(taskId).value("nextRunAt"_L1).toString();
    }
    static QString trigger(EngineFixture &daemon, const QString &taskId)
    {
        return daemon.errorOf(u"task.trigger"_s, QJsonObject{{u"taskId"_s, taskId}});
    }
};

void TestDaemonRuns::aTriggeredTaskPassesThroughRunningToItsOutcome()
{
    EngineFixture daemon;
    const QString taskId = daemon.addTask(u"task"_s);
    QCOMPARE(trigger(daemon, taskId), QString());
    QCOMPARE(status(daemon, taskId), u"running"_s);
    daemon.pass(4);
    QCOMPARE(status(daemon, taskId), u"running"_s);
    daemon.pass(1);
    QCOMPARE(status(daemon, taskId), u"success"_s);

    const QList<QJsonObject> audit = daemon.audit();
    QCOMPARE(audit.at(0).value("action"_L1).toString(), u"task_run"_s);
    QCOMPARE(audit.at(1).value("action"_L1).toString(), u"task_run.started"_s);
    QCOMPARE(audit.at(0).value("detailsJson"_L1).toObject().value("exitCode"_L1), QJsonValue(0));
    QCOMPARE(audit.at(0).value("operator"_L1).toString(), u"scheduler"_s);
    QCOMPARE(audit.at(1).value("operator"_L1).toString(), u"tester"_s);
    const QString runId = audit.at(1).value("detailsJson"_L1).toObject().value("runId"_L1).toString();
    QVERIFY(runId.size() > 8);
    QCOMPARE(audit.at(0).value("detailsJson"_L1).toObject().value("runId"_L1).toString(), runId);
}

void TestDaemonRuns::aDueTaskStartsByItself()
{
    EngineFixture daemon;
    const QString taskId = daemon.addTask(u"task"_s, {}, once(u"2026-11-13T12:00:30"_s));
    daemon.pass(29);
    QCOMPARE(status(daemon, taskId), u"pending"_s);
    daemon.pass(1);
    QCOMPARE(status(daemon, taskId), u"running"_s);
    QCOMPARE(daemon.audit().first().value("operator"_L1).toString(), u"scheduler"_s);
    daemon.pass(5);
    QCOMPARE(status(daemon, taskId), u"success"_s);
}

void TestDaemonRuns::aRecurringTaskIsScheduledAgainWhenItStarts()
{
    EngineFixture daemon;
    const QString taskId = daemon.addTask(u"task"_s, {}, daily(u"12:00:30"_s));
    daemon.pass(31);
    QCOMPARE(status(daemon, taskId), u"running"_s);
    QCOMPARE(nextRunAt(daemon, taskId), u"2026-11-14T12:00:30Z"_s);
}

void TestDaemonRuns::aOneOffTaskThatHasRunHasNoNextRun()
{
    EngineFixture daemon;
    const QString taskId = daemon.addTask(u"task"_s, {}, once(u"2026-11-13T12:00:30"_s));
    daemon.pass(30);
    daemon.pass(5);
    QCOMPARE(nextRunAt(daemon, taskId), QString());
    daemon.pass(3600);
    QCOMPARE(daemon.auditActions().count(u"task_run.started"_s), 1);
}

void TestDaemonRuns::aMissedRecurringStartIsLeftOut()
{
    EngineFixture daemon;
    const QString taskId = daemon.addTask(u"task"_s, {}, daily(u"13:00:00"_s));
    daemon.pass(26 * 3600);
    QCOMPARE(status(daemon, taskId), u"pending"_s);
    QCOMPARE(nextRunAt(daemon, taskId), u"2026-11-15T13:00:00Z"_s);
}

void TestDaemonRuns::aMissedOneOffStartStaysOverdueUntilTriggered()
{
    EngineFixture daemon;
    const QString taskId = daemon.addTask(u"task"_s, {}, once(u"2026-11-13T13:00:00"_s));
    daemon.pass(2 * 3600);
    QCOMPARE(status(daemon, taskId), u"pending"_s);
    QCOMPARE(nextRunAt(daemon, taskId), u"2026-11-13T13:00:00Z"_s);
    QCOMPARE(trigger(daemon, taskId), QString());
    QCOMPARE(nextRunAt(daemon, taskId), QString());
}

void TestDaemonRuns::aDisabledTaskIsNotStartedButCanBeTriggered()
{
    EngineFixture daemon;
    const QString taskId = daemon.addTask(u"task"_s, {}, once(u"2026-11-13T12:00:30"_s));
    daemon.data(u"task.disable"_s, QJsonObject{{u"taskId"_s, taskId}});
    daemon.pass(30);
    QCOMPARE(status(daemon, taskId), u"disabled"_s);
    QCOMPARE(trigger(daemon, taskId), QString());
    QCOMPARE(status(daemon, taskId), u"running"_s);
}

void TestDaemonRuns::aRunningTaskCannotBeTriggeredAgain()
{
    EngineFixture daemon;
    const QString taskId = daemon.addTask(u"task"_s);
    QCOMPARE(trigger(daemon, taskId), QString());
    QCOMPARE(trigger(daemon, taskId), u"TASK_ALREADY_RUNNING"_s);
    daemon.pass(5);
    QCOMPARE(trigger(daemon, taskId), QString());
}

void TestDaemonRuns::tenRunsShowEveryOutcome()
{
    EngineFixture daemon;
    const QString taskId = daemon.addTask(u"task"_s);
    QStringList outcomes;
    for (int run = 0; run < 10; ++run) {
        trigger(daemon, taskId);
        daemon.pass(5);
        outcomes.append(status(daemon, taskId).section(u" - "_s, 0, 0));
    }
    QCOMPARE(outcomes.count(u"success"_s), 8);
    QCOMPARE(outcomes.at(4), u"failed"_s);
    QCOMPARE(outcomes.at(8), u"timeout"_s);
}

void TestDaemonRuns::countersAtTheirEndKeepTheDaemonGoing()
{
    Task task;
    task.id = u"t"_s;
    task.runCount = std::numeric_limits<int>::max();
    State state;
    state.tasks = {task};
    state.lastAuditId = std::numeric_limits<qint64>::max();
    EngineFixture daemon(state);
    QCOMPARE(trigger(daemon, task.id), QString());
    QCOMPARE(daemon.engine.state().tasks.first().runCount, task.runCount);
    QCOMPARE(daemon.engine.state().lastAuditId, state.lastAuditId);
}

void TestDaemonRuns::theTestTypeChoosesOutcomeAndDuration_data()
{
    QTest::addColumn<QString>("outcome");
    QTest::addColumn<QString>("expectedStart");
    QTest::addColumn<QString>("action");
    QTest::newRow("success") << u"Success"_s << u"success"_s << u"task_run"_s;
    QTest::newRow("failure") << u"Failure"_s << u"failed - "_s << u"task_run.failed"_s;
    QTest::newRow("timeout") << u"Timeout"_s << u"timeout - "_s << u"task_run.timeout"_s;
    QTest::newRow("automatic") << u"Automatic"_s << u"success"_s << u"task_run"_s;
}

void TestDaemonRuns::theTestTypeChoosesOutcomeAndDuration()
{
    QFETCH(const QString, outcome);
    QFETCH(const QString, expectedStart);
    QFETCH(const QString, action);
    EngineFixture daemon;
    const QString taskId = daemon.addTask(u"task"_s, {}, {}, u"task_type.test"_s);
    const QJsonObject parameters{{u"simulatedOutcome"_s, outcome}, {u"simulatedSeconds"_s, 60}};
    const QJsonObject document{{u"paramsJson"_s, QJsonObject{{u"dynamicParams"_s, parameters}}}};
    daemon.data(u"task.update"_s, QJsonObject{{u"taskId"_s, taskId}, {u"task"_s, document}});
    QCOMPARE(trigger(daemon, taskId), QString());
    daemon.pass(59);
    QCOMPARE(status(daemon, taskId), u"running"_s);
    daemon.pass(1);
    const QString outcomeStatus = status(daemon, taskId);
    QVERIFY2(outcomeStatus.startsWith(expectedStart), qUtf8Printable(outcomeStatus));
    QCOMPARE(daemon.auditActions().first(), action);
}

void TestDaemonRuns::deletingARunningTaskCancelsItsRun()
{
    EngineFixture daemon;
    const QString taskId = daemon.addTask(u"task"_s);
    trigger(daemon, taskId);
    daemon.data(u"task.delete"_s, QJsonObject{{u"taskId"_s, taskId}});
    daemon.pass(60);
    const QStringList actions{u"task.deleted"_s, u"task_run.cancelled"_s, u"task_run.started"_s, u"task.created"_s};
    QCOMPARE(daemon.auditActions(), actions);
}

void TestDaemonRuns::disablingLetsTheRunEnd()
{
    EngineFixture daemon;
    const QString taskId = daemon.addTask(u"task"_s);
    trigger(daemon, taskId);
    daemon.data(u"task.disable"_s, QJsonObject{{u"taskId"_s, taskId}});
    QCOMPARE(status(daemon, taskId), u"running"_s);
    daemon.pass(5);
    QCOMPARE(status(daemon, taskId), u"success"_s);
}

ORVEL_TEST_MAIN(QCoreApplication, TestDaemonRuns)
#include "tst_daemonruns.moc"
