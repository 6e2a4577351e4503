// Both ends of the wire protocol: bytes as a peer may send them, cut as a socket may cut them.
//
// The first byte of an input decides about the cuts and about the end, the rest is the stream. What comes out must be
// what a plain split at line feeds and a plain JSON parser say, whatever the cuts.

#include "fuzzing.h"

#include "mcsframebuffer.h"
#include "mcsipcconnection.h"
#include "mcsipcserverconnection.h"
#include "mcslogger.h"
#include "wireprotocol.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QLocalServer>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using Fuzzing::require;

namespace {

/// Cuts a stream into pieces of pseudo-random sizes.
class Cutter {
public:
    /// The sizes are up to a power of two, and one or more than the given number.
    explicit Cutter(uint8_t seed, uint32_t atLeast = 0)
        : m_whole(seed % 8U == 7U)
        , m_mask((1U << (seed % 8U)) - 1U)
        , m_atLeast(atLeast)
        , m_state(seed)
    {
    }
    void cut(QByteArrayView stream, const std::function<void(QByteArrayView)> &take)
    {
        while (!stream.isEmpty()) {
            m_state = m_state * 1664525U + 1013904223U;
            const qsizetype wanted =
                m_whole ? stream.size() : 1 + static_cast<qsizetype>(((m_state >> 16U) & m_mask) + m_atLeast);
            const qsizetype length = qMin(wanted, stream.size());
            take(stream.first(length));
            stream = stream.sliced(length);
        }
    }

private:
    bool m_whole;
    uint32_t m_mask;
    uint32_t m_atLeast;
    uint32_t m_state;
};

/// Complete frames and the unfinished rest.
struct Frames {
    QByteArrayList complete;
    qsizetype rest = 0;
};

Frames plainSplit(const QByteArray &stream)
{
    QByteArrayList pieces = stream.split('\n');
    const qsizetype rest = pieces.takeLast().size();
    pieces.removeAll(QByteArray());
    return {pieces, rest};
}

/// An object goes the way over the wire and back unchanged, as one line.
void requireSurvival(const QJsonObject &object)
{
    const QByteArray frame = encodeFrame(object);
    require(frame.endsWith('\n') && frame.count('\n') == 1, "a frame holds one line feed, at its end");
    require(Fuzzing::objectFrom(frame) == object, "a parsed object survives the wire");
}

// The frame buffer

void checkFrameBuffer(const QByteArray &stream, const Frames &expected, uint8_t seed)
{
    const bool fromDevice = (seed & 0x80U) != 0;
    const bool takeAtOnce = (seed & 0x40U) != 0;
    MCsFrameBuffer buffer;
    QByteArrayList frames;
    qsizetype held = 0;
    const auto takeAll = [&] {
        while (const std::optional<QByteArray> frame = buffer.takeFrame()) {
            require(!frame->isEmpty() && !frame->contains('\n'), "a frame has bytes and no line feed");
            frames.append(*frame);
        }
    };
    Cutter(seed).cut(stream, [&](QByteArrayView piece) {
        if (fromDevice) {
            QByteArray bytes = piece.toByteArray();
            QBuffer device(&bytes);
            device.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
            require(buffer.readFrom(device) == piece.size(), "a read takes all there is");
        } else {
            buffer.append(piece);
        }
        held += piece.size();
        require(takeAtOnce || buffer.size() == held, "what is not taken is held");
        if (takeAtOnce)
            takeAll();
    });
    takeAll();
    require(frames == expected.complete, "the frames do not depend on the cuts");
    require(buffer.size() == expected.rest, "the rest is what follows the last line feed");
    buffer.clear();
    require(buffer.size() == 0 && !buffer.takeFrame(), "a cleared buffer is empty");
}

// Sockets: bytes get into a socket's read buffer as if they had come from the peer, which spares the system calls.

/// Each arrival costs an allocation or two, so a socket gets no single bytes.
constexpr uint32_t smallestArrival = 15;

void receive(QLocalSocket &socket, QByteArrayView bytes)
{
    for (qsizetype i = bytes.size(); i > 0; --i)
        socket.ungetChar(bytes[i - 1]);
    emit socket.readyRead();
}

/// An endpoint and both ends of connections to it.
class Endpoint {
public:
    Endpoint()
    {
        require(m_server.listen(defaultPipeName()), "the endpoint can be listened on");
    }
    QLocalSocket *accept()
    {
        require(m_server.waitForNewConnection(5000), "the connection is accepted");
        return m_server.nextPendingConnection();
    }

private:
    QLocalServer m_server;
};

/// A connected socket that keeps what is written to it.
class WrittenSocket : public QLocalSocket {
public:
    QByteArray written;

protected:
    qint64 writeData(const char *data, qint64 size) override
    {
        written.append(data, static_cast<qsizetype>(size));
        return size;
    }
};

// The daemon's end

/// What the server end does with a frame: the command that it delivers, or the refusal that it writes.
QByteArray expectedReaction(const QByteArray &frame)
{
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(frame, &error);
    if (error.error != QJsonParseError::NoError)
        return encodeFrame(errorResponse(u"INVALID_JSON"_s, error.errorString()));
    if (!document.isObject())
        return encodeFrame(errorResponse(u"INVALID_REQUEST"_s, u"Request must be a JSON object"_s));
    const QJsonObject object = document.object();
    if (object.value("id"_L1).isUndefined() || object.value("cmd"_L1).isUndefined())
        return encodeFrame(errorResponse(u"INVALID_REQUEST"_s, u"Request must contain 'id' and 'cmd' fields"_s));
    return "delivered " + encodeFrame(object);
}

class ServerEnd {
public:
    explicit ServerEnd(Endpoint &endpoint)
    {
        m_socket->connectToServer(defaultPipeName());
        require(m_socket->waitForConnected(5000), "the daemon's end is connected");
        m_peer.reset(endpoint.accept());
        QObject::connect(&m_connection, &MCsIPCServerConnection::messageReceived, m_socket,
                         [this](const QJsonObject &message) {
                             requireSurvival(message);
                             m_socket->written += "delivered " + encodeFrame(message);
                         });
    }

