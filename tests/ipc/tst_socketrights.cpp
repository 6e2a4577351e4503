#include "logcapture.h"
#include "mcsipcconnection.h"
#include "mcsnamedpipeserver.h"
#include "platform.h"
#include "rawsocket.h"
#include "socketpeer.h"
#include "testmain.h"
#include "wireprotocol.h"

#include <QDir>
#include <QFileInfo>
#include <QLocalSocket>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTest>

#include <memory>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

namespace {

constexpr QFile::Permissions ownerAlone = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
constexpr QFile::Permissions everybody = ownerAlone | QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                         QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;

} // namespace

/// Manager and daemon of one user find each other, and nobody else gets between them.
class TestSocketRights : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void anotherUserIsNotLetIn();
    void aServerOfAnotherUserIsTurnedAway();
    void aServerBehindASocketFileOfTheOwnUserIsStillLookedAt();
    void afterAStrangerTheOwnServerIsFound();
    void aSocketThatTheSystemKnowsNothingOfIsNotTrusted();
    void onlyADirectoryOfTheOwnUserAloneHoldsTheEndpoint_data();
    void onlyADirectoryOfTheOwnUserAloneHoldsTheEndpoint();
    void anEndpointThatCannotBeConnectedToIsAFailedAttempt_data();
    void anEndpointThatCannotBeConnectedToIsAFailedAttempt();

private:
    [[nodiscard]] QString path(const QString &name) const
    {
        return QDir(m_directory->path()).absoluteFilePath(name);
    }

    std::unique_ptr<QTemporaryDir> m_directory;
    QString m_before; ///< working directory
};

void TestSocketRights::init()
{
    // The worst place there is: everybody may do everything in it.
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(m_directory->isValid());
    QVERIFY(QFile::setPermissions(m_directory->path(), everybody));
    // By relative names another user gets to it even if the directory for temporary files is closed.
    m_before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_directory->path()));
}

void TestSocketRights::cleanup()
{
    QDir::setCurrent(m_before);
    m_directory.reset();
}

void TestSocketRights::anotherUserIsNotLetIn()
{
    if (!OtherUser::possible())
        QSKIP("only root can be another user");
    MCsNamedPipeServer server;
    QVERIFY(server.listen(path(u"s"_s)));
    RawSocket foreign(u"s"_s);
    const auto connectAsOther = [&foreign] {
        const OtherUser other;
        return foreign.connect();
    };
    QVERIFY(!connectAsOther());
    QCOMPARE(errno, EACCES);
    // Nothing but the rights of the socket's file has kept it out.
    foreign.close();
    QCOMPARE(::chmod("s", 0777), 0);
    QVERIFY(connectAsOther());
}

void TestSocketRights::aServerOfAnotherUserIsTurnedAway()
{
    if (!OtherUser::possible())
        QSKIP("only root can be another user");
    RawSocket server(u"s"_s);
    {
        const OtherUser other;
        QVERIFY(server.bind());
        QVERIFY(server.listen(5));
        QCOMPARE(::chmod("s", 0777), 0);
    }
    MCsIPCConnection connection(path(u"s"_s), nullptr);
    const LogCapture log;
    const QSignalSpy connected(&connection, &MCsIPCConnection::connected);
    const QSignalSpy disconnected(&connection, &MCsIPCConnection::disconnected);
    const QSignalSpy errors(&connection, &MCsIPCConnection::error);

    QVERIFY(!connection.connectToServer(1, 0));
    QVERIFY(!connection.isConnected());
    const QString reason = u"it is served by another user (id %1)"_s.arg(OtherUser::id);
    QCOMPARE(log.lines(), QStringList{u"ERROR Connection attempt 1 of 1 failed: "_s + reason});
    QCOMPARE(errors.size(), 1);
    QCOMPARE(errors.first().first().toString(),
             u"Failed to connect to %1 after 1 attempts: %2"_s.arg(path(u"s"_s), reason));
    QCOMPARE(connected.size() + disconnected.size(), 0);
    QCOMPARE(connection.sendRequest(u"x"_s, {}, 1)["error"_L1]["code"_L1].toString(), u"CONNECTION_ERROR"_s);
}

void TestSocketRights::aServerBehindASocketFileOfTheOwnUserIsStillLookedAt()
{
    if (!OtherUser::possible())
        QSKIP("only root can be another user");
    RawSocket server(path(u"s"_s));
    QVERIFY(server.bind());
    {
        const OtherUser other;
        QVERIFY(server.listen(5));
    }
    QCOMPARE(QFileInfo(path(u"s"_s)).ownerId(), ::geteuid());
    MCsIPCConnection connection(path(u"s"_s), nullptr);
    QVERIFY(!connection.connectToServer(1, 0));
}

