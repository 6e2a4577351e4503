#include "fakeservicetools.h"
#include "logcapture.h"
#include "modaldriver.h"
#include "testmain.h"
#include "windowfixture.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QProgressDialog>
#include <QPushButton>

using namespace Scheduler;
using namespace TestSupport;
using namespace Qt::StringLiterals;

namespace {

const QString multipleAttempts =
    u"Unable to connect to scheduler service after multiple attempts.\n\nPlease ensure the service is running "
    "correctly and try again."_s;
const QString installedButFailed =
    u"Scheduler service is installed but failed to start.\n\nPlease check system logs or "
    "reinstall the service."_s;
const QString notInstalled =
    u"Scheduler service is not installed.\n\nPlease reinstall the service and restart the application."_s;

/// What one step of the procedure left behind: the dialog's text and the time until the next step.
struct Step {
    QString text;
    int nextStepMs = 0;

    friend bool operator==(const Step &, const Step &) = default;
};

[[maybe_unused]] char *toString(const Step &step)
{
    return QTest::toString(u"%1, then %2 ms"_s.arg(step.text).arg(step.nextStepMs));
}

QProgressDialog *connectDialog(const WindowFixture &fixture)
{
    return fixture.window->findChild<QProgressDialog *>(u"connectDialog"_s);
}

/// The window runs its automatic connection, and every step is recorded.
void recordSteps(WindowFixture &fixture, QList<Step> &steps)
{
    fixture.make();
    fixture.window->autoConnectToDaemon();
    QTimer *timer = fixture.timer("autoConnectTimer");
    QObject::connect(timer, &QTimer::timeout, timer, [&fixture, &steps, timer] {
        if (const QProgressDialog *dialog = connectDialog(fixture); dialog != nullptr && timer->isActive())
            steps.append({dialog->labelText(), timer->interval()});
    });
}

} // namespace

/// The roads on which the socket does not answer.
class TestServiceStart : public QObject {
    Q_OBJECT

private slots:
    void aServiceThatCannotHelpEndsTheApplication_data();
    void aServiceThatCannotHelpEndsTheApplication();
    void theStepsFollowEachOtherWithTheirTextsAndDelays();
    void aServiceThatComesUpAfterItsStartIsConnected();
    void theRefusedAttemptsAreLogged();
    void cancelEndsTheProcedureAtTheNextStep_data();
    void cancelEndsTheProcedureAtTheNextStep();
    void cancelDuringTheFirstAttemptCountsAtTheNextStep_data();
    void cancelDuringTheFirstAttemptCountsAtTheNextStep();
    void closingTheWindowEndsTheProcedure_data();
    void closingTheWindowEndsTheProcedure();
    void cancelDuringTheLastRetryComesTooLate();
};

void TestServiceStart::aServiceThatCannotHelpEndsTheApplication_data()
{
    QTest::addColumn<QByteArray>("queryOutput");
    QTest::addColumn<QString>("start");
    QTest::addColumn<QStringList>("calls");
    QTest::addColumn<QString>("message");
    const QString query = u"show"_s;
    const QString start = u"start"_s;
    QTest::newRow("running but silent") << FakeServiceTools::running << u"1"_s << QStringList{query}
                                        << multipleAttempts;
    QTest::newRow("started but silent") << FakeServiceTools::stopped << u"0"_s << QStringList{query, start}
                                        << multipleAttempts;
    QTest::newRow("start fails, installed")
        << FakeServiceTools::stopped << u"1"_s << QStringList{query, start, query} << installedButFailed;
    QTest::newRow("start fails, not installed")
        << FakeServiceTools::missing << u"1"_s << QStringList{query, start, query} << notInstalled;
    QTest::newRow("start fails, query says nothing")
        << QByteArray() << u"5"_s << QStringList{query, start, query} << notInstalled;
    QTest::newRow("start takes too long")
        << FakeServiceTools::stopped << u"hangs"_s << QStringList{query, start} << multipleAttempts;
    if (FakeServiceTools::canBeMissing)
        QTest::newRow("no such tool") << FakeServiceTools::stopped << u"missing"_s << QStringList{} << multipleAttempts;
}

