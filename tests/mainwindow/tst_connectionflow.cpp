#include "fakeservicetools.h"
#include "mcsschedulerclient.h"
#include "modaldriver.h"
#include "testmain.h"
#include "windowfixture.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QProgressDialog>
#include <QPushButton>
#include <QTableWidget>
#include <QTreeWidget>

#include <optional>

using namespace Scheduler;
using namespace TestSupport;
using namespace Qt::StringLiterals;

/// From the first show to the connected state, and the roads on which the daemon itself refuses.
class TestConnectionFlow : public QObject {
    Q_OBJECT

private slots:
    void aDaemonThatIsUpIsConnectedByOneAttempt();
    void theTypeOfTheHostIsRegistered();
    void theWindowStandsDisconnectedBeforeItConnects();
    void showingAgainDoesNotConnectAgain();
    void aTakenTypeEndsTheFirstStepAtOnce();
    void aTakenTypeInTheRetryStepUsesUpItsAttempts();
    void anotherRefusalIsRetried();
    void connectingReadsEverythingTwice();
    void anEmptyListAsksOnceWhetherToCreateATask_data();
    void anEmptyListAsksOnceWhetherToCreateATask();
    void aConnectedWindowIgnoresAnotherStart();
    void disconnectingEmptiesTheViews();
};

void TestConnectionFlow::aDaemonThatIsUpIsConnectedByOneAttempt()
{
    const FakeServiceTools tools;
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    auto *status = fixture.widget<QLabel>("statusLabel");
    QCOMPARE(status->text(), u"Connected"_s);
    QCOMPARE(status->styleSheet(), u"color: green; font-weight: bold;"_s);
    QVERIFY(fixture.window->findChild<QProgressDialog *>(u"connectDialog"_s) == nullptr ||
            !fixture.window->findChild<QProgressDialog *>(u"connectDialog"_s)->isVisible());
    QCOMPARE(fixture.daemon.acceptedCount(), 1);
    QCOMPARE(fixture.daemon.requests(u"client.register"_s).size(), 1);
    QCOMPARE(tools.calls(), QStringList());
    for (const char *name :
         {"createButton", "refreshButton", "typeFilterCombo", "createGroupButton", "refreshGroupButton"})
        QVERIFY2(fixture.widget<QWidget>(name)->isEnabled(), name);
    for (const char *name : {"editButton", "deleteButton", "triggerButton", "editGroupButton", "deleteGroupButton"})
        QVERIFY2(!fixture.widget<QWidget>(name)->isEnabled(), name);
    QVERIFY(fixture.timer("auditRefreshTimer")->isActive());
    QCOMPARE(fixture.timer("auditRefreshTimer")->interval(), 100000);
    QVERIFY(fixture.timer("connectionMonitorTimer")->isActive());
    QCOMPARE(fixture.timer("connectionMonitorTimer")->interval(), 3000);
    QVERIFY(!fixture.timer("autoConnectTimer")->isActive());
}

void TestConnectionFlow::theTypeOfTheHostIsRegistered()
{
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow(u"task_type.pdf_convert"_s));
    QCOMPARE(fixture.daemon.requests(u"client.register"_s).first().value("payload"_L1).toObject(),
             QJsonObject({{u"clientType"_s, u"task_type.pdf_convert"_s}}));
}

void TestConnectionFlow::theWindowStandsDisconnectedBeforeItConnects()
{
    WindowFixture fixture;
    fixture.make();
    // It connects a tenth of a second after its first show; a timer of that length may fire a twentieth early.
    std::optional<ConnectionState> shortlyBefore;
    QTimer::singleShot(90, Qt::PreciseTimer, fixture.window.get(),
                       [&] { shortlyBefore = fixture.window->connectionState(); });
    fixture.window->show();
    QCOMPARE(fixture.window->connectionState(), ConnectionState::Idle);
    QCOMPARE(fixture.status(), u"Disconnected"_s);
    QCOMPARE(fixture.widget<QLabel>("statusLabel")->styleSheet(), u"color: red;"_s);
    QTRY_COMPARE(fixture.window->connectionState(), ConnectionState::Connecting);
    QCOMPARE(shortlyBefore, ConnectionState::Idle);
}

