#include "daemonstatefile.h"
#include "testmain.h"
#include "wireclient.h"
#include "wireprotocol.h"

#include <QProcess>

#include <csignal>

using namespace Qt::StringLiterals;
using namespace TestSupport;

/// Runs the real program.
class TestDaemonProcess : public QObject {
    Q_OBJECT

private slots:
    void init();
    void aSignalEndsItCleanly_data();
    void aSignalEndsItCleanly();
    void aSecondDaemonOnTheEndpointIsRefused();
    void anEndpointThatCannotBeMadeIsReported();
    void aCorruptStateIsReportedAndKept();
    void itIsQuietUnlessVerbose_data();
    void itIsQuietUnlessVerbose();
    void theStateIsKeptInTheApplicationsOwnDirectory();
    void helpAndVersionGoToStandardOutput();
    void aWrongArgumentEndsWithStatusOne();

private:
    struct Ended {
        int status = -1;
        QString output;
        QString errors;
    };

    void start(QProcess &daemon, const QStringList &arguments);
    [[nodiscard]] QString statePath() const
    {
        return m_directory->filePath(u"state.json"_s);
    }
    static Ended waitForEnd(QProcess &daemon);
    static Ended runToEnd(const QStringList &arguments,
                          const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment());

    std::unique_ptr<QTemporaryDir> m_directory;
    QString m_errors; ///< what the started daemon has written so far
};

void TestDaemonProcess::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(m_directory->isValid());
    m_errors.clear();
}

void TestDaemonProcess::start(QProcess &daemon, const QStringList &arguments)
{
    connect(&daemon, &QProcess::readyReadStandardError, this,
            [this, &daemon] { m_errors += QString::fromUtf8(daemon.readAllStandardError()); });
    daemon.start(QStringLiteral(ORVEL_DEV_DAEMON), arguments);
    QTRY_VERIFY2_WITH_TIMEOUT(m_errors.contains(u"listening on "_s + Scheduler::defaultPipeName()),
                              qUtf8Printable(m_errors), 20'000);
}

TestDaemonProcess::Ended TestDaemonProcess::waitForEnd(QProcess &daemon)
{
    if (!daemon.waitForFinished() || daemon.exitStatus() != QProcess::NormalExit)
        return {};
    return {daemon.exitCode(), QString::fromUtf8(daemon.readAllStandardOutput()),
            QString::fromUtf8(daemon.readAllStandardError())};
}

TestDaemonProcess::Ended TestDaemonProcess::runToEnd(const QStringList &arguments,
                                                     const QProcessEnvironment &environment)
{
    QProcess daemon;
    daemon.setProcessEnvironment(environment);
    daemon.start(QStringLiteral(ORVEL_DEV_DAEMON), arguments);
    return waitForEnd(daemon);
}

void TestDaemonProcess::aSignalEndsItCleanly_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGINT") << SIGINT;
}

void TestDaemonProcess::aSignalEndsItCleanly()
{
    QFETCH(const int, number);
    QProcess daemon;
    start(daemon, {u"--state"_s, statePath(), u"--empty"_s});
    WireClient client;
    QVERIFY(client.connectToDaemon());
    QCOMPARE(client.registerAs(u"task_type.test"_s), QString());
    const QJsonObject task{{u"name"_s, u"last change"_s}, {u"type"_s, u"task_type.test"_s}, {u"enabled"_s, true}};
    QCOMPARE(errorCode(client.call(u"task.create"_s, QJsonObject{{u"task"_s, task}})), QString());

    QCOMPARE(::kill(static_cast<pid_t>(daemon.processId()), number), 0);
    QCOMPARE(waitForEnd(daemon).status, 0);
    QVERIFY(!QFile::exists(Scheduler::defaultPipeName()));
    const auto state = Scheduler::DevDaemon::loadStateFile(statePath()).state;
    QVERIFY(state.has_value());
    QCOMPARE(state->tasks.size(), 1);
    QCOMPARE(state->tasks.first().name, u"last change"_s);
}

