#include "logfixture.h"
#include "modaldriver.h"
#include "testmain.h"

#include <QApplication>
#include <QTableWidget>

#include <utility>

using namespace Scheduler;
using namespace TestSupport;
using namespace Qt::StringLiterals;

namespace {

QString created(const QString &name)
{
    return LogWindow::time + u" Task '"_s + name + u"' created"_s;
}

void expectNotConnected(ModalDriver &driver)
{
    driver.expectBox(QMessageBox::Warning, u"Not Connected"_s,
                     u"Cannot refresh audit log because not connected to the service."_s);
}

/// A window that shows one entry, "One".
class LoggedWindow : public LogWindow {
public:
    [[nodiscard]] bool connect()
    {
        happen(u"task.created"_s, u"One"_s);
        return LogWindow::connect() && lines() == QStringList{created(u"One"_s)};
    }
};

} // namespace

/// When the log is read again, and what a refresh that fails, overlaps or loses its connection leaves.
class TestActivityLogRefresh : public QObject {
    Q_OBJECT

private slots:
    void connectingShowsTheLog();
    void withoutAConnectionABoxComesAndTheLinesStay();
    void duringAReconnectionABoxComesAndTheLinesStay();
    void aRefusedRequestLeavesNoLinesAndNoBox();
    void aDaemonThatDoesNotAnswerLeavesNoLinesAndNoBox();
    void disconnectingKeepsTheLines();
    void aCommandAddsNoLineByItself();
    void aTickShowsWhatTheDaemonDidByItself();
    void ticksAreIdleWhileTheConnectionIsLostAndGoOnAfterwards();
    void aTickOfAClosingWindowSendsNothing();
    void theNewerOfTwoOverlappingRefreshesStays_data();
    void theNewerOfTwoOverlappingRefreshesStays();
    void aConnectionThatGoesUnderARefreshBringsNoBox();
    void aReconnectionUnderARefreshKeepsItsLines();
};

void TestActivityLogRefresh::connectingShowsTheLog()
{
    LogWindow fixture;
    fixture.happen(u"task.created"_s, u"One"_s);
    fixture.happen(u"task.created"_s, u"Two"_s);
    QVERIFY(fixture.connect());
    QCOMPARE(fixture.lines(), QStringList({created(u"One"_s), created(u"Two"_s)})); // once, though it is read twice
}

void TestActivityLogRefresh::withoutAConnectionABoxComesAndTheLinesStay()
{
    LoggedWindow fixture;
    QVERIFY(fixture.connect());
    fixture.window->onDisconnectFromDaemon();
    fixture.happen(u"task.created"_s, u"Two"_s);
    ModalDriver driver;
    expectNotConnected(driver);
    fixture.refresh(); // the button stays enabled
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(fixture.lines(), QStringList({created(u"One"_s)}));
    QCOMPARE(fixture.daemon.commands(), QStringList());
}

void TestActivityLogRefresh::duringAReconnectionABoxComesAndTheLinesStay()
{
    LoggedWindow fixture;
    QVERIFY(fixture.connect());
    fixture.daemon.stop();
    QTRY_COMPARE(fixture.window->connectionState(), ConnectionState::Reconnecting);
    ModalDriver driver;
    expectNotConnected(driver);
    fixture.window->onRefreshAuditLog();
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(fixture.lines(), QStringList({created(u"One"_s)}));
}

void TestActivityLogRefresh::aRefusedRequestLeavesNoLinesAndNoBox()
{
    LoggedWindow fixture;
    QVERIFY(fixture.connect());
    fixture.daemon.refuse(u"audit.list"_s, u"NO"_s, u"no"_s);
    ModalDriver driver;
    fixture.refresh();
    QCOMPARE(fixture.view->toPlainText(), QString());
    QVERIFY2(driver.finished(), driver.problems());
}

void TestActivityLogRefresh::aDaemonThatDoesNotAnswerLeavesNoLinesAndNoBox()
{
    LoggedWindow fixture;
    QVERIFY(fixture.connect());
    fixture.daemon.ignore(u"audit.list"_s);
    ModalDriver driver;
    fixture.refresh();
    QCOMPARE(fixture.view->toPlainText(), QString());
    QCOMPARE(fixture.window->connectionState(), ConnectionState::Connected);
    QVERIFY2(driver.finished(), driver.problems());
}

void TestActivityLogRefresh::disconnectingKeepsTheLines()
{
    LoggedWindow fixture;
    QVERIFY(fixture.connect());
    fixture.window->onDisconnectFromDaemon();
    QCOMPARE(fixture.widget<QTableWidget>("taskTable")->rowCount(), 0);
    QCOMPARE(fixture.lines(), QStringList({created(u"One"_s)}));
    QVERIFY(!fixture.timer("auditRefreshTimer")->isActive());
}

void TestActivityLogRefresh::aCommandAddsNoLineByItself()
{
    LoggedWindow fixture;
    QVERIFY(fixture.connect());
    fixture.window->onTasksDroppedOnGroup({u"t1"_s, u"t2"_s}, u"g1"_s);
    QCOMPARE(fixture.daemon.requests(u"audit.list"_s).size(), 1);
    QCOMPARE(fixture.lines(), QStringList({created(u"One"_s)}));
}

