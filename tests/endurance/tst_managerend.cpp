#include "managerprogram.h"
#include "testmain.h"

#include <QCoreApplication>

#include <memory>

using namespace TestSupport;
using namespace Qt::StringLiterals;

/// The end of the real program beside the real daemon, which runs, stands still or is gone.
class TestManagerEnd : public QObject {
    Q_OBJECT

private slots:
    void init();
    void endsAtOnce_data();
    void endsAtOnce();
    void endsAtOnceWhileTheRegistrationIsNotAnswered_data();
    void endsAtOnceWhileTheRegistrationIsNotAnswered();
    void endsAtOnceWhileItReconnects();

private:
    static void verifyEnd(Program &manager, const QByteArray &letter);
};

void TestManagerEnd::init()
{
    QFile::remove(managerLogPath());
}

void TestManagerEnd::verifyEnd(Program &manager, const QByteArray &letter)
{
    const int taken = manager.timeToEnd([&letter](Program &program) { program->write(letter); });
    const char *row = QTest::currentDataTag();
    qInfo("soak: %s, %s: ends within %d ms", QTest::currentTestFunction(), row == nullptr ? "closed" : row, taken);
    QVERIFY2(taken < endsAtOnceMs, qPrintable(QString::number(taken)));
    QCOMPARE(manager->state(), QProcess::NotRunning);
    QCOMPARE(manager->exitStatus(), QProcess::NormalExit);
    QCOMPARE(manager->exitCode(), 0);
}

void TestManagerEnd::endsAtOnce_data()
{
    QTest::addColumn<bool>("stalled");
    QTest::addColumn<QByteArray>("letter");
    QTest::newRow("closed") << false << QByteArray("c");
    QTest::newRow("closed beside a stalled daemon") << true << QByteArray("c");
    QTest::newRow("quit") << false << QByteArray("q");
    QTest::newRow("quit beside a stalled daemon") << true << QByteArray("q");
}

void TestManagerEnd::endsAtOnce()
{
    QFETCH(bool, stalled);
    QFETCH(QByteArray, letter);
    const Program daemon(DAEMON_PROGRAM);
    QTRY_VERIFY_PATIENT(daemonAnswers());
    Program manager(MANAGER_PROGRAM, managerArguments());
    QTRY_VERIFY_PATIENT(timesRegistered() == 1);
    if (stalled) {
        daemon.signal(SIGSTOP);
        QTRY_VERIFY_PATIENT(hasTimedOut()); // the next request waits already, or soon
    }
    verifyEnd(manager, letter);
}

void TestManagerEnd::endsAtOnceWhileTheRegistrationIsNotAnswered_data()
{
    QTest::addColumn<QByteArray>("letter");
    QTest::newRow("closed") << QByteArray("c");
    QTest::newRow("quit") << QByteArray("q");
}

void TestManagerEnd::endsAtOnceWhileTheRegistrationIsNotAnswered()
{
    QFETCH(QByteArray, letter);
    const Program daemon(DAEMON_PROGRAM);
    QTRY_VERIFY_PATIENT(daemonAnswers());
    daemon.signal(SIGSTOP); // the system goes on accepting for it
    Program manager(MANAGER_PROGRAM, managerArguments());
    QTRY_VERIFY_PATIENT(hasTimedOut());
    verifyEnd(manager, letter);
}

void TestManagerEnd::endsAtOnceWhileItReconnects()
{
    auto daemon = std::make_unique<Program>(DAEMON_PROGRAM);
    QTRY_VERIFY_PATIENT(daemonAnswers());
    Program manager(MANAGER_PROGRAM, managerArguments());
    QTRY_VERIFY_PATIENT(timesRegistered() == 1);
    daemon.reset();
    QTRY_VERIFY_PATIENT(managerLog().contains(u"Connection lost, attempting to reconnect"_s));
    verifyEnd(manager, "c");
}

ORVEL_TEST_MAIN(QCoreApplication, TestManagerEnd)
#include "tst_managerend.moc"
