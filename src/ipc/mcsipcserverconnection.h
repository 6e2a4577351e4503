#pragma once

#include "mcsframebuffer.h"

#include <QJsonObject>
#include <QLocalSocket>
#include <QObject>
#include <QString>

namespace Scheduler {

/// One accepted client: frames and validates what it sends, and writes responses to it.
///
/// A bad frame is answered with an error response that has no id, and the connection stays open.
class MCsIPCServerConnection : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MCsIPCServerConnection)

public:
    /// Takes the socket over.
    MCsIPCServerConnection(QLocalSocket *socket, QObject *parent);
    ~MCsIPCServerConnection() override;

    /// Writes one frame; the caller has put the request's id into it. False when it could not be written whole.
    bool sendResponse(const QJsonObject &response);

signals:
    void disconnected();
    void messageReceived(const QJsonObject &message);
    void error(const QString &message);

private slots:
    void onReadyRead();
    void onDisconnected();
    void onSocketError(QLocalSocket::LocalSocketError socketError);

private:
    void processMessage(const QByteArray &frame);
    void refuse(const QString &code, const QString &message);

    QLocalSocket *m_socket = nullptr;
    MCsFrameBuffer m_readBuffer;
    QString m_clientId;
};

} // namespace Scheduler