void TestServiceStart::aServiceThatCannotHelpEndsTheApplication()
{
    QFETCH(QByteArray, queryOutput);
    QFETCH(QString, start);
    QFETCH(QString, message);
    FakeServiceTools tools;
    tools.setQueryOutput(queryOutput);
    if (start == "hangs"_L1)
        tools.setStartHangs();
    else if (start == "missing"_L1)
        tools.uninstall();
    else
        tools.setStartExitCode(start.toInt());
    ModalDriver driver;
    driver.expectBox(QMessageBox::Critical, u"Service Error"_s, message, QMessageBox::Ok, QMessageBox::Ok);
    WindowFixture fixture;
    fixture.open();
    QCOMPARE(runUntilQuit(), 0);
    QVERIFY2(driver.finished(), driver.problems());
    QTEST(tools.calls(), "calls");
    QCOMPARE(fixture.window->connectionState(), ConnectionState::Closing);
    QVERIFY(!fixture.timer("autoConnectTimer")->isActive());
}

void TestServiceStart::theStepsFollowEachOtherWithTheirTextsAndDelays()
{
    FakeServiceTools tools;
    tools.setQueryOutput(FakeServiceTools::running);
    ModalDriver driver;
    driver.expectBox(QMessageBox::Critical, u"Service Error"_s, multipleAttempts, QMessageBox::Ok, QMessageBox::Ok);
    WindowFixture fixture;
    QList<Step> steps;
    recordSteps(fixture, steps);
    QCOMPARE(connectDialog(fixture)->labelText(), u"Connecting to scheduler service..."_s);
    QCOMPARE(runUntilQuit(), 0);
    QVERIFY2(driver.finished(), driver.problems());
    const QList<Step> expected{
        {u"Connecting to scheduler service (attempt 1 of 3)..."_s, 100},
        {u"Connecting to scheduler service (attempt 2 of 3)..."_s, 100},
        {u"Connecting to scheduler service (attempt 3 of 3)..."_s, 100},
        {u"Waiting for service to start..."_s, 1500},
        {u"Reconnecting to scheduler service (attempt 1 of 3)..."_s, 500},
        {u"Reconnecting to scheduler service (attempt 2 of 3)..."_s, 500},
    };
    QCOMPARE(steps, expected);
}

void TestServiceStart::aServiceThatComesUpAfterItsStartIsConnected()
{
    FakeServiceTools tools;
    tools.setQueryOutput(FakeServiceTools::stopped);
    tools.setStartExitCode(0);
    WindowFixture fixture;
    fixture.open();
    QTRY_COMPARE(tools.calls(), QStringList({u"show"_s, u"start"_s}));
    QVERIFY(fixture.startDaemon());
    QTRY_COMPARE(fixture.window->connectionState(), ConnectionState::Connected);
    QTRY_COMPARE(fixture.status(), u"Connected"_s);
    QTRY_VERIFY(fixture.daemon.commands().contains(u"task.countByType"_s));
}

void TestServiceStart::theRefusedAttemptsAreLogged()
{
    FakeServiceTools tools;
    ModalDriver driver;
    driver.expectBox(QMessageBox::Critical, u"Service Error"_s, notInstalled, QMessageBox::Ok, QMessageBox::Ok);
    WindowFixture fixture;
    const LogCapture log;
    fixture.open();
    QCOMPARE(runUntilQuit(), 0);
    QVERIFY2(driver.finished(), driver.problems());
    const QString attempt =
        u"ERROR connected to deamon failed! (attempt %1 of 3) reason = Failed to connect to daemon"_s;
    const QStringList expected{attempt.arg(1), attempt.arg(2), attempt.arg(3),
                               u"WARN [WARN] Initial connection failed, attempting to start service..."_s};
    QCOMPARE(log.lines(u"MainWindow"_s).last(4).size(), 4);
    QCOMPARE(log.lines(u"MainWindow"_s).last(4), expected);
}

void TestServiceStart::cancelEndsTheProcedureAtTheNextStep_data()
{
    QTest::addColumn<int>("afterStep");
    QTest::addColumn<int>("calls");
    QTest::newRow("before the first attempt") << 0 << 0;
    QTest::newRow("after attempt 1") << 1 << 0;
    QTest::newRow("after attempt 3") << 3 << 0;
    QTest::newRow("while waiting for the service") << 4 << 1;
    QTest::newRow("after retry 2") << 6 << 1;
}

