#include "mcsnamedpipeserver.h"
#include "rawclient.h"
#include "rawsocket.h"
#include "testmain.h"

#include <QFile>
#include <QFileInfo>
#include <QLocalServer>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <vector>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

namespace {

/// Another process that listens on the endpoint, or says why it cannot.
class Listener {
public:
    explicit Listener(const QString &path)
    {
        m_process.start(QStringLiteral(LISTENER_PROCESS), {path});
    }
    ~Listener()
    {
        kill();
    }
    Q_DISABLE_COPY_MOVE(Listener)

    /// Its first line.
    QString answer()
    {
        if (!QTest::qWaitFor([this] { return m_process.canReadLine() || m_process.state() == QProcess::NotRunning; },
                             30000))
            return {};
        return QString::fromUtf8(m_process.readLine()).trimmed();
    }
    void kill()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

private:
    QProcess m_process;
};

} // namespace

/// An endpoint that is there already: what a dead process left is taken over, what a living one serves never.
class TestTakeover : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void fileOfAClosedSocketIsTakenOver_data();
    void fileOfAClosedSocketIsTakenOver();
    void socketThatNobodyListensOnIsTakenOver();
    void endpointOfAKilledProcessIsTakenOver();
    void lockOfAKilledProcessAloneIsNoObstacle();
    void endpointOfThisProcessIsNotTakenOver();
    void endpointOfAnotherProcessIsNotTakenOver();
    void endpointOfAServerWithoutALockIsNotTakenOver();
    void endpointOfABusyServerIsNotTakenOver();
    void failureDoesNotHarmTheLivingServer();
    void freedEndpointMayBeTaken();
    void oneOfSeveralProcessesThatStartTogetherListens();

private:
    void verifyServes(const MCsNamedPipeServer &server);
    void verifyRefused();

    std::unique_ptr<QTemporaryDir> m_directory;
    QString m_path;
};

void TestTakeover::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(m_directory->isValid());
    m_path = m_directory->filePath(u"s"_s);
}

void TestTakeover::cleanup()
{
    m_directory.reset();
}

void TestTakeover::verifyServes(const MCsNamedPipeServer &server)
{
    RawClient client;
    QVERIFY(client.connectTo(m_path));
    QTRY_COMPARE(server.connections().size(), 1);
}

void TestTakeover::verifyRefused()
{
    MCsNamedPipeServer server;
    QVERIFY(!server.listen(m_path));
    QVERIFY(!server.isListening());
    QCOMPARE(server.errorString(), u"Another process already listens on %1"_s.arg(m_path));
}

void TestTakeover::fileOfAClosedSocketIsTakenOver_data()
{
    QTest::addColumn<bool>("listened");
    QTest::newRow("had listened") << true;
    QTest::newRow("never listened") << false;
}

void TestTakeover::fileOfAClosedSocketIsTakenOver()
{
    QFETCH(const bool, listened);
    RawSocket stale(m_path);
    QVERIFY(stale.bind());
    if (listened)
        QVERIFY(stale.listen(5));
    stale.close();
    QVERIFY(QFileInfo::exists(m_path));

    MCsNamedPipeServer server;
    QVERIFY2(server.listen(m_path), qPrintable(server.errorString()));
    verifyServes(server);
}

void TestTakeover::socketThatNobodyListensOnIsTakenOver()
{
    RawSocket silent(m_path);
    QVERIFY(silent.bind());
    MCsNamedPipeServer server;
    QVERIFY2(server.listen(m_path), qPrintable(server.errorString()));
    verifyServes(server);
}

void TestTakeover::endpointOfAKilledProcessIsTakenOver()
{
    Listener killed(m_path);
    QCOMPARE(killed.answer(), u"listening"_s);
    killed.kill();
    QVERIFY(QFileInfo::exists(m_path));
    QVERIFY(QFileInfo::exists(m_path + u".lock"_s));

    MCsNamedPipeServer server;
    QVERIFY2(server.listen(m_path), qPrintable(server.errorString()));
    verifyServes(server);
}

void TestTakeover::lockOfAKilledProcessAloneIsNoObstacle()
{
    Listener killed(m_path);
    QCOMPARE(killed.answer(), u"listening"_s);
    killed.kill();
    QVERIFY(QFile::remove(m_path));

    MCsNamedPipeServer server;
    QVERIFY2(server.listen(m_path), qPrintable(server.errorString()));
    verifyServes(server);
}

void TestTakeover::endpointOfThisProcessIsNotTakenOver()
{
    MCsNamedPipeServer living;
    QVERIFY(living.listen(m_path));
    verifyRefused();
    verifyServes(living);
}

void TestTakeover::endpointOfAnotherProcessIsNotTakenOver()
{
    Listener living(m_path);
    QCOMPARE(living.answer(), u"listening"_s);
    verifyRefused();
    RawClient client;
    QVERIFY(client.connectTo(m_path));
    client.send("[]\n");
    QTRY_COMPARE(client.lines().size(), 1);
}

void TestTakeover::endpointOfAServerWithoutALockIsNotTakenOver()
{
    QLocalServer living;
    QVERIFY(living.listen(m_path));
    verifyRefused();
    QVERIFY(!QFileInfo::exists(m_path + u".lock"_s));
    RawClient client;
    QVERIFY(client.connectTo(m_path));
    QVERIFY(living.waitForNewConnection(5000));
}

void TestTakeover::endpointOfABusyServerIsNotTakenOver()
{
    RawSocket living(m_path);
    QVERIFY(living.bind());
    QVERIFY(living.listen(0));
    std::vector<RawSocket> waiting;
    do {
        waiting.emplace_back(m_path);
    } while (waiting.back().connect());
    verifyRefused();
    QVERIFY(QFileInfo::exists(m_path));
}

void TestTakeover::failureDoesNotHarmTheLivingServer()
{
    MCsNamedPipeServer living;
    QVERIFY(living.listen(m_path));
    {
        MCsNamedPipeServer late;
        QVERIFY(!late.listen(m_path));
        late.close();
    }
    verifyServes(living);
    verifyRefused();
}

void TestTakeover::freedEndpointMayBeTaken()
{
    MCsNamedPipeServer first;
    MCsNamedPipeServer second;
    QVERIFY(first.listen(m_path));
    QVERIFY(!second.listen(m_path));
    first.close();
    QVERIFY2(second.listen(m_path), qPrintable(second.errorString()));
    QVERIFY(!first.listen(m_path));
    verifyServes(second);
}

void TestTakeover::oneOfSeveralProcessesThatStartTogetherListens()
{
    RawSocket stale(m_path);
    QVERIFY(stale.bind());
    stale.close();
    Listener listeners[] = {Listener(m_path), Listener(m_path), Listener(m_path), Listener(m_path)};
    QStringList answers;
    for (Listener &listener : listeners)
        answers.append(listener.answer());
    QCOMPARE(answers.removeAll(u"listening"_s), 1);
    QCOMPARE(answers.removeAll(u"Another process already listens on %1"_s.arg(m_path)), 3);
    RawClient client;
    QVERIFY(client.connectTo(m_path));
    client.send("[]\n");
    QTRY_COMPARE(client.lines().size(), 1);
}

ORVEL_TEST_MAIN(QCoreApplication, TestTakeover)
#include "tst_namedpipeserver_takeover.moc"
