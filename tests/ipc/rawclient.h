#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QLocalSocket>
#include <QString>

namespace TestSupport {

/// A client that sends bytes and collects lines.
class RawClient {
public:
    [[nodiscard]] bool connectTo(const QString &serverName)
    {
        m_socket.connectToServer(serverName);
        return m_socket.waitForConnected();
    }
    void send(const QByteArray &bytes)
    {
        m_socket.write(bytes);
        m_socket.flush();
    }
    void leave()
    {
        m_socket.disconnectFromServer();
    }

    [[nodiscard]] bool isConnected() const
    {
        return m_socket.state() == QLocalSocket::ConnectedState;
    }

    /// All complete lines so far, without their line feeds.
    [[nodiscard]] QByteArrayList lines()
    {
        m_received += m_socket.readAll();
        QByteArrayList result = m_received.split('\n');
        result.removeLast();
        return result;
    }

private:
    QLocalSocket m_socket;
    QByteArray m_received;
};

} // namespace TestSupport
