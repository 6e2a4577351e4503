#include "scripteddaemon.h"

#include "wireprotocol.h"

#include <QJsonDocument>
#include <QLocalServer>

#include <utility>

using namespace Qt::StringLiterals;

namespace TestSupport {

ScriptedDaemon::ScriptedDaemon(const QString &serverName, QObject *parent)
    : QObject(parent)
    , m_serverName(serverName.isEmpty() ? Scheduler::defaultPipeName() : serverName)
    , m_server(new QLocalServer(this))
{
    connect(m_server, &QLocalServer::newConnection, this, &ScriptedDaemon::onNewConnection);
}

ScriptedDaemon::~ScriptedDaemon()
{
    stop();
}

bool ScriptedDaemon::listen()
{
    return m_server->isListening() || m_server->listen(m_serverName);
}

void ScriptedDaemon::stop()
{
    m_server->close();
    dropConnections();
}

void ScriptedDaemon::dropConnections()
{
    m_heldAnswers.clear();
    m_buffers.clear();
    const QList<QLocalSocket *> sockets = std::exchange(m_sockets, {});
    for (QLocalSocket *socket : sockets) {
        socket->disconnect(this);
        socket->abort();
        socket->deleteLater();
    }
}

void ScriptedDaemon::answer(const QString &cmd, const QJsonObject &data)
{
    respond(cmd, {{u"ok"_s, true}, {u"data"_s, data}});
}

void ScriptedDaemon::refuse(const QString &cmd, const QString &code, const QString &message)
{
    respond(cmd, Scheduler::errorResponse(code, message));
}

void ScriptedDaemon::respond(const QString &cmd, const QJsonObject &response)
{
    respondWith(cmd, [response](const QJsonObject &) { return response; });
}

void ScriptedDaemon::respondWith(const QString &cmd, const Responder &responder)
{
    forget(cmd);
    m_responders.insert(cmd, responder);
}

void ScriptedDaemon::ignore(const QString &cmd)
{
    forget(cmd);
    m_ignored.insert(cmd);
}

void ScriptedDaemon::hold(const QString &cmd)
{
    m_ignored.remove(cmd);
    m_held.insert(cmd);
}

void ScriptedDaemon::release(const QString &cmd)
{
    m_held.remove(cmd);
    QList<HeldAnswer> kept;
    const QList<HeldAnswer> all = std::exchange(m_heldAnswers, {});
    for (const HeldAnswer &held : all) {
        if (held.cmd == cmd)
            sendResponse(held.response);
        else
            kept.append(held);
    }
    m_heldAnswers = kept + m_heldAnswers;
}

void ScriptedDaemon::releaseNewest()
{
    if (!m_heldAnswers.isEmpty())
        sendResponse(m_heldAnswers.takeLast().response);
}

qsizetype ScriptedDaemon::heldCount() const
{
    return m_heldAnswers.size();
}

void ScriptedDaemon::onRequest(const QString &cmd, const Hook &hook)
{
    m_hooks.insert(cmd, hook);
}

void ScriptedDaemon::whileWaiting(const QString &cmd, const std::function<void()> &action)
{
    hold(cmd);
    onRequest(cmd, [this, cmd, action](const QJsonObject &) {
        onRequest(cmd, {});
        // From the event loop of the wait, not from under the daemon's own reading.
        QMetaObject::invokeMethod(
            this,
            [this, cmd, action] {
                action();
                release(cmd);
            },
            Qt::QueuedConnection);
    });
}

void ScriptedDaemon::deliverWith(const QString &cmd, const Delivery &delivery)
{
    if (delivery)
        m_deliveries.insert(cmd, delivery);
    else
        m_deliveries.remove(cmd);
}

void ScriptedDaemon::pauseReading(bool paused)
{
    m_paused = paused;
    const QList<QLocalSocket *> sockets = m_sockets;
    for (QLocalSocket *socket : sockets) {
        // A socket reads ahead into its buffer as long as that has no limit.
        socket->setReadBufferSize(paused ? 1 : 0);
        if (!paused)
            onReadyRead(socket);
    }
}

QList<QJsonObject> ScriptedDaemon::requests(const QString &cmd) const
{
    if (cmd.isEmpty())
        return m_requests;
    QList<QJsonObject> result;
    for (const QJsonObject &request : m_requests) {
        if (request.value("cmd"_L1).toString() == cmd)
            result.append(request);
    }
    return result;
}

QStringList ScriptedDaemon::commands() const
{
    QStringList result;
    for (const QJsonObject &request : m_requests)
        result.append(request.value("cmd"_L1).toString());
    return result;
}

void ScriptedDaemon::clearRequests()
{
    m_requests.clear();
    m_received.clear();
}

void ScriptedDaemon::sendRaw(const QByteArray &bytes)
{
    for (QLocalSocket *socket : std::as_const(m_sockets)) {
        socket->write(bytes);
        socket->flush();
    }
}

void ScriptedDaemon::sendResponse(const QJsonObject &response)
{
    sendRaw(Scheduler::encodeFrame(response));
}

QByteArray ScriptedDaemon::receivedBytes() const
{
    return m_received;
}

qsizetype ScriptedDaemon::connectionCount() const
{
    return m_sockets.size();
}

int ScriptedDaemon::acceptedCount() const
{
    return m_accepted;
}

void ScriptedDaemon::onNewConnection()
{
    while (QLocalSocket *socket = m_server->nextPendingConnection()) {
        ++m_accepted;
        m_sockets.append(socket);
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] { onReadyRead(socket); });
        connect(socket, &QLocalSocket::disconnected, this, [this, socket] {
            m_sockets.removeAll(socket);
            m_buffers.remove(socket);
            socket->deleteLater();
        });
    }
}

void ScriptedDaemon::onReadyRead(QLocalSocket *socket)
{
    if (m_paused)
        return;
    const QByteArray bytes = socket->readAll();
    m_received += bytes;
    m_buffers[socket] += bytes;
    // A hook may drop the connection, and the buffer with it.
    while (m_buffers.value(socket).contains('\n')) {
        QByteArray &buffer = m_buffers[socket];
        const qsizetype end = buffer.indexOf('\n');
        const QByteArray frame = buffer.first(end);
        buffer.remove(0, end + 1);
        handle(QJsonDocument::fromJson(frame).object());
    }
}

void ScriptedDaemon::handle(const QJsonObject &request)
{
    m_requests.append(request);
    const QString cmd = request.value("cmd"_L1).toString();
    if (const Hook hook = m_hooks.value(cmd))
        hook(request);
    if (m_ignored.contains(cmd))
        return;
    const Responder responder = m_responders.value(cmd);
    QJsonObject response = responder ? responder(request.value("payload"_L1).toObject())
                                     : QJsonObject{{u"ok"_s, true}, {u"data"_s, QJsonObject()}};
    response.insert("id"_L1, request.value("id"_L1));
    if (const Delivery delivery = m_deliveries.value(cmd))
        delivery(response);
    else if (m_held.contains(cmd))
        m_heldAnswers.append({cmd, response});
    else
        sendResponse(response);
}

void ScriptedDaemon::forget(const QString &cmd)
{
    m_responders.remove(cmd);
    m_ignored.remove(cmd);
    m_held.remove(cmd);
}

} // namespace TestSupport
