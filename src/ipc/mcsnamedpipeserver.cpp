#include "mcsnamedpipeserver.h"

#include "endpoint.h"
#include "mcsipcserverconnection.h"
#include "wireprotocol.h"

#include <QLocalServer>
#include <QLocalSocket>

using namespace Qt::StringLiterals;

namespace Scheduler {

namespace {

constexpr int probeWaitMs = 500;

/// Whether a process serves the endpoint. One that is too busy to answer in time, or that answers to others alone,
/// counts.
bool isAlive(const QString &serverName)
{
    QLocalSocket probe;
    probe.connectToServer(serverName);
    if (probe.waitForConnected(probeWaitMs))
        return true;
    return probe.error() != QLocalSocket::ServerNotFoundError && probe.error() != QLocalSocket::ConnectionRefusedError;
}

QString reasonOf(const QLocalServer &server)
{
    // A missing directory would have the same code, but the lock file has just been made there.
    if (server.serverError() == QAbstractSocket::HostNotFoundError)
        return u"the path is too long for a socket"_s;
    return server.errorString();
}

} // namespace

MCsNamedPipeServer::MCsNamedPipeServer(QObject *parent)
    : MCsIPCServer(parent)
    , m_server(new QLocalServer(this))
{
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    connect(m_server, &QLocalServer::newConnection, this, &MCsNamedPipeServer::onNewConnection);
}

MCsNamedPipeServer::~MCsNamedPipeServer()
{
    close();
}

bool MCsNamedPipeServer::listen()
{
    return listen(defaultPipeName());
}

bool MCsNamedPipeServer::listen(const QString &serverName)
{
    close();
    m_errorString.clear();
    if (serverName.isEmpty()) {
        m_errorString = u"There is no runtime directory of the user's own for the endpoint"_s;
        return false;
    }
    if (!claim(serverName))
        return false;
    if (m_server->listen(serverName))
        return true;
    m_errorString = u"Cannot listen on %1: %2"_s.arg(serverName, reasonOf(*m_server));
    m_lock.reset();
    return false;
}

// Listening replaces a socket of that name whether or not a process still serves it, or serves a pipe beside another
// process. So the endpoint is claimed first: by a lock against a server that starts at the same moment, and by asking
// whether anybody answers.
bool MCsNamedPipeServer::claim(const QString &serverName)
{
    auto lock = std::make_unique<QLockFile>(lockFileOf(serverName));
    lock->setStaleLockTime(0); // held for as long as its process lives
    if (!lock->tryLock()) {
        m_errorString = lock->error() == QLockFile::LockFailedError
                            ? u"Another process already listens on %1"_s.arg(serverName)
                            : u"Cannot listen on %1: its directory cannot be written"_s.arg(serverName);
        return false;
    }
    if (isAlive(serverName)) {
        m_errorString = u"Another process already listens on %1"_s.arg(serverName);
        return false;
    }
    if (!removeRemains(serverName)) {
        m_errorString = u"Cannot listen on %1: something else bears that name"_s.arg(serverName);
        return false;
    }
    m_lock = std::move(lock);
    return true;
}

void MCsNamedPipeServer::close()
{
    m_server->close();
    m_lock.reset();
}

bool MCsNamedPipeServer::isListening() const
{
    return m_server->isListening();
}

QString MCsNamedPipeServer::serverName() const
{
    return m_server->fullServerName();
}

QString MCsNamedPipeServer::errorString() const
{
    return m_errorString;
}

void MCsNamedPipeServer::onNewConnection()
{
    if (m_server == nullptr)
        return;
    while (m_server->hasPendingConnections()) {
        if (QLocalSocket *socket = m_server->nextPendingConnection(); socket != nullptr)
            handleNewConnection(new MCsIPCServerConnection(socket, this));
    }
}

} // namespace Scheduler
