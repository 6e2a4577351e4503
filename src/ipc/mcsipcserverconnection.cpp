#include "mcsipcserverconnection.h"

#include "mcslogger.h"
#include "wireprotocol.h"

#include <QJsonDocument>
#include <QUuid>

using namespace Qt::StringLiterals;

namespace Scheduler {

namespace {

constexpr qsizetype loggedRequestBytes = 6000;
constexpr qsizetype loggedResponseBytes = 200;

const QString &logSource()
{
    static const QString source = u"IPCServerConnection"_s;
    return source;
}

} // namespace

MCsIPCServerConnection::MCsIPCServerConnection(QLocalSocket *socket, QObject *parent)
    : QObject(parent)
    , m_socket(socket)
    , m_clientId(QUuid::createUuid().toString(QUuid::WithoutBraces))
{
    m_socket->setParent(this);
    connect(m_socket, &QLocalSocket::readyRead, this, &MCsIPCServerConnection::onReadyRead);
    connect(m_socket, &QLocalSocket::disconnected, this, &MCsIPCServerConnection::onDisconnected);
    connect(m_socket, &QLocalSocket::errorOccurred, this, &MCsIPCServerConnection::onSocketError);
}

MCsIPCServerConnection::~MCsIPCServerConnection()
{
    if (m_socket == nullptr)
        return;
    m_socket->disconnectFromServer();
    m_socket->deleteLater();
}

bool MCsIPCServerConnection::sendResponse(const QJsonObject &response)
{
    if (m_socket == nullptr || m_socket->state() != QLocalSocket::ConnectedState) {
        MCsLogger::instance().warn(logSource(), u"Cannot send response: not connected"_s);
        return false;
    }
    const QByteArray frame = encodeFrame(response);
    // At this level so that every response shows in a log that is set to warnings.
    MCsLogger::instance().warn(logSource(), u"Sending response: %1"_s.arg(QString::fromUtf8(
                                                frame.first(qMin(frame.size(), loggedResponseBytes)))));
    const qint64 written = m_socket->write(frame);
    if (written != frame.size()) {
        MCsLogger::instance().warn(
            logSource(),
            u"Failed to write complete response. Written: %1 Expected: %2"_s.arg(written).arg(frame.size()));
        return false;
    }
    const bool flushed = m_socket->flush();
    MCsLogger::instance().debug(logSource(),
                                u"Response sent. Bytes written: %1 Flushed: %2"_s.arg(written).arg(flushed ? 1 : 0));
    return true;
}

void MCsIPCServerConnection::processMessage(const QByteArray &frame)
{
    MCsLogger &logger = MCsLogger::instance();
    logger.debug(logSource(), QString(48, u'='));
    logger.debug(logSource(), u"Processing message: %1"_s.arg(
                                  QString::fromUtf8(frame.first(qMin(frame.size(), loggedRequestBytes)))));
    QJsonParseError parseError{};
    const QJsonDocument document = QJsonDocument::fromJson(frame, &parseError);
    if (parseError.error != QJsonParseError::NoError) {
        logger.warn(logSource(), u"Failed to parse JSON message: %1"_s.arg(parseError.errorString()));
        refuse(u"INVALID_JSON"_s, parseError.errorString());
        return;
    }
    if (!document.isObject()) {
        logger.warn(logSource(), u"Received non-object JSON message"_s);
        refuse(u"INVALID_REQUEST"_s, u"Request must be a JSON object"_s);
        return;
    }
    const QJsonObject message = document.object();
    if (!message.contains("id"_L1) || !message.contains("cmd"_L1)) {
        logger.warn(logSource(), u"Request missing required fields (id, cmd)"_s);
        refuse(u"INVALID_REQUEST"_s, u"Request must contain 'id' and 'cmd' fields"_s);
        return;
    }
    logger.debug(logSource(), u"Emitting messageReceived for cmd: %1"_s.arg(message.value("cmd"_L1).toString()));
    emit messageReceived(message);
}

void MCsIPCServerConnection::refuse(const QString &code, const QString &message)
{
    sendResponse(errorResponse(code, message));
}

void MCsIPCServerConnection::onReadyRead()
{
    if (m_socket == nullptr)
        return;
    m_readBuffer.readFrom(*m_socket);
    while (const std::optional<QByteArray> frame = m_readBuffer.takeFrame())
        processMessage(*frame);
}

void MCsIPCServerConnection::onDisconnected()
{
    MCsLogger::instance().debug(logSource(), u"Client disconnected"_s);
    emit disconnected();
}

void MCsIPCServerConnection::onSocketError(QLocalSocket::LocalSocketError /*socketError*/)
{
    if (m_socket == nullptr)
        return;
    const QString message = u"Socket error: %1"_s.arg(m_socket->errorString());
    MCsLogger::instance().warn(logSource(), message);
    emit error(message);
}

} // namespace Scheduler
