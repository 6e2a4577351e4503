#include "spoilingproxy.h"

#include "wireprotocol.h"

#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace TestSupport {

SpoilingProxy::SpoilingProxy(const QString &endpoint, const QString &daemonEndpoint, QObject *parent)
    : QObject(parent)
    , m_endpoint(endpoint)
    , m_daemonEndpoint(daemonEndpoint)
{
    connect(&m_server, &QLocalServer::newConnection, this, &SpoilingProxy::onNewConnection);
}

bool SpoilingProxy::listen()
{
    return m_server.listen(m_endpoint);
}

void SpoilingProxy::swallow(const std::function<bool(const QJsonObject &)> &condition)
{
    m_swallows = condition;
}

void SpoilingProxy::spoil(const Spoil &spoil)
{
    m_spoil = spoil;
}

void SpoilingProxy::onNewConnection()
{
    while (QLocalSocket *client = m_server.nextPendingConnection()) {
        m_lines.push_back(std::make_unique<Line>());
        Line &line = *m_lines.back();
        line.client = client;
        line.daemon.connectToServer(m_daemonEndpoint);
        connect(client, &QLocalSocket::readyRead, this, [this, &line] { onClientBytes(line); });
        connect(client, &QLocalSocket::disconnected, &line.daemon, &QLocalSocket::disconnectFromServer);
        connect(&line.daemon, &QLocalSocket::readyRead, this, [this, &line] { onDaemonBytes(line); });
        connect(&line.daemon, &QLocalSocket::disconnected, client, &QLocalSocket::disconnectFromServer);
    }
}

void SpoilingProxy::onClientBytes(Line &line)
{
    line.fromClient.readFrom(*line.client);
    while (const std::optional<QByteArray> frame = line.fromClient.takeFrame()) {
        const QJsonObject request = QJsonDocument::fromJson(*frame).object();
        const QJsonValue id = request.value("id"_L1);
        if (m_swallows(request)) {
            send(*line.client, Scheduler::encodeFrame({{u"id"_s, id}, {u"ok"_s, true}}));
            continue;
        }
        if (request.contains("id"_L1) && request.contains("cmd"_L1))
            line.requests.insert(id.toString(), *frame);
        else
            line.otherFrames.append(*frame);
        send(line.daemon, *frame + '\n');
    }
}

void SpoilingProxy::onDaemonBytes(Line &line)
{
    line.fromDaemon.readFrom(line.daemon);
    while (const std::optional<QByteArray> bytes = line.fromDaemon.takeFrame()) {
        const QJsonObject response = QJsonDocument::fromJson(*bytes).object();
        const QByteArray frame = response.contains("id"_L1) ? line.requests.take(response.value("id"_L1).toString())
                                                            : line.otherFrames.takeFirst();
        const Answer answer = m_spoil({frame, QJsonDocument::fromJson(frame).object(), response});
        if (!answer)
            line.client->disconnectFromServer();
        for (const QJsonObject &object : answer.value_or(QList<QJsonObject>()))
            send(*line.client, Scheduler::encodeFrame(object));
    }
}

void SpoilingProxy::send(QLocalSocket &socket, const QByteArray &bytes)
{
    socket.write(bytes);
    socket.flush();
}

} // namespace TestSupport
