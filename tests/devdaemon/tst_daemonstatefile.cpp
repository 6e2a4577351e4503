#include "daemonstatefile.h"
#include "mcsdaemonstore.h"
#include "samplestate.h"
#include "testmain.h"

using namespace Qt::StringLiterals;
using namespace Scheduler::DevDaemon;

class TestDaemonStateFile : public QObject {
    Q_OBJECT

private slots:
    void init();
    void everyMemberOfAStateSurvivesTheFile();
    void aMissingFileIsNoError();
    void savingMakesTheDirectory();
    void savingWhereNothingCanBeWrittenTellsWhy();
    void anUnusableFileIsReportedAndKept_data();
    void anUnusableFileIsReportedAndKept();
    void aDirectoryInPlaceOfTheFileIsReported();
    void referencesThatLeadNowhereAreDropped();
    void aRunWithoutAnIdIsNone();

private:
    [[nodiscard]] QString path() const
    {
        return m_directory->filePath(u"state.json"_s);
    }

    std::unique_ptr<QTemporaryDir> m_directory;
};

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

void TestDaemonStateFile::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(m_directory->isValid());
}

void TestDaemonStateFile::everyMemberOfAStateSurvivesTheFile()
{
    const QDateTime now = QDateTime::fromMSecsSinceEpoch(1'794'571'200'123, QTimeZone::utc());
    const State state = sampleState(now, QTimeZone::utc());
    QCOMPARE(saveStateFile(path(), state), QString());
    const LoadedState loaded = loadStateFile(path());
    QCOMPARE(loaded.error, QString());
    QVERIFY(loaded.state.has_value());
    QCOMPARE(loaded.state->tasks, state.tasks);
    QCOMPARE(loaded.state->groups, state.groups);
    QCOMPARE(loaded.state->audit, state.audit);
    QCOMPARE(loaded.state->lastAuditId, state.lastAuditId);
}

void TestDaemonStateFile::aMissingFileIsNoError()
{
    const LoadedState loaded = loadStateFile(path());
    QVERIFY(!loaded.state.has_value());
    QCOMPARE(loaded.error, QString());
}

void TestDaemonStateFile::savingMakesTheDirectory()
{
    const QString deep = m_directory->filePath(u"not/yet/there/state.json"_s);
    QCOMPARE(saveStateFile(deep, {}), QString());
    QVERIFY(loadStateFile(deep).state.has_value());
}

void TestDaemonStateFile::savingWhereNothingCanBeWrittenTellsWhy()
{
    QCOMPARE(saveStateFile(path(), {}), QString());
    QVERIFY(!saveStateFile(path() + u"/below/a/file.json"_s, {}).isEmpty());
    QVERIFY(!saveStateFile(m_directory->path(), {}).isEmpty());
}

void TestDaemonStateFile::anUnusableFileIsReportedAndKept_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty file") << QByteArray();
    QTest::newRow("not JSON") << QByteArray("tasks: none");
    QTest::newRow("cut off") << QByteArray(R"({"version":1,"tasks":[],"groups":[)");
    QTest::newRow("an array") << QByteArray("[]");
    QTest::newRow("another JSON file") << QByteArray(R"({"name":"value"})");
    QTest::newRow("a later version") << QByteArray(R"({"version":2,"tasks":[],"groups":[],"audit":[]})");
    QTest::newRow("a missing list") << QByteArray(R"({"version":1,"tasks":[],"groups":[]})");
    QTest::newRow("a list of another kind") << QByteArray(R"({"version":1,"tasks":{},"groups":[],"audit":[]})");
    QTest::newRow("a task that is no object") << QByteArray(R"({"version":1,"tasks":[1],"groups":[],"audit":[]})");
    QTest::newRow("a task without id") << QByteArray(R"({"version":1,"tasks":[{}],"groups":[],"audit":[]})");
    QTest::newRow("a repeated id") << QByteArray(
        R"({"version":1,"tasks":[],"groups":[{"id":"a"},{"id":"a"}],"audit":[]})");
}

void TestDaemonStateFile::anUnusableFileIsReportedAndKept()
{
    QFETCH(const QByteArray, content);
    QFile file(path());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();

    const LoadedState loaded = loadStateFile(path());
    QVERIFY(!loaded.state.has_value());
    QVERIFY(!loaded.error.isEmpty());
    QCOMPARE(contentOf(path()), content);
}

void TestDaemonStateFile::aDirectoryInPlaceOfTheFileIsReported()
{
    QVERIFY(!loadStateFile(m_directory->path()).error.isEmpty());
}

void TestDaemonStateFile::aRunWithoutAnIdIsNone()
{
    QFile file(path());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(R"({"version":1,"groups":[],"audit":[],
                   "tasks":[{"id":"t","run":{"startedAt":"2026-03-01T14:07:50Z","endsAt":"2026-03-01T14:07:56Z"}}]})");
    file.close();

    const LoadedState loaded = loadStateFile(path());
    QVERIFY(loaded.state.has_value());
    QCOMPARE(loaded.state->tasks.first().run, Run());
}

void TestDaemonStateFile::referencesThatLeadNowhereAreDropped()
{
    Task task;
    task.id = u"task"_s;
    task.groupId = u"gone"_s;
    const auto group = [](const QString &id, const QString &parentId) {
        Group made;
        made.id = id;
        made.parentId = parentId;
        return made;
    };
    State state;
    state.tasks = {task};
    state.groups = {group(u"orphan"_s, u"gone"_s),       group(u"top"_s, {}),
                    group(u"child"_s, u"top"_s),         group(u"grandchild"_s, u"child"_s),
                    group(u"circle 1"_s, u"circle 2"_s), group(u"circle 2"_s, u"circle 1"_s)};
    const MCsDaemonStore store(state, 10);
    QCOMPARE(store.task(u"task"_s)->groupId, QString());
    QCOMPARE(store.group(u"orphan"_s)->parentId, QString());
    QCOMPARE(store.group(u"child"_s)->parentId, u"top"_s);
    QCOMPARE(store.group(u"grandchild"_s)->parentId, QString());
    QCOMPARE(store.group(u"circle 1"_s)->parentId, QString());
    QCOMPARE(store.group(u"circle 2"_s)->parentId, u"circle 1"_s);
}

ORVEL_TEST_MAIN(QCoreApplication, TestDaemonStateFile)
#include "tst_daemonstatefile.moc"
