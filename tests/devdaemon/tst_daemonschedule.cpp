#include "daemonschedule.h"
#include "daemontime.h"
#include "enginefixture.h"
#include "testmain.h"

using namespace Qt::StringLiterals;
using namespace Scheduler::DevDaemon;
using namespace TestSupport;

class TestDaemonSchedule : public QObject {
    Q_OBJECT

private slots:
    void recurringTasksStartNextAt_data();
    void recurringTasksStartNextAt();
    void clocksThatChangeMoveNoStart_data();
    void clocksThatChangeMoveNoStart();
    void oneOffTasksStartNextAt_data();
    void oneOffTasksStartNextAt();
    void nothingIsScheduledFor_data();
    void nothingIsScheduledFor();
    void isoTextIsReadAs_data();
    void isoTextIsReadAs();
    void wallTimeTextHasNoZone();
};

namespace {

QDateTime utc(const QString &text)
{
    return QDateTime::fromString(text, Qt::ISODate).toUTC();
}

Task taskStarting(const QJsonObject &start)
{
    Task task;
    task.enabled = true;
    task.paramsJson = paramsWith(start);
    return task;
}

} // namespace

void TestDaemonSchedule::recurringTasksStartNextAt_data()
{
    QTest::addColumn<QJsonObject>("start");
    QTest::addColumn<QString>("now");
    QTest::addColumn<QString>("expected");
    // 13 November 2026 is a Friday.
    QTest::newRow("daily, later today") << daily(u"18:30:00"_s) << u"2026-11-13T12:00:00Z"_s
                                        << u"2026-11-13T18:30:00Z"_s;
    QTest::newRow("daily, passed today") << daily(u"09:00:00"_s) << u"2026-11-13T12:00:00Z"_s
                                         << u"2026-11-14T09:00:00Z"_s;
    QTest::newRow("daily, this second") << daily(u"12:00:00"_s) << u"2026-11-13T12:00:00Z"_s
                                        << u"2026-11-14T12:00:00Z"_s;
    QTest::newRow("daily, over the year")
        << daily(u"00:00:00"_s) << u"2026-12-31T23:59:59Z"_s << u"2027-01-01T00:00:00Z"_s;
    QTest::newRow("daily, without seconds")
        << daily(u"18:30"_s) << u"2026-11-13T12:00:00Z"_s << u"2026-11-13T18:30:00Z"_s;
    QTest::newRow("weekly, later today") << weekly({u"Fri"_s}, u"18:00:00"_s) << u"2026-11-13T12:00:00Z"_s
                                         << u"2026-11-13T18:00:00Z"_s;
    QTest::newRow("weekly, only today and passed")
        << weekly({u"Fri"_s}, u"09:00:00"_s) << u"2026-11-13T12:00:00Z"_s << u"2026-11-20T09:00:00Z"_s;
    QTest::newRow("weekly, nearest of several days") << weekly({u"Mon"_s, u"Wed"_s, u"Thu"_s}, u"09:00:00"_s)
                                                     << u"2026-11-13T12:00:00Z"_s << u"2026-11-16T09:00:00Z"_s;
    QTest::newRow("weekly, Sunday") << weekly({u"Sun"_s}, u"09:00:00"_s) << u"2026-11-13T12:00:00Z"_s
                                    << u"2026-11-15T09:00:00Z"_s;
    QTest::newRow("weekly, unknown days ignored") << weekly({u"fri"_s, u"Freitag"_s, u"Sat"_s}, u"09:00:00"_s)
                                                  << u"2026-11-13T08:00:00Z"_s << u"2026-11-14T09:00:00Z"_s;
}

void TestDaemonSchedule::recurringTasksStartNextAt()
{
    QFETCH(const QJsonObject, start);
    QFETCH(const QString, now);
    QFETCH(const QString, expected);
    QCOMPARE(utcText(nextRun(taskStarting(start), utc(now), QTimeZone::utc())), expected);
}