    void check(const QByteArray &stream, const Frames &expected, uint8_t seed)
    {
        QByteArray reactions;
        for (const QByteArray &frame : expected.complete)
            reactions += expectedReaction(frame);
        m_socket->written.clear();
        Cutter(seed, smallestArrival).cut(stream, [this](QByteArrayView piece) { receive(*m_socket, piece); });
        require(m_socket->written == reactions, "the daemon's end reacts to each frame in turn");
        receive(*m_socket, "\n"); // what is unfinished must not reach the next input
    }

private:
    WrittenSocket *m_socket = new WrittenSocket;
    std::unique_ptr<QLocalSocket> m_peer;
    MCsIPCServerConnection m_connection{m_socket, nullptr};
};

// The manager's end

QStringList expectedIds(const QByteArrayList &frames)
{
    QStringList ids;
    for (const QByteArray &frame : frames) {
        const QJsonValue id = Fuzzing::objectFrom(frame).value("id"_L1);
        if (!id.isUndefined())
            ids.append(id.toString());
    }
    return ids;
}

class ClientEnd {
public:
    explicit ClientEnd(Endpoint &endpoint)
    {
        require(m_connection.connectToServer(1, 0), "the manager's end is connected");
        m_peer.reset(endpoint.accept());
        m_socket = m_connection.findChild<QLocalSocket *>();
        QObject::connect(&m_connection, &MCsIPCConnection::responseReceived, m_socket,
                         [this](const QString &id, const QJsonObject &response) {
                             require(response.contains("id"_L1), "a delivered response has an id");
                             m_ids.append(id);
                         });
    }

    void check(const QByteArray &stream, const Frames &expected, uint8_t seed)
    {
        m_ids.clear();
        Cutter(seed, smallestArrival).cut(stream, [this](QByteArrayView piece) { receive(*m_socket, piece); });
        require(m_ids == expectedIds(expected.complete), "the manager's end delivers each response in turn");
        receive(*m_socket, "\n");
    }

private:
    MCsIPCConnection m_connection{defaultPipeName()};
    std::unique_ptr<QLocalSocket> m_peer;
    QLocalSocket *m_socket = nullptr;
    QStringList m_ids;
};

/// What lives from one input to the next.
struct World {
    World()
    {
        constexpr int aboveAllLevels = 4; // another target looks at what is logged
        MCsLogger::instance().setMinLevel(aboveAllLevels);
    }

    Fuzzing::QuietProcess process;
    int argc = 1;
    char name[5] = "fuzz";
    char *argv[2] = {name, nullptr};
    QCoreApplication application{argc, argv};
    Endpoint endpoint;
    ServerEnd server{endpoint};
    ClientEnd client{endpoint};
};

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static World world;
    if (size == 0)
        return 0;
    const uint8_t seed = data[0];
    const QByteArray stream = Fuzzing::bytesOf(data + 1, size - 1);
    const Frames expected = plainSplit(stream);
    checkFrameBuffer(stream, expected, seed);
    if ((seed & 0x20U) == 0)
        world.server.check(stream, expected, seed);
    else
        world.client.check(stream, expected, seed);
    return 0;
}