void TestActivityLogRefresh::aTickShowsWhatTheDaemonDidByItself()
{
    LoggedWindow fixture;
    QVERIFY(fixture.connect());
    fixture.happen(u"task_run"_s, u"One"_s, {{u"detailsJson"_s, QJsonObject{{u"exitCode"_s, 3}}}});
    QCOMPARE(fixture.lines().size(), 1);
    QCOMPARE(fixture.timer("auditRefreshTimer")->interval(), 100000);
    WindowFixture::fire(fixture.timer("auditRefreshTimer"));
    const QString run = LogWindow::time + u" Task 'One' completed successfully (exit: 3)"_s;
    QTRY_COMPARE(fixture.lines(), QStringList({created(u"One"_s), run}));
    QCOMPARE(fixture.daemon.commands(), QStringList({u"audit.list"_s}));
}

void TestActivityLogRefresh::ticksAreIdleWhileTheConnectionIsLostAndGoOnAfterwards()
{
    LoggedWindow fixture;
    QVERIFY(fixture.connect());
    QTimer *ticks = fixture.timer("auditRefreshTimer");
    fixture.daemon.stop();
    QTRY_COMPARE(fixture.window->connectionState(), ConnectionState::Reconnecting);
    fixture.happen(u"task.created"_s, u"Two"_s);
    ModalDriver driver;
    int fired = 0;
    connect(ticks, &QTimer::timeout, this, [&fired] { ++fired; });
    WindowFixture::fire(ticks);
    QTRY_COMPARE(fired, 1);
    QCOMPARE(fixture.lines(), QStringList({created(u"One"_s)}));

    QVERIFY(fixture.daemon.listen());
    QTRY_COMPARE_WITH_TIMEOUT(fixture.window->connectionState(), ConnectionState::Connected, 10000);
    QTRY_COMPARE(fixture.lines(), QStringList({created(u"One"_s), created(u"Two"_s)}));
    fixture.happen(u"task.created"_s, u"Three"_s);
    WindowFixture::fire(ticks);
    QTRY_COMPARE(fixture.lines(), QStringList({created(u"One"_s), created(u"Two"_s), created(u"Three"_s)}));
    QVERIFY2(driver.finished(), driver.problems());
}

void TestActivityLogRefresh::aTickOfAClosingWindowSendsNothing()
{
    LoggedWindow fixture;
    QVERIFY(fixture.connect());
    fixture.window->close();
    QCOMPARE(fixture.daemon.connectionCount(), 1); // the client is still connected
    fixture.window->onAuditLogAutoRefresh();
    QCOMPARE(fixture.daemon.commands(), QStringList());
}

void TestActivityLogRefresh::theNewerOfTwoOverlappingRefreshesStays_data()
{
    QTest::addColumn<bool>("newestFirst");
    QTest::newRow("answered in their order") << false;
    QTest::newRow("answered the other way round") << true;
}

void TestActivityLogRefresh::theNewerOfTwoOverlappingRefreshesStays()
{
    QFETCH(bool, newestFirst);
    LoggedWindow fixture;
    QVERIFY(fixture.connect());
    fixture.happen(u"task.created"_s, u"Two"_s);
    fixture.daemon.hold(u"audit.list"_s);
    fixture.daemon.onRequest(u"audit.list"_s, [&](const QJsonObject &) {
        if (fixture.daemon.requests(u"audit.list"_s).size() == 1) {
            QTimer::singleShot(0, fixture.window.get(), &MCsMainWindow::onAuditLogAutoRefresh);
            return;
        }
        fixture.happen(u"task.created"_s, u"Three"_s); // which the first answer does not know yet
        QTimer::singleShot(0, &fixture.daemon, [&] {
            QCOMPARE(fixture.daemon.heldCount(), 2);
            QCOMPARE(fixture.lines(), QStringList()); // both wait
            if (newestFirst)
                fixture.daemon.releaseNewest();
            fixture.daemon.release(u"audit.list"_s);
        });
    });
    fixture.refresh();
    QCOMPARE(fixture.daemon.requests(u"audit.list"_s).size(), 2);
    QCOMPARE(fixture.lines(), QStringList({created(u"One"_s), created(u"Two"_s), created(u"Three"_s)}));
}

void TestActivityLogRefresh::aConnectionThatGoesUnderARefreshBringsNoBox()
{
    LoggedWindow fixture;
    QVERIFY(fixture.connect());
    fixture.daemon.onRequest(u"audit.list"_s, [&fixture](const QJsonObject &) {
        fixture.daemon.onRequest(u"audit.list"_s, {});
        fixture.daemon.stop();
    });
    ModalDriver driver;
    fixture.refresh();
    QCOMPARE(fixture.window->connectionState(), ConnectionState::Reconnecting);
    QVERIFY2(driver.finished(), driver.problems());
    QVERIFY(fixture.daemon.listen());
    QTRY_COMPARE_WITH_TIMEOUT(fixture.window->connectionState(), ConnectionState::Connected, 10000);
    QTRY_COMPARE(fixture.lines(), QStringList({created(u"One"_s)}));
    QVERIFY2(driver.finished(), driver.problems());
}

void TestActivityLogRefresh::aReconnectionUnderARefreshKeepsItsLines()
{
    LoggedWindow fixture;
    QVERIFY(fixture.connect());
    fixture.daemon.onRequest(u"audit.list"_s, [&fixture](const QJsonObject &) {
        fixture.daemon.onRequest(u"audit.list"_s, {});
        fixture.happen(u"task.created"_s, u"Two"_s);
        fixture.daemon.dropConnections();
    });
    fixture.refresh(); // ends after the reconnection has read the log
    QCOMPARE(fixture.window->connectionState(), ConnectionState::Connected);
    QCOMPARE(fixture.lines(), QStringList({created(u"One"_s), created(u"Two"_s)}));
}

ORVEL_TEST_MAIN(QApplication, TestActivityLogRefresh)
#include "tst_activitylogrefresh.moc"
