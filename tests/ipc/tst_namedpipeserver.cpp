#include "mcsipcserverconnection.h"
#include "mcsnamedpipeserver.h"
#include "platform.h"
#include "rawclient.h"
#include "testmain.h"
#include "wireprotocol.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

/// Starting and stopping to listen, and why it cannot be done.
class TestNamedPipeServer : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void listensOnTheDefaultEndpoint();
    void newServerDoesNotListen();
    void closingEndsListening();
    void listeningAgainAfterClosing();
    void listeningWhileListeningStartsAnew();
    void listeningElsewhereFreesTheFirstEndpoint();
    void clientsSurviveClosing();
    void clientsFromBeforeTheEventLoopAreAllAccepted();
    void onlyTheOwnUserMayConnect();
    void nothingIsLeftBehind();
    void reasonOfFailure_data();
    void reasonOfFailure();
    void missingRuntimeDirectoryIsAReason();
    void successClearsTheReason();

private:
    QString path(const QString &name) const
    {
        return endpointIn(m_directory->path(), name);
    }

    std::unique_ptr<QTemporaryDir> m_directory;
};

void TestNamedPipeServer::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(m_directory->isValid());
}

void TestNamedPipeServer::cleanup()
{
    m_directory.reset();
}

void TestNamedPipeServer::listensOnTheDefaultEndpoint()
{
    MCsNamedPipeServer server;
    QVERIFY(server.listen());
    QVERIFY(server.isListening());
    QCOMPARE(server.serverName(), defaultPipeName());
    QCOMPARE(server.errorString(), QString());
    RawClient client;
    QVERIFY(client.connectTo(defaultPipeName()));
    QTRY_COMPARE(server.connections().size(), 1);
}

void TestNamedPipeServer::newServerDoesNotListen()
{
    const MCsNamedPipeServer server;
    QVERIFY(!server.isListening());
    QCOMPARE(server.serverName(), QString());
    QCOMPARE(server.errorString(), QString());
    RawClient client;
    QVERIFY(!client.connectTo(defaultPipeName()));
}

void TestNamedPipeServer::closingEndsListening()
{
    MCsNamedPipeServer server;
    QVERIFY(server.listen(path(u"s"_s)));
    server.close();
    QVERIFY(!server.isListening());
    RawClient client;
    QVERIFY(!client.connectTo(path(u"s"_s)));
    server.close();
}

void TestNamedPipeServer::listeningAgainAfterClosing()
{
    MCsNamedPipeServer server;
    for (int round = 0; round < 3; ++round) {
        QVERIFY(server.listen(path(u"s"_s)));
        RawClient client;
        QVERIFY(client.connectTo(path(u"s"_s)));
        QTRY_COMPARE(server.connections().size(), 1);
        client.leave();
        QTRY_COMPARE(server.connections().size(), 0);
        server.close();
    }
}

void TestNamedPipeServer::listeningWhileListeningStartsAnew()
{
    MCsNamedPipeServer server;
    QVERIFY(server.listen(path(u"s"_s)));
    QVERIFY2(server.listen(path(u"s"_s)), qPrintable(server.errorString()));
    RawClient client;
    QVERIFY(client.connectTo(path(u"s"_s)));
    QTRY_COMPARE(server.connections().size(), 1);
}

void TestNamedPipeServer::listeningElsewhereFreesTheFirstEndpoint()
{
    MCsNamedPipeServer server;
    MCsNamedPipeServer other;
    QVERIFY(server.listen(path(u"s"_s)));
    QVERIFY(server.listen(path(u"t"_s)));
    QCOMPARE(server.serverName(), path(u"t"_s));
    QVERIFY2(other.listen(path(u"s"_s)), qPrintable(other.errorString()));
}

void TestNamedPipeServer::clientsSurviveClosing()
{
    MCsNamedPipeServer server;
    const QSignalSpy commands(&server, &MCsIPCServer::commandReceived);
    QVERIFY(server.listen(path(u"s"_s)));
    RawClient client;
    QVERIFY(client.connectTo(path(u"s"_s)));
    QTRY_COMPARE(server.connections().size(), 1);
    server.close();
    client.send("{\"id\":\"a\",\"cmd\":\"x\"}\n");
    QTRY_COMPARE(commands.count(), 1);
    QVERIFY(server.connections().constFirst()->sendResponse({{u"id"_s, u"a"_s}}));
    QTRY_COMPARE(client.lines().size(), 1);
}

void TestNamedPipeServer::clientsFromBeforeTheEventLoopAreAllAccepted()
{
    MCsNamedPipeServer server;
    QVERIFY(server.listen(path(u"s"_s)));
    RawClient clients[5];
    for (RawClient &client : clients)
        QVERIFY(client.connectTo(path(u"s"_s)));
    QTRY_COMPARE(server.connections().size(), 5);
}

