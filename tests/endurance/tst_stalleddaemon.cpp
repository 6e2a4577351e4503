#include "commandfixture.h"
#include "endurance.h"
#include "footprint.h"
#include "mcsschedulerclient.h"
#include "testmain.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QThread>

#include <chrono>

using namespace Scheduler;
using namespace TestSupport;
using namespace Qt::StringLiterals;

namespace {

/// Instead of the two seconds that a command waits. A second of a user's time is a hundredth of that here.
constexpr int endsWithinMs = 3000; // at once, but on a busy machine
constexpr int commandTimeoutMs = 20;
constexpr int millisecondsPerSecond = commandTimeoutMs / 2;

/// A connected window whose daemon has stalled: it takes what it is sent, and never answers again.
class StalledWindow : public CommandFixture {
public:
    bool connectAndStall()
    {
        if (!connectQuietly())
            return false;
        client = window->findChild<MCsSchedulerClient *>();
        client->setCommandTimeout(commandTimeoutMs);
        for (const auto &cmd : {u"task.listByType"_s, u"task.listByGroupAndType"_s, u"task.countByGroupAndType"_s,
                                u"group.listByTaskType"_s, u"audit.list"_s, u"task.trigger"_s})
            daemon.ignore(cmd);
        return true;
    }

    MCsSchedulerClient *client = nullptr;
};

/// How deep event loops are nested, looked at whenever something is about to nest another.
class DepthGauge {
public:
    void note()
    {
        deepest = qMax(deepest, depth());
    }
    static int depth()
    {
        return QThread::currentThread()->loopLevel();
    }

    int deepest = 0;
};

/// Something that comes again and again, also within itself, like a user's clicks. A timer alone would not do: it does
/// not fire while its own slot runs.
class Recurring {
public:
    Recurring(std::chrono::milliseconds interval, const std::function<void()> &action)
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer,
                         [this, action] { QMetaObject::invokeMethod(&m_timer, action, Qt::QueuedConnection); });
        m_timer.start(interval);
    }
    void stop()
    {
        m_timer.stop();
    }

private:
    QTimer m_timer;
};

/// Seconds of the user's time.
std::chrono::milliseconds seconds(int count)
{
    return std::chrono::milliseconds(count * millisecondsPerSecond);
}

