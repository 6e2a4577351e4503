#include "mcschecklink.h"

#include "answerform.h"
#include "jsontext.h"
#include "socketpeer.h"

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QJsonDocument>
#include <QTimer>

namespace Scheduler::ProtocolCheck {

using namespace Qt::StringLiterals;

namespace {

constexpr int connectWaitMs = 2000;
constexpr int closeWaitMs = 1000;
/// How long it takes at most until a wait sees that it was interrupted.
constexpr int lookUpMs = 100;

} // namespace

MCsCheckLink::MCsCheckLink(const std::function<bool()> &interrupted, QObject *parent)
    : QObject(parent)
    , m_interrupted(interrupted)
{
    connect(&m_socket, &QLocalSocket::readyRead, this, &MCsCheckLink::onReadyRead);
}

MCsCheckLink::~MCsCheckLink()
{
    m_socket.disconnect(this);
}

std::optional<QString> MCsCheckLink::open(const QString &endpoint)
{
    m_socket.connectToServer(endpoint);
    if (!m_socket.waitForConnected(connectWaitMs))
        return m_socket.errorString();
    const std::optional<QString> stranger = strangerBehind(m_socket.socketDescriptor());
    if (stranger)
        m_socket.abort();
    return stranger;
}

void MCsCheckLink::close()
{
    m_socket.disconnectFromServer();
    if (m_socket.state() != QLocalSocket::UnconnectedState)
        m_socket.waitForDisconnected(closeWaitMs);
}

bool MCsCheckLink::isOpen() const
{
    return m_socket.state() == QLocalSocket::ConnectedState;
}

void MCsCheckLink::send(const QByteArray &bytes)
{
    m_socket.write(bytes);
    m_socket.flush();
}

MCsCheckLink::Frame MCsCheckLink::answerTo(const QJsonValue &id, int timeoutMs)
{
    const Frame answer = take([&id](const QJsonObject &frame) { return frame.value("id"_L1) == id; }, timeoutMs);
    if (!answer)
        m_overdue.append(id);
    return answer;
}

MCsCheckLink::Frame MCsCheckLink::frameWithoutId(int timeoutMs)
{
    return take([](const QJsonObject &frame) { return !frame.contains("id"_L1); }, timeoutMs);
}

QStringList MCsCheckLink::strays() const
{
    QStringList texts;
    for (const QJsonObject &frame : m_received) {
        if (!m_overdue.contains(frame.value("id"_L1)))
            texts.append(textOf(frame));
    }
    return texts;
}

QStringList MCsCheckLink::malformed() const
{
    return m_malformed;
}

void MCsCheckLink::onReadyRead()
{
    m_buffer.readFrom(m_socket);
    while (const std::optional<QByteArray> bytes = m_buffer.takeFrame()) {
        const QJsonDocument document = QJsonDocument::fromJson(*bytes);
        const QString problem =
            document.isObject() ? answerProblem(document.object()) : u"a frame that is no JSON object"_s;
        if (!problem.isEmpty())
            m_malformed.append(u"%1: %2"_s.arg(problem, shortened(QString::fromUtf8(*bytes))));
        if (document.isObject())
            m_received.append(document.object());
    }
}

MCsCheckLink::Frame MCsCheckLink::take(const Wanted &wanted, int timeoutMs)
{
    QEventLoop loop;
    QTimer lookUp;
    connect(&m_socket, &QLocalSocket::readyRead, &loop, &QEventLoop::quit);
    connect(&m_socket, &QLocalSocket::disconnected, &loop, &QEventLoop::quit);
    connect(&lookUp, &QTimer::timeout, &loop, &QEventLoop::quit);
    const QDeadlineTimer deadline(timeoutMs);
    Frame frame = takeReceived(wanted);
    while (!frame && isOpen() && !deadline.hasExpired() && !m_interrupted()) {
        lookUp.start(static_cast<int>(qBound(qint64(1), deadline.remainingTime(), qint64(lookUpMs))));
        loop.exec();
        frame = takeReceived(wanted);
    }
    return frame;
}

MCsCheckLink::Frame MCsCheckLink::takeReceived(const Wanted &wanted)
{
    for (qsizetype position = 0; position < m_received.size(); ++position) {
        if (wanted(m_received.at(position)))
            return m_received.takeAt(position);
    }
    return std::nullopt;
}

} // namespace Scheduler::ProtocolCheck
