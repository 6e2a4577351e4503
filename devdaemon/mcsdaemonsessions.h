#pragma once

#include <QHash>
#include <QJsonObject>
#include <QObject>
#include <QString>

namespace Scheduler {
class MCsIPCServer;
class MCsIPCServerConnection;
} // namespace Scheduler

namespace Scheduler::DevDaemon {

class MCsDaemonEngine;

/// Stands between the server and the engine: knows which connection is registered as which client type, lets only
/// registered ones through, and puts the request's id into each response. Owns neither server nor engine, which must
/// outlive it.
class MCsDaemonSessions : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MCsDaemonSessions)

public:
    MCsDaemonSessions(MCsIPCServer &server, MCsDaemonEngine &engine, QObject *parent = nullptr);

signals:
    void clientRegistered(const QString &clientType);
    void clientRefused(const QString &clientType);
    void clientLeft(const QString &clientType);
    /// Sent after each command of a registered client, whether or not it changed the state.
    void commandExecuted();

private slots:
    void onCommandReceived(Scheduler::MCsIPCServerConnection *connection, const QJsonObject &request);
    void onClientDisconnected(Scheduler::MCsIPCServerConnection *connection);

private:
    [[nodiscard]] QJsonObject registerClient(MCsIPCServerConnection *connection, const QJsonObject &payload);
    [[nodiscard]] QJsonObject execute(MCsIPCServerConnection *connection, const QString &command,
                                      const QJsonValue &payload);

    MCsIPCServer &m_server;
    MCsDaemonEngine &m_engine;
    QHash<MCsIPCServerConnection *, QString> m_clientTypes; ///< of the registered connections
};

} // namespace Scheduler::DevDaemon
