#pragma once

#include <QJsonObject>
#include <QLocalSocket>

namespace TestSupport {

/// A client on a real socket that knows nothing but lines of JSON. Its waits keep the event loop running, so that the
/// daemon may live in the same thread.
class WireClient {
public:
    /// Connects to the daemon's endpoint, waiting until it is there.
    [[nodiscard]] bool connectToDaemon();
    /// Hangs up and waits until that is done.
    void disconnect();
    [[nodiscard]] bool isConnected() const;

    /// Sends a request and returns the next line that comes back; empty when none comes.
    QJsonObject call(const QString &command, const QJsonValue &payload = QJsonObject());
    QJsonObject send(const QJsonObject &request);

    /// Registers, and returns the error code; empty when it succeeded.
    QString registerAs(const QString &clientType);

private:
    QJsonObject readLine();

    QLocalSocket m_socket;
    QByteArray m_received;
    int m_requests = 0;
};

/// The error code of a response; empty when it is a success.
[[nodiscard]] QString errorCode(const QJsonObject &response);

} // namespace TestSupport
