#include "platform.h"
#include "tasktexts.h"
#include "testmain.h"

#include <QCoreApplication>
#include <QTimeZone>

using namespace Scheduler;
using namespace Qt::StringLiterals;

namespace {

QString formatNextRun(const QDateTime &when, const QDateTime &now)
{
    return Scheduler::formatNextRun(countdownFrom(now, when));
}

/// The process is in that time zone while this lives.
class InZone {
public:
    explicit InZone(const char *name)
        : m_wasSet(qEnvironmentVariableIsSet("TZ"))
        , m_before(qgetenv("TZ"))
    {
        qputenv("TZ", name);
        tzset();
    }
    ~InZone()
    {
        m_wasSet ? qputenv("TZ", m_before) : qunsetenv("TZ");
        tzset();
    }
    Q_DISABLE_COPY_MOVE(InZone)

private:
    bool m_wasSet;
    QByteArray m_before;
};

} // namespace

class TestTaskTexts : public QObject {
    Q_OBJECT

private slots:
    void countsDownInWholeUnits_data();
    void countsDownInWholeUnits();
    void anInvalidTimeIsNotScheduled();
    void comparesTimesOfDifferentZones();
    void countsDownAcrossADaylightSavingChange_data();
    void countsDownAcrossADaylightSavingChange();
    void noCountdownIsNegativeWhateverTheClockDoes();
    void aStatusHasAWordAndAColour_data();
    void aStatusHasAWordAndAColour();
    void enabledTasksAreGreenAndDisabledOnesGrey();
};

void TestTaskTexts::countsDownInWholeUnits_data()
{
    QTest::addColumn<qint64>("milliseconds");
    QTest::addColumn<QString>("text");
    const auto row = [](qint64 seconds, const QString &text) {
        QTest::addRow("%lld s", static_cast<long long>(seconds)) << seconds * 1000 << text;
    };
    row(-86400, u"Overdue"_s);
    row(-1, u"Overdue"_s);
    row(0, u"0s left"_s);
    row(1, u"1s left"_s);
    row(59, u"59s left"_s);
    row(60, u"1m 0s left"_s);
    row(61, u"1m 1s left"_s);
    row(3599, u"59m 59s left"_s);
    row(3600, u"1h 0m left"_s);
    row(3659, u"1h 0m left"_s);
    row(3660, u"1h 1m left"_s);
    row(86399, u"23h 59m left"_s);
    row(86400, u"1d 0h left"_s);
    row(90061, u"1d 1h left"_s);
    row(qint64{70} * 86400, u"70d 0h left"_s);
    row(qint64{70} * 86400 - 1, u"69d 23h left"_s);
    QTest::newRow("nothing is rounded up") << qint64{59999} << u"59s left"_s;
    QTest::newRow("half a second ago") << qint64{-500} << u"0s left"_s;
}

void TestTaskTexts::countsDownInWholeUnits()
{
    QFETCH(qint64, milliseconds);
    const QDateTime now(QDate(2026, 3, 1), QTime(14, 7, 55));
    QTEST(formatNextRun(now.addMSecs(milliseconds), now), "text");
}

void TestTaskTexts::anInvalidTimeIsNotScheduled()
{
    QCOMPARE(formatNextRun(QDateTime(), QDateTime::currentDateTime()), u"Not scheduled"_s);
}

void TestTaskTexts::comparesTimesOfDifferentZones()
{
    const QDateTime now = QDateTime::fromString(u"2026-03-01T14:00:00+02:00"_s, Qt::ISODate);
    const QDateTime when = QDateTime::fromString(u"2026-03-01T12:30:00Z"_s, Qt::ISODate);
    QCOMPARE(formatNextRun(when, now), u"30m 0s left"_s);
}

