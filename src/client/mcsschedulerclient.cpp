#include "mcsschedulerclient.h"

#include "mcsipcconnection.h"
#include "mcslogger.h"
#include "tasktypes.h"
#include "wireprotocol.h"

#include <QPointer>
#include <QTimer>

#include <utility>

using namespace Qt::StringLiterals;

namespace Scheduler {

namespace {

constexpr int firstReconnectDelayMs = 500;
constexpr int longestReconnectDelayMs = 30000;

const QString &logSource()
{
    static const QString source = u"MCsSchedulerClient"_s;
    return source;
}

struct Failure {
    QString code;
    QString message;
};

Failure failureOf(const QJsonObject &response)
{
    const QJsonObject error = response.value("error"_L1).toObject();
    return {error.value("code"_L1).toString(), error.value("message"_L1).toString()};
}

} // namespace

MCsSchedulerClient::MCsSchedulerClient(QObject *parent)
    : QObject(parent)
    , m_pipeName(defaultPipeName())
    , m_clientType(u"manager"_s)
{
}

MCsSchedulerClient::~MCsSchedulerClient()
{
    blockSignals(true);
    disconnectFromDaemon();
}

bool MCsSchedulerClient::connectToDaemon()
{
    return connectToDaemon(1, 0);
}

bool MCsSchedulerClient::connectToDaemon(int maxRetries, int retryDelayMs)
{
    if (isConnected())
        return true;
    releaseConnection();

    m_connection = new MCsIPCConnection(m_pipeName, this);
    if (!m_connection->connectToServer(maxRetries, retryDelayMs)) {
        setLastError(u"CONNECTION_FAILED"_s, u"Failed to connect to daemon"_s);
        std::exchange(m_connection, nullptr)->deleteLater();
        return false;
    }
    watchConnection();

    const QPointer<MCsIPCConnection> attempted = m_connection;
    if (isConnected() && registerClient())
        return true;
    MCsLogger::instance().warn(logSource(), u"Registration failed after connect"_s);
    // While the registration waited, the connection may have been lost and replaced by another that is registered.
    if (m_connection == attempted)
        releaseConnection();
    return isConnected();
}

void MCsSchedulerClient::watchConnection()
{
    connect(m_connection, &MCsIPCConnection::disconnected, this, &MCsSchedulerClient::onConnectionLost);
    connect(m_connection, &MCsIPCConnection::error, this, [this](const QString &message) {
        setLastError(u"IPC_ERROR"_s, message);
        emit error(message);
    });
}

bool MCsSchedulerClient::registerClient()
{
    const QPointer<MCsIPCConnection> attempted = m_connection;
    const QJsonObject response = sendRequest(u"client.register"_s, {{u"clientType"_s, m_clientType}}, m_commandTimeout);
    // The answer may have waited under a nested call for so long that its connection is gone.
    if (response.value("ok"_L1).toBool() && (attempted != m_connection || !isConnected()))
        return false;
    if (response.value("ok"_L1).toBool()) {
        MCsLogger::instance().info(logSource(), u"Connected and registered as %1"_s.arg(m_clientType));
        emit connected();
        if (m_autoReconnect && isConnected())
            startConnectionCheck();
        return true;
    }
    const Failure failure = failureOf(response);
    if (failure.code == "CLIENT_TYPE_ALREADY_CONNECTED"_L1)
        setLastError(failure.code, u"Another client of type '%1' is already connected"_s.arg(m_clientType));
    else
        setLastError(failure.code, u"Failed to register client: %1"_s.arg(failure.message));
    return false;
}

void MCsSchedulerClient::disconnectFromDaemon()
{
    stopTimers();
    m_reconnecting = false;
    releaseConnection();
    emit disconnected();
}

bool MCsSchedulerClient::isConnected() const
{
    return m_connection != nullptr && m_connection->isConnected();
}

void MCsSchedulerClient::enableAutoReconnect(bool enable)
{
    if (!enable) {
        disableAutoReconnect();
        return;
    }
    m_autoReconnect = true;
    if (isConnected())
        startConnectionCheck();
}

void MCsSchedulerClient::disableAutoReconnect()
{
    m_autoReconnect = false;
    stopTimers();
    m_reconnectAttempts = 0;
    m_reconnecting = false;
}

QString MCsSchedulerClient::clientType() const
{
    return m_clientType;
}

void MCsSchedulerClient::setClientType(const QString &type)
{
    m_clientType = type;
}

bool MCsSchedulerClient::isAllTypesClient() const
{
    return m_clientType.isEmpty() || m_clientType == allTaskTypesId;
}

int MCsSchedulerClient::commandTimeout() const
{
    return m_commandTimeout;
}

void MCsSchedulerClient::setCommandTimeout(int timeoutMs)
{
    m_commandTimeout = timeoutMs;
}

QString MCsSchedulerClient::lastError() const
{
    return m_lastError;
}

QString MCsSchedulerClient::lastErrorCode() const
{
    return m_lastErrorCode;
}

int MCsSchedulerClient::reconnectDelayMs(int failedAttempts)
{
    // The limit is reached long before the shift could overflow.
    constexpr int largestShift = 6;
    return qMin(firstReconnectDelayMs << qBound(0, failedAttempts, largestShift), longestReconnectDelayMs);
}

QJsonObject MCsSchedulerClient::sendRequest(const QString &cmd, const QJsonObject &payload, int timeoutMs)
{
    if (!isConnected()) {
        setLastError(u"NOT_CONNECTED"_s, u"Not connected to daemon"_s);
        return errorResponse(m_lastErrorCode, m_lastError);
    }
    const QJsonObject response = m_connection->sendRequest(cmd, payload, timeoutMs);
    if (!response.value("ok"_L1).toBool()) {
        const Failure failure = failureOf(response);
        setLastError(failure.code, u"%1: %2"_s.arg(failure.code, failure.message));
    }
    return response;
}

void MCsSchedulerClient::setLastError(const QString &code, const QString &message)
{
    m_lastErrorCode = code;
    m_lastError = message;
    MCsLogger::instance().error(logSource(), message);
}

void MCsSchedulerClient::startConnectionCheck()
{
    if (m_checkTimer == nullptr) {
        m_checkTimer = new QTimer(this);
        m_checkTimer->setObjectName(u"checkTimer"_s);
        connect(m_checkTimer, &QTimer::timeout, this, &MCsSchedulerClient::checkConnection);
    }
    m_checkTimer->start(connectionCheckIntervalMs);
}

void MCsSchedulerClient::checkConnection()
{
    if (!isConnected())
        onConnectionLost();
}

void MCsSchedulerClient::onConnectionLost()
{
    if (m_checkTimer != nullptr)
        m_checkTimer->stop();
    if (MCsIPCConnection *connection = std::exchange(m_connection, nullptr); connection != nullptr) {
        connection->blockSignals(true);
        connection->deleteLater();
    }
    emit disconnected();
    emit connectionLost();
    // A slot may have connected anew already.
    if (m_autoReconnect && !m_reconnecting && !isConnected()) {
        m_reconnectAttempts = 0;
        m_reconnecting = true;
        scheduleReconnect();
    }
}

void MCsSchedulerClient::scheduleReconnect()
{
    if (!m_autoReconnect || !m_reconnecting)
        return;
    if (m_reconnectAttempts >= MaxReconnectAttempts) {
        MCsLogger::instance().warn(logSource(), u"Max reconnect attempts reached (%1)"_s.arg(MaxReconnectAttempts));
        m_reconnecting = false;
        setLastError(u"RECONNECT_FAILED"_s, u"Connection lost and reconnection failed"_s);
        emit reconnectFailed();
        return;
    }
    const int delay = reconnectDelayMs(m_reconnectAttempts);
    MCsLogger::instance().debug(u"client"_s, u"Reconnect delay is %1"_s.arg(delay));
    if (m_reconnectTimer == nullptr) {
        m_reconnectTimer = new QTimer(this);
        m_reconnectTimer->setObjectName(u"reconnectTimer"_s);
        m_reconnectTimer->setSingleShot(true);
        connect(m_reconnectTimer, &QTimer::timeout, this, &MCsSchedulerClient::onReconnectTimerTimeout);
    }
    m_reconnectTimer->start(delay);
}

void MCsSchedulerClient::onReconnectTimerTimeout()
{
    if (!m_autoReconnect || !m_reconnecting)
        return;
    ++m_reconnectAttempts;
    emit reconnecting(m_reconnectAttempts, MaxReconnectAttempts);
    if (!m_autoReconnect || !m_reconnecting)
        return; // given up in a slot
    MCsLogger::instance().info(logSource(),
                               u"Reconnect attempt %1 of %2"_s.arg(m_reconnectAttempts).arg(MaxReconnectAttempts));
    const bool reached = connectToDaemon(1, 0);
    // Slots that ran meanwhile may have given the sequence up.
    if (!m_autoReconnect || !m_reconnecting)
        return;
    if (!reached) {
        scheduleReconnect();
        return;
    }
    m_reconnectAttempts = 0;
    if (!isConnected()) {
        // Lost again under a slot of connected(); that loss found this sequence still running and started no other.
        scheduleReconnect();
        return;
    }
    m_reconnecting = false;
    emit reconnected();
    MCsLogger::instance().info(logSource(), u"Reconnected successfully"_s);
}

void MCsSchedulerClient::stopTimers()
{
    if (m_checkTimer != nullptr)
        m_checkTimer->stop();
    if (m_reconnectTimer != nullptr)
        m_reconnectTimer->stop();
}

void MCsSchedulerClient::releaseConnection()
{
    MCsIPCConnection *connection = std::exchange(m_connection, nullptr);
    if (connection == nullptr)
        return;
    connection->blockSignals(true);
    connection->disconnectFromServer();
    connection->deleteLater();
}

} // namespace Scheduler
