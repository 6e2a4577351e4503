#include "logcapture.h"
#include "modaldriver.h"
#include "testmain.h"
#include "windowfixture.h"

#include <QApplication>
#include <QCloseEvent>
#include <QProgressDialog>
#include <QPushButton>
#include <QTableWidget>
#include <QTextEdit>
#include <QTreeWidget>

using namespace Scheduler;
using namespace TestSupport;
using namespace Qt::StringLiterals;

namespace {

QProgressDialog *reconnectDialog(const WindowFixture &fixture)
{
    const QList<QProgressDialog *> dialogs = fixture.window->findChildren<QProgressDialog *>(u"reconnectDialog"_s);
    for (QProgressDialog *dialog : dialogs) {
        if (dialog->isVisible())
            return dialog;
    }
    return nullptr;
}

const QString lostForGood =
    u"Connection to scheduler service was lost and could not be restored.\n\nThe application will now close."_s;

} // namespace

/// A connection that stood and is lost.
class TestConnectionLoss : public QObject {
    Q_OBJECT

private slots:
    void aLossFreezesTheWindowBehindADialog();
    void theAttemptsAreShownAndAReconnectionBringsFreshRows();
    void aLossForGoodEndsTheApplication();
    void aLossUnderARefreshThatFollowsConnectingBringsNoBox_data();
    void aLossUnderARefreshThatFollowsConnectingBringsNoBox();
    void theAnswerOfALostConnectionIsDropped();
    void theReconnectDialogCannotBeDismissed();
    void closingTheReconnectDialogClosesTheWindow();
    void startingToConnectEndsTheReconnectDialog();
    void aLossWhileAFatalBoxIsUpChangesNothing();
    void theMonitorFindsALossThatWasNotSignalled();
    void everyStateButConnectedAndIdleIgnoresALoss();
};

void TestConnectionLoss::aLossFreezesTheWindowBehindADialog()
{
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    const LogCapture log;
    fixture.daemon.stop();
    QTRY_COMPARE(fixture.window->connectionState(), ConnectionState::Reconnecting);
    QVERIFY(reconnectDialog(fixture) != nullptr);
    QCOMPARE(fixture.status(), u"Disconnected"_s);
    QCOMPARE(fixture.widget<QLabel>("statusLabel")->styleSheet(), u"color: red;"_s);
    QCOMPARE(fixture.widget<QTableWidget>("taskTable")->rowCount(), 2);
    QCOMPARE(fixture.widget<QTreeWidget>("groupTree")->topLevelItemCount(), 1);
    for (const char *name :
         {"createButton", "editButton", "deleteButton", "triggerButton", "refreshButton", "typeFilterCombo",
          "createGroupButton", "editGroupButton", "deleteGroupButton", "refreshGroupButton"})
        QVERIFY2(!fixture.widget<QWidget>(name)->isEnabled(), name);
    QVERIFY(fixture.widget<QWidget>("refreshLogButton")->isEnabled());
    QVERIFY(!fixture.timer("connectionMonitorTimer")->isActive());
    QVERIFY2(fixture.timer("auditRefreshTimer")->isActive(), "its own test makes it idle");
    QCOMPARE(log.lines(u"MainWindow"_s), QStringList({u"WARN [WARN] Connection lost, attempting to reconnect..."_s}));
}

void TestConnectionLoss::theAttemptsAreShownAndAReconnectionBringsFreshRows()
{
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    const LogCapture log;
    fixture.daemon.stop();
    QTRY_COMPARE(fixture.window->connectionState(), ConnectionState::Reconnecting);
    fixture.fire(fixture.timer("reconnectTimer"));
    QTRY_COMPARE(fixture.status(), u"Reconnecting (1/8)..."_s);
    QTRY_COMPARE(fixture.timer("reconnectTimer")->interval(), 1000);
    fixture.fire(fixture.timer("reconnectTimer"));
    QTRY_COMPARE(fixture.status(), u"Reconnecting (2/8)..."_s);
    QCOMPARE(fixture.widget<QLabel>("statusLabel")->styleSheet(), u"color: red;"_s);
    QCOMPARE(reconnectDialog(fixture)->labelText(), u"Connection lost. Reconnecting...\nAttempt 2 of 8"_s);
    QVERIFY(log.lines(u"MainWindow"_s).contains(u"INFO [INFO] Reconnection attempt 2 of 8..."_s));

    fixture.setTasks({taskJson(u"t9"_s, u"Nine"_s)});
    QVERIFY(fixture.daemon.listen());
    QTRY_COMPARE(fixture.timer("reconnectTimer")->interval(), 2000);
    fixture.fire(fixture.timer("reconnectTimer"));
    QTRY_COMPARE(fixture.window->connectionState(), ConnectionState::Connected);
    QTRY_VERIFY(reconnectDialog(fixture) == nullptr);
    QTRY_COMPARE(fixture.widget<QTableWidget>("taskTable")->rowCount(), 1);
    QCOMPARE(fixture.widget<QTableWidget>("taskTable")->item(0, 0)->text(), u"Nine"_s);
    QCOMPARE(fixture.status(), u"Connected"_s);
    QCOMPARE(fixture.widget<QLabel>("statusLabel")->styleSheet(), u"color: green; font-weight: bold;"_s);
    QVERIFY(fixture.widget<QPushButton>("createButton")->isEnabled());
    QVERIFY(fixture.timer("connectionMonitorTimer")->isActive());
}