void TestTaskTexts::countsDownAcrossADaylightSavingChange_data()
{
    if (!TestSupport::environmentTellsZone)
        QSKIP("the zone is the system's alone here");
    QTest::addColumn<QDateTime>("now");
    QTest::addColumn<QDateTime>("when");
    QTest::addColumn<QString>("text");
    // Times of the zone's clock, which goes from 2 to 3 on the first day and from 3 to 2 on the second.
    const QDate spring(2026, 3, 29);
    const QDate autumn(2026, 10, 25);
    const InZone zone("Europe/Berlin");
    QTest::newRow("an hour is left out") << QDateTime(spring, QTime(1, 30)) << QDateTime(spring, QTime(3, 30))
                                         << u"1h 0m left"_s;
    QTest::newRow("a day of 23 hours") << QDateTime(spring, QTime(0, 0)) << QDateTime(spring.addDays(1), QTime(0, 0))
                                       << u"23h 0m left"_s;
    QTest::newRow("an hour comes twice") << QDateTime(autumn, QTime(1, 30)) << QDateTime(autumn, QTime(3, 30))
                                         << u"3h 0m left"_s;
    QTest::newRow("a day of 25 hours") << QDateTime(autumn, QTime(0, 0)) << QDateTime(autumn.addDays(1), QTime(0, 0))
                                       << u"1d 1h left"_s;
    QTest::newRow("past, though the clock shows less")
        << QDateTime(autumn, QTime(1, 15), QTimeZone::utc()).toLocalTime()
        << QDateTime::fromString(u"2026-10-25T02:45:00+02:00"_s, Qt::ISODate) << u"Overdue"_s;
}

void TestTaskTexts::countsDownAcrossADaylightSavingChange()
{
    QFETCH(QDateTime, now);
    QFETCH(QDateTime, when);
    const InZone zone("Europe/Berlin");
    QTEST(formatNextRun(when, now), "text");
}

void TestTaskTexts::noCountdownIsNegativeWhateverTheClockDoes()
{
    const QDateTime when(QDate(2026, 3, 29), QTime(1, 0), QTimeZone::utc());
    for (const qint64 step : {qint64{1}, qint64{59}, qint64{3600}, qint64{8} * 3600, qint64{86400} * 365}) {
        for (int i = -100; i <= 100; ++i) {
            const QString text = formatNextRun(when, when.addSecs(i * step));
            QVERIFY2(!text.contains(u'-'), qPrintable(text));
            QCOMPARE(text == "Overdue"_L1, i > 0);
        }
    }
}

void TestTaskTexts::aStatusHasAWordAndAColour_data()
{
    QTest::addColumn<QString>("status");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QColor>("color");
    const auto row = [](const QString &status, const QString &text, const QColor &color) {
        QTest::addRow("'%s'", qPrintable(status)) << status << text << color;
    };
    const QColor orange(255, 165, 0, 255);
    row(u"success"_s, u"Success"_s, Qt::darkGreen);
    row(u"success - exit 0"_s, u"Success"_s, Qt::darkGreen);
    row(u"failed"_s, u"Failed"_s, Qt::red);
    row(u"failed - disk full - really"_s, u"Failed"_s, Qt::red);
    row(u"timeout"_s, u"Timeout"_s, Qt::red);
    row(u"running"_s, u"Running"_s, orange);
    row(u"pending"_s, u"Pending"_s, Qt::gray);
    row(u"disabled"_s, u"Disabled"_s, Qt::gray);
    row(u"SUCCESS"_s, u"Success"_s, Qt::gray);
    row(u"Failed - detail"_s, u"Failed"_s, Qt::gray);
    row(u"successful"_s, u"successful"_s, Qt::darkGreen);
    row(u"skipped - on battery"_s, u"skipped - on battery"_s, Qt::gray);
    row(u"success -exit"_s, u"success -exit"_s, Qt::darkGreen);
    row(u" - success"_s, u" - success"_s, Qt::gray);
    row(u"100% %1 <b>x</b>"_s, u"100% %1 <b>x</b>"_s, Qt::gray);
    row(QString(), QString(), Qt::gray);
}

void TestTaskTexts::aStatusHasAWordAndAColour()
{
    QFETCH(QString, status);
    QTEST(formatRunStatus(status), "text");
    QTEST(runStatusColor(status), "color");
}

void TestTaskTexts::enabledTasksAreGreenAndDisabledOnesGrey()
{
    QCOMPARE(enabledText(true), u"Enabled"_s);
    QCOMPARE(enabledText(false), u"Disabled"_s);
    QCOMPARE(enabledColor(true), QColor(Qt::darkGreen));
    QCOMPARE(enabledColor(false), QColor(Qt::gray));
}

ORVEL_TEST_MAIN(QCoreApplication, TestTaskTexts)
#include "tst_tasktexts.moc"
