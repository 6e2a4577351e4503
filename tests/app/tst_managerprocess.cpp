#include "platform.h"
#include "testmain.h"
#include "wireprotocol.h"

#include <QCoreApplication>
#include <QFile>
#include <QLocalSocket>
#include <QProcess>

#include <memory>

using namespace Qt::StringLiterals;

/// Programs that start beside other tests, perhaps under a sanitizer, may take their time.
#define QTRY_VERIFY_PATIENT(condition) QTRY_VERIFY_WITH_TIMEOUT(condition, 30000)

namespace {

/// The log file of the manager processes, which share this test's directories.
QString logPath()
{
    return TestSupport::applicationsDirectory() + u"/Orvel Task Scheduler/gui_logs.log"_s;
}

QString logText()
{
    QFile file(logPath());
    return file.open(QIODevice::ReadOnly | QIODevice::Text) ? QString::fromUtf8(file.readAll()) : QString();
}

void removeLog()
{
    QFile::remove(logPath());
}

/// Ends its program when it goes.
class Program {
public:
    Program(const char *program, const QStringList &arguments)
    {
        m_process.setProcessChannelMode(QProcess::MergedChannels);
        m_process.start(QString::fromLocal8Bit(program), arguments);
        m_process.waitForStarted();
    }
    ~Program()
    {
        m_process.kill();
        m_process.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(Program)

    QProcess *operator->()
    {
        return &m_process;
    }
    [[nodiscard]] bool running() const
    {
        return m_process.state() == QProcess::Running;
    }

private:
    QProcess m_process;
};

QStringList managerArguments(const QString &taskType)
{
    return {u"--task-type"_s,    taskType, u"--language"_s,     u"en"_s,
            u"--program-name"_s, u"Foo"_s, u"--program-path"_s, u"/opt/foo"_s};
}

bool daemonAnswers()
{
    QLocalSocket probe;
    probe.connectToServer(Scheduler::defaultPipeName());
    return probe.waitForConnected(100);
}

} // namespace

/// The real programs: exit status, log file, and two managers beside each other.
class TestManagerProcess : public QObject {
    Q_OBJECT

private slots:
    void init();
    void helpAndVersionEndAtOnce();
    void malformedOptionsEndWithAMessage_data();
    void malformedOptionsEndWithAMessage();
    void aManagerFindsTheDaemonAndLogsIt();
    void twoManagersOfDifferentTypesRunSideBySide();
    void aManagerOutlivesTheDaemonAndFindsItsSuccessor();
};

void TestManagerProcess::init()
{
    removeLog();
}

void TestManagerProcess::helpAndVersionEndAtOnce()
{
    Program help(MANAGER_PROGRAM, {u"--help"_s});
    QVERIFY(help->waitForFinished());
    QCOMPARE(help->exitCode(), 0);
    const QString text = QString::fromUtf8(help->readAll());
    for (const auto &part : {u"Tevari Scheduler Manager"_s, u"--task-type <type>"_s, u"--language <language>"_s,
                             u"--program-name <name>"_s, u"--program-path <path>"_s, u"Program display name"_s,
                             u"--program-parameters-file <ppath>"_s, u"Program parameter json path"_s})
        QVERIFY2(text.contains(part), qPrintable(text));

    Program version(MANAGER_PROGRAM, {u"--version"_s});
    QVERIFY(version->waitForFinished());
    QCOMPARE(version->exitCode(), 0);
    QCOMPARE(QString::fromUtf8(version->readAll()).trimmed(), u"Orvel Task Scheduler 1.0.1"_s);
    QCOMPARE(logText(), QString());
}

void TestManagerProcess::malformedOptionsEndWithAMessage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("message");
    QTest::newRow("unknown") << QStringList{u"--colour"_s} << u"Unknown option 'colour'"_s;
    QTest::newRow("without its value") << QStringList{u"--language"_s} << u"Missing value after '--language'"_s;
}

void TestManagerProcess::malformedOptionsEndWithAMessage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, message);
    Program manager(MANAGER_PROGRAM, arguments);
    QVERIFY(manager->waitForFinished());
    QCOMPARE(manager->exitCode(), 1);
    const QString output = QString::fromUtf8(manager->readAll());
    QVERIFY2(output.contains(message), qPrintable(output));
    QCOMPARE(logText(), QString());
}

void TestManagerProcess::aManagerFindsTheDaemonAndLogsIt()
{
    const Program daemon(DAEMON_PROGRAM, {});
    QTRY_VERIFY_PATIENT(daemonAnswers());
    Program manager(MANAGER_PROGRAM, managerArguments(u"task_type.screen_record"_s));
    QTRY_VERIFY_PATIENT(logText().contains(u"Connected and registered as task_type.screen_record"_s));
    const QStringList lines = logText().split(u'\n', Qt::SkipEmptyParts);
    QStringList messages;
    for (const QString &line : lines) {
        QVERIFY2(line.startsWith(u'[') && line.sliced(20).startsWith(u"] : "_s), qPrintable(line));
        messages.append(line.sliced(24));
    }
    const QStringList expected{u"Starting SchedulerManager..."_s,
                               u"Task Type: task_type.screen_record"_s,
                               u"Program Name: Foo"_s,
                               u"Program Path: /opt/foo"_s,
                               u"Program Parameter JSON Path: "_s,
                               u"Language shortcut: en"_s,
                               u"Mapped Qt language: en"_s,
                               u"Loaded translation: :/i18n/Brelvix_en.qm"_s,
                               u"LayoutDirection set to LeftToRight"_s,
                               u"Connected and registered as task_type.screen_record"_s};
    QCOMPARE(messages.first(expected.size()), expected);
    QVERIFY(manager.running());
}

void TestManagerProcess::twoManagersOfDifferentTypesRunSideBySide()
{
    const Program daemon(DAEMON_PROGRAM, {});
    QTRY_VERIFY_PATIENT(daemonAnswers());
    const Program first(MANAGER_PROGRAM, managerArguments(u"task_type.screen_record"_s));
    const Program second(MANAGER_PROGRAM, managerArguments(u"task_type.audio_record"_s));
    QTRY_VERIFY_PATIENT(logText().contains(u"Connected and registered as task_type.screen_record"_s));
    QTRY_VERIFY_PATIENT(logText().contains(u"Connected and registered as task_type.audio_record"_s));
    const Program third(MANAGER_PROGRAM, managerArguments(u"task_type.audio_record"_s));
    QTRY_VERIFY_PATIENT(logText().contains(u"Another client of type 'task_type.audio_record' is already connected"_s));
    QVERIFY(first.running());
    QVERIFY(second.running());
}

void TestManagerProcess::aManagerOutlivesTheDaemonAndFindsItsSuccessor()
{
    auto daemon = std::make_unique<Program>(DAEMON_PROGRAM, QStringList());
    QTRY_VERIFY_PATIENT(daemonAnswers());
    const Program manager(MANAGER_PROGRAM, managerArguments(u"task_type.test"_s));
    QTRY_VERIFY_PATIENT(logText().contains(u"Connected and registered as task_type.test"_s));
    daemon.reset(); // killed
    QTRY_VERIFY_PATIENT(logText().contains(u"[WARN] Connection lost, attempting to reconnect..."_s));
    daemon = std::make_unique<Program>(DAEMON_PROGRAM, QStringList());
    QTRY_VERIFY_PATIENT(logText().contains(u"Reconnected successfully"_s));
    QVERIFY(manager.running());
}

ORVEL_TEST_MAIN(QCoreApplication, TestManagerProcess)
#include "tst_managerprocess.moc"