void TestConnectionLoss::aLossForGoodEndsTheApplication()
{
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    fixture.daemon.stop();
    QTRY_COMPARE(fixture.window->connectionState(), ConnectionState::Reconnecting);
    ModalDriver driver;
    driver.expectBox(QMessageBox::Critical, u"Service Error"_s, lostForGood, QMessageBox::Ok, QMessageBox::Ok);
    QTimer *reconnectTimer = fixture.timer("reconnectTimer");
    QTimer hurry; // the sequence takes a minute and a half by itself
    connect(&hurry, &QTimer::timeout, reconnectTimer, [reconnectTimer] {
        if (reconnectTimer->isActive())
            reconnectTimer->start(0);
    });
    hurry.start(5);
    QCOMPARE(runUntilQuit(), 0);
    QVERIFY2(driver.finished(), driver.problems());
    QVERIFY(reconnectDialog(fixture) == nullptr);
    QCOMPARE(fixture.window->connectionState(), ConnectionState::Closing);
}

void TestConnectionLoss::aLossUnderARefreshThatFollowsConnectingBringsNoBox_data()
{
    QTest::addColumn<QString>("command");
    for (const char *command :
         {"tasktype.list", "task.listByType", "audit.list", "group.listByTaskType", "task.countByGroupAndType"})
        QTest::newRow(command) << QString::fromLatin1(command);
}

void TestConnectionLoss::aLossUnderARefreshThatFollowsConnectingBringsNoBox()
{
    QFETCH(QString, command);
    WindowFixture fixture;
    QVERIFY(fixture.startDaemon());
    ModalDriver driver;
    const LogCapture log(1);
    bool dropped = false;
    fixture.daemon.onRequest(command, [&](const QJsonObject &) {
        if (!dropped) {
            dropped = true;
            fixture.daemon.dropConnections();
        }
    });
    fixture.open();
    QTRY_VERIFY(dropped);
    // The reconnection comes while the refresh still waits for its answer.
    QTRY_VERIFY(log.lines(u"MCsSchedulerClient"_s).contains(u"INFO Reconnected successfully"_s));
    QVERIFY(log.lines(u"MainWindow"_s).contains(u"WARN [WARN] Connection lost, attempting to reconnect..."_s));
    QTRY_COMPARE(fixture.window->connectionState(), ConnectionState::Connected);
    QTRY_COMPARE(fixture.status(), u"Connected"_s);
    QTRY_VERIFY(reconnectDialog(fixture) == nullptr);
    QTRY_COMPARE(fixture.widget<QTableWidget>("taskTable")->rowCount(), 2);
    QTRY_COMPARE(fixture.widget<QTreeWidget>("groupTree")->topLevelItemCount(), 1);
    // The wait on the lost connection comes to its end; the window stays as it is.
    QTRY_VERIFY(log.lines(u"MCsSchedulerClient"_s).contains(u"ERROR TIMEOUT: Request timed out after 2000ms"_s));
    QCOMPARE(fixture.window->connectionState(), ConnectionState::Connected);
    QVERIFY2(driver.finished(), driver.problems());
}

