#include "mcsdaemonsessions.h"

#include "daemonresponse.h"
#include "mcsdaemonengine.h"
#include "mcsipcserver.h"
#include "mcsipcserverconnection.h"
#include "wireprotocol.h"

namespace Scheduler::DevDaemon {

using namespace Qt::StringLiterals;

MCsDaemonSessions::MCsDaemonSessions(MCsIPCServer &server, MCsDaemonEngine &engine, QObject *parent)
    : QObject(parent)
    , m_server(server)
    , m_engine(engine)
{
    connect(&server, &MCsIPCServer::commandReceived, this, &MCsDaemonSessions::onCommandReceived);
    connect(&server, &MCsIPCServer::clientDisconnected, this, &MCsDaemonSessions::onClientDisconnected);
}

void MCsDaemonSessions::onCommandReceived(MCsIPCServerConnection *connection, const QJsonObject &request)
{
    const QString command = request.value("cmd"_L1).toString();
    const QJsonValue payload = request.value("payload"_L1);
    QJsonObject response = command == "client.register"_L1 ? registerClient(connection, payload.toObject())
                                                           : execute(connection, command, payload);
    response.insert("id"_L1, request.value("id"_L1));
    connection->sendResponse(response);
}

void MCsDaemonSessions::onClientDisconnected(MCsIPCServerConnection *connection)
{
    const QString clientType = m_clientTypes.take(connection);
    if (!clientType.isEmpty())
        emit clientLeft(clientType);
}

QJsonObject MCsDaemonSessions::registerClient(MCsIPCServerConnection *connection, const QJsonObject &payload)
{
    // The last frames of a client that has gone still arrive; it must not hold a type that nobody would free.
    if (!m_server.connections().contains(connection))
        return errorResponse(u"CLIENT_GONE"_s, u"The connection has ended"_s);
    const QString clientType = payload.value("clientType"_L1).toString();
    if (clientType.isEmpty())
        return invalidPayload(u"'clientType' must be a string that is not empty"_s);
    MCsIPCServerConnection *holder = m_clientTypes.key(clientType);
    if (holder == connection)
        return success();
    if (holder != nullptr) {
        emit clientRefused(clientType);
        return errorResponse(u"CLIENT_TYPE_ALREADY_CONNECTED"_s,
                             u"Another client of type '%1' is already connected"_s.arg(clientType));
    }
    const QString formerType = m_clientTypes.value(connection);
    m_clientTypes.insert(connection, clientType);
    if (!formerType.isEmpty())
        emit clientLeft(formerType);
    emit clientRegistered(clientType);
    return success();
}

QJsonObject MCsDaemonSessions::execute(MCsIPCServerConnection *connection, const QString &command,
                                       const QJsonValue &payload)
{
    const QString clientType = m_clientTypes.value(connection);
    if (clientType.isEmpty())
        return errorResponse(u"CLIENT_NOT_REGISTERED"_s, u"The first command must be 'client.register'"_s);
    QJsonObject response = m_engine.execute(command, payload, clientType);
    emit commandExecuted();
    return response;
}

} // namespace Scheduler::DevDaemon
