#include "wireclient.h"

#include "wireprotocol.h"

#include <QJsonDocument>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace TestSupport {

namespace {

constexpr int waitMs = 10'000;

} // namespace

bool WireClient::connectToDaemon()
{
    m_socket.connectToServer(Scheduler::defaultPipeName());
    return m_socket.waitForConnected(waitMs);
}

void WireClient::disconnect()
{
    m_socket.disconnectFromServer();
    if (m_socket.state() != QLocalSocket::UnconnectedState)
        m_socket.waitForDisconnected(waitMs);
}

bool WireClient::isConnected() const
{
    return m_socket.state() == QLocalSocket::ConnectedState;
}

QJsonObject WireClient::call(const QString &command, const QJsonValue &payload)
{
    return send({{u"id"_s, u"request-%1"_s.arg(++m_requests)}, {u"cmd"_s, command}, {u"payload"_s, payload}});
}

QJsonObject WireClient::send(const QJsonObject &request)
{
    m_socket.write(Scheduler::encodeFrame(request));
    return readLine();
}

QString WireClient::registerAs(const QString &clientType)
{
    return errorCode(call(u"client.register"_s, QJsonObject{{u"clientType"_s, clientType}}));
}

QJsonObject WireClient::readLine()
{
    QSignalSpy readable(&m_socket, &QLocalSocket::readyRead);
    while (!m_received.contains('\n')) {
        if (m_socket.bytesAvailable() == 0 && !readable.wait(waitMs))
            return {};
        m_received += m_socket.readAll();
    }
    const qsizetype end = m_received.indexOf('\n');
    const QByteArray line = m_received.left(end);
    m_received.remove(0, end + 1);
    return QJsonDocument::fromJson(line).object();
}

QString errorCode(const QJsonObject &response)
{
    if (response.value("ok"_L1).toBool())
        return {};
    return response.value("error"_L1).toObject().value("code"_L1).toString(u"no response"_s);
}

} // namespace TestSupport
