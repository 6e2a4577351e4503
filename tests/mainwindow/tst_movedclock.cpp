#include "movedclock.h"

#include "logcapture.h"
#include "mcslogger.h"
#include "testmain.h"
#include "windowfixture.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QTableWidget>

using namespace Scheduler;
using namespace TestSupport;
using namespace Qt::StringLiterals;

namespace {

QDateTime at(const QString &text)
{
    return QDateTime::fromString(text, Qt::ISODate);
}

void setZone(const QByteArray &name)
{
    qputenv("TZ", name);
    ::tzset();
}

} // namespace

/// Somebody sets the clock or travels, or summer begins or ends, while the window is open.
class TestMovedClock : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void theCountdownIsRightAtTheNextTick_data();
    void theCountdownIsRightAtTheNextTick();
    void theLogTellsTheTimeOfTheClock_data();
    void theLogTellsTheTimeOfTheClock();
    void aWaitForTheDaemonDoesNotHangOnTheClock();

private:
    QByteArray m_zone;
    bool m_zoneWasSet = false;
};

void TestMovedClock::initTestCase()
{
    m_zoneWasSet = qEnvironmentVariableIsSet("TZ");
    m_zone = qgetenv("TZ");
    if (!clockCanBeMoved())
        QSKIP("the time of day comes from elsewhere here");
}

void TestMovedClock::cleanup()
{
    clockOffset = 0;
    m_zoneWasSet ? qputenv("TZ", m_zone) : qunsetenv("TZ");
    ::tzset();
}

void TestMovedClock::theCountdownIsRightAtTheNextTick_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("nextRun");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QByteArray>("laterZone");
    QTest::addColumn<QString>("later");
    QTest::addColumn<QString>("after");
    const QByteArray berlin = "Europe/Berlin";
    const QString noon = u"2026-03-01T12:00:00Z"_s;
    const QString night = u"2026-03-01T22:30:30Z"_s;

    QTest::newRow("eight hours forward") << berlin << noon << night << u"10h 30m left"_s << berlin
                                         << u"2026-03-01T20:00:00Z"_s << u"2h 30m left"_s;
    QTest::newRow("an hour back") << berlin << noon << night << u"10h 30m left"_s << berlin << u"2026-03-01T11:00:00Z"_s
                                  << u"11h 30m left"_s;
    QTest::newRow("beyond the run") << berlin << noon << night << u"10h 30m left"_s << berlin
                                    << u"2026-03-01T22:31:00Z"_s << u"Overdue"_s;
    QTest::newRow("back to before the run")
        << berlin << u"2026-03-01T22:31:00Z"_s << night << u"Overdue"_s << berlin << noon << u"10h 30m left"_s;
    QTest::newRow("years back") << berlin << noon << night << u"10h 30m left"_s << berlin << u"2024-03-01T12:00:00Z"_s
                                << u"730d 10h left"_s;
    QTest::newRow("summer begins") << berlin << u"2026-03-29T00:59:00Z"_s << u"2026-03-29T02:59:30Z"_s
                                   << u"2h 0m left"_s << berlin << u"2026-03-29T01:01:00Z"_s << u"1h 58m left"_s;
    QTest::newRow("summer begins, run within it")
        << berlin << u"2026-03-29T00:59:00Z"_s << u"2026-03-29T03:30:30+02:00"_s << u"31m 30s left"_s << berlin
        << u"2026-03-29T01:00:30Z"_s << u"30m 0s left"_s;
    QTest::newRow("summer ends") << berlin << u"2026-10-25T00:59:00Z"_s << u"2026-10-25T02:59:30Z"_s << u"2h 0m left"_s
                                 << berlin << u"2026-10-25T01:01:00Z"_s << u"1h 58m left"_s;
    QTest::newRow("summer ends, run in the hour that comes twice")
        << berlin << u"2026-10-25T00:29:00Z"_s << u"2026-10-25T02:30:30+01:00"_s << u"1h 1m left"_s << berlin
        << u"2026-10-25T01:01:00Z"_s << u"29m 30s left"_s;
    QTest::newRow("another zone") << berlin << noon << night << u"10h 30m left"_s << QByteArray("Asia/Tokyo") << noon
                                  << u"10h 30m left"_s;
}

