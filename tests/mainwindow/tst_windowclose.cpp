#include "commandfixture.h"
#include "logcapture.h"
#include "mcsschedulerclient.h"
#include "testmain.h"

#include <QAbstractButton>
#include <QApplication>
#include <QProgressDialog>

using namespace Scheduler;
using namespace TestSupport;
using namespace Qt::StringLiterals;

namespace {

/// Titles of the dialogs that are shown, also of those that the application's end closes again at once.
class ShownDialogs : public QObject {
public:
    ShownDialogs()
    {
        qApp->installEventFilter(this);
    }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (const auto *dialog = qobject_cast<QDialog *>(watched); dialog != nullptr && event->type() == QEvent::Show)
            titles.append(dialog->windowTitle());
        return false;
    }

    QStringList titles;
};

} // namespace

/// Closing the window, in every state.
class TestWindowClose : public QObject {
    Q_OBJECT

private slots:
    void closingKeepsTheConnectionUntilTheWindowIsDestroyed();
    void aClosedWindowShowsNoLoss();
    void closingDuringTheConnectDialogEndsWithoutAMessage();
    void closingWhileTheRegistrationWaitsEndsWithoutAMessage_data();
    void closingWhileTheRegistrationWaitsEndsWithoutAMessage();
    void closingDuringTheReconnectDialogEndsTheSequence();
    void closingInTheMiddleOfARefreshDoesNotComeBack();
    void closingWhileADaemonCallWaitsShowsNothingMore_data();
    void closingWhileADaemonCallWaitsShowsNothingMore();
    void aClosedWindowStaysClosing();
};

void TestWindowClose::closingKeepsTheConnectionUntilTheWindowIsDestroyed()
{
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    QVERIFY(fixture.window->close());
    QCoreApplication::processEvents();
    QCOMPARE(fixture.window->connectionState(), ConnectionState::Closing);
    QCOMPARE(fixture.daemon.connectionCount(), 1);
    QCOMPARE(fixture.status(), u"Connected"_s);
    QVERIFY(!fixture.timer("auditRefreshTimer")->isActive());
    fixture.close();
    QTRY_COMPARE(fixture.daemon.connectionCount(), 0);
    QVERIFY(openWindows().isEmpty());
}

void TestWindowClose::aClosedWindowShowsNoLoss()
{
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    fixture.window->close();
    fixture.daemon.dropConnections();
    const auto *client = fixture.window->findChild<MCsSchedulerClient *>();
    QTRY_VERIFY(!client->isConnected());
    QCOMPARE(fixture.status(), u"Connected"_s);
    QCOMPARE(fixture.window->connectionState(), ConnectionState::Closing);
}

void TestWindowClose::closingDuringTheConnectDialogEndsWithoutAMessage()
{
    WindowFixture fixture;
    ModalDriver driver;
    fixture.open();
    const LogCapture log;
    QTRY_COMPARE(log.entries(u"MainWindow"_s).size(), 1); // the first attempt has failed
    fixture.window->close();
    QVERIFY(!fixture.timer("autoConnectTimer")->isActive());
    fixture.window->onAutoConnectStep();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(fixture.window->findChild<QProgressDialog *>() == nullptr);
    QCOMPARE(log.entries(u"MainWindow"_s).size(), 1);
    QVERIFY2(driver.finished(), driver.problems());
}

void TestWindowClose::closingWhileTheRegistrationWaitsEndsWithoutAMessage_data()
{
    QTest::addColumn<bool>("accepted");
    QTest::newRow("accepted afterwards") << true;
    QTest::newRow("refused afterwards") << false;
}

void TestWindowClose::closingWhileTheRegistrationWaitsEndsWithoutAMessage()
{
    QFETCH(bool, accepted);
    WindowFixture fixture;
    QVERIFY(fixture.startDaemon());
    if (!accepted)
        fixture.daemon.refuse(u"client.register"_s, u"CLIENT_TYPE_ALREADY_CONNECTED"_s, u"taken"_s);
    fixture.daemon.hold(u"client.register"_s);
    ModalDriver driver;
    fixture.open();
    fixture.daemon.onRequest(u"client.register"_s, [&fixture](const QJsonObject &) {
        QTimer::singleShot(0, fixture.window.get(), [&fixture] {
            fixture.window->close();
            fixture.daemon.release(u"client.register"_s);
        });
    });
    // The application's end would end the wait, too, before the answer is read.
    const LogCapture log(1);
    const QString outcome = accepted ? u"INFO Connected and registered as task_type.screen_record"_s
                                     : u"WARN Registration failed after connect"_s;
    QTRY_VERIFY(log.lines(u"MCsSchedulerClient"_s).contains(outcome));
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(fixture.window->connectionState(), ConnectionState::Closing);
    QCOMPARE(fixture.daemon.commands(), QStringList({u"client.register"_s}));
    QVERIFY(!fixture.window->isVisible());
}

