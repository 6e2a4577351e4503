#include "daemonoptions.h"
#include "platform.h"
#include "testmain.h"

using namespace Qt::StringLiterals;
using namespace Scheduler::DevDaemon;

class TestDaemonOptions : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void withoutArgumentsTheDefaultsHold();
    void everyOptionIsTaken();
    void emptyIsTaken();
    void wrongArgumentsAreExplained_data();
    void wrongArgumentsAreExplained();
    void helpAndVersionEndWithSuccess_data();
    void helpAndVersionEndWithSuccess();

private:
    static CommandLine parse(const QStringList &arguments)
    {
        return parseCommandLine(QStringList{u"orvel-dev-daemon"_s} + arguments);
    }
};

void TestDaemonOptions::initTestCase()
{
    QCoreApplication::setApplicationName(u"orvel-dev-daemon"_s);
    QCoreApplication::setApplicationVersion(u"9.8.7"_s);
}

void TestDaemonOptions::withoutArgumentsTheDefaultsHold()
{
    const CommandLine line = parse({});
    QVERIFY(line.options.has_value());
    QCOMPARE(line.options->statePath, TestSupport::applicationsDirectory() + u"/orvel-dev-daemon/state.json"_s);
    QVERIFY(!line.options->empty);
    QVERIFY(!line.options->verbose);
    QCOMPARE(line.options->taskCount, 0);
    QCOMPARE(line.options->groupCount, 0);
    QCOMPARE(line.options->runSeconds, 5);
}

void TestDaemonOptions::everyOptionIsTaken()
{
    const CommandLine line = parse({u"--state"_s, u"/tmp/my state.json"_s, u"--verbose"_s, u"--tasks=10"_s,
                                    u"--groups"_s, u"3"_s, u"--run-seconds"_s, u"0"_s});
    QVERIFY(line.options.has_value());
    QCOMPARE(line.options->statePath, u"/tmp/my state.json"_s);
    QVERIFY(line.options->verbose);
    QCOMPARE(line.options->taskCount, 10);
    QCOMPARE(line.options->groupCount, 3);
    QCOMPARE(line.options->runSeconds, 0);
}

void TestDaemonOptions::emptyIsTaken()
{
    const CommandLine line = parse({u"--empty"_s, u"--tasks=0"_s});
    QVERIFY(line.options.has_value());
    QVERIFY(line.options->empty);
}

void TestDaemonOptions::wrongArgumentsAreExplained_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("named");
    QTest::newRow("unknown option") << QStringList{u"--port=5"_s} << u"port"_s;
    QTest::newRow("surplus argument") << QStringList{u"surplus"_s} << u"surplus"_s;
    QTest::newRow("missing file name") << QStringList{u"--state"_s} << u"state"_s;
    QTest::newRow("empty file name") << QStringList{u"--state="_s} << u"--state"_s;
    QTest::newRow("tasks, no number") << QStringList{u"--tasks=many"_s} << u"--tasks"_s;
    QTest::newRow("groups, negative") << QStringList{u"--groups=-1"_s} << u"--groups"_s;
    QTest::newRow("groups, too many") << QStringList{u"--groups=10001"_s} << u"--groups"_s;
    QTest::newRow("seconds, no number") << QStringList{u"--run-seconds=1.5"_s} << u"--run-seconds"_s;
    QTest::newRow("empty with tasks") << QStringList{u"--empty"_s, u"--tasks=1"_s} << u"--empty"_s;
    QTest::newRow("empty with groups") << QStringList{u"--groups=1"_s, u"--empty"_s} << u"--empty"_s;
}

void TestDaemonOptions::wrongArgumentsAreExplained()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, named);
    const CommandLine line = parse(arguments);
    QVERIFY(!line.options.has_value());
    QCOMPARE(line.exitStatus, 1);
    QVERIFY2(line.text.contains(named), qUtf8Printable(line.text));
}

void TestDaemonOptions::helpAndVersionEndWithSuccess_data()
{
    QTest::addColumn<QString>("argument");
    QTest::addColumn<QString>("expected");
    QTest::newRow("help") << u"--help"_s << u"--run-seconds"_s;
    QTest::newRow("help on everything") << u"--help-all"_s << u"--run-seconds"_s;
    QTest::newRow("version") << u"--version"_s << u"orvel-dev-daemon 9.8.7"_s;
}

void TestDaemonOptions::helpAndVersionEndWithSuccess()
{
    QFETCH(const QString, argument);
    QFETCH(const QString, expected);
    const CommandLine line = parse({argument});
    QVERIFY(!line.options.has_value());
    QCOMPARE(line.exitStatus, 0);
    QVERIFY2(line.text.contains(expected), qUtf8Printable(line.text));
}

ORVEL_TEST_MAIN(QCoreApplication, TestDaemonOptions)
#include "tst_daemonoptions.moc"