void TestMovedClock::theCountdownIsRightAtTheNextTick()
{
    QFETCH(const QByteArray, zone);
    QFETCH(const QString, start);
    QFETCH(const QString, nextRun);
    QFETCH(const QString, before);
    QFETCH(const QByteArray, laterZone);
    QFETCH(const QString, later);
    QFETCH(const QString, after);
    // Texts with seconds are compared within the few that the test may take.
    const auto shows = [](const QString &shown, const QString &expected) {
        static const QRegularExpression form(u"^(\\d+)m (\\d+)s left$"_s);
        const auto seconds = [](const QString &text) {
            const QRegularExpressionMatch match = form.match(text);
            return match.hasMatch() ? match.captured(1).toInt() * 60 + match.captured(2).toInt() : -1;
        };
        const int passed = seconds(expected) - seconds(shown);
        return seconds(expected) < 0 ? shown == expected : passed >= 0 && passed < 20;
    };

    setZone(zone);
    setClock(at(start));
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    fixture.timer("statusUpdateTimer")->stop();
    fixture.setTasks({taskJson(u"t1"_s, u"One"_s, {{u"nextRunAt"_s, nextRun}})});
    fixture.window->onUpdateTaskStatus();
    const auto *table = fixture.widget<QTableWidget>("taskTable");
    QVERIFY2(shows(table->item(0, 3)->text(), before), qPrintable(table->item(0, 3)->text()));

    setZone(laterZone);
    setClock(at(later));
    fixture.window->onUpdateTaskStatus();
    QVERIFY2(shows(table->item(0, 3)->text(), after), qPrintable(table->item(0, 3)->text()));
    QVERIFY(!table->item(0, 3)->text().contains(u'-'));
}

void TestMovedClock::theLogTellsTheTimeOfTheClock_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QString>("now");
    QTest::addColumn<QString>("told");
    // From row to row the clock leaps, back and forth.
    QTest::newRow("winter") << QByteArray("Europe/Berlin") << u"2026-03-29T00:59:58Z"_s << u"2026-03-29T01:59:58"_s;
    QTest::newRow("summer") << QByteArray("Europe/Berlin") << u"2026-03-29T01:00:00Z"_s << u"2026-03-29T03:00:00"_s;
    QTest::newRow("before the hour that comes twice")
        << QByteArray("Europe/Berlin") << u"2026-10-25T00:30:00Z"_s << u"2026-10-25T02:30:00"_s;
    QTest::newRow("the hour once more") << QByteArray("Europe/Berlin") << u"2026-10-25T01:30:00Z"_s
                                        << u"2026-10-25T02:30:00"_s;
    QTest::newRow("an hour back") << QByteArray("Europe/Berlin") << u"2026-10-25T00:30:00Z"_s
                                  << u"2026-10-25T02:30:00"_s;
    QTest::newRow("another zone") << QByteArray("Asia/Tokyo") << u"2026-10-25T00:40:00Z"_s << u"2026-10-25T09:40:00"_s;
}

void TestMovedClock::theLogTellsTheTimeOfTheClock()
{
    QFETCH(const QByteArray, zone);
    QFETCH(const QString, now);
    QFETCH(const QString, told);
    setZone(zone);
    setClock(at(now));
    const LogCapture log;
    MCsLogger::instance().info(u"Test"_s, u"x"_s);
    const QString text = log.rawMessages().constLast();
    const QJsonArray entry = QJsonDocument::fromJson(text.sliced(text.indexOf(u'[')).toUtf8()).array();
    const QDateTime stamp = at(entry.at(1)["timestamp"_L1].toString());
    const qint64 late = at(told).secsTo(stamp);
    QVERIFY2(stamp.isValid() && late >= 0 && late < 10, qPrintable(text));
}

void TestMovedClock::aWaitForTheDaemonDoesNotHangOnTheClock()
{
    setClock(at(u"2026-03-01T12:00:00Z"_s));
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    fixture.timer("statusUpdateTimer")->stop();
    fixture.daemon.ignore(u"task.listByType"_s);
    fixture.daemon.onRequest(u"task.listByType"_s,
                             [](const QJsonObject & /*request*/) { setClock(at(u"2026-03-01T04:00:00Z"_s)); });
    QElapsedTimer passed;
    passed.start();
    fixture.window->onUpdateTaskStatus();
    QVERIFY(passed.elapsed() >= 1500);
    QVERIFY(passed.elapsed() < 20000);
}

ORVEL_TEST_MAIN(QApplication, TestMovedClock)
#include "tst_movedclock.moc"