void TestNamedPipeServer::onlyTheOwnUserMayConnect()
{
    if (!endpointsAreFiles)
        QSKIP(endpointsAreNoFiles);
    MCsNamedPipeServer server;
    QVERIFY(server.listen(path(u"s"_s)));
    constexpr QFile::Permissions others =
        QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
    const QFile::Permissions permissions = QFile::permissions(path(u"s"_s));
    QCOMPARE(permissions & others, QFile::Permissions());
    QVERIFY(permissions & QFile::WriteOwner);
    QCOMPARE(QFileInfo(path(u"s"_s)).ownerId(), ownUserId());
}

void TestNamedPipeServer::nothingIsLeftBehind()
{
    {
        MCsNamedPipeServer server;
        QVERIFY(server.listen(path(u"s"_s)));
    }
    QCOMPARE(QDir(m_directory->path()).entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList());
}

void TestNamedPipeServer::reasonOfFailure_data()
{
    if (!endpointsAreFiles)
        QSKIP(endpointsAreNoFiles);
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");
    const QString unwritable = u"Cannot listen on %1: its directory cannot be written"_s;
    QTest::newRow("empty name") << QString() << u"There is no runtime directory of the user's own for the endpoint"_s;
    QTest::newRow("missing directory") << u"missing/s"_s << unwritable;
    QTest::newRow("file instead of a directory") << u"file/s"_s << unwritable;
    QTest::newRow("directory without the right to write") << u"locked/s"_s << unwritable;
    if (hasKernelFiles)
        QTest::newRow("directory that nobody may write to") << u"/proc/s"_s << unwritable;
    QTest::newRow("directory of that name")
        << u"directory"_s << u"Cannot listen on %1: something else bears that name"_s;
    QTest::newRow("file of that name") << u"file"_s << u"Cannot listen on %1: something else bears that name"_s;
    QTest::newRow("too long") << QString(120, u'x') << u"Cannot listen on %1: the path is too long for a socket"_s;
}

void TestNamedPipeServer::reasonOfFailure()
{
    QFETCH(const QString, name);
    QFETCH(const QString, reason);
    QFile file(path(u"file"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(QDir(m_directory->path()).mkdir(u"directory"_s));
    QVERIFY(QDir(m_directory->path()).mkdir(u"locked"_s));
    QVERIFY(QFile::setPermissions(path(u"locked"_s), QFile::ReadOwner | QFile::ExeOwner));
    if (name.startsWith("locked"_L1) && QFileInfo(path(u"locked"_s)).isWritable())
        QSKIP("this user may write everywhere");

    const QString serverName = name.isEmpty() ? QString() : path(name);
    MCsNamedPipeServer server;
    QVERIFY(!server.listen(serverName));
    QVERIFY(!server.isListening());
    QCOMPARE(server.errorString(), serverName.isEmpty() ? reason : reason.arg(serverName));
    QVERIFY(file.exists());
    QVERIFY(QFileInfo(path(u"directory"_s)).isDir());
    QCOMPARE(QDir(m_directory->path()).entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot),
             (QStringList{u"directory"_s, u"file"_s, u"locked"_s}));
}

void TestNamedPipeServer::missingRuntimeDirectoryIsAReason()
{
    if (!endpointsAreFiles)
        QSKIP(endpointsAreNoFiles);
    // Qt offers a directory below the one for temporary files instead; here a file is in its way.
    QFile file(path(u"runtime-"_s + QFileInfo(m_directory->path()).owner()));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const QByteArray runtimeDirectory = qgetenv("XDG_RUNTIME_DIR");
    const QByteArray temporaryDirectory = qgetenv("TMPDIR");
    qunsetenv("XDG_RUNTIME_DIR");
    qputenv("TMPDIR", QFile::encodeName(m_directory->path()));
    MCsNamedPipeServer server;
    const bool listening = server.listen();
    qputenv("XDG_RUNTIME_DIR", runtimeDirectory);
    if (temporaryDirectory.isNull())
        qunsetenv("TMPDIR");
    else
        qputenv("TMPDIR", temporaryDirectory);
    QVERIFY(!listening);
    QCOMPARE(server.errorString(), u"There is no runtime directory of the user's own for the endpoint"_s);
}

void TestNamedPipeServer::successClearsTheReason()
{
    MCsNamedPipeServer other;
    QVERIFY(other.listen(path(u"taken"_s)));
    MCsNamedPipeServer server;
    QVERIFY(!server.listen(path(u"taken"_s)));
    QVERIFY(!server.errorString().isEmpty());
    QVERIFY(server.listen(path(u"s"_s)));
    QCOMPARE(server.errorString(), QString());
}

ORVEL_TEST_MAIN(QCoreApplication, TestNamedPipeServer)
#include "tst_namedpipeserver.moc"
