#include "daemonstatefile.h"
#include "defects.h"
#include "logcapture.h"
#include "mcsdevdaemon.h"
#include "testmain.h"
#include "wireclient.h"
#include "wireprotocol.h"

#include <QJsonArray>
#include <QProcess>

#include <csignal>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

/// Programs that start beside other tests, perhaps under a sanitizer, may take their time.
#define QTRY_VERIFY_PATIENT(condition) QTRY_VERIFY_WITH_TIMEOUT(condition, 30'000)

/// The real program, and the real stand-in daemon.
class TestProtocolCheckProcess : public QObject {
    Q_OBJECT

private slots:
    void itPassesAgainstTheStandInDaemon();
    void itEndsWithStatusTwoWhereNothingCanBeChecked_data();
    void itEndsWithStatusTwoWhereNothingCanBeChecked();
    void aTypeThatIsTakenEndsWithStatusTwo();
    void helpVersionAndRulesGoToStandardOutput_data();
    void helpVersionAndRulesGoToStandardOutput();
    void aSignalLetsItRemoveWhatItMade_data();
    void aSignalLetsItRemoveWhatItMade();

private:
    struct Ended {
        int status = -1;
        QString output;
        QString errors;
    };

    static Ended runToEnd(const QStringList &arguments);
};

TestProtocolCheckProcess::Ended TestProtocolCheckProcess::runToEnd(const QStringList &arguments)
{
    QProcess check;
    check.start(QStringLiteral(ORVEL_PROTOCOL_CHECK), arguments);
    if (!QTest::qWaitFor([&check] { return check.state() == QProcess::NotRunning; }, 60'000))
        return {};
    return {check.exitStatus() == QProcess::NormalExit ? check.exitCode() : -1,
            QString::fromUtf8(check.readAllStandardOutput()), QString::fromUtf8(check.readAllStandardError())};
}

void TestProtocolCheckProcess::itPassesAgainstTheStandInDaemon()
{
    const QTemporaryDir directory;
    const QString statePath = directory.filePath(u"state.json"_s);
    QProcess daemon;
    QByteArray said;
    connect(&daemon, &QProcess::readyReadStandardError, this, [&] { said += daemon.readAllStandardError(); });
    daemon.start(QStringLiteral(ORVEL_DEV_DAEMON), {u"--state"_s, statePath, u"--tasks=3"_s, u"--groups=2"_s});
    QTRY_VERIFY_PATIENT(said.contains("listening on"));

    const Ended ended = runToEnd({});
    QVERIFY2(ended.status == 0, qPrintable(ended.output + ended.errors));
    QCOMPARE(ended.errors, QString());
    QVERIFY2(ended.output.endsWith(u"rules hold, 0 differ, 0 were not tried\n"_s), qPrintable(ended.output));

    daemon.terminate();
    QVERIFY(daemon.waitForFinished());
    const auto state = DevDaemon::loadStateFile(statePath).state;
    QVERIFY(state.has_value());
    QCOMPARE(state->tasks.size(), 3);
    QCOMPARE(state->groups.size(), 2);
}

void TestProtocolCheckProcess::itEndsWithStatusTwoWhereNothingCanBeChecked_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("message");
    QTest::newRow("no daemon") << QStringList() << u"no daemon at %1: "_s.arg(defaultPipeName());
    QTest::newRow("no daemon at another endpoint")
        << QStringList{u"--endpoint=/nowhere"_s} << u"no daemon at /nowhere"_s;
    QTest::newRow("no endpoint") << QStringList{u"--endpoint="_s} << u"--endpoint"_s;
    QTest::newRow("no type") << QStringList{u"--task-type="_s} << u"--task-type"_s;
    QTest::newRow("unknown option") << QStringList{u"--colour"_s} << u"colour"_s;
    QTest::newRow("argument") << QStringList{u"more"_s} << u"more"_s;
}

void TestProtocolCheckProcess::itEndsWithStatusTwoWhereNothingCanBeChecked()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, message);
    const Ended ended = runToEnd(arguments);
    QCOMPARE(ended.status, 2);
    QCOMPARE(ended.output, QString());
    QVERIFY2(ended.errors.contains(message), qPrintable(ended.errors));
}