void TestConnectionFlow::showingAgainDoesNotConnectAgain()
{
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    fixture.window->onDisconnectFromDaemon();
    fixture.window->hide();
    fixture.window->show();
    bool later = false; // than a first show would have begun to connect
    QTimer::singleShot(300, fixture.window.get(), [&later] { later = true; });
    QTRY_VERIFY(later);
    QCOMPARE(fixture.window->connectionState(), ConnectionState::Idle);
    QVERIFY(fixture.window->findChild<QProgressDialog *>() == nullptr);
    QCOMPARE(fixture.daemon.requests(u"client.register"_s).size(), 1);
}

void TestConnectionFlow::aTakenTypeEndsTheFirstStepAtOnce()
{
    const FakeServiceTools tools;
    WindowFixture fixture;
    QVERIFY(fixture.startDaemon());
    fixture.daemon.refuse(u"client.register"_s, u"CLIENT_TYPE_ALREADY_CONNECTED"_s, u"taken"_s);
    ModalDriver driver;
    driver.expectBox(QMessageBox::Critical, u"Service Error"_s,
                     u"Unable to connect to the scheduler service because multiple manager instances are running. "
                     "Please close the other scheduler managers first."_s,
                     QMessageBox::Ok, QMessageBox::Ok);
    fixture.open();
    QCOMPARE(runUntilQuit(), 0);
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(fixture.window->connectionState(), ConnectionState::Closing);
    QCOMPARE(fixture.daemon.requests(u"client.register"_s).size(), 1);
    QCOMPARE(tools.calls(), QStringList());
}

void TestConnectionFlow::aTakenTypeInTheRetryStepUsesUpItsAttempts()
{
    FakeServiceTools tools;
    tools.setQueryOutput(FakeServiceTools::running);
    WindowFixture fixture;
    fixture.daemon.refuse(u"client.register"_s, u"CLIENT_TYPE_ALREADY_CONNECTED"_s, u"taken"_s);
    ModalDriver driver;
    driver.expectBox(QMessageBox::Critical, u"Service Error"_s,
                     u"Unable to connect to scheduler service after multiple attempts.\n\nPlease ensure the service is "
                     "running correctly and try again."_s,
                     QMessageBox::Ok, QMessageBox::Ok);
    fixture.open();
    QTRY_COMPARE(tools.calls(), QStringList({u"show"_s}));
    QVERIFY(fixture.daemon.listen());
    QCOMPARE(runUntilQuit(), 0);
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(fixture.daemon.requests(u"client.register"_s).size(), 3);
}

void TestConnectionFlow::anotherRefusalIsRetried()
{
    WindowFixture fixture;
    QVERIFY(fixture.startDaemon());
    fixture.daemon.refuse(u"client.register"_s, u"BUSY"_s, u"starting up"_s);
    fixture.daemon.onRequest(u"client.register"_s, [&fixture](const QJsonObject &) {
        if (fixture.daemon.requests(u"client.register"_s).size() == 3)
            fixture.daemon.answer(u"client.register"_s, {});
    });
    fixture.open();
    QTRY_COMPARE(fixture.window->connectionState(), ConnectionState::Connected);
    QCOMPARE(fixture.daemon.requests(u"client.register"_s).size(), 3);
}

void TestConnectionFlow::connectingReadsEverythingTwice()
{
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    const QStringList once{u"tasktype.list"_s, u"task.listByType"_s, u"audit.list"_s, u"group.listByTaskType"_s,
                           u"audit.list"_s};
    const QStringList again{u"tasktype.list"_s, u"task.listByType"_s,      u"task.countByGroupAndType"_s,
                            u"audit.list"_s,    u"group.listByTaskType"_s, u"audit.list"_s};
    QCOMPARE(fixture.daemon.commands().first(1 + once.size() + again.size()),
             QStringList({u"client.register"_s}) + once + again);
}

