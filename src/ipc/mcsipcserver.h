#pragma once

#include <QJsonObject>
#include <QList>
#include <QObject>

namespace Scheduler {

class MCsIPCServerConnection;

/// The server end of the wire protocol without a transport: keeps the connections in order of arrival and passes on
/// their commands. Executing a command, and answering it with the request's id, is up to whoever listens.
class MCsIPCServer : public QObject {
    Q_OBJECT
    Q_MOC_INCLUDE("mcsipcserverconnection.h")
    Q_DISABLE_COPY_MOVE(MCsIPCServer)

public:
    explicit MCsIPCServer(QObject *parent = nullptr);
    ~MCsIPCServer() override;

    [[nodiscard]] const QList<MCsIPCServerConnection *> &connections() const;

signals:
    void clientConnected(Scheduler::MCsIPCServerConnection *connection);
    /// The connection is valid during this signal and is deleted afterwards.
    void clientDisconnected(Scheduler::MCsIPCServerConnection *connection);
    void commandReceived(Scheduler::MCsIPCServerConnection *connection, const QJsonObject &request);

protected:
    void handleNewConnection(MCsIPCServerConnection *connection);

private:
    void removeConnection(MCsIPCServerConnection *connection);

    QList<MCsIPCServerConnection *> m_connections;
};

} // namespace Scheduler
