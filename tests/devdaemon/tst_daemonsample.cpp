#include "enginefixture.h"
#include "samplestate.h"
#include "testmain.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace Scheduler::DevDaemon;
using namespace TestSupport;

class TestDaemonSample : public QObject {
    Q_OBJECT

private slots:
    void everyLastRunStatusIsShown_data();
    void everyLastRunStatusIsShown();
    void everyDistanceToTheNextRunIsShown_data();
    void everyDistanceToTheNextRunIsShown();
    void overdueAndUnscheduledTasksAreShown();
    void enabledAndDisabledTasksOfSeveralTypesAreShown();
    void groupsStandInTwoLevelsWithColours();
    void theAuditTrailIsInOrderOfTime();
    void theSampleLivesOnInTheDaemon();
    void aGeneratedStateHasWhatWasAskedFor();
    void aGeneratedStateOfNothingIsEmpty();

private:
    const QDateTime m_now = QDateTime::fromString(u"2026-11-13T12:00:00Z"_s, Qt::ISODate);
    const State m_sample = sampleState(m_now, QTimeZone::utc());
};

void TestDaemonSample::everyLastRunStatusIsShown_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::newRow("success") << u"^success$"_s;
    QTest::newRow("failed with detail") << u"^failed - .+"_s;
    QTest::newRow("timeout with detail") << u"^timeout - .+"_s;
    QTest::newRow("running") << u"^running$"_s;
    QTest::newRow("pending") << u"^pending$"_s;
    QTest::newRow("disabled") << u"^disabled$"_s;
    QTest::newRow("unknown with detail") << u"^(?!success|failed|timeout|running|pending|disabled).+ - .+"_s;
    QTest::newRow("empty") << u"^$"_s;
}

void TestDaemonSample::everyLastRunStatusIsShown()
{
    QFETCH(const QString, pattern);
    const QRegularExpression expression(pattern);
    QVERIFY(std::any_of(m_sample.tasks.begin(), m_sample.tasks.end(),
                        [&](const Task &task) { return expression.match(task.lastRunStatus).hasMatch(); }));
}

void TestDaemonSample::everyDistanceToTheNextRunIsShown_data()
{
    QTest::addColumn<qint64>("from");
    QTest::addColumn<qint64>("to");
    QTest::newRow("seconds") << qint64(1) << qint64(60);
    QTest::newRow("minutes") << qint64(60) << qint64(3600);
    QTest::newRow("hours") << qint64(3600) << qint64(86400);
    QTest::newRow("days") << qint64(86400) << qint64(86400 * 7);
    QTest::newRow("weeks") << qint64(86400 * 7) << qint64(86400 * 365);
    QTest::newRow("overdue") << qint64(-86400) << qint64(0);
}

void TestDaemonSample::everyDistanceToTheNextRunIsShown()
{
    QFETCH(const qint64, from);
    QFETCH(const qint64, to);
    QVERIFY(std::any_of(m_sample.tasks.begin(), m_sample.tasks.end(), [&](const Task &task) {
        const qint64 seconds = m_now.secsTo(task.nextRunAt);
        return task.nextRunAt.isValid() && seconds >= from && seconds < to;
    }));
}

void TestDaemonSample::overdueAndUnscheduledTasksAreShown()
{
    const auto isEnabledWithoutNextRun = [](const Task &task) { return task.enabled && !task.nextRunAt.isValid(); };
    QVERIFY(std::any_of(m_sample.tasks.begin(), m_sample.tasks.end(), isEnabledWithoutNextRun));
    const auto isDisabledWithNextRun = [](const Task &task) { return !task.enabled && task.nextRunAt.isValid(); };
    QVERIFY(std::none_of(m_sample.tasks.begin(), m_sample.tasks.end(), isDisabledWithNextRun));
}

void TestDaemonSample::enabledAndDisabledTasksOfSeveralTypesAreShown()
{
    QSet<QString> types;
    QSet<bool> enabled;
    for (const Task &task : m_sample.tasks) {
        types.insert(task.type);
        enabled.insert(task.enabled);
    }
    QVERIFY(types.contains(u"task_type.screen_record"_s));
    QVERIFY(types.contains(u"task_type.audio_record"_s));
    QVERIFY(types.contains(u"task_type.test"_s));
    QCOMPARE(enabled.size(), 2);
}

void TestDaemonSample::groupsStandInTwoLevelsWithColours()
{
    const auto isChild = [](const Group &group) { return !group.parentId.isEmpty(); };
    const auto children = std::count_if(m_sample.groups.begin(), m_sample.groups.end(), isChild);
    QVERIFY(children > 0);
    QVERIFY(children < m_sample.groups.size());
    for (const Group &group : m_sample.groups)
        QVERIFY(QRegularExpression(u"^#[0-9a-f]{6}$"_s).match(group.color).hasMatch());
}

void TestDaemonSample::theAuditTrailIsInOrderOfTime()
{
    QVERIFY(!m_sample.audit.isEmpty());
    QCOMPARE(m_sample.lastAuditId, m_sample.audit.last().id);
    for (qsizetype position = 1; position < m_sample.audit.size(); ++position) {
        QVERIFY(m_sample.audit.at(position - 1).createdAt <= m_sample.audit.at(position).createdAt);
        QVERIFY(m_sample.audit.at(position - 1).id < m_sample.audit.at(position).id);
    }
    QVERIFY(m_sample.audit.last().createdAt <= m_now);
}

void TestDaemonSample::theSampleLivesOnInTheDaemon()
{
    EngineFixture daemon(m_sample);
    const int started = int(daemon.auditActions().count(u"task_run.started"_s));
    daemon.pass(0);
    QCOMPARE(daemon.auditActions().count(u"task_run.started"_s), started);
    daemon.pass(60);
    QCOMPARE(daemon.audit().first().value("action"_L1).toString(), u"task_run.started"_s);
    QCOMPARE(daemon.audit().first().value("entityName"_L1).toString(), u"Product demo"_s);
    QCOMPARE(daemon.groupTexts(QString()).size(), m_sample.groups.size() + 1);
}

void TestDaemonSample::aGeneratedStateHasWhatWasAskedFor()
{
    EngineFixture daemon(generatedState(m_now, QTimeZone::utc(), 1000, 50));
    const QJsonObject type{{u"type"_s, u"task_type.screen_record"_s}};
    QCOMPARE(daemon.data(u"task.countByType"_s, type).value("count"_L1).toInt(), 1000);
    const QList<QJsonObject> groups = daemon.groups(u"task_type.screen_record"_s);
    QCOMPARE(groups.size(), 51);
    const auto children = std::count_if(groups.begin(), groups.end(), [](const QJsonObject &group) {
        return !group.value("parentId"_L1).toString().isEmpty();
    });
    QCOMPARE(children, 40);
    daemon.pass(3600);
    QCOMPARE(daemon.auditActions(), QStringList());
}

void TestDaemonSample::aGeneratedStateOfNothingIsEmpty()
{
    EngineFixture daemon(generatedState(m_now, QTimeZone::utc(), 0, 0));
    QCOMPARE(daemon.groupTexts(QString()), QStringList());
}

ORVEL_TEST_MAIN(QCoreApplication, TestDaemonSample)
#include "tst_daemonsample.moc"