void TestWindowClose::closingDuringTheReconnectDialogEndsTheSequence()
{
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    ModalDriver driver;
    fixture.daemon.stop();
    QTRY_COMPARE(fixture.window->connectionState(), ConnectionState::Reconnecting);
    fixture.window->close();
    QVERIFY(!fixture.timer("reconnectTimer")->isActive());
    QCOMPARE(fixture.window->connectionState(), ConnectionState::Closing);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(fixture.window->findChild<QProgressDialog *>() == nullptr);
    QVERIFY2(driver.finished(), driver.problems());
}

void TestWindowClose::closingInTheMiddleOfARefreshDoesNotComeBack()
{
    WindowFixture fixture;
    QVERIFY(fixture.startDaemon());
    fixture.daemon.onRequest(u"tasktype.list"_s, [&fixture](const QJsonObject &) {
        QTimer::singleShot(0, fixture.window.get(), &QWidget::close);
    });
    ModalDriver driver;
    fixture.open();
    QCOMPARE(runUntilQuit(), 0);
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(fixture.window->connectionState(), ConnectionState::Closing);
    QVERIFY(!fixture.window->isVisible());
    QVERIFY(!fixture.timer("auditRefreshTimer")->isActive());
}

void TestWindowClose::closingWhileADaemonCallWaitsShowsNothingMore_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<QString>("waiting");
    QTest::newRow("delete a task") << u"deleteButton"_s << u"task.delete"_s;
    QTest::newRow("toggle a task") << u"onToggleTaskEnabled"_s << u"task.disable"_s;
    QTest::newRow("trigger a task") << u"triggerButton"_s << u"task.trigger"_s;
    QTest::newRow("delete a group") << u"deleteGroupButton"_s << u"group.delete"_s;
    QTest::newRow("enable a group's tasks") << u"onEnableAllTasksInGroup"_s << u"group.enableAllTasks"_s;
    QTest::newRow("delete a group's tasks") << u"onDeleteAllTasksInGroup"_s << u"group.deleteAllTasks"_s;
    QTest::newRow("drop a task") << QString() << u"task.moveToGroup"_s;
    QTest::newRow("dialog of a new task") << u"createButton"_s << u"group.listByTaskType"_s;
    QTest::newRow("dialog of a task") << u"editButton"_s << u"task.get"_s;
    QTest::newRow("dialog of a new group") << u"createGroupButton"_s << u"group.listByTaskType"_s;
    QTest::newRow("dialog of a group") << u"editGroupButton"_s << u"group.get"_s;
}

void TestWindowClose::closingWhileADaemonCallWaitsShowsNothingMore()
{
    QFETCH(QString, control);
    QFETCH(QString, waiting);
    CommandFixture fixture;
    QVERIFY(fixture.connectQuietly());
    fixture.selectGroup(0);
    fixture.selectTask(0);
    fixture.daemon.hold(waiting); // the application's end ends the wait
    fixture.daemon.onRequest(
        waiting, [&fixture](const QJsonObject &) { QTimer::singleShot(0, fixture.window.get(), &QWidget::close); });
    ModalDriver driver;
    const bool asks = waiting.startsWith("task.delete"_L1) || waiting.startsWith("group.delete"_L1);
    if (asks)
        driver.expectDialog<QMessageBox>(u"Confirm Delete"_s,
                                         [](QMessageBox *box) { box->button(QMessageBox::Yes)->click(); });
    const ShownDialogs shown;
    QTimer::singleShot(0, fixture.window.get(), [&] {
        if (control.isEmpty())
            fixture.window->onTasksDroppedOnGroup({u"t1"_s}, u"g1"_s);
        else
            fixture.run(control);
    });
    QCOMPARE(runUntilQuit(), 0);
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(shown.titles, asks ? QStringList{u"Confirm Delete"_s} : QStringList());
    QCOMPARE(fixture.daemon.commands().last(), waiting);
    QCOMPARE(fixture.window->connectionState(), ConnectionState::Closing);
    QVERIFY(!fixture.window->isVisible());
}

void TestWindowClose::aClosedWindowStaysClosing()
{
    WindowFixture fixture;
    QVERIFY(fixture.startDaemon());
    fixture.open();
    fixture.window->close();
    fixture.window->autoConnectToDaemon();
    QCOMPARE(fixture.window->connectionState(), ConnectionState::Closing);
    QVERIFY(fixture.timer("autoConnectTimer") == nullptr);
}

ORVEL_TEST_MAIN(QApplication, TestWindowClose)
#include "tst_windowclose.moc"
