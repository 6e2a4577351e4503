#include "logcapture.h"
#include "mcsschedulerclient.h"
#include "modaldriver.h"
#include "testmain.h"
#include "windowfixture.h"

#include <QApplication>
#include <QProgressDialog>

using namespace Scheduler;
using namespace TestSupport;
using namespace Qt::StringLiterals;

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
