#include "mcsipcconnection.h"

#include "mcslogger.h"
#include "socketpeer.h"
#include "wireprotocol.h"

#include <QDateTime>
#include <QEvent>
#include <QEventLoop>
#include <QJsonDocument>
#include <QPointer>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace Scheduler {

namespace {

constexpr int socketWaitMs = 50;
constexpr int closeWaitMs = 1000;
constexpr qsizetype loggedFrameBytes = 200;

const QString &logSource()
{
    static const QString source = u"IPCConnector"_s;
    return source;
}

} // namespace

/// Keeps a connection alive, but for a direct delete, while one of its own functions runs an event loop or slots.
class MCsIPCConnection::BusyGuard {
public:
    explicit BusyGuard(MCsIPCConnection *connection)
        : m_connection(connection)
    {
        ++connection->m_busy;
    }
    ~BusyGuard()
    {
        if (m_connection != nullptr)
            m_connection->endBusy();
    }
    Q_DISABLE_COPY_MOVE(BusyGuard)

private:
    QPointer<MCsIPCConnection> m_connection;
};

MCsIPCConnection::MCsIPCConnection(const QString &serverName, QObject *parent)
    : QObject(parent)
    , m_serverName(serverName)
{
}

MCsIPCConnection::~MCsIPCConnection()
{
    disconnectFromServer();
}

bool MCsIPCConnection::connectToServer(int maxRetries, int retryDelayMs)
{
    if (isConnected())
        return true;
    qint64 delay = retryDelayMs;
    for (int attempt = 1; attempt <= maxRetries; ++attempt) {
        if (attempt > 1) {
            MCsLogger::instance().debug(
                logSource(), u"Retry attempt %1 of %2 after %3 ms"_s.arg(attempt).arg(maxRetries).arg(delay));
            QThread::msleep(static_cast<unsigned long>(qMax<qint64>(delay, 0)));
            delay *= 2;
        }
        const std::optional<QString> failure = attemptConnection();
        if (!failure)
            return true;
        MCsLogger::instance().error(logSource(), u"Connection attempt %1 of %2 failed: %3"_s.arg(
                                                     QString::number(attempt), QString::number(maxRetries), *failure));
        if (attempt == maxRetries)
            emit error(u"Failed to connect to %1 after %2 attempts: %3"_s.arg(m_serverName, QString::number(maxRetries),
                                                                              *failure));
    }
    return false;
}

std::optional<QString> MCsIPCConnection::attemptConnection()
{
    if (m_socket != nullptr)
        m_socket->deleteLater();
    m_refusal.reset();
    m_socket = new QLocalSocket(this);
    connect(m_socket, &QLocalSocket::connected, this, &MCsIPCConnection::onConnected);
    connect(m_socket, &QLocalSocket::disconnected, this, &MCsIPCConnection::onDisconnected);
    connect(m_socket, &QLocalSocket::readyRead, this, &MCsIPCConnection::onReadyRead);
    connect(m_socket, &QLocalSocket::errorOccurred, this, &MCsIPCConnection::onSocketError);
    // A slot of a signal that is emitted here may take the socket away.
    const QPointer<QLocalSocket> socket = m_socket;
    socket->connectToServer(m_serverName, QIODevice::ReadWrite);
    if (socket->waitForConnected(socketWaitMs))
        return std::nullopt;
    return m_refusal ? m_refusal : socket->errorString();
}

void MCsIPCConnection::disconnectFromServer()
{
    // Closing the socket emits signals, and a slot may come back here.
    if (QLocalSocket *socket = std::exchange(m_socket, nullptr); socket != nullptr) {
        socket->disconnectFromServer();
        if (socket->state() != QLocalSocket::UnconnectedState)
            socket->waitForDisconnected(closeWaitMs);
        socket->deleteLater();
    }
    for (QTimer *timer : std::as_const(m_requestTimers)) {
        timer->stop();
        timer->deleteLater();
    }
    m_requestTimers.clear();
    m_readBuffer.clear();
}

bool MCsIPCConnection::isConnected() const
{
    return m_socket != nullptr && m_socket->state() == QLocalSocket::ConnectedState;
}

QJsonObject MCsIPCConnection::sendRequest(const QString &cmd, const QJsonObject &payload, int timeoutMs)
{
    if (!isConnected())
        return errorResponse(u"CONNECTION_ERROR"_s, u"Not connected to server"_s);
    const QString requestId = generateRequestId();
    if (!sendMessage({{u"id"_s, requestId}, {u"cmd"_s, cmd}, {u"payload"_s, payload}}))
        return errorResponse(u"SEND_ERROR"_s, u"Failed to send request"_s);

    QEventLoop loop;
    QTimer timer;
    timer.setSingleShot(true);
    bool answered = false;
    QJsonObject answer;
    connect(this, &MCsIPCConnection::responseReceived, &loop,
            [&](const QString &receivedId, const QJsonObject &response) {
                if (receivedId != requestId)
                    return;
                answer = response;
                answered = true;
                loop.quit();
            });
    connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
    timer.start(timeoutMs);
    {
        // From here on this object may be asked to go, and outlives that for as long as the guard.
        const BusyGuard guard(this);
        loop.exec();
    }
    return answered ? answer : errorResponse(u"TIMEOUT"_s, u"Request timed out after %1ms"_s.arg(timeoutMs));
}