void TestSocketRights::afterAStrangerTheOwnServerIsFound()
{
    if (!OtherUser::possible())
        QSKIP("only root can be another user");
    RawSocket stranger(u"s"_s);
    {
        const OtherUser other;
        QVERIFY(stranger.bind());
        QVERIFY(stranger.listen(5));
    }
    MCsIPCConnection connection(path(u"s"_s), nullptr);
    QVERIFY(!connection.connectToServer(1, 0));
    stranger.close();
    MCsNamedPipeServer server;
    QVERIFY2(server.listen(path(u"s"_s)), qPrintable(server.errorString()));
    QVERIFY(connection.connectToServer(1, 0));
    QVERIFY(connection.isConnected());
}

void TestSocketRights::aSocketThatTheSystemKnowsNothingOfIsNotTrusted()
{
    QCOMPARE(strangerBehind(-1), u"the system does not tell which user serves it"_s);
}

void TestSocketRights::onlyADirectoryOfTheOwnUserAloneHoldsTheEndpoint_data()
{
    QTest::addColumn<QString>("kind");
    for (const char *kind : {"not set", "relative", "missing", "a file", "a link", "group may read", "others may write",
                             "of another user"})
        QTest::newRow(kind) << QString::fromLatin1(kind);
}

// Where the session offers none, Qt makes a directory for the user below the one for temporary files, with the same
// rights; it is no place for others either.
void TestSocketRights::onlyADirectoryOfTheOwnUserAloneHoldsTheEndpoint()
{
    QFETCH(const QString, kind);
    const QString offered = path(u"offered"_s);
    const QByteArray before = qgetenv("XDG_RUNTIME_DIR");
    const QByteArray temporary = qgetenv("TMPDIR");
    const auto restore = qScopeGuard([&] {
        qputenv("XDG_RUNTIME_DIR", before);
        temporary.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", temporary);
    });
    qputenv("TMPDIR", QFile::encodeName(m_directory->path()));
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(offered));

    if (kind == "not set"_L1) {
        qunsetenv("XDG_RUNTIME_DIR");
    } else if (kind == "relative"_L1) {
        qputenv("XDG_RUNTIME_DIR", "offered");
    } else if (kind == "a file"_L1) {
        QFile file(offered);
        QVERIFY(file.open(QIODevice::WriteOnly));
    } else if (kind == "a link"_L1) {
        QVERIFY(QDir().mkdir(path(u"target"_s)));
        QVERIFY(QFile::setPermissions(path(u"target"_s), ownerAlone));
        QVERIFY(QFile::link(path(u"target"_s), offered));
    } else if (kind == "of another user"_L1) {
        if (!OtherUser::possible())
            QSKIP("only root can be another user");
        const OtherUser other;
        QCOMPARE(::mkdir("offered", 0700), 0);
    } else if (kind != "missing"_L1) {
        QVERIFY(QDir().mkdir(offered));
        QVERIFY(QFile::setPermissions(
            offered, kind == "group may read"_L1 ? ownerAlone | QFile::ReadGroup | QFile::ExeGroup : everybody));
    }

    const QString endpoint = defaultPipeName();
    if (endpoint.isEmpty())
        return; // none at all is as safe
    const QFileInfo directory(QFileInfo(endpoint).path());
    QVERIFY2(directory.isDir() && !directory.isSymLink(), qPrintable(endpoint));
    QCOMPARE(directory.ownerId(), ::geteuid());
    constexpr QFile::Permissions others = everybody & ~ownerAlone;
    QCOMPARE(directory.permissions() & others, QFile::Permissions());
    QCOMPARE(directory.filePath() == offered, kind == "missing"_L1);
}

void TestSocketRights::anEndpointThatCannotBeConnectedToIsAFailedAttempt_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("none, for want of a runtime directory") << QString();
    QTest::newRow("longer than the name of a socket can be") << QString(120, u'x');
    QTest::newRow("a file") << u"file"_s;
    QTest::newRow("a directory") << u"."_s;
}

void TestSocketRights::anEndpointThatCannotBeConnectedToIsAFailedAttempt()
{
    QFETCH(const QString, name);
    QFile file(path(u"file"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    MCsIPCConnection connection(name.isEmpty() ? QString() : path(name), nullptr);
    const LogCapture log;
    QVERIFY(!connection.connectToServer(1, 0));
    QVERIFY(!connection.isConnected());
    QVERIFY2(log.lines().constLast().startsWith(u"ERROR Connection attempt 1 of 1 failed: QLocalSocket"_s),
             qPrintable(log.lines().join(u'\n')));
}

ORVEL_TEST_MAIN(QCoreApplication, TestSocketRights)
#include "tst_socketrights.moc"