void TestConnectionFlow::anEmptyListAsksOnceWhetherToCreateATask_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<bool>("asked");
    QTest::newRow("none") << 0 << true;
    QTest::newRow("one") << 1 << false;
    QTest::newRow("a negative count") << -1 << true;
}

void TestConnectionFlow::anEmptyListAsksOnceWhetherToCreateATask()
{
    QFETCH(int, count);
    QFETCH(bool, asked);
    WindowFixture fixture;
    QVERIFY(fixture.startDaemon());
    fixture.daemon.answer(u"task.countByType"_s, {{u"count"_s, count}});
    // The groups are the last that is read before the question's time begins to run.
    QElapsedTimer sinceGroups;
    qint64 countedAfter = -1;
    fixture.daemon.onRequest(u"group.listByTaskType"_s, [&](const QJsonObject &) {
        if (!sinceGroups.isValid())
            sinceGroups.start();
    });
    fixture.daemon.onRequest(u"task.countByType"_s, [&](const QJsonObject &) { countedAfter = sinceGroups.elapsed(); });
    ModalDriver driver;
    if (asked)
        driver.expectBox(QMessageBox::Question, u"No Tasks Found"_s,
                         u"No scheduled tasks were found.\n\nWould you like to create one now?"_s,
                         QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
    fixture.open();
    QTRY_VERIFY(!fixture.daemon.requests(u"task.countByType"_s).isEmpty());
    QTRY_VERIFY2(driver.finished(), driver.problems());
    // A timer of 300 ms may fire a twentieth early.
    QVERIFY2(countedAfter >= 280, qPrintable(QString::number(countedAfter)));

    // A reconnection does not ask again.
    fixture.daemon.dropConnections();
    QTRY_COMPARE(fixture.window->connectionState(), ConnectionState::Reconnecting);
    fixture.daemon.clearRequests();
    QTRY_COMPARE(fixture.window->connectionState(), ConnectionState::Connected);
    QTRY_COMPARE(fixture.daemon.requests(u"audit.list"_s).size(), 4);
    bool later = false; // than the question would come
    QTimer::singleShot(600, fixture.window.get(), [&later] { later = true; });
    QTRY_VERIFY(later);
    QCOMPARE(fixture.daemon.requests(u"task.countByType"_s).size(), 0);
    QVERIFY2(driver.finished(), driver.problems());
}

void TestConnectionFlow::aConnectedWindowIgnoresAnotherStart()
{
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    fixture.window->autoConnectToDaemon();
    fixture.window->onConnectToDaemon();
    QCOMPARE(fixture.window->connectionState(), ConnectionState::Connected);
    QVERIFY(!fixture.timer("autoConnectTimer")->isActive());
    QCOMPARE(fixture.daemon.requests(u"client.register"_s).size(), 1);
}

void TestConnectionFlow::disconnectingEmptiesTheViews()
{
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    QCOMPARE(fixture.widget<QTableWidget>("taskTable")->rowCount(), 2);
    fixture.window->onDisconnectFromDaemon();
    QCOMPARE(fixture.window->connectionState(), ConnectionState::Idle);
    QCOMPARE(fixture.status(), u"Disconnected"_s);
    QCOMPARE(fixture.widget<QTableWidget>("taskTable")->rowCount(), 0);
    QCOMPARE(fixture.widget<QTreeWidget>("groupTree")->topLevelItemCount(), 0);
    QVERIFY(!fixture.timer("auditRefreshTimer")->isActive());
    QVERIFY(!fixture.timer("connectionMonitorTimer")->isActive());
    QVERIFY(!fixture.widget<QPushButton>("createButton")->isEnabled());
    QTRY_COMPARE(fixture.daemon.connectionCount(), 0);

    fixture.window->onConnectToDaemon();
    QTRY_COMPARE(fixture.window->connectionState(), ConnectionState::Connected);
    QTRY_COMPARE(fixture.widget<QTableWidget>("taskTable")->rowCount(), 2);
}

ORVEL_TEST_MAIN(QApplication, TestConnectionFlow)
#include "tst_connectionflow.moc"