void live(std::chrono::milliseconds time)
{
    QEventLoop loop;
    QTimer::singleShot(time, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace

/// A daemon that accepts and registers, and from some moment on never answers.
class TestStalledDaemon : public QObject {
    Q_OBJECT

private slots:
    void commandsWaitForAsLongAsTheyAreTold();
    void ticksAloneNeverNest();
    void tenMinutesKeepTheDepthOfEventLoopsBounded();
    void pressesThatPileUpUnwindOnceTheyEnd();
    void theWindowClosesAtOnce_data();
    void theWindowClosesAtOnce();
};

void TestStalledDaemon::commandsWaitForAsLongAsTheyAreTold()
{
    StalledWindow fixture;
    QCOMPARE(MCsSchedulerClient().commandTimeout(), 2000);
    QVERIFY(fixture.connectAndStall());
    QCOMPARE(fixture.client->commandTimeout(), commandTimeoutMs);
    QVERIFY(!fixture.client->triggerTask(u"t1"_s));
    QCOMPARE(fixture.client->lastError(), u"TIMEOUT: Request timed out after 20ms"_s);
}

void TestStalledDaemon::ticksAloneNeverNest()
{
    StalledWindow fixture;
    QVERIFY(fixture.connectAndStall());
    const QuietLog quiet;
    DepthGauge gauge;
    fixture.daemon.onRequest(u"task.listByType"_s, [&gauge](const QJsonObject &) { gauge.note(); });
    const Recurring tick(seconds(1), [&fixture] { fixture.window->onUpdateTaskStatus(); });
    live(seconds(120));
    QVERIFY(fixture.daemon.requests(u"task.listByType"_s).size() >= 10);
    QCOMPARE(gauge.deepest, DepthGauge::depth() + 2); // the loop of live(), and that of the one tick
}

void TestStalledDaemon::tenMinutesKeepTheDepthOfEventLoopsBounded()
{
    StalledWindow fixture;
    QVERIFY(fixture.connectAndStall());
    const QuietLog quiet;
    const int outer = DepthGauge::depth();
    DepthGauge gauge;
    int presses = 0;
    int underWay = 0;
    int mostUnderWay = 0;
    const auto act = [&](const std::function<void()> &action) {
        gauge.note();
        mostUnderWay = qMax(mostUnderWay, ++underWay);
        action();
        --underWay;
    };
    const Recurring tick(seconds(1), [&] {
        gauge.note();
        fixture.window->onUpdateTaskStatus();
    });
    const Recurring log(seconds(100), [&] { act([&] { fixture.window->onAuditLogAutoRefresh(); }); });
    // One refresh takes four waits: the table, two groups and the log.
    const Recurring refresh(seconds(15), [&] {
        ++presses;
        act([&] { click(fixture.window.get(), "refreshButton"); });
    });
    const Recurring group(
        seconds(17), [&] { act([&] { fixture.tree()->setCurrentItem(fixture.tree()->topLevelItem(presses % 2)); }); });
    live(seconds(600));
    const int deepest = gauge.deepest - outer;
    qInfo().noquote() << u"soak: ten minutes with a stalled daemon: %1 presses, at most %2 things under way at a time, "
                         "at most %3 event loops deep"_s.arg(presses)
                             .arg(mostUnderWay)
                             .arg(deepest);
    QVERIFY(presses >= 20);
    QCOMPARE(DepthGauge::depth(), outer);
    QCOMPARE(underWay, 0);
    // The loop of live(), one for each thing under way, and one for all the six hundred ticks together.
    QVERIFY2(deepest <= 1 + mostUnderWay + 1, qPrintable(QString::number(deepest)));
    QVERIFY2(mostUnderWay <= 8, qPrintable(QString::number(mostUnderWay)));
    QCOMPARE(fixture.window->connectionState(), ConnectionState::Connected);
}

void TestStalledDaemon::pressesThatPileUpUnwindOnceTheyEnd()
{
    StalledWindow fixture;
    QVERIFY(fixture.connectAndStall());
    const QuietLog quiet;
    const int outer = DepthGauge::depth();
    constexpr int presses = 30;
    int pressed = 0;
    int deepest = 0;
    quintptr highest = 0;
    quintptr lowest = 0;
    Recurring impatience(std::chrono::milliseconds(1), [&] {
        if (pressed == presses)
            return;
        const auto here = reinterpret_cast<quintptr>(__builtin_frame_address(0));
        if (pressed == 0)
            highest = here;
        if (lowest == 0 || here < lowest) {
            lowest = here;
            deepest = DepthGauge::depth();
        }
        ++pressed;
        fixture.window->onRefreshTaskList();
    });
    QTRY_COMPARE(pressed, presses);
    impatience.stop();
    QCOMPARE(DepthGauge::depth(), outer);
    QVERIFY2(deepest - outer >= presses / 2, qPrintable(QString::number(deepest - outer)));
    const auto stackPerPress = static_cast<qint64>(highest - lowest) / qMax(1, deepest - outer);
    qInfo().noquote()
        << u"soak: %1 presses of Refresh in a row with a stalled daemon: %2 event loops deep, %3 bytes of "
           "stack each"_s.arg(presses)
               .arg(deepest - outer)
               .arg(stackPerPress);
    // The stack of the main thread is 8 MiB; a thousand presses, one a second for a quarter of an hour, are to fit. The
    // address sanitizer makes frames larger.
    if (tellsHeap())
        QVERIFY(stackPerPress < 8000);
    fixture.daemon.clearRequests(); // nothing waits any more
    fixture.setTasks({taskJson(u"t1"_s, u"One"_s)});
    fixture.daemon.answer(u"task.countByGroupAndType"_s, {{u"count"_s, 1}});
    fixture.daemon.answer(u"audit.list"_s, {});
    fixture.client->setCommandTimeout(MCsSchedulerClient::commandTimeoutMs);
    fixture.window->onRefreshTaskList();
    QCOMPARE(fixture.daemon.commands(), bundle());
    QCOMPARE(fixture.table()->rowCount(), 1);
}

void TestStalledDaemon::theWindowClosesAtOnce_data()
{
    QTest::addColumn<int>("depth");
    QTest::newRow("one refresh waits") << 1;
    QTest::newRow("a second one within it") << 2;
    QTest::newRow("fifty within each other") << 50;
}

void TestStalledDaemon::theWindowClosesAtOnce()
{
    QFETCH(int, depth);
    StalledWindow fixture;
    QVERIFY(fixture.connectAndStall());
    const QuietLog quiet;
    fixture.client->setCommandTimeout(60000); // only the closing ends a wait
    int pressed = 0;
    QElapsedTimer sinceClosing;
    Recurring user(std::chrono::milliseconds(1), [&] {
        if (sinceClosing.isValid())
            return;
        if (pressed == depth) {
            sinceClosing.start();
            fixture.window->close();
            return;
        }
        ++pressed;
        fixture.window->onRefreshTaskList();
    });
    ModalDriver driver;
    QCOMPARE(runUntilQuit(), 0);
    QVERIFY2(sinceClosing.elapsed() < endsWithinMs, qPrintable(QString::number(sinceClosing.elapsed())));
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(pressed, depth);
    fixture.close();
    QVERIFY2(sinceClosing.elapsed() < endsWithinMs, qPrintable(QString::number(sinceClosing.elapsed())));
    QCOMPARE(openWindows(), QStringList());
}

ORVEL_TEST_MAIN(QApplication, TestStalledDaemon)
#include "tst_stalleddaemon.moc"