void TestDaemonSchedule::clocksThatChangeMoveNoStart_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QString>("time");
    QTest::addColumn<QString>("now");
    QTest::addColumn<QString>("expected");
    const QByteArray berlin("Europe/Berlin");
    QTest::newRow("winter wall time") << berlin << u"09:00:00"_s << u"2026-03-27T12:00:00Z"_s
                                      << u"2026-03-28T08:00:00Z"_s;
    QTest::newRow("summer wall time") << berlin << u"09:00:00"_s << u"2026-03-28T12:00:00Z"_s
                                      << u"2026-03-29T07:00:00Z"_s;
    QTest::newRow("skipped time") << berlin << u"02:30:00"_s << u"2026-03-28T12:00:00Z"_s << u"2026-03-29T01:30:00Z"_s;
    QTest::newRow("day after skipped time")
        << berlin << u"02:30:00"_s << u"2026-03-29T01:30:00Z"_s << u"2026-03-30T00:30:00Z"_s;
    QTest::newRow("first of a doubled time")
        << berlin << u"02:30:00"_s << u"2026-10-24T12:00:00Z"_s << u"2026-10-25T00:30:00Z"_s;
    QTest::newRow("not the second of a doubled time")
        << berlin << u"02:30:00"_s << u"2026-10-25T00:30:00Z"_s << u"2026-10-26T01:30:00Z"_s;
    QTest::newRow("change of half an hour")
        << QByteArray("Australia/Lord_Howe") << u"02:15:00"_s << u"2026-10-03T12:00:00Z"_s << u"2026-10-03T15:45:00Z"_s;
    QTest::newRow("far in the east") << QByteArray("Pacific/Auckland") << u"00:30:00"_s << u"2026-01-01T12:00:00Z"_s
                                     << u"2026-01-02T11:30:00Z"_s;
    QTest::newRow("far in the west") << QByteArray("Pacific/Honolulu") << u"23:30:00"_s << u"2026-01-01T09:00:00Z"_s
                                     << u"2026-01-01T09:30:00Z"_s;
}

void TestDaemonSchedule::clocksThatChangeMoveNoStart()
{
    QFETCH(const QByteArray, zone);
    QFETCH(const QString, time);
    QFETCH(const QString, now);
    QFETCH(const QString, expected);
    const QTimeZone timeZone(zone);
    if (!timeZone.isValid())
        QSKIP("This machine has no time zone data.");
    QCOMPARE(utcText(nextRun(taskStarting(daily(time)), utc(now), timeZone)), expected);
}

void TestDaemonSchedule::oneOffTasksStartNextAt_data()
{
    QTest::addColumn<QString>("time");
    QTest::addColumn<QString>("lastRunAt");
    QTest::addColumn<QString>("expected");
    // Seen from noon of 13 November 2026.
    QTest::newRow("to come") << u"2026-11-13T18:00:00Z"_s << QString() << u"2026-11-13T18:00:00Z"_s;
    QTest::newRow("wall time") << u"2026-11-13T18:00:00"_s << QString() << u"2026-11-13T18:00:00Z"_s;
    QTest::newRow("to come, run by hand before")
        << u"2026-11-13T18:00:00Z"_s << u"2026-11-13T11:00:00Z"_s << u"2026-11-13T18:00:00Z"_s;
    QTest::newRow("passed without a run, so overdue")
        << u"2026-11-13T10:00:00Z"_s << QString() << u"2026-11-13T10:00:00Z"_s;
    QTest::newRow("passed and run on time") << u"2026-11-13T10:00:00Z"_s << u"2026-11-13T10:00:00Z"_s << QString();
    QTest::newRow("passed and run later by hand")
        << u"2026-11-13T10:00:00Z"_s << u"2026-11-13T11:30:00Z"_s << QString();
}

