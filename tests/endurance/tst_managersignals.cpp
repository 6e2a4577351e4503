#include "managerprogram.h"
#include "testmain.h"

#include <QCoreApplication>

using namespace TestSupport;

/// The real program ended by a signal. It handles none: it holds nothing that is not written yet.
class TestManagerSignals : public QObject {
    Q_OBJECT

private slots:
    void init();
    void aTerminatedManagerLosesNothing_data();
    void aTerminatedManagerLosesNothing();
};

void TestManagerSignals::init()
{
    QFile::remove(managerLogPath());
}

void TestManagerSignals::aTerminatedManagerLosesNothing_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<bool>("stalled");
    QTest::newRow("terminated") << SIGTERM << false;
    QTest::newRow("terminated beside a stalled daemon") << SIGTERM << true;
    QTest::newRow("interrupted") << SIGINT << false;
    QTest::newRow("hung up") << SIGHUP << false;
}

// The log's lines are whole, and the daemon lets the next manager of the same type in.
void TestManagerSignals::aTerminatedManagerLosesNothing()
{
    QFETCH(int, number);
    QFETCH(bool, stalled);
    const Program daemon(DAEMON_PROGRAM);
    QTRY_VERIFY_PATIENT(daemonAnswers());
    Program manager(MANAGER_PROGRAM, managerArguments());
    QTRY_VERIFY_PATIENT(timesRegistered() == 1);
    if (stalled) {
        daemon.signal(SIGSTOP);
        QTRY_VERIFY_PATIENT(hasTimedOut());
    }
    const int taken = manager.timeToEnd([number](Program &program) { program.signal(number); });
    QVERIFY2(taken < endsAtOnceMs, qPrintable(QString::number(taken)));
    QCOMPARE(manager->exitStatus(), QProcess::CrashExit);
    QCOMPARE(manager->exitCode(), number);
    const QString text = managerLog();
    QVERIFY(text.endsWith(u'\n'));
    daemon.signal(SIGCONT);
    const Program next(MANAGER_PROGRAM, managerArguments());
    QTRY_VERIFY_PATIENT(timesRegistered() == 2);
    QVERIFY(managerLog().startsWith(text));
}

ORVEL_TEST_MAIN(QCoreApplication, TestManagerSignals)
#include "tst_managersignals.moc"