void TestConnectionLoss::theAnswerOfALostConnectionIsDropped()
{
    WindowFixture fixture;
    fixture.daemon.answer(u"task.countByGroupAndType"_s, {{u"count"_s, 7}});
    fixture.daemon.answer(
        u"audit.list"_s,
        {{u"logs"_s, QJsonArray{QJsonObject{{u"action"_s, u"task.created"_s}, {u"entityName"_s, u"One"_s}}}}});
    QVERIFY(fixture.connectWindow());
    fixture.setGroups({groupJson(u"g1"_s, u"Work"_s, {{u"taskCount"_s, 7}})});
    const auto lose = [&fixture](const QString &command) {
        fixture.daemon.onRequest(command, [&fixture, command](const QJsonObject &) {
            fixture.daemon.onRequest(command, {});
            fixture.daemon.dropConnections();
        });
        const LogCapture log(1);
        fixture.window->onRefreshTaskList(); // returns when the lost wait has timed out, after the reconnection
        return log.lines(u"MCsSchedulerClient"_s).contains(u"INFO Reconnected successfully"_s);
    };
    QVERIFY(lose(u"task.countByGroupAndType"_s));
    QCOMPARE(fixture.widget<QTreeWidget>("groupTree")->topLevelItem(0)->text(0), u"Work (7)"_s);
    QVERIFY(lose(u"audit.list"_s));
    QVERIFY(fixture.widget<QTextEdit>("logView")->toPlainText().contains(u"Task 'One' created"_s));
    QVERIFY(lose(u"task.listByType"_s));
    QCOMPARE(fixture.widget<QTableWidget>("taskTable")->rowCount(), 2);
}

void TestConnectionLoss::theReconnectDialogCannotBeDismissed()
{
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    fixture.daemon.stop();
    QTRY_COMPARE(fixture.window->connectionState(), ConnectionState::Reconnecting);
    QTest::keyClick(reconnectDialog(fixture), Qt::Key_Escape);
    QVERIFY(reconnectDialog(fixture) != nullptr);
}

void TestConnectionLoss::closingTheReconnectDialogClosesTheWindow()
{
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    fixture.daemon.stop();
    QTRY_COMPARE(fixture.window->connectionState(), ConnectionState::Reconnecting);
    QCloseEvent event; // as from the window system
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(reconnectDialog(fixture), &event);
    QTRY_VERIFY(!fixture.window->isVisible());
    QCOMPARE(fixture.window->connectionState(), ConnectionState::Closing);
    QVERIFY(reconnectDialog(fixture) == nullptr);
}

void TestConnectionLoss::startingToConnectEndsTheReconnectDialog()
{
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    fixture.daemon.stop();
    QTRY_COMPARE(fixture.window->connectionState(), ConnectionState::Reconnecting);
    fixture.window->onConnectToDaemon();
    QVERIFY(reconnectDialog(fixture) == nullptr);
    QVERIFY(fixture.daemon.listen());
    QTRY_COMPARE(fixture.window->connectionState(), ConnectionState::Connected);
}

void TestConnectionLoss::aLossWhileAFatalBoxIsUpChangesNothing()
{
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    ModalDriver driver;
    driver.expectDialog<QMessageBox>(u"Service Error"_s, [&fixture](QMessageBox *box) {
        fixture.window->onClientConnectionLost();
        QVERIFY(reconnectDialog(fixture) == nullptr);
        QCOMPARE(fixture.window->connectionState(), ConnectionState::Closing);
        box->accept();
    });
    QTimer::singleShot(0, fixture.window.get(), &MCsMainWindow::onClientReconnectFailed);
    QCOMPARE(runUntilQuit(), 0);
    QVERIFY2(driver.finished(), driver.problems());
}

void TestConnectionLoss::theMonitorFindsALossThatWasNotSignalled()
{
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    QObject *client = fixture.window->findChild<QObject *>(u"schedulerClient"_s);
    QVERIFY(client != nullptr);
    client->blockSignals(true);
    fixture.daemon.stop();
    QTRY_COMPARE(fixture.daemon.connectionCount(), 0);
    QTimer *monitor = fixture.timer("connectionMonitorTimer");
    const auto found = [&] {
        if (monitor->isActive())
            WindowFixture::fire(monitor);
        return fixture.window->connectionState() == ConnectionState::Reconnecting;
    };
    QTRY_VERIFY(found());
    QVERIFY(reconnectDialog(fixture) != nullptr);
}

void TestConnectionLoss::everyStateButConnectedAndIdleIgnoresALoss()
{
    WindowFixture fixture;
    fixture.open();
    fixture.window->onClientConnectionLost(); // Idle
    QCOMPARE(fixture.window->connectionState(), ConnectionState::Reconnecting);
    QProgressDialog *dialog = reconnectDialog(fixture);
    QVERIFY(dialog != nullptr);
    fixture.window->onClientConnectionLost();
    QCOMPARE(reconnectDialog(fixture), dialog);
    fixture.window->onConnectToDaemon();
    QCOMPARE(fixture.window->connectionState(), ConnectionState::Connecting);
    fixture.window->onClientConnectionLost();
    QCOMPARE(fixture.window->connectionState(), ConnectionState::Connecting);
    fixture.window->close();
    fixture.window->onClientConnectionLost();
    QCOMPARE(fixture.window->connectionState(), ConnectionState::Closing);
}

ORVEL_TEST_MAIN(QApplication, TestConnectionLoss)
#include "tst_connectionloss.moc"