void TestDaemonProcess::aSecondDaemonOnTheEndpointIsRefused()
{
    QProcess first;
    start(first, {u"--state"_s, statePath()});
    const QString otherState = m_directory->filePath(u"other.json"_s);
    const Ended second = runToEnd({u"--state"_s, otherState});
    QCOMPARE(second.status, 1);
    QVERIFY2(second.errors.contains(u"cannot listen"_s), qUtf8Printable(second.errors));
    QVERIFY(!QFile::exists(otherState));

    WireClient client;
    QVERIFY(client.connectToDaemon());
    QCOMPARE(client.registerAs(u"task_type.test"_s), QString());
    first.terminate();
    QCOMPARE(waitForEnd(first).status, 0);
}

void TestDaemonProcess::anEndpointThatCannotBeMadeIsReported()
{
    // Longer than the name of a local socket can be.
    const QString longDirectory = m_directory->filePath(QString(120, u'x'));
    QVERIFY(QDir().mkpath(longDirectory));
    QFile::setPermissions(longDirectory, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"XDG_RUNTIME_DIR"_s, longDirectory);
    const Ended ended = runToEnd({u"--state"_s, statePath()}, environment);
    QCOMPARE(ended.status, 1);
    QVERIFY2(ended.errors.contains(u"cannot listen"_s), qUtf8Printable(ended.errors));
}

void TestDaemonProcess::aCorruptStateIsReportedAndKept()
{
    QFile file(statePath());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("{ broken");
    file.close();
    const Ended ended = runToEnd({u"--state"_s, statePath()});
    QCOMPARE(ended.status, 1);
    QVERIFY2(ended.errors.contains(statePath()), qUtf8Printable(ended.errors));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("{ broken"));
    QVERIFY(!QFile::exists(Scheduler::defaultPipeName()));
}

void TestDaemonProcess::itIsQuietUnlessVerbose_data()
{
    QTest::addColumn<QStringList>("extra");
    QTest::addColumn<bool>("logged");
    QTest::newRow("by default") << QStringList() << false;
    QTest::newRow("with --verbose") << QStringList{u"--verbose"_s} << true;
}

void TestDaemonProcess::itIsQuietUnlessVerbose()
{
    QFETCH(const QStringList, extra);
    QFETCH(const bool, logged);
    QProcess daemon;
    start(daemon, QStringList{u"--state"_s, statePath(), u"--empty"_s} + extra);
    {
        WireClient client;
        QVERIFY(client.connectToDaemon());
        QCOMPARE(client.registerAs(u"task_type.test"_s), QString());
        QCOMPARE(errorCode(client.call(u"tasktype.list"_s)), QString());
    }
    QTRY_VERIFY2(m_errors.contains(u"client left: task_type.test"_s), qUtf8Printable(m_errors));
    QVERIFY(m_errors.contains(u"client registered: task_type.test"_s));
    QCOMPARE(m_errors.contains(u"Sending response"_s), logged);
    daemon.terminate();
    QCOMPARE(waitForEnd(daemon).status, 0);
}

void TestDaemonProcess::theStateIsKeptInTheApplicationsOwnDirectory()
{
    QProcess daemon;
    start(daemon, {u"--tasks=12"_s, u"--groups=2"_s});
    daemon.terminate();
    QCOMPARE(waitForEnd(daemon).status, 0);
    const QString path = qEnvironmentVariable("XDG_DATA_HOME") + u"/orvel-dev-daemon/state.json"_s;
    const auto state = Scheduler::DevDaemon::loadStateFile(path).state;
    QVERIFY(state.has_value());
    QCOMPARE(state->tasks.size(), 12);
    QCOMPARE(state->groups.size(), 2);
    QVERIFY(QFile::remove(path));
}

void TestDaemonProcess::helpAndVersionGoToStandardOutput()
{
    const Ended help = runToEnd({u"--help"_s});
    QCOMPARE(help.status, 0);
    QVERIFY(help.output.contains(u"--state"_s));
    QCOMPARE(help.errors, QString());
    const Ended version = runToEnd({u"--version"_s});
    QCOMPARE(version.status, 0);
    QCOMPARE(version.output, u"orvel-dev-daemon " ORVEL_VERSION "\n"_s);
}

void TestDaemonProcess::aWrongArgumentEndsWithStatusOne()
{
    const Ended ended = runToEnd({u"--colour"_s});
    QCOMPARE(ended.status, 1);
    QVERIFY2(ended.errors.contains(u"colour"_s), qUtf8Printable(ended.errors));
    QCOMPARE(ended.output, QString());
}

ORVEL_TEST_MAIN(QCoreApplication, TestDaemonProcess)
#include "tst_daemonprocess.moc"