void TestDaemonSchedule::oneOffTasksStartNextAt()
{
    QFETCH(const QString, time);
    QFETCH(const QString, lastRunAt);
    QFETCH(const QString, expected);
    Task task = taskStarting(once(time));
    task.lastRunAt = utc(lastRunAt);
    QVERIFY(isOneOff(task));
    QCOMPARE(utcText(nextRun(task, utc(u"2026-11-13T12:00:00Z"_s), QTimeZone::utc())), expected);
}

void TestDaemonSchedule::nothingIsScheduledFor_data()
{
    QTest::addColumn<QJsonObject>("start");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("a disabled daily task") << daily(u"18:00:00"_s) << false;
    QTest::newRow("a disabled one-off task") << once(u"2026-11-14T12:00:00Z"_s) << false;
    QTest::newRow("a monitored program") << QJsonObject{{u"mode"_s, u"monitorApp"_s}} << true;
    QTest::newRow("a monitored folder") << QJsonObject{{u"mode"_s, u"monitorFolder"_s}} << true;
    QTest::newRow("no start mode") << QJsonObject() << true;
    QTest::newRow("an unknown start mode") << QJsonObject{{u"mode"_s, u"everyday"_s}} << true;
    QTest::newRow("a mode that is a number") << QJsonObject{{u"mode"_s, 5}} << true;
    QTest::newRow("a malformed date") << once(u"13.11.2026 18:00"_s) << true;
    QTest::newRow("a malformed time") << daily(u"25:00:00"_s) << true;
    QTest::newRow("a missing time") << QJsonObject{{u"mode"_s, u"EveryDay"_s}} << true;
    QTest::newRow("no weekday") << weekly({}, u"18:00:00"_s) << true;
    QTest::newRow("only unknown weekdays") << weekly({u"Frid"_s}, u"18:00:00"_s) << true;
}

void TestDaemonSchedule::nothingIsScheduledFor()
{
    QFETCH(const QJsonObject, start);
    QFETCH(const bool, enabled);
    Task task = taskStarting(start);
    task.enabled = enabled;
    QVERIFY(!nextRun(task, utc(u"2026-11-13T12:00:00Z"_s), QTimeZone::utc()).isValid());
}

void TestDaemonSchedule::isoTextIsReadAs_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("UTC") << u"2026-07-01T12:00:00Z"_s << u"2026-07-01T12:00:00Z"_s;
    QTest::newRow("offset") << u"2026-07-01T12:00:00+05:30"_s << u"2026-07-01T06:30:00Z"_s;
    QTest::newRow("summer wall time") << u"2026-07-01T12:00:00"_s << u"2026-07-01T10:00:00Z"_s;
    QTest::newRow("winter wall time") << u"2026-01-01T12:00:00"_s << u"2026-01-01T11:00:00Z"_s;
    QTest::newRow("skipped wall time") << u"2026-03-29T02:30:00"_s << u"2026-03-29T01:30:00Z"_s;
    QTest::newRow("malformed") << u"1.7.2026"_s << QString();
    QTest::newRow("empty") << QString() << QString();
}

void TestDaemonSchedule::isoTextIsReadAs()
{
    QFETCH(const QString, text);
    QFETCH(const QString, expected);
    const QTimeZone berlin("Europe/Berlin");
    if (!berlin.isValid())
        QSKIP("This machine has no time zone data.");
    QCOMPARE(utcText(utcFromIsoText(text, berlin)), expected);
}

void TestDaemonSchedule::wallTimeTextHasNoZone()
{
    const QDateTime time = utc(u"2026-11-13T12:00:00Z"_s);
    QCOMPARE(wallTimeText(time, QTimeZone(3 * 3600)), u"2026-11-13T15:00:00"_s);
    QCOMPARE(wallTimeText(time, QTimeZone::utc()), u"2026-11-13T12:00:00"_s);
    QCOMPARE(wallTimeText(QDateTime(), QTimeZone::utc()), QString());
}

ORVEL_TEST_MAIN(QCoreApplication, TestDaemonSchedule)
#include "tst_daemonschedule.moc"