void TestProtocolCheckProcess::aTypeThatIsTakenEndsWithStatusTwo()
{
    const LogCapture quiet(4);
    const QTemporaryDir directory;
    DevDaemon::DaemonOptions options;
    options.statePath = directory.filePath(u"state.json"_s);
    DevDaemon::MCsDevDaemon daemon(options);
    QVERIFY(daemon.start());
    WireClient other;
    QVERIFY(other.connectToDaemon());
    QCOMPARE(other.registerAs(u"task_type.pdf_convert"_s), QString());
    const Ended ended = runToEnd({u"--task-type"_s, u"task_type.pdf_convert"_s});
    QCOMPARE(ended.status, 2);
    QVERIFY2(ended.errors.contains(u"the type task_type.pdf_convert is taken"_s), qPrintable(ended.errors));
}

void TestProtocolCheckProcess::helpVersionAndRulesGoToStandardOutput_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("part");
    QTest::newRow("help") << u"--help"_s << u"--task-type"_s;
    QTest::newRow("version") << u"--version"_s << u"orvel-protocol-check " ORVEL_VERSION "\n"_s;
    QTest::newRow("rules") << u"--list"_s << u"task.get: One task is answered, in its form.\n"_s;
}

void TestProtocolCheckProcess::helpVersionAndRulesGoToStandardOutput()
{
    QFETCH(const QString, option);
    QFETCH(const QString, part);
    const Ended ended = runToEnd({option});
    QCOMPARE(ended.status, 0);
    QCOMPARE(ended.errors, QString());
    QVERIFY2(ended.output.contains(part), qPrintable(ended.output));
}

void TestProtocolCheckProcess::aSignalLetsItRemoveWhatItMade_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("SIGINT") << SIGINT;
    QTest::newRow("SIGTERM") << SIGTERM;
}

void TestProtocolCheckProcess::aSignalLetsItRemoveWhatItMade()
{
    QFETCH(const int, number);
    const LogCapture quiet(4);
    const QTemporaryDir directory;
    DevDaemon::DaemonOptions options;
    options.statePath = directory.filePath(u"state.json"_s);
    options.empty = true;
    DevDaemon::MCsDevDaemon daemon(options);
    QVERIFY(daemon.start());

    // The signal comes while an answer is waited for, which never comes.
    QProcess check;
    SpoilingProxy proxy(directory.filePath(u"proxy"_s), defaultPipeName());
    proxy.spoil([&check, number](const SpoilingProxy::Exchange &exchange) {
        if (!isOf(u"task.moveToGroup"_s, exchange.request) || exchange.request["cmd"_L1] != "task.moveToGroup"_L1)
            return QList{exchange.response};
        ::kill(static_cast<pid_t>(check.processId()), number);
        return QList<QJsonObject>();
    });
    QVERIFY(proxy.listen());
    check.start(QStringLiteral(ORVEL_PROTOCOL_CHECK), {u"--endpoint"_s, directory.filePath(u"proxy"_s)});
    QTRY_VERIFY_PATIENT(check.state() == QProcess::NotRunning);
    QCOMPARE(check.exitStatus(), QProcess::NormalExit);
    QCOMPARE(check.exitCode(), 130);
    const QByteArray output = check.readAllStandardOutput();
    QVERIFY2(output.contains("not tried: task.moveToGroup: interrupted\n"), output.constData());

    QVERIFY(daemon.stop());
    const auto state = DevDaemon::loadStateFile(options.statePath).state;
    QVERIFY(state.has_value());
    QVERIFY(state->audit.size() > 10);
    QCOMPARE(state->tasks.size(), 0);
    QCOMPARE(state->groups.size(), 0);
}

ORVEL_TEST_MAIN(QCoreApplication, TestProtocolCheckProcess)
#include "tst_protocolcheckprocess.moc"
