#include "daemonstatefile.h"
#include "enginefixture.h"
#include "mcsdevdaemon.h"
#include "testmain.h"
#include "wireclient.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace Scheduler::DevDaemon;
using namespace TestSupport;

class TestDaemonRestart : public QObject {
    Q_OBJECT

private slots:
    void init();
    void whatAUserMakesIsThereTheNextDay();
    void aRunThatWasInterruptedEndsAfterTheRestart();
    void changesAreSavedWhileTheDaemonRuns();
    void severalChangesAreSavedTogether();
    void aFirstStartWritesTheSample();
    void emptyAndGeneratedStatesTakeThePlaceOfTheSample();
    void anExistingStateBeatsTheOptions();
    void aStateThatCannotBeReadKeepsTheDaemonFromStarting();
    void aStateThatCannotBeWrittenKeepsTheDaemonFromStarting();

private:
    [[nodiscard]] DaemonOptions options() const;

    std::unique_ptr<QTemporaryDir> m_directory;
};

namespace {

/// Names of all tasks that a client sees.
QStringList taskNames(WireClient &client)
{
    QStringList names;
    const QJsonObject payload{{u"type"_s, u"task_type.all"_s}};
    const QJsonObject response = client.call(u"task.listByType"_s, payload);
    const QJsonArray tasks = response.value("data"_L1).toObject().value("tasks"_L1).toArray();
    for (const QJsonValue &task : tasks)
        names.append(task.toObject().value("name"_L1).toString());
    return names;
}

void createTask(WireClient &client, const QString &name)
{
    const QJsonObject task{{u"name"_s, name}, {u"type"_s, u"task_type.test"_s}, {u"enabled"_s, true}};
    QCOMPARE(errorCode(client.call(u"task.create"_s, QJsonObject{{u"task"_s, task}})), QString());
}

qsizetype savedTaskCount(const QString &path)
{
    const std::optional<State> state = loadStateFile(path).state;
    return state ? state->tasks.size() : -1;
}

} // namespace

void TestDaemonRestart::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(m_directory->isValid());
}

DaemonOptions TestDaemonRestart::options() const
{
    DaemonOptions options;
    options.statePath = m_directory->filePath(u"state.json"_s);
    options.empty = true;
    return options;
}

void TestDaemonRestart::whatAUserMakesIsThereTheNextDay()
{
    {
        MCsDevDaemon daemon(options());
        QVERIFY(daemon.start());
        WireClient client;
        QVERIFY(client.connectToDaemon());
        QCOMPARE(client.registerAs(u"task_type.test"_s), QString());
        createTask(client, u"会議 🎬"_s);
        QVERIFY(daemon.stop());
    }
    MCsDevDaemon daemon(options());
    QVERIFY(daemon.start());
    WireClient client;
    QVERIFY(client.connectToDaemon());
    QCOMPARE(client.registerAs(u"task_type.test"_s), QString());
    QCOMPARE(taskNames(client), QStringList{u"会議 🎬"_s});
}

void TestDaemonRestart::aRunThatWasInterruptedEndsAfterTheRestart()
{
    EngineFixture before;
    const QString taskId = before.addTask(u"task"_s);
    before.data(u"task.trigger"_s, QJsonObject{{u"taskId"_s, taskId}});
    QCOMPARE(saveStateFile(options().statePath, before.engine.state()), QString());

    EngineFixture after(loadStateFile(options().statePath).state.value_or(State()));
    QCOMPARE(after.task(taskId).value("lastRunStatus"_L1).toString(), u"running"_s);
    after.pass(24 * 3600);
    QCOMPARE(after.task(taskId).value("lastRunStatus"_L1).toString(), u"success"_s);
    QCOMPARE(after.auditActions().first(), u"task_run"_s);
}

void TestDaemonRestart::changesAreSavedWhileTheDaemonRuns()
{
    MCsDevDaemon daemon(options());
    QVERIFY(daemon.start());
    WireClient client;
    QVERIFY(client.connectToDaemon());
    QCOMPARE(client.registerAs(u"task_type.test"_s), QString());
    createTask(client, u"task"_s);
    QTRY_COMPARE(savedTaskCount(options().statePath), 1);
}

void TestDaemonRestart::severalChangesAreSavedTogether()
{
    MCsDevDaemon daemon(options());
    QVERIFY(daemon.start());
    WireClient client;
    QVERIFY(client.connectToDaemon());
    QCOMPARE(client.registerAs(u"task_type.test"_s), QString());
    for (int count = 0; count < 20; ++count)
        createTask(client, QString::number(count));
    QVERIFY(savedTaskCount(options().statePath) < 20);
    QTRY_COMPARE(savedTaskCount(options().statePath), 20);
}

void TestDaemonRestart::aFirstStartWritesTheSample()
{
    DaemonOptions withSample = options();
    withSample.empty = false;
    MCsDevDaemon daemon(withSample);
    QVERIFY(daemon.start());
    QVERIFY(savedTaskCount(withSample.statePath) > 10);
}

void TestDaemonRestart::emptyAndGeneratedStatesTakeThePlaceOfTheSample()
{
    {
        MCsDevDaemon daemon(options());
        QVERIFY(daemon.start());
        QCOMPARE(savedTaskCount(options().statePath), 0);
    }
    DaemonOptions generated = options();
    generated.statePath += u".generated"_s;
    generated.taskCount = 25;
    MCsDevDaemon daemon(generated);
    QVERIFY(daemon.start());
    QCOMPARE(savedTaskCount(generated.statePath), 25);
}

void TestDaemonRestart::anExistingStateBeatsTheOptions()
{
    State state;
    state.tasks.append(Task());
    state.tasks.first().id = u"kept"_s;
    QCOMPARE(saveStateFile(options().statePath, state), QString());
    DaemonOptions generated = options();
    generated.taskCount = 25;
    MCsDevDaemon daemon(generated);
    QSignalSpy messages(&daemon, &MCsDevDaemon::message);
    QVERIFY(daemon.start());
    QCOMPARE(savedTaskCount(generated.statePath), 1);
    QVERIFY(messages.first().first().toString().contains(u"have no effect"_s));
}

void TestDaemonRestart::aStateThatCannotBeReadKeepsTheDaemonFromStarting()
{
    QFile file(options().statePath);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("precious but broken");
    file.close();
    {
        MCsDevDaemon daemon(options());
        QSignalSpy messages(&daemon, &MCsDevDaemon::message);
        QVERIFY(!daemon.start());
        QVERIFY(messages.first().first().toString().contains(options().statePath));
    }
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("precious but broken"));
}

void TestDaemonRestart::aStateThatCannotBeWrittenKeepsTheDaemonFromStarting()
{
    DaemonOptions unwritable = options();
    QCOMPARE(saveStateFile(unwritable.statePath, {}), QString());
    unwritable.statePath += u"/below/a/file.json"_s;
    MCsDevDaemon daemon(unwritable);
    QSignalSpy messages(&daemon, &MCsDevDaemon::message);
    QVERIFY(!daemon.start());
    QVERIFY(messages.last().first().toString().startsWith(u"cannot save the state"_s));
}

ORVEL_TEST_MAIN(QCoreApplication, TestDaemonRestart)
#include "tst_daemonrestart.moc"