bool MCsIPCConnection::event(QEvent *event)
{
    if (event->type() == QEvent::DeferredDelete && m_busy > 0) {
        m_deleteWhenIdle = true;
        return true;
    }
    return QObject::event(event);
}

void MCsIPCConnection::endBusy()
{
    --m_busy;
    if (m_busy > 0 || !m_deleteWhenIdle)
        return;
    // A second deleteLater() of an object may be ignored as a repetition, so an owner made for it takes it along.
    auto owner = std::make_unique<QObject>();
    setParent(owner.get());
    owner.release()->deleteLater();
}

QString MCsIPCConnection::generateRequestId()
{
    return u"req_%1_%2"_s.arg(QDateTime::currentMSecsSinceEpoch()).arg(++m_requestCounter);
}

bool MCsIPCConnection::sendMessage(const QJsonObject &message)
{
    if (!isConnected())
        return false;
    const QByteArray frame = encodeFrame(message);
    if (m_socket->write(frame) != frame.size()) {
        MCsLogger::instance().warn(logSource(), u"Failed to write complete message"_s);
        return false;
    }
    m_socket->flush();
    return true;
}

void MCsIPCConnection::processMessage(const QByteArray &frame)
{
    QJsonParseError parseError{};
    const QJsonDocument document = QJsonDocument::fromJson(frame, &parseError);
    if (parseError.error != QJsonParseError::NoError) {
        MCsLogger::instance().warn(logSource(), u"Failed to parse JSON message: %1"_s.arg(parseError.errorString()));
        return;
    }
    if (!document.isObject()) {
        MCsLogger::instance().warn(logSource(), u"Received non-object JSON message"_s);
        return;
    }
    const QJsonObject response = document.object();
    const QJsonValue id = response.value("id"_L1);
    if (id.isUndefined()) {
        MCsLogger::instance().warn(logSource(), u"Response missing 'id' field"_s);
        return;
    }
    const QString requestId = id.toString();
    dropRequestTimer(requestId);
    emit responseReceived(requestId, response);
}

void MCsIPCConnection::dropRequestTimer(const QString &requestId)
{
    if (QTimer *timer = m_requestTimers.take(requestId); timer != nullptr) {
        timer->stop();
        timer->deleteLater();
    }
}

void MCsIPCConnection::onConnected()
{
    const BusyGuard guard(this);
    if (isConnected())
        m_refusal = strangerBehind(m_socket->socketDescriptor());
    if (m_refusal) {
        // Nothing has been sent yet, and nothing that it may have sent is read. To everybody else it never connected.
        m_socket->disconnect(this);
        m_socket->abort();
        return;
    }
    MCsLogger::instance().debug(logSource(), u"Connected to IPC server: %1"_s.arg(m_serverName));
    emit connected();
}

void MCsIPCConnection::onDisconnected()
{
    const BusyGuard guard(this);
    MCsLogger::instance().debug(logSource(), u"Disconnected from IPC server: %1"_s.arg(m_serverName));
    emit disconnected();
}

void MCsIPCConnection::onReadyRead()
{
    if (m_socket == nullptr)
        return;
    const BusyGuard guard(this);
    const qsizetype count = m_readBuffer.readFrom(*m_socket);
    MCsLogger::instance().debug(logSource(), u"Received %1 bytes from server"_s.arg(count));
    while (const std::optional<QByteArray> frame = m_readBuffer.takeFrame()) {
        MCsLogger::instance().debug(logSource(), u"Processing response: %1"_s.arg(QString::fromUtf8(
                                                     frame->first(qMin(frame->size(), loggedFrameBytes)))));
        processMessage(*frame);
    }
}

void MCsIPCConnection::onSocketError(QLocalSocket::LocalSocketError /*socketError*/)
{
    if (m_socket == nullptr)
        return;
    const BusyGuard guard(this);
    const QString message = u"Socket error: %1"_s.arg(m_socket->errorString());
    MCsLogger::instance().error(logSource(), message);
    emit error(message);
}

void MCsIPCConnection::onRequestTimeout()
{
    auto *timer = qobject_cast<QTimer *>(sender());
    if (timer == nullptr)
        return;
    const auto entry = std::find(m_requestTimers.cbegin(), m_requestTimers.cend(), timer);
    if (entry == m_requestTimers.cend())
        return;
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): the key goes with its entry
    const QString requestId = entry.key();
    MCsLogger::instance().warn(logSource(), u"Request timed out: %1"_s.arg(requestId));
    m_requestTimers.erase(entry);
    timer->deleteLater();
    QJsonObject response = errorResponse(u"TIMEOUT"_s, u"Request timed out"_s);
    response.insert("id"_L1, requestId);
    emit responseReceived(requestId, response);
}

} // namespace Scheduler
