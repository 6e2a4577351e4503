#pragma once

#include "mcsframebuffer.h"

#include <QJsonObject>
#include <QLocalSocket>
#include <QMap>
#include <QObject>
#include <QString>

#include <optional>

class QTimer;

namespace Scheduler {

/// The client end of the wire protocol: one local socket, framing, request ids and one synchronous operation.
///
/// A server that another user runs is turned away before anything is sent to it: that attempt has failed.
///
/// It knows nothing of commands or of registration. One object serves one connection; whoever owns it makes a new one
/// for the next, and releases this one with deleteLater(). A wait of sendRequest() keeps the object alive: Qt carries
/// out a deferred delete that was asked for inside a nested event loop in that same loop, so the object puts its own
/// deletion off until the last wait on it has returned.
class MCsIPCConnection : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MCsIPCConnection)

public:
    explicit MCsIPCConnection(const QString &serverName, QObject *parent = nullptr);
    ~MCsIPCConnection() override;

    /// Returns true when connected, at once if it was so already. Each attempt blocks the thread for at most 50 ms,
    /// each retry for its delay in milliseconds, which doubles from one to the next. After the last failure error() is
    /// emitted. Fewer than one attempt is a failure without a trace.
    bool connectToServer(int maxRetries, int retryDelayMs);
    void disconnectFromServer();
    [[nodiscard]] bool isConnected() const;

    /// Sends a command and waits in a nested event loop for the response with its id. Always returns a response
    /// object; with "ok" false and a code of CONNECTION_ERROR, SEND_ERROR or TIMEOUT where no response came. A request
    /// whose connection is lost meanwhile ends in TIMEOUT after the full time. Calls may nest; an outer call returns
    /// only after the inner ones have.
    [[nodiscard]] QJsonObject sendRequest(const QString &cmd, const QJsonObject &payload, int timeoutMs);

    bool event(QEvent *event) override;

signals:
    void connected();
    void disconnected();
    void responseReceived(const QString &requestId, const QJsonObject &response);
    void error(const QString &message);

private slots:
    void onConnected();
    void onDisconnected();
    void onReadyRead();
    void onSocketError(QLocalSocket::LocalSocketError socketError);
    void onRequestTimeout();

private:
    class BusyGuard;

    /// The reason of the failure; nothing on success.
    std::optional<QString> attemptConnection();
    QString generateRequestId();
    bool sendMessage(const QJsonObject &message);
    void processMessage(const QByteArray &frame);
    void dropRequestTimer(const QString &requestId);
    void endBusy();

    QString m_serverName;
    QLocalSocket *m_socket = nullptr;
    MCsFrameBuffer m_readBuffer;
    std::optional<QString> m_refusal; ///< why the current attempt's server was turned away
    int m_requestCounter = 0;
    /// Timers of requests that are answered through responseReceived alone; sendRequest() waits with its own.
    QMap<QString, QTimer *> m_requestTimers;
    int m_busy = 0;
    bool m_deleteWhenIdle = false;
};

} // namespace Scheduler
