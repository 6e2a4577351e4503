#include "mcsipcserver.h"

#include "mcsipcserverconnection.h"
#include "mcslogger.h"

using namespace Qt::StringLiterals;

namespace Scheduler {

MCsIPCServer::MCsIPCServer(QObject *parent)
    : QObject(parent)
{
}

MCsIPCServer::~MCsIPCServer() = default;

const QList<MCsIPCServerConnection *> &MCsIPCServer::connections() const
{
    return m_connections;
}

void MCsIPCServer::handleNewConnection(MCsIPCServerConnection *connection)
{
    if (connection == nullptr)
        return;
    m_connections.append(connection);
    connect(connection, &MCsIPCServerConnection::disconnected, this,
            [this, connection] { removeConnection(connection); });
    connect(connection, &MCsIPCServerConnection::messageReceived, this,
            [this, connection](const QJsonObject &message) { emit commandReceived(connection, message); });
    MCsLogger::instance().debug(u"IPC Server"_s,
                                u"New client connected. Total connections: %1"_s.arg(m_connections.size()));
    emit clientConnected(connection);
}

void MCsIPCServer::removeConnection(MCsIPCServerConnection *connection)
{
    m_connections.removeAll(connection);
    MCsLogger::instance().debug(u"IPC Server"_s,
                                u"Client disconnected, remaining connections: %1"_s.arg(m_connections.size()));
    emit clientDisconnected(connection);
    connection->deleteLater();
}

} // namespace Scheduler