void TestServiceStart::cancelEndsTheProcedureAtTheNextStep()
{
    QFETCH(int, afterStep);
    FakeServiceTools tools;
    tools.setQueryOutput(FakeServiceTools::running);
    ModalDriver driver;
    WindowFixture fixture;
    QList<Step> steps;
    recordSteps(fixture, steps);
    const auto cancel = [&fixture] { click(connectDialog(fixture)->findChild<QPushButton *>()); };
    if (afterStep == 0)
        cancel();
    QObject::connect(fixture.timer("autoConnectTimer"), &QTimer::timeout, fixture.window.get(), [&] {
        if (steps.size() == afterStep && !connectDialog(fixture)->wasCanceled())
            cancel();
    });
    QCOMPARE(runUntilQuit(), 0);
    QVERIFY2(driver.finished(), driver.problems()); // no box at all
    QCOMPARE(steps.size(), afterStep);
    QTEST(static_cast<int>(tools.calls().size()), "calls");
    QCOMPARE(fixture.window->connectionState(), ConnectionState::Closing);
}

void TestServiceStart::cancelDuringTheFirstAttemptCountsAtTheNextStep_data()
{
    QTest::addColumn<bool>("accepted");
    QTest::newRow("attempt refused") << false;
    QTest::newRow("attempt accepted") << true;
}

void TestServiceStart::cancelDuringTheFirstAttemptCountsAtTheNextStep()
{
    QFETCH(bool, accepted);
    const FakeServiceTools tools;
    ModalDriver driver;
    WindowFixture fixture;
    QVERIFY(fixture.startDaemon());
    if (!accepted)
        fixture.daemon.refuse(u"client.register"_s, u"BUSY"_s, u"no"_s);
    fixture.daemon.onRequest(u"client.register"_s,
                             [&](const QJsonObject &) { click(connectDialog(fixture)->findChild<QPushButton *>()); });
    fixture.open();
    if (accepted) {
        QTRY_COMPARE(fixture.window->connectionState(), ConnectionState::Connected);
    } else {
        QCOMPARE(runUntilQuit(), 0);
        QCOMPARE(fixture.window->connectionState(), ConnectionState::Closing);
    }
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(fixture.daemon.requests(u"client.register"_s).size(), 1);
    QCOMPARE(tools.calls(), QStringList());
}

void TestServiceStart::closingTheWindowEndsTheProcedure_data()
{
    QTest::addColumn<int>("afterStep");
    QTest::newRow("after attempt 2") << 2;
    QTest::newRow("while waiting for the service") << 4;
    QTest::newRow("after retry 1") << 5;
}

void TestServiceStart::closingTheWindowEndsTheProcedure()
{
    QFETCH(int, afterStep);
    FakeServiceTools tools;
    tools.setQueryOutput(FakeServiceTools::running);
    ModalDriver driver;
    WindowFixture fixture;
    QList<Step> steps;
    recordSteps(fixture, steps);
    QTRY_COMPARE(steps.size(), afterStep);
    fixture.window->close();
    QVERIFY(!fixture.timer("autoConnectTimer")->isActive());
    QCOMPARE(fixture.window->connectionState(), ConnectionState::Closing);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(fixture.window->findChild<QProgressDialog *>() == nullptr);
    QVERIFY2(driver.finished(), driver.problems());
}

void TestServiceStart::cancelDuringTheLastRetryComesTooLate()
{
    FakeServiceTools tools;
    tools.setQueryOutput(FakeServiceTools::running);
    ModalDriver driver;
    driver.expectBox(QMessageBox::Critical, u"Service Error"_s, multipleAttempts, QMessageBox::Ok, QMessageBox::Ok);
    WindowFixture fixture;
    int registrations = 0;
    fixture.daemon.refuse(u"client.register"_s, u"BUSY"_s, u"no"_s);
    fixture.daemon.onRequest(u"client.register"_s, [&](const QJsonObject &) {
        if (++registrations == 3)
            click(connectDialog(fixture)->findChild<QPushButton *>());
    });
    fixture.open();
    QTRY_COMPARE(tools.calls().size(), 1);
    QVERIFY(fixture.daemon.listen());
    QCOMPARE(runUntilQuit(), 0);
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(registrations, 3);
}

ORVEL_TEST_MAIN(QApplication, TestServiceStart)
#include "tst_servicestart.moc"
